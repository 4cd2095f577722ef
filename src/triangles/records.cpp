#include "triangles/records.h"

namespace tri {

int triangleCount(Recordset& table) {
  table.moveLast();
  return static_cast<int>(table.number("ucgensay"));
}

void moveToFirstVertex(Recordset& table, int t) {
  table.moveFirst();
  table.move(1 + 4 * (t - 1));
}

void moveToSummary(Recordset& table, int t) {
  table.moveFirst();
  table.move(4 * t);
}

TriangleCorners readTriangleCorners(Recordset& table, int t) {
  TriangleCorners corners;
  moveToFirstVertex(table, t);
  for (int k = 1; k <= 3; ++k) {
    if (k > 1) table.moveNext();
    corners.x[k] = table.number("koordinat1") / 1000;
    corners.y[k] = table.number("koordinat2") / 1000;
  }
  return corners;
}

}  // namespace tri
