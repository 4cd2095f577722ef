// Production, Data, Plane and Production, Area, Delete.
#include "production/plane.h"

#include <optional>

#include "canvas/replay.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "production/area_rows.h"
#include "production/commands.h"
#include "store/project_format.h"
#include "triangles/commands.h"

namespace tri {

namespace {

const char* const kWorkbookFilter = "Excel File (*.xls)|*.xls";
// Columns and rows are scanned this far for the end of the data.
constexpr int kScanLimit = 999;

// Every group of the current row set to 0, 0 and `mark`, in one edit.
void setAllGroups(Recordset& rs, const char* mark) {
  for (int n = 1; n <= kAreaGroups; ++n) {
    const GroupFields f = groupFields(n);
    rs.set(f.xx, 0);
    rs.set(f.yy, 0);
    rs.set(f.ad, mark);
  }
}

void fillAreaTable(Database& db, const char* name) {
  Recordset rs = db.openTable(name);
  rs.addNew();
  setAllGroups(rs, kFreeHead);
  rs.update();
  for (int r = 2; r <= kAreaRows; ++r) {
    rs.addNew();
    setAllGroups(rs, kFreeRow);
    rs.update();
  }
}

// Frees every slot of a table: the head row "bas", the others "al". A table that is missing
// or has no rows is left out.
void emptyAreaTable(Database& db, const char* name) {
  if (!db.hasTable(name)) return;
  Recordset rs = db.openTable(name);
  if (rs.recordCount() == 0) return;
  rs.moveFirst();
  rs.edit();
  setAllGroups(rs, kFreeHead);
  rs.update();
  for (rs.moveNext(); !rs.eof(); rs.moveNext()) {
    rs.edit();
    setAllGroups(rs, kFreeRow);
    rs.update();
  }
}

std::optional<std::string> askPlaneWorkbook(State& s) {
  while (true) {
    const FileChoice file = s.dialogs.openFile("Select File with Coordinate Data", kWorkbookFilter);
    if (!file.empty()) return file.path;
    const Answer again =
        s.dialogs.messageBox("You did not enter a name", Buttons::OKCancel, Icon::None, "");
    if (again == Answer::Cancel) return std::nullopt;
  }
}

// The columns end at the first empty cell of row 1.
int countColumns(const Sheet& sheet) {
  int c = 1;
  for (; c <= kScanLimit; ++c) {
    if (sheet.cell(1, c).isEmpty()) break;
  }
  return c - 1;
}

// Each pair of columns is a set, ended by the first empty cell of its x column. A set whose x
// column is filled to the last row scanned never ends: the next pair is read over it.
void readPointSets(Production& pr, const Sheet& sheet, int columns) {
  pr.planesay = 0;
  for (int c = 1; c <= columns; c += 2) {
    for (int r = 1; r <= kScanLimit; ++r) {
      const Cell x = sheet.cell(r, c);
      if (x.isEmpty()) {
        pr.planesay += 1;
        pr.plansay[static_cast<long>(pr.planesay)] = r - 1;
        break;
      }
      const long p = static_cast<long>(pr.planesay) + 1;
      pr.planex(p, r) = x;
      pr.planey(p, r) = sheet.cell(r, c + 1);
      pr.planeColumn[p] = c;
    }
  }
  // Over the first half of the column count: with an odd count the last set is not weighed.
  pr.planemax = pr.plansay[1];
  for (int i = 1; i <= columns / 2.0; ++i) {
    if (pr.plansay[i] > pr.planemax) pr.planemax = pr.plansay[i];
  }
}

Color askSetColor(State& s, int p) {
  const std::optional<Color> chosen =
      s.dialogs.chooseColor("Point set " + std::to_string(p), s.colors.dialog1);
  if (chosen) s.colors.dialog1 = *chosen;
  return s.colors.dialog1;
}

void drawPointSets(State& s) {
  Production& pr = s.production;
  Canvas& c = s.canvas;
  for (int p = 1; p <= pr.planesay; ++p) {
    pr.planerenk[p] = askSetColor(s, p);
    for (int r = 1; r <= pr.plansay[p]; ++r) {
      c.drawWidth = 5;
      c.foreColor = pr.planerenk[p];
      c.pset(pointX(pr, p, r), pointY(pr, p, r));
      pr.planekor(p, r, 1) = pr.planex(p, r);
      pr.planekor(p, r, 2) = pr.planey(p, r);
    }
  }
}

std::string pointCell(int p, int r, int column) {
  return "point " + std::to_string(r) + " of point set " + std::to_string(p) + ": column " +
         std::to_string(column) + ", row " + std::to_string(r) + " of the plane workbook";
}

}  // namespace

double cellNumber(const Cell& cell, const std::string& where) {
  if (cell.holdsNumber()) return cell.number;
  if (cell.isEmpty()) return 0;
  if (isNumberText(cell.text)) return toNumber(cell.text);
  throw Fault(FaultKind::TypeMismatch,
              where + " holds the text \"" + cell.text + "\" where a number is needed");
}

double pointX(const Production& pr, int p, int r) {
  const Cell& cell = pr.planex(p, r);
  if (cell.holdsNumber()) return cell.number;
  return cellNumber(cell, pointCell(p, r, pr.planeColumn[p]));
}

double pointY(const Production& pr, int p, int r) {
  const Cell& cell = pr.planey(p, r);
  if (cell.holdsNumber()) return cell.number;
  return cellNumber(cell, pointCell(p, r, pr.planeColumn[p] + 1));
}

void createAreaTables(State& s) {
  removeMarkers(s);
  const std::string path = s.projectPath();
  Database db = Database::open(path);
  s.ui.setLabel(1, "Table creating");
  // Built once: a table that exists already ends the creation, and its areas stay.
  for (const char* name : {kPointAreaTable, kFreeAreaTable}) {
    if (db.hasTable(name)) return;
    db.createTable(name, productionAreaFields());
  }
  db.close();
  db = Database::open(path);
  WriteBatch batch = db.beginBatch();
  fillAreaTable(db, kPointAreaTable);
  fillAreaTable(db, kFreeAreaTable);
  batch.commit();
}

void Mnauis_Click(State& s) {
  createAreaTables(s);
  const std::optional<std::string> path = askPlaneWorkbook(s);
  if (!path) return;
  int columns = 0;
  {
    const std::unique_ptr<Sheet> sheet = s.openSheet(*path);
    s.ui.setLabel(1, "File reading");
    columns = countColumns(*sheet);
  }
  {
    const std::unique_ptr<Sheet> sheet = s.openSheet(*path);
    readPointSets(s.production, *sheet, columns);
  }
  s.ui.setLabel(1, "Ready");
  ucgenplan(s);
  drawPointSets(s);
}

void Mnuasil_Click(State& s) {
  clearViewFlags(s);
  removeMarkers(s);
  Database db = Database::open(s.projectPath());
  WriteBatch batch = db.beginBatch();
  emptyAreaTable(db, kPointAreaTable);
  emptyAreaTable(db, kFreeAreaTable);
  batch.commit();
  db.close();
  s.ui.setLabel(1, "Drawings deleted");
}

}  // namespace tri
