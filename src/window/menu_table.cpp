#include "window/menu_table.h"

#include <QMenu>
#include <set>

namespace tri {

const std::vector<MenuRow>& menuRows() {
  // name, parent, caption, shortcut, procedure, checkable
  static const std::vector<MenuRow> rows = {
      // File
      {"Mndosya", "", "&File", "", "", false},
      {"Mnopen", "Mndosya", "&Open", "", "", false},
      {"Mnprojeac", "Mnopen", "&Project", "Ctrl+O", "Mnprojeac_Click", false},
      {"MnOluştur", "Mndosya", "&Create", "", "", false},
      {"Mnprolus", "MnOluştur", "&Project", "Ctrl+F", "Mnprolus_Click", false},
      {"MnKaydet", "Mndosya", "&Save", "", "", false},
      {"Mnharitakaydet", "MnKaydet", "&Picture", "Ctrl+G", "Mnharitakaydet_Click", false},
      {"Mnyazdır", "Mndosya", "&Print", "", "Mnyazdır_Click", false},
      {"Mncikis", "Mndosya", "&Exit", "", "Mncikis_Click", false},
      // Triangle
      {"Mnharita", "", "&Triangle", "", "", false},
      {"Mnucgenciz", "Mnharita", "&Draw", "", "", false},
      {"Mncizek", "Mnucgenciz", "&Add", "", "Mncizek_Click", false},
      {"Mnsonkes", "Mnucgenciz", "&Select-Cut", "", "Mnsonkes_Click", false},
      {"Mncizduz", "Mnucgenciz", "&Edit", "", "Mncizduz_Click", false},
      {"Mncizisil", "Mnucgenciz", "&Delete", "", "Mncizisil_Click", false},
      {"Mncikart", "Mnharita", "&Remove Point", "", "Mncikart_Click", false},
      {"Mnucsil", "Mnharita", "&Delete", "", "Mnucsil_Click", false},
      {"Mnsonucsil", "Mnucsil", "&Delete from End", "", "Mnsonucsil_Click", false},
      {"Mnucsec", "Mnucsil", "&Select", "", "Mnucsec_Click", false},
      {"Mnlimten", "Mnharita", "&Limit Tenor(%)", "", "", false},
      {"Mnlimekle", "Mnlimten", "&Add", "", "Mnlimekle_Click", false},
      {"Mnlimsil", "Mnlimten", "&Delete", "", "Mnlimsil_Click", false},
      {"Mntara", "Mnharita", "&Scan", "", "", false},
      {"Mntveri", "Mntara", "&Data", "", "", false},
      {"Mntkot", "Mntveri", "&Elevation", "", "Mntkot_Click", false},
      {"Mntiklama", "Mntveri", "&Select", "", "Mntiklama_Click", false},
      {"Mnttem", "Mntveri", "&Clear", "", "Mnttem_Click", false},
      {"Mntrtek", "Mntara", "&Single", "", "Mntrtek_Click", false},
      {"Mntrtum", "Mntara", "&All", "", "Mntrtum_Click", false},
      {"Mntenörler", "Mnharita", "&2D", "", "", false},
      {"Mnyuzdeten", "Mntenörler", "&Tenor(%)", "Ctrl+Q", "Mnyuzdeten_Click", false},
      {"Mnrezton", "Mntenörler", "&Reserve(ton)", "Ctrl+W", "Mnrezton_Click", false},
      {"Mngenelrezervler", "Mntenörler", "Reserve", "Ctrl+X", "Mngenelrezervler_Click", false},
      {"Mn3bo", "Mnharita", "&3D", "", "", false},
      {"Mnrecboy", "Mn3bo", "&Reserve", "Ctrl+V", "Mnrecboy_Click", false},
      // Production
      {"Mnuret", "", "&Production", "", "", false},
      {"Mneveri", "Mnuret", "&Data", "", "", false},
      {"Mnauis", "Mneveri", "&Plane", "", "Mnauis_Click", false},
      {"Mnualan", "Mnuret", "&Area", "", "", false},
      {"Mnuaciz", "Mnualan", "&Draw", "", "", false},
      {"Mnnuciz", "Mnuaciz", "&Point", "", "Mnnuciz_Click", false},
      {"Mnsuciz", "Mnuaciz", "&Free", "", "Mnsuciz_Click", false},
      {"Mnuasil", "Mnualan", "&Delete", "", "Mnuasil_Click", false},
      {"Mnudigi", "Mnuret", "&Digitize", "", "", false},
      {"Mnurkot", "Mnudigi", "&Elevation", "", "Mnurkot_Click", false},
      {"Mnuresec", "Mnudigi", "&Select", "", "", false},
      {"Mnselan", "Mnuresec", "&Area", "", "Mnselan_Click", false},
      {"Mnsucgen", "Mnuresec", "&Triangle", "", "Mnsucgen_Click", false},
      {"Mnurcev", "Mnudigi", "&Close", "", "Mnurcev_Click", false},
      {"Mnuretopr", "Mnuret", "&Totals", "", "Mnuretopr_Click", false},
      {"Mnurort", "Mnuret", "&Averages", "", "Mnurort_Click", false},
      // Map
      {"Mnnharita", "", "&Map", "", "", false},
      {"Mnboyut", "Mnnharita", "&Dimension", "", "", false},
      {"Mnbuyut", "Mnboyut", "&Big x10", "Ctrl+B", "Mnbuyut_Click", false},
      {"Mnpolkuc", "Mnboyut", "&Small x10", "Ctrl+K", "Mnpolkuc_Click", false},
      {"Mnlimit", "Mnboyut", "&Limit", "", "Mnlimit_Click", false},
      {"Mnkaydir", "Mnnharita", "&Scroll", "", "Mnkaydir_Click", true},
      {"Mgridler", "Mnnharita", "&Grids", "", "", false},
      {"Mnseyrelt", "Mgridler", "&Dilute", "", "Mnseyrelt_Click", true},
      {"Mnsiklastir", "Mgridler", "&Tighten", "", "Mnsiklastir_Click", true},
      {"Mnolcekg", "Mnnharita", "&Enter Scale", "", "Mnolcekg_Click", false},
      // View
      {"Mnduzen", "", "&View", "", "", false},
      {"Mnekle", "Mnduzen", "&Add", "", "", false},
      {"MNolcek", "Mnekle", "&Scale", "", "MNolcek_Click", true},
      {"Mntenn", "Mnekle", "&Ave. Grade", "", "", false},
      {"Mnorten", "Mntenn", "&Area Relative", "", "Mnorten_Click", true},
      {"Mnhorten", "Mntenn", "&Cubage Relative", "", "Mnhorten_Click", true},
      {"Mnelmtnr", "Mnekle", "&Limit Tenor", "", "Mnelmtnr_Click", true},
      {"Mnortog", "Mnekle", "&Ave. Density", "", "", false},
      {"Mnaortyog", "Mnortog", "&Area Relative", "", "Mnaortyog_Click", true},
      {"Mnkortyog", "Mnortog", "&Cubage Relative", "", "Mnkortyog_Click", true},
      {"Mntoprez", "Mnekle", "&Total Reserve", "", "Mntoprez_Click", true},
      {"Mnskala", "Mnekle", "&Dial", "", "Mnskala_Click", true},
      {"Mngostersakla", "Mnduzen", "&Show/Hide", "", "", false},
      {"Mnsndjgoster", "Mngostersakla", "&Drilling Names", "", "Mnsndjgoster_Click", true},
      {"Mnmiktrgoster", "Mngostersakla", "&Quantity", "", "Mnmiktrgoster_Click", true},
      {"Mngridgoster", "Mngostersakla", "&Grids", "", "Mngridgoster_Click", true},
      {"Mnrenk", "Mnduzen", "&Colors", "", "", false},
      {"Mnrenksec", "Mnrenk", "&Select-Cut", "", "Mnrenksec_Click", false},
      {"MNrrezerv", "Mnrenk", "&Reserve", "", "MNrrezerv_Click", false},
      {"Mnrmiktr", "Mnrenk", "&Quantity", "", "Mnrmiktr_Click", false},
      {"Mnrgrid", "Mnrenk", "&Grids", "", "Mnrgrid_Click", false},
  };
  return rows;
}

namespace {

QString utf8(const char* text) { return QString::fromUtf8(text); }

std::set<std::string> parentNames(const std::vector<MenuRow>& rows) {
  std::set<std::string> names;
  for (const MenuRow& row : rows) names.insert(row.parent);
  return names;
}

// Where a row's item goes: the bar for a menu of the bar, else its parent's menu.
class MenuTree {
 public:
  explicit MenuTree(QMenuBar* bar) : bar_(bar) {}

