// A limit study over 999 triangles of a project of 999 holes, beside its floor: one read of
// log and of the drawing, and one transaction of writes.
#include <benchmark/benchmark.h>

#include "bench_data.h"
#include "limit/commands.h"
#include "platform/store.h"
#include "sqlite_floor.h"

namespace tri::bench {
namespace {

const std::string& studyProject() {
  static const std::string path = projectWithDrawing("study.mdb", "Cu", 0);
  return path;
}

void BM_LimitStudy(benchmark::State& state) {
  Session s;
  openAndSelect(s, studyProject());
  s.canvas.setLogging(false);
  for (auto _ : state) {
    state.PauseTiming();
    {
      Database db = Database::open(studyProject());
      if (db.hasTable("1.5Cu")) db.deleteTable("1.5Cu");
    }
    s.state.projects.limsay(1, 1, 1) = 0;
    s.dialogs.answerInput("1.5");
    state.ResumeTiming();
    Mnlimekle_Click(s.state);
  }
}
BENCHMARK(BM_LimitStudy)->Unit(benchmark::kMillisecond);

void BM_LimitStudy_floor(benchmark::State& state) {
  RawTable study;
  {
    RawDatabase source(studyProject());
    study = source.copyTable("Cu");
    study.name = "floor";
    study.createSql = "CREATE TABLE floor (" + [&] {
      std::string columns;
      for (size_t c = 0; c + 1 < study.columns.size(); ++c) {
        columns += (c ? "," : "") + quoted(study.columns[c]) + " INTEGER";
      }
      return columns;
    }() + ")";
    study.columns.pop_back();
    for (Row& row : study.rows) row.pop_back();
  }
  for (auto _ : state) {
    RawDatabase db(studyProject());
    db.readAll("SELECT * FROM \"Cu\"");
    db.readAll("SELECT * FROM log");
    db.exec("BEGIN");
    db.exec(study.createSql);
    db.insert(study, study.rows);
    db.exec("UPDATE ore SET limten1 = 'floor', limdeg1 = 1500 WHERE tsay = 1");
    db.exec("COMMIT");
    state.PauseTiming();
    db.exec("DROP TABLE floor");
    state.ResumeTiming();
  }
}
BENCHMARK(BM_LimitStudy_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
