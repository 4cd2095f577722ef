// The state of production planning: the point sets, the tracing of areas, the digitized parts and
// their sums per area.
#pragma once

#include <optional>

#include "platform/bounded.h"
#include "platform/canvas.h"
#include "platform/sheet.h"
#include "store/scan_state.h"

namespace tri {

// A corner of an outline in click order.
struct ClickCorner {
  double x = 0;
  double y = 0;
};

// A vertex of a digitized part.
struct PartVertex {
  double x = 0;
  double y = 0;
};

// The sums of the parts digitized in one production area. The two means are empty until a
// part was added.
struct AreaSums {
  double urtoprez = 0;   // reserve, kilotons
  double urtenalan = 0;  // tenor times surface
  double uralan1 = 0;    // surface, for the tenor
  std::optional<double> urortten;
  double uryogalan = 0;  // density times surface
  double uralan2 = 0;    // surface, for the density
  std::optional<double> urortyog;
  double urtopalan = 0;  // surface, square metres
};

struct Production {
  // --- The plane and the tracing of areas ---

  // The point sets of the plane workbook, kept for this run only: point r of set p holds the
  // cells as they stand in the workbook (a number, a text or nothing), drawn and hit-tested as
  // numbers.
  double planesay = 0;
  Bounded2<Cell> planex{"planex", 999, 999};
  Bounded2<Cell> planey{"planey", 999, 999};
  // The points as drawn, [set][point][1 x, 2 y]: the copy the digitizing reads.
  Sparse<Cell, 3> planekor{"planekor", {99, 999, 2}};
  Bounded<double> plansay{"plansay", 999};
  double planemax = 0;
  Bounded<Color> planerenk{"planerenk", 999};
  // The workbook column that set p was read from (its x column), for the messages about a
  // cell.
  Bounded<int> planeColumn{"plane columns", 999};

  // Point tracing into aukor: the clicks of the present outline, its locked point set, the
  // corners of odd and of even clicks, every corner in click order, and the continuation of a
  // stored outline.
  double noktaclick = 0;
  double noktaplane = 0;
  double noktax1 = 0;
  double noktay1 = 0;
  double noktax2 = 0;
  double noktay2 = 0;
  Bounded<ClickCorner> clicklist{"clicklist", 999};
  bool devammod = false;
  double devamsira = 0;

  // Free tracing into askor: the clicks of the present outline, its group less 1, the corners
  // written, the row offset of a continued area, and the corners of odd and of even clicks.
  double serbestclick = 0;
  double serbestkolon = 0;
  double serbestsay = 0;
  double serbestdevam = 0;
  double serbestx1 = 0;
  double serbesty1 = 0;
  double serbestx2 = 0;
  double serbesty2 = 0;

  // The outlines begun in this run and the point set of each.
  double alansay = 0;
  Bounded<double> alanplane{"alanplane", 999};

  // --- Digitizing the parts of triangles inside an area; table i is 1 aukor, 2 askor ---

  // The bench of the production scan, metres.
  double urupkot = 0;
  double urdownkot = 0;

  // The areas counted by each selection of an area (a replay counts them again), the
  // corners of the k-th area counted, and the centre of the area of group n.
  Bounded<double> uralansay{"uralansay", 2};
  Bounded<double> uralankose{"uralankose", 999};
  Bounded2<double> urmerkezx{"urmerkezx", 2, 999};
  Bounded2<double> urmerkezy{"urmerkezy", 2, 999};

  // The selected area (secplan, secalan), the area of the last closed trace, the part under
  // trace (0: none yet) and the vertices taken in the present trace.
  double secplan = 0;
  double secalan = 0;
  double sonalan = 0;
  double urparca = 0;
  double urnoktasay = 0;
  // Vertex n of part c of area (i, j): at most 50 vertices and 50 parts.
  Sparse<PartVertex, 4> urpoly{"urpoly", {2, 50, 50, 50}};
  // The vertices of the present trace, for the replay.
  Bounded<double> urlistx{"urlistx", 999};
  Bounded<double> urlisty{"urlisty", 999};

  // The click of triangle selection.
  double pickx2 = 0;
  double picky2 = 0;

  // Each part's surface (square metres), reserve (kilotons), tenor, density and ore length.
  Sparse<double, 3> urparcaalan{"urparcaalan", {2, 999, 999}};
  Sparse<double, 3> urrez{"urrez", {2, 999, 999}};
  Sparse<double, 3> urten{"urten", {2, 999, 999}};
  Sparse<double, 3> uryog{"uryog", {2, 999, 999}};
  Sparse<double, 3> uruz{"uruz", {2, 999, 999}};
  // The sums of area (i, j).
  Bounded2<AreaSums> urAreaSums{"urtoprez", 2, 999};

  // The printed results of the parts, slots 1 .. urscansay of each table.
  int urscansay = 0;
  Bounded2<ScanLabel> urlabel{"urlabel", 999, 2};
};

}  // namespace tri
