// The commands of the reserve views: the 2D value maps and the display settings they read,
// and the drill-log view in which ranges of layers are cut out of the ore.
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

// Triangle, Draw, Select-Cut: every hole as a column of bars on the window itself, a page
// of holes at a time; two bars of one hole cut the range between them out of the ore, a
// click on a marked hole's column head undoes its cuts. The page buttons and the keys
// PageUp (33) and PageDown (34) turn to the holes before and after.
void Mnsonkes_Click(State& s);
void Form_MouseDown(State& s, int button, int shift, float x, float y);
void Form_KeyDown(State& s, int keyCode);
void PageNext_Click(State& s);
void PagePrevious_Click(State& s);

}  // namespace tri
