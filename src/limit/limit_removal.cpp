#include "canvas/replay.h"
#include "canvas/selection.h"
#include "limit/commands.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "store/project_format.h"
#include "store/project_lists.h"

namespace tri {

namespace {

// The drawing's row in its lithology's table: the row as many rows on from the header as
// the drawing's index in Combo2.
Recordset openDrawingRow(Database& db, const State& s) {
  Recordset table = db.openTable(s.projects.litad.get(s.project(), s.lithology()));
  table.moveFirst();
  table.move(s.drawing());
  return table;
}

void freeSlot(Recordset& row, int slot) {
  row.edit();
  row.set(numbered(field::limdeg, slot), 0);
  row.set(numbered(field::limten, slot), kFreeSlot);
  row.update();
}

// Lists the limits of slots 1 to 10 again from the drawing's row, as their stored values.
void relistLimits(State& s, const Recordset& row) {
  const int p = s.project();
  const int l = s.lithology();
  const int d = s.drawing();
  for (int slot = 1; slot <= kLimitSlotsLoaded; ++slot) {
    if (!limitSlotInUse(row, slot)) continue;
    const double value = row.number(numbered(field::limdeg, slot)) / 1000;
    s.projects.limdeger(p, l, d, slot) = LimitTenor{value, numberText(value)};
    s.ui.combo1.addItem(numberText(value));
  }
}

}  // namespace

void Mnlimsil_Click(State& s) {
  if (s.ui.combo1.text() == "0") return;
  if (s.flags.sonkesmod && s.markers.shapesay > 0) removeMarkers(s);
  const int slot = s.ui.combo1.listIndex();
  {
    Database db = Database::open(s.projectPath());
    db.deleteTable(limitTableName(s.ui.combo1.text(), s.ui.combo2.text()));
    Recordset row = openDrawingRow(db, s);
    freeSlot(row, slot);
  }
  resetToTitle(s.ui.combo1, kLimitTitle);
  s.ui.combo1.setListIndex(0);
  Database db = Database::open(s.projectPath());
  const Recordset row = openDrawingRow(db, s);
  relistLimits(s, row);
}

}  // namespace tri
