// The commands and canvas events of the triangle network.
#pragma once

#include "platform/canvas.h"
#include "store/state.h"

namespace tri {

// Triangle, Draw: add a drawing, go on entering into the selected one, delete it.
void Mncizek_Click(State& s);
void Mncizduz_Click(State& s);
void Mncizisil_Click(State& s);

// The repaint for work on the network: frame, grid, the triangles of the selected drawing
// or limit table as black sides, and the holes on top.
void ucgenplan(State& s);

// Triangle entry: a pick at (x, y) with button 1, or a cancel with button 2.
void ucgeciz(State& s, float x, float y, int button);

// Fills one triangle, given in pixels, in one solid colour with no outline.
void FillTriangle(Canvas& canvas, int x1, int y1, int x2, int y2, int x3, int y3, Color color);

}  // namespace tri