  QMenu* addMenu(const MenuRow& row) {
    QMenu* menu = row.parent[0] ? menus_.at(row.parent)->addMenu(utf8(row.caption))
                                : bar_->addMenu(utf8(row.caption));
    menu->setObjectName(utf8(row.name));
    menus_[row.name] = menu;
    return menu;
  }

  QAction* addAction(const MenuRow& row) {
    return menus_.at(row.parent)->addAction(utf8(row.caption));
  }

 private:
  QMenuBar* bar_;
  std::map<std::string, QMenu*> menus_;
};

// A submenu runs its procedure, if it names one, as it opens.
QAction* addSubmenu(MenuTree& tree, const MenuRow& row, const ProcedureRunner& run) {
  QMenu* menu = tree.addMenu(row);
  const std::string procedure = row.procedure;
  if (!procedure.empty()) {
    QObject::connect(menu, &QMenu::aboutToShow, menu, [run, procedure] { run(procedure); });
  }
  return menu->menuAction();
}

QAction* addCommand(MenuTree& tree, const MenuRow& row, const ProcedureRunner& run) {
  QAction* action = tree.addAction(row);
  const std::string procedure = row.procedure;
  if (!procedure.empty()) {
    QObject::connect(action, &QAction::triggered, action, [run, procedure] { run(procedure); });
  }
  return action;
}

}  // namespace

MenuActions buildMenuBar(QMenuBar* bar, const std::vector<MenuRow>& rows,
                         const ProcedureRunner& run) {
  const std::set<std::string> parents = parentNames(rows);
  MenuTree tree(bar);
  MenuActions actions;
  for (const MenuRow& row : rows) {
    QAction* action =
        parents.count(row.name) ? addSubmenu(tree, row, run) : addCommand(tree, row, run);
    action->setObjectName(utf8(row.name));
    action->setShortcut(QKeySequence(utf8(row.shortcut)));
    action->setCheckable(row.checkable);
    actions[row.name] = action;
  }
  return actions;
}

}  // namespace tri
