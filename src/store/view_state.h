// The state of the reserve views: the value maps' and the 3D view's working values, the colour
// classes, the show/hide counters, and the overlays placed on the plan.
#pragma once

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

struct Views {};

}  // namespace tri
