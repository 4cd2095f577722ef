// Every menu and button procedure by name: the one table that the window's menu and the
// scenario runner both use. It also connects the selectors to their click procedures.
#pragma once

#include <string_view>
#include <vector>

#include "store/state.h"

namespace tri {

using Procedure = void (*)(State&);

struct ProcedureEntry {
  const char* name;
  Procedure run;
};

const std::vector<ProcedureEntry>& procedures();
// The procedure of that name, or nullptr.
Procedure findProcedure(std::string_view name);

// Setting a selector's list index runs its click procedure.
void connectControls(State& s);

}  // namespace tri
