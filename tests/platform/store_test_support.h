// Test helper of the store tests: an action ends in a Fault of a kind whose message names
// what it should.
#pragma once

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "platform/fault.h"

namespace tri {

template <typename Action>
testing::AssertionResult faults(Action action, FaultKind kind,
                                const std::vector<std::string_view>& mentions) {
  try {
    action();
  } catch (const Fault& fault) {
    if (fault.kind() != kind) return testing::AssertionFailure() << "other kind: " << fault.what();
    for (std::string_view mention : mentions) {
      if (fault.message().find(mention) == std::string::npos) {
        return testing::AssertionFailure()
               << "\"" << fault.message() << "\" does not mention \"" << mention << "\"";
      }
    }
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "no Fault";
}

}  // namespace tri
