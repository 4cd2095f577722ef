// The window's menu as one table of rows, and the builder that turns it into a menu bar.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tri {

// One menu item. An item that is some other item's parent is a submenu; the others are
// commands. A parent must come before its children.
struct MenuRow {
  const char* name;       // the item's name and its action's objectName
  const char* parent;     // "" for a menu of the bar
  const char* caption;    // with its & access key
  const char* shortcut;   // "" for none
  const char* procedure;  // run on a command's click or when a submenu opens; "" for none
  bool checkable;         // the logic sets a check mark on it
};

const std::vector<MenuRow>& menuRows();

// Every item's action by name: a command's own action, a submenu's menu action.
using MenuActions = std::map<std::string, QAction*>;

// Runs a procedure by its name.
using ProcedureRunner = std::function<void(const std::string& procedure)>;

// Fills the bar from the rows. `run` is called with a row's procedure name when its
// command is clicked, or when its submenu opens if the row names a procedure.
MenuActions buildMenuBar(QMenuBar* bar, const std::vector<MenuRow>& rows,
                         const ProcedureRunner& run);

}  // namespace tri
