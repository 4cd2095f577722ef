// Triangle entry and the repaint of the network, beside the scenarios picking_holes and
// network: the rubber band, the table shown and where the hole lists end.
#include <gtest/gtest.h>

#include <algorithm>

#include "triangles/drawing_session.h"

namespace tri {
namespace {

long countOps(const Canvas& c, const std::string& op) {
  const std::vector<std::string> ops = c.describeSinceClear();
  return std::count_if(ops.begin(), ops.end(),
                       [&](const std::string& o) { return o.starts_with(op); });
}

// cluster.xls: C-01 (550, 800), C-02 (600, 800), C-03 (500, 850), C-04 (550, 850).
TEST(Entry, TheRubberBandFollowsThePointerFromTheLastHole) {
  DrawingSession s("cluster.xls", "ore");
  s.move(700, 700);
  EXPECT_FALSE(s.state.ui.line1.visible) << "no hole accepted yet";
  s.click(550, 800);
  s.move(580, 830);
  const LineControl& band = s.state.ui.line1;
  EXPECT_TRUE(band.visible);
  EXPECT_EQ(std::vector<double>({band.x1, band.y1, band.x2, band.y2}),
            std::vector<double>({550, 800, 580, 830}));
  // A click that finds nothing hides the band at the next click.
  s.click(10, 10);
  s.move(20, 20);
  EXPECT_FALSE(s.state.ui.line1.visible);
}

TEST(Entry, AHoleWithXZeroEndsTheHoleListAndAPointNameDoesNot) {
  DrawingSession s("cluster.xls", "ore");
  writeStored(s.path, "kor", 2, "isim", std::string("uz-2"));  // C-02 is still picked
  writeStored(s.path, "kor", 3, "eks", 0);                     // C-03 (500, 850) ends the list
  s.click(550, 850);                                           // C-04, after the end
  EXPECT_EQ(s.table("Kuzey").rows.size(), 1u);
  s.click(600, 800);
  EXPECT_EQ(s.table("Kuzey").rows.size(), 2u);
}

TEST(TriangleDisplay, TheSelectorsChooseTheTableShown) {
  DrawingSession s("worked_example.xls", "ore");
  s.pickABC();
  s.addLimit("1");
  writeStored(s.path, "1Kuzey", 2, "koordinat1", 120000);
  for (auto [limit, side] : {std::pair{1, "line 120 100 150 100 color=0 width=1"},
                             std::pair{0, "line 100 100 150 100 color=0 width=1"}}) {
    s.state.ui.combo1.setListIndex(limit);
    s.run("ucgenplan");
    EXPECT_EQ(countOps(s.canvas, side), 1) << limit;
  }
}

TEST(TriangleDisplay, AnEmptyDrawingShowsItsHolesUpToAPointName) {
  DrawingSession s("worked_example.xls", "ore");
  s.run("ucgenplan");
  EXPECT_EQ(countOps(s.canvas, "line "), 0);
  EXPECT_EQ(countOps(s.canvas, "point "), 3);
  writeStored(s.path, "kor", 2, "isim", std::string("uz-2"));
  s.run("ucgenplan");
  EXPECT_EQ(countOps(s.canvas, "point "), 1);
}

}  // namespace
}  // namespace tri
