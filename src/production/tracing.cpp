// Production, Area, Draw: tracing an area point by point on a point set into aukor, or freely
// into askor, click by click, with the rubber line from the last corner to the pointer.
#include <cmath>
#include <optional>

#include "canvas/replay.h"
#include "platform/store.h"
#include "production/area_rows.h"
#include "production/commands.h"
#include "production/plane.h"
#include "store/project_format.h"
#include "triangles/commands.h"

namespace tri {

namespace {

void startTracing(State& s, bool Flags::*flag, const char* prompt) {
  s.ui.setLabel(1, prompt);
  clearViewFlags(s);
  s.flags.*flag = true;
  removeMarkers(s);
  for (const char* name :
       {"Combo3", "Command1", "Frame1", "Frame2", "Picture2", "Command2", "HScroll1"}) {
    s.ui.hide(name);
  }
  s.ui.show("Picture1");
}

bool isOdd(double clicks) { return std::fmod(clicks, 2) != 0; }

struct PointHit {
  int p = 0;
  double x = 0;
  double y = 0;
};

// The first point hit by the click: in any set while no outline is under way (the set hit
// becomes the locked one), else only in the locked set.
std::optional<PointHit> findPoint(Production& pr, float x, float y) {
  for (int p = 1; p <= pr.planesay; ++p) {
    if (pr.noktaclick == 0) pr.noktaplane = p;
    if (p != pr.noktaplane) continue;
    for (int r = 1; r <= pr.plansay[p]; ++r) {
      const double px = pointX(pr, p, r);
      const double py = pointY(pr, p, r);
      if (hitsSquare(px, py, x, y)) return PointHit{p, px, py};
    }
  }
  return std::nullopt;
}

// The first click on a set whose area exists: walks the stored outline, from its head row
// to the first free row, over as many rows as the set has points and one more. A corner hit
// by the click is where the outline goes on: the rows after it are freed. Returns false for
// a closed outline (a later corner repeats the head row's), which ends the click.
bool continueStoredOutline(Production& pr, Recordset& rs, const GroupFields& f, int p, float x,
                           float y) {
  const int rows = static_cast<int>(pr.plansay[p]) + 1;
  rs.moveFirst();
  const double headX = storedX(rs, f);
  const double headY = storedY(rs, f);
  int hitRow = 0;
  for (int r = 1; r <= rows; ++r) {
    if (rs.text(f.ad) == kFreeRow) break;
    const double cx = storedX(rs, f);
    const double cy = storedY(rs, f);
    if (r > 1 && cx == headX && cy == headY) return false;
    if (hitRow == 0 && hitsSquare(cx, cy, x, y)) hitRow = r;
    rs.moveNext();
  }
  if (hitRow == 0) return true;
  rs.moveFirst();
  rs.move(hitRow);
  for (int r = hitRow + 1; r <= rows; ++r, rs.moveNext()) freeSlot(rs, f, kFreeRow);
  pr.devammod = true;
  pr.devamsira = hitRow;
  return true;
}

void endPointOutline(State& s) {
  Production& pr = s.production;
  pr.noktax1 = pr.noktay1 = pr.noktax2 = pr.noktay2 = 0;
  pr.devamsira = 0;
  pr.noktaclick = 0;
  pr.devammod = false;
}

void endFreeOutline(State& s) {
  Production& pr = s.production;
  pr.serbestx1 = pr.serbesty1 = pr.serbestx2 = pr.serbesty2 = 0;
  pr.serbestclick = 0;
  pr.serbestkolon = 0;
  pr.serbestsay = 0;
  pr.serbestdevam = 0;
}

struct FreeStart {
  int group = 0;
  std::optional<ClickCorner> corner;  // the stored corner hit, when an area goes on
  int row = 0;                        // and its row
};

// The first click of free tracing: the first stored corner hit, group by group, continues
// that area; else the first free group takes a new outline (the 51st when none is free).
FreeStart startFreeOutline(Recordset& rs, float x, float y) {
  for (int g = 1; g <= kAreaGroups; ++g) {
    const GroupFields f = groupFields(g);
    rs.moveFirst();
    if (rs.text(f.ad) == kFreeHead) continue;
    for (int r = 1; r <= kAreaRows && !rs.eof(); ++r, rs.moveNext()) {
      if (rs.text(f.ad) == kFreeRow) break;
      const double cx = storedX(rs, f);
      const double cy = storedY(rs, f);
      if (hitsSquare(cx, cy, x, y)) return {g, ClickCorner{cx, cy}, r};
    }
  }
  int g = 1;
  for (; g <= kAreaGroups; ++g) {
    rs.moveFirst();
    if (rs.text(groupFields(g).ad) == kFreeHead) break;
  }
  return {g, std::nullopt, 0};
}

}  // namespace

void Mnnuciz_Click(State& s) {
  startTracing(s, &Flags::modureciz,
               " Flip the area by clicking on the points (Right Click: Cancel).");
  ureciz(s);
}

void Mnsuciz_Click(State& s) {
  startTracing(s, &Flags::modureciz2,
               "Flip the field by clicking where you want (Right Click: Cancel).");
  ucgenplan(s);
  ureciz(s);
}

void nauciz(State& s, float x, float y) {
  Production& pr = s.production;
  Database db = Database::open(s.projectPath());
  Recordset rs = db.openTable(kPointAreaTable);
  const std::optional<PointHit> hit = findPoint(pr, x, y);
  if (!hit) return;
  const int p = hit->p;
  const GroupFields f = groupFields(p);
  pr.noktaclick += 1;
  const bool first = pr.noktaclick == 1;
  if (first) {
    rs.moveFirst();
    if (rs.text(f.ad) != kFreeHead && !continueStoredOutline(pr, rs, f, p, x, y)) return;
    pr.alansay += 1;
    pr.alanplane[static_cast<long>(pr.alansay)] = p;
  }
  if (isOdd(pr.noktaclick)) {
    pr.noktax1 = hit->x;
    pr.noktay1 = hit->y;
  } else {
    pr.noktax2 = hit->x;
    pr.noktay2 = hit->y;
  }
  pr.clicklist[static_cast<long>(pr.noktaclick)] = {hit->x, hit->y};

  if (first) {
    rs.moveFirst();
    if (rs.text(f.ad) == kFreeHead) writeCorner(rs, f, hit->x, hit->y, cornerName("nal", p, 1));
    return;
  }
  drawSide(s, p, pr.noktax1, pr.noktay1, pr.noktax2, pr.noktay2);
  moveToFirstFreeRow(rs, f);
  const double d = pr.devammod ? -1 : 0;
  writeCorner(rs, f, hit->x, hit->y, cornerName("nal", p, pr.noktaclick + pr.devamsira + d));

  // Back at the outline's first corner (the head row's, for a continued outline): closed.
  ClickCorner start = pr.clicklist[1];
  if (pr.devammod) {
    rs.moveFirst();
    start = {storedX(rs, f), storedY(rs, f)};
  }
  if (hit->x == start.x && hit->y == start.y) {
    endPointOutline(s);
    hideRubberLine(s);
    s.ui.setLabel(1, "Ready");
  }
}

void suaciz(State& s, float x, float y) {
  Production& pr = s.production;
  Database db = Database::open(s.projectPath());
  Recordset rs = db.openTable(kFreeAreaTable);
  pr.serbestclick += 1;
  ClickCorner corner{clickValue(x), clickValue(y)};
  const bool first = pr.serbestclick == 1;
  bool continued = false;
  if (first) {
    const FreeStart start = startFreeOutline(rs, x, y);
    pr.serbestkolon = start.group - 1;
    pr.serbestdevam = start.row > 0 ? start.row - 1 : 0;
    pr.serbestsay = 0;
    if (start.corner) corner = *start.corner;
    continued = start.corner.has_value();
  }
  const int g = static_cast<int>(pr.serbestkolon) + 1;
  const GroupFields f = groupFields(g);
  bool closes = false;
  if (!first) {
    // A click within the square of the head row's corner takes that corner and closes.
    rs.moveFirst();
    const ClickCorner head{storedX(rs, f), storedY(rs, f)};
    closes = hitsSquare(head.x, head.y, x, y);
    if (closes) corner = head;
  }
  if (isOdd(pr.serbestclick)) {
    pr.serbestx1 = corner.x;
    pr.serbesty1 = corner.y;
  } else {
    pr.serbestx2 = corner.x;
    pr.serbesty2 = corner.y;
  }
  // The corner a continued outline starts from is counted, though it is stored already.
  pr.serbestsay += 1;
  const std::string name = cornerName("sal", g, pr.serbestdevam + pr.serbestsay);
  if (first) {
    if (continued) return;
    rs.moveFirst();
    writeCorner(rs, f, corner.x, corner.y, name);
    return;
  }
  drawSide(s, g, pr.serbestx1, pr.serbesty1, pr.serbestx2, pr.serbesty2);
  moveToFirstFreeRow(rs, f);
  writeCorner(rs, f, corner.x, corner.y, name);
  if (closes) {
    endFreeOutline(s);
    hideRubberLine(s);
    s.ui.setLabel(1, "Ready");
  }
}

bool naucizOn(const State& s) { return s.flags.modureciz; }

void naucizDown(State& s, int button, float x, float y) {
  if (button == 1) nauciz(s, x, y);
  if (button != 2) return;
  endPointOutline(s);
  hideRubberLine(s);
}

bool suacizOn(const State& s) { return s.flags.modureciz2; }

void suacizDown(State& s, int button, float x, float y) {
  if (button == 1) suaciz(s, x, y);
  if (button != 2) return;
  endFreeOutline(s);
  hideRubberLine(s);
}

void followOutline(State& s, float x, float y) {
  const Production& pr = s.production;
  LineControl& line = s.ui.line1;
  if (s.flags.modureciz && pr.noktaclick > 0) {
    const bool odd = isOdd(pr.noktaclick);
    line = {true, odd ? pr.noktax1 : pr.noktax2, odd ? pr.noktay1 : pr.noktay2, x, y, 0, 1};
  }
  if (s.flags.modureciz2 && pr.serbestclick > 0) {
    const bool odd = isOdd(pr.serbestclick);
    line = {true, odd ? pr.serbestx1 : pr.serbestx2, odd ? pr.serbesty1 : pr.serbesty2, x, y, 0, 1};
  }
}

}  // namespace tri
