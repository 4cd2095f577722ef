// The reserve of a triangle, entered by clicks, to the stored thousandth.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/ondayaz.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

// Holes of worked_example.xls: A (100, 100), B (150, 100), C (100, 140); ore lengths 10,
// 20, 30, tenors 2, 3, 4, densities 2, 2.5, 3; the triangle's area is 1000 m².
struct WorkedExample : DrawingSession {
  WorkedExample() : DrawingSession("worked_example.xls", "ore") {}
  void pickABC() { pickTriangle(100, 100, 150, 100, 100, 140); }
};

TEST(Reserve, TheWorkedExampleEndToEnd) {
  WorkedExample s;
  s.pickABC();
  StoredTable t = s.table("Kuzey");
  ASSERT_EQ(t.rows.size(), 5u);
  EXPECT_EQ(t.number(5, "kubaj"), 20000);
  EXPECT_EQ(t.number(5, "tonaj"), 53333);
  EXPECT_EQ(t.number(5, "genelrezerv"), 1833);
  EXPECT_EQ(t.number(5, "geneltenor"), 3437);
  EXPECT_EQ(t.number(5, "genelyog"), 2666);
  EXPECT_EQ(t.number(5, "ilkuz"), 20000);
  EXPECT_EQ(t.number(5, "ill"), 1000000);
  EXPECT_EQ(t.number(5, "ucgensay"), 1);
  EXPECT_EQ(t.number(5, "ebxk"), ondayaz(s.state.frame.ebxk));
  EXPECT_EQ(t.number(5, "ekyk"), ondayaz(s.state.frame.ekyk));
  EXPECT_TRUE(t.at(5, "rezerv").isNull());
  EXPECT_TRUE(t.at(5, "koordinat1").isNull());
  EXPECT_EQ(s.state.ui.label(13), "Area: 1000 m.kare");
  EXPECT_EQ(s.state.ui.label(7), "Triangle:1");
  EXPECT_EQ(s.state.ui.label(12), "Total Reserve (KiloTon): 1.83333");
  EXPECT_EQ(s.state.reserve.rezervoran[1], 1000);
}

TEST(Reserve, VertexRowsHoldTheHolesInPickOrder) {
  WorkedExample s;
  s.pickTriangle(150, 100, 100, 140, 100, 100);
  StoredTable t = s.table("Kuzey");
  EXPECT_EQ(t.number(2, "say"), 2);
  EXPECT_EQ(t.number(2, "koordinat1"), 150000);
  EXPECT_EQ(t.number(2, "koordinat2"), 100000);
  EXPECT_EQ(t.number(2, "sondgir"), 205000);
  EXPECT_EQ(t.number(2, "cevhgir"), 205000);
  EXPECT_EQ(t.number(2, "cevhcik"), 185000);
  EXPECT_EQ(t.number(2, "sondcik"), 180000);
  EXPECT_EQ(t.number(3, "say"), 3);
  EXPECT_EQ(t.number(4, "say"), 1);
  EXPECT_TRUE(t.at(2, "ucgensay").isNull());
  // The order of the corners does not change the values.
  EXPECT_EQ(t.number(5, "geneltenor"), 3437);
  EXPECT_EQ(t.number(5, "genelrezerv"), 1833);
}

TEST(Reserve, TheExtentChainsOfTheReadBackCorners) {
  // small.xls: S-4 (210.25, 395.5) first, "101" (180, 340), then S-1 (120, 340).
  DrawingSession s("small.xls", "ore");
  s.state.flags.ilkmod = true;
  s.pickTriangle(210.25, 395.5, 180, 340, 120, 340);
  StoredTable t = s.table("Kuzey");
  // Greatest x: x1 is not below the rounded x3 (120), nor below x2: it stays 210.25.
  // Smallest x: x1 is above the rounded x3, so it becomes 120 and x2 is never looked at.
  // Greatest y: y1 is not below y3 nor y2. Smallest y: y1 is above y3: 340.
  EXPECT_EQ(t.number(5, "ortucgen1"), 90250);
  EXPECT_EQ(t.number(5, "ortucgen2"), 55500);
  EXPECT_EQ(t.number(5, "ortucgen11"), 120000);
  EXPECT_EQ(t.number(5, "ortucgen21"), 340000);

  // The other order: the greatest y takes the rounded x3 (210) where y1 is below y3.
  DrawingSession r("small.xls", "ore");
  r.state.flags.ilkmod = true;
  r.pickTriangle(120, 340, 180, 340, 210.25, 395.5);
  StoredTable u = r.table("Kuzey");
  EXPECT_EQ(u.number(5, "ortucgen11"), 120000);  // smallest x: x1
  EXPECT_EQ(u.number(5, "ortucgen1"), 90000);    // greatest x: the rounded x3, 210
  EXPECT_EQ(u.number(5, "ortucgen21"), 340000);  // smallest y: y1
  EXPECT_EQ(u.number(5, "ortucgen2"), 130000);   // greatest y: 210, not 395.5
}

TEST(Reserve, ExtentsAreZeroOnceTheFirstCommandClearedTheFlag) {
  WorkedExample s;
  ASSERT_FALSE(s.state.flags.ilkmod);  // creating the project cleared it
  s.pickABC();
  StoredTable t = s.table("Kuzey");
  for (const char* field : {"ortucgen1", "ortucgen2", "ortucgen11", "ortucgen21"}) {
    EXPECT_EQ(t.number(5, field), 0) << field;
  }
}

TEST(Reserve, ACornerWithoutOreFailsAfterItsVertexRows) {
  // In small.xls, "101" has no cover: the cover tenor of that corner is 0 / 0.
  DrawingSession s("small.xls", "cover");
  s.click(120, 340);
  s.click(180, 340);
  try {
    s.click(150, 400);
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::DivisionByZero);
  }
  StoredTable t = s.table("Kuzey");
  EXPECT_EQ(t.rows.size(), 4u);  // header and three vertex rows, no summary
  // The next repaint of that drawing reads ucgensay from a vertex row.
  try {
    s.run("ucgenplan");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::InvalidUseOfNull);
    EXPECT_NE(fault.message().find("ucgensay"), std::string::npos);
  }
}

TEST(Reserve, ThreeCollinearHolesFailOnTheirZeroReserve) {
  // cluster.xls: C-01 (550, 800), C-04 (550, 850) and C-08 (550, 900) lie on x = 550.
  DrawingSession s("cluster.xls", "ore");
  s.click(550, 800);
  s.click(550, 850);
  EXPECT_THROW(s.click(550, 900), Fault);
  EXPECT_EQ(s.state.ui.label(13), "Area: 0 m.kare");
  EXPECT_EQ(s.table("Kuzey").rows.size(), 4u);
}

TEST(Reserve, TheRunEndsAtTwoHundredTriangles) {
  WorkedExample s;
  s.state.entry.ucgenbuf = 200;
  s.state.entry.ucgensira = 200;
  try {
    s.pickABC();
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::SubscriptOutOfRange);
  }
}

TEST(Reserve, EachTriangleShowsItsOwnReserve) {
  WorkedExample s;
  s.pickABC();
  s.pickTriangle(100, 140, 150, 100, 100, 100);
  EXPECT_EQ(s.state.ui.label(7), "Triangle:2");
  EXPECT_EQ(s.state.ui.label(12), "Total Reserve (KiloTon): 1.83333");
  EXPECT_EQ(s.table("Kuzey").number(9, "ucgensay"), 2);
  EXPECT_EQ(s.state.reserve.rezervoran[2], 2000);
}

}  // namespace
}  // namespace tri
