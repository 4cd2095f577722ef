// What the digitizing commands and the views of the area sums share.
#pragma once

#include "store/state.h"

namespace tri {

// Prints the results of the parts of the selected area's table, slots 1 .. urscansay, each
// as its elevations in blue, tenor in green and reserve in red, with pen width 1.
void printPartLabels(State& s);

}  // namespace tri
