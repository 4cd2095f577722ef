// The value maps: what each prints and where, the total, the colour classes and their discs,
// the flags and panels of the pass, and the failures that a class count leads to.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <optional>

#include "platform/fault.h"
#include "views/map_session.h"

namespace tri {
namespace {

using Kind = CanvasOp::Kind;
using Texts = std::vector<std::string>;

// C-01 (550, 800), C-02 (600, 800), C-04 (550, 850) and C-05 (600, 850): two right
// triangles with legs of 50 m. Tenor and reserve in thousandths.
const StoredTriangle kLowerLeft{{1, 2, 4}, 1125, 1005};
const StoredTriangle kUpperRight{{2, 5, 4}, 2375, 2006};
const char* const kClassPrompt = "In how many colors would you like to show the reserve amounts? ";

std::optional<FaultKind> faultOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.kind();
  }
  return std::nullopt;
}

// The order of the sides and the holes is the scenario tenor_map's; here the labels.
TEST(TenorMap, WritesEachTenorAtTheCentroidInTheQuantityColour) {
  MapSession s;
  s.showDrawing({kLowerLeft, kUpperRight, {{4, 5, 8}, 0, 0}});
  s.dialogs.answerColor(32768);
  s.run("Mnrmiktr_Click");
  s.run("Mnmiktrgoster_Click");
  s.run("Mnyuzdeten_Click");
  // 2 decimals, ties to the even digit; a tenor of 0 is written too.
  EXPECT_EQ(s.drawn(Kind::Text),
            (Texts{"text 566.666666666667 816.666666666667 \"1.12\" color=32768",
                   "text 583.333333333333 833.333333333333 \"2.38\" color=32768",
                   "text 566.666666666667 866.666666666667 \"0\" color=32768"}));
  EXPECT_EQ(s.canvas.describeSinceClear().back(), "point 576 876 color=0 width=5");
}

TEST(ReserveMap, TotalsTheStoredReservesOfTheDrawingOrOfTheChosenLimit) {
  MapSession s;
  s.showDrawing({kLowerLeft, kUpperRight}, {{"2", {{{1, 2, 4}, 3000, 500}}}});
  s.run("Mnmiktrgoster_Click");
  s.run("Mnrezton_Click");
  EXPECT_EQ(s.drawn(Kind::Text),
            (Texts{"text 566.666666666667 816.666666666667 \"1\" color=0",
                   "text 583.333333333333 833.333333333333 \"2.01\" color=0"}));
  // The sum of the values as stored, not of the labels.
  EXPECT_EQ(s.state.ui.label(12), "Total Reserve (KiloTon): 3.011");
  s.state.ui.combo1.setListIndex(1);  // the limit 2, which redraws the map
  EXPECT_EQ(s.drawn(Kind::Text), Texts{"text 566.666666666667 816.666666666667 \"0.5\" color=0"});
  EXPECT_EQ(s.state.ui.label(12), "Total Reserve (KiloTon): 0.5");
  EXPECT_EQ(s.state.views.rezervcizimsay, 2);
}

TEST(ReserveMap, WithoutTrianglesTotalsZeroAndWithoutATableDrawsNoHoles) {
  MapSession s;
  s.showDrawing({});
  s.run("Mnrezton_Click");
  EXPECT_EQ(s.state.ui.label(12), "Total Reserve (KiloTon): 0");
  EXPECT_EQ(s.drawn(Kind::Point).size(), 14u);
  s.state.ui.combo2.setListIndex(0);
  s.run("Mnrezton_Click");
  EXPECT_TRUE(s.drawn(Kind::Point).empty());
  EXPECT_EQ(s.state.views.rezervcizimsay, 1);
}

TEST(MapPass, EachMapReplacesTheOtherViewsEnablesTheOverlaysAndShowsTheCanvasAlone) {
  struct Case {
    const char* procedure;
    bool Flags::*own;
    bool keepsTools;  // the reserve map turns off the other three views only
  };
  for (const Case& c : {Case{"Mnyuzdeten_Click", &Flags::modyuzdeten, false},
                        Case{"Mnrezton_Click", &Flags::modrezton, true},
                        Case{"Mngenelrezervler_Click", &Flags::modgenelrezerv, false}}) {
    SCOPED_TRACE(c.procedure);
    MapSession s;
    s.showDrawing({kLowerLeft});
    Flags& f = s.state.flags;
    f.modyuzdeten = f.modrezton = f.modgenelrezerv = f.modrecboy = f.modcizim = true;
    s.state.ui.enable("Mnaortyog", false);
    s.state.ui.show("HScroll1");
    s.run(c.procedure);
    EXPECT_TRUE(f.*c.own);
    EXPECT_EQ(f.modyuzdeten + f.modrezton + f.modgenelrezerv + f.modrecboy, 1);
    EXPECT_EQ(f.modcizim, c.keepsTools);
    EXPECT_TRUE(s.state.ui.enabled("Mnaortyog"));
    EXPECT_FALSE(s.state.ui.visible("HScroll1"));
  }
}

