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
const Stored T1{1, 2, 5, 1}, T2{4, 5, 8, 2}, T3{5, 9, 8, 3};

// Three triangles, T1 T2 T3, and two limit tables beside the drawing.
struct ThreeTriangles : DrawingSession {
  ThreeTriangles() : DrawingSession("cluster.xls", "ore") {
    clickAll({C01, C02, C05, C04, C05, C08, C05, C09, C08});
    addLimit("1");
    addLimit("2");
  }
  void clickAll(std::initializer_list<Hole> holes) {
    for (const Hole& h : holes) click(h.x, h.y);
  }
  // The network as each of its tables holds it; fails the test where they differ.
  std::vector<Stored> network() const {
    const std::vector<Stored> drawing = triangles(table("Kuzey"));
    EXPECT_EQ(triangles(table("1Kuzey")), drawing);
    EXPECT_EQ(triangles(table("2Kuzey")), drawing);
    return drawing;
  }
};

TEST(DeleteFromEnd, TakesTheLastTriangleOffEveryTableAndFailsPastTheHeader) {
  ThreeTriangles s;
  s.run("Mnsonucsil_Click");
  EXPECT_EQ(s.network(), (std::vector<Stored>{T1, T2}));
  s.run("Mnsonucsil_Click");
  s.run("Mnsonucsil_Click");
  EXPECT_EQ(s.state.ui.label(7), "0");
  EXPECT_THROW(s.run("Mnsonucsil_Click"), Fault) << "the rows are not counted";
  EXPECT_EQ(s.table("Kuzey").rows.size(), 0u) << "the header row went before the failure";
  EXPECT_EQ(s.table("1Kuzey").rows.size(), 1u);
}

TEST(SelectTriangle, CornersInAnyOrderFindTheTriangleAndTheRestIsRenumbered) {
  for (const char* command : {"Mnucsec_Click", "Mnucsil_Click"}) {
    ThreeTriangles s;
    s.run(command);
    s.clickAll({{546, 904}, C04, {604, 854}});  // within 5 m of C-08, C-04, C-05
    EXPECT_EQ(s.network(), (std::vector<Stored>{T1, {5, 9, 8, 2}})) << command;
  }
}

TEST(SelectTriangle, PicksCountAsTheyAreMadeUntilAReplayOrARightClick) {
  ThreeTriangles s;
  s.run("Mnucsec_Click");
  s.clickAll({C01, C02, C04});  // no triangle: the picks start over
  EXPECT_EQ(s.network().size(), 3u);
  s.clickAll({C09, C09, C08});  // C-09 of T3 matches twice
  EXPECT_EQ(s.network(), (std::vector<Stored>{T1, T2}));
  s.clickAll({C04, {10, 10}});  // a miss, and still the count goes on
  s.run("Mnlimit_Click");
  s.clickAll({C04});
  EXPECT_EQ(s.state.ui.label(1), "Select Second Point (Right Click: Cancel)");
  s.click(0, 0, 2);
  EXPECT_EQ(s.state.ui.label(1), "Process canceled");
  s.clickAll({C05, C08});
  EXPECT_EQ(s.network(), (std::vector<Stored>{T1, T2}));
}

TEST(RemovePoint, TheHoleGoesFromKorAndLogAndTrianglesKeepTheirNumbers) {
  DrawingSession s("cluster.xls", "ore");
  s.pickTriangle(C05.x, C05.y, C09.x, C09.y, C08.x, C08.y);
  s.run("Mncikart_Click");
  s.click(10, 10);
  s.click(551, 846);  // C-04
  EXPECT_EQ(s.state.ui.label(1), "Select Point to Delete (Right Click: Cancel)");
  for (const char* table : {"kor", "log"}) {
    const StoredTable t = s.table(table);
    EXPECT_EQ(t.rows.size(), 14u) << table;
    EXPECT_EQ(t.at(4, "isim").asText(), "C-05") << table;
  }
  EXPECT_EQ(triangles(s.table("Kuzey")), (std::vector<Stored>{{5, 9, 8, 1}}))
      << "hole 5 is C-06 now";
  s.click(0, 0, 2);
  s.click(C05.x, C05.y);
  EXPECT_EQ(s.table("log").rows.size(), 14u) << "the mode ended";
}

}  // namespace
}  // namespace tri
