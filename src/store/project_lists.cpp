#include "store/project_lists.h"

#include "platform/vbtext.h"
#include "store/project_format.h"

namespace tri {

void loadLithologies(State& s, Database& db, int p) {
  Recordset list = db.openTable(kLithologyListTable);
  list.moveLast();
  s.projects.litsay[p] = static_cast<int>(list.number(field::litno));
  list.moveFirst();
  for (int k = 1; k <= s.projects.litsay[p]; ++k) {
    s.projects.litad(p, k) = list.text(field::isim);
    list.moveNext();
  }
}

bool limitSlotInUse(const Recordset& row, int k) {
  const std::string name = row.text(numbered(field::limten, k));
  const std::string value = numbered(field::limdeg, k);
  return !name.empty() && name != kFreeSlot && !row.isNull(value) && row.number(value) != 0;
}

void loadDrawings(State& s, Database& db, int p, int l) {
  Projects& pr = s.projects;
  pr.cizimad.erasePrefix(p, l);
  pr.limsay.erasePrefix(p, l);
  pr.limdeger.erasePrefix(p, l);

  Recordset table = db.openTable(pr.litad.get(p, l));
  table.moveLast();
  pr.cizimsay(p, l) = static_cast<int>(table.number(field::tsay));
  table.moveFirst();
  table.moveNext();
  for (int d = 1; d <= pr.cizimsay.get(p, l); ++d) {
    pr.cizimad(p, l, d) = table.text(field::cizim);
    for (int k = 1; k <= kLimitSlotsLoaded; ++k) {
      if (!limitSlotInUse(table, k)) continue;
      pr.limsay(p, l, d) += 1;
      const double value = table.number(numbered(field::limdeg, k)) / 1000;
      pr.limdeger(p, l, d, k) = LimitTenor{value, numberText(value)};
    }
    table.moveNext();
  }
}

}  // namespace tri
