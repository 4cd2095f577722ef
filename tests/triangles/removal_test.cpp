// Removal from the network: the last triangle, a triangle picked by its corners, a hole.
#include <gtest/gtest.h>

#include <array>

#include "platform/fault.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

// A triangle of a table: the hole numbers of its corners and its number.
using Stored = std::array<long, 4>;

std::vector<Stored> triangles(const StoredTable& t) {
  std::vector<Stored> found;
  for (int row = 2; row + 3 <= static_cast<int>(t.rows.size()); row += 4) {
    found.push_back({t.number(row, "say"), t.number(row + 1, "say"), t.number(row + 2, "say"),
                     t.number(row + 3, "ucgensay")});
  }
  return found;
}

// cluster.xls holes C-01 .. C-12 on a 50 m grid, numbered as named.
struct Hole {
  double x, y;
};
constexpr Hole C01{550, 800}, C02{600, 800}, C04{550, 850}, C05{600, 850}, C08{550, 900},
    C09{600, 900};

// Three triangles, entered in this order, and two limit tables beside the drawing.
struct ThreeTriangles : DrawingSession {
  ThreeTriangles() : DrawingSession("cluster.xls", "ore") {
    pick(C01, C02, C05);
    pick(C04, C05, C08);
    pick(C05, C09, C08);
    addLimit("1");
    addLimit("2");
  }
  void pick(Hole a, Hole b, Hole c) { pickTriangle(a.x, a.y, b.x, b.y, c.x, c.y); }
  // The network as every one of its tables holds it; fails the test where they differ.
  std::vector<Stored> network() const {
    const std::vector<Stored> drawing = triangles(table("Kuzey"));
    EXPECT_EQ(triangles(table("1Kuzey")), drawing);
    EXPECT_EQ(triangles(table("2Kuzey")), drawing);
    return drawing;
  }
};

const Stored T1{1, 2, 5, 1}, T2{4, 5, 8, 2}, T3{5, 9, 8, 3};

size_t linesSinceClear(const Canvas& c) {
  size_t lines = 0;
  for (const std::string& op : c.describeSinceClear()) lines += op.starts_with("line ");
  return lines;
}

TEST(DeleteFromEnd, TakesTheLastTriangleOffTheDrawingAndEveryLimitTable) {
  ThreeTriangles s;
  s.run("Mnsonucsil_Click");
  EXPECT_EQ(s.network(), (std::vector<Stored>{T1, T2}));
  EXPECT_EQ(s.state.ui.label(7), "2");
  EXPECT_FALSE(s.state.ui.enabled("Mnolcekg"));
  EXPECT_EQ(linesSinceClear(s.canvas), 6u) << "the repaint shows what is left";
  s.run("Mnsonucsil_Click");
  s.run("Mnsonucsil_Click");
  EXPECT_EQ(s.state.ui.label(7), "0");
  for (const char* name : {"Kuzey", "1Kuzey", "2Kuzey"}) {
    EXPECT_EQ(s.table(name).rows.size(), 1u) << name << " keeps its header row";
  }
}

TEST(DeleteFromEnd, PastTheHeaderRowTheDeletesFail) {
  DrawingSession s("cluster.xls", "ore");
  s.pickTriangle(C01.x, C01.y, C02.x, C02.y, C05.x, C05.y);
  s.addLimit("1");
  s.run("Mnsonucsil_Click");
  try {
    s.run("Mnsonucsil_Click");
    FAIL() << "the rows are not counted";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::NoCurrentRecord) << fault.message();
  }
  EXPECT_EQ(s.table("Kuzey").rows.size(), 0u) << "the header row went before the failure";
  EXPECT_EQ(s.table("1Kuzey").rows.size(), 1u) << "the drawing's table comes first";
}

TEST(DeleteFromEnd, AFreedLimitSlotStillNamesItsDroppedTable) {
  ThreeTriangles s;
  s.state.ui.combo1.setListIndex(1);
  s.run("Mnlimsil_Click");
  try {
    s.run("Mnsonucsil_Click");
    FAIL() << "the slot is not skipped";
  } catch (const Fault& fault) {
    EXPECT_NE(fault.message().find("1Kuzey"), std::string::npos) << fault.message();
  }
  EXPECT_EQ(triangles(s.table("Kuzey")).size(), 2u);
  EXPECT_EQ(triangles(s.table("2Kuzey")).size(), 3u);
}

struct Selecting : ThreeTriangles {
  Selecting() { run("Mnucsec_Click"); }
  void clickAt(Hole h) { click(h.x, h.y); }
};

