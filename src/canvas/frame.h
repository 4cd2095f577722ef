// The map frame: derived from the holes, held below 50 square kilometres, fitted to the
// canvas, and the scale that results.
#pragma once

#include "store/state.h"

namespace tri {

// Greatest and smallest x and y of the holes, seeded from the third hole (0 when there
// are fewer than three). No margin.
void frameReset(State& s);

// The frame's area in square kilometres.
double frameAreaKm2(const Frame& f);
inline constexpr double kAreaLimitKm2 = 50;

// Cuts 1 metre from each dimension until the area is under the limit; the centre stays.
void shrinkFrame(Frame& f);

// Who reports the area limit: the project and triangle commands, or the map views, which
// write their texts with a leading blank.
enum class LimitWording { Plain, View };

// When the frame reaches the limit: tells the user, shrinks the frame and says so.
// Returns true when the frame was shrunk.
bool applyAreaLimit(State& s, LimitWording wording);

// Picture1.Scale with the corners (ekxk, ebyk) and (ebxk, ekyk): world metres, y upward.
void setCanvasScale(State& s);

// Lays out the window after the holes are loaded (the window's own business); the
// layout sizes the window again, which clears the drawing flags.
void layoutAfterLoad(State& s);

// The head of every plan view: fits the frame to the canvas, applies a typed scale and the
// area limit, sets the canvas scale, the Label4 caption and the grid counts.
void frameFit(State& s, LimitWording wording);

}  // namespace tri
