#include "views/map_pass.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "canvas/base_plan.h"
#include "canvas/frame.h"
#include "canvas/replay.h"
#include "canvas/selection.h"
#include "platform/fault.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/project_format.h"

namespace tri {

namespace {

void enableOverlayItems(Controls& ui) {
  for (const char* name : {"Mnkaydir", "Mnolcekg", "Mntoprez", "MNolcek", "Mnorten", "Mnhorten",
                           "Mnkortyog", "Mnaortyog"}) {
    ui.enable(name);
  }
}

void showCanvasOnly(Controls& ui, bool hideScrollBar) {
  for (const char* name : {"Combo3", "Command1", "Frame1", "Frame2", "Picture2", "Command2"}) {
    ui.hide(name);
  }
  if (hideScrollBar) ui.hide("HScroll1");
  ui.show("Picture1");
}

// A count held in 16 bits: whole by half to even, an "Overflow" Fault outside its range.
std::int16_t sixteenBitCount(double n) {
  const long whole = wholeIndex(n);
  if (whole < INT16_MIN || whole > INT16_MAX) {
    throw Fault(FaultKind::Overflow, "the triangle count " + numberText(n) + " exceeds 16 bits");
  }
  return static_cast<std::int16_t>(whole);
}

// The plain exchange sort: every pair (a, b) over the whole range, swapped when the a-th
// is less than the b-th, which leaves the values ascending. Values that compare equal are
// the same number unless a zero carries a sign or a value is not a number: only then can
// the order the exchanges leave differ from any other ascending order, so only then are
// they made one by one.
void exchangeSort(std::vector<double>& values) {
  const bool plain = std::none_of(values.begin(), values.end(), [](double v) {
    return std::isnan(v) || (v == 0 && std::signbit(v));
  });
  if (plain) {
    std::sort(values.begin(), values.end());
    return;
  }
  const size_t n = values.size();
  for (size_t a = 0; a < n; ++a) {
    for (size_t b = 0; b < n; ++b) {
      if (values[a] < values[b]) std::swap(values[a], values[b]);
    }
  }
}

double distance(double xa, double ya, double xb, double yb) {
  const double dx = std::abs(xa - xb);
  const double dy = std::abs(ya - yb);
  return std::sqrt(dx * dx + dy * dy);
}

void printAt(Canvas& c, double x, double y, const std::string& text) {
  c.currentX = x;
  c.currentY = y;
  c.print(text);
}

// A field's position, or -1 without such a field: the reads that need it fault later.
int fieldIfAny(const Recordset& table, const char* name) {
  try {
    return table.fieldIndex(name);
  } catch (const Fault&) {
    return -1;
  }
}

}  // namespace

std::optional<MapTable> openMapPass(State& s, const MapHead& head) {
  s.canvas.cls();
  if (head.removeMarkers) removeMarkers(s);
  head.setFlags(s.flags);
  enableOverlayItems(s.ui);
  showCanvasOnly(s.ui, head.hideScrollBar);
  Database db = Database::open(s.projectPath());
  {
    Recordset kor = db.openTable(kHoleTable);
    loadHoleCoordinates(s, kor, HoleListEnd::ZeroXOrPointName);
    frameFit(s, head.wording);
    drawGrid(s);
  }
  const std::optional<std::string> tableName = selectedTable(s);
  if (!tableName) return std::nullopt;
  Recordset table = db.openTable(*tableName);
  return MapTable{std::move(db), std::move(table)};
}

int computeReserveClasses(State& s, Recordset& table, std::vector<double>& reserves,
                          std::vector<std::optional<TriangleCorners>>* corners) {
  Views& w = s.views;
  table.moveLast();
  w.rezervsay = sixteenBitCount(table.number(field::ucgensay));
  const int n = w.rezervsay;
  table.moveFirst();
  reserves.assign(static_cast<size_t>(std::max(n, 0)), 0.0);
  if (n > 0) {
    int column = -1;
    const int cx = corners ? fieldIfAny(table, field::koordinat1) : -1;
    const int cy = corners ? fieldIfAny(table, field::koordinat2) : -1;
    if (corners) corners->assign(static_cast<size_t>(n), std::nullopt);
    for (int i = 1; i <= n; ++i) {
      if (corners) {
        // Step by step over the corner rows, taking the corners where they are plain.
        TriangleCorners seen;
        bool plain = true;
        for (int k = 1; k <= 3; ++k) {
          table.moveNext();
          const std::optional<double> x = plain ? table.storedWhole(cx) : std::nullopt;
          const std::optional<double> y = plain ? table.storedWhole(cy) : std::nullopt;
          plain = x && y;
          if (plain) {
            seen.x[k] = *x / 1000;
            seen.y[k] = *y / 1000;
          }
        }
        if (plain) (*corners)[i - 1] = seen;
        table.moveNext();
      } else {
        table.move(4);
      }
      if (column < 0) column = table.fieldIndex(field::genelrezerv);
      reserves[i - 1] = w.rezervsira[i] = table.number(column) / 1000;
    }
    std::vector<double> sorted = reserves;
    exchangeSort(sorted);
    for (int i = 1; i <= n; ++i) w.rezervsira[i] = sorted[i - 1];
  }
  w.rezervadim = divide(w.rezervsira[n] - w.rezervsira[1], w.renksay, "the class width");
  return n;
}

int reserveClass(const Views& w, double v) {
  for (long j = 1; j <= w.renksay; ++j) {
    if (v <= w.rezervsira[1] + w.rezervadim * j) return static_cast<int>(j);
  }
  return 0;
}

MapTriangle readMapTriangle(Recordset& table, int t, double value) {
  MapTriangle triangle;
  triangle.corners = readTriangleCorners(table, t);
  table.moveNext();
  triangle.v = value;
  return triangle;
}

MapTriangle readMapTriangle(Recordset& table, int t, const char* valueField) {
  MapTriangle triangle;
  // The corners and then the summary row after them: the rows in the table's order.
  triangle.corners = readTriangleCorners(table, t);
  table.moveNext();
  triangle.v = table.number(valueField) / 1000;
  return triangle;
}

void drawSides(Canvas& c, const TriangleCorners& v) {
  c.drawWidth = 1;
  c.foreColor = 0;
  c.line(v.x[3], v.y[3], v.x[2], v.y[2], 0);
  c.line(v.x[3], v.y[3], v.x[1], v.y[1], 0);
  c.line(v.x[1], v.y[1], v.x[2], v.y[2], 0);
}

void drawValueLabel(State& s, const MapTriangle& triangle) {
  if (!s.views.miktargoster) return;
  Canvas& c = s.canvas;
  c.drawWidth = 1;
  c.foreColor = s.colors.dialog2;
  printAt(c, triangle.cx(), triangle.cy(), numberText(roundHalfEven(triangle.v, 2)));
}

void showTotalReserve(State& s) {
  s.ui.setLabel(12,
                "Total Reserve (KiloTon): " + numberText(roundHalfEven(s.views.toplamrezerv, 5)));
}

double discRadius(Views& w, const TriangleCorners& v) {
  double kenar[4] = {0, distance(v.x[1], v.y[1], v.x[2], v.y[2]),
                     distance(v.x[1], v.y[1], v.x[3], v.y[3]),
                     distance(v.x[2], v.y[2], v.x[3], v.y[3])};
  // Compared with the half perimeter the triangle before left, as the maps always have.
  for (int k = 1; k <= 3; ++k) {
    if (kenar[k] == w.yaricevre) kenar[k] = kenar[k] - 1;
  }
  w.yaricevre = (kenar[1] + kenar[2] + kenar[3]) / 2;
  double p =
      w.yaricevre * (w.yaricevre - kenar[1]) * (w.yaricevre - kenar[2]) * (w.yaricevre - kenar[3]);
  if (p <= 0) p = 1;
  const double ucgenalan = std::sqrt(p);
  const double cember = divide(ucgenalan, w.yaricevre, "the inscribed radius");
  return cember / 1.3;
}

}  // namespace tri
