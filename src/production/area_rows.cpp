#include "production/area_rows.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include "platform/vbtext.h"
#include "store/ondayaz.h"
#include "store/project_format.h"

namespace tri {

GroupFields groupFields(int n) {
  // The names of groups past the last are made too: the store refuses them, naming the
  // field, as it refuses any field it does not know.
  static const auto groups = [] {
    std::array<GroupFields, kAreaGroups + 2> made;
    for (int g = 1; g <= kAreaGroups + 1; ++g) {
      made[g] = {numbered(field::xx, g), numbered(field::yy, g), numbered(field::ad, g)};
    }
    return made;
  }();
  if (n >= 1 && n <= kAreaGroups + 1) return groups[static_cast<size_t>(n)];
  return {numbered(field::xx, n), numbered(field::yy, n), numbered(field::ad, n)};
}

bool hitsSquare(double px, double py, double x, double y) {
  return px + kHitReach > x && x > px - kHitReach && py + kHitReach > y && y > py - kHitReach;
}

std::string cornerName(const char* stem, int group, double number) {
  return stem + std::to_string(group) + "nokb" + numberText(number);
}

double storedX(const Recordset& rs, const GroupFields& f) { return rs.number(f.xx) / 1000; }
double storedY(const Recordset& rs, const GroupFields& f) { return rs.number(f.yy) / 1000; }

void writeCorner(Recordset& rs, const GroupFields& f, double x, double y, const std::string& name) {
  rs.edit();
  rs.set(f.xx, ondayaz(x));
  rs.set(f.yy, ondayaz(y));
  rs.set(f.ad, name);
  rs.update();
}

void freeSlot(Recordset& rs, const GroupFields& f, const char* mark) {
  rs.edit();
  rs.set(f.xx, 0);
  rs.set(f.yy, 0);
  rs.set(f.ad, mark);
  rs.update();
}

void moveToFirstFreeRow(Recordset& rs, const GroupFields& f) {
  rs.moveFirst();
  for (int r = 1; r <= kAreaWalk; ++r) {
    if (rs.text(f.ad) == kFreeRow) return;
    rs.moveNext();
  }
}

void drawSide(State& s, int group, double x1, double y1, double x2, double y2) {
  Canvas& c = s.canvas;
  c.drawWidth = 1;
  c.foreColor = s.production.planerenk[group];
  c.line(x1, y1, x2, y2);
}

void hideRubberLine(State& s) { s.ui.line1.visible = false; }

double clickValue(float v) {
  char text[32];
  std::snprintf(text, sizeof text, "%.7g", static_cast<double>(v));
  return std::strtod(text, nullptr);
}

}  // namespace tri
