// Removal through the window: the Delete submenu turns triangle selection on as it opens.
#include <gtest/gtest.h>

#include <QMenu>

#include "window/gui_harness.h"

namespace tri {
namespace {

TEST(WindowRemoval, OpeningTheDeleteMenuLetsClicksPickATriangle) {
  WindowHarness h;
  const std::string path = h.createProject();
  addDrawing(path, "ore", "plan1", {{4, 5, 8}, {5, 9, 8}});
  h.openProject(path);
  h.state().flags.modcizim = true;
  h.choose("Combo4", 1);
  h.choose("Combo2", 1);

  QMenu* deleteMenu = h.window.findChild<QMenu*>("Mnucsil");
  ASSERT_NE(deleteMenu, nullptr);
  Q_EMIT deleteMenu->aboutToShow();
  EXPECT_TRUE(h.state().flags.moducsec);
  EXPECT_FALSE(h.state().flags.modcizim);
  // C-08, C-04, C-05: the first triangle, and no entry of a new one.
  h.click(h.pixelOf(550, 900));
  h.click(h.pixelOf(550, 850));
  h.click(h.pixelOf(600, 850));
  ASSERT_TRUE(h.faults.empty()) << h.faultTexts();
  EXPECT_EQ(h.labelText(7), "1");
  EXPECT_EQ(h.labelText(1), "Select Point One (Right Click: Cancel)");
}

}  // namespace
}  // namespace tri