TEST(SelectTriangle, CornersInAnyOrderFindTheTriangle) {
  // Clicks anywhere within 5 m of a hole on each axis.
  const std::array<Hole, 3> orders[] = {
      {C04, C05, C08},
      {Hole{546, 904}, C04, Hole{604, 854}},  // C-08, C-04, C-05
      {C05, C08, C04},
  };
  for (const auto& order : orders) {
    Selecting s;
    EXPECT_EQ(s.state.ui.label(1), "Select points of triangle (Right Click: Cancel)");
    for (const Hole& h : order) s.clickAt(h);
    EXPECT_EQ(s.network(), (std::vector<Stored>{T1, {5, 9, 8, 2}}))
        << "the third triangle is now the second";
    EXPECT_EQ(s.state.ui.label(7), "2");
    EXPECT_EQ(s.state.ui.label(1), "Select Point One (Right Click: Cancel)");
  }
}

TEST(SelectTriangle, CornersOfNoTriangleDeleteNothingAndThePicksStartOver) {
  Selecting s;
  s.clickAt(C01);
  EXPECT_EQ(s.state.ui.label(1), "Select Second Point (Right Click: Cancel)");
  s.clickAt(C02);
  EXPECT_EQ(s.state.ui.label(1), "Select Third Point (Right Click: Cancel)");
  s.clickAt(C04);
  EXPECT_EQ(s.network(), (std::vector<Stored>{T1, T2, T3}));
  EXPECT_EQ(s.state.ui.label(7), "3");
  s.clickAt(C05);
  EXPECT_EQ(s.state.ui.label(1), "Select Second Point (Right Click: Cancel)");
  s.clickAt(C02);
  s.clickAt(C01);
  EXPECT_EQ(s.network(), (std::vector<Stored>{{4, 5, 8, 1}, {5, 9, 8, 2}}));
}

TEST(SelectTriangle, AMissCountsAsAPickAndACornerLeftOverStillCounts) {
  Selecting s;
  s.clickAt(C04);
  s.clickAt(C05);
  s.clickAt(C01);  // no triangle; C-05 stays the second corner
  s.clickAt(C08);
  s.click(10, 10);  // nothing here, yet the count goes on to the third corner
  EXPECT_EQ(s.state.ui.label(1), "Select Second Point (Right Click: Cancel)");
  s.clickAt(C04);
  EXPECT_EQ(s.network(), (std::vector<Stored>{T1, {5, 9, 8, 2}}));
}

TEST(SelectTriangle, ACornerPickedTwiceMatchesTwice) {
  Selecting s;
  s.clickAt(C09);
  s.clickAt(C09);
  s.clickAt(C08);
  EXPECT_EQ(s.network(), (std::vector<Stored>{T1, T2}));
}

TEST(SelectTriangle, EveryTriangleButTheOldLastIsNumberedByItsPosition) {
  Selecting s;
  const auto misnumber = [&s](int row, int number) {
    Database db = Database::open(s.path);
    Recordset drawing = db.openTable("Kuzey");
    drawing.moveFirst();
    drawing.move(row - 1);
    drawing.edit();
    drawing.set("ucgensay", number);
    drawing.update();
  };
  misnumber(5, 7);
  misnumber(9, 9);
  s.clickAt(C01);
  s.clickAt(C02);
  s.clickAt(C04);  // no triangle, and still the numbers are written
  EXPECT_EQ(triangles(s.table("Kuzey")), (std::vector<Stored>{T1, T2, T3}));
  misnumber(5, 7);
  s.clickAt(C05);
  s.clickAt(C09);
  s.clickAt(C08);
  EXPECT_EQ(triangles(s.table("Kuzey")), (std::vector<Stored>{T1, T2}));
}

TEST(SelectTriangle, AYThatASingleCannotHoldMatchesNothing) {
  DrawingSession s("cluster.xls", "ore");
  {
    Database db = Database::open(s.path);
    Recordset kor = db.openTable("kor");
    for (const auto& [row, y] : {std::pair{4, 850500}, std::pair{8, 900100}}) {
      kor.moveFirst();
      kor.move(row - 1);
      kor.edit();
      kor.set("eye", y);
      kor.update();
    }
  }
  s.pickTriangle(550, 850.5, 600, 850, 550, 900.1);  // C-04, C-05, C-08
  s.pickTriangle(550, 850.5, 600, 850, 600, 900);    // C-04, C-05, C-09
  s.run("Mnucsec_Click");
  s.pickTriangle(550, 850.5, 600, 850, 550, 900.1);
  EXPECT_EQ(triangles(s.table("Kuzey")).size(), 2u) << "900.1 is no single";
  s.pickTriangle(550, 850.5, 600, 850, 600, 900);
  EXPECT_EQ(triangles(s.table("Kuzey")), (std::vector<Stored>{{4, 5, 8, 1}}));
}

