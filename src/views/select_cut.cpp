// Select-Cut: the drill logs drawn as columns of bars on the window itself, and the clicks
// that cut a range of layers out of the ore in table log (kor keeps the imported log, which
// the undo restores).
#include <algorithm>

#include "canvas/replay.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "views/commands.h"

namespace tri {

namespace {

// The view's layout in the window's pixels: the columns' step, the bars' width, and the
// rows of the hole names, the "Up" words and the tops of the bars.
constexpr double kColumnStep = 60;
constexpr double kFirstColumn = 100;
constexpr double kBarWidth = 20;
constexpr double kNameRow = 40;
constexpr double kUpRow = 55;
constexpr double kBarsTop = 72;
constexpr int kPageUpKey = 33;
constexpr int kPageDownKey = 34;

std::string markField(const State& s) { return numbered(field::deg, s.lithology()); }

double columnLeft(int column) { return kFirstColumn + (column - 1) * kColumnStep; }

// A shape control named "Shape1" followed by the window's control count, a solid
// rectangle with fill and outline in one colour.
std::string addBar(State& s, double left, double top, double width, double height, Color color) {
  const std::string name = "Shape1" + std::to_string(s.ui.controlCount());
  ShapeControl& bar = s.ui.addShape("VB.Shape", name);
  bar.left = left;
  bar.top = top;
  bar.width = width;
  bar.height = height;
  bar.fillStyle = 0;
  bar.shape = 0;
  bar.fillColor = color;
  bar.borderColor = color;
  return name;
}

void paintBar(State& s, int bar, Color color) {
  ShapeControl& shape = s.ui.shape(s.markers.names[bar]);
  shape.fillColor = color;
  shape.borderColor = color;
}

void printAt(Canvas& c, double x, double y, const std::string& text) {
  c.currentX = x;
  c.currentY = y;
  c.print(text);
}

// Steps 4 and 5: log's holes, their marks and layers with their present colours, and the
// depth of each layer's foot, counted from the bottom slot upward.
void readPresentLog(State& s, Database& db) {
  Network& n = s.network;
  Holes& h = s.holes;
  const std::string lithology = s.ui.combo4.text();
  Recordset rs = db.openTable(kLogTable);
  h.sondsay = countHoles(rs, HoleListEnd::ZeroX);
  rs.moveFirst();
  StoredLogReader reader(rs);
  const std::string mark = markField(s);
  for (int i = 1; i <= h.sondsay; ++i) {
    h.eks[i] = rs.number(field::eks) / 1000;
    h.eye[i] = rs.number(field::eye) / 1000;
    h.isim[i] = rs.text(field::isim);
    h.cevgir[i] = rs.number(field::cevgir) / 1000;
    h.cevcik[i] = rs.number(field::cevcik) / 1000;
    const std::vector<StoredLayer> layers = reader.layersOfCurrentRow();
    const int count = static_cast<int>(layers.size());
    if (count > 0) {
      const std::string flag = rs.text(mark);
      if (flag == kMarkedNo) n.sondcikilik[i] = false;
      if (flag == kMarkedYes) n.sondcikilik[i] = true;
    }
    for (int j = 1; j <= count; ++j) {
      const StoredLayer& layer = layers[static_cast<size_t>(j - 1)];
      LogCell& cell = n.cells(j, i);
      cell.uz = layer.uz / 1000;
      cell.color = layer.lit == lithology ? s.views.cevrenk : s.views.ganguerenk;
    }
    n.katmansay[i] = count;
    double depth = 0;
    for (int j = 1; j <= count; ++j) depth += n.cells(j, i).uz;
    for (int j = count; j >= 1; --j) {
      n.cells(j, i).depth = depth;
      depth -= n.cells(j, i).uz;
    }
    rs.moveNext();
  }
  rs.close();
}

// Step 7: kor, the log as imported: the colour to go back to and the names in lit.
void readImportedLog(State& s, Database& db) {
  Network& n = s.network;
  const std::string lithology = s.ui.combo4.text();
  Recordset rs = db.openTable(kHoleTable);
  rs.moveFirst();
  StoredLogReader reader(rs);
  for (int i = 1; i <= s.holes.sondsay; ++i) {
    const std::vector<StoredLayer> layers = reader.layersOfCurrentRow();
    for (int j = 1; j <= static_cast<int>(layers.size()); ++j) {
      const std::string& lit = layers[static_cast<size_t>(j - 1)].lit;
      n.cells(j, i).importedColor = lit == lithology ? s.views.cevrenk : s.views.ganguerenk;
      s.holes.lit(i, j) = lit;
    }
    rs.moveNext();
  }
  rs.close();
}

void drawLegend(State& s) {
  Canvas& f = s.form;
  Network& n = s.network;
  printAt(f, 0, 0, "Ore : ");
  n.oreLegend = addBar(s, 50, 3, 20, 10, s.views.cevrenk);
  printAt(f, 0, 18, "Gangue : ");
  n.gangueLegend = addBar(s, 50, 21, 20, 10, s.views.ganguerenk);
}

// Step 12 for one hole: its name, "Up", a bar for each layer and "Down" at its foot.
void drawColumn(State& s, int hole, int column, double scale) {
  Canvas& f = s.form;
  Network& n = s.network;
  Markers& m = s.markers;
  const double left = columnLeft(column);
  printAt(f, left - 10, kNameRow, s.holes.isim[hole]);
  printAt(f, left, kUpRow, "Up");
  n.headRects[column] = {left - 15, kNameRow - 2, left + kBarWidth + 15, kBarsTop - 1};
  n.headHole[column] = hole;
  n.headCount = column;
  double foot = kBarsTop;
  for (int j = 1; j <= n.katmansay[hole]; ++j) {
    const LogCell& cell = n.cells(j, hole);
    const double height = cell.uz * scale;
    const double top = kBarsTop + (cell.depth - cell.uz) * scale;
    const int bar = m.shapesay + 1;
    m.names[bar] = addBar(s, left, top, kBarWidth, height, cell.color);
    m.shapesay = bar;
    n.barNumbers(j, hole) = bar;
    n.barRects[bar] = {left, top, left + kBarWidth, top + height};
    n.barHole[bar] = hole;
    n.barLayer[bar] = j;
    foot = top + height;
  }
  printAt(f, left, foot + 3, "Down");
}

// The page status and the buttons to the pages before and after this one.
void showPaging(State& s, int first, int last) {
  const Network& n = s.network;
  const int holes = s.holes.sondsay;
  std::string status = "Holes " + std::to_string(first) + " to " + std::to_string(last) + " of " +
                       std::to_string(holes);
  const bool before = n.sonkesilk > 0;
  const bool after = last < holes;
  if (before || after) status += " (PageUp, PageDown: other holes)";
  s.ui.setLabel(2, status);
  s.ui.show("PagePrevious", before);
  s.ui.show("PageNext", after);
}

void drawPage(State& s) {
  Network& n = s.network;
  const double available = s.form.scaleHeight() + 5 - s.ui.combo3Height - s.ui.label1Height;
  n.pageColumns = static_cast<int>(available / kColumnStep) - 1;
  const int last = std::min(n.sonkesilk + n.pageColumns, s.holes.sondsay);
  double deepest = 0;
  for (int hole = n.sonkesilk + 1; hole <= last; ++hole) {
    const int layers = n.katmansay[hole];
    if (layers > 0) deepest = std::max(deepest, n.cells(layers, hole).depth);
  }
  const double scale = divide(available - 200, deepest, "the drill-log view's depth scale");
  drawLegend(s);
  n.headCount = 0;
  for (int hole = n.sonkesilk + 1; hole <= last; ++hole) {
    drawColumn(s, hole, hole - n.sonkesilk, scale);
  }
  n.lastShown = std::max(last, n.sonkesilk);
  showPaging(s, n.sonkesilk + 1, last);
}

// Step 4 of a click: the column head of a marked hole puts the imported names back.
void undoCut(State& s, int hole) {
  Network& n = s.network;
  Database db = Database::open(s.projectPath());
  Recordset rs = db.openTable(kLogTable);
  rs.moveFirst();
  rs.move(hole - 1);
  rs.edit();
  for (int j = 1; j <= n.katmansay[hole]; ++j) {
    rs.set(layerField(LayerField::Lit, j), s.holes.lit(hole, j));
    LogCell& cell = n.cells(j, hole);
    paintBar(s, n.barNumbers(j, hole), cell.importedColor);
    cell.color = cell.importedColor;
  }
  rs.set(markField(s), kMarkedNo);
  rs.update();
  n.sondcikilik[hole] = false;
  rs.close();
  db.close();
}

// Steps 7 to 9: the range between the first bar and this one, both included, turns into
// gangue and is written to log under the lithology's name followed by "cev".
void cutRange(State& s, int secondBar) {
  Network& n = s.network;
  s.ui.setLabel(1, " Choose the first part ");
  Database db = Database::open(s.projectPath());
  Recordset rs = db.openTable(kLogTable);
  const int hole = n.barHole[n.firstBar];
  if (hole != n.barHole[secondBar]) return;
  const int upper = std::min(n.barLayer[n.firstBar], n.barLayer[secondBar]);
  const int lower = std::max(n.barLayer[n.firstBar], n.barLayer[secondBar]);
  const std::string cutName = s.ui.combo4.text() + "cev";
  rs.moveFirst();
  rs.move(hole - 1);
  for (int j = upper; j <= lower; ++j) {
    n.sondcikilik[hole] = true;
    paintBar(s, n.barNumbers(j, hole), s.views.ganguerenk);
    n.cells(j, hole).color = s.views.ganguerenk;
    rs.edit();
    rs.set(layerField(LayerField::Lit, j), cutName);
    rs.update();
  }
  rs.edit();
  rs.set(markField(s), kMarkedYes);
  rs.update();
  n.clickCount = 0;
  rs.close();
  db.close();
}

}  // namespace

void Mnsonkes_Click(State& s) {
  Network& n = s.network;
  s.ui.setLabel(1, " Click on the beginning and end of the part to be cut ");
  s.flags.clearViews();
  s.flags.sonkesmod = true;
  for (const char* name :
       {"Combo3", "Command1", "Frame1", "Frame2", "Picture1", "Picture2", "Command2"}) {
    s.ui.hide(name);
  }
  if (s.ui.combo4.text() != n.sonkeslit) n.sonkesilk = 0;
  n.sonkeslit = s.ui.combo4.text();
  s.canvas.cls();
  s.form.cls();
  s.ui.hide("HScroll1");
  s.ui.line1.visible = false;
  {
    Database db = Database::open(s.projectPath());
    readPresentLog(s, db);
    readImportedLog(s, db);
    db.close();
  }
  s.form.setScaleMode(ScaleMode::Pixel);
  s.ui.hide("Picture1");
  n.barRects.clear();
  n.barNumbers.clear();
  n.barHole.clear();
  n.barLayer.clear();
  n.headRects.clear();
  removeMarkerShapes(s);
  drawPage(s);
}

void Form_MouseDown(State& s, int /*button*/, int /*shift*/, float x, float y) {
  if (!s.flags.sonkesmod) return;
  Network& n = s.network;
  n.barHit = false;
  n.headHit = false;
  ++n.clickCount;
  for (int bar = 1; bar <= s.markers.shapesay; ++bar) {
    if (n.barRects[bar].holds(x, y)) {
      n.hitBar = bar;
      n.barHit = true;
      break;
    }
  }
  for (int column = 1; column <= n.headCount; ++column) {
    if (n.headRects[column].holds(x, y)) {
      n.hitHole = n.headHole[column];
      n.headHit = true;
      n.clickCount = 0;
      break;
    }
  }
  if (n.headHit && n.sondcikilik[n.hitHole]) undoCut(s, n.hitHole);
  if (!n.barHit) return;
  if (n.clickCount == 1) {
    n.firstBar = n.hitBar;
    s.ui.setLabel(1, " Choose the second part ");
    return;
  }
  cutRange(s, n.hitBar);
}

void PageNext_Click(State& s) {
  Network& n = s.network;
  if (!s.flags.sonkesmod || n.lastShown >= s.holes.sondsay || n.pageColumns <= 0) return;
  n.sonkesilk = n.lastShown;
  Mnsonkes_Click(s);
}

void PagePrevious_Click(State& s) {
  Network& n = s.network;
  if (!s.flags.sonkesmod || n.sonkesilk <= 0) return;
  n.sonkesilk = std::max(0, n.sonkesilk - std::max(n.pageColumns, 1));
  Mnsonkes_Click(s);
}

void Form_KeyDown(State& s, int keyCode) {
  if (keyCode == kPageDownKey) PageNext_Click(s);
  if (keyCode == kPageUpKey) PagePrevious_Click(s);
}

}  // namespace tri
