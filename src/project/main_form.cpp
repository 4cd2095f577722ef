#include "canvas/frame.h"
#include "canvas/replay.h"
#include "project/commands.h"
#include "project/project_commands.h"

namespace tri {

void Form_Load(State& s) {
  s.frame.olcekgirildi = false;
  s.frame.gridadim = 1;
  s.flags.ilkmod = true;
  s.ui.hide("HScroll1");
  enableProjectMenuItems(s, false);
}

void Form_Resize(State& s, int canvasWidth, int canvasHeight) {
  s.canvas.cls();
  s.frame.olcekgirildi = false;
  // The print layout's reference sizes, from the size in twips (15 to a pixel at 96 dpi).
  s.layout.referenceWidth = canvasWidth * 15.0 * 841 / 12825;
  s.layout.referenceHeight = canvasHeight * 15.0 * 361 / 7005;
  s.layout.lastCanvasWidth = s.canvas.pixelWidth();
  s.layout.lastCanvasHeight = s.canvas.pixelHeight();
  s.canvas.resize(canvasWidth, canvasHeight);
  replayAll(s);
}

void Mncikis_Click(State& s) { s.ui.closeRequested = true; }

}  // namespace tri
