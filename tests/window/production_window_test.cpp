// The production plan in the real window, traced with the mouse over the sample project and a
// few triangles: a ring round the points of a sample set, an open outline on another and a
// free ring. The plan, drawn afresh, is written as a picture for a person to look at.
#include <gtest/gtest.h>

#include <QDir>

#include "window/gui_harness.h"

namespace tri {
namespace {

QColor qcolor(Color c) { return QColor(redOf(c), greenOf(c), blueOf(c)); }

TEST(WindowProduction, TheProductionPlanOfTheSampleProjectIsDrawnAndSaved) {
  const Color orange = rgb(230, 120, 0), blue = rgb(0, 70, 230);
  WindowHarness h;
  h.dialogs.answerOpen(sample("demo-holes.xls")).answerSave(h.dir.file("demo.mdb"));
  h.trigger("Mnprolus");
  h.choose("Combo4", 2);
  h.dialogs.answerInput("North", "Name the Drawing.");
  h.trigger("Mncizek");
  const Holes& holes = h.state().holes;
  for (int n : {11, 12, 18, 12, 18, 19, 12, 13, 19, 11, 17, 18, 18, 19, 25, 18, 24, 25}) {
    h.click(h.pixelOf(holes.eks[n], holes.eye[n]));
  }
  h.dialogs.answerOpen(sample("demo-points.xls"));
  for (Color c : {orange, rgb(0, 150, 0), blue, rgb(150, 0, 170)}) h.dialogs.answerColor(c);
  h.trigger("Mnauis");
  const Production& pr = h.state().production;
  auto point = [&](int p, int r) {
    return h.pixelOf(pr.planex(p, r).number, pr.planey(p, r).number);
  };

  h.trigger("Mnnuciz");
  for (int r = 1; r <= pr.plansay[1]; ++r) h.click(point(1, r));
  h.click(point(1, 1));
  for (int r = 1; r <= 3; ++r) h.click(point(3, r));
  h.click(point(3, 3), Qt::RightButton);
  h.trigger("Mnsuciz");
  const QPoint free[] = {h.pixelOf(1420, 2360), h.pixelOf(1545, 2350), h.pixelOf(1540, 2455),
                         h.pixelOf(1415, 2450), h.pixelOf(1420, 2360)};
  for (const QPoint& at : free) h.click(at);
  EXPECT_EQ(h.labelText(1), "Ready");

  h.trigger("Mnsuciz");
  const QImage image = h.window.canvas().image();
  QDir().mkpath(TRIRESERVE_PICTURES);
  EXPECT_TRUE(image.save(QString(TRIRESERVE_PICTURES) + "/production-plan.png"));
  // Halfway along a side of each: the free ring takes the colour of set 1, its group.
  EXPECT_EQ(image.pixelColor((point(1, 1) + point(1, 2)) / 2), qcolor(orange));
  EXPECT_EQ(image.pixelColor((point(3, 2) + point(3, 3)) / 2), qcolor(blue));
  EXPECT_EQ(image.pixelColor((free[0] + free[1]) / 2), qcolor(orange));
  EXPECT_TRUE(h.faults.empty()) << h.faultTexts();
}

}  // namespace
}  // namespace tri
