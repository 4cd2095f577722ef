#include "triangles/commands.h"

namespace tri {

namespace {

using MouseHandler = void (*)(State&, int button, float x, float y);

// One row of the chain of Picture1_MouseDown: when its test holds, its handler runs with
// the button. A row whose branch is not in this program yet has no handler.
struct MouseRow {
  bool (*test)(const State&);
  MouseHandler handler;
};

bool never(const State&) { return false; }
bool entryMode(const State& s) { return s.flags.modcizim; }

void enterTriangle(State& s, int button, float x, float y) { ucgeciz(s, x, y, button); }

// The chain, in its required order. Every row whose test holds runs: a branch does not
// end the chain.
const MouseRow kMouseDownChain[] = {
    {never, nullptr},               // production totals (right)
    {never, nullptr},               // production averages (right)
    {never, nullptr},               // area selection, second pass (left)
    {never, nullptr},               // digitized closing (left)
    {never, nullptr},               // scan of all triangles (right)
    {never, nullptr},               // scan of one triangle (right)
    {never, nullptr},               // production area by points
    {never, nullptr},               // production area drawn freely
    {never, nullptr},               // start of a drag (right)
    {never, nullptr},               // triangle selection for digitizing (left)
    {never, nullptr},               // scan selection (left)
    {never, nullptr},               // hole removal
    {never, nullptr},               // triangle removal
    {never, nullptr},               // overlays (left)
    {entryMode, enterTriangle},     // triangle entry, every button
};

}  // namespace

void Picture1_MouseDown(State& s, int button, float x, float y) {
  for (const MouseRow& row : kMouseDownChain) {
    if (row.test(s) && row.handler) row.handler(s, button, x, y);
  }
}

void Picture1_MouseMove(State&, int, float, float) {}

void Picture1_MouseUp(State&, int, float, float) {}

}  // namespace tri
