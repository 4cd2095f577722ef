// The Map menu's commands where a scenario cannot follow them: the end of the run.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/session.h"

namespace tri {
namespace {

TEST(MapCommands, AScaleThatIsNoNumberStopsInTheConversionAndKeepsTheLastScale) {
  Session s;
  s.dialogs.answerInput("5000", "Enter Scale:");
  s.run("Mnolcekg_Click");
  for (const std::string answer : {"", "abc", "1/500"}) {
    s.dialogs.answerInput(answer);
    try {
      s.run("Mnolcekg_Click");
      ADD_FAILURE() << "no fault for \"" << answer << "\"";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), FaultKind::TypeMismatch);
      EXPECT_EQ(fault.message(), "the scale \"" + answer + "\" is not a number");
    }
    EXPECT_EQ(s.state.frame.olcek, 50);
  }
}

}  // namespace
}  // namespace tri
