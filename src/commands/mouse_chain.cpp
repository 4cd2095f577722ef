// The mouse chain of the canvas: every branch whose mode flag is on, in the fixed order.
#include "canvas/commands.h"
#include "commands/procedures.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "production/commands.h"
#include "scan/commands.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "triangles/commands.h"
#include "triangles/entry.h"
#include "views/commands.h"

namespace tri {

namespace {

using MouseHandler = void (*)(State&, int button, float x, float y);

// One row of the chain of Picture1_MouseDown: when its test holds, its handler runs with
// the button. A row whose branch is not in this program yet has no handler.
struct MouseRow {
  bool (*test)(const State&);
  MouseHandler handler;
};

bool entryMode(const State& s) { return s.flags.modcizim; }
bool cikartOn(const State& s) { return s.flags.modcikart; }
bool ucsecOn(const State& s) { return s.flags.moducsec; }

void enterTriangle(State& s, int button, float x, float y) { ucgeciz(s, x, y, button); }

// The chain, in its required order. Every row whose test holds runs: a branch does not
// end the chain.
// clang-format off
const MouseRow kMouseDownChain[] = {
    // test        handler
    {uretoprOn,    uretoprDown},    // production totals (right)
    {urortOn,      urortDown},      // production averages (right)
    {selan2On,     selan2Down},     // area selection, second pass (left)
    {urcevOn,      urcevDown},      // digitized closing (left)
    {trtumOn,      trtumDown},      // scan of all triangles (right)
    {trtekOn,      trtekDown},      // scan of one triangle (right)
    {naucizOn,     naucizDown},     // production area by points
    {suacizOn,     suacizDown},     // production area drawn freely
    {kaydirOn,     kaydirDown},     // start of a drag (right)
    {sucgen2On,    sucgen2Down},    // triangle selection for digitizing (left)
    {tiklamaOn,    tiklamaDown},    // scan selection (left)
    {cikartOn,     removeHoleAt},   // hole removal
    {ucsecOn,      pickCornerAt},   // triangle removal
    {overlayOn,    overlayDown},    // overlays (left)
    {entryMode,    enterTriangle},  // triangle entry, every button
};
// clang-format on

}  // namespace

void Picture1_MouseDown(State& s, int button, float x, float y) {
  for (const MouseRow& row : kMouseDownChain) {
    if (row.test(s) && row.handler) row.handler(s, button, x, y);
  }
}

namespace {

// Shows the ore entry and exit of the hole under the pointer, reading log afresh.
void hoverOverHole(State& s, float x, float y) {
  s.ui.hide("HScroll1");
  s.ui.line1.visible = false;
  {
    Database db = Database::open(s.projectPath());
    Recordset log = db.openTable(kLogTable);
    loadHoleRecords(s, log, HoleListEnd::ZeroX);
  }
  startPickAt(s.entry);
  const Holes& h = s.holes;
  for (int i = 1; i <= h.sondsay; ++i) {
    if (!holeMatches(h.eks[i], h.eye[i], x, y)) continue;
    s.ui.picture1ToolTip =
        "Giriş: " + numberText(h.cevgir[i]) + " Çıkış: " + numberText(h.cevcik[i]);
    return;
  }
  s.ui.picture1ToolTip.clear();
}

// The rubber band of triangle entry, from the hole last held to the pointer.
void followWithBand(State& s, float x, float y) {
  const Entry& e = s.entry;
  if (e.heldX == 0 || e.heldY == 0) return;
  LineControl& band = s.ui.line1;
  band = {true, e.heldX, e.heldY, x, y, 0, 1};
}

}  // namespace

void Picture1_MouseMove(State& s, int, float x, float y) {
  followOutline(s, x, y);
  if (s.flags.modsucgen || s.flags.modtiklama) hoverOverHole(s, x, y);
  if (s.flags.modcizim) followWithBand(s, x, y);
}

void Picture1_MouseUp(State& s, int button, float x, float y) { kaydirUp(s, button, x, y); }

}  // namespace tri
