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
    if (end == HoleListEnd::ZeroXOrPointName && isPointName(rs.text(field::isim))) break;
    if (rs.number(field::eks) == 0) break;
    rs.moveNext();
  }
  return n - 1;
}

const StoredLogReader::SlotFields& StoredLogReader::slot(int k) {
  while (static_cast<int>(slots_.size()) < k) {
    const int n = static_cast<int>(slots_.size()) + 1;
    slots_.push_back({rs_.fieldIndex(layerField(LayerField::Lit, n)),
                      rs_.fieldIndex(layerField(LayerField::Ten, n)),
                      rs_.fieldIndex(layerField(LayerField::Yog, n)),
                      rs_.fieldIndex(layerField(LayerField::Uz, n)),
                      rs_.fieldIndex(layerField(LayerField::Dya, n))});
  }
  return slots_[static_cast<size_t>(k - 1)];
}

std::vector<StoredLayer> StoredLogReader::layersOfCurrentRow(bool withFifth) {
  std::vector<StoredLayer> layers;
  for (int k = 1; k <= kMaxLayers; ++k) {
    const SlotFields& fields = slot(k);
    const double tenor = rs_.number(fields.ten);
    if (tenor == 0) break;
    StoredLayer layer;
    layer.ten = tenor;
    layer.yog = rs_.number(fields.yog);
    layer.uz = rs_.number(fields.uz);
    layer.lit = rs_.text(fields.lit);
    if (withFifth) layer.dya = rs_.number(fields.dya);
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
  h.eks[i] = rs.number(field::eks) / 1000;
  h.eye[i] = rs.number(field::eye) / 1000;
}

// One walk both counts the holes and reads them: the rows read are those the count
// passes over.
template <class ReadHole>
void walkHoles(State& s, Recordset& rs, HoleListEnd end, ReadHole readHole) {
  Holes& h = s.holes;
  rs.moveFirst();
  int n = 1;
  for (; n <= kMaxHoles; ++n) {
    if (end == HoleListEnd::ZeroXOrPointName && isPointName(rs.text(field::isim))) break;
    if (rs.number(field::eks) == 0) break;
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
    h.isim[i] = rs.text(field::isim);
  });
}

void loadHoleRecords(State& s, Recordset& rs, HoleListEnd end) {
  Holes& h = s.holes;
  clearCoordinates(h);
  clearHoleValues(h);
  walkHoles(s, rs, end, [&](int i) {
    readCoordinates(h, rs, i);
    h.isim[i] = rs.text(field::isim);
    h.songir[i] = rs.number(field::songir) / 1000;
    h.cevgir[i] = rs.number(field::cevgir) / 1000;
    h.cevcik[i] = rs.number(field::cevcik) / 1000;
    h.soncik[i] = rs.number(field::soncik) / 1000;
  });
}

}  // namespace tri
