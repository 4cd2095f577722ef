// The scan commands over a project: the pick by the red points, the single scan's results
// and their slots, the all-triangle scan, the keys, the clearing and the replay.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

std::vector<std::string> printed(const Canvas& c, const char* kind = "text ") {
  std::vector<std::string> ops;
  for (const std::string& op : c.describeSinceClear()) {
    if (op.starts_with(kind)) ops.push_back(op);
  }
  return ops;
}

// worked_example.xls: the triangle A (100, 100), B (150, 100), C (100, 140) of 1000 m2, its
// red point at (350 / 3, 340 / 3). The bench 200 to 190 holds 10 m of each corner's first
// layer: tenors 2, 3, 4, densities 2, 2.5, 3. Tenor 235 / 75 = 3.13, and 1000 x 2.5 x 10 x
// 0.03133 = 783 t = 0.78 kt.
struct WorkedScan : DrawingSession {
  WorkedScan() : DrawingSession("worked_example.xls", "ore") {
    pickTriangle(100, 100, 150, 100, 100, 140);
    state.scan.upkot = 200;
    state.scan.downkot = 190;
  }
  void pickAndScan(double x = 117, double y = 113) {
    run("Mntiklama_Click");
    click(x, y);
    run("Mntrtek_Click");
  }
};

std::vector<std::string> worked(const std::string& bench, const std::string& reserve) {
  return {"text 111.666666666667 113.333333333333 \"" + bench + "\" color=16711680",
          "text 111.666666666667 101.333333333333 \"3.13\" color=65280",
          "text 111.666666666667 89.3333333333333 \"" + reserve + "\" color=255"};
}

std::vector<std::string> operator+(std::vector<std::string> a, const std::vector<std::string>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

TEST(ScanCommands, SingleScansAccumulateInTheirSlotsUntilCleared) {
  WorkedScan s;
  s.pickAndScan();
  // Two picks: the result lands in slot 3, slot 2 prints empty texts at (0, 0).
  s.state.scan.upkot = 195;
  s.run("Mntiklama_Click");
  s.pickAndScan();
  const std::vector<std::string> empty = {"text 0 0 \"\" color=16711680",
                                          "text 0 0 \"\" color=65280", "text 0 0 \"\" color=255"};
  const std::vector<std::string> newest = worked("(195 , 190)", "0.39");
  EXPECT_EQ(printed(s.canvas), newest + worked("(200 , 190)", "0.78") + empty + newest);
  // Clear ends the scan views: the results go, and a right click draws no key.
  s.run("Mnttem_Click");
  EXPECT_EQ(s.state.scan.scansay, 0);
  EXPECT_TRUE(printed(s.canvas).empty());
  const size_t drawn = s.canvas.log().size();
  s.click(300, 200, 2);
  EXPECT_EQ(s.canvas.log().size(), drawn);
  s.pickAndScan();
  EXPECT_EQ(printed(s.canvas), newest + newest);
}

TEST(ScanCommands, ThePickFindsTheFirstRedSquareThatHoldsIt) {
  WorkedScan s;
  s.pickAndScan(122, 113);  // 5.33 m east of the red point
  EXPECT_EQ(s.state.ui.label(1), "Relevant triangle not found");
  EXPECT_FALSE(s.state.flags.modtiklama);
  EXPECT_EQ(printed(s.canvas, "point ").back(),
            "point 116.666666666667 113.333333333333 color=255 width=10");

  // cluster.xls: triangles C-13, C-02, C-05 and C-14, C-02, C-05 have their red points 1 m
  // apart, at (591, 841) and (592, 842).
  DrawingSession c("cluster.xls", "ore");
  c.pickTriangle(573, 873, 600, 800, 600, 850);
  c.pickTriangle(579, 879, 600, 800, 600, 850);
  c.run("Mntiklama_Click");
  c.click(596, 846);  // on the corner of the first square, inside the second
  c.run("Mntrtek_Click");
  EXPECT_EQ(c.state.scan.secucgen, 1);
  EXPECT_EQ(printed(c.canvas).front(), "text 586 841 \"(0 , 0)\" color=16711680");
}

TEST(ScanCommands, TheAllScanReadsTheChosenTable) {
  WorkedScan s;
  s.addLimit("2");  // A's ore has tenor 2, not above the limit: B and C count, 10 m each
  s.run("Mntrtum_Click");
  EXPECT_DOUBLE_EQ(s.state.scan.ucgenuz, 10);
  EXPECT_EQ(printed(s.canvas).front(),
            "text 111.666666666667 113.333333333333 \"3.55\" color=65280");  // 195 / 55

  // Without a drawing: no red points, a slot reserved all the same, and silent scans.
  s.state.ui.combo2.setListIndex(0);
  s.run("Mntiklama_Click");
  EXPECT_TRUE(printed(s.canvas, "point ").empty());
  EXPECT_EQ(s.state.scan.scansay, 1);
  s.run("Mntrtum_Click");
  EXPECT_TRUE(printed(s.canvas).empty());
  EXPECT_EQ(s.state.ui.label(1), "Right Click: Key");
}

TEST(ScanCommands, AReplayScansAgainAndReservesAnotherSlot) {
  WorkedScan s;
  s.pickAndScan();
  s.resize(900, 600);
  EXPECT_EQ(printed(s.canvas), worked("(200 , 190)", "0.78") + worked("(200 , 190)", "0.78"));
  s.run("Mntiklama_Click");
  s.resize(1000, 700);
  EXPECT_EQ(s.state.scan.scansay, 3);
}

TEST(ScanCommands, TheElevationCommandStopsAtItsHint) {
  WorkedScan s;
  try {
    s.run("Mntkot_Click");
    FAIL() << "the hint takes \"Put \" as a number";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::TypeMismatch);
    EXPECT_NE(fault.message().find("Put "), std::string::npos) << fault.message();
  }
  EXPECT_EQ(s.state.scan.upkot, 200);
}

}  // namespace
}  // namespace tri
