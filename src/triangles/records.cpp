#include "triangles/records.h"

#include <cmath>

#include "store/ondayaz.h"
#include "store/project_format.h"

namespace tri {

int triangleCount(Recordset& table) {
  table.moveLast();
  return static_cast<int>(table.number(field::ucgensay));
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
    corners.x[k] = table.number(field::koordinat1) / 1000;
    corners.y[k] = table.number(field::koordinat2) / 1000;
  }
  return corners;
}

VertexRow vertexOfHole(const Holes& h, int hole) {
  return {h.eks[hole],    h.eye[hole],    hole,          h.songir[hole],
          h.cevgir[hole], h.cevcik[hole], h.soncik[hole]};
}

VertexRow readVertexRow(const Recordset& table) {
  VertexRow v;
  v.x = table.number(field::koordinat1) / 1000;
  v.y = table.number(field::koordinat2) / 1000;
  v.hole = static_cast<int>(table.number(field::say));
  v.sondgir = table.number(field::sondgir) / 1000;
  v.cevhgir = table.number(field::cevhgir) / 1000;
  v.cevhcik = table.number(field::cevhcik) / 1000;
  v.sondcik = table.number(field::sondcik) / 1000;
  return v;
}

void appendVertexRow(Recordset& table, const VertexRow& v) {
  table.addNew();
  table.set(field::koordinat1, ondayaz(v.x));
  table.set(field::koordinat2, ondayaz(v.y));
  table.set(field::say, v.hole);
  table.set(field::sondgir, ondayaz(v.sondgir));
  table.set(field::cevhgir, ondayaz(v.cevhgir));
  table.set(field::cevhcik, ondayaz(v.cevhcik));
  table.set(field::sondcik, ondayaz(v.sondcik));
  table.update();
}

void appendSummaryRow(Recordset& table, const Frame& f, const SummaryRow& v) {
  table.addNew();
  table.set(field::ilkuz, ondayaz(v.length));
  table.set(field::ebxk, ondayaz(f.ebxk));
  table.set(field::ekxk, ondayaz(f.ekxk));
  table.set(field::ebyk, ondayaz(f.ebyk));
  table.set(field::ekyk, ondayaz(f.ekyk));
  table.set(field::genelrezerv, ondayaz(v.reserveKt));
  table.set(field::geneltenor, ondayaz(v.tenor));
  if (const auto& x = v.extent) {
    table.set(field::ortucgen1, ondayaz(std::abs(x->kx - x->bx)));
    table.set(field::ortucgen2, ondayaz(std::abs(x->by - x->ky)));
    table.set(field::ortucgen11, ondayaz(x->kx));
    table.set(field::ortucgen21, ondayaz(x->ky));
  }
  table.set(field::ucgensay, v.number);
  table.set(field::genelyog, ondayaz(v.density));
  table.set(field::ill, ondayaz(v.area));
  table.set(field::kubaj, ondayaz(v.cubage));
  table.set(field::tonaj, ondayaz(v.tonnage));
  table.update();
}

void renumberSummaryRow(Recordset& table, int number) {
  table.updateField(field::ucgensay, number);
}

}  // namespace tri
