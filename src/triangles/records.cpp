#include "triangles/records.h"

#include "store/ondayaz.h"

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

void appendVertexRow(Recordset& table, const Holes& h, int hole) {
  table.addNew();
  table.set("koordinat1", ondayaz(h.eks[hole]));
  table.set("koordinat2", ondayaz(h.eye[hole]));
  table.set("say", hole);
  table.set("sondgir", ondayaz(h.songir[hole]));
  table.set("cevhgir", ondayaz(h.cevgir[hole]));
  table.set("cevhcik", ondayaz(h.cevcik[hole]));
  table.set("sondcik", ondayaz(h.soncik[hole]));
  table.update();
}

}  // namespace tri
