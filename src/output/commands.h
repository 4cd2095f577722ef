// Output: the canvas on paper at a computed scale and place, on the preview page, and as a
// picture file.
#pragma once

#include "store/state.h"

namespace tri {

// File, Print: the print panels take the canvas's place, with the system's printers.
void Mnyazdır_Click(State& s);
// The Print and Preview buttons of the panels.
void Command1_Click(State& s);
void Command2_Click(State& s);

// File, Save, Picture (Ctrl+G): the canvas's image as a bitmap file.
void Mnharitakaydet_Click(State& s);

}  // namespace tri
