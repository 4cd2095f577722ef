// The plan repaint of 999 triangles, the third pick of a triangle into a drawing with 30
// limit tables, and the hover over 999 holes, each beside its floor.
#include <benchmark/benchmark.h>

#include "bench_data.h"
#include "commands/procedures.h"
#include "sqlite_floor.h"
#include "triangles/commands.h"

namespace tri::bench {
namespace {

// A project of 999 holes with the drawing "Ag" of 999 triangles and 30 limit tables.
const std::string& networkProject() {
  static const std::string path = projectWithDrawing("network.mdb", "Ag", kLimitTables);
  return path;
}

void BM_Ucgenplan(benchmark::State& state) {
  Session s;
  openAndSelect(s, networkProject());
  s.canvas.setLogging(false);
  for (auto _ : state) ucgenplan(s.state);
}
BENCHMARK(BM_Ucgenplan)->Unit(benchmark::kMillisecond);

void BM_Ucgenplan_floor(benchmark::State& state) {
  for (auto _ : state) {
    RawDatabase db(networkProject());
    benchmark::DoNotOptimize(db.readAll("SELECT eks, eye, isim FROM kor"));
    benchmark::DoNotOptimize(
        db.readAll("SELECT koordinat1, koordinat2, geneltenor, ucgensay FROM \"Ag\""));
  }
}
BENCHMARK(BM_Ucgenplan_floor)->Unit(benchmark::kMillisecond);

// Opening a project reads limit slots 1 to 10 only; a run that made all 30 studies holds
// every one of them, and a new triangle then goes into all 30 tables.
void holdEveryLimit(State& s) {
  const int p = s.project(), l = s.lithology(), d = s.drawing();
  for (int k = 1; k <= kLimitTables; ++k) {
    s.projects.limdeger(p, l, d, k) = {static_cast<double>(k), std::to_string(k)};
  }
  s.projects.limsay(p, l, d) = kLimitTables;
}

// The third pick finishes a triangle: the drawing's summary row and one triangle in each of
// the 30 limit tables. The first two picks are made outside the timing.
void BM_ThirdPick(benchmark::State& state) {
  Session s;
  openAndSelect(s, networkProject());
  holdEveryLimit(s.state);
  s.canvas.setLogging(false);
  s.state.flags.modcizim = true;
  const std::array<int, 3> holes = triangleHoles(1);
  for (auto _ : state) {
    state.PauseTiming();
    s.state.entry.ucgensira = 0;
    s.state.entry.ucgenbuf = 0;
    Picture1_MouseDown(s.state, 1, holeX(holes[0]), holeY(holes[0]));
    Picture1_MouseDown(s.state, 1, holeX(holes[1]), holeY(holes[1]));
    state.ResumeTiming();
    Picture1_MouseDown(s.state, 1, holeX(holes[2]), holeY(holes[2]));
  }
}
BENCHMARK(BM_ThirdPick)->Unit(benchmark::kMillisecond);

void BM_ThirdPick_floor(benchmark::State& state) {
  RawTable vertex, summary;
  {
    RawDatabase source(networkProject());
    RawTable drawing = source.copyTable("Ag");
    vertex = summary = drawing;
    vertex.rows = {drawing.rows[1]};
    summary.rows = {drawing.rows[4]};
  }
  for (auto _ : state) {
    RawDatabase db(networkProject());
    db.readAll("SELECT eks, eye, isim, songir, cevgir, cevcik, soncik FROM kor");
    db.readAll("SELECT rowid FROM \"Ag\"");
    db.insert(vertex, vertex.rows);
    db.readAll("SELECT koordinat1, koordinat2, say FROM \"Ag\" ORDER BY rowid DESC LIMIT 4");
    for (long long hole : {1, 2, 33}) db.readRow("log", hole);
    db.exec("BEGIN");
    db.insert(summary, summary.rows);
    for (int k = 1; k <= kLimitTables; ++k) {
      RawTable limit = vertex;
      limit.name = std::to_string(k) + "Ag";
      limit.columns.pop_back();  // no bsy
      for (int i = 0; i < 3; ++i) {
        Row row = vertex.rows[0];
        row.pop_back();
        db.insert(limit, {row});
      }
      Row row = summary.rows[0];
      row.pop_back();
      db.insert(limit, {row});
    }
    db.exec("COMMIT");
  }
}
BENCHMARK(BM_ThirdPick_floor)->Unit(benchmark::kMillisecond);

void BM_Hover(benchmark::State& state) {
  Session s;
  openAndSelect(s, networkProject());
  s.state.flags.modtiklama = true;
  for (auto _ : state) Picture1_MouseMove(s.state, 0, holeX(500), holeY(500));
}
BENCHMARK(BM_Hover)->Unit(benchmark::kMillisecond);

void BM_Hover_floor(benchmark::State& state) {
  for (auto _ : state) {
    RawDatabase db(networkProject());
    benchmark::DoNotOptimize(
        db.readAll("SELECT eks, eye, songir, cevgir, cevcik, soncik FROM log"));
  }
}
BENCHMARK(BM_Hover_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
