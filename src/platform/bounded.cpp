#include "platform/bounded.h"

namespace tri {

void throwSubscript(const char* array, const std::vector<long>& indices) {
  std::string text = std::string(array) + "(";
  for (size_t i = 0; i < indices.size(); ++i) {
    if (i) text += ", ";
    text += std::to_string(indices[i]);
  }
  throw Fault(FaultKind::SubscriptOutOfRange, text + ")");
}

}  // namespace tri
