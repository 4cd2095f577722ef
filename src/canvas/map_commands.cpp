// The commands of the Map menu.
#include "canvas/commands.h"
#include "canvas/frame.h"
#include "canvas/replay.h"
#include "platform/fault.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/project_format.h"

namespace tri {

namespace {

// Moves every side of the frame outward by `step` (inward when negative) and on by the pan
// offsets; the offsets are added at every click, so each zoom after a drag pans once more.
void zoomFrame(State& s, double step) {
  removeMarkers(s);
  clearForReplay(s);
  s.frame.olcekgirildi = false;
  Frame& f = s.frame;
  f.buyutadim = 0.05;
  const double d = step * f.buyutadim;
  f.ebxk = f.ebxk + d + f.kaydirx;
  f.ekxk = f.ekxk - d + f.kaydirx;
  f.ebyk = f.ebyk + d + f.kaydiry;
  f.ekyk = f.ekyk - d + f.kaydiry;
  replayFlags(s);
}

// The menu's check marks of the grid density, and the flag that records the last choice.
void markGridChoice(State& s, bool dilute) {
  s.ui.check("Mnsiklastir", !dilute);
  s.ui.check("Mnseyrelt", dilute);
  s.frame.gridseyrek = dilute;
}

}  // namespace

void Mnbuyut_Click(State& s) { zoomFrame(s, -1); }

void Mnpolkuc_Click(State& s) { zoomFrame(s, 1); }

void Mnkaydir_Click(State& s) {
  removeMarkers(s);
  clearDrawingFlags(s);
  Frame& f = s.frame;
  ++f.kaydirsay;
  f.kaydirmod = f.kaydirsay % 2 != 0;
  if (f.kaydirmod) s.ui.setLabel(1, " Drag with Right Click ");
  s.ui.check("Mnkaydir", f.kaydirmod);
  for (const char* item : {"MNolcek", "Mntoprez", "Mnorten", "Mnhorten", "Mnaortyog", "Mnkortyog"})
    s.ui.check(item, false);
  s.views.overlays.disarm();
}

bool kaydirOn(const State& s) { return s.frame.kaydirmod; }

void kaydirDown(State& s, int button, float x, float y) {
  if (button != 2) return;
  s.frame.dragStartX = x;
  s.frame.dragStartY = y;
}

void kaydirUp(State& s, int button, float x, float y) {
  if (button != 2 || !s.frame.kaydirmod) return;
  Frame& f = s.frame;
  // The frame follows the hand: what was under the pointer at the press is under it again.
  const double dx = f.dragStartX - x;
  const double dy = f.dragStartY - y;
  f.kaydirx += dx;
  f.kaydiry += dy;
  f.ebxk += dx;
  f.ekxk += dx;
  f.ebyk += dy;
  f.ekyk += dy;
  replayAll(s);
}

void Mnseyrelt_Click(State& s) {
  removeMarkers(s);
  markGridChoice(s, true);
  ++s.frame.gridadim;
  clearForReplay(s);
  replayFlags(s);
}

void Mnsiklastir_Click(State& s) {
  removeMarkers(s);
  markGridChoice(s, false);
  --s.frame.gridadim;
  // The spacing, gridadim + 2 centimetres of canvas, never goes below one centimetre.
  if (s.frame.gridadim <= -1) s.frame.gridadim = -1;
  clearForReplay(s);
  replayFlags(s);
}

void Mnolcekg_Click(State& s) {
  removeMarkers(s);
  clearDrawingFlags(s);
  s.frame.olcekgirildi = true;
  const std::string answer = s.dialogs.inputBox("Enter Scale:", "");
  // A cancelled or empty answer is no number: the program stops here.
  if (!isNumberText(answer)) {
    throw Fault(FaultKind::TypeMismatch, "the scale \"" + answer + "\" is not a number");
  }
  s.frame.olcek = toNumber(answer) / 100;
  clearForReplay(s);
  replayFlags(s);
}

void Mnlimit_Click(State& s) {
  removeMarkers(s);
  s.frame.olcekgirildi = false;
  clearDrawingFlags(s);
  {
    Database db = Database::open(s.projectPath());
    Recordset kor = db.openTable(kHoleTable);
    loadHoleCoordinates(s, kor, HoleListEnd::ZeroX);
  }
  frameReset(s);
  s.frame.kaydirx = 0;
  s.frame.kaydiry = 0;
  applyAreaLimit(s, LimitWording::Plain);
  s.frame.haritagen = s.frame.ebxk - s.frame.ekxk;
  s.frame.haritayuk = s.frame.ebyk - s.frame.ekyk;
  layoutAfterLoad(s);
  setCanvasScale(s);
  // One of the commands that run the whole replay: the old picture goes even when no
  // view is on.
  replayAll(s);
}

}  // namespace tri
