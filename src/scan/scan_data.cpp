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
  Canvas& c = s.canvas;
  const Display& d = s.display;
  for (int t = 1; t <= d.ucgendraw; ++t) {
    c.foreColor = kScanRed;
    c.drawWidth = 10;
    const double x = (d.x2[t] + d.x1[t] + d.x3[t]) / 3;
    const double y = (d.y2[t] + d.y1[t] + d.y3[t]) / 3;
    c.pset(x, y);
    s.scan.redpointx[t] = x;
    s.scan.redpointy[t] = y;
  }
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
