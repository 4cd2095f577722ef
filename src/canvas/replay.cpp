#include "canvas/replay.h"

#include <algorithm>

namespace tri {

namespace {

void runRow(State& s, const ReplayRow& row) {
  if (!(s.flags.*row.flag)) return;
  if (row.first) row.first(s);
  if (row.procedure) row.procedure(s);
}

}  // namespace

void removeMarkers(State& s) {
  s.flags.sonkesmod = false;
  removeMarkerShapes(s);
}

void removeMarkerShapes(State& s) {
  Markers& m = s.markers;
  if (m.shapesay <= 0) return;
  for (int i = 1; i <= m.shapesay; ++i) s.ui.removeShape(m.names[i]);
  Network& n = s.network;
  for (std::string* legend : {&n.oreLegend, &n.gangueLegend}) {
    s.ui.removeShape(*legend);
    legend->clear();
  }
  m.names.clear();
  m.shapesay = 0;
}

void clearDrawingFlags(State& s) {
  s.flags.ilkmod = false;
  s.flags.gridciz = false;
}

void clearForReplay(State& s) {
  s.canvas.cls();
  clearDrawingFlags(s);
}

void replayFlags(State& s) {
  for (const ReplayRow& row : s.replayRows) runRow(s, row);
}

void replayTail(State& s) {
  const auto tail =
      std::find_if(s.replayRows.begin(), s.replayRows.end(),
                   [](const ReplayRow& row) { return row.flag == &Flags::modyuzdeten; });
  std::for_each(tail, s.replayRows.end(), [&s](const ReplayRow& row) { runRow(s, row); });
}

void replayAll(State& s) {
  removeMarkers(s);
  clearForReplay(s);
  replayFlags(s);
}

void clearViewFlags(State& s) { s.flags.clearViews(); }

}  // namespace tri
