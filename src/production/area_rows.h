// The rows of aukor and askor: one column group of xx, yy and ad per area, a head row and
// 999 rows below it, free slots marked "bas" (head row) and "al" (the others).
#pragma once

#include <string>

#include "platform/store.h"
#include "store/state.h"

namespace tri {

inline constexpr int kAreaGroups = 50;
inline constexpr int kAreaRows = 1000;
// The rows a walk of a group goes over below its head row.
inline constexpr int kAreaWalk = 999;
inline constexpr const char* kFreeHead = "bas";
inline constexpr const char* kFreeRow = "al";
// The half side of the square within which a click hits a point or a stored corner.
inline constexpr double kHitReach = 5;

// The names of the three fields of group n (xx<n>, yy<n>, ad<n>).
struct GroupFields {
  std::string xx, yy, ad;
};
GroupFields groupFields(int n);

// A click at (x, y) hits the point (px, py) when it lies strictly inside the square of
// kHitReach around it: a click exactly 5 units away misses.
bool hitsSquare(double px, double py, double x, double y);

// A corner's name: "nal" or "sal", the group, "nokb", then the corner's running number.
std::string cornerName(const char* stem, int group, double number);

// The corner of group n on the current row, in metres.
double storedX(const Recordset& rs, const GroupFields& f);
double storedY(const Recordset& rs, const GroupFields& f);

// Writes a corner into group n of the current row: x and y through ondayaz, and its name.
void writeCorner(Recordset& rs, const GroupFields& f, double x, double y, const std::string& name);
// Frees group n of the current row: 0, 0 and `mark`.
void freeSlot(Recordset& rs, const GroupFields& f, const char* mark);

// Moves to the first row, from the head row on, whose ad<n> is "al", looking at kAreaWalk rows
// at most; when none is, the recordset stays on the row after the last one looked at.
void moveToFirstFreeRow(Recordset& rs, const GroupFields& f);

// Draws a traced side, pen width 1, in the colour of point set `group`.
void drawSide(State& s, int group, double x1, double y1, double x2, double y2);

// Hides Line1, the rubber line of the outline under way.
void hideRubberLine(State& s);

// The value of a click's 32-bit coordinate as its text shows it (7 significant digits), the
// form in which a freely traced corner is stored: a click at 1305.2 stores 1305200.
double clickValue(float v);

}  // namespace tri
