#include "commands/menu.h"

#include <set>

#include "canvas/commands.h"
#include "limit/commands.h"
#include "output/commands.h"
#include "project/commands.h"
#include "scan/commands.h"
#include "triangles/commands.h"
#include "views/commands.h"

namespace tri {

const std::vector<MenuItem>& menuItems() {
  // name, parent, caption, shortcut, procedure, checkable
  static const std::vector<MenuItem> items = {
      // File
      {"Mndosya", "", "&File", "", nullptr, false},
      {"Mnopen", "Mndosya", "&Open", "", nullptr, false},
      {"Mnprojeac", "Mnopen", "&Project", "Ctrl+O", Mnprojeac_Click, false},
      {"MnOluştur", "Mndosya", "&Create", "", nullptr, false},
      {"Mnprolus", "MnOluştur", "&Project", "Ctrl+F", Mnprolus_Click, false},
      {"MnKaydet", "Mndosya", "&Save", "", nullptr, false},
      {"Mnharitakaydet", "MnKaydet", "&Picture", "Ctrl+G", Mnharitakaydet_Click, false},
      {"Mnyazdır", "Mndosya", "&Print", "", Mnyazdır_Click, false},
      {"Mncikis", "Mndosya", "&Exit", "", Mncikis_Click, false},
      // Triangle
      {"Mnharita", "", "&Triangle", "", nullptr, false},
      {"Mnucgenciz", "Mnharita", "&Draw", "", nullptr, false},
      {"Mncizek", "Mnucgenciz", "&Add", "", Mncizek_Click, false},
      {"Mnsonkes", "Mnucgenciz", "&Select-Cut", "", nullptr, false},
      {"Mncizduz", "Mnucgenciz", "&Edit", "", Mncizduz_Click, false},
      {"Mncizisil", "Mnucgenciz", "&Delete", "", Mncizisil_Click, false},
      {"Mncikart", "Mnharita", "&Remove Point", "", nullptr, false},
      {"Mnucsil", "Mnharita", "&Delete", "", nullptr, false},
      {"Mnsonucsil", "Mnucsil", "&Delete from End", "", nullptr, false},
      {"Mnucsec", "Mnucsil", "&Select", "", nullptr, false},
      {"Mnlimten", "Mnharita", "&Limit Tenor(%)", "", nullptr, false},
      {"Mnlimekle", "Mnlimten", "&Add", "", Mnlimekle_Click, false},
      {"Mnlimsil", "Mnlimten", "&Delete", "", Mnlimsil_Click, false},
      {"Mntara", "Mnharita", "&Scan", "", nullptr, false},
      {"Mntveri", "Mntara", "&Data", "", nullptr, false},
      {"Mntkot", "Mntveri", "&Elevation", "", Mntkot_Click, false},
      {"Mntiklama", "Mntveri", "&Select", "", Mntiklama_Click, false},
      {"Mnttem", "Mntveri", "&Clear", "", Mnttem_Click, false},
      {"Mntrtek", "Mntara", "&Single", "", Mntrtek_Click, false},
      {"Mntrtum", "Mntara", "&All", "", Mntrtum_Click, false},
      {"Mntenörler", "Mnharita", "&2D", "", nullptr, false},
      {"Mnyuzdeten", "Mntenörler", "&Tenor(%)", "Ctrl+Q", Mnyuzdeten_Click, false},
      {"Mnrezton", "Mntenörler", "&Reserve(ton)", "Ctrl+W", Mnrezton_Click, false},
      {"Mngenelrezervler", "Mntenörler", "Reserve", "Ctrl+X", Mngenelrezervler_Click, false},
      {"Mn3bo", "Mnharita", "&3D", "", nullptr, false},
      {"Mnrecboy", "Mn3bo", "&Reserve", "Ctrl+V", nullptr, false},
      // Production
      {"Mnuret", "", "&Production", "", nullptr, false},
      {"Mneveri", "Mnuret", "&Data", "", nullptr, false},
      {"Mnauis", "Mneveri", "&Plane", "", nullptr, false},
      {"Mnualan", "Mnuret", "&Area", "", nullptr, false},
      {"Mnuaciz", "Mnualan", "&Draw", "", nullptr, false},
      {"Mnnuciz", "Mnuaciz", "&Point", "", nullptr, false},
      {"Mnsuciz", "Mnuaciz", "&Free", "", nullptr, false},
      {"Mnuasil", "Mnualan", "&Delete", "", nullptr, false},
      {"Mnudigi", "Mnuret", "&Digitize", "", nullptr, false},
      {"Mnurkot", "Mnudigi", "&Elevation", "", nullptr, false},
      {"Mnuresec", "Mnudigi", "&Select", "", nullptr, false},
      {"Mnselan", "Mnuresec", "&Area", "", nullptr, false},
      {"Mnsucgen", "Mnuresec", "&Triangle", "", nullptr, false},
      {"Mnurcev", "Mnudigi", "&Close", "", nullptr, false},
      {"Mnuretopr", "Mnuret", "&Totals", "", nullptr, false},
      {"Mnurort", "Mnuret", "&Averages", "", nullptr, false},
      // Map
      {"Mnnharita", "", "&Map", "", nullptr, false},
      {"Mnboyut", "Mnnharita", "&Dimension", "", nullptr, false},
      {"Mnbuyut", "Mnboyut", "&Big x10", "Ctrl+B", nullptr, false},
      {"Mnpolkuc", "Mnboyut", "&Small x10", "Ctrl+K", nullptr, false},
      {"Mnlimit", "Mnboyut", "&Limit", "", Mnlimit_Click, false},
      {"Mnkaydir", "Mnnharita", "&Scroll", "", nullptr, true},
      {"Mgridler", "Mnnharita", "&Grids", "", nullptr, false},
      {"Mnseyrelt", "Mgridler", "&Dilute", "", nullptr, true},
      {"Mnsiklastir", "Mgridler", "&Tighten", "", nullptr, true},
      {"Mnolcekg", "Mnnharita", "&Enter Scale", "", nullptr, false},
      // View
      {"Mnduzen", "", "&View", "", nullptr, false},
      {"Mnekle", "Mnduzen", "&Add", "", nullptr, false},
      {"MNolcek", "Mnekle", "&Scale", "", MNolcek_Click, true},
      {"Mntenn", "Mnekle", "&Ave. Grade", "", nullptr, false},
      {"Mnorten", "Mntenn", "&Area Relative", "", Mnorten_Click, true},
      {"Mnhorten", "Mntenn", "&Cubage Relative", "", Mnhorten_Click, true},
      {"Mnelmtnr", "Mnekle", "&Limit Tenor", "", Mnelmtnr_Click, true},
      {"Mnortog", "Mnekle", "&Ave. Density", "", nullptr, false},
      {"Mnaortyog", "Mnortog", "&Area Relative", "", Mnaortyog_Click, true},
      {"Mnkortyog", "Mnortog", "&Cubage Relative", "", Mnkortyog_Click, true},
      {"Mntoprez", "Mnekle", "&Total Reserve", "", Mntoprez_Click, true},
      {"Mnskala", "Mnekle", "&Dial", "", Mnskala_Click, true},
      {"Mngostersakla", "Mnduzen", "&Show/Hide", "", nullptr, false},
      {"Mnsndjgoster", "Mngostersakla", "&Drilling Names", "", Mnsndjgoster_Click, true},
      {"Mnmiktrgoster", "Mngostersakla", "&Quantity", "", Mnmiktrgoster_Click, true},
      {"Mngridgoster", "Mngostersakla", "&Grids", "", Mngridgoster_Click, true},
      {"Mnrenk", "Mnduzen", "&Colors", "", nullptr, false},
      {"Mnrenksec", "Mnrenk", "&Select-Cut", "", Mnrenksec_Click, false},
      {"MNrrezerv", "Mnrenk", "&Reserve", "", MNrrezerv_Click, false},
      {"Mnrmiktr", "Mnrenk", "&Quantity", "", Mnrmiktr_Click, false},
      {"Mnrgrid", "Mnrenk", "&Grids", "", Mnrgrid_Click, false},
  };
  return items;
}

bool isSubmenu(const MenuItem& item) {
  static const std::set<std::string> parents = [] {
    std::set<std::string> names;
    for (const MenuItem& each : menuItems()) names.insert(each.parent);
    return names;
  }();
  return parents.count(item.name) > 0;
}

std::string procedureName(const MenuItem& item) {
  if (isSubmenu(item) && !item.procedure) return "";
  return std::string(item.name) + "_Click";
}

}  // namespace tri
