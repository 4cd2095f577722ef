// The 3D view in the real window, over three triangles of the sample project entered with
// the mouse: turned with the bar below the canvas and written as pictures at three angles,
// then the three value maps, each written as a picture.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QScrollBar>
#include <algorithm>

#include "window/gui_harness.h"

namespace tri {
namespace {

// A drag sends the bar's values faster than a view is drawn: only the latest is drawn, and
// the move and scale items stay away while the view is on.
TEST(WindowMaps, TheReserveViewTurnsWithTheBarAndADragDrawsTheLatestAngle) {
  WindowHarness h;
  h.dialogs.answerOpen(sample("demo-holes.xls")).answerSave(h.dir.file("demo.mdb"));
  h.trigger("Mnprolus");
  h.choose("Combo4", 2);
  h.dialogs.answerInput("North", "Name the Drawing.");
  h.trigger("Mncizek");
  const Holes& holes = h.state().holes;
  for (int n : {11, 12, 18, 11, 18, 17, 12, 19, 18}) h.click(h.pixelOf(holes.eks[n], holes.eye[n]));
  h.dialogs.answerInput("3").answerColor(rgb(0, 170, 0)).answerColor(rgb(240, 200, 0));
  h.dialogs.answerColor(rgb(220, 0, 0));
  h.trigger("MNrrezerv");
  auto* bar = h.window.findChild<QScrollBar*>("HScroll1");
  ASSERT_NE(bar, nullptr);
  auto save = [&h](const char* picture) {
    QDir().mkpath(TRIRESERVE_PICTURES);
    EXPECT_TRUE(h.window.canvas().image().save(QString(TRIRESERVE_PICTURES) + "/" + picture));
  };
  h.trigger("Mnrecboy");
  EXPECT_FALSE(bar->isHidden());
  save("reserve-3d-0.png");
  Canvas& canvas = h.state().canvas;
  canvas.setLogging(true);
  canvas.clearLog();
  for (int value = 1; value <= 90; ++value) bar->setValue(value);
  QApplication::processEvents();
  const auto& log = canvas.log();
  EXPECT_EQ(std::count_if(log.begin(), log.end(),
                          [](const CanvasOp& op) { return op.kind == CanvasOp::Kind::Clear; }),
            1);
  EXPECT_EQ(h.state().views.viewangle, 90);
  EXPECT_FALSE(h.action("Mnkaydir")->isEnabled() || h.action("Mnolcekg")->isEnabled());
  save("reserve-3d-90.png");
  canvas.setLogging(false);
  bar->setValue(200);
  QApplication::processEvents();
  EXPECT_EQ(h.state().views.viewangle, 200);
  save("reserve-3d-200.png");
  // The next view gives the move and scale items back and hides the bar.
  h.trigger("Mnyuzdeten");
  EXPECT_TRUE(h.action("Mnkaydir")->isEnabled() && h.action("Mnolcekg")->isEnabled());
  EXPECT_TRUE(bar->isHidden());
  save("window-tenor-map.png");
  h.trigger("Mnrezton");
  save("window-reserve-map.png");
  h.trigger("Mngenelrezervler");
  save("window-general-reserve-map.png");
  EXPECT_TRUE(h.faults.empty()) << h.faultTexts();
}

}  // namespace
}  // namespace tri
