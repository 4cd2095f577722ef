#include "commands/menu.h"

#include <set>

#include "canvas/commands.h"
#include "limit/commands.h"
#include "output/commands.h"
#include "production/commands.h"
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
      {"Mnsonkes", "Mnucgenciz", "&Select-Cut", "", Mnsonkes_Click, false},
      {"Mncizduz", "Mnucgenciz", "&Edit", "", Mncizduz_Click, false},
      {"Mncizisil", "Mnucgenciz", "&Delete", "", Mncizisil_Click, false},
      {"Mncikart", "Mnharita", "&Remove Point", "", Mncikart_Click, false},
      {"Mnucsil", "Mnharita", "&Delete", "", Mnucsil_Click, false},
      {"Mnsonucsil", "Mnucsil", "&Delete from End", "", Mnsonucsil_Click, false},
      {"Mnucsec", "Mnucsil", "&Select", "", Mnucsec_Click, false},
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
      {"Mnrecboy", "Mn3bo", "&Reserve", "Ctrl+V", Mnrecboy_Click, false},
      // Production
      {"Mnuret", "", "&Production", "", nullptr, false},
      {"Mneveri", "Mnuret", "&Data", "", nullptr, false},
      {"Mnauis", "Mneveri", "&Plane", "", Mnauis_Click, false},
      {"Mnualan", "Mnuret", "&Area", "", nullptr, false},
      {"Mnuaciz", "Mnualan", "&Draw", "", nullptr, false},
      {"Mnnuciz", "Mnuaciz", "&Point", "", Mnnuciz_Click, false},
      {"Mnsuciz", "Mnuaciz", "&Free", "", Mnsuciz_Click, false},
      {"Mnuasil", "Mnualan", "&Delete", "", Mnuasil_Click, false},
      {"Mnudigi", "Mnuret", "&Digitize", "", nullptr, false},
      {"Mnurkot", "Mnudigi", "&Elevation", "", Mnurkot_Click, false},
      {"Mnuresec", "Mnudigi", "&Select", "", nullptr, false},
      {"Mnselan", "Mnuresec", "&Area", "", Mnselan_Click, false},
      {"Mnsucgen", "Mnuresec", "&Triangle", "", Mnsucgen_Click, false},
      {"Mnurcev", "Mnudigi", "&Close", "", Mnurcev_Click, false},
      {"Mnuretopr", "Mnuret", "&Totals", "", Mnuretopr_Click, false},
      {"Mnurort", "Mnuret", "&Averages", "", Mnurort_Click, false},
      // Map
      {"Mnnharita", "", "&Map", "", nullptr, false},
      {"Mnboyut", "Mnnharita", "&Dimension", "", nullptr, false},
      {"Mnbuyut", "Mnboyut", "&Big x10", "Ctrl+B", Mnbuyut_Click, false},
      {"Mnpolkuc", "Mnboyut", "&Small x10", "Ctrl+K", Mnpolkuc_Click, false},
      {"Mnlimit", "Mnboyut", "&Limit", "", Mnlimit_Click, false},
      {"Mnkaydir", "Mnnharita", "&Scroll", "", Mnkaydir_Click, true},
      {"Mgridler", "Mnnharita", "&Grids", "", nullptr, false},
      {"Mnseyrelt", "Mgridler", "&Dilute", "", Mnseyrelt_Click, true},
      {"Mnsiklastir", "Mgridler", "&Tighten", "", Mnsiklastir_Click, true},
      {"Mnolcekg", "Mnnharita", "&Enter Scale", "", Mnolcekg_Click, false},
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
