// The map frame: from the holes, under the area limit, fitted to the canvas.
#include <gtest/gtest.h>

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

// The frame's edges: smallest x, greatest x, smallest y, greatest y.
std::array<double, 4> edges(const Frame& f) { return {f.ekxk, f.ebxk, f.ekyk, f.ebyk}; }

TEST(Frame, ResetSpansTheHolesWithoutMarginAndSeedsWithTheThirdEntry) {
  Session session;
  State& s = session.state;
  setHoles(s, {{500, 800}, {650, 950}, {520, 900}, {600, 780}});
  frameReset(s);
  EXPECT_EQ(edges(s.frame), (std::array<double, 4>{500, 650, 780, 950}));
  // With fewer than three holes the empty third entry takes part.
  setHoles(s, {{500, 800}, {650, 950}});
  frameReset(s);
  EXPECT_EQ(edges(s.frame), (std::array<double, 4>{0, 650, 0, 950}));
}

TEST(Frame, ExactlyFiftySquareKilometresReachesTheLimit) {
  const std::string passed =
      "You have passed the Plane Counted Area Value (50 Square Kilometers) !";
  const std::string fixed = "The corresponding fix has been made!";
  for (LimitWording wording : {LimitWording::Plain, LimitWording::View}) {
    Session session;
    State& s = session.state;
    setHoles(s, {{1000, 1000}, {11000, 1000}, {1000, 6000}});
    frameReset(s);
    ASSERT_EQ(frameAreaKm2(s.frame), 50);
    session.dialogs.answerButton(Answer::OK, passed).answerButton(Answer::OK, fixed);
    EXPECT_TRUE(applyAreaLimit(s, wording));
    // Half a metre off every side until it is under: the centre stays.
    EXPECT_EQ(edges(s.frame), (std::array<double, 4>{1000.5, 10999.5, 1000.5, 5999.5}));
    // The views word the limit with a leading blank.
    const bool view = wording == LimitWording::View;
    EXPECT_EQ(s.ui.label(1), view ? " " + fixed : fixed);
    EXPECT_EQ(session.dialogs.shown()[0].title, view ? " Attention !" : "Attention !");
    // Under the limit nothing is said.
    EXPECT_FALSE(applyAreaLimit(s, wording));
  }
}

// A square frame of 200 m on a canvas twice as wide as high.
struct Fitting : Session {
  Fitting() : Session(800, 400) {
    state.frame.ekxk = state.frame.ekyk = 0;
    state.frame.ebxk = state.frame.ebyk = 200;
  }
};

TEST(Frame, FitCropsOnACanvasThatDidNotShrink) {
  Fitting s;
  frameFit(s.state, LimitWording::Plain);
  const Frame first = s.state.frame;
  // x has the smaller scale already; y, with the greater, is cropped around its centre.
  EXPECT_EQ(first.ebxk, 200);
  EXPECT_EQ(first.ekxk, 0);
  EXPECT_LT(first.ebyk - first.ekyk, 200);
  EXPECT_DOUBLE_EQ((first.ebyk + first.ekyk) / 2, 100);
  EXPECT_NEAR(first.olcekx, first.olceky, 1e-9);
  EXPECT_EQ(s.state.ui.label(4).rfind("Scale: 1/", 0), 0u);
  // The grid counts are the canvas size in centimetres.
  EXPECT_DOUBLE_EQ(first.gridxsay, 800 / 96.0 * 2.54);
  // The plan is drawn north up: the greatest y at the top of the canvas.
  EXPECT_DOUBLE_EQ(s.canvas.toPixelY(first.ebyk), 0);
  EXPECT_DOUBLE_EQ(s.canvas.toPixelX(first.ekxk), 0);

  // Once the scales agree a second fit changes nothing; a wider canvas crops the frame
  // again, from where the last view left it.
  frameFit(s.state, LimitWording::Plain);
  EXPECT_NEAR(s.state.frame.ebyk - s.state.frame.ekyk, first.ebyk - first.ekyk, 1e-9);
  s.resize(1000, 400);
  frameFit(s.state, LimitWording::Plain);
  EXPECT_LT(s.state.frame.ebyk - s.state.frame.ekyk, first.ebyk - first.ekyk - 1);
}

TEST(Frame, FitWidensOnACanvasSmallerThanBeforeTheLastResize) {
  for (auto [width, height] : {std::pair{600, 400}, std::pair{300, 400}}) {
    Fitting s;
    s.resize(800, 400);  // the size before this resize was the same
    s.canvas.resize(width, height);
    frameFit(s.state, LimitWording::Plain);
    const Frame& f = s.state.frame;
    // Nothing is cut away: the frame only grows, around its centre.
    EXPECT_GE(f.ebyk - f.ekyk, 200) << width << "x" << height;
    EXPECT_GE(f.ebxk - f.ekxk, 200) << width << "x" << height;
    EXPECT_DOUBLE_EQ((f.ebxk + f.ekxk) / 2, 100);
    EXPECT_DOUBLE_EQ((f.ebyk + f.ekyk) / 2, 100);
  }
}

TEST(Frame, AScaleOrAFrameThatCannotBeComputedIsAFault) {
  Fitting s;
  // An empty or cancelled answer to Enter Scale stops in the conversion.
  s.dialogs.answerInput("", "Enter Scale:");
  EXPECT_THROW(s.run("Mnolcekg_Click"), Fault);
  // A frame without height fails in the arithmetic.
  s.state.frame = Frame{};
  s.state.frame.ebxk = 100;
  EXPECT_THROW(frameFit(s.state, LimitWording::Plain), Fault);
}

TEST(FrameLimit, RestoresTheFrameToTheHolesAndClearsTheOldPicture) {
  Session s;
  s.createProject(fixture("cluster.xls"));
  Frame& f = s.state.frame;
  f.ebxk = 5000;
  f.kaydirx = 12;
  f.olcekgirildi = true;
  s.canvas.clearLog();
  s.run("Mnlimit_Click");
  // No view is on, and still the old picture is cleared.
  ASSERT_FALSE(s.canvas.log().empty());
  EXPECT_EQ(s.canvas.log().front().kind, CanvasOp::Kind::Clear);
  EXPECT_EQ(edges(f), (std::array<double, 4>{500, 650, 800, 950}));
  EXPECT_EQ(f.kaydirx, 0);
  EXPECT_FALSE(f.olcekgirildi);
}

}  // namespace
}  // namespace tri
