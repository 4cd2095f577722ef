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

// The lists below the lithology at their titles. The drawing's title goes first, so that
// the limit's title, chosen with it, redraws nothing.
void selectTitlesBelowLithology(State& s) {
  resetToTitle(s.ui.combo1, kLimitTitle);
  resetToTitle(s.ui.combo2, kDrawingTitle);
  s.ui.combo2.setListIndex(0);
  s.ui.combo1.setListIndex(0);
}

// The lists below the project at their titles; choosing the lithology's title resets the
// two below it.
void selectTitlesBelowProject(State& s) {
  resetToTitle(s.ui.combo1, kLimitTitle);
  resetToTitle(s.ui.combo2, kDrawingTitle);
  resetToTitle(s.ui.combo4, kLithologyTitle);
  s.ui.combo4.setListIndex(0);
}

void reloadProjectHoles(State& s, int p) {
  Database db = Database::open(s.projects.projeyol[p]);
  Recordset kor = db.openTable(kHoleTable);
  loadHoleCoordinates(s, kor, HoleListEnd::ZeroXOrPointName);
}

}  // namespace

void Combo5_Click(State& s) {
  selectTitlesBelowProject(s);
  if (s.ui.combo5.text() == kProjectTitle) return;
  const int p = s.ui.combo5.listIndex();
  for (int l = 1; l <= s.projects.litsay[p]; ++l) s.ui.combo4.addItem(s.projects.litad.get(p, l));
  reloadProjectHoles(s, p);
  frameReset(s);
}

void Combo4_Click(State& s) {
  if (s.ui.combo4.text() == kLithologyTitle) {
    selectTitlesBelowLithology(s);
    return;
  }
  resetToTitle(s.ui.combo1, kLimitTitle);
  resetToTitle(s.ui.combo2, kDrawingTitle);
  const int p = s.project();
  const int l = s.lithology();
  for (int d = 1; d <= s.projects.cizimsay.get(p, l); ++d) {
    s.ui.combo2.addItem(s.projects.cizimad.get(p, l, d));
  }
}

void Combo2_Click(State& s) {
  resetToTitle(s.ui.combo1, kLimitTitle);
  s.ui.combo1.setListIndex(0);
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

}  // namespace tri
