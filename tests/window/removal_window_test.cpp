// Removal through the window: the Delete submenu turns triangle selection on as it opens.
#include <gtest/gtest.h>

#include <QMenu>

#include "window/gui_harness.h"

namespace tri {
namespace {

TEST(WindowRemoval, OpeningTheDeleteMenuEndsEntryAndSelects) {
  WindowHarness h;
  const std::string path = h.createProject();
  h.openProject(path);
  h.state().flags.modcizim = true;
  QMenu* deleteMenu = h.window.findChild<QMenu*>("Mnucsil");
  ASSERT_NE(deleteMenu, nullptr);
  Q_EMIT deleteMenu->aboutToShow();
  EXPECT_TRUE(h.state().flags.moducsec);
  EXPECT_FALSE(h.state().flags.modcizim);
}

}  // namespace
}  // namespace tri
