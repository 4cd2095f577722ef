// Selecting and removing a triangle from a drawing of 999 triangles with 30 limit tables,
// beside its floor. Every iteration starts from a fresh copy of the same project.
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>

#include "bench_data.h"
#include "commands/procedures.h"
#include "sqlite_floor.h"
#include "triangles/commands.h"

namespace tri::bench {
namespace {

// The triangle removed: one in the middle, so that half the network lies before it and
// half after.
constexpr int kRemoved = 500;

const std::string& pristineProject() {
  static const std::string path = projectWithDrawing("removal.mdb", "Zn", kLimitTables);
  return path;
}

// The project the cases work on, made again from the pristine one.
const std::string& workProject() {
  static const std::string path = benchFolder().file("removal-work.mdb");
  return path;
}

void restoreWorkProject() {
  namespace fs = std::filesystem;
  for (const char* suffix : {"-wal", "-shm"}) fs::remove(workProject() + suffix);
  fs::copy_file(pristineProject(), workProject(), fs::copy_options::overwrite_existing);
  // On the disk before the timing starts, so that no case pays for the copy.
  const int fd = ::open(workProject().c_str(), O_RDONLY);
  ::fsync(fd);
  ::close(fd);
}

// Opening a project reads limit slots 1 to 10 only; a run that made all 30 studies holds
// every one of them, and removal then walks all 30 tables.
void holdEveryLimit(State& s) {
  const int p = s.project(), l = s.lithology(), d = s.drawing();
  for (int k = 1; k <= kLimitTables; ++k) {
    s.projects.limdeger(p, l, d, k) = {static_cast<double>(k), std::to_string(k)};
  }
  s.projects.limsay(p, l, d) = kLimitTables;
}

// The third corner finds the triangle in the drawing and in each limit table, deletes its
// rows, renumbers the rest, and the plan is drawn again. The first two corners are picked
// outside the timing.
void BM_SelectAndRemove(benchmark::State& state) {
  restoreWorkProject();
  Session s;
  openAndSelect(s, workProject());
  holdEveryLimit(s.state);
  s.canvas.setLogging(false);
  const std::array<int, 3> holes = triangleHoles(kRemoved);
  for (auto _ : state) {
    state.PauseTiming();
    restoreWorkProject();
    Mnucsec_Click(s.state);
    Picture1_MouseDown(s.state, 1, holeX(holes[2]), holeY(holes[2]));
    Picture1_MouseDown(s.state, 1, holeX(holes[0]), holeY(holes[0]));
    state.ResumeTiming();
    Picture1_MouseDown(s.state, 1, holeX(holes[1]), holeY(holes[1]));
  }
}
BENCHMARK(BM_SelectAndRemove)->Unit(benchmark::kMillisecond);

// Reading kor, finding the triangle's rows in every table, deleting them and lowering the
// numbers after them in one transaction, then the reads of the repaint.
void BM_SelectAndRemove_floor(benchmark::State& state) {
  const long long first = 4LL * kRemoved - 2;  // rowids: the header is 1
  const std::string rows = std::to_string(first) + " AND " + std::to_string(first + 3);
  for (auto _ : state) {
    state.PauseTiming();
    restoreWorkProject();
    state.ResumeTiming();
    RawDatabase db(workProject());
    db.readAll("SELECT eks, eye, isim, songir, cevgir, cevcik, soncik FROM kor");
    db.exec("BEGIN");
    for (int k = 0; k <= kLimitTables; ++k) {
      const std::string table = quoted(k == 0 ? "Zn" : std::to_string(k) + "Zn");
      db.readAll("SELECT koordinat1, koordinat2 FROM " + table + " WHERE rowid < " +
                 std::to_string(first + 3));
      db.exec("DELETE FROM " + table + " WHERE rowid BETWEEN " + rows);
      db.exec("UPDATE " + table + " SET ucgensay = ucgensay - 1 WHERE rowid > " +
              std::to_string(first + 3) + " AND ucgensay IS NOT NULL");
      db.readAll("SELECT ucgensay FROM " + table + " ORDER BY rowid DESC LIMIT 1");
    }
    db.exec("COMMIT");
    db.readAll("SELECT eks, eye, isim FROM kor");
    db.readAll("SELECT koordinat1, koordinat2, geneltenor, ucgensay FROM \"Zn\"");
  }
}
BENCHMARK(BM_SelectAndRemove_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri::bench
