// Triangle entry by clicks, beside the picks and take-backs of the scenario picking_holes:
// the rubber band and where the hole list ends.
#include <gtest/gtest.h>

#include "triangles/drawing_session.h"

namespace tri {
namespace {

// cluster.xls: C-01 (550, 800), C-02 (600, 800), C-03 (500, 850), C-04 (550, 850).
struct Cluster : DrawingSession {
  Cluster() : DrawingSession("cluster.xls", "ore") {}
  size_t rows() const { return table("Kuzey").rows.size(); }
};

TEST(Entry, TheRubberBandFollowsThePointerFromTheLastHole) {
  Cluster s;
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

TEST(Entry, AHoleWithXZeroEndsTheHoleList) {
  Cluster s;
  writeStored(s.path, "kor", 3, "eks", 0);  // the third hole, C-03 (500, 850)
  s.click(550, 850);                        // C-04, after the end
  EXPECT_EQ(s.rows(), 1u);
  s.click(600, 800);  // C-02, before it
  EXPECT_EQ(s.rows(), 2u);
}

}  // namespace
}  // namespace tri
