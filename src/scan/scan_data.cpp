#include "canvas/replay.h"
#include "platform/vbtext.h"
#include "scan/commands.h"
#include "scan/scan_steps.h"
#include "triangles/commands.h"

namespace tri {

void Mntkot_Click(State& s) { askElevations(s, s.scan.upkot, s.scan.downkot); }

void Mntiklama_Click(State& s) {
  ucgenplan(s);
  startScanMode(s, &Flags::modtiklama);
  // Every run reserves the slot of the coming result, a replay's run too.
  s.scan.scansay += 1;
  s.ui.setLabel(1, "Click on the red point in the corresponding triangle");
  drawRedPoints(s);
}

void Mnttem_Click(State& s) {
  startScanMode(s, nullptr);
  s.canvas.cls();
  ucgenplan(s);
  Scan& sc = s.scan;
  for (int n = 1; n <= sc.scansay; ++n) sc.scanlabel[n] = ScanLabel{};
  sc.scansay = 0;
}

bool tiklamaOn(const State& s) { return s.flags.modtiklama; }

void tiklamaDown(State& s, int button, float x, float y) {
  if (button != 1) return;
  s.scan.pickx = x;
  s.scan.picky = y;
  s.ui.setLabel(1, "Relevant Field Selected.");
}

}  // namespace tri
