// The builder that turns the menu's table into the window's menu bar.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "commands/menu.h"

namespace tri {

// Every item's action by name: a command's own action, a submenu's menu action.
using MenuActions = std::map<std::string, QAction*>;

// Runs a procedure as a command of the window; nullptr runs an empty command.
using ProcedureRunner = std::function<void(Procedure)>;

// Fills the bar from the items. `run` is called with an item's procedure when its command
// is clicked, or when its submenu opens if the item has a procedure.
MenuActions buildMenuBar(QMenuBar* bar, const std::vector<MenuItem>& items,
                         const ProcedureRunner& run);

}  // namespace tri
