// Triangle entry's shared pieces: the menu items it turns off and on, the hole match, and
// the reserve arithmetic that finishes a triangle.
#pragma once

#include <array>

#include "platform/store.h"
#include "store/state.h"

namespace tri {

// The items that entry mode disables, and the three that ending it enables again.
void disableEntryMenuItems(State& s);
void enableAfterEntry(State& s);

// A click matches a hole when both its x and y lie within 5 metres of the hole's, edges
// included: a square, whatever the zoom.
inline constexpr double kPickTolerance = 5;
bool holeMatches(double holeX, double holeY, double x, double y);

// A left click or a hover starts a new triangle once three picks stand; the dot colour of
// the pick is remembered before the count rises, so that the first corner is blue.
void startPickAt(Entry& e);

// The three corner holes of a finished triangle, by their numbers in kor and log.
using CornerHoles = std::array<int, 4>;  // corners 1..3

// Computes the finished triangle's values from the logs of its corner holes, shows them,
// appends its summary row to the drawing's table and the triangle to every limit table of
// the drawing, and frees the pending corners. The drawing's table is named by Combo2.
void finishTriangle(State& s, Database& db, const CornerHoles& holes);

}  // namespace tri
