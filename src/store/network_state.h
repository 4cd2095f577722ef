// The state of the network's own tools: the Select-Cut view of the drill logs and the picks of
// triangle and hole removal.
#pragma once

#include <array>
#include <string>

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

// A layer of a hole in the drill-log view: the depth of its foot below the top of the hole,
// its length, and its colour as imported (kor) and as it is now (log).
struct LogCell {
  double depth = 0;
  double uz = 0;
  Color importedColor = 0;
  Color color = 0;
};

// A rectangle of the drill-log view in the window's pixels; it holds a point strictly inside.
struct HitRect {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  bool holds(double x, double y) const { return x1 < x && x < x2 && y1 < y && y < y2; }
};

struct Network {
  // Triangle removal: the corners picked to find a triangle, 1..3, and the pick counter.
  // The picked y is held in single precision, so a corner whose y a single cannot hold
  // matches no vertex.
  std::array<double, 4> pickedX{};
  std::array<float, 4> pickedY{};
  double secsay = 0;

  // Select-Cut: the drill-log view and its clicks.
  std::string sonkeslit;  // the lithology the view was last drawn for
  int sonkesilk = 0;      // the hole before the first column
  int pageColumns = 0;    // the columns that fit on one page, as last drawn
  int lastShown = 0;      // the last hole shown
  // True when the hole has a cut in the lithology (char: a vector of bool has no references).
  Bounded<char> sondcikilik{"sondcikilik", 999};
  Bounded<int> katmansay{"katmansay", 999};
  Bounded2<LogCell> cells{"layer cells", 1000, 1000};   // [layer][hole]
  Bounded2<int> barNumbers{"bar numbers", 1000, 1000};  // [layer][hole]
  Bounded<HitRect> barRects{"bar rectangles", 9999};
  Bounded<int> barHole{"bar holes", 9999};
  Bounded<int> barLayer{"bar layers", 9999};
  Bounded<HitRect> headRects{"column heads", 1000};
  Bounded<int> headHole{"column head holes", 1000};
  int headCount = 0;
  // The names of the two legend bars, empty when none stands.
  std::string oreLegend;
  std::string gangueLegend;
  // The clicks: their count, what the last one hit, and the first bar of a range.
  int clickCount = 0;
  bool barHit = false;
  int hitBar = 0;
  bool headHit = false;
  int hitHole = 0;
  int firstBar = 0;
};

}  // namespace tri
