// The drill-log view over the sample project: cuts reach the triangles entered after them and
// no others, the undo brings back the imported log, and the view pages and keeps its bounds.
#include <gtest/gtest.h>

#include "platform/store_test_support.h"
#include "support/session.h"
#include "support/stored_table.h"
#include "views/commands.h"

namespace tri {
namespace {

struct CutSession : Session {
  std::string path = createProject(std::string(TRIRESERVE_SAMPLES) + "/demo-holes.xls");
  CutSession() { state.ui.combo4.setListIndex(2); }  // ore

  void clickAt(const HitRect& r) {
    Form_MouseDown(state, 1, 0, static_cast<float>((r.x1 + r.x2) / 2),
                   static_cast<float>((r.y1 + r.y2) / 2));
  }
  void clickBar(int hole, int layer) {
    clickAt(state.network.barRects[state.network.barNumbers(layer, hole)]);
  }
  // A drawing of the triangle of holes 1, 2 and 4; its reserve as stored.
  long triangleReserve(const std::string& name) {
    dialogs.answerInput(name);
    run("Mncizek_Click");
    for (int hole : {1, 2, 4}) click(state.holes.eks[hole], state.holes.eye[hole]);
    return readTable(path, name).number(5, "genelrezerv");
  }
  std::string lit(const char* table, int layer) {
    return readTable(path, table).text(1, "lit" + std::to_string(layer));
  }
};

TEST(SelectCut, ACutCountsForLaterTrianglesOnlyAndTheUndoRestoresTheImportedLog) {
  CutSession s;
  const long before = s.triangleReserve("Before");
  s.run("Mnsonkes_Click");
  // DH-01 is cover, ore, waste, ore: the range from the waste up to the first ore layer.
  const int layers = s.state.network.katmansay[1];
  ASSERT_EQ(layers, 4);
  s.clickBar(1, 3);  // the lower bar first: either order gives the range
  s.clickBar(1, 2);
  EXPECT_EQ(s.lit("log", 2) + s.lit("log", 3) + s.lit("log", 4), "orecevorecevore");
  EXPECT_NE(s.triangleReserve("After"), before);
  EXPECT_EQ(readTable(s.path, "Before").number(5, "genelrezerv"), before);

  // A second range on the same hole, then one undo on its column head.
  s.run("Mnsonkes_Click");
  EXPECT_TRUE(s.state.network.sondcikilik[1]);
  s.clickBar(1, 1);
  s.clickBar(1, 1);
  s.clickAt(s.state.network.headRects[1]);
  for (int j = 1; j <= layers; ++j) EXPECT_EQ(s.lit("log", j), s.lit("kor", j)) << j;
  EXPECT_EQ(readTable(s.path, "log").text(1, "deg2"), "hayır");
  EXPECT_EQ(s.triangleReserve("Again"), before);
}

TEST(SelectCut, PagesTurnByKeyAndAnotherCommandRemovesTheBars) {
  CutSession s;
  s.run("Mnsonkes_Click");
  const Network& n = s.state.network;
  Form_KeyDown(s.state, 34);
  EXPECT_EQ(n.sonkesilk, n.pageColumns);
  EXPECT_EQ(n.headHole[1], n.pageColumns + 1);
  while (n.lastShown < 40) Form_KeyDown(s.state, 34);
  EXPECT_FALSE(s.state.ui.visible("PageNext"));
  EXPECT_EQ(s.state.ui.label(2), "Holes " + std::to_string(n.sonkesilk + 1) + " to 40 of 40" +
                                     " (PageUp, PageDown: other holes)");
  Form_KeyDown(s.state, 33);
  EXPECT_EQ(n.lastShown, n.sonkesilk + n.pageColumns);
  s.run("Mnyuzdeten_Click");
  EXPECT_TRUE(s.state.ui.shapes().empty());
}

TEST(SelectCut, MoreThan9999BarsEndInTheSubscriptFault) {
  GridSheet grid;
  for (int hole = 1; hole <= 60; ++hole) {
    grid.setNumber(1, hole, 100.0 + hole);
    grid.setText(3, hole, "H" + std::to_string(hole));
    for (int row : {2, 4, 5, 6, 7}) grid.setNumber(row, hole, 50);
    for (int k = 1; k <= 190; ++k) {  // 60 columns of 190 bars
      grid.setText(7 + k, hole, "ore");
      for (int block = 1; block <= 4; ++block) grid.setNumber(7 + block * 190 + k, hole, 1);
    }
  }
  Session s(1000, 4000);
  s.state.openSheet = [&](const std::string&) { return std::make_unique<GridSheet>(grid); };
  s.createProject("big.xls");
  s.state.ui.combo4.setListIndex(1);
  EXPECT_TRUE(faults([&] { s.run("Mnsonkes_Click"); }, FaultKind::SubscriptOutOfRange,
                     {"marker shapes", "10000"}));
}

}  // namespace
}  // namespace tri
