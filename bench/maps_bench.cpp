// The three value maps over 999 triangles of a 999-hole project, with the value labels shown,
// each beside its floor: one read of kor and one of the drawing.
#include <benchmark/benchmark.h>

#include "bench_data.h"
#include "platform/store.h"
#include "sqlite_floor.h"
#include "views/commands.h"

namespace tri::bench {
namespace {

void runMap(benchmark::State& state, Procedure map) {
  Session s;
  openAndSelect(s, viewsProject());
  s.canvas.setLogging(false);
  s.state.views.miktargoster = true;
  for (auto _ : state) map(s.state);
}

void readTableAndHoles(benchmark::State& state, const char* valueField) {
  for (auto _ : state) {
    RawDatabase db(viewsProject());
    benchmark::DoNotOptimize(db.readAll("SELECT eks, eye, isim FROM kor"));
    benchmark::DoNotOptimize(db.readAll(std::string("SELECT koordinat1, koordinat2, ") +
                                        valueField + ", ucgensay FROM \"Ag\""));
  }
}

void BM_TenorMap(benchmark::State& state) { runMap(state, Mnyuzdeten_Click); }
BENCHMARK(BM_TenorMap)->Unit(benchmark::kMillisecond);

void BM_TenorMap_floor(benchmark::State& state) { readTableAndHoles(state, "geneltenor"); }
BENCHMARK(BM_TenorMap_floor)->Unit(benchmark::kMillisecond);

void BM_ReserveMap(benchmark::State& state) { runMap(state, Mnrezton_Click); }
BENCHMARK(BM_ReserveMap)->Unit(benchmark::kMillisecond);

void BM_ReserveMap_floor(benchmark::State& state) { readTableAndHoles(state, "genelrezerv"); }
BENCHMARK(BM_ReserveMap_floor)->Unit(benchmark::kMillisecond);

void BM_GeneralReserveMap(benchmark::State& state) { runMap(state, Mngenelrezervler_Click); }
BENCHMARK(BM_GeneralReserveMap)->Unit(benchmark::kMillisecond);

void BM_GeneralReserveMap_floor(benchmark::State& state) {
  readTableAndHoles(state, "genelrezerv");
}
BENCHMARK(BM_GeneralReserveMap_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
