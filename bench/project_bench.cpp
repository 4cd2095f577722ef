// Creating and opening a project of 999 holes of 48 layers, each beside its floor: the same
// rows inserted in one transaction, and the same rows read by one SELECT a table.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench_data.h"
#include "project/commands.h"
#include "sqlite_floor.h"

namespace tri::bench {
namespace {

std::shared_ptr<const GridSheet> fullWorkbook() {
  static const std::shared_ptr<const GridSheet> sheet = holeWorkbook(kHoles, kLayers);
  return sheet;
}

// A project made once by the program itself, kept for the floors and the open case.
const std::string& referenceProject() {
  static const std::string path = [] {
    Session s;
    const std::string made = benchFolder().file("reference.mdb");
    createProject(s, fullWorkbook(), made);
    return made;
  }();
  return path;
}

void BM_CreateProject(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto session = std::make_unique<Session>();
    useWorkbook(*session, fullWorkbook());
    session->dialogs.answerOpen("holes.xls").answerSave(session->dir.file("p.mdb"));
    state.ResumeTiming();
    Mnprolus_Click(session->state);
    state.PauseTiming();
    session.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_CreateProject)->Unit(benchmark::kMillisecond);

void BM_CreateProject_floor(benchmark::State& state) {
  std::vector<RawTable> tables;
  {
    RawDatabase source(referenceProject());
    for (const char* name : {"pol", "kor", "log", "ore", "waste", "cover", "litoloji"}) {
      tables.push_back(source.copyTable(name));
    }
  }
  for (auto _ : state) {
    state.PauseTiming();
    TempDir dir;
    state.ResumeTiming();
    RawDatabase db(dir.file("floor.mdb"));
    db.exec("BEGIN");
    for (const RawTable& t : tables) db.exec(t.createSql);
    for (const RawTable& t : tables) db.insert(t, t.rows);
    db.exec("COMMIT");
  }
}
BENCHMARK(BM_CreateProject_floor)->Unit(benchmark::kMillisecond);

void BM_OpenProject(benchmark::State& state) {
  const std::string path = referenceProject();
  for (auto _ : state) {
    state.PauseTiming();
    auto session = std::make_unique<Session>();
    session->dialogs.answerOpen(path);
    state.ResumeTiming();
    Mnprojeac_Click(session->state);
    state.PauseTiming();
    session.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_OpenProject)->Unit(benchmark::kMillisecond);

void BM_OpenProject_floor(benchmark::State& state) {
  const std::string path = referenceProject();
  for (auto _ : state) {
    RawDatabase db(path);
    long rows = 0;
    for (const char* table : {"log", "litoloji", "ore", "waste", "cover"}) {
      rows += db.readAll("SELECT * FROM " + quoted(table));
    }
    benchmark::DoNotOptimize(rows);
  }
}
BENCHMARK(BM_OpenProject_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
