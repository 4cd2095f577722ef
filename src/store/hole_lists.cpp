#include "store/hole_lists.h"

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

}  // namespace

void loadHoleCoordinates(State& s, Recordset& rs, HoleListEnd end) {
  Holes& h = s.holes;
  h.sondsay = countHoles(rs, end);
  clearCoordinates(h);
  rs.moveFirst();
  for (int i = 1; i <= h.sondsay; ++i) {
    readCoordinates(h, rs, i);
    h.isim[i] = rs.text("isim");
    rs.moveNext();
  }
}

void loadHoleRecords(State& s, Recordset& rs, HoleListEnd end) {
  Holes& h = s.holes;
  h.sondsay = countHoles(rs, end);
  clearCoordinates(h);
  clearHoleValues(h);
  rs.moveFirst();
  for (int i = 1; i <= h.sondsay; ++i) {
    readCoordinates(h, rs, i);
    h.isim[i] = rs.text("isim");
    h.songir[i] = rs.number("songir") / 1000;
    h.cevgir[i] = rs.number("cevgir") / 1000;
    h.cevcik[i] = rs.number("cevcik") / 1000;
    h.soncik[i] = rs.number("soncik") / 1000;
    rs.moveNext();
  }
}

}  // namespace tri
