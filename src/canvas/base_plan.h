// The base of every plan view: the coordinate grid and the drill holes.
#pragma once

#include "store/state.h"

namespace tri {

// Ticks, their values and crosses, every gridadim + 2 centimetres of canvas; nothing when
// the grid is off.
void drawGrid(State& s);

// A black point at each hole, and its name in red when names are shown.
void drawHoles(State& s);

// One hole's black point; one hole's name in red.
void drawHolePoint(State& s, int hole);
void drawHoleName(State& s, int hole);

}  // namespace tri
