#include "store/hole_lists.h"

#include "store/project_format.h"

namespace tri {

bool isPointName(const std::string& isim) {
  const std::string firstTwo = isim.substr(0, 2);
  return firstTwo == "po" || firstTwo == "uz";
}

int countHoles(Recordset& rs, HoleListEnd end) {
  rs.moveFirst();
  int n = 1;
  for (; n <= kMaxHoles; ++n) {
    if (end == HoleListEnd::ZeroXOrPointName && isPointName(rs.text("isim"))) break;
    if (rs.number("eks") == 0) break;
    rs.moveNext();
  }
  return n - 1;
}

std::vector<StoredLayer> readStoredLog(const Recordset& rs, bool withFifth) {
  std::vector<StoredLayer> layers;
  for (int k = 1; k <= kMaxLayers; ++k) {
    const double tenor = rs.number(layerField(LayerField::Ten, k));
    if (tenor == 0) break;
    StoredLayer layer;
    layer.ten = tenor;
    layer.yog = rs.number(layerField(LayerField::Yog, k));
    layer.uz = rs.number(layerField(LayerField::Uz, k));
    layer.lit = rs.text(layerField(LayerField::Lit, k));
    if (withFifth) layer.dya = rs.number(layerField(LayerField::Dya, k));
    layers.push_back(std::move(layer));
  }
  return layers;
}

namespace {

void clearCoordinates(Holes& h) {
  h.eks.clear();
  h.eye.clear();
  h.isim.clear();
}

void clearHoleValues(Holes& h) {
  for (auto* values : {&h.songir, &h.cevgir, &h.cevcik, &h.soncik}) values->clear();
}

void readCoordinates(Holes& h, const Recordset& rs, int i) {
  h.eks[i] = rs.number("eks") / 1000;
  h.eye[i] = rs.number("eye") / 1000;
}

// One walk both counts the holes and reads them: the rows read are those the count
// passes over.
template <class ReadHole>
void walkHoles(State& s, Recordset& rs, HoleListEnd end, ReadHole readHole) {
  Holes& h = s.holes;
  rs.moveFirst();
  int n = 1;
  for (; n <= kMaxHoles; ++n) {
    if (end == HoleListEnd::ZeroXOrPointName && isPointName(rs.text("isim"))) break;
    if (rs.number("eks") == 0) break;
    readHole(n);
    rs.moveNext();
  }
  h.sondsay = n - 1;
}

}  // namespace

void loadHoleCoordinates(State& s, Recordset& rs, HoleListEnd end) {
  Holes& h = s.holes;
  clearCoordinates(h);
  walkHoles(s, rs, end, [&](int i) {
    readCoordinates(h, rs, i);
    h.isim[i] = rs.text("isim");
  });
}

void loadHoleRecords(State& s, Recordset& rs, HoleListEnd end) {
  Holes& h = s.holes;
  clearCoordinates(h);
  clearHoleValues(h);
  walkHoles(s, rs, end, [&](int i) {
    readCoordinates(h, rs, i);
    h.isim[i] = rs.text("isim");
    h.songir[i] = rs.number("songir") / 1000;
    h.cevgir[i] = rs.number("cevgir") / 1000;
    h.cevcik[i] = rs.number("cevcik") / 1000;
    h.soncik[i] = rs.number("soncik") / 1000;
  });
}

}  // namespace tri
