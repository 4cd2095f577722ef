// Triangle entry by clicks: which hole a click picks, what a right click takes back, and
// what the canvas shows meanwhile.
#include <gtest/gtest.h>

#include <algorithm>

#include "triangles/drawing_session.h"

namespace tri {
namespace {

// cluster.xls: C-13 (573, 873) and C-14 (576, 876) are both within 5 m of (574.5, 874.5).
struct Cluster : DrawingSession {
  Cluster() : DrawingSession("cluster.xls", "ore") {}
  size_t rows() const { return table("Kuzey").rows.size(); }
  long sayOfRow(int row) const { return table("Kuzey").number(row, "say"); }
};

std::vector<std::string> pointsOfWidth5(const Canvas& c) {
  std::vector<std::string> points;
  for (const CanvasOp& op : c.log()) {
    if (op.kind == CanvasOp::Kind::Point && op.width == 5 && op.color != 0) {
      points.push_back(op.describe());
    }
  }
  return points;
}

TEST(Entry, TheLowestNumberedFreeHoleInTheSquareWins) {
  Cluster s;
  s.click(574.5, 874.5);
  EXPECT_EQ(s.sayOfRow(2), 13);
  // Corner 1 is skipped: the same click now takes the other hole.
  s.click(574.5, 874.5);
  EXPECT_EQ(s.sayOfRow(3), 14);
  // Both are corners of this triangle now: nothing is picked, nothing written.
  s.click(574.5, 874.5);
  EXPECT_EQ(s.rows(), 3u);
  EXPECT_EQ(s.state.entry.noktasay, 2);
  EXPECT_EQ(s.state.ui.label(1), "Select Third Point (Right Click: Cancel)");
}

TEST(Entry, TheSquareIsFiveMetresOnEachAxisEdgesIncluded) {
  Cluster s;
  s.click(555.01, 800);  // C-01 at (550, 800): just outside
  EXPECT_EQ(s.rows(), 1u);
  s.click(555, 805);  // exactly on the corner of its square
  ASSERT_EQ(s.rows(), 2u);
  EXPECT_EQ(s.sayOfRow(2), 1);
  s.click(595, 795);  // C-02 at (600, 800), on the other corner
  ASSERT_EQ(s.rows(), 3u);
  EXPECT_EQ(s.sayOfRow(3), 2);
}

TEST(Entry, AMissAfterAFinishedTriangleOnlyResetsTheCount) {
  Cluster s;
  s.pickTriangle(550, 800, 600, 800, 550, 850);
  ASSERT_EQ(s.rows(), 5u);
  EXPECT_EQ(s.state.entry.noktasay, 3);
  EXPECT_EQ(s.state.ui.label(1), "Select Point One (Right Click: Cancel)");
  s.click(10, 10);
  EXPECT_EQ(s.state.entry.noktasay, 0);
  EXPECT_EQ(s.rows(), 5u);
  // A hole of the finished triangle can start the next one.
  s.click(550, 800);
  EXPECT_EQ(s.rows(), 6u);
  EXPECT_EQ(s.state.entry.noktasay, 1);
}

TEST(Entry, RightClickTakesBackTheRowsOfAnUnfinishedTriangle) {
  {
    Cluster s;
    s.click(550, 800);
    s.click(0, 0, 2);
    EXPECT_EQ(s.rows(), 1u);
    EXPECT_FALSE(s.state.flags.modcizim);
    EXPECT_EQ(s.state.entry.noktasay, 0);
    EXPECT_EQ(s.state.ui.label(1), "Process canceled");
    EXPECT_TRUE(s.state.ui.enabled("Mnkaydir"));
    EXPECT_FALSE(s.state.ui.enabled("Mnorten"));
  }
  {
    Cluster s;
    s.click(550, 800);
    s.click(600, 800);
    s.click(0, 0, 2);
    EXPECT_EQ(s.rows(), 1u);
  }
  {
    Cluster s;
    s.pickTriangle(550, 800, 600, 800, 550, 850);
    s.click(550, 800);
    s.click(0, 0, 2);
    EXPECT_EQ(s.rows(), 5u) << "only the pending pick goes";
  }
  {
    Cluster s;
    s.pickTriangle(550, 800, 600, 800, 550, 850);
    s.click(0, 0, 2);
    EXPECT_EQ(s.rows(), 5u) << "a finished triangle is never undone";
    // The mode is off: clicks no longer reach triangle entry.
    s.click(600, 850);
    EXPECT_EQ(s.rows(), 5u);
  }
}

TEST(Entry, DotsAreBlueRedGreenAndTheSidesRedGreenBlue) {
  Cluster s;
  s.canvas.clearLog();
  s.pickTriangle(550, 800, 600, 800, 550, 850);
  EXPECT_EQ(pointsOfWidth5(s.canvas),
            (std::vector<std::string>{"point 550 800 color=16711680 width=5",
                                      "point 600 800 color=255 width=5",
                                      "point 550 850 color=65280 width=5"}));
  std::vector<std::string> lines;
  for (const CanvasOp& op : s.canvas.log()) {
    if (op.kind == CanvasOp::Kind::Line) lines.push_back(op.describe());
  }
  EXPECT_NE(std::find(lines.begin(), lines.end(), "line 550 800 550 850 color=65280 width=1"),
            lines.end());
  EXPECT_NE(std::find(lines.begin(), lines.end(), "line 600 800 550 850 color=16711680 width=1"),
            lines.end());
}

TEST(Entry, TheRubberBandFollowsThePointerFromTheLastHole) {
  Cluster s;
  s.move(700, 700);
  EXPECT_FALSE(s.state.ui.line1.visible) << "no hole accepted yet";
  s.click(550, 800);
  s.move(580, 830);
  const LineControl& band = s.state.ui.line1;
  EXPECT_TRUE(band.visible);
  EXPECT_EQ(band.x1, 550);
  EXPECT_EQ(band.y1, 800);
  EXPECT_EQ(band.x2, 580);
  EXPECT_EQ(band.y2, 830);
  // A click that finds nothing hides the band at the next click.
  s.click(10, 10);
  s.move(20, 20);
  EXPECT_FALSE(s.state.ui.line1.visible);
}

TEST(Entry, HoverShowsOreEntryAndExitInTheScanModes) {
  DrawingSession s("worked_example.xls", "ore");
  s.move(101, 99);
  EXPECT_EQ(s.state.ui.picture1ToolTip, "") << "only while selecting for scan or digitizing";
  s.state.flags.modtiklama = true;
  s.move(101, 99);
  EXPECT_EQ(s.state.ui.picture1ToolTip, "Giriş: 200 Çıkış: 190");
  s.move(300, 300);
  EXPECT_EQ(s.state.ui.picture1ToolTip, "");
  // Hovering resets a count that stands at a finished triangle.
  s.state.entry.noktasay = 3;
  s.move(300, 300);
  EXPECT_EQ(s.state.entry.noktasay, 0);
}

TEST(Entry, AHoleWithXZeroEndsTheHoleList) {
  Cluster s;
  {
    Database db = Database::open(s.path);
    Recordset kor = db.openTable("kor");
    kor.moveFirst();
    kor.move(2);  // the third hole, C-03 (500, 850)
    kor.edit();
    kor.set("eks", 0);
    kor.update();
  }
  s.click(550, 850);  // C-04, after the end
  EXPECT_EQ(s.rows(), 1u);
  s.click(600, 800);  // C-02, before it
  EXPECT_EQ(s.rows(), 2u);
}

}  // namespace
}  // namespace tri
