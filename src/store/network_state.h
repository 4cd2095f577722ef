// The state of the network's own tools: the Select-Cut view of the drill logs and the picks of
// triangle and hole removal.
#pragma once

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

struct Network {};

}  // namespace tri
