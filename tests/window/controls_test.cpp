// The controls as data and their widgets: what the logic sets shows after every event, and
// what the user changes reaches the logic.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QScrollBar>

#include "window/gui_harness.h"

namespace tri {
namespace {

bool colorNear(const QImage& image, QPoint at, const QColor& color) {
  for (int dy = -1; dy <= 1; ++dy) {
    if (image.pixelColor(at + QPoint(0, dy)) == color) return true;
  }
  return false;
}

TEST(WindowControls, WhatTheLogicSetsShowsAfterAnEvent) {
  WindowHarness h;
  Controls& ui = h.state().ui;
  ui.setLabel(2, "Area: 12");
  ui.show("Frame1");
  ui.show("HScroll1");
  ui.hscroll1Value = 90;
  ui.picture1ToolTip = "S5";
  ui.combo1.addItem("Limit Tenor");
  ui.combo1.addItem("2.5");
  ui.enable("Mnucsil", false);
  ui.check("Mnsndjgoster");
  h.mouse(QEvent::MouseMove, QPoint(5, 5), Qt::NoButton);

  EXPECT_EQ(h.labelText(2), "Area: 12");
  EXPECT_TRUE(h.window.findChild<QWidget*>("Frame1")->isVisible());
  EXPECT_FALSE(h.window.findChild<QWidget*>("Frame2")->isVisible());
  auto* bar = h.window.findChild<QScrollBar*>("HScroll1");
  EXPECT_TRUE(bar->isVisible());
  EXPECT_EQ(bar->value(), 90);
  EXPECT_EQ(h.picture1()->toolTip(), "S5");
  EXPECT_EQ(h.combo("Combo1")->count(), 2);
  EXPECT_EQ(h.combo("Combo1")->currentIndex(), -1);
  EXPECT_FALSE(h.action("Mnucsil")->isEnabled());
  EXPECT_TRUE(h.action("Mnsndjgoster")->isChecked());
  // And what the user changes reaches the logic.
  bar->setValue(200);
  EXPECT_EQ(ui.hscroll1Value, 200);
}

TEST(WindowControls, TheRubberBandIsDrawnOverThePictureWhileVisible) {
  WindowHarness h;
  // Before a project the canvas measures in pixels.
  const QColor red(255, 0, 0);
  h.state().ui.line1 = {true, 20, 40, 220, 40, rgb(255, 0, 0), 1};
  h.mouse(QEvent::MouseMove, QPoint(5, 5), Qt::NoButton);
  EXPECT_TRUE(colorNear(h.shownPicture(), QPoint(120, 40), red));

  h.state().ui.line1.visible = false;
  h.mouse(QEvent::MouseMove, QPoint(5, 5), Qt::NoButton);
  EXPECT_FALSE(colorNear(h.shownPicture(), QPoint(120, 40), red));
}

}  // namespace
}  // namespace tri
