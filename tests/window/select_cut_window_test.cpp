// The drill-log view in the real window: the sample project's first page drawn on the form
// with its bars as child items, written as a picture, and a cut made by two clicks.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QMouseEvent>

#include "support/stored_table.h"
#include "window/form_view.h"
#include "window/gui_harness.h"

namespace tri {
namespace {

TEST(SelectCutWindow, TwoClicksOnTheBarsCutTheRange) {
  WindowHarness h;
  const std::string path = h.dir.file("demo.mdb");
  h.dialogs.answerOpen(std::string(TRIRESERVE_SAMPLES) + "/demo-holes.xls").answerSave(path);
  h.trigger("Mnprolus");
  h.choose("Combo4", 2);
  h.trigger("Mnsonkes");
  // New colours redraw the view that stands.
  h.dialogs.answerButton(Answer::OK).answerColor(rgb(200, 30, 30));
  h.dialogs.answerButton(Answer::OK).answerColor(rgb(150, 150, 150));
  h.trigger("Mnrenksec");
  auto* form = h.window.findChild<FormView*>("Form3");
  ASSERT_TRUE(form);
  EXPECT_FALSE(h.picture1()->isVisible());
  const State& s = h.state();
  ASSERT_GT(s.markers.shapesay, 0);
  EXPECT_EQ(h.state().ui.shape(s.network.gangueLegend).fillColor, rgb(150, 150, 150));
  // Every bar and both legend bars are items of the form, named as they were made.
  EXPECT_EQ(form->shapeItemCount(), s.markers.shapesay + 2);
  EXPECT_TRUE(form->findChild<QWidget*>(QString::fromStdString(s.markers.names[1])));
  QDir().mkpath(TRIRESERVE_PICTURES);
  EXPECT_TRUE(form->grab().save(QString(TRIRESERVE_PICTURES) + "/select_cut.png"));

  auto clickBar = [&](int layer) {
    const HitRect& r = s.network.barRects[s.network.barNumbers(layer, 2)];
    const QPoint at(static_cast<int>((r.x1 + r.x2) / 2), static_cast<int>((r.y1 + r.y2) / 2));
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(at), QPointF(form->mapToGlobal(at)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(form, &press);
    QApplication::processEvents();
  };
  clickBar(1);
  EXPECT_EQ(h.labelText(1), " Choose the second part ");
  clickBar(2);
  EXPECT_EQ(h.labelText(1), " Choose the first part ");
  const StoredTable log = readTable(path, "log");
  EXPECT_EQ(log.text(2, "lit1"), "orecev");
  EXPECT_EQ(log.text(2, "lit2"), "orecev");
  EXPECT_EQ(log.text(2, "deg2"), "evet");
  EXPECT_TRUE(form->grab().save(QString(TRIRESERVE_PICTURES) + "/select_cut_after.png"));

  // A larger window keeps the view's texts and lines where they were.
  const QImage before = form->grab().toImage();
  h.window.resize(h.window.width() + 120, h.window.height() + 80);
  QApplication::processEvents();
  EXPECT_GT(form->width(), before.width());
  EXPECT_EQ(form->grab().toImage().copy(before.rect()), before);
  EXPECT_TRUE(h.faults.empty()) << h.faultTexts();
}

}  // namespace
}  // namespace tri
