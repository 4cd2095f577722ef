// The fixed capacities of the program state.
#include <gtest/gtest.h>

#include "commands/procedures.h"
#include "platform/fault.h"
#include "project/commands.h"
#include "store/state.h"
#include "support/session.h"

namespace tri {
namespace {

TEST(Capacity, IndexPastABoundIsASubscriptFaultNamingArrayAndIndex) {
  Session session;
  Projects& p = session.state.projects;
  p.limdeger(1, 1, 1, 30).value = 2.5;
  try {
    p.limdeger(1, 1, 1, 31);
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(fault.message(), "limdeger(1, 1, 1, 31)");
  }
  EXPECT_THROW(p.cizimad(1, 101, 1), Fault);
  EXPECT_THROW(session.state.holes.ten(1000, 1), Fault);
  EXPECT_THROW(session.state.holes.lit(1, -1), Fault);
  EXPECT_NO_THROW(session.state.holes.uz(999, 999));
  EXPECT_THROW(session.state.markers.names[10000], Fault);
}

TEST(Capacity, ReadingAnUnsetEntryGivesTheEmptyValue) {
  Session session;
  const Projects& p = session.state.projects;
  EXPECT_EQ(p.litad.get(100, 100), "");
  EXPECT_EQ(p.limsay.get(3, 2, 1), 0);
  EXPECT_EQ(session.state.holes.eks[3], 0);
}

TEST(Capacity, StartUpDefaults) {
  ImageCanvas canvas;
  ScriptedDialogs dialogs;
  State s(canvas, dialogs);
  connectControls(s);
  s.frame.gridadim = 7;
  Form_Load(s);
  EXPECT_EQ(s.projects.projeno, 0);
  EXPECT_EQ(s.frame.gridadim, 1);
  EXPECT_FALSE(s.frame.olcekgirildi);
  EXPECT_TRUE(s.flags.ilkmod);
  EXPECT_FALSE(s.flags.modcizim);
  EXPECT_FALSE(s.frame.gridgoster);
  EXPECT_FALSE(s.ui.visible("HScroll1"));
  // The selectors show their design titles; the map commands wait for a project.
  EXPECT_EQ(s.ui.combo5.text(), "Proje");
  EXPECT_EQ(s.ui.combo4.text(), "Litotloji");
  EXPECT_EQ(s.ui.combo1.text(), "Limit Tenör");
  EXPECT_FALSE(s.ui.enabled("Mnkaydir"));
  EXPECT_FALSE(s.ui.enabled("Mnaortyog"));
  // The first resize, when the window shows, clears it again.
  Form_Resize(s, 800, 600);
  EXPECT_FALSE(s.flags.ilkmod);
}

}  // namespace
}  // namespace tri
