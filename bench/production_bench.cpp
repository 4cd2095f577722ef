// The creation of the two area tables of the plane command, aukor and askor with 150 fields
// and 1000 rows each, beside its floor: the same tables and rows made in one transaction.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "bench_data.h"
#include "production/plane.h"
#include "sqlite_floor.h"

namespace tri::bench {
namespace {

// A project without the area tables, made once by the program; each run works on a copy.
const std::string& bareProject() {
  static const std::string path = [] {
    Session s;
    const std::string made = benchFolder().file("bare.mdb");
    createProject(s, holeWorkbook(20, 3), made);
    return made;
  }();
  return path;
}

std::string freshCopy(const char* name) {
  const std::string copy = benchFolder().file(name);
  for (const char* suffix : {"", "-wal", "-shm"}) std::filesystem::remove(copy + suffix);
  std::filesystem::copy_file(bareProject(), copy);
  return copy;
}

void BM_PlaneTables(benchmark::State& state) {
  Session s;
  createProject(s, holeWorkbook(20, 3), s.dir.file("session.mdb"));
  for (auto _ : state) {
    state.PauseTiming();
    s.state.projects.projeyol[s.state.project()] = freshCopy("plane.mdb");
    state.ResumeTiming();
    createAreaTables(s.state);
  }
}
BENCHMARK(BM_PlaneTables)->Unit(benchmark::kMillisecond);

void BM_PlaneTables_floor(benchmark::State& state) {
  std::vector<RawTable> tables;
  {
    Session s;
    createProject(s, holeWorkbook(20, 3), s.dir.file("reference.mdb"));
    createAreaTables(s.state);
    RawDatabase made(s.state.projectPath());
    for (const char* name : {"aukor", "askor"}) tables.push_back(made.copyTable(name));
  }
  for (auto _ : state) {
    state.PauseTiming();
    const std::string path = freshCopy("floor.mdb");
    state.ResumeTiming();
    RawDatabase db(path);
    db.exec("BEGIN");
    for (const RawTable& t : tables) db.exec(t.createSql);
    for (const RawTable& t : tables) db.insert(t, t.rows);
    db.exec("COMMIT");
  }
}
BENCHMARK(BM_PlaneTables_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
