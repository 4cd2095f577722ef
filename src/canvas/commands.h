// The commands and control events of the plan canvas.
#pragma once

#include "store/state.h"

namespace tri {

// Map, Dimension: zoom in and out by a fixed step (plus the pan offsets), or back to the
// holes.
void Mnbuyut_Click(State& s);
void Mnpolkuc_Click(State& s);
void Mnlimit_Click(State& s);

// Map, Scroll: drag mode on and off. In drag mode a right-button drag on the canvas moves
// the frame by the drag's distance and redraws every view.
void Mnkaydir_Click(State& s);
bool kaydirOn(const State& s);
void kaydirDown(State& s, int button, float x, float y);
void kaydirUp(State& s, int button, float x, float y);

// Map, Grids: a wider or a narrower grid.
void Mnseyrelt_Click(State& s);
void Mnsiklastir_Click(State& s);

// Map, Enter Scale: a typed scale denominator that the next views keep.
void Mnolcekg_Click(State& s);

// Selectors: project, lithology, drawing (the limit tenor's is with the views, whose
// overlays it updates)
void Combo5_Click(State& s);
void Combo4_Click(State& s);
void Combo2_Click(State& s);

}  // namespace tri
