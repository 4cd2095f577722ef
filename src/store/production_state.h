// The state of production planning: the point sets, the tracing of areas, the digitized parts and
// their sums per area.
#pragma once

#include "platform/bounded.h"
#include "platform/canvas.h"
#include "platform/sheet.h"

namespace tri {

// A corner of an outline in click order.
struct ClickCorner {
  double x = 0;
  double y = 0;
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
};

}  // namespace tri
