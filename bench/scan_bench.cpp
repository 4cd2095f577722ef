// The scan of all 999 triangles of a drawing over 999 holes of 48 layers, beside its floor.
#include <benchmark/benchmark.h>

#include "bench_data.h"
#include "scan/commands.h"
#include "sqlite_floor.h"

namespace tri::bench {
namespace {

const std::string& scanProject() {
  static const std::string path = projectWithDrawing("scan.mdb", "Bench", 0);
  return path;
}

// The bench cuts some ten layers of every log, ore among them.
void BM_ScanAll(benchmark::State& state) {
  Session s;
  openAndSelect(s, scanProject());
  s.state.scan.upkot = 380;
  s.state.scan.downkot = 340;
  s.canvas.setLogging(false);
  for (auto _ : state) Mntrtum_Click(s.state);
}
BENCHMARK(BM_ScanAll)->Unit(benchmark::kMillisecond);

// One read of the drawing's corners and areas, and one of the logs as far as they are read.
void BM_ScanAll_floor(benchmark::State& state) {
  std::string logFields = "eks, eye, cevgir";
  for (int k = 1; k <= kLayers; ++k) {
    for (const char* stem : {"lit", "ten", "yog", "uz"}) {
      logFields += ", " + std::string(stem) + std::to_string(k);
    }
  }
  logFields += ", ten" + std::to_string(kLayers + 1);
  for (auto _ : state) {
    RawDatabase db(scanProject());
    benchmark::DoNotOptimize(db.readAll("SELECT koordinat1, koordinat2, ill FROM \"Bench\""));
    benchmark::DoNotOptimize(db.readAll("SELECT " + logFields + " FROM log"));
  }
}
BENCHMARK(BM_ScanAll_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
