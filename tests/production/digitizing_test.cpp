// Production digitizing: the surface of a trace, the choice of an area by its blue circle,
// and the sums of an area across a second selection of it.
#include <gtest/gtest.h>

#include <memory>

#include "platform/fault.h"
#include "production/plane_session.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

struct Trace {
  const char* what;
  std::vector<ClickCorner> clicks;
  double surface;
};

TEST(Digitizing, ATraceIsMeasuredByItsOutlineWhicheverWayItRuns) {
  PlaneSession s;
  // No drawing is chosen: each closed trace is measured and nothing is scanned.
  s.run("Mnurcev_Click");
  const std::vector<Trace> traces = {
      {"anticlockwise", {{500, 800}, {560, 800}, {560, 820}, {500, 820}, {501, 801}}, 1200},
      {"clockwise", {{500, 800}, {500, 820}, {560, 820}, {560, 800}, {500, 805}}, 1200},
      {"closed at its second click", {{530, 830}, {525, 825}}, 0},
      {"closed at the corner of the square", {{600, 900}, {630, 900}, {600, 940}, {595, 895}}, 600},
      {"there and back", {{500, 800}, {540, 800}, {500, 800}}, 0},
      {"a click 5.5 m off goes on", {{0, 0}, {10, 0}, {5.5, 5.5}, {0, 10}, {1, 1}}, 55},
  };
  int part = 0;
  for (const Trace& t : traces) {
    for (const ClickCorner& c : t.clicks) s.click(c.x, c.y);
    ++part;
    EXPECT_DOUBLE_EQ(s.state.production.urparcaalan(0, 0, part), t.surface) << t.what;
    EXPECT_EQ(s.state.production.urnoktasay, 0) << t.what;
  }
}

struct DigitizingSession : DrawingSession {
  DigitizingSession() : DrawingSession("cluster.xls", "ore") {
    pickTriangle(550, 800, 600, 800, 550, 850);
    state.openSheet = [](const std::string&) {
      return std::make_unique<GridSheet>(planeSheet({{{520, 820}, {540, 820}, {530, 840}}}));
    };
    dialogs.answerOpen("plane.xls", "Select File with Coordinate Data");
    dialogs.answerColor(rgb(255, 0, 0));
    run("Mnauis_Click");
    // Set 1 round its three points into aukor; a free area over it into askor.
    run("Mnnuciz_Click");
    for (ClickCorner c : {ClickCorner{520, 820}, {540, 820}, {530, 840}, {520, 820}}) {
      click(c.x, c.y);
    }
    run("Mnsuciz_Click");
    for (ClickCorner c : {ClickCorner{530, 830}, {560, 830}, {560, 850}, {531, 831}}) {
      click(c.x, c.y);
    }
    state.production.urupkot = 320;
    state.production.urdownkot = 250;
  }

  // Picks the triangle C-01, C-02, C-04 at its red point and traces a part of it.
  void tracePart(const std::vector<ClickCorner>& clicks) {
    run("Mnsucgen_Click");
    click(566.7, 816.7);
    run("Mnurcev_Click");
    for (const ClickCorner& c : clicks) click(c.x, c.y);
  }
};

TEST(Digitizing, TheSumsOfAnAreaOutlastASecondSelectionOfIt) {
  DigitizingSession s;
  Production& pr = s.state.production;
  s.run("Mnselan_Click");
  // The centres: (527.5, 825) of the aukor area, (545, 835) of the askor area, their squares
  // overlapping. A click in both selects the aukor area, one in the free square alone the
  // askor area.
  EXPECT_EQ(std::vector<double>(
                {pr.urmerkezx(1, 1), pr.urmerkezy(1, 1), pr.urmerkezx(2, 1), pr.urmerkezy(2, 1)}),
            std::vector<double>({527.5, 825, 545, 835}));
  s.click(537, 830);
  EXPECT_EQ(std::vector<double>({pr.secplan, pr.secalan}), std::vector<double>({1, 1}));
  s.click(550, 840);
  EXPECT_EQ(std::vector<double>({pr.secplan, pr.secalan}), std::vector<double>({2, 1}));

  s.tracePart({{560, 810}, {600, 810}, {600, 840}, {560, 840}, {560, 810}});
  s.tracePart({{555, 805}, {585, 805}, {555, 845}, {555, 805}});
  const AreaSums before = pr.urAreaSums(2, 1);
  EXPECT_EQ(before.urtopalan, 1800);
  ASSERT_GT(before.urtoprez, 0);
  EXPECT_EQ(pr.urparca, 3);

  // Selected again, the area starts its parts over: a trace of two clicks replaces part 1,
  // with surface 0, and the sums keep both parts.
  s.run("Mnselan_Click");
  s.click(550, 840);
  EXPECT_EQ(pr.urparca, 0);
  s.tracePart({{570, 820}, {572, 822}});
  EXPECT_EQ(pr.urparcaalan(2, 1, 1), 0);
  EXPECT_EQ(pr.urparcaalan(2, 1, 2), 600);
  EXPECT_EQ(pr.urparca, 2);
  const AreaSums after = pr.urAreaSums(2, 1);
  EXPECT_EQ(std::vector<double>({after.urtopalan, after.urtoprez, *after.urortten}),
            std::vector<double>({1800, before.urtoprez, *before.urortten}));

  // An area whose only part has surface 0 has no mean to take.
  s.run("Mnselan_Click");
  s.click(525, 822);
  try {
    s.tracePart({{570, 820}, {572, 822}});
    ADD_FAILURE() << "a mean over no surface was taken";
  } catch (const Fault& f) {
    EXPECT_EQ(f.kind(), FaultKind::DivisionByZero);
  }
}

}  // namespace
}  // namespace tri
