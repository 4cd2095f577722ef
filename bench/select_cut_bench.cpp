// The drill-log view of a 999-hole project of 48 layers, its first page drawn on the form,
// beside its floor: one read of every row of log and of kor.
#include <benchmark/benchmark.h>

#include "bench_data.h"
#include "sqlite_floor.h"
#include "views/commands.h"

namespace tri::bench {
namespace {

const std::string& logProject() {
  static const std::string path = projectWithDrawing("select_cut.mdb", "Ag", 0);
  return path;
}

void BM_SelectCut(benchmark::State& state) {
  Session s;
  openAndSelect(s, logProject());
  s.form.setLogging(false);
  for (auto _ : state) Mnsonkes_Click(s.state);
  state.counters["bars"] = s.state.markers.shapesay;
}
BENCHMARK(BM_SelectCut)->Unit(benchmark::kMillisecond);

void BM_SelectCut_floor(benchmark::State& state) {
  for (auto _ : state) {
    RawDatabase db(logProject());
    benchmark::DoNotOptimize(db.readAll("SELECT * FROM log"));
    benchmark::DoNotOptimize(db.readAll("SELECT * FROM kor"));
  }
}
BENCHMARK(BM_SelectCut_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
