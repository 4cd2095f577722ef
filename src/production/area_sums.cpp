// Production, Totals and Averages: what the digitized parts left in each area's sums,
// printed at the area's blue circle, and the keys of the two views.
#include <optional>
#include <string>

#include "canvas/replay.h"
#include "platform/vbtext.h"
#include "production/commands.h"
#include "scan/scan_steps.h"

namespace tri {

namespace {

constexpr Color kCyan = rgb(0, 255, 255);
constexpr Color kMagenta = rgb(255, 0, 255);
// The second value of an area is printed this far below its centre.
constexpr double kSecondLine = 15;

std::string rounded(double v) { return numberText(roundHalfEven(v, 2)); }
std::string rounded(const std::optional<double>& v) { return v ? rounded(*v) : ""; }

// The two values of every area counted, at its centre and below it.
template <class First, class Second>
void printAreaValues(State& s, Color firstColor, First first, Color secondColor, Second second) {
  const Production& pr = s.production;
  Canvas& c = s.canvas;
  for (int i = 1; i <= 2; ++i) {
    for (int j = 1; j <= pr.uralansay[i]; ++j) {
      const AreaSums& sums = pr.urAreaSums(i, j);
      const double x = pr.urmerkezx(i, j);
      const double y = pr.urmerkezy(i, j);
      c.drawWidth = 1;
      printText(c, firstColor, x, y, rounded(first(sums)));
      printText(c, secondColor, x, y - kSecondLine, rounded(second(sums)));
    }
  }
}

void startSumsView(State& s, bool Flags::*flag, const char* text) {
  startScanMode(s, flag);
  s.ui.setLabel(1, text);
  s.canvas.cls();
  ureciz(s);
}

std::string elevationKey(const Production& pr) {
  return "Elevation: " + elevationText(pr.urupkot, pr.urdownkot);
}

}  // namespace

void Mnuretopr_Click(State& s) {
  startSumsView(s, &Flags::moduretopr,
                " Total reserves and areas in production areas (Right Click: Key).");
  printAreaValues(
      s, kCyan, [](const AreaSums& a) { return a.urtopalan; }, kScanRed,
      [](const AreaSums& a) { return a.urtoprez; });
}

void Mnurort_Click(State& s) {
  startSumsView(s, &Flags::modurort,
                "Average grade and density in production areas (Right Click: Key).");
  printAreaValues(
      s, kScanGreen, [](const AreaSums& a) { return a.urortten; }, kMagenta,
      [](const AreaSums& a) { return a.urortyog; });
}

void urtpo(State& s, float x, float y) {
  Canvas& c = s.canvas;
  c.drawWidth = 1;
  printText(c, kScanBlue, x + 10, y, elevationKey(s.production));
  printKeyPoint(c, kCyan, x, y - 20);
  printText(c, kCyan, x + 10, y - 15, "Area (square meters)");
  printKeyPoint(c, kScanRed, x, y - 35);
  printText(c, kScanRed, x + 10, y - 30, "Reserve (Kilotons)");
  s.ui.setLabel(1, "Ready");
}

void urrto(State& s, float x, float y) {
  Canvas& c = s.canvas;
  c.drawWidth = 1;
  printText(c, kScanBlue, x + 10, y, elevationKey(s.production));
  printKeyPoint(c, kScanGreen, x, y - 15);
  printText(c, kScanGreen, x + 10, y - 10, "Tenor (%)");
  printKeyPoint(c, kMagenta, x, y - 30);
  printText(c, kMagenta, x + 10, y - 25, "Intensity ");
  s.ui.setLabel(1, "Ready");
}

bool uretoprOn(const State& s) { return s.flags.moduretopr; }

void uretoprDown(State& s, int button, float x, float y) {
  if (button == 2) urtpo(s, x, y);
}

// Tested only when the totals view is off.
bool urortOn(const State& s) { return s.flags.modurort && !s.flags.moduretopr; }

void urortDown(State& s, int button, float x, float y) {
  if (button == 2) urrto(s, x, y);
}

}  // namespace tri
