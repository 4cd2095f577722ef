// The state of printing: the paper and map sizes and the scale on paper.
#pragma once

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

struct Output {};

}  // namespace tri
