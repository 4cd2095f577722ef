// Steps the scan commands share with production digitizing: the elevations of the bench, the
// start of a mode over the plan, and the printing of a stored result.
#pragma once

#include <string>

#include "store/state.h"

namespace tri {

inline constexpr Color kScanBlue = rgb(0, 0, 255);
inline constexpr Color kScanGreen = rgb(0, 255, 0);
inline constexpr Color kScanRed = rgb(255, 0, 0);

// Turns every view and tool off and `flag` on (none when null), enables the eight items of
// the plan's menus, removes the marker shapes and shows the plan alone.
void startScanMode(State& s, bool Flags::*flag);

// The elevation commands' steps: the hint in Label1 and the two prompts into `up` and `down`.
// The hint is the difference of two texts taken as numbers; "Put " is no number, so its
// conversion is a type mismatch that ends the program before the prompts.
void askElevations(State& s, double& up, double& down);

// The red point at the centroid of every triangle the display drew, kept to pick a triangle by.
void drawRedPoints(State& s);

// A key's point: a dot of pen 5 in the colour, the pen back at 1 after it.
void printKeyPoint(Canvas& c, Color color, double x, double y);

// Prints text at (x, y) in a colour with the pen as it stands.
void printText(Canvas& c, Color color, double x, double y, const std::string& text);

// "(" up " , " down ")" with the numbers in their general text.
std::string elevationText(double up, double down);

// A result with its elevations, tenor and reserve texts, at the positions it holds.
ScanLabel scanLabelAt(double cx, double cy, double up, double down, double tenor,
                      double reserveTons);
// Prints a stored result: the elevations in blue, the tenor in green, the reserve in red.
void printScanLabel(Canvas& c, const ScanLabel& label);

}  // namespace tri