TEST(SelectTriangle, RightClickEndsTheSelection) {
  Selecting s;
  s.clickAt(C04);
  s.clickAt(C05);
  s.click(0, 0, 2);
  EXPECT_EQ(s.state.ui.label(1), "Process canceled");
  EXPECT_FALSE(s.state.flags.moducsec);
  EXPECT_EQ(s.state.network.secsay, 0);
  EXPECT_EQ(s.state.network.pickedX[1], 0);
  for (const char* item : {"Mnkaydir", "MNolcek", "Mntoprez"})
    EXPECT_TRUE(s.state.ui.enabled(item));
  s.clickAt(C08);
  EXPECT_EQ(s.network().size(), 3u);
  EXPECT_EQ(s.state.ui.label(1), "Process canceled");
}

TEST(SelectTriangle, OpeningTheDeleteMenuEndsEntryAndSelects) {
  ThreeTriangles s;
  s.state.flags.modcizim = true;
  s.run("Mnucsil_Click");
  EXPECT_FALSE(s.state.flags.modcizim);
  EXPECT_TRUE(s.state.flags.moducsec);
  s.pick(C01, C02, C05);
  EXPECT_EQ(s.network(), (std::vector<Stored>{{4, 5, 8, 1}, {5, 9, 8, 2}}))
      << "the clicks select; they enter nothing";
}

TEST(SelectTriangle, AReplayStartsThePicksAgain) {
  Selecting s;
  s.clickAt(C04);
  s.clickAt(C05);
  s.run("Mnlimit_Click");
  EXPECT_EQ(s.state.ui.label(1), "Select points of triangle (Right Click: Cancel)");
  s.clickAt(C08);
  EXPECT_EQ(s.state.ui.label(1), "Select Second Point (Right Click: Cancel)");
}

struct RemovingPoints : DrawingSession {
  RemovingPoints() : DrawingSession("cluster.xls", "ore") {
    pickTriangle(C05.x, C05.y, C09.x, C09.y, C08.x, C08.y);
    run("Mncikart_Click");
  }
  std::vector<std::string> names(const char* tableName) const {
    const StoredTable t = table(tableName);
    std::vector<std::string> found;
    for (int row = 1; row <= static_cast<int>(t.rows.size()); ++row) {
      const Value& isim = t.at(row, "isim");
      found.push_back(isim.isText() ? isim.asText() : "");  // the end mark has none
    }
    return found;
  }
};

TEST(RemovePoint, TheHoleGoesFromKorAndLogAndLaterHolesMoveUp) {
  RemovingPoints s;
  EXPECT_EQ(s.state.ui.label(1), "Choose Point (Right Click: Cancel)");
  EXPECT_TRUE(s.state.flags.modcikart);
  EXPECT_FALSE(s.state.flags.modcizim);
  for (const char* item : {"Mnolcekg", "Mnkaydir", "Mnorten"}) {
    EXPECT_FALSE(s.state.ui.enabled(item)) << item;
  }
  s.click(551, 846);  // C-04
  EXPECT_EQ(s.state.ui.label(1), "Select Point to Delete (Right Click: Cancel)");
  for (const char* name : {"kor", "log"}) {
    const std::vector<std::string> holes = s.names(name);
    ASSERT_EQ(holes.size(), 14u) << name;
    EXPECT_EQ(holes[2], "C-03");
    EXPECT_EQ(holes[3], "C-05") << name;
  }
  EXPECT_EQ(s.state.holes.sondsay, 13);
  // The triangle keeps its hole numbers, which now name the holes after them.
  EXPECT_EQ(triangles(s.table("Kuzey")), (std::vector<Stored>{{5, 9, 8, 1}}));
  EXPECT_EQ(s.names("kor")[5 - 1], "C-06");
  // The replay runs the command again.
  s.run("Mnlimit_Click");
  EXPECT_EQ(s.state.ui.label(1), "Choose Point (Right Click: Cancel)");
}

TEST(RemovePoint, EachTableCountsItsOwnHoles) {
  RemovingPoints s;
  {
    Database db = Database::open(s.path);
    Recordset kor = db.openTable("kor");
    kor.moveFirst();
    kor.move(2);
    kor.edit();
    kor.set("isim", "po-3");  // no drill hole: kor's list ends here
    kor.update();
  }
  s.click(C05.x, C05.y);
  EXPECT_EQ(s.names("kor").size(), 15u);
  EXPECT_EQ(s.names("log").size(), 14u);
  EXPECT_EQ(s.names("log")[4], "C-06");
}

TEST(RemovePoint, AMissRemovesNothingAndRightClickEndsTheMode) {
  RemovingPoints s;
  s.click(10, 10);
  EXPECT_EQ(s.state.ui.label(1), "Choose Point (Right Click: Cancel)");
  EXPECT_EQ(s.names("kor").size(), 15u);
  s.click(0, 0, 2);
  EXPECT_FALSE(s.state.flags.modcikart);
  EXPECT_EQ(s.state.ui.label(1), "Process canceled");
  EXPECT_TRUE(s.state.ui.enabled("Mnkaydir"));
  s.click(C05.x, C05.y);
  EXPECT_EQ(s.names("log").size(), 15u);
}

}  // namespace
}  // namespace tri
