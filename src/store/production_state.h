// The state of production planning: the point sets, the tracing of areas, the digitized parts and
// their sums per area.
#pragma once

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

struct Production {};

}  // namespace tri
