#include "commands/procedures.h"

#include <stdexcept>

#include "canvas/commands.h"
#include "commands/menu.h"
#include "output/commands.h"
#include "production/commands.h"
#include "project/commands.h"
#include "scan/commands.h"
#include "triangles/commands.h"
#include "views/commands.h"

namespace tri {

namespace {

// The events of controls other than the menu, and the repaint that scenarios ask for.
// clang-format off
const ProcedureEntry kControlEvents[] = {
    {"Combo5_Click",       Combo5_Click},
    {"Combo4_Click",       Combo4_Click},
    {"Combo2_Click",       Combo2_Click},
    {"Combo1_Click",       Combo1_Click},
    {"Command1_Click",     Command1_Click},
    {"Command2_Click",     Command2_Click},
    {"HScroll1_Change",    HScroll1_Change},
    {"Form_Load",          Form_Load},
    {"ucgenplan",          ucgenplan},
    {"PageNext_Click",     PageNext_Click},
    {"PagePrevious_Click", PagePrevious_Click},
};
// clang-format on

// The redraw replay, in its required order: the production, scan and digitizing tools,
// then from the tenor map on the tail that the selectors also run.
// clang-format off
const ReplayRow kReplay[] = {
    // flag                   first      procedure
    {&Flags::modselan,       nullptr,   Mnselan_Click},           // area selection
    {&Flags::modsucgen,      nullptr,   Mnsucgen_Click},          // triangle selection
    {&Flags::modurcev,       nullptr,   urcevAgain},              // digitized closing, and its points
    {&Flags::modselan2,      nullptr,   Mnselan_Click},           // area selection, second pass
    {&Flags::modurort,       nullptr,   Mnurort_Click},           // production averages
    {&Flags::moduretopr,     nullptr,   Mnuretopr_Click},         // production totals
    {&Flags::modsucgen2,     ucgenplan, Mnsucgen_Click},          // triangle selection over the network
    {&Flags::modureciz2,     ucgenplan, ureciz},                  // production areas over the network
    {&Flags::modureciz,      nullptr,   ureciz},                  // production areas
    {&Flags::modtiklama,     ucgenplan, Mntiklama_Click},         // scan selection
    {&Flags::modtrtek,       nullptr,   Mntrtek_Click},           // scan of one triangle
    {&Flags::modtrtum,       nullptr,   Mntrtum_Click},           // scan of all triangles
    {&Flags::modyuzdeten,    nullptr,   Mnyuzdeten_Click},        // tenor map
    {&Flags::modrezton,      nullptr,   Mnrezton_Click},          // reserve tonnage map
    {&Flags::modgenelrezerv, nullptr,   Mngenelrezervler_Click},  // general reserve map
    {&Flags::modrecboy,      nullptr,   Mnrecboy_Click},          // 3D reserve view
    {&Flags::modcikart,      nullptr,   Mncikart_Click},          // hole removal
    {&Flags::moducsec,       nullptr,   Mnucsec_Click},           // triangle removal
    {&Flags::modcizim,       nullptr,   ucgenplan},               // triangle entry: the network
};
// clang-format on

}  // namespace

const std::vector<ProcedureEntry>& procedures() {
  static const std::vector<ProcedureEntry> table = [] {
    std::vector<ProcedureEntry> entries;
    for (const MenuItem& item : menuItems()) {
      std::string name = procedureName(item);
      if (!name.empty()) entries.push_back({std::move(name), item.procedure});
    }
    for (const ProcedureEntry& event : kControlEvents) entries.push_back(event);
    return entries;
  }();
  return table;
}

Procedure findProcedure(std::string_view name) {
  for (const ProcedureEntry& entry : procedures()) {
    if (name == entry.name) return entry.run;
  }
  throw std::invalid_argument("no procedure named \"" + std::string(name) + "\"");
}

void connectControls(State& s) {
  std::vector<std::string> items;
  for (const MenuItem& item : menuItems()) items.emplace_back(item.name);
  s.ui.setMenuItems(items);
  s.ui.combo5.onClick = [&s] { Combo5_Click(s); };
  s.ui.combo4.onClick = [&s] { Combo4_Click(s); };
  s.ui.combo2.onClick = [&s] { Combo2_Click(s); };
  s.ui.combo1.onClick = [&s] { Combo1_Click(s); };
  s.replayRows = kReplay;
}

}  // namespace tri
