#include "commands/procedures.h"

#include "canvas/commands.h"
#include "limit/commands.h"
#include "store/commands.h"
#include "triangles/commands.h"

namespace tri {

const std::vector<ProcedureEntry>& procedures() {
  static const std::vector<ProcedureEntry> table = {
      // File
      {"Mnprojeac_Click", Mnprojeac_Click},
      {"Mnprolus_Click", Mnprolus_Click},
      {"Mncikis_Click", Mncikis_Click},
      // Triangle
      {"Mncizek_Click", Mncizek_Click},
      {"Mncizduz_Click", Mncizduz_Click},
      {"Mncizisil_Click", Mncizisil_Click},
      {"Mnlimekle_Click", Mnlimekle_Click},
      {"Mnlimsil_Click", Mnlimsil_Click},
      // Map
      {"Mnlimit_Click", Mnlimit_Click},
      // Selectors
      {"Combo5_Click", Combo5_Click},
      {"Combo4_Click", Combo4_Click},
      {"Combo2_Click", Combo2_Click},
      {"Combo1_Click", Combo1_Click},
      // Window
      {"Form_Load", Form_Load},
      {"ucgenplan", ucgenplan},
  };
  return table;
}

Procedure findProcedure(std::string_view name) {
  for (const ProcedureEntry& entry : procedures()) {
    if (name == entry.name) return entry.run;
  }
  return nullptr;
}

void connectControls(State& s) {
  s.ui.combo5.onClick = [&s] { Combo5_Click(s); };
  s.ui.combo4.onClick = [&s] { Combo4_Click(s); };
  s.ui.combo2.onClick = [&s] { Combo2_Click(s); };
  s.ui.combo1.onClick = [&s] { Combo1_Click(s); };
}

}  // namespace tri
