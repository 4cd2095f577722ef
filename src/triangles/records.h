// The triangle records of a drawing or limit table: a header row, then for triangle t its
// vertex rows 4t-3, 4t-2, 4t-1 and its summary row 4t, counted from 0 at the header.
#pragma once

#include <array>

#include "platform/store.h"
#include "store/state.h"

namespace tri {

// The number of triangles: ucgensay of the last row. A last row without it (a vertex row
// left by a failed triangle) is an "Invalid use of Null" Fault.
int triangleCount(Recordset& table);

// Moves to triangle t's first vertex row, or to its summary row.
void moveToFirstVertex(Recordset& table, int t);
void moveToSummary(Recordset& table, int t);

struct TriangleCorners {
  std::array<double, 4> x{};  // corners 1..3, metres
  std::array<double, 4> y{};
};

// The three corners of triangle t, in metres.
TriangleCorners readTriangleCorners(Recordset& table, int t);

// Appends the vertex row of a hole: its coordinates and entry and exit values through
// ondayaz, and its number.
void appendVertexRow(Recordset& table, const Holes& holes, int hole);

}  // namespace tri
