// The redraw replay: the canvas keeps no model, so a change that affects the whole picture
// clears it and runs again, in a fixed order, every view whose flag is on.
#pragma once

#include "store/state.h"

namespace tri {

// Step A: ends the Select-Cut picking and removes its marker shapes.
void removeMarkers(State& s);
// The shapes of step A alone: the bars by the names they were made under and the two
// legend bars, when there are bars.
void removeMarkerShapes(State& s);
// Clears the flags ilkmod and gridciz.
void clearDrawingFlags(State& s);
// Step B: clears the canvas and the two drawing flags.
void clearForReplay(State& s);
// Step C: every view whose flag is on, in the order of the flags.
void replayFlags(State& s);
// The tail of step C, from the tenor map on; also run by the selectors and printing.
void replayTail(State& s);
// Steps A, B and C.
void replayAll(State& s);

// Clears every view flag of the replay (the commands that replace all views).
void clearViewFlags(State& s);

}  // namespace tri
