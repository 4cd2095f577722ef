#include "window/menu_bar.h"

#include <QMenu>

namespace tri {

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

// Where a row's item goes: the bar for a menu of the bar, else its parent's menu.
class MenuTree {
 public:
  explicit MenuTree(QMenuBar* bar) : bar_(bar) {}

  QMenu* addMenu(const MenuItem& row) {
    QMenu* menu = row.parent[0] ? menus_.at(row.parent)->addMenu(utf8(row.caption))
                                : bar_->addMenu(utf8(row.caption));
    menu->setObjectName(utf8(row.name));
    menus_[row.name] = menu;
    return menu;
  }

  QAction* addAction(const MenuItem& row) {
    return menus_.at(row.parent)->addAction(utf8(row.caption));
  }

 private:
  QMenuBar* bar_;
  std::map<std::string, QMenu*> menus_;
};

// A submenu runs its procedure, if it has one, as it opens.
QAction* addSubmenu(MenuTree& tree, const MenuItem& row, const ProcedureRunner& run) {
  QMenu* menu = tree.addMenu(row);
  if (const Procedure procedure = row.procedure) {
    QObject::connect(menu, &QMenu::aboutToShow, menu, [run, procedure] { run(procedure); });
  }
  return menu->menuAction();
}

// A command without a procedure still runs, as an empty command.
QAction* addCommand(MenuTree& tree, const MenuItem& row, const ProcedureRunner& run) {
  QAction* action = tree.addAction(row);
  const Procedure procedure = row.procedure;
  QObject::connect(action, &QAction::triggered, action, [run, procedure] { run(procedure); });
  return action;
}

}  // namespace

MenuActions buildMenuBar(QMenuBar* bar, const std::vector<MenuItem>& rows,
                         const ProcedureRunner& run) {
  MenuTree tree(bar);
  MenuActions actions;
  for (const MenuItem& row : rows) {
    QAction* action = isSubmenu(row) ? addSubmenu(tree, row, run) : addCommand(tree, row, run);
    action->setObjectName(utf8(row.name));
    action->setShortcut(QKeySequence(utf8(row.shortcut)));
    action->setCheckable(row.checkable);
    actions[row.name] = action;
  }
  return actions;
}

}  // namespace tri
