// The commands of the reserve views: the 2D value maps, the 3D view, the display settings they
// read, the overlays placed on the plan, the limit selector that brings the overlays up to
// date, and the drill-log view in which ranges of layers are cut out of the ore.
#pragma once

#include "store/state.h"

namespace tri {

// Triangle, 2D: the plan of the selected drawing or limit table with each triangle's tenor,
// its reserve (and the total), or its reserve class as a coloured disc.
void Mnyuzdeten_Click(State& s);
void Mnrezton_Click(State& s);
void Mngenelrezervler_Click(State& s);

// Triangle, 3D: the ore body as prisms on the plan, and the scroll bar under the canvas that
// turns it (its value is the angle in degrees, 0 to 360).
void Mnrecboy_Click(State& s);
void HScroll1_Change(State& s);

// View, Show/Hide: hole names, value labels, grid.
void Mnsndjgoster_Click(State& s);
void Mnmiktrgoster_Click(State& s);
void Mngridgoster_Click(State& s);

// View, Colors: ore and gangue, the reserve classes, the value labels, the grid.
void Mnrenksec_Click(State& s);
void MNrrezerv_Click(State& s);
void Mnrmiktr_Click(State& s);
void Mnrgrid_Click(State& s);

// View, Add: arm one overlay, computing its number from the selected table at once: the
// scale, the dial of the colour classes, the area- and cubage-relative tenor and density,
// the total reserve, the limit tenor. A second use disarms, except for the dial.
void MNolcek_Click(State& s);
void Mnskala_Click(State& s);
void Mnorten_Click(State& s);
void Mnhorten_Click(State& s);
void Mnaortyog_Click(State& s);
void Mnkortyog_Click(State& s);
void Mntoprez_Click(State& s);
void Mnelmtnr_Click(State& s);

// The overlays' row of the mouse chain of Picture1_MouseDown: whether one is armed, and its
// branch, which prints every armed item at a left click and notes the place.
bool overlayOn(const State& s);
void overlayDown(State& s, int button, float x, float y);

// Selectors: the limit tenor. Brings every overlay whose counter is odd up to date for the
// newly selected table, then runs the replay's tail.
void Combo1_Click(State& s);

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
