// The window's whole menu as one table: every item with its parent, caption, shortcut and
// procedure. The window builds its menu bar from it, the controls know the items by it,
// and the table of procedures takes the menu's procedures from it.
#pragma once

#include <string>
#include <vector>

#include "store/state.h"

namespace tri {

// One menu item. An item that is some other item's parent is a submenu, the others are
// commands; a parent comes before its children. The procedure of an item is its name
// followed by "_Click"; a submenu with a procedure runs it as it opens.
struct MenuItem {
  const char* name;      // the item's name, as the logic enables and checks it
  const char* parent;    // "" for a menu of the bar
  const char* caption;   // with its & access key
  const char* shortcut;  // "" for none
  Procedure procedure;   // nullptr for a heading, or for a command not in this program yet
  bool checkable;        // the logic sets a check mark on it
};

const std::vector<MenuItem>& menuItems();

// Whether the item is the parent of other items.
bool isSubmenu(const MenuItem& item);

// The name of the item's procedure, "" for a heading without one.
std::string procedureName(const MenuItem& item);

}  // namespace tri
