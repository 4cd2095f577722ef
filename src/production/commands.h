// The commands and canvas events of production planning: the plane's point sets, the areas
// traced on the plan, and the production plan that shows them.
#pragma once

#include "store/state.h"

namespace tri {

// Production, Data, Plane: creates aukor and askor once, reads the point sets of a workbook,
// asks a colour for each and draws their points. Production, Area, Delete: empties both tables.
void Mnauis_Click(State& s);
void Mnuasil_Click(State& s);

// Production, Area, Draw: tracing an area point by point on a point set, or freely.
void Mnnuciz_Click(State& s);
void Mnsuciz_Click(State& s);

// One left click of point tracing, and of free tracing, at (x, y).
void nauciz(State& s, float x, float y);
void suaciz(State& s, float x, float y);

// The production plan: the base map and every stored area as a chain or a ring. sureciz, the
// digitizing's twin, turns tracing off first.
void ureciz(State& s);
void sureciz(State& s);

// The tracing rows of the mouse chain of Picture1_MouseDown: a left click traces, a right
// click abandons the outline under way.
bool naucizOn(const State& s);
void naucizDown(State& s, int button, float x, float y);
bool suacizOn(const State& s);
void suacizDown(State& s, int button, float x, float y);

// Picture1_MouseMove's first step: Line1 from the last corner of an open outline to the
// pointer.
void followOutline(State& s, float x, float y);

}  // namespace tri
