// The commands of the reserve views: the 2D value maps and the display settings they read.
#pragma once

#include "store/state.h"

namespace tri {

// Triangle, 2D: the plan of the selected drawing or limit table with each triangle's tenor,
// its reserve (and the total), or its reserve class as a coloured disc.
void Mnyuzdeten_Click(State& s);
void Mnrezton_Click(State& s);
void Mngenelrezervler_Click(State& s);

// View, Show/Hide: hole names, value labels, grid.
void Mnsndjgoster_Click(State& s);
void Mnmiktrgoster_Click(State& s);
void Mngridgoster_Click(State& s);

// View, Colors: ore and gangue, the reserve classes, the value labels, the grid.
void Mnrenksec_Click(State& s);
void MNrrezerv_Click(State& s);
void Mnrmiktr_Click(State& s);
void Mnrgrid_Click(State& s);

}  // namespace tri
