// The triangle records of a drawing or limit table: a header row, then for triangle t its
// vertex rows 4t-3, 4t-2, 4t-1 and its summary row 4t, counted from 0 at the header. Every
// command that writes such rows writes them here, so a row has one form wherever it is made.
#pragma once

#include <array>
#include <optional>

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

// A vertex row: a corner hole's coordinates, its number in kor and log, and its entry and
// exit values, in metres.
struct VertexRow {
  double x = 0;
  double y = 0;
  int hole = 0;
  double sondgir = 0;
  double cevhgir = 0;
  double cevhcik = 0;
  double sondcik = 0;
};

// The vertex row of a hole of the state's hole arrays.
VertexRow vertexOfHole(const Holes& holes, int hole);
// The vertex row on the current row of a table.
VertexRow readVertexRow(const Recordset& table);
// Appends a vertex row: everything but the hole's number through ondayaz.
void appendVertexRow(Recordset& table, const VertexRow& vertex);

// The extent of a triangle that a drawing's own summary rows carry (limit studies leave it).
struct TriangleExtent {
  double bx = 0, kx = 0, by = 0, ky = 0;
};

// A summary row's values, before ondayaz: mean ore length, reserve in kilotons, tenor,
// density, plane area, cubage and tonnage in thousands, and the triangle's number.
struct SummaryRow {
  double length = 0;
  double reserveKt = 0;
  double tenor = 0;
  double density = 0;
  double area = 0;
  double cubage = 0;
  double tonnage = 0;
  double number = 0;
  std::optional<TriangleExtent> extent;
};

// Appends a summary row with the map frame of the moment: everything but the triangle's
// number through ondayaz.
void appendSummaryRow(Recordset& table, const Frame& frame, const SummaryRow& summary);

// Gives the current summary row the triangle number `number`, the other fields untouched.
void renumberSummaryRow(Recordset& table, int number);

}  // namespace tri
