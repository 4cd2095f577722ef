// Production, Digitize and Select: the bench of the production scan, the choice of an area
// by its blue circle and of a triangle by its red point, and the trace of the part of the
// triangle inside the area, whose surface weighs the scan of the triangle.
#include <cmath>
#include <optional>

#include "canvas/replay.h"
#include "canvas/selection.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "production/area_rows.h"
#include "production/commands.h"
#include "production/digitizing.h"
#include "scan/bench_scan.h"
#include "scan/scan_steps.h"
#include "store/project_format.h"
#include "triangles/commands.h"
#include "triangles/records.h"

namespace tri {

namespace {

constexpr Color kCircleBlue = rgb(0, 0, 255);
// The half side of the square of a blue circle, and of a red point.
constexpr double kCircleReach = 10;
constexpr double kRedPointReach = 5;
// A click this close to the first vertex of a trace, on each axis, closes it.
constexpr double kClosureReach = 5;
constexpr int kTraceList = 999;

long at(double v) { return static_cast<long>(v); }

// Turns every view and tool off and the given flags on, removes the marker shapes and
// shows the plan alone.
void startDigitizing(State& s, std::initializer_list<bool Flags::*> flags) {
  clearViewFlags(s);
  for (bool Flags::*flag : flags) s.flags.*flag = true;
  removeMarkers(s);
  for (const char* name :
       {"Combo3", "Command1", "Frame1", "Frame2", "Picture2", "Command2", "HScroll1"}) {
    s.ui.hide(name);
  }
  s.ui.show("Picture1");
}

// Counts the areas of a table and draws a blue circle at the centre of each: the mean of its
// corners from the head row down to the first free row.
void countAreas(State& s, Database& db, int i, const char* table) {
  if (!db.hasTable(table)) return;
  Recordset rs = db.openTable(table);
  if (rs.recordCount() == 0) return;
  Production& pr = s.production;
  for (int n = 1; n <= kAreaGroups; ++n) {
    const GroupFields f = groupFields(n);
    rs.moveFirst();
    if (rs.text(f.ad) == kFreeHead) continue;
    double sumX = 0;
    double sumY = 0;
    int corners = 0;
    for (int r = 1; r <= kAreaWalk && rs.text(f.ad) != kFreeRow; ++r, rs.moveNext()) {
      sumX += storedX(rs, f);
      sumY += storedY(rs, f);
      ++corners;
    }
    pr.uralansay[i] += 1;
    pr.uralankose[at(pr.uralansay[i])] = corners;
    pr.urmerkezx(i, n) = sumX / corners;
    pr.urmerkezy(i, n) = sumY / corners;
    Canvas& c = s.canvas;
    c.drawWidth = 20;
    c.foreColor = kCircleBlue;
    c.pset(pr.urmerkezx(i, n), pr.urmerkezy(i, n));
  }
}

// Finds the first triangle whose red square holds the triangle pick. False, with the
// message, when the last triangle was passed without one; no triangle at all finds none
// and goes on.
bool findDigitizedTriangle(State& s, Recordset& table) {
  Scan& sc = s.scan;
  const Production& pr = s.production;
  sc.ucgensay = triangleCount(table);
  sc.secucgen = 0;
  for (int t = 1; t <= sc.ucgensay; ++t) {
    const double x = sc.redpointx[t];
    const double y = sc.redpointy[t];
    if (x - kRedPointReach <= pr.pickx2 && pr.pickx2 <= x + kRedPointReach &&
        y - kRedPointReach <= pr.picky2 && pr.picky2 <= y + kRedPointReach) {
      sc.secucgen = t;
      return true;
    }
  }
  if (sc.ucgensay == 0) return true;
  s.ui.setLabel(1, "Relevant triangle not found");
  return false;
}

// The surface of a closed trace of n vertices, the last a copy of the first, by the
// shoelace rule written from the first vertex round to vertex n - 1. The vertex before the
// first is the last one before the closing copy, so a trace closed at its second click has
// a surface of 0.
double traceSurface(const Production& pr, long i, long j, long c, long n) {
  auto vertex = [&](long k) { return pr.urpoly.get(i, j, c, k < 1 ? n - 1 : k); };
  const double a = vertex(1).y * (vertex(n - 1).x - vertex(2).x);
  double b = 0;
  for (long k = 2; k <= n - 2; ++k) b += vertex(k).y * (vertex(k - 1).x - vertex(k + 1).x);
  const double last = vertex(n - 1).y * (vertex(n - 2).x - vertex(1).x);
  return std::abs(a + b + last) / 2;
}

}  // namespace

void printPartLabels(State& s) {
  const Production& pr = s.production;
  Canvas& c = s.canvas;
  c.drawWidth = 1;
  for (int n = 1; n <= pr.urscansay; ++n) printScanLabel(c, pr.urlabel(n, at(pr.secplan)));
}

void Mnurkot_Click(State& s) { askElevations(s, s.production.urupkot, s.production.urdownkot); }

void Mnselan_Click(State& s) {
  s.canvas.cls();
  startDigitizing(s, {&Flags::modselan, &Flags::modselan2});
  s.ui.setLabel(1, "Click on the blue circle in the relevant production area.");
  ureciz(s);
  Database db = Database::open(s.projectPath());
  countAreas(s, db, 1, kPointAreaTable);
  countAreas(s, db, 2, kFreeAreaTable);
}

void sltak(State& s, float x, float y) {
  Production& pr = s.production;
  for (int i = 1; i <= 2; ++i) {
    for (int j = 1; j <= pr.uralansay[i]; ++j) {
      const double cx = pr.urmerkezx(i, j);
      const double cy = pr.urmerkezy(i, j);
      if (cx + kCircleReach > x && x > cx - kCircleReach && cy + kCircleReach > y &&
          y > cy - kCircleReach) {
        pr.urparca = 0;
        pr.secalan = j;
        pr.secplan = i;
        s.ui.setLabel(1, "Ready");
        return;
      }
    }
  }
}

void Mnsucgen_Click(State& s) {
  ucgenplan(s);
  sureciz(s);
  startDigitizing(s, {&Flags::modsucgen, &Flags::modsucgen2});
  s.production.urscansay += 1;
  s.ui.setLabel(1, "Click on the red point in the corresponding triangle");
  drawRedPoints(s);
  printPartLabels(s);
}

void Mnurcev_Click(State& s) {
  startDigitizing(s, {&Flags::modurcev});
  Canvas& c = s.canvas;
  c.cls();
  bool found = false;
  {
    Database db = Database::open(s.projectPath());
    const std::optional<std::string> tableName = selectedTable(s);
    if (!tableName) return;
    Recordset table = db.openTable(*tableName);
    found = findDigitizedTriangle(s, table);
  }
  if (found) {
    s.ui.setLabel(1, "Digitize the part of the relevant triangle inside the production area.");
    sureciz(s);
    const TriangleCorners k = displayCorners(s.display, s.scan.secucgen);
    c.drawWidth = 1;
    c.line(k.x[1], k.y[1], k.x[2], k.y[2], 0);
    c.line(k.x[2], k.y[2], k.x[3], k.y[3], 0);
    c.line(k.x[3], k.y[3], k.x[1], k.y[1], 0);
    c.drawWidth = 5;
    c.foreColor = 0;
    for (int n = 1; n <= 3; ++n) c.pset(k.x[n], k.y[n]);
  }
  printPartLabels(s);
}

void urcevAgain(State& s) {
  Mnurcev_Click(s);
  const Production& pr = s.production;
  Canvas& c = s.canvas;
  for (int n = 1; n <= pr.urnoktasay; ++n) {
    c.drawWidth = 5;
    c.foreColor = kScanRed;
    c.pset(pr.urlistx[n], pr.urlisty[n]);
  }
}

void urcev(State& s, float x, float y) {
  Production& pr = s.production;
  pr.urnoktasay += 1;
  if (pr.secalan != pr.sonalan) pr.urparca = 0;
  if (pr.urparca == 0) pr.urparca = 1;
  const long i = at(pr.secplan);
  const long j = at(pr.secalan);
  const long part = at(pr.urparca);
  const long n = at(pr.urnoktasay);
  pr.urpoly(i, j, part, n) = {x, y};
  pr.urlistx[n] = x;
  pr.urlisty[n] = y;
  Canvas& c = s.canvas;
  c.drawWidth = 5;
  c.foreColor = kScanRed;
  c.pset(x, y);
  if (n == 1) return;
  const PartVertex first = pr.urpoly(i, j, part, 1);
  if (!(first.x - kClosureReach <= x && x <= first.x + kClosureReach &&
        first.y - kClosureReach <= y && y <= first.y + kClosureReach)) {
    return;
  }
  pr.urpoly(i, j, part, n) = first;
  pr.urparcaalan(i, j, part) = traceSurface(pr, i, j, part, n);
  for (int k = 1; k <= kTraceList; ++k) {
    pr.urlistx[k] = 0;
    pr.urlisty[k] = 0;
  }
  urhesap(s);
  pr.urnoktasay = 0;
  pr.urparca += 1;
  s.ui.setLabel(1, "Ready");
  pr.sonalan = pr.secalan;
}

void urhesap(State& s) {
  Production& pr = s.production;
  Scan& sc = s.scan;
  {
    Database db = Database::open(s.projectPath());
    const std::optional<std::string> tableName = selectedTable(s);
    if (!tableName) return;
    {
      Recordset table = db.openTable(*tableName);
      if (!findDigitizedTriangle(s, table)) return;
    }
    readScanLogs(s, db);
  }
  scanTriangle(s, displayCorners(s.display, sc.secucgen), {pr.urupkot, pr.urdownkot});

  const long i = at(pr.secplan);
  const long j = at(pr.secalan);
  const long part = at(pr.urparca);
  const double surface = pr.urparcaalan(i, j, part);
  const double reserve = surface * sc.ucgenyog * sc.ucgenuz * (sc.ucgentenor / 100) / 1000;
  pr.urrez(i, j, part) = reserve;
  pr.urten(i, j, part) = sc.ucgentenor;
  pr.uryog(i, j, part) = sc.ucgenyog;
  pr.uruz(i, j, part) = sc.ucgenuz;
  AreaSums& sums = pr.urAreaSums(i, j);
  sums.urtoprez += reserve;
  // The means weigh the parts by their surface alone.
  sums.urtenalan += sc.ucgentenor * surface;
  sums.uralan1 += surface;
  sums.urortten = divide(sums.urtenalan, sums.uralan1, "mean tenor of an area without surface");
  sums.uryogalan += sc.ucgenyog * surface;
  sums.uralan2 += surface;
  sums.urortyog = divide(sums.uryogalan, sums.uralan2, "mean density of an area without surface");
  sums.urtopalan += surface;

  // The label goes at the mean of the trace's vertices, the closing copy included.
  const long n = at(pr.urnoktasay);
  double mx = 0;
  double my = 0;
  for (long k = 1; k <= n; ++k) {
    mx += pr.urpoly(i, j, part, k).x;
    my += pr.urpoly(i, j, part, k).y;
  }
  mx /= static_cast<double>(n);
  my /= static_cast<double>(n);
  ScanLabel label = scanLabelAt(mx, my, pr.urupkot, pr.urdownkot, sc.ucgentenor, 0);
  label.reservetext = numberText(roundHalfEven(reserve, 2));
  Canvas& c = s.canvas;
  c.drawWidth = 1;
  printScanLabel(c, label);
  pr.urlabel(pr.urscansay, i) = label;
  printPartLabels(s);
  clearKeptCorners(sc);
}

bool selan2On(const State& s) { return s.flags.modselan2; }

void selan2Down(State& s, int button, float x, float y) {
  if (button == 1) sltak(s, x, y);
}

bool urcevOn(const State& s) { return s.flags.modurcev; }

void urcevDown(State& s, int button, float x, float y) {
  if (button == 1) urcev(s, x, y);
}

bool sucgen2On(const State& s) { return s.flags.modsucgen2; }

void sucgen2Down(State& s, int button, float x, float y) {
  if (button != 1) return;
  s.production.pickx2 = x;
  s.production.picky2 = y;
  s.ui.setLabel(1, "Ready");
}

}  // namespace tri
