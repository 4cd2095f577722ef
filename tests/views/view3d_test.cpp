// The 3D reserve view's arithmetic: the walks of the corner logs and the depths they give,
// the projection at the angles where it changes form, and what the bar's redraw does
// differently. The prisms themselves are checked through the reserve_view scenario and the
// window's pictures.
#include "views/view3d.h"

#include <gtest/gtest.h>

#include "store/project_format.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

TEST(CornerLogs, DepthsOfACornerHole) {
  struct Case {
    const char *what, *workbook, *lithology, *limit;  // limit nullptr: none chosen
    int hole;
    CornerDepths depths;
  };
  const Case cases[] = {
      // C-01, collar 301: ore 1.2 % 8 m over waste 4 m. A tenor equal to the limit is not
      // above it: the whole log is cut from the top, all but slot 1 from the bottom.
      {"equal to the limit", "cluster.xls", "ore", "1.2", 1, {289, 297}},
      // S-3, collar 248, cover 2.5 m over ore 10 m, has no waste: top and bottom change places.
      {"no waste", "small.xls", "waste", nullptr, 3, {235.5, 248}},
      // A-1, collar 200: ore 1.5 % 6 m, ayni 4 m, waste 8 m, ore 2.5 % 6 m. Nothing to cut
      // collapses the corner to the middle of the hole.
      {"rich at both ends", "ayni.xls", "ore", "1", 1, {188, 188}},
      // S-1, collar 250.5: cover 4 m, ore 1.2345 % 12.5 m, waste 6 m, ore 2.4 % 3.75 m: the
      // cut of 22.5 m from the top counts the cover above the ore twice.
      {"cover twice", "small.xls", "ore", "2", 1, {224, 224.25}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Session s;
    Database db = Database::open(s.createProject(fixture(c.workbook)));
    Recordset log = db.openTable(kLogTable);
    CornerLogs logs(log, c.lithology, c.limit ? std::optional<std::string>(c.limit) : std::nullopt);
    const CornerDepths d =
        cornerDepths(s.state.holes.songir[c.hole], logs.of(c.hole), c.limit != nullptr);
    EXPECT_EQ(std::pair(d.top, d.bottom), std::pair(c.depths.top, c.depths.bottom));
  }
}

TEST(ViewProjection, PointsAtTheAnglesWhereTheViewChanges) {
  // A corner 100 m east and 50 m north of the stored frame's corner, at an elevation of 300.
  const std::pair<int, ViewPoint> cases[] = {
      {0, {100, 300}},                               // a section along x, the elevation upward
      {90, {5.4 - 300, 50 - 5.4}},                   // 0.06 x 90 = 5.4
      {180, {-100 + 10.8, -10.8 - 300}},             // the last angle of the first form
      {181, {-83.889047584454, -311.686928868782}},  // 100 cos 181 + 10.86 + 300 sin 1, ...
      {360, {100 + 21.6, -21.6 + 300}},              // not the picture of 0: the drift is 21.6
  };
  auto at = [](int a) { return projectPoint(100, 50, 300, a, 3.14159265358979); };
  for (const auto& [angle, expected] : cases) {
    EXPECT_NEAR(at(angle).x, expected.x, 1e-9) << angle;
    EXPECT_NEAR(at(angle).y, expected.y, 1e-9) << angle;
  }
  // The two forms join: 181 lies where the curve through 178, 179 and 180 leads.
  EXPECT_NEAR(at(181).x, 3 * at(180).x - 3 * at(179).x + at(178).x, 0.01);
  EXPECT_NEAR(at(181).y, 3 * at(180).y - 3 * at(179).y + at(178).y, 0.01);
}

// The bar's redraw is the view's pass but for two things: the marker shapes stay, and the
// area limit's words start with a blank. A frame of 10 by 7 km is over the limit.
TEST(ReserveView, TheBarsRedrawKeepsTheMarkersAndWordsTheAreaLimitWithABlank) {
  DrawingSession s("cluster.xls", "ore", "plan1");
  s.pickTriangle(600, 800, 600, 850, 550, 850);
  s.state.markers.shapesay = 2;
  s.state.frame.ebxk = 10000, s.state.frame.ebyk = 7000, s.state.frame.ekxk = 0;
  s.state.frame.ekyk = 0;
  s.dialogs.answerButton(Answer::OK).answerButton(Answer::OK);
  s.run("HScroll1_Change");
  EXPECT_EQ(s.dialogs.shown().back().title, " Attention !");
  EXPECT_EQ(s.state.ui.label(1), " The corresponding fix has been made!");
  EXPECT_EQ(s.state.markers.shapesay, 2);
  EXPECT_EQ(s.canvas.describeSinceClear().size(), 8u);
}

}  // namespace
}  // namespace tri
