// Every procedure of the system by name: the menu's commands and the control events. The
// window and the scenario runner look procedures up here, and `connectControls` wires the
// program state to them when the program starts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/state.h"

namespace tri {

struct ProcedureEntry {
  std::string name;
  Procedure run;  // nullptr for a procedure that is not in this program yet
};

// The menu's procedures, then the control events, each once.
const std::vector<ProcedureEntry>& procedures();

// The procedure of that name, nullptr for one that is not in this program yet. A name that
// is no procedure of the system is a std::invalid_argument naming it.
Procedure findProcedure(std::string_view name);

// Wires a new program state: the selectors run their click procedures, the controls know
// the menu's items, and the replay knows its views.
void connectControls(State& s);

// The canvas mouse events, with the button (1 left, 2 right) and the point in world
// units. Each runs the fixed chain of branches whose mode flags are on.
void Picture1_MouseDown(State& s, int button, float x, float y);
void Picture1_MouseMove(State& s, int button, float x, float y);
void Picture1_MouseUp(State& s, int button, float x, float y);

}  // namespace tri
