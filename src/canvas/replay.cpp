#include "canvas/replay.h"

#include <iterator>

#include "triangles/commands.h"

namespace tri {

namespace {

using Procedure = void (*)(State&);

// One row of the replay: when the flag is on, optionally the triangle display, then the
// procedure. A row whose procedure is not in this program yet has none.
struct ReplayRow {
  bool Flags::*flag;
  bool triangleDisplayFirst;
  Procedure procedure;
};

// The replay, in its required order. The first twelve rows are the production, scan and
// digitizing tools; from modyuzdeten on it is the tail.
constexpr ReplayRow kReplay[] = {
    {&Flags::modselan, false, nullptr},        // area selection
    {&Flags::modsucgen, false, nullptr},       // triangle selection
    {&Flags::modurcev, false, nullptr},        // digitized closing, and its points
    {&Flags::modselan2, false, nullptr},       // area selection, second pass
    {&Flags::modurort, false, nullptr},        // production averages
    {&Flags::moduretopr, false, nullptr},      // production totals
    {&Flags::modsucgen2, true, nullptr},       // triangle selection over the network
    {&Flags::modureciz2, true, nullptr},       // production areas over the network
    {&Flags::modureciz, false, nullptr},       // production areas
    {&Flags::modtiklama, true, nullptr},       // scan selection
    {&Flags::modtrtek, false, nullptr},        // scan of one triangle
    {&Flags::modtrtum, false, nullptr},        // scan of all triangles
    {&Flags::modyuzdeten, false, nullptr},     // tenor map
    {&Flags::modrezton, false, nullptr},       // reserve tonnage map
    {&Flags::modgenelrezerv, false, nullptr},  // general reserve map
    {&Flags::modrecboy, false, nullptr},       // 3D reserve view
    {&Flags::modcikart, false, nullptr},       // hole removal
    {&Flags::moducsec, false, nullptr},        // triangle removal
    {&Flags::modcizim, false, ucgenplan},      // triangle entry: the network
};
constexpr size_t kTailStart = 12;

void runRow(State& s, const ReplayRow& row) {
  if (!(s.flags.*row.flag)) return;
  if (row.triangleDisplayFirst) ucgenplan(s);
  if (row.procedure) row.procedure(s);
}

}  // namespace

void removeMarkers(State& s) {
  s.flags.sonkesmod = false;
  if (s.markers.shapesay > 0) {
    s.markers.names.clear();
    s.markers.shapesay = 0;
  }
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
  for (const ReplayRow& row : kReplay) runRow(s, row);
}

void replayTail(State& s) {
  for (auto row = std::begin(kReplay) + kTailStart; row != std::end(kReplay); ++row) {
    runRow(s, *row);
  }
}

void replayAll(State& s) {
  removeMarkers(s);
  clearForReplay(s);
  replayFlags(s);
}

void clearViewFlags(State& s) {
  for (const ReplayRow& row : kReplay) s.flags.*row.flag = false;
}

}  // namespace tri
