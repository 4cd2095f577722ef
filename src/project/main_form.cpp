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
  // The print layout's reference sizes, from the form's size in twips.
  const double twipsPerPixel = 1440 / s.canvas.dotsPerInch();
  s.layout.referenceWidth = s.layout.formWidth * twipsPerPixel * 841 / 12825;
  s.layout.referenceHeight = s.layout.formHeight * twipsPerPixel * 361 / 7005;
  s.layout.lastCanvasWidth = s.canvas.pixelWidth();
  s.layout.lastCanvasHeight = s.canvas.pixelHeight();
  s.canvas.resize(canvasWidth, canvasHeight);
  replayAll(s);
}

void Mncikis_Click(State& s) { s.ui.closeRequested = true; }

}  // namespace tri
