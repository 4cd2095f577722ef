// The 3D reserve view: the walks of the corner logs and the depths they give, the projection
// at the angles where it changes form, the prisms drawn from stored triangles, and what the
// scroll bar's redraw changes besides the angle.
#include "views/view3d.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "platform/fault.h"
#include "store/project_format.h"
#include "triangles/drawing_session.h"
#include "triangles/records.h"

namespace tri {
namespace {

using Kind = CanvasOp::Kind;
using Texts = std::vector<std::string>;

constexpr double kPi = 3.14159265358979;

std::optional<FaultKind> faultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.kind();
  }
  return std::nullopt;
}

TEST(CornerLogs, LengthsAndDepthsOfACornerHole) {
  struct Case {
    const char* what;
    const char* workbook;
    const char* lithology;
    const char* limit;  // nullptr: none chosen
    int hole;
    CornerLengths lengths;
    CornerDepths depths;
  };
  const Case cases[] = {
      // C-01, collar 301: ore 1.2 % 8 m over waste 4 m; C-04, collar 304: waste 3 m over ore
      // 2.6 % 12 m.
      {"ore on top", "cluster.xls", "ore", nullptr, 1, {12, 0, 4, {}}, {301, 293}},
      {"waste on top", "cluster.xls", "ore", nullptr, 4, {15, 3, 0, {}}, {301, 289}},
      // Cut from the bottom, from the top; nothing rich enough, where slot 1 is cut from the
      // top only; a tenor equal to the limit is not above it.
      {"waste cut below", "cluster.xls", "ore", "1", 1, {12, 0, 4, {0, 0, 4}}, {301, 297}},
      {"waste cut above", "cluster.xls", "ore", "1", 4, {15, 3, 0, {0, 3, 0}}, {298, 289}},
      {"all too poor", "cluster.xls", "ore", "5", 1, {12, 0, 4, {0, 12, 4}}, {289, 297}},
      {"equal to the limit", "cluster.xls", "ore", "1.2", 1, {12, 0, 4, {0, 12, 4}}, {289, 297}},
      // S-3, collar 248, cover 2.5 m over ore 10 m, has no waste: top and bottom change places.
      {"no waste", "small.xls", "waste", nullptr, 3, {12.5, 12.5, 12.5, {}}, {235.5, 248}},
      // A-1, collar 200: ore 1.5 % 6 m, ayni 4 m, waste 8 m, ore 2.5 % 6 m. Nothing to cut
      // collapses the corner to the middle of the hole.
      {"rich at both ends", "ayni.xls", "ore", "1", 1, {24, 0, 0, {}}, {188, 188}},
      // S-1, collar 250.5: cover 4 m, ore 1.2345 % 12.5 m, waste 6 m, ore 2.4 % 3.75 m: the
      // layers above the ore count twice.
      {"cover twice", "small.xls", "ore", "2", 1, {26.25, 4, 0, {0, 22.5, 0}}, {224, 224.25}},
      // Z-1, collar 180: a waste layer of tenor 0 between ore layers does not end the log.
      {"a layer of tenor 0", "zero_tenor.xls", "ore", nullptr, 1, {16, 0, 0, {}}, {180, 164}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    Session s;
    Database db = Database::open(s.createProject(fixture(c.workbook)));
    Recordset log = db.openTable(kLogTable);
    CornerLogs logs(log, c.lithology, c.limit ? std::optional<std::string>(c.limit) : std::nullopt);
    const CornerLengths& l = logs.of(c.hole);
    EXPECT_EQ(l.loglen, c.lengths.loglen);
    EXPECT_EQ(l.abovelen, c.lengths.abovelen);
    EXPECT_EQ(l.belowlen, c.lengths.belowlen);
    EXPECT_EQ(l.trimlen[1], c.lengths.trimlen[1]);
    EXPECT_EQ(l.trimlen[2], c.lengths.trimlen[2]);
    const CornerDepths d = cornerDepths(s.state.holes.songir[c.hole], l, c.limit != nullptr);
    EXPECT_EQ(d.top, c.depths.top);
    EXPECT_EQ(d.bottom, c.depths.bottom);
  }
}

TEST(CornerLogs, AHoleBeyondTheLogOrALimitOverAnEmptyLogStopsTheProgram) {
  Session s;
  Database db = Database::open(s.createProject(fixture("seven_rows.xls")));
  Recordset log = db.openTable(kLogTable);
  CornerLogs plain(log, "ore", std::nullopt);
  // Two holes and the end-mark row.
  EXPECT_EQ(faultOf([&] { plain.of(4); }), FaultKind::NoCurrentRecord);
  EXPECT_EQ(faultOf([&] { plain.of(0); }), FaultKind::NoCurrentRecord);
  EXPECT_EQ(faultOf([&] { plain.of(3); }), FaultKind::InvalidUseOfNull);
  // The walk from below starts at slot 0, which the table does not have.
  CornerLogs limited(log, "ore", "1");
  EXPECT_EQ(faultOf([&] { limited.of(2); }), FaultKind::Database);
}

TEST(ViewProjection, PointsAtTheAnglesWhereTheViewChanges) {
  // A corner 100 m east and 50 m north of the stored frame's corner, at an elevation of 300.
  struct Case {
    int angle;
    ViewPoint expected;
  };
  const Case cases[] = {
      {0, {100, 300}},                               // a section along x, the elevation upward
      {90, {5.4 - 300, 50 - 5.4}},                   // 0.06 x 90 = 5.4
      {180, {-100 + 10.8, -10.8 - 300}},             // the last angle of the first form
      {181, {-83.889047584454, -311.686928868782}},  // 100 cos 181 + 10.86 + 300 sin 1, ...
      {360, {100 + 21.6, -21.6 + 300}},              // not the picture of 0: the drift is 21.6
  };
  for (const Case& c : cases) {
    const ViewPoint p = projectPoint(100, 50, 300, c.angle, kPi);
    EXPECT_NEAR(p.x, c.expected.x, 1e-9) << c.angle;
    EXPECT_NEAR(p.y, c.expected.y, 1e-9) << c.angle;
  }
  // The two forms join: 181 lies where the curve through 178, 179 and 180 leads.
  auto at = [](int a) { return projectPoint(100, 50, 300, a, kPi); };
  EXPECT_NEAR(at(181).x, 3 * at(180).x - 3 * at(179).x + at(178).x, 0.01);
  EXPECT_NEAR(at(181).y, 3 * at(180).y - 3 * at(179).y + at(178).y, 0.01);
}

TEST(ViewProjection, PixelsAreFiveMetresWholeByHalfToEven) {
  // 150 m of frame put 37.5 pixels in: a multiple of 5 m lands on a half.
  EXPECT_EQ(viewPixel(-155, 150, 0), 6);
  EXPECT_EQ(viewPixel(-150, 150, 0), 8);
  EXPECT_EQ(viewPixel(-152, 150, 0), 7);
  // The zoom step adds half a pixel once a zoom command has set it.
  EXPECT_EQ(viewPixel(-155, 150, 0.05), 7);
  EXPECT_EQ(viewPixel(100, 200, 0.05), 70);
}

// The cluster project with a drawing of lithology ore whose triangles are stored with the
// frame x 500 .. 700, y 800 .. 950: 200 by 150 m, so that the view adds 50 and 37.5 pixels.
struct PrismSession : DrawingSession {
  explicit PrismSession(const char* workbook = "cluster.xls", const char* lithology = "ore")
      : DrawingSession(workbook, lithology, "plan1") {}

  // Appends triangles (holes by number, reserve in kilotons) with the stored frame.
  void store(const std::vector<std::pair<std::array<int, 3>, double>>& triangles) {
    store(triangles, storedFrame());
  }
  void store(const std::vector<std::pair<std::array<int, 3>, double>>& triangles,
             const Frame& frame) {
    Database db = Database::open(path);
    Recordset t = db.openTable("plan1");
    for (const auto& [holes, reserve] : triangles) {
      for (int hole : holes) appendVertexRow(t, vertexOfHole(state.holes, hole));
      SummaryRow summary;
      summary.reserveKt = reserve;
      summary.number = ++count;
      appendSummaryRow(t, frame, summary);
    }
  }

  static Frame storedFrame(double ekxk = 500, double ekyk = 800, double width = 200,
                           double height = 150) {
    Frame f;
    f.ekxk = ekxk;
    f.ebxk = ekxk + width;
    f.ekyk = ekyk;
    f.ebyk = ekyk + height;
    return f;
  }

  // What the last pass drew.
  Texts prisms() const { return canvas.describeSinceClear(); }
  std::vector<CanvasOp> faces() const {
    std::vector<CanvasOp> ops;
    for (const CanvasOp& op : canvas.log()) {
      if (op.kind == Kind::Clear) ops.clear();
      if (op.kind == Kind::FillTriangle) ops.push_back(op);
    }
    return ops;
  }

  int count = 0;
};

// C-02 (600, 800), C-05 (600, 850), C-04 (550, 850): 100, 100 and 50 m east of the frame's
// corner. Without a limit the ore stands at 302 .. 292, 305 .. 291 and 301 .. 289: at angle 0
// x is 20 + 50 pixels, y (150 - D) / 5 + 37.5, so 305 lands on 6.5 and goes to 6.
const Texts kPrismAtZero = {
    "filltriangle 70 7 70 6 60 7 color=0", "filltriangle 70 9 70 9 60 10 color=0",
    "filltriangle 70 7 70 9 70 6 color=0", "filltriangle 70 6 70 9 70 9 color=0",
    "filltriangle 70 6 70 9 60 7 color=0", "filltriangle 60 7 60 10 70 9 color=0",
    "filltriangle 70 7 70 9 60 7 color=0", "filltriangle 60 7 60 10 70 9 color=0",
};

TEST(ReserveView, APrismIsItsTopItsBottomAndItsSidesInHalves) {
  PrismSession s;
  s.store({{{2, 5, 4}, 1.005}});
  s.run("Mnrecboy_Click");
  EXPECT_EQ(s.prisms(), kPrismAtZero);
  // At 90 degrees x is 5.4 - D and y the northing less 5.4: the tops at 302, 305 and 301
  // fall at x -9.32, -9.92 and -9.12 pixels, y 68.58, 58.58 and 58.58.
  s.state.ui.hscroll1Value = 90;
  s.run("HScroll1_Change");
  EXPECT_EQ(s.prisms().front(), "filltriangle -9 69 -10 59 -9 59 color=0");
  // The view is a step of the replay: choosing the drawing again draws it anew.
  s.state.ui.hscroll1Value = 0;
  s.state.ui.combo2.setListIndex(1);
  EXPECT_EQ(s.prisms(), kPrismAtZero);
}

TEST(ReserveView, ALimitTakesTheDepthsFromTheCutsAndHolesWithoutTheLithologyCross) {
  {
    // The limit 1: C-02 and C-05 lose their 4 m of waste once more at the bottom (296, 295),
    // C-04 its 3 m above the ore once more at the top (298). The limit table is the study's,
    // with the frame and the reserve of the drawing's triangle.
    PrismSession s;
    s.store({{{2, 5, 4}, 1.005}});
    s.addLimit("1");
    Database db = Database::open(s.path);
    Recordset limit = db.openTable("1plan1");
    moveToSummary(limit, 1);
    limit.edit();
    // The study takes the area from the drawing's row, which these triangles leave at 0.
    for (auto [name, value] : {std::pair{field::ekxk, 500000},
                               {field::ebxk, 700000},
                               {field::ekyk, 800000},
                               {field::ebyk, 950000},
                               {field::genelrezerv, 1005}}) {
      limit.set(name, value);
    }
    limit.update();
    ASSERT_EQ(s.state.ui.combo1.text(), "1");
    s.run("Mnrecboy_Click");
    const Texts drawn = s.prisms();
    ASSERT_EQ(drawn.size(), 8u);
    EXPECT_EQ(drawn[0], "filltriangle 70 7 70 6 60 8 color=0");
    EXPECT_EQ(drawn[1], "filltriangle 70 8 70 8 60 10 color=0");
  }
  {
    // S-1, S-3, S-4 with waste, which S-3 (collar 248, 12.5 m of cover and ore) lacks: its
    // top at 235.5 stands below its bottom at 248. S-1 has waste from 234 to 228, S-4 from
    // 252 to 235.5.
    PrismSession s("small.xls", "waste");
    s.store({{{1, 3, 4}, 0.5}}, PrismSession::storedFrame(100, 300));
    s.run("Mnrecboy_Click");
    const Texts drawn = s.prisms();
    ASSERT_EQ(drawn.size(), 8u);
    EXPECT_EQ(drawn[0], "filltriangle 54 21 60 20 72 17 color=0");
    EXPECT_EQ(drawn[1], "filltriangle 54 22 60 18 72 20 color=0");
  }
}

TEST(ReserveView, OnlyTrianglesWithAReserveAndAClassStand) {
  struct Case {
    const char* what;
    const char* classes;
    std::vector<double> reserves;
    std::vector<Color> colors;  // of the prisms drawn, in table order
  };
  const Case cases[] = {
      {"nothing for 0 or less", "1", {0, 1.005, -0.5}, {100}},
      {"a fractional count leaves the top without a class", "2.5", {1, 2, 3}, {100, 200}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    PrismSession s;
    std::vector<std::pair<std::array<int, 3>, double>> triangles;
    for (double reserve : c.reserves) triangles.push_back({{2, 5, 4}, reserve});
    s.store(triangles);
    s.dialogs.answerInput(c.classes);
    for (int j = 1; j <= std::stod(c.classes); ++j) s.dialogs.answerColor(100 * j);
    s.run("MNrrezerv_Click");
    s.run("Mnrecboy_Click");
    const std::vector<CanvasOp> faces = s.faces();
    ASSERT_EQ(s.prisms().size(), faces.size());
    ASSERT_EQ(faces.size(), 8 * c.colors.size());
    std::vector<Color> colors;
    for (size_t n = 0; n < faces.size(); n += 8) colors.push_back(faces[n].color);
    EXPECT_EQ(colors, c.colors);
    for (size_t i = 0; i < c.reserves.size(); ++i) {
      EXPECT_DOUBLE_EQ(s.state.views.trireserve[static_cast<int>(i + 1)], c.reserves[i]);
    }
  }
}

TEST(ReserveView, TheScaleFactorsFollowTheLastStoredFrameAndTheCanvasGetsTheStateFrameBack) {
  PrismSession s;
  s.store({{{2, 5, 4}, 1}});
  s.store({{{2, 5, 4}, 2}}, PrismSession::storedFrame(400, 700, 300, 100));
  s.run("Mnrecboy_Click");
  const Frame& f = s.state.frame;
  EXPECT_EQ(f.haritagen, 300);
  EXPECT_EQ(f.haritayuk, 100);
  // 2.31 + 2.339622642 x 300 / 26.4583 cm, and x 100 / 18.5208 cm (1000 by 700 pixels).
  EXPECT_NEAR(f.olcekx, 28.8380047596850, 1e-12);
  EXPECT_NEAR(f.olceky, 14.9423832188976, 1e-12);
  EXPECT_EQ(s.canvas.scaleLeft(), f.ekxk);
  EXPECT_EQ(s.canvas.scaleTop(), f.ebyk);
  EXPECT_EQ(s.canvas.scaleWidth(), f.ebxk - f.ekxk);
  // No holes or labels: only the faces of the two prisms.
  EXPECT_EQ(s.prisms().size(), 16u);
}

TEST(ReserveView, TheBarRedrawsWithItsOwnWordingAndTheNextViewGivesTheMenuBack) {
  struct Case {
    const char* procedure;
    const char* title;
    const char* label1;
    int shapesLeft;
    bool moveItemsEnabled;
  };
  const Case cases[] = {
      {"Mnrecboy_Click", "Attention !", "The corresponding fix has been made!", 0, true},
      {"HScroll1_Change", " Attention !", " The corresponding fix has been made!", 2, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.procedure);
    PrismSession s;
    s.store({{{2, 5, 4}, 1}});
    Flags& flags = s.state.flags;
    flags.modyuzdeten = flags.modcizim = true;
    s.state.frame.kaydirmod = true;
    s.state.markers.shapesay = 2;
    // 10 by 7 km, the canvas's own shape: 70 square kilometres.
    s.state.frame.ebxk = 10000;
    s.state.frame.ebyk = 7000;
    s.state.frame.ekxk = s.state.frame.ekyk = 0;
    s.dialogs.answerButton(Answer::OK).answerButton(Answer::OK);
    s.run(c.procedure);
    EXPECT_EQ(s.dialogs.shown().back().title, c.title);
    EXPECT_EQ(s.state.ui.label(1), c.label1);
    EXPECT_EQ(s.state.markers.shapesay, c.shapesLeft);
    EXPECT_TRUE(flags.modrecboy && s.state.views.recboyizi);
    EXPECT_FALSE(flags.modyuzdeten || flags.modcizim);
    EXPECT_EQ(s.state.frame.kaydirmod, c.moveItemsEnabled);
    EXPECT_EQ(s.state.ui.enabled("Mnkaydir"), c.moveItemsEnabled);
    EXPECT_EQ(s.state.ui.enabled("Mnolcekg"), c.moveItemsEnabled);
    EXPECT_TRUE(s.state.ui.visible("HScroll1"));
    EXPECT_EQ(s.prisms().size(), 8u);

    s.run("Mnyuzdeten_Click");
    EXPECT_TRUE(s.state.ui.enabled("Mnkaydir") && s.state.ui.enabled("Mnolcekg"));
    EXPECT_FALSE(s.state.ui.visible("HScroll1"));
    EXPECT_FALSE(flags.modrecboy);
  }
}

}  // namespace
}  // namespace tri
