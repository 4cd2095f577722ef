// The menu bar: its items, captions, shortcuts and nesting are a contract with the user.
#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <set>
#include <sstream>

#include "commands/procedures.h"
#include "window/gui_harness.h"

namespace tri {
namespace {

// The menu as the user sees it: one item a line, indented under its parent, with its
// caption and shortcut.
constexpr const char* kMenu = R"menu(
Mndosya "&File"
  Mnopen "&Open"
    Mnprojeac "&Project" Ctrl+O
  MnOluştur "&Create"
    Mnprolus "&Project" Ctrl+F
  MnKaydet "&Save"
    Mnharitakaydet "&Picture" Ctrl+G
  Mnyazdır "&Print"
  Mncikis "&Exit"
Mnharita "&Triangle"
  Mnucgenciz "&Draw"
    Mncizek "&Add"
    Mnsonkes "&Select-Cut"
    Mncizduz "&Edit"
    Mncizisil "&Delete"
  Mncikart "&Remove Point"
  Mnucsil "&Delete"
    Mnsonucsil "&Delete from End"
    Mnucsec "&Select"
  Mnlimten "&Limit Tenor(%)"
    Mnlimekle "&Add"
    Mnlimsil "&Delete"
  Mntara "&Scan"
    Mntveri "&Data"
      Mntkot "&Elevation"
      Mntiklama "&Select"
      Mnttem "&Clear"
    Mntrtek "&Single"
    Mntrtum "&All"
  Mntenörler "&2D"
    Mnyuzdeten "&Tenor(%)" Ctrl+Q
    Mnrezton "&Reserve(ton)" Ctrl+W
    Mngenelrezervler "Reserve" Ctrl+X
  Mn3bo "&3D"
    Mnrecboy "&Reserve" Ctrl+V
Mnuret "&Production"
  Mneveri "&Data"
    Mnauis "&Plane"
  Mnualan "&Area"
    Mnuaciz "&Draw"
      Mnnuciz "&Point"
      Mnsuciz "&Free"
    Mnuasil "&Delete"
  Mnudigi "&Digitize"
    Mnurkot "&Elevation"
    Mnuresec "&Select"
      Mnselan "&Area"
      Mnsucgen "&Triangle"
    Mnurcev "&Close"
  Mnuretopr "&Totals"
  Mnurort "&Averages"
Mnnharita "&Map"
  Mnboyut "&Dimension"
    Mnbuyut "&Big x10" Ctrl+B
    Mnpolkuc "&Small x10" Ctrl+K
    Mnlimit "&Limit"
  Mnkaydir "&Scroll"
  Mgridler "&Grids"
    Mnseyrelt "&Dilute"
    Mnsiklastir "&Tighten"
  Mnolcekg "&Enter Scale"
Mnduzen "&View"
  Mnekle "&Add"
    MNolcek "&Scale"
    Mntenn "&Ave. Grade"
      Mnorten "&Area Relative"
      Mnhorten "&Cubage Relative"
    Mnelmtnr "&Limit Tenor"
    Mnortog "&Ave. Density"
      Mnaortyog "&Area Relative"
      Mnkortyog "&Cubage Relative"
    Mntoprez "&Total Reserve"
    Mnskala "&Dial"
  Mngostersakla "&Show/Hide"
    Mnsndjgoster "&Drilling Names"
    Mnmiktrgoster "&Quantity"
    Mngridgoster "&Grids"
  Mnrenk "&Colors"
    Mnrenksec "&Select-Cut"
    MNrrezerv "&Reserve"
    Mnrmiktr "&Quantity"
    Mnrgrid "&Grids"
)menu";

// "name < parent "caption" shortcut", one a line, from the indented list.
std::vector<std::string> expectedItems() {
  std::vector<std::string> items;
  std::vector<std::string> parents;
  std::istringstream lines(kMenu);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty()) continue;
    const size_t depth = line.find_first_not_of(' ') / 2;
    std::istringstream words(line);
    std::string name;
    words >> name;
    parents.resize(depth);
    std::string rest;
    std::getline(words, rest);
    items.push_back(name + " < " + (depth ? parents.back() : "") + rest);
    parents.push_back(name);
  }
  return items;
}

void collect(const QList<QAction*>& actions, const std::string& parent,
             std::vector<std::string>& items) {
  for (QAction* action : actions) {
    if (action->isSeparator()) continue;
    const std::string name = action->objectName().toStdString();
    std::string item = name + " < " + parent + " \"" + action->text().toStdString() + "\"";
    const QString shortcut = action->shortcut().toString(QKeySequence::PortableText);
    if (!shortcut.isEmpty()) item += " " + shortcut.toStdString();
    items.push_back(item);
    if (QMenu* menu = action->menu()) collect(menu->actions(), name, items);
  }
}

TEST(Menu, EveryItemHasItsCaptionShortcutAndParentInOrder) {
  WindowHarness h;
  std::vector<std::string> shown;
  collect(h.window.menuBar()->actions(), "", shown);
  EXPECT_EQ(shown, expectedItems());
}

TEST(Menu, OnlyTheItemsTheLogicMarksAreCheckable) {
  WindowHarness h;
  const std::set<std::string> marked = {
      "Mnkaydir",    "MNolcek",      "Mntoprez",      "Mnorten",     "Mnhorten",
      "Mnaortyog",   "Mnkortyog",    "Mnelmtnr",      "Mnskala",     "Mnseyrelt",
      "Mnsiklastir", "Mnsndjgoster", "Mnmiktrgoster", "Mngridgoster"};
  std::set<std::string> checkable;
  for (QAction* action : h.window.menuBar()->findChildren<QAction*>()) {
    if (action->isCheckable()) checkable.insert(action->objectName().toStdString());
  }
  EXPECT_EQ(checkable, marked);
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
