// One step of the 3D reserve view's angle over 999 triangles of a 999-hole project, as a drag
// of the scroll bar makes them, beside its floor: one read of kor, of the drawing and of the
// log rows of the corner holes.
#include <benchmark/benchmark.h>

#include <set>

#include "bench_data.h"
#include "platform/store.h"
#include "sqlite_floor.h"
#include "store/project_format.h"
#include "views/commands.h"

namespace tri::bench {
namespace {

void BM_View3DStep(benchmark::State& state) {
  Session s;
  openAndSelect(s, viewsProject());
  s.canvas.setLogging(false);
  Views& w = s.state.views;
  w.renksay = 5;
  for (int j = 1; j <= 5; ++j) w.renkler[j] = rgb(50 * j, 255 - 50 * j, 0);
  Mnrecboy_Click(s.state);
  int angle = 0;
  for (auto _ : state) {
    angle = (angle + 1) % 361;
    s.state.ui.hscroll1Value = angle;
    HScroll1_Change(s.state);
  }
}
BENCHMARK(BM_View3DStep)->Unit(benchmark::kMillisecond);

void BM_View3DStep_floor(benchmark::State& state) {
  std::set<int> corners;
  for (int t = 1; t <= kTriangles; ++t) {
    for (int hole : triangleHoles(t)) corners.insert(hole);
  }
  std::string rows;
  for (int hole : corners) rows += (rows.empty() ? "" : ",") + std::to_string(hole);
  std::string slotColumns;
  for (int c = 1; c <= kLayers + 1; ++c) {
    slotColumns += (c > 1 ? ", " : "") + numbered(field::lit, c) + ", " + numbered(field::ten, c) +
                   ", " + numbered(field::uz, c);
  }
  for (auto _ : state) {
    RawDatabase db(viewsProject());
    benchmark::DoNotOptimize(db.readAll("SELECT eks, eye, isim FROM kor"));
    benchmark::DoNotOptimize(
        db.readAll("SELECT koordinat1, koordinat2, say, sondgir, cevhgir, cevhcik, sondcik, "
                   "genelrezerv, ekxk, ekyk, ebxk, ebyk, ucgensay FROM \"Ag\""));
    benchmark::DoNotOptimize(
        db.readAll("SELECT " + slotColumns + " FROM log WHERE rowid IN (" + rows + ")"));
  }
}
BENCHMARK(BM_View3DStep_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
