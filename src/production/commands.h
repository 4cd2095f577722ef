// The commands and canvas events of production planning: the plane's point sets, the areas
// traced on the plan, the production plan that shows them, the parts of triangles digitized
// inside an area, and the area sums.
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

// --- Digitizing ---

// Production, Digitize, Elevation: the bench of the production scan, urupkot and urdownkot.
void Mnurkot_Click(State& s);
// Production, Select, Area: a blue circle at the centre of every stored area, counted again
// in uralansay; a left click on a circle (sltak) selects its area.
void Mnselan_Click(State& s);
void sltak(State& s, float x, float y);
// Production, Select, Triangle: the red point of every triangle, to pick one by, and the
// printed results of the parts.
void Mnsucgen_Click(State& s);
// Production, Digitize, Close: the picked triangle alone over the production plan, ready for
// the trace of its part inside the selected area. urcevAgain is its replay: the command,
// then the vertices of the trace under way.
void Mnurcev_Click(State& s);
void urcevAgain(State& s);
// One left click of the trace at (x, y); a click within 5 m of the first vertex closes it,
// takes its surface and runs urhesap: the bench scan of the triangle over that surface,
// added to the area's sums and printed at the trace.
void urcev(State& s, float x, float y);
void urhesap(State& s);

// --- Area sums ---

// Production, Totals: surface and reserve of every area at its centre. Production,
// Averages: its mean tenor and density. urtpo and urrto draw their keys at a right click.
void Mnuretopr_Click(State& s);
void Mnurort_Click(State& s);
void urtpo(State& s, float x, float y);
void urrto(State& s, float x, float y);

// The digitizing rows of the mouse chain of Picture1_MouseDown: the keys of the two sums
// views at a right click (the averages only with the totals off), a left click on a blue
// circle, a left click of the trace, and the triangle pick.
bool uretoprOn(const State& s);
void uretoprDown(State& s, int button, float x, float y);
bool urortOn(const State& s);
void urortDown(State& s, int button, float x, float y);
bool selan2On(const State& s);
void selan2Down(State& s, int button, float x, float y);
bool urcevOn(const State& s);
void urcevDown(State& s, int button, float x, float y);
bool sucgen2On(const State& s);
void sucgen2Down(State& s, int button, float x, float y);

}  // namespace tri
