// The area-relative tenor of View, Add over 999 triangles, beside its floor: one read of the
// drawing's area and tenor.
#include <benchmark/benchmark.h>

#include "bench_data.h"
#include "sqlite_floor.h"
#include "views/commands.h"

namespace tri::bench {
namespace {

const std::string& overlayProject() {
  static const std::string path = projectWithDrawing("overlays.mdb", "Ag", 0);
  return path;
}

void BM_AreaRelativeTenor(benchmark::State& state) {
  Session s;
  openAndSelect(s, overlayProject());
  for (auto _ : state) {
    s.state.views.overlays.alanortensay = 0;  // every use arms, and so sums
    Mnorten_Click(s.state);
  }
  benchmark::DoNotOptimize(s.state.views.overlays.alanortten);
}
BENCHMARK(BM_AreaRelativeTenor)->Unit(benchmark::kMillisecond);

void BM_AreaRelativeTenor_floor(benchmark::State& state) {
  for (auto _ : state) {
    RawDatabase db(overlayProject());
    benchmark::DoNotOptimize(db.readAll("SELECT ill, geneltenor, ucgensay FROM \"Ag\""));
  }
}
BENCHMARK(BM_AreaRelativeTenor_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
