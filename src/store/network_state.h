// The state of the network's own tools: the Select-Cut view of the drill logs and the picks of
// triangle and hole removal.
#pragma once

#include <array>

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

struct Network {
  // Triangle removal: the corners picked to find a triangle, 1..3, and the pick counter.
  // The picked y is held in single precision, so a corner whose y a single cannot hold
  // matches no vertex.
  std::array<double, 4> pickedX{};
  std::array<float, 4> pickedY{};
  double secsay = 0;
};

}  // namespace tri
