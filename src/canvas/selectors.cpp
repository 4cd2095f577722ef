#include "canvas/commands.h"
#include "canvas/frame.h"
#include "canvas/replay.h"
#include "canvas/selection.h"
#include "platform/store.h"
#include "store/hole_lists.h"
#include "store/project_format.h"

namespace tri {

std::optional<std::string> selectedTable(const State& s) {
  const Controls& ui = s.ui;
  const bool projectLithologyDrawing =
      ui.combo5.listIndex() > 0 && ui.combo4.listIndex() > 0 && ui.combo2.listIndex() > 0;
  if (projectLithologyDrawing && ui.combo1.listIndex() > 0 && ui.combo1.text() != "0") {
    return limitTableName(ui.combo1.text(), ui.combo2.text());
  }
  if (projectLithologyDrawing && ui.combo1.listIndex() == 0 && !ui.combo2.text().empty()) {
    return ui.combo2.text();
  }
  return std::nullopt;
}

void resetToTitle(Combo& combo, const char* title) {
  combo.clear();
  combo.addItem(title);
}

namespace {

void selectTitle(Combo& combo, const char* title) {
  combo.addItem(title);
  combo.setListIndex(0);
}

// Clears the lists below the project and selects their titles.
void resetBelowProject(State& s) {
  s.ui.combo1.clear();
  s.ui.combo2.clear();
  s.ui.combo4.clear();
  selectTitle(s.ui.combo1, kLimitTitle);
  selectTitle(s.ui.combo2, kDrawingTitle);
  selectTitle(s.ui.combo4, kLithologyTitle);
}

void reloadProjectHoles(State& s, int p) {
  Database db = Database::open(s.projects.projeyol[p]);
  Recordset kor = db.openTable(kHoleTable);
  loadHoleCoordinates(s, kor, HoleListEnd::ZeroXOrPointName);
}

}  // namespace

void Combo5_Click(State& s) {
  resetBelowProject(s);
  if (s.ui.combo5.text() == kProjectTitle) return;
  const int p = s.ui.combo5.listIndex();
  for (int l = 1; l <= s.projects.litsay[p]; ++l) s.ui.combo4.addItem(s.projects.litad.get(p, l));
  reloadProjectHoles(s, p);
  frameReset(s);
}

void Combo4_Click(State& s) {
  s.ui.combo1.clear();
  s.ui.combo2.clear();
  if (s.ui.combo4.text() == kLithologyTitle) {
    selectTitle(s.ui.combo1, kLimitTitle);
    selectTitle(s.ui.combo2, kDrawingTitle);
    return;
  }
  s.ui.combo1.addItem(kLimitTitle);
  s.ui.combo2.addItem(kDrawingTitle);
  const int p = s.project();
  const int l = s.lithology();
  for (int d = 1; d <= s.projects.cizimsay.get(p, l); ++d) {
    s.ui.combo2.addItem(s.projects.cizimad.get(p, l, d));
  }
}

void Combo2_Click(State& s) {
  s.ui.combo1.clear();
  selectTitle(s.ui.combo1, kLimitTitle);
  if (s.ui.combo2.text() == kDrawingTitle) return;
  const int p = s.project();
  const int l = s.lithology();
  const int d = s.drawing();
  for (int k = 1; k <= s.projects.limsay.get(p, l, d); ++k) {
    const LimitTenor& limit = s.projects.limdeger.get(p, l, d, k);
    if (limit.value != 0) s.ui.combo1.addItem(limit.text);
  }
  replayTail(s);
}

void Combo1_Click(State& s) {
  if (s.ui.combo1.text() == kLimitTitle && s.ui.combo2.text() == kDrawingTitle) return;
  replayTail(s);
}

}  // namespace tri
