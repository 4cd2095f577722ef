// The commands and canvas events of the bench scan: the elevations, the pick, the scans of
// one triangle and of all, and their keys.
#pragma once

#include "store/state.h"

namespace tri {

// Triangle, Scan, Data: the two elevations of the bench, the red point of every triangle
// to pick one by, and the clearing of the single scan's printed results.
void Mntkot_Click(State& s);
void Mntiklama_Click(State& s);
void Mnttem_Click(State& s);

// Triangle, Scan: tenor and reserve of the bench under the picked triangle, printed beside
// the earlier results, or under every triangle of the drawing.
void Mntrtek_Click(State& s);
void Mntrtum_Click(State& s);

// Right click in the single-scan and in the all-scan view: the key at (x, y).
void tratk(State& s, float x, float y);
void tratm(State& s, float x, float y);

// The scan's rows of the mouse chain of Picture1_MouseDown: whether the mode is on, and its
// branch, given the button. A right click in a scan view draws its key; a left click in
// pick mode keeps the click as the pick.
bool trtumOn(const State& s);
void trtumDown(State& s, int button, float x, float y);
bool trtekOn(const State& s);
void trtekDown(State& s, int button, float x, float y);
bool tiklamaOn(const State& s);
void tiklamaDown(State& s, int button, float x, float y);

}  // namespace tri
