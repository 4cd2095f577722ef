// The menu bar as built from the menu table: every item under its parent, in order, with
// its caption, shortcut and check mark, and every menu procedure reachable.
#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>

#include "commands/menu.h"
#include "commands/procedures.h"
#include "window/gui_harness.h"

namespace tri {
namespace {

// "name < parent "caption" shortcut checkable", one an item, in menu order.
void collect(const QList<QAction*>& actions, const std::string& parent,
             std::vector<std::string>& items) {
  for (QAction* action : actions) {
    if (action->isSeparator()) continue;
    const std::string name = action->objectName().toStdString();
    items.push_back(name + " < " + parent + " \"" + action->text().toStdString() + "\" " +
                    action->shortcut().toString(QKeySequence::PortableText).toStdString() +
                    (action->isCheckable() ? " checkable" : ""));
    if (QMenu* menu = action->menu()) collect(menu->actions(), name, items);
  }
}

TEST(Menu, TheBarHoldsEveryItemOfTheTableUnderItsParentInOrder) {
  WindowHarness h;
  std::vector<std::string> shown;
  collect(h.window.menuBar()->actions(), "", shown);
  std::vector<std::string> table;
  for (const MenuItem& item : menuItems()) {
    table.push_back(std::string(item.name) + " < " + item.parent + " \"" + item.caption + "\" " +
                    item.shortcut + (item.checkable ? " checkable" : ""));
  }
  EXPECT_EQ(shown, table);
}

// A procedure whose item name is misspelt in the menu would never run.
TEST(Menu, EveryMenuProcedureOfTheTableHasItsItem) {
  WindowHarness h;
  for (const ProcedureEntry& entry : procedures()) {
    const std::string name = entry.name;
    const size_t click = name.rfind("_Click");
    const bool menuItem =
        name.rfind("Mn", 0) == 0 || name.rfind("MN", 0) == 0 || name.rfind("Mg", 0) == 0;
    if (!menuItem || click == std::string::npos) continue;
    EXPECT_NE(h.action(name.substr(0, click).c_str()), nullptr) << name;
  }
}

}  // namespace
}  // namespace tri
