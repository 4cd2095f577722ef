// The fixed capacities of the program state, and its state at start-up.
#include <gtest/gtest.h>

#include "commands/procedures.h"
#include "platform/fault.h"
#include "project/commands.h"
#include "store/state.h"
#include "support/session.h"

namespace tri {
namespace {

TEST(Capacity, IndexPastABoundIsASubscriptFaultAndAnUnsetEntryIsEmpty) {
  Session session;
  Projects& p = session.state.projects;
  Holes& h = session.state.holes;
  p.limdeger(1, 1, 1, 30).value = 2.5;
  try {
    p.limdeger(1, 1, 1, 31);
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(fault.message(), "limdeger(1, 1, 1, 31)");
  }
  EXPECT_THROW(p.cizimad(1, 101, 1), Fault);
  EXPECT_THROW(h.ten(1000, 1), Fault);
  EXPECT_THROW(h.lit(1, -1), Fault);
  EXPECT_NO_THROW(h.uz(999, 999));
  EXPECT_THROW(session.state.markers.names[10000], Fault);
  EXPECT_EQ(p.litad.get(100, 100), "");
  EXPECT_EQ(p.limsay.get(3, 2, 1), 0);
  EXPECT_EQ(h.eks[3], 0);
}

TEST(StartUp, TheFirstResizeClearsTheFirstMode) {
  ImageCanvas canvas;
  ScriptedDialogs dialogs;
  State s(canvas, dialogs, canvas);
  connectControls(s);
  s.frame.gridadim = 7;
  Form_Load(s);
  EXPECT_EQ(s.frame.gridadim, 1);
  EXPECT_TRUE(s.flags.ilkmod);
  EXPECT_FALSE(s.ui.enabled("Mnkaydir"));  // the map commands wait for a project
  Form_Resize(s, 800, 600);
  EXPECT_FALSE(s.flags.ilkmod);
}

}  // namespace
}  // namespace tri
