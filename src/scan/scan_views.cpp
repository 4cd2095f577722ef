#include "canvas/selection.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "scan/bench_scan.h"
#include "scan/commands.h"
#include "scan/scan_steps.h"
#include "store/project_format.h"
#include "triangles/commands.h"
#include "triangles/records.h"

namespace tri {

namespace {

constexpr double kPickSquare = 5;

bool pickInRedSquare(const Scan& sc, int t) {
  const double x = sc.redpointx[t];
  const double y = sc.redpointy[t];
  return x - kPickSquare <= sc.pickx && sc.pickx <= x + kPickSquare &&
         y - kPickSquare <= sc.picky && sc.picky <= y + kPickSquare;
}

// Finds the first triangle whose red square holds the pick and reads its area; false, with
// the message, when none does. No triangle at all finds none and goes on.
bool findPickedTriangle(State& s, Recordset& table) {
  Scan& sc = s.scan;
  sc.ucgensay = triangleCount(table);
  table.moveFirst();
  sc.secucgen = 0;
  for (int t = 1; t <= sc.ucgensay; ++t) {
    for (int row = 0; row < 4; ++row) table.moveNext();
    if (pickInRedSquare(sc, t)) {
      sc.secucgen = t;
      sc.ucgalan[t] = table.number(field::ill) / 1000;
      return true;
    }
    if (t == sc.ucgensay) {
      s.ui.setLabel(1, "Relevant triangle not found");
      return false;
    }
  }
  return true;
}

// Reads every triangle's corners into the display's arrays and its area.
void readNetwork(State& s, Recordset& table) {
  Scan& sc = s.scan;
  sc.ucgensay = triangleCount(table);
  for (int t = 1; t <= sc.ucgensay; ++t) {
    setDisplayCorners(s.display, t, readTriangleCorners(table, t));
    table.moveNext();
    sc.ucgalan[t] = table.number(field::ill) / 1000;
  }
}

}  // namespace

void Mntrtum_Click(State& s) {
  startScanMode(s, &Flags::modtrtum);
  s.canvas.cls();
  ucgenplan(s);
  s.ui.setLabel(1, "Right Click: Key");
  Scan& sc = s.scan;
  {
    Database db = Database::open(s.projectPath());
    const std::optional<std::string> tableName = selectedTable(s);
    if (!tableName) return;
    {
      Recordset table = db.openTable(*tableName);
      readNetwork(s, table);
    }
    readScanLogs(s, db);
  }
  const Bench bench{sc.upkot, sc.downkot};
  const LayerFilter filter = selectedLayerFilter(s);
  Canvas& c = s.canvas;
  for (int t = 1; t <= sc.ucgensay; ++t) {
    const ScanMeans means = scanTriangle(sc, displayCorners(s.display, t), bench, filter);
    sc.scanrezerv = means.reserve(sc.ucgalan[t]);
    const double cx = keptCentreX(sc);
    const double cy = keptCentreY(sc);
    c.drawWidth = 1;
    printText(c, kScanGreen, cx - 5, cy, numberText(roundHalfEven(sc.ucgentenor, 2)));
    printText(c, kScanRed, cx - 5, cy - 12, numberText(roundHalfEven(sc.scanrezerv / 1000, 2)));
    clearKeptCorners(sc);
  }
}

void Mntrtek_Click(State& s) {
  startScanMode(s, &Flags::modtrtek);
  s.ui.setLabel(1, "Right Click: Key");
  Scan& sc = s.scan;
  {
    Database db = Database::open(s.projectPath());
    const std::optional<std::string> tableName = selectedTable(s);
    if (!tableName) return;
    {
      Recordset table = db.openTable(*tableName);
      if (!findPickedTriangle(s, table)) return;
    }
    readScanLogs(s, db);
  }
  const ScanMeans means =
      scanTriangle(s, displayCorners(s.display, sc.secucgen), {sc.upkot, sc.downkot});
  sc.scanrezerv = means.reserve(sc.ucgalan[sc.secucgen]);

  Canvas& c = s.canvas;
  c.cls();
  ucgenplan(s);
  c.drawWidth = 1;
  const ScanLabel label = scanLabelAt(keptCentreX(sc), keptCentreY(sc), sc.upkot, sc.downkot,
                                      sc.ucgentenor, sc.scanrezerv);
  printScanLabel(c, label);
  sc.scanlabel[sc.scansay] = label;
  // The canvas was cleared: every result comes back, the newest a second time.
  for (int n = 1; n <= sc.scansay; ++n) printScanLabel(c, sc.scanlabel[n]);
  clearKeptCorners(sc);
}

void tratm(State& s, float x, float y) {
  Canvas& c = s.canvas;
  c.drawWidth = 1;
  printText(c, kScanBlue, x + 10, y, "Elevation: " + elevationText(s.scan.upkot, s.scan.downkot));
  printKeyPoint(c, kScanGreen, x, y - 20);
  printText(c, kScanGreen, x + 10, y - 15, "Tenor (%)");
  printKeyPoint(c, kScanRed, x, y - 35);
  printText(c, kScanRed, x + 10, y - 30, "Reserve (Kilotons)");
  s.ui.setLabel(1, "Ready");
}

void tratk(State& s, float x, float y) {
  Canvas& c = s.canvas;
  printKeyPoint(c, kScanBlue, x, y);
  printText(c, kScanBlue, x + 10, y + 5, "Elevation");
  printKeyPoint(c, kScanGreen, x, y - 15);
  printText(c, kScanGreen, x + 10, y - 10, "Tenor (%)");
  printKeyPoint(c, kScanRed, x, y - 30);
  printText(c, kScanRed, x + 10, y - 25, "Reserve (Kilotons)");
  s.ui.setLabel(1, "Ready");
}

bool trtumOn(const State& s) { return s.flags.modtrtum; }

void trtumDown(State& s, int button, float x, float y) {
  if (button == 2) tratm(s, x, y);
}

bool trtekOn(const State& s) { return s.flags.modtrtek; }

void trtekDown(State& s, int button, float x, float y) {
  if (button == 2) tratk(s, x, y);
}

}  // namespace tri
