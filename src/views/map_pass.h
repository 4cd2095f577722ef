// The drawing pass that the value maps and the 3D view share: its head (canvas, flags, menu,
// panels, holes, frame, grid, the triangle table), the colour classes of a table's reserves,
// and the pieces each map draws per triangle.
#pragma once

#include <optional>
#include <vector>

#include "canvas/frame.h"
#include "platform/store.h"
#include "store/state.h"
#include "triangles/records.h"

namespace tri {

// What a view changes at the head of its pass.
struct MapHead {
  // Turns the view's own flag on and the flags of the views it replaces off.
  void (*setFlags)(Flags& flags);
  // The 3D view keeps the scroll bar that turns it.
  bool hideScrollBar = true;
  // The menu commands word the area limit as the project commands do; the redraw of the
  // scroll bar writes it with a leading blank.
  LimitWording wording = LimitWording::Plain;
  // The redraw of the scroll bar leaves the marker shapes alone.
  bool removeMarkers = true;
};

// The project file and the selected triangle table, both open.
struct MapTable {
  Database db;
  Recordset table;
};

// The head of a pass: clears the canvas and the markers (unless the head keeps them), sets
// the flags, enables the menu items of the overlays, shows the canvas alone, loads the holes
// from kor (up to the first point row), fits the frame with the head's area-limit wording,
// draws the grid, and opens the table the selectors name. Without one, the database is closed and
// nothing is returned: the view ends there, without triangles or holes.
std::optional<MapTable> openMapPass(State& s, const MapHead& head);

// The colour classes of the table's reserves: rezervsay from the last row's ucgensay (a
// 16-bit count), rezervsira the reserves of triangles 1 .. rezervsay sorted ascending, and
// rezervadim the range over renksay. Returns rezervsay; `reserves` holds the reserves in the
// table's order, triangle t at t - 1. With `corners`, the same walk keeps each triangle's
// corners that are stored as whole numbers (the others are left to be read later).
int computeReserveClasses(State& s, Recordset& table, std::vector<double>& reserves,
                          std::vector<std::optional<TriangleCorners>>* corners = nullptr);

// The class of a reserve: the first j from 1 to renksay with v not above
// rezervsira[1] + rezervadim x j, so that a value on a limit is in the lower class; 0 when
// no class holds it.
int reserveClass(const Views& views, double v);

// One triangle of a map: the value of its summary row (a field in thousandths) and its
// corners.
struct MapTriangle {
  double v = 0;
  TriangleCorners corners;
  double cx() const { return (corners.x[1] + corners.x[2] + corners.x[3]) / 3; }
  double cy() const { return (corners.y[1] + corners.y[2] + corners.y[3]) / 3; }
};
MapTriangle readMapTriangle(Recordset& table, int t, const char* valueField);
// The same walk over a triangle whose value was read before: its summary row is passed, not
// read again.
MapTriangle readMapTriangle(Recordset& table, int t, double value);

// Black sides, pen width 1: third corner to second, third to first, first to second.
void drawSides(Canvas& canvas, const TriangleCorners& corners);

// The value at the centroid, 2 decimals, in the quantity colour; only while quantities are
// shown.
void drawValueLabel(State& s, const MapTriangle& triangle);

// Label12: the pass's total reserve, 5 decimals.
void showTotalReserve(State& s);

// The radius of a triangle's disc: the inscribed radius by Heron's formula over 1.3. A side
// equal to the half perimeter of the triangle before is taken 1 metre shorter; a triangle
// without area counts an area term of 1. Leaves this triangle's half perimeter in
// yaricevre.
double discRadius(Views& views, const TriangleCorners& corners);

}  // namespace tri