TEST(MapPass, AFrameOfFiftySquareKilometresIsShrunkAndSaidSo) {
  MapSession s;
  s.showDrawing({kLowerLeft});
  // 10 by 7 km, the canvas's own shape, so that the fit does not crop it first.
  s.state.frame.ebxk = 10000;
  s.state.frame.ebyk = 7000;
  s.state.frame.ekxk = s.state.frame.ekyk = 0;
  s.dialogs.answerButton(Answer::OK).answerButton(Answer::OK);
  s.run("Mnyuzdeten_Click");
  EXPECT_EQ(s.dialogs.shown().back().title, "Attention !");
  EXPECT_EQ(s.state.ui.label(1), "The corresponding fix has been made!");
  EXPECT_EQ(s.drawn(Kind::Line).size(), 3u);
}

TEST(GeneralMap, ClassesAreEqualWidthsBetweenTheSmallestAndTheGreatestReserve) {
  struct Case {
    const char* what;
    const char* count;
    std::vector<int> reserves;
    std::vector<int> classes;  // 0: no disc
  };
  const Case cases[] = {
      {"a value on a limit goes to the lower class", "2", {1000, 2000, 3000}, {1, 1, 2}},
      {"equal reserves are all in class 1", "3", {1500, 1500, 1500}, {1, 1, 1}},
      {"a fractional count leaves the top without a disc", "2.5", {1000, 2000, 3000}, {1, 2, 0}},
      {"the limits come from the sorted reserves", "4", {4000, 0, 2500, 1000}, {4, 1, 3, 1}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    MapSession s;
    std::vector<StoredTriangle> triangles;
    for (int reserve : c.reserves) triangles.push_back({{1, 2, 4}, 0, reserve});
    s.showDrawing(triangles);
    s.dialogs.answerInput(c.count, kClassPrompt);
    for (int j = 1; j <= std::stod(c.count); ++j) s.dialogs.answerColor(100 * j);
    s.run("MNrrezerv_Click");
    s.run("Mnmiktrgoster_Click");
    s.run("Mngenelrezervler_Click");
    std::vector<Color> expected, colors;
    for (int j : c.classes) {
      if (j > 0) expected.push_back(100 * j);
    }
    for (const CanvasOp& disc : s.drawnOps(Kind::Circle)) {
      EXPECT_TRUE(disc.filled && disc.fillColor == disc.color);
      colors.push_back(disc.color);
    }
    EXPECT_EQ(colors, expected);
    // Every triangle keeps its sides and its label; a disc comes first, at the centroid.
    EXPECT_EQ(s.drawn(Kind::Line).size(), 3 * c.reserves.size());
    EXPECT_EQ(s.drawn(Kind::Text).size(), c.reserves.size());
    EXPECT_EQ(s.canvas.describeSinceClear()[0].rfind("circle 566.666666666667 816.666666666667", 0),
              0u);
  }
}

TEST(GeneralMap, TheDiscRadiusKeepsTheHalfPerimeterOfTheTriangleBefore) {
  // C-03 C-05 C-09: sides 100, 111.8 and 50; then C-03 C-04 C-05, three holes on a line.
  MapSession s;
  s.showDrawing({{{3, 5, 9}, 0, 1000}, {{3, 4, 5}, 0, 1000}});
  auto radii = [&s] {
    s.run("Mngenelrezervler_Click");
    std::vector<double> r;
    for (const CanvasOp& disc : s.drawnOps(Kind::Circle)) r.push_back(disc.at[2]);
    return r;
  };
  const std::vector<double> first = radii();
  ASSERT_EQ(first.size(), 2u);
  // The inscribed radius, 2 x area / perimeter, over 1.3.
  EXPECT_NEAR(first[0], 2 * 2500 / (150 + std::sqrt(12500.0)) / 1.3, 1e-12);
  // No area: the area term is 1, the half perimeter 100.
  EXPECT_DOUBLE_EQ(first[1], 1.0 / 100 / 1.3);
  // The next pass starts from that half perimeter of 100: the side of 100 counts as 99.
  const std::vector<double> second = radii();
  ASSERT_EQ(second.size(), 2u);
  EXPECT_DOUBLE_EQ(second[0], 14.596907080966082);
  EXPECT_DOUBLE_EQ(second[1], first[1]);
}

TEST(GeneralMap, ClassCountsThatCannotWorkStopTheProgram) {
  MapSession s;
  s.showDrawing({kLowerLeft});
  for (const char* answer : {"", "two"}) {
    s.dialogs.answerInput(answer, kClassPrompt);
    EXPECT_EQ(faultOf([&] { s.run("MNrrezerv_Click"); }), FaultKind::TypeMismatch) << answer;
  }
  // No classes: no colour dialog, and the class width divides by zero at the next map.
  s.dialogs.answerInput("0", kClassPrompt);
  s.run("MNrrezerv_Click");
  EXPECT_EQ(faultOf([&] { s.run("Mngenelrezervler_Click"); }), FaultKind::DivisionByZero);
}

}  // namespace
}  // namespace tri
