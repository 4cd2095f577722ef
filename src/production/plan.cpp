// The production plan: the base map of the plan and, over it, every area stored in aukor and
// askor, an open outline as a chain and a closed one as a ring.
#include "canvas/base_plan.h"
#include "canvas/frame.h"
#include "canvas/replay.h"
#include "platform/store.h"
#include "production/area_rows.h"
#include "production/commands.h"
#include "store/hole_lists.h"
#include "store/project_format.h"

namespace tri {

namespace {

// The holes (and their names when shown) over the fitted frame, then the grid.
void drawBaseMap(State& s, Database& db) {
  removeMarkers(s);
  {
    Recordset kor = db.openTable(kHoleTable);
    loadHoleCoordinates(s, kor, HoleListEnd::ZeroXOrPointName);
  }
  frameFit(s, LimitWording::Plain);
  drawHoles(s);
  drawGrid(s);
}

// A corner: a point of pen width 5 and, when names are shown, its name with pen width 1.
void drawCorner(State& s, Color color, double x, double y, const std::string& name) {
  Canvas& c = s.canvas;
  c.drawWidth = 5;
  c.foreColor = color;
  c.pset(x, y);
  if (!s.frame.sondgoster) return;
  c.drawWidth = 1;
  c.currentX = x;
  c.currentY = y;
  c.print(name);
}

// Group n from its head row down to the row before the first "al": each corner joined to
// the one before. The last corner is drawn once more on the way back from the free row.
void drawArea(State& s, Recordset& rs, int n) {
  const GroupFields f = groupFields(n);
  const Color color = s.production.planerenk[n];
  rs.moveFirst();
  const std::string head = rs.text(f.ad);
  if (head == kFreeHead || head == kFreeRow) return;
  double x = storedX(rs, f);
  double y = storedY(rs, f);
  drawCorner(s, color, x, y, head);
  for (int r = 1; r <= kAreaWalk; ++r) {
    rs.moveNext();
    const std::string name = rs.text(f.ad);
    if (name == kFreeRow) {
      rs.movePrevious();
      drawCorner(s, color, storedX(rs, f), storedY(rs, f), rs.text(f.ad));
      return;
    }
    const double nextX = storedX(rs, f);
    const double nextY = storedY(rs, f);
    s.canvas.drawWidth = 1;
    s.canvas.line(x, y, nextX, nextY, color);
    drawCorner(s, color, nextX, nextY, name);
    x = nextX;
    y = nextY;
  }
}

// The areas of a table; a table that is missing (or was never filled) is left out.
void drawAreas(State& s, Database& db, const char* table) {
  if (!db.hasTable(table)) return;
  Recordset rs = db.openTable(table);
  if (rs.recordCount() == 0) return;
  for (int n = 1; n <= kAreaGroups; ++n) drawArea(s, rs, n);
}

void drawPlan(State& s) {
  Database db = Database::open(s.projectPath());
  drawBaseMap(s, db);
  drawAreas(s, db, kPointAreaTable);
  drawAreas(s, db, kFreeAreaTable);
}

}  // namespace

void ureciz(State& s) { drawPlan(s); }

void sureciz(State& s) {
  s.flags.modureciz2 = false;
  s.flags.modureciz = false;
  drawPlan(s);
}

}  // namespace tri
