// The arithmetic of the 3D reserve view: the lengths a corner hole's log gives its prism, the
// depths of the ore's top and bottom there, and the view's own projection, which scales x by
// the cosine and y by the sine of the angle and moves the depth along a third direction.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/store.h"

namespace tri {

// What a corner hole's log gives its prism: the length of all its layers, of those above the
// first and below the last layer of the lithology, and, when a limit tenor is chosen, the
// length cut from the top ([1]) and from the bottom ([2]) up to a layer of the lithology
// richer than the limit.
struct CornerLengths {
  double loglen = 0;
  double abovelen = 0;
  double belowlen = 0;
  std::array<double, 3> trimlen{};
};

// The logs of the corner holes, walked on table log for one pass. A hole is found by its
// number as a row counted from the first; a number past the rows is the engine's "No current
// record". The table cannot change while a pass runs, so each hole is walked once.
class CornerLogs {
 public:
  // `limitText` is the text of the limit selector when a limit is chosen: its number is
  // taken at the first limit walk.
  CornerLogs(Recordset& log, std::string lithology, std::optional<std::string> limitText);

  const CornerLengths& of(int holeno);

 private:
  struct Slot {
    std::string lit;
    double ten = 0;  // thousandths
    double uz = 0;   // thousandths
  };
  struct SlotFields {
    int lit, ten, uz;
  };
  const SlotFields& fieldsOf(int c);
  // The slots of the current row up to the first with lit " " and ten 0, which ends it.
  void readSlots();
  CornerLengths walk();
  double trimFromTop();
  double trimFromBottom();
  bool richOre(const std::string& lit, double tenor) const;

  Recordset& log_;
  std::string lithology_;
  std::optional<std::string> limitText_;
  double limit_ = 0;
  bool limitRead_ = false;
  std::vector<SlotFields> fields_;  // slot c at c - 1
  std::vector<Slot> slots_;         // the real slots of the hole being walked, c at c - 1
  std::unordered_map<int, CornerLengths> walked_;
};

// The ore's top (D1) and bottom (D2) elevation at a corner. Without a limit the layers above
// and below the lithology are taken off the hole; with one, a hole that nothing is cut from
// collapses to the middle of its log, and otherwise the cuts are taken off as well (the top
// cut counted from the top of the log, so the layers above the ore count twice).
struct CornerDepths {
  double top = 0;
  double bottom = 0;
};
CornerDepths cornerDepths(double collar, const CornerLengths& lengths, bool limitChosen);

// A point of the view, in map units before the flip.
struct ViewPoint {
  double x = 0;
  double y = 0;
};

// The projection of a corner at (relx, rely) from the stored frame's corner and at elevation
// `depth`, seen at `angle` degrees. Past 180 degrees the depth's term is written with the
// angle + 270 and the depth turned, which gives the same value.
ViewPoint projectPoint(double relx, double rely, double depth, int angle, double pi);

// A view coordinate in pixels: one pixel is 5 m, offset by a quarter of the stored frame's
// extent and by the zoom step; whole by half to even.
int viewPixel(double value, double extent, double buyutadim);

}  // namespace tri
