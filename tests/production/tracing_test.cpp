// Production, Area, Draw, Point: the strict square of a hit, the lock on the set of the first
// click, the continuation of an abandoned outline, and the rubber line.
#include <gtest/gtest.h>

#include "production/plane_session.h"

namespace tri {
namespace {

// The cluster's sets: A (520, 820), B (630, 820), C (630, 930), D (520, 930) in set 1; E
// (575, 835) in set 2.
struct Tracing : PlaneSession {
  Tracing() {
    readPlane({planeSheet({{{520, 820}, {630, 820}, {630, 930}, {520, 930}}, {{575, 835}}})},
              {rgb(255, 0, 0), rgb(0, 0, 255)});
    run("Mnnuciz_Click");
  }
  void clicks(std::initializer_list<std::pair<double, double>> at) {
    for (auto [x, y] : at) click(x, y);
  }
  const Production& pr() const { return state.production; }
};

TEST(PointTracing, AClickHitsAPointOnlyStrictlyInsideItsSquareAndLocksItsSet) {
  Tracing s;
  s.clicks({{525, 820}, {515, 820}, {520, 825}, {520, 815}});  // exactly 5 m away
  EXPECT_EQ(s.pr().noktaclick, 0);
  s.click(524.9, 815.1);  // the corner is the point's, not the click's
  s.click(575, 835);      // E, of set 2: not tested while set 1 is locked
  s.clicks({{630, 820}, {630, 930}, {520, 820}});
  EXPECT_EQ(s.outline("aukor", 1),
            (std::vector<std::string>{"nal1nokb1 520000 820000", "nal1nokb2 630000 820000",
                                      "nal1nokb3 630000 930000", "nal1nokb4 520000 820000"}));
  EXPECT_TRUE(s.outline("aukor", 2).empty());
  EXPECT_EQ(s.pr().noktaclick, 0);
  EXPECT_EQ(s.state.ui.label(1), "Ready");
  // The next outline locks the set of its own first click.
  s.click(575, 835);
  EXPECT_EQ(s.outline("aukor", 2), std::vector<std::string>{"nal2nokb1 575000 835000"});
  EXPECT_EQ(s.pr().alanplane[2], 2);
}

TEST(PointTracing, AnAbandonedOutlineGoesOnFromTheCornerClicked) {
  Tracing s;
  s.clicks({{520, 820}, {630, 820}, {630, 930}});
  s.click(600, 600, 2);
  EXPECT_EQ(s.pr().noktaclick, 0);
  // From B: the corners after it are freed, and the names go on from its number.
  s.clicks({{631, 821}, {520, 930}, {520, 820}});
  EXPECT_EQ(s.outline("aukor", 1),
            (std::vector<std::string>{"nal1nokb1 520000 820000", "nal1nokb2 630000 820000",
                                      "nal1nokb3 520000 930000", "nal1nokb4 520000 820000"}));
  EXPECT_FALSE(s.pr().devammod);
  // A closed outline is not continued: the click on it draws and stores nothing.
  const size_t drawn = s.canvas.log().size();
  s.click(630, 820);
  EXPECT_EQ(s.outline("aukor", 1).size(), 4u);
  EXPECT_EQ(s.canvas.log().size(), drawn);
}

TEST(Tracing, TheRubberLineRunsFromTheLastCornerToThePointer) {
  Tracing s;
  const LineControl& line = s.state.ui.line1;
  s.click(520, 820);
  s.click(630, 820);
  s.move(600, 900);
  EXPECT_TRUE(line.visible && line.color == 0 && line.width == 1);
  EXPECT_EQ(std::vector<double>({line.x1, line.y1, line.x2, line.y2}),
            std::vector<double>({630, 820, 600, 900}));
  s.click(1, 1, 2);
  EXPECT_FALSE(line.visible);
  s.run("Mnsuciz_Click");
  s.click(540.5, 860);
  s.move(600, 900);
  EXPECT_EQ(std::vector<double>({line.x1, line.y1}), std::vector<double>({540.5, 860}));
}

}  // namespace
}  // namespace tri
