// The commands and control events of the plan canvas.
#pragma once

#include "store/state.h"

namespace tri {

// Map, Dimension
void Mnlimit_Click(State& s);

// Selectors: project, lithology, drawing (the limit tenor's is with the views, whose
// overlays it updates)
void Combo5_Click(State& s);
void Combo4_Click(State& s);
void Combo2_Click(State& s);

}  // namespace tri
