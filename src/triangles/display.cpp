#include "canvas/base_plan.h"
#include "canvas/frame.h"
#include "canvas/selection.h"
#include "platform/store.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "triangles/commands.h"
#include "triangles/records.h"

namespace tri {

namespace {

void showPlanOnly(Controls& ui) {
  for (const char* name :
       {"Combo3", "Command1", "Frame1", "Frame2", "Picture2", "Command2", "HScroll1"}) {
    ui.hide(name);
  }
  ui.show("Picture1");
}

void drawNetwork(State& s, Recordset& table) {
  Canvas& c = s.canvas;
  Display& d = s.display;
  const int count = triangleCount(table);
  d.ucgendraw = count;
  for (int t = 1; t <= count; ++t) {
    c.drawWidth = 1;
    c.foreColor = 0;
    const TriangleCorners v = readTriangleCorners(table, t);
    // The summary row's tenor is read too, though this repaint does not use it: a summary
    // row without it fails here.
    table.moveNext();
    table.number(field::geneltenor);
    c.line(v.x[3], v.y[3], v.x[2], v.y[2], 0);
    c.line(v.x[3], v.y[3], v.x[1], v.y[1], 0);
    c.line(v.x[1], v.y[1], v.x[2], v.y[2], 0);
    d.x1[t] = v.x[1];
    d.x2[t] = v.x[2];
    d.x3[t] = v.x[3];
    d.y1[t] = v.y[1];
    d.y2[t] = v.y[2];
    d.y3[t] = v.y[3];
  }
}

}  // namespace

void ucgenplan(State& s) {
  s.canvas.cls();
  showPlanOnly(s.ui);
  Database db = Database::open(s.projectPath());
  {
    Recordset kor = db.openTable(kHoleTable);
    loadHoleCoordinates(s, kor, HoleListEnd::ZeroXOrPointName);
  }
  frameFit(s, LimitWording::Plain);
  drawGrid(s);
  const std::optional<std::string> tableName = selectedTable(s);
  if (!tableName) {
    s.display.ucgendraw = 0;
    return;
  }
  Recordset table = db.openTable(*tableName);
  drawNetwork(s, table);
  for (int i = 1; i <= s.holes.sondsay; ++i) drawHolePoint(s, i);
  if (s.frame.sondgoster) {
    for (int i = 1; i <= s.holes.sondsay; ++i) drawHoleName(s, i);
  }
}

void FillTriangle(Canvas& canvas, int x1, int y1, int x2, int y2, int x3, int y3, Color color) {
  canvas.fillTriangle(x1, y1, x2, y2, x3, y3, color);
}

}  // namespace tri
