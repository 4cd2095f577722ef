// Production, Data, Plane: the point sets of a workbook's column pairs, their colours, and the
// points drawn, where a text cell fails; then the rubber line of tracing an area over them.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "production/plane_session.h"

namespace tri {
namespace {

const Color kRed = rgb(255, 0, 0);
const Color kBlue = rgb(0, 0, 255);

std::vector<std::string> drawnPoints(const Canvas& canvas) {
  std::vector<std::string> points;
  for (const std::string& op : canvas.describeSinceClear()) {
    if (op.starts_with("point ")) points.push_back(op);
  }
  return points;
}

TEST(Plane, ColumnPairsMakeTheSets) {
  // Three columns: the last x column pairs with an empty y column, and planemax weighs the
  // first half of the columns only, not the longer second set.
  PlaneSession odd;
  GridSheet three = planeSheet({{{520, 820}, {630, 820}}});
  for (int r = 1; r <= 3; ++r) three.setNumber(r, 3, 500 + 10 * r);
  odd.readPlane({three}, {kRed, kBlue});
  const Production& pr = odd.state.production;
  EXPECT_EQ(pr.planesay, 2);
  EXPECT_EQ(pr.plansay[2], 3);
  EXPECT_EQ(pr.planemax, 2);
  EXPECT_EQ(drawnPoints(odd.canvas),
            (std::vector<std::string>{
                "point 520 820 color=255 width=5", "point 630 820 color=255 width=5",
                "point 510 0 color=16711680 width=5", "point 520 0 color=16711680 width=5",
                "point 530 0 color=16711680 width=5"}));
  EXPECT_EQ(pr.planekor.get(2, 3, 1).number, 530);

  // The sets are read from a second reading of the file: a pair whose first cell is empty
  // there is a set of no points, which still takes its colour.
  PlaneSession empty;
  empty.readPlane(
      {planeSheet({{{1, 1}}, {{2, 2}}, {{3, 3}}}), planeSheet({{{520, 820}}, {}, {{575, 835}}})},
      {kRed, rgb(0, 160, 0), kBlue});
  EXPECT_EQ(empty.state.production.planesay, 3);
  EXPECT_EQ(empty.state.production.plansay[2], 0);
  // Six columns: a longer set later in the first half is the largest.
  PlaneSession even;
  even.readPlane({planeSheet({{{520, 820}}, {{500, 800}, {510, 800}}, {{530, 800}}})},
                 {kRed, kBlue, kRed});
  EXPECT_EQ(even.state.production.planemax, 2);
  EXPECT_EQ(drawnPoints(empty.canvas).back(), "point 575 835 color=16711680 width=5");
  EXPECT_EQ(empty.dialogs.pending(), 0u);
}

TEST(Plane, ATextCellFailsWhenItsPointIsDrawnNamingTheCell) {
  PlaneSession s;
  GridSheet sheet = planeSheet({{{520, 820}, {630, 820}}, {{575, 835}, {605, 835}}});
  sheet.setText(2, 1, "630.5");  // a text that reads as a number is drawn
  sheet.setText(2, 4, "N-2");
  try {
    s.readPlane({sheet}, {kRed, kBlue});
    FAIL() << "the text cell was drawn";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::TypeMismatch);
    EXPECT_EQ(fault.message(),
              "point 2 of point set 2: column 4, row 2 of the plane workbook holds the text "
              "\"N-2\" where a number is needed");
  }
  EXPECT_EQ(drawnPoints(s.canvas),
            (std::vector<std::string>{"point 520 820 color=255 width=5",
                                      "point 630.5 820 color=255 width=5",
                                      "point 575 835 color=16711680 width=5"}));
}

TEST(Tracing, TheRubberLineRunsFromTheLastCornerToThePointer) {
  // Set 1 has points at (520, 820) and (630, 820).
  PlaneSession s;
  s.readPlane({planeSheet({{{520, 820}, {630, 820}}})}, {kRed});
  s.run("Mnnuciz_Click");
  const LineControl& line = s.state.ui.line1;
  s.move(600, 900);
  EXPECT_FALSE(line.visible);
  s.click(521, 819);
  s.click(629, 821);
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
