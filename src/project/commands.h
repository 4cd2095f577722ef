// The window's start, resize and exit, and the commands that open and create projects.
#pragma once

#include "store/state.h"

namespace tri {

// The window
void Form_Load(State& s);
// The canvas has been given a new size in pixels; the window has put its own size in
// s.layout.
void Form_Resize(State& s, int canvasWidth, int canvasHeight);
void Mncikis_Click(State& s);

// File, Open, Project (Ctrl+O)
void Mnprojeac_Click(State& s);
// File, Create, Project (Ctrl+F)
void Mnprolus_Click(State& s);

}  // namespace tri
