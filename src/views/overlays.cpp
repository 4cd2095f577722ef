// View, Add: the summary figures of the deposit and the dial of the colour classes, each
// armed by its command and printed on the plan wherever the user then clicks.
#include <string>

#include "canvas/frame.h"
#include "canvas/replay.h"
#include "canvas/selection.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "store/project_format.h"
#include "triangles/records.h"
#include "views/commands.h"

namespace tri {

namespace {

constexpr const char* kChooseWhere = "Choose Where You Want to Print";

// An item of the overlays: its menu item, its pending flag and the slot of its place.
struct OverlayItem {
  const char* menuItem;
  bool Overlays::*pending;
  int slot;
};

// In the order a click places them.
constexpr OverlayItem kScale{"MNolcek", &Overlays::olcekyaz, 1};
constexpr OverlayItem kDial{"Mnskala", &Overlays::skalayaz, 8};
constexpr OverlayItem kAreaTenor{"Mnorten", &Overlays::alanortenyaz, 2};
constexpr OverlayItem kCubageTenor{"Mnhorten", &Overlays::kubajortenyaz, 3};
constexpr OverlayItem kAreaDensity{"Mnaortyog", &Overlays::alanortyogyaz, 4};
constexpr OverlayItem kCubageDensity{"Mnkortyog", &Overlays::kubajortyogyaz, 5};
constexpr OverlayItem kTotalReserve{"Mntoprez", &Overlays::toprezyaz, 6};
constexpr OverlayItem kLimitTenor{"Mnelmtnr", &Overlays::limtenyaz, 7};
constexpr OverlayItem kItems[] = {kScale,       kDial,          kAreaTenor,    kCubageTenor,
                                  kAreaDensity, kCubageDensity, kTotalReserve, kLimitTenor};

bool odd(int count) { return count % 2 != 0; }

// Sets the item's flag and clears the other seven with their check marks.
void armOnly(State& s, const OverlayItem& item) {
  Overlays& o = s.views.overlays;
  for (const OverlayItem& other : kItems) {
    if (other.pending == item.pending) continue;
    o.*other.pending = false;
    s.ui.check(other.menuItem, false);
  }
  o.*item.pending = true;
}

// Steps 1 and 2 of every command: the markers go, and nothing is armed while a tool that
// picks on the canvas is on.
bool toolsAllowOverlay(State& s) {
  removeMarkers(s);
  const Flags& f = s.flags;
  return !(f.modcikart || f.moducsec || f.modcizim);
}

void dragModeOff(State& s) {
  s.frame.kaydirmod = false;
  s.ui.check("Mnkaydir", false);
}

// Raises the counter: an even count disarms every item, an odd one arms this item alone.
// Returns true when armed.
bool countAndArm(State& s, int& counter, const OverlayItem& item,
                 const char* label = kChooseWhere) {
  ++counter;
  if (!odd(counter)) {
    s.views.overlays.disarm();
    for (const OverlayItem& each : kItems) s.ui.check(each.menuItem, false);
    return false;
  }
  s.ui.setLabel(1, label);
  armOnly(s, item);
  s.ui.check(item.menuItem, true);
  return true;
}

// Runs `each` on every summary row of the selected table, in table order, and returns true;
// false when the selectors name no table.
template <class Each>
bool walkSummaryRows(State& s, Each each) {
  Database db = Database::open(s.projectPath());
  const std::optional<std::string> name = selectedTable(s);
  if (!name) return false;
  Recordset table = db.openTable(*name);
  const int n = triangleCount(table);
  table.moveFirst();
  for (int i = 1; i <= n; ++i) {
    table.move(4);
    each(table);
  }
  return true;
}

// The sum of weight x value over the sum of weight, both summed over every triangle and
// divided once; 0 without a table. A weight that sums to 0 is a division by zero.
double weightedMean(State& s, const char* weight, const char* value, const char* what) {
  double weighted = 0;
  double weights = 0;
  const bool found = walkSummaryRows(s, [&](const Recordset& row) {
    const double w = row.number(weight) / 1000;
    weighted += w * (row.number(value) / 1000);
    weights += w;
  });
  return found ? divide(weighted, weights, what) : 0;
}

double totalReserve(State& s) {
  double total = 0;
  walkSummaryRows(s, [&](const Recordset& row) { total += row.number(field::genelrezerv) / 1000; });
  return total;
}

double areaTenor(State& s) {
  return weightedMean(s, field::ill, field::geneltenor, "the area-relative tenor");
}
double cubageTenor(State& s) {
  return weightedMean(s, field::kubaj, field::geneltenor, "the cubage-relative tenor");
}
double areaDensity(State& s) {
  return weightedMean(s, field::ill, field::genelyog, "the area-relative density");
}
double cubageDensity(State& s) {
  return weightedMean(s, field::kubaj, field::genelyog, "the cubage-relative density");
}

// The limit chosen in Combo1; at its title the number stays as it was.
void takeChosenLimit(State& s) {
  if (s.ui.combo1.listIndex() != 0) s.views.overlays.seclimten = toNumber(s.ui.combo1.text());
}

std::string rounded(double x, int decimals) { return numberText(roundHalfEven(x, decimals)); }

std::string overlayText(const State& s, const OverlayItem& item) {
  const Overlays& o = s.views.overlays;
  switch (item.slot) {
    case 1: return "Scale: 1/" + rounded(100 * s.frame.olcekx, 2);
    case 2: return "Area Relative Avg. Tenor: %" + rounded(o.alanortten, 2);
    case 3: return "Cubaj Relative Avg. Tenor: %" + rounded(o.kubajortten, 2);
    case 4: return "Area Relative Avg. Intensity: " + rounded(o.alanortyog, 2);
    case 5: return "Cubaj Relative Avg. Intensity: " + rounded(o.kubajortyog, 2);
    case 6: return "Total Reserve: " + rounded(o.toprez, 5) + " Kiloton";
    default: return "Limit Tenor: %" + rounded(o.seclimten, 2);
  }
}

void printAt(Canvas& c, double x, double y, const std::string& text) {
  c.currentX = x;
  c.currentY = y;
  c.print(text);
}

// The classes of the last general map as bars 20 map units long with gaps of 10, lowest
// at the left, between its smallest and its greatest reserve.
void drawDial(State& s, double x, double y) {
  Canvas& c = s.canvas;
  const Views& w = s.views;
  for (long j = 1; j <= w.renksay; ++j) {
    c.drawWidth = 10;
    c.line(x + (j - 1) * 30 + 10, y, x + j * 30, y, w.renkler[j]);
  }
  c.drawWidth = 1;
  c.foreColor = 0;
  printAt(c, x, y - 5, rounded(w.rezervsira[1], 5));
  printAt(c, x + w.renksay * 30, y - 5, rounded(w.rezervsira[w.rezervsay], 5));
  printAt(c, x + w.renksay * 30 / 2, y + 40, "Kiloton");
}

// Combo1_Click's update of an item whose counter is odd: armed again, alone.
void rearm(State& s, const OverlayItem& item, const char* label = kChooseWhere) {
  s.ui.setLabel(1, label);
  armOnly(s, item);
}

}  // namespace

void MNolcek_Click(State& s) {
  if (!toolsAllowOverlay(s)) return;
  dragModeOff(s);
  countAndArm(s, s.views.overlays.olceksay, kScale);
}

void Mnskala_Click(State& s) {
  if (!toolsAllowOverlay(s)) return;
  dragModeOff(s);
  int count = 0;  // afresh in every use: the dial always arms
  countAndArm(s, count, kDial);
}

void Mnorten_Click(State& s) {
  if (!toolsAllowOverlay(s)) return;
  dragModeOff(s);
  Overlays& o = s.views.overlays;
  o.alanortten = 0;
  if (countAndArm(s, o.alanortensay, kAreaTenor)) o.alanortten = areaTenor(s);
}

void Mnhorten_Click(State& s) {
  if (!toolsAllowOverlay(s)) return;
  dragModeOff(s);
  Overlays& o = s.views.overlays;
  o.kubajortten = 0;
  if (countAndArm(s, o.kubajortensay, kCubageTenor)) o.kubajortten = cubageTenor(s);
}

void Mnaortyog_Click(State& s) {
  if (!toolsAllowOverlay(s)) return;
  dragModeOff(s);
  Overlays& o = s.views.overlays;
  o.alanortyog = 0;
  if (countAndArm(s, o.alanortyogsay, kAreaDensity, " Choose Where You Want to Print ")) {
    o.alanortyog = areaDensity(s);
  }
}

void Mnkortyog_Click(State& s) {
  if (!toolsAllowOverlay(s)) return;
  dragModeOff(s);
  Overlays& o = s.views.overlays;
  o.kubajortyog = 0;
  if (countAndArm(s, o.kubajortyogsay, kCubageDensity)) o.kubajortyog = cubageDensity(s);
}

void Mntoprez_Click(State& s) {
  if (!toolsAllowOverlay(s)) return;
  dragModeOff(s);
  Overlays& o = s.views.overlays;
  o.toprez = 0;
  if (countAndArm(s, o.toprezsay, kTotalReserve)) o.toprez = totalReserve(s);
}

void Mnelmtnr_Click(State& s) {
  if (!toolsAllowOverlay(s)) return;
  Overlays& o = s.views.overlays;
  if (s.ui.combo1.text() == kLimitTitle) {
    o.seclimten = 0;
    const char* ask = "Select the Limit Grade You Want to Print";
    s.ui.setLabel(1, ask);
    s.dialogs.messageBox(ask, Buttons::OK, Icon::None, "");
    return;
  }
  dragModeOff(s);
  if (countAndArm(s, o.limtensay, kLimitTenor)) takeChosenLimit(s);
}

bool overlayOn(const State& s) { return s.views.overlays.armed(); }

void overlayDown(State& s, int button, float x, float y) {
  if (button != 1) return;
  Overlays& o = s.views.overlays;
  Canvas& c = s.canvas;
  for (const OverlayItem& item : kItems) {
    if (!(o.*item.pending)) continue;
    o.yazikonum[item.slot] = {x, y};
    if (item.slot == kScale.slot || item.slot == kDial.slot) setCanvasScale(s);
    if (item.slot == kDial.slot) {
      drawDial(s, x, y);
      continue;
    }
    c.drawWidth = 3;
    c.foreColor = 0;
    printAt(c, x, y, overlayText(s, item));
  }
}

void Combo1_Click(State& s) {
  if (s.ui.combo1.text() == kLimitTitle && s.ui.combo2.text() == kDrawingTitle) return;
  Overlays& o = s.views.overlays;
  if (odd(o.toprezsay)) {
    rearm(s, kTotalReserve);
    o.toprez = totalReserve(s);
  }
  if (odd(o.kubajortensay)) {
    rearm(s, kCubageTenor);
    o.kubajortten = cubageTenor(s);
  }
  if (odd(o.alanortensay)) {
    rearm(s, kAreaTenor);
    o.alanortten = areaTenor(s);
  }
  if (odd(o.limtensay)) {
    const bool atTitle = s.ui.combo1.text() == kLimitTitle;
    rearm(s, kLimitTenor, atTitle ? "Select the Limit Tenor You Want to Print " : kChooseWhere);
    takeChosenLimit(s);
  }
  if (odd(o.alanortyogsay)) {
    rearm(s, kAreaDensity);
    o.alanortyog = areaDensity(s);
  }
  if (odd(o.kubajortyogsay)) {
    rearm(s, kCubageDensity);
    o.kubajortyog = cubageDensity(s);
  }
  replayTail(s);
}

}  // namespace tri
