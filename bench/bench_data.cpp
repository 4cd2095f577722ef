#include "bench_data.h"

#include "platform/store.h"
#include "project/commands.h"
#include "store/project_format.h"

namespace tri::bench {

namespace {

constexpr int kGridColumns = 32;
const char* const kLithologies[] = {"ore", "waste", "cover"};

// A sheet that reads a shared grid, so that each command does not copy the workbook.
class SharedSheet : public Sheet {
 public:
  explicit SharedSheet(std::shared_ptr<const GridSheet> grid) : grid_(std::move(grid)) {}
  Cell cell(int row, int column) const override { return grid_->cell(row, column); }

 private:
  std::shared_ptr<const GridSheet> grid_;
};

}  // namespace

double holeX(int n) { return 1000 + 50.0 * ((n - 1) % kGridColumns); }
double holeY(int n) { return 1000 + 50.0 * ((n - 1) / kGridColumns); }

std::array<int, 3> triangleHoles(int t) {
  // Two triangles per grid cell, cells taken row by row.
  const int cell = (t - 1) / 2;
  const int row = cell / (kGridColumns - 1);
  const int column = cell % (kGridColumns - 1);
  const int n = row * kGridColumns + column + 1;
  if ((t - 1) % 2 == 0) return {n, n + 1, n + kGridColumns};
  return {n + 1, n + kGridColumns + 1, n + kGridColumns};
}

std::shared_ptr<const GridSheet> holeWorkbook(int holes, int layers) {
  auto grid = std::make_shared<GridSheet>();
  for (int n = 1; n <= holes; ++n) {
    grid->setNumber(1, n, holeX(n));
    grid->setNumber(2, n, holeY(n));
    grid->setText(3, n, "DH-" + std::to_string(n));
    grid->setNumber(4, n, 400 + n % 17);
    grid->setNumber(5, n, 390);
    grid->setNumber(6, n, 300);
    grid->setNumber(7, n, 250);
    for (int k = 1; k <= layers; ++k) {
      grid->setText(7 + k, n, kLithologies[(k - 1) % 3]);
      grid->setNumber(7 + layers + k, n, 0.25 + ((n * 7 + k * 3) % 40) * 0.075);
      grid->setNumber(7 + 2 * layers + k, n, 2.2 + ((n + k) % 9) * 0.1);
      grid->setNumber(7 + 3 * layers + k, n, 1.5 + ((n * 3 + k) % 11) * 0.5);
      grid->setNumber(7 + 4 * layers + k, n, 0.01 * ((n + 2 * k) % 30 + 1));
    }
  }
  return grid;
}

void useWorkbook(Session& s, std::shared_ptr<const GridSheet> sheet) {
  s.state.openSheet = [sheet](const std::string&) { return std::make_unique<SharedSheet>(sheet); };
}

void createProject(Session& s, std::shared_ptr<const GridSheet> sheet, const std::string& path) {
  useWorkbook(s, std::move(sheet));
  s.dialogs.answerOpen("holes.xls").answerSave(path);
  Mnprolus_Click(s.state);
}

const TempDir& benchFolder() {
  static const TempDir dir;
  return dir;
}

void writeDrawing(const std::string& path, const std::string& name, int triangles, int limits) {
  Database db = Database::open(path);
  std::vector<std::string> tables{name};
  for (int k = 1; k <= limits; ++k) tables.push_back(std::to_string(k) + name);
  for (size_t i = 0; i < tables.size(); ++i) {
    db.createTable(tables[i], i == 0 ? drawingFields() : limitFields());
    Recordset t = db.openTable(tables[i]);
    t.addNew();
    t.set("ucgensay", 0);
    if (i == 0) t.set("kal", 0);
    t.update();
    for (int tri = 1; tri <= triangles; ++tri) {
      for (int hole : triangleHoles(tri)) {
        t.addNew();
        t.set("koordinat1", holeX(hole) * 1000);
        t.set("koordinat2", holeY(hole) * 1000);
        t.set("say", hole);
        t.set("sondgir", 400000);
        t.set("cevhgir", 390000);
        t.set("cevhcik", 300000);
        t.set("sondcik", 250000);
        t.update();
      }
      t.addNew();
      t.set("ucgensay", tri);
      t.set("geneltenor", 1500);
      t.set("genelrezerv", 120);
      t.set("ill", 1250000);
      t.update();
    }
  }
  Recordset ore = db.openTable("ore");
  ore.moveLast();
  const int number = static_cast<int>(ore.number("tsay")) + 1;
  ore.addNew();
  ore.set("cizim", name);
  ore.set("tsay", number);
  for (int k = 1; k <= limits; ++k) {
    ore.set(numbered("limten", k), tables[k]);
    ore.set(numbered("limdeg", k), k * 1000);
  }
  ore.update();
}

std::string projectWithDrawing(const std::string& file, const std::string& drawing, int limits) {
  Session s;
  const std::string made = benchFolder().file(file);
  createProject(s, holeWorkbook(kHoles, kLayers), made);
  writeDrawing(made, drawing, kTriangles, limits);
  return made;
}

const std::string& viewsProject() {
  static const std::string path = [] {
    std::string made = projectWithDrawing("views.mdb", "Ag", 0);
    Database db = Database::open(made);
    Recordset table = db.openTable("Ag");
    WriteBatch batch = db.beginBatch();
    for (int t = 1; t <= kTriangles; ++t) {
      table.moveFirst();
      table.move(4 * t);
      table.edit();
      table.set(field::genelrezerv, 1 + (t * 7919) % 10007);
      table.set(field::ekxk, holeX(1) * 1000);
      table.set(field::ebxk, holeX(kGridColumns) * 1000);
      table.set(field::ekyk, holeY(1) * 1000);
      table.set(field::ebyk, holeY(kHoles) * 1000);
      table.update();
    }
    batch.commit();
    return made;
  }();
  return path;
}

void openAndSelect(Session& s, const std::string& path) {
  s.openProject(path);
  s.state.ui.combo4.setListIndex(1);
  s.state.ui.combo2.setListIndex(1);
}

}  // namespace tri::bench
