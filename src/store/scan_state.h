// The state of the bench scan: the elevations, the pick, the logs and pieces of a scan, and the
// printed results of the single scan.
#pragma once

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

struct Scan {};

}  // namespace tri
