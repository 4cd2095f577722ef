#include "scan/scan_steps.h"

#include "canvas/replay.h"
#include "platform/vbtext.h"

namespace tri {

void startScanMode(State& s, bool Flags::*flag) {
  clearViewFlags(s);
  if (flag) s.flags.*flag = true;
  for (const char* item : {"Mnkaydir", "Mnolcekg", "Mntoprez", "MNolcek", "Mnorten", "Mnhorten",
                           "Mnkortyog", "Mnaortyog"}) {
    s.ui.enable(item);
  }
  removeMarkers(s);
  for (const char* name :
       {"Combo3", "Command1", "Frame1", "Frame2", "Picture2", "Command2", "HScroll1"}) {
    s.ui.hide(name);
  }
  s.ui.show("Picture1");
}

void printText(Canvas& c, Color color, double x, double y, const std::string& text) {
  c.foreColor = color;
  c.currentX = x;
  c.currentY = y;
  c.print(text);
}

void askElevations(State& s, double& up, double& down) {
  const double put = toNumber("Put ");
  const double sign = toNumber(" sign before negative elevation");
  s.ui.setLabel(1, numberText(put - sign));
  removeMarkers(s);
  up = toNumber(s.dialogs.inputBox("Enter Up Elevation: ", ""));
  down = toNumber(s.dialogs.inputBox("Enter Down Elevation: ", ""));
}

void drawRedPoints(State& s) {
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

void printKeyPoint(Canvas& c, Color color, double x, double y) {
  c.drawWidth = 5;
  c.foreColor = color;
  c.pset(x, y);
  c.drawWidth = 1;
}

std::string elevationText(double up, double down) {
  return "(" + numberText(up) + " , " + numberText(down) + ")";
}

ScanLabel scanLabelAt(double cx, double cy, double up, double down, double tenor,
                      double reserveTons) {
  ScanLabel label;
  label.elevx = cx - 5;
  label.elevy = cy;
  label.elevup = numberText(up);
  label.elevdown = numberText(down);
  label.tenorx = cx - 5;
  label.tenory = cy - 12;
  label.tenortext = numberText(roundHalfEven(tenor, 2));
  label.reservex = cx - 5;
  label.reservey = cy - 24;
  label.reservetext = numberText(roundHalfEven(reserveTons / 1000, 2));
  return label;
}

void printScanLabel(Canvas& c, const ScanLabel& label) {
  printText(c, kScanBlue, label.elevx, label.elevy, label.elevationText());
  printText(c, kScanGreen, label.tenorx, label.tenory, label.tenortext);
  printText(c, kScanRed, label.reservex, label.reservey, label.reservetext);
}

}  // namespace tri
