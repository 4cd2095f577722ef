// The map frame: from the holes, under the area limit, fitted to the canvas.
#include <gtest/gtest.h>

#include "canvas/base_plan.h"
#include "canvas/frame.h"
#include "platform/fault.h"
#include "support/session.h"

namespace tri {
namespace {

void setHoles(State& s, std::vector<std::pair<double, double>> holes) {
  s.holes.sondsay = static_cast<int>(holes.size());
  s.holes.eks.clear();
  s.holes.eye.clear();
  for (size_t i = 0; i < holes.size(); ++i) {
    s.holes.eks[i + 1] = holes[i].first;
    s.holes.eye[i + 1] = holes[i].second;
  }
}

TEST(Frame, ResetSpansTheHolesWithoutMarginAndSeedsWithTheThirdEntry) {
  Session session;
  State& s = session.state;
  setHoles(s, {{500, 800}, {650, 950}, {520, 900}, {600, 780}});
  frameReset(s);
  EXPECT_EQ(s.frame.ekxk, 500);
  EXPECT_EQ(s.frame.ebxk, 650);
  EXPECT_EQ(s.frame.ekyk, 780);
  EXPECT_EQ(s.frame.ebyk, 950);

  // With fewer than three holes the empty third entry takes part.
  setHoles(s, {{500, 800}, {650, 950}});
  frameReset(s);
  EXPECT_EQ(s.frame.ekxk, 0);
  EXPECT_EQ(s.frame.ekyk, 0);
  EXPECT_EQ(s.frame.ebxk, 650);
}

TEST(Frame, ExactlyFiftySquareKilometresReachesTheLimit) {
  Session session;
  State& s = session.state;
  setHoles(s, {{1000, 1000}, {11000, 1000}, {1000, 6000}});
  frameReset(s);
  ASSERT_EQ(frameAreaKm2(s.frame), 50);
  const std::string passed =
      "You have passed the Plane Counted Area Value (50 Square Kilometers) !";
  session.dialogs.answerButton(Answer::OK, passed)
      .answerButton(Answer::OK, "The corresponding fix has been made!");
  EXPECT_TRUE(applyAreaLimit(s, LimitWording::Plain));
  EXPECT_LT(frameAreaKm2(s.frame), 50);
  EXPECT_EQ(s.frame.ebxk - s.frame.ekxk, 9999);
  EXPECT_EQ((s.frame.ebxk + s.frame.ekxk) / 2, 6000) << "the centre stays";
  EXPECT_EQ(s.ui.label(1), "The corresponding fix has been made!");
  EXPECT_EQ(session.dialogs.shown()[0].title, "Attention !");
  // Under the limit nothing is said.
  EXPECT_FALSE(applyAreaLimit(s, LimitWording::Plain));
}

TEST(Frame, TheViewsWordTheLimitWithALeadingBlank) {
  Session session;
  State& s = session.state;
  s.frame = Frame{};
  s.frame.ebxk = 20000;
  s.frame.ebyk = 20000;
  session.dialogs.answerButton(Answer::OK).answerButton(Answer::OK);
  applyAreaLimit(s, LimitWording::View);
  EXPECT_EQ(s.ui.label(1), " The corresponding fix has been made!");
  EXPECT_EQ(session.dialogs.shown()[0].title, " Attention !");
  EXPECT_EQ(session.dialogs.shown()[0].prompt,
            "You have passed the Plane Counted Area Value (50 Square Kilometers) !");
}

// A square frame of 200 m on a canvas twice as wide as high.
struct Fitting : Session {
  Fitting() : Session(800, 400) {
    state.frame.ekxk = 0;
    state.frame.ebxk = 200;
    state.frame.ekyk = 0;
    state.frame.ebyk = 200;
  }
};

TEST(Frame, FitCropsOnACanvasThatDidNotShrink) {
  Fitting s;
  frameFit(s.state, LimitWording::Plain);
  const Frame& f = s.state.frame;
  // x has the smaller scale already; y, with the greater, is cropped around its centre.
  EXPECT_EQ(f.ebxk, 200);
  EXPECT_EQ(f.ekxk, 0);
  EXPECT_LT(f.ebyk - f.ekyk, 200);
  EXPECT_DOUBLE_EQ((f.ebyk + f.ekyk) / 2, 100);
  EXPECT_EQ(s.state.ui.label(4).rfind("Scale: 1/", 0), 0u);
  // The grid counts are the canvas size in centimetres.
  EXPECT_DOUBLE_EQ(f.gridxsay, 800 / 96.0 * 2.54);
}

TEST(Frame, FitWidensOnACanvasSmallerThanBeforeTheLastResize) {
  Fitting s;
  s.resize(800, 400);  // the size before this resize was the same
  s.canvas.resize(600, 400);
  frameFit(s.state, LimitWording::Plain);
  const Frame& f = s.state.frame;
  EXPECT_EQ(f.ebyk, 200);
  EXPECT_GT(f.ebxk - f.ekxk, 200);
  EXPECT_DOUBLE_EQ((f.ebxk + f.ekxk) / 2, 100);
}

TEST(Frame, TheFitChangesTheFrameInPlaceUntilTheScalesAgree) {
  Fitting s;
  frameFit(s.state, LimitWording::Plain);
  const Frame first = s.state.frame;
  EXPECT_NEAR(first.olcekx, first.olceky, 1e-9);
  frameFit(s.state, LimitWording::Plain);
  EXPECT_NEAR(s.state.frame.ebyk - s.state.frame.ekyk, first.ebyk - first.ekyk, 1e-9);
  // A wider canvas crops the frame again, from where the last view left it.
  s.resize(1000, 400);
  frameFit(s.state, LimitWording::Plain);
  EXPECT_LT(s.state.frame.ebyk - s.state.frame.ekyk, first.ebyk - first.ekyk - 1);
}

TEST(Frame, ATypedScaleOfOneHundredIsOneMetrePerCentimetre) {
  Fitting s;
  s.state.frame.haritagen = 200;
  s.state.frame.haritayuk = 200;
  s.state.frame.olcekgirildi = true;
  s.state.frame.olcek = 100 / 100.0;
  frameFit(s.state, LimitWording::Plain);
  EXPECT_NEAR(s.state.frame.olcekx, 1, 0.05);
}

TEST(Frame, AFrameWithoutHeightFailsInTheArithmetic) {
  Session session(800, 800);
  State& s = session.state;
  s.frame = Frame{};
  s.frame.ebxk = 100;
  try {
    frameFit(s, LimitWording::Plain);
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::DivisionByZero);
  }
}

TEST(BasePlan, GridOffDrawsNothingAndOnDrawsTicksValuesAndCrosses) {
  Fitting s;
  frameFit(s.state, LimitWording::Plain);
  s.canvas.clearLog();
  drawGrid(s.state);
  EXPECT_TRUE(s.canvas.log().empty());
  s.state.frame.gridgoster = true;
  s.state.colors.dialog3 = 255;
  drawGrid(s.state);
  int ticks = 0, texts = 0;
  for (const CanvasOp& op : s.canvas.log()) {
    if (op.kind == CanvasOp::Kind::Text) ++texts;
    if (op.kind == CanvasOp::Kind::Line) {
      ++ticks;
      EXPECT_EQ(op.color, 255);
    }
  }
  const int columns = static_cast<int>(s.state.frame.gridxsay);
  const int rows = static_cast<int>(s.state.frame.gridysay);
  EXPECT_EQ(texts, columns + rows);
  EXPECT_EQ(ticks, columns + rows + 2 * columns * rows);
  // Columns lie gridadim + 2 centimetres apart.
  EXPECT_DOUBLE_EQ(s.state.frame.gridx[2] - s.state.frame.gridx[1], 3 * s.state.frame.olcekx);
}

TEST(FrameLimit, RestoresTheFrameToTheHolesAndRedrawsTheViewsThatAreOn) {
  Session s;
  s.createProject(fixture("cluster.xls"));
  s.state.frame.ebxk = 5000;
  s.state.frame.kaydirx = 12;
  s.state.frame.olcekgirildi = true;
  s.canvas.clearLog();
  s.run("Mnlimit_Click");
  // No view is on, and still the old picture is cleared.
  ASSERT_FALSE(s.canvas.log().empty());
  EXPECT_EQ(s.canvas.log().front().kind, CanvasOp::Kind::Clear);
  const Frame& f = s.state.frame;
  EXPECT_EQ(f.ekxk, 500);
  EXPECT_EQ(f.ebxk, 650);
  EXPECT_EQ(f.ekyk, 800);
  EXPECT_EQ(f.ebyk, 950);
  EXPECT_EQ(f.haritagen, 150);
  EXPECT_EQ(f.kaydirx, 0);
  EXPECT_FALSE(f.olcekgirildi);
  EXPECT_EQ(s.state.holes.sondsay, 14);
  // A view that is on runs again, and fits the restored frame to the canvas.
  s.state.flags.modcizim = true;
  s.canvas.clearLog();
  s.run("Mnlimit_Click");
  ASSERT_FALSE(s.canvas.log().empty());
  EXPECT_EQ(s.canvas.log().front().kind, CanvasOp::Kind::Clear);
  EXPECT_EQ(f.ebxk, 650);
  EXPECT_LT(f.ebyk - f.ekyk, 150) << "cropped to the wider canvas";
}

}  // namespace
}  // namespace tri
