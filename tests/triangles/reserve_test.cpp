// The reserve of a triangle, entered by clicks, to the stored thousandth.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/ondayaz.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

FaultKind faultOf(auto&& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.kind();
  }
  ADD_FAILURE() << "no Fault";
  return FaultKind::Overflow;
}

TEST(Reserve, TheWorkedExampleInEveryOrderOfItsCorners) {
  // A B C, then C B A (the other winding) and B C A: the order changes no value.
  DrawingSession s("worked_example.xls", "ore");
  s.pickABC();
  StoredTable t = s.table("Kuzey");
  ASSERT_EQ(t.rows.size(), 5u);
  EXPECT_EQ(summaryOf(t, 5), kWorkedExample);
  EXPECT_EQ(t.number(5, "ucgensay"), 1);
  EXPECT_EQ(t.number(5, "ebxk"), ondayaz(s.state.frame.ebxk));
  EXPECT_EQ(t.number(5, "ekyk"), ondayaz(s.state.frame.ekyk));
  EXPECT_TRUE(t.at(5, "koordinat1").isNull());
  EXPECT_EQ(s.state.ui.label(13), "Area: 1000 m.kare");
  EXPECT_EQ(s.state.ui.label(7), "Triangle:1");
  EXPECT_EQ(s.state.ui.label(12), "Total Reserve (KiloTon): 1.83333");
  EXPECT_EQ(s.state.reserve.rezervoran[1], 1000);

  s.pickCBA();
  s.pickTriangle(150, 100, 100, 140, 100, 100);
  t = s.table("Kuzey");
  for (int row : {9, 13}) EXPECT_EQ(summaryOf(t, row), kWorkedExample) << row;
  // Each triangle shows its own reserve, not a running total.
  EXPECT_EQ(s.state.ui.label(7), "Triangle:3");
  EXPECT_EQ(s.state.ui.label(12), "Total Reserve (KiloTon): 1.83333");
  EXPECT_EQ(t.number(13, "ucgensay"), 3);
  EXPECT_EQ(s.state.reserve.rezervoran[2], 2000);
  // The vertex rows hold the holes in pick order: B of B C A.
  EXPECT_EQ(t.number(10, "say"), 2);
  EXPECT_EQ(t.number(11, "say"), 3);
  EXPECT_EQ(t.number(12, "say"), 1);
  for (auto [field, value] : {std::pair{"koordinat1", 150000},
                              {"koordinat2", 100000},
                              {"sondgir", 205000},
                              {"cevhgir", 205000},
                              {"cevhcik", 185000},
                              {"sondcik", 180000}}) {
    EXPECT_EQ(t.number(10, field), value) << field;
  }
  EXPECT_TRUE(t.at(10, "ucgensay").isNull());
}

TEST(Reserve, TheExtentChainsOfTheReadBackCorners) {
  // small.xls: S-1 (120, 340), "101" (180, 340), S-4 (210.25, 395.5). The extent is kept
  // only while the first command has not cleared ilkmod.
  struct Case {
    std::array<double, 6> picks;
    long ortucgen1, ortucgen2, ortucgen11, ortucgen21;
  };
  const Case cases[] = {
      // Greatest x: x1 is not below the rounded x3 (120), nor below x2: it stays 210.25.
      // Smallest x: x1 is above the rounded x3, so it becomes 120 and x2 is never looked
      // at. Greatest y: y1 is not below y3 nor y2. Smallest y: y1 is above y3: 340.
      {{210.25, 395.5, 180, 340, 120, 340}, 90250, 55500, 120000, 340000},
      // The greatest y takes the rounded x3 (210) where y1 is below y3.
      {{120, 340, 180, 340, 210.25, 395.5}, 90000, 130000, 120000, 340000},
  };
  for (const Case& c : cases) {
    DrawingSession s("small.xls", "ore");
    s.state.flags.ilkmod = true;
    s.pickTriangle(c.picks[0], c.picks[1], c.picks[2], c.picks[3], c.picks[4], c.picks[5]);
    StoredTable t = s.table("Kuzey");
    EXPECT_EQ(t.number(5, "ortucgen1"), c.ortucgen1);
    EXPECT_EQ(t.number(5, "ortucgen2"), c.ortucgen2);
    EXPECT_EQ(t.number(5, "ortucgen11"), c.ortucgen11);
    EXPECT_EQ(t.number(5, "ortucgen21"), c.ortucgen21);
  }
  DrawingSession cleared("small.xls", "ore");
  cleared.pickTriangle(210.25, 395.5, 180, 340, 120, 340);
  EXPECT_EQ(cleared.table("Kuzey").number(5, "ortucgen1"), 0);
}

TEST(Reserve, TrianglesThatCannotBeComputedFailAfterTheirVertexRows) {
  {
    // In small.xls, "101" has no cover: the cover tenor of that corner is 0 / 0.
    DrawingSession s("small.xls", "cover");
    EXPECT_EQ(faultOf([&] { s.pickTriangle(120, 340, 180, 340, 150, 400); }),
              FaultKind::DivisionByZero);
    EXPECT_EQ(s.table("Kuzey").rows.size(), 4u);  // header and three vertex rows
    // The next repaint of that drawing reads ucgensay from a vertex row.
    try {
      s.run("ucgenplan");
      FAIL();
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), FaultKind::InvalidUseOfNull);
      EXPECT_NE(fault.message().find("ucgensay"), std::string::npos);
    }
  }
  {
    // cluster.xls: C-01 (550, 800), C-04 (550, 850) and C-08 (550, 900) lie on x = 550.
    DrawingSession s("cluster.xls", "ore");
    EXPECT_EQ(faultOf([&] { s.pickTriangle(550, 800, 550, 850, 550, 900); }),
              FaultKind::DivisionByZero);
    EXPECT_EQ(s.state.ui.label(13), "Area: 0 m.kare");
    EXPECT_EQ(s.table("Kuzey").rows.size(), 4u);
  }
  {
    // The run ends at two hundred triangles.
    DrawingSession s("worked_example.xls", "ore");
    s.state.entry.ucgenbuf = 200;
    s.state.entry.ucgensira = 200;
    EXPECT_EQ(faultOf([&] { s.pickABC(); }), FaultKind::SubscriptOutOfRange);
  }
}

}  // namespace
}  // namespace tri
