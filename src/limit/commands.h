// The limit tenor (cut-off) studies of a drawing.
#pragma once

#include "store/state.h"

namespace tri {

// Triangle, Limit Tenor(%), Add: recomputes every triangle of the drawing with only the
// layers at or above the entered tenor and stores the network as a limit table.
void Mnlimekle_Click(State& s);

// Triangle, Limit Tenor(%), Delete: drops the limit table shown in Combo1 and frees its
// slot.
void Mnlimsil_Click(State& s);

}  // namespace tri
