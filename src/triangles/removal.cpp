// Removal from the network: the last triangle, a triangle found by its three corners, and a
// hole of the project. Each acts on the file at once, in the drawing's table and in every
// limit table of the drawing, without confirmation and without undo.
#include <string>
#include <vector>

#include "canvas/replay.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "triangles/commands.h"
#include "triangles/entry.h"
#include "triangles/records.h"

namespace tri {

namespace {

// The tables of the drawing's network: its own, then the limit table of each slot 1 to
// limsay, named by the slot's value in limdeger. Freed slots are not skipped: a slot freed
// in this run still names its dropped table, and an empty slot names the table of a limit
// of 0; opening either is the missing-table Fault.
std::vector<std::string> networkTables(const State& s) {
  const std::string drawing = s.ui.combo2.text();
  std::vector<std::string> names{drawing};
  const int p = s.project();
  const int l = s.lithology();
  const int d = s.drawing();
  for (int q = 1; q <= s.projects.limsay.get(p, l, d); ++q) {
    const LimitTenor& limit = s.projects.limdeger.get(p, l, d, q);
    const std::string text = limit.text.empty() ? numberText(limit.value) : limit.text;
    names.push_back(limitTableName(text, drawing));
  }
  return names;
}

// The commands of this file end every mode, and with them the first-drawing flag.
void clearModeFlags(State& s) {
  clearViewFlags(s);
  s.flags.ilkmod = false;
}

// Deletes the current row and the three before it: a summary row and its vertex rows when
// the current row is a summary row. Each delete leaves the deleted row current, so each
// step back lands on the row before it.
void deleteFourRowsBack(Recordset& table) {
  table.remove();
  for (int row = 2; row <= 4; ++row) {
    table.movePrevious();
    table.remove();
  }
}

void showLastNumber(State& s, Recordset& table) {
  table.moveLast();
  s.ui.setLabel(7, numberText(table.number(field::ucgensay)));
}

// The lowest-numbered hole of the state's arrays within 5 metres of the click on each axis;
// 0 when none.
int firstHoleAt(const Holes& h, float x, float y) {
  for (int i = 1; i <= h.sondsay; ++i) {
    if (holeMatches(h.eks[i], h.eye[i], x, y)) return i;
  }
  return 0;
}

void keepCorner(State& s, int corner, int hole) {
  s.network.pickedX[corner] = s.holes.eks[hole];
  s.network.pickedY[corner] = static_cast<float>(s.holes.eye[hole]);
}

// A left click of triangle selection. The counter rises whether a hole is hit or not;
// true when the hit is the third corner.
bool pickCorner(State& s, float x, float y) {
  Network& n = s.network;
  n.secsay += 1;
  const int hole = firstHoleAt(s.holes, x, y);
  if (hole == 0) return false;
  switch (wholeIndex(n.secsay) % 3) {
    case 1:
      s.ui.setLabel(1, "Select Second Point (Right Click: Cancel)");
      keepCorner(s, 1, hole);
      return false;
    case 2:
      s.ui.setLabel(1, "Select Third Point (Right Click: Cancel)");
      keepCorner(s, 2, hole);
      return false;
    default:
      s.ui.setLabel(1, "Select Point One (Right Click: Cancel)");
      keepCorner(s, 3, hole);
      return true;
  }
}

// Every vertex against every picked corner: three equal pairs find the triangle, so a
// corner picked twice counts twice. The picked y compares as the single it is held in.
bool hasPickedCorners(const Network& n, const TriangleCorners& v) {
  int matches = 0;
  for (int a = 1; a <= 3; ++a) {
    for (int b = 1; b <= 3; ++b) {
      if (v.x[a] == n.pickedX[b] && v.y[a] == static_cast<double>(n.pickedY[b])) ++matches;
    }
  }
  return matches == 3;
}

// Gives the summary rows of triangles `from` to `to` the numbers of their positions. A row
// that holds its number already is left as it is: writing it again would change nothing.
void renumber(Recordset& table, int from, int to) {
  table.moveFirst();
  table.move(4 * (from - 1));
  for (int i = from; i <= to; ++i) {
    table.move(4);
    if (table.get(field::ucgensay) == Value(i)) continue;
    renumberSummaryRow(table, i);
  }
}

// Walks the vertex rows from the first triangle on and deletes the first triangle with the
// picked corners; then every triangle but the old last one is numbered by its position, as
// if one had gone, whether one went or not.
void removePickedTriangle(State& s, Recordset& table) {
  const int count = triangleCount(table);
  const int x = table.fieldIndex(field::koordinat1);
  const int y = table.fieldIndex(field::koordinat2);
  // The triangles from the first on that were passed and hold their own numbers: the
  // renumbering need not look at them again.
  int inOrder = 0;
  table.moveFirst();
  table.moveNext();
  for (int t = 1; t <= count; ++t) {
    TriangleCorners v;
    for (int a = 1; a <= 3; ++a) {
      if (a > 1) table.moveNext();
      v.x[a] = table.number(x) / 1000;
      v.y[a] = table.number(y) / 1000;
    }
    if (hasPickedCorners(s.network, v)) {
      table.moveNext();
      deleteFourRowsBack(table);
      break;
    }
    table.moveNext();
    if (inOrder == t - 1 && table.get(field::ucgensay) == Value(t)) inOrder = t;
    table.moveNext();
  }
  renumber(table, inOrder + 1, count - 1);
  showLastNumber(s, table);
}

void cancelSelection(State& s) {
  s.ui.setLabel(1, "Process canceled");
  enableAfterEntry(s);
  s.flags.moducsec = false;
  Network& n = s.network;
  n.pickedX = {};
  n.pickedY = {};
  n.secsay = 0;
  ucgenplan(s);
}

// Deletes the first hole under the click from kor or log, counted as the plan counts holes.
void removeHoleFrom(State& s, Database& db, const char* tableName, float x, float y) {
  Recordset table = db.openTable(tableName);
  loadHoleCoordinates(s, table, HoleListEnd::ZeroXOrPointName);
  const int hole = firstHoleAt(s.holes, x, y);
  if (hole == 0) return;
  s.ui.setLabel(1, "Select Point to Delete (Right Click: Cancel)");
  table.moveFirst();
  table.move(hole - 1);
  table.remove();
}

}  // namespace

void Mnucsil_Click(State& s) {
  clearModeFlags(s);
  s.flags.moducsec = true;
}

void Mnsonucsil_Click(State& s) {
  s.ui.enable("Mnolcekg", false);
  removeMarkers(s);
  ucgenplan(s);
  s.ui.hide("HScroll1");
  {
    Database db = Database::open(s.projectPath());
    WriteBatch batch = db.beginBatch();
    // Nothing tests the rows: past the header row the deletes fail on a missing row.
    for (const std::string& name : networkTables(s)) {
      Recordset table = db.openTable(name);
      table.moveLast();
      deleteFourRowsBack(table);
      showLastNumber(s, table);
    }
    batch.commit();
  }
  ucgenplan(s);
}

void Mnucsec_Click(State& s) {
  s.ui.setLabel(1, "Select points of triangle (Right Click: Cancel)");
  s.ui.enable("Mnolcekg");
  clearModeFlags(s);
  s.flags.moducsec = true;
  s.views.overlays.disarm();
  s.network.secsay = 0;
  ucgenplan(s);
}

void pickCornerAt(State& s, int button, float x, float y) {
  {
    Database db = Database::open(s.projectPath());
    {
      Recordset kor = db.openTable(kHoleTable);
      loadHoleRecords(s, kor, HoleListEnd::ZeroX);
    }
    if (button == 2) {
      db.close();
      cancelSelection(s);
      return;
    }
    if (button == 1 && pickCorner(s, x, y)) {
      WriteBatch batch = db.beginBatch();
      for (const std::string& name : networkTables(s)) {
        Recordset table = db.openTable(name);
        removePickedTriangle(s, table);
      }
      batch.commit();
    }
  }
  ucgenplan(s);
}

void Mncikart_Click(State& s) {
  s.ui.enable("Mnolcekg", false);
  removeMarkers(s);
  clearModeFlags(s);
  s.flags.modcikart = true;
  s.views.overlays.disarm();
  disableEntryMenuItems(s);
  s.ui.setLabel(1, "Choose Point (Right Click: Cancel)");
  ucgenplan(s);
}

void removeHoleAt(State& s, int button, float x, float y) {
  if (button == 2) {
    s.flags.modcikart = false;
    enableAfterEntry(s);
    ucgenplan(s);
    s.ui.setLabel(1, "Process canceled");
    return;
  }
  if (button != 1) return;
  {
    Database db = Database::open(s.projectPath());
    removeHoleFrom(s, db, kHoleTable, x, y);
    removeHoleFrom(s, db, kLogTable, x, y);
  }
  ucgenplan(s);
}

}  // namespace tri
