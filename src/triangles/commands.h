// The commands and canvas events of the triangle network.
#pragma once

#include "platform/canvas.h"
#include "store/state.h"

namespace tri {

// Triangle, Draw: add a drawing, go on entering into the selected one, delete it.
void Mncizek_Click(State& s);
void Mncizduz_Click(State& s);
void Mncizisil_Click(State& s);

// Triangle, Remove Point: each left click removes the hole under it from kor and log.
void Mncikart_Click(State& s);
// Triangle, Delete: opening the submenu turns on triangle selection; Delete from End takes
// the last triangle off the drawing and its limit tables; Select removes the triangle whose
// three corners are clicked.
void Mnucsil_Click(State& s);
void Mnsonucsil_Click(State& s);
void Mnucsec_Click(State& s);

// The canvas branches of removal, with the button (1 left, 2 right, which ends the mode)
// and the point in world units.
void removeHoleAt(State& s, int button, float x, float y);
void pickCornerAt(State& s, int button, float x, float y);

// The repaint for work on the network: frame, grid, the triangles of the selected drawing
// or limit table as black sides, and the holes on top.
void ucgenplan(State& s);

// Triangle entry: a pick at (x, y) with button 1, or a cancel with button 2.
void ucgeciz(State& s, float x, float y, int button);

// Fills one triangle, given in pixels, in one solid colour with no outline.
void FillTriangle(Canvas& canvas, int x1, int y1, int x2, int y2, int x3, int y3, Color color);

}  // namespace tri
