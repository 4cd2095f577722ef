// The plane's point sets as numbers, and the creation of the two area tables that the plane
// command starts with.
#pragma once

#include <string>

#include "platform/sheet.h"
#include "store/state.h"

namespace tri {

// A point-set cell where a number is needed: a number or a date as it is, an empty cell 0, a
// text that reads as a number that number. Any other text is a "Type mismatch" Fault whose
// message begins with `where`.
double cellNumber(const Cell& cell, const std::string& where);

// x and y of point r of set p; a text cell fails, naming the set, the point and the cell.
double pointX(const Production& pr, int p, int r);
double pointY(const Production& pr, int p, int r);

// The first steps of Mnauis_Click: removes the marker shapes and, in the selected project,
// creates aukor and then askor with their 1000 rows, unless a table is there already: then
// the creation stops at that table, and the tables and rows that exist stay as they are.
void createAreaTables(State& s);

}  // namespace tri
