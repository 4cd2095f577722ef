// The report program's grade-tonnage curve: 100 cut-offs over the 999 triangles of a
// project of 999 holes, read-only, beside its floor: one read of log and of the drawing.
#include <benchmark/benchmark.h>

#include "bench_data.h"
#include "report/figures.h"
#include "report/report_project.h"
#include "sqlite_floor.h"

namespace tri::bench {
namespace {

const std::string& curveProject() {
  static const std::string path = projectWithDrawing("curve.mdb", "Cu", 0);
  return path;
}

void BM_GradeTonnage(benchmark::State& state) {
  const std::vector<double> cutoffs = report::parseCutoffs("0:4.95:0.05");
  for (auto _ : state) {
    report::ReportProject project(curveProject());
    const std::vector<report::StoredTriangle> triangles = project.readTriangles("Cu");
    const report::ProjectLogs logs = project.readLogs();
    auto rows = report::gradeTonnage(triangles, logs, "ore", cutoffs);
    benchmark::DoNotOptimize(rows.data());
  }
  state.counters["cutoffs"] = static_cast<double>(cutoffs.size());
}
BENCHMARK(BM_GradeTonnage)->Unit(benchmark::kMillisecond);

void BM_GradeTonnage_floor(benchmark::State& state) {
  for (auto _ : state) {
    RawDatabase db(curveProject());
    db.readAll("SELECT * FROM \"Cu\"");
    db.readAll("SELECT * FROM log");
  }
}
BENCHMARK(BM_GradeTonnage_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
