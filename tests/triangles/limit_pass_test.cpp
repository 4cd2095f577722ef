// A triangle entered into a drawing that has limit tenors goes into every limit table,
// computed again with the layers at or above each limit.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

// worked_example.xls: ore tenors 2, 3, 4 at A, B, C; every hole also has a waste layer of
// tenor 9.9, which is never ore.
TEST(LimitPass, EachLimitTableTakesTheLayersAtOrAboveItsLimit) {
  DrawingSession s("worked_example.xls", "ore");
  const std::pair<std::string, Summary> cases[] = {
      {"3.5", {30000, 4000, 3000, 30000, 90000, 3600, 1000000}},  // C alone: its whole length
      {"2.5", {25000, 3642, 2800, 25000, 70000, 2550, 1000000}},  // B and C: lengths over 2
      {"3", {25000, 3642, 2800, 25000, 70000, 2550, 1000000}},    // B's tenor equals the limit
      {"5", {0, 0, 0, 0, 0, 0, 1000000}},                         // only waste reaches it
      {"0.001", kWorkedExample},
  };
  for (const auto& [limit, values] : cases) s.addLimit(limit);
  s.pickABC();
  EXPECT_EQ(summaryOf(s.table("Kuzey"), 5), kWorkedExample);
  for (const auto& [limit, values] : cases) {
    EXPECT_EQ(summaryOf(s.table(limit + "Kuzey"), 5), values) << limit;
  }
  StoredTable low = s.table("2.5Kuzey");
  EXPECT_EQ(low.number(2, "say"), 1);
  EXPECT_EQ(low.number(4, "koordinat2"), 140000);
  EXPECT_EQ(low.number(5, "ucgensay"), 1);
}

TEST(LimitPass, ALimitOfZeroLooksLikeAFreedSlot) {
  // The pass skips slots whose value is 0, so it runs on past the last slot.
  DrawingSession s("worked_example.xls", "ore");
  s.addLimit("0");
  try {
    s.pickABC();
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::SubscriptOutOfRange);
  }
  EXPECT_EQ(s.table("Kuzey").rows.size(), 5u);
  EXPECT_EQ(s.table("0Kuzey").rows.size(), 1u);
}

TEST(LimitPass, TheDensitySumsRunOnOverTheWholeRun) {
  // The second triangle takes the holes in another order. Its own values do not change,
  // but in the limit table each corner's density still carries the first triangle's
  // layers of that corner position.
  DrawingSession s("worked_example.xls", "ore");
  s.addLimit("0.001");
  s.pickABC();
  s.pickTriangle(150, 100, 100, 140, 100, 100);
  EXPECT_EQ(summaryOf(s.table("Kuzey"), 9), kWorkedExample);
  EXPECT_EQ(summaryOf(s.table("0.001Kuzey"), 9),
            (Summary{20000, 3357, 2636, 20000, 52722, 1770, 1000000}));
}

TEST(LimitPass, FreedSlotsAreSkippedAfterTheProjectIsOpenedAgain) {
  DrawingSession s("worked_example.xls", "ore");
  for (const char* limit : {"1", "2", "3"}) s.addLimit(limit);
  s.state.ui.combo1.setListIndex(1);
  s.run("Mnlimsil_Click");
  // In this run the state still counts the deleted limit: the next triangle fails on it,
  // after its summary row.
  EXPECT_THROW(s.pickABC(), Fault);
  EXPECT_EQ(s.table("Kuzey").rows.size(), 5u);

  Session again;
  again.openProject(s.path);
  again.state.ui.combo4.setListIndex(1);
  again.state.ui.combo2.setListIndex(1);
  again.run("Mncizduz_Click");
  again.click(100, 100);
  again.click(150, 100);
  again.click(100, 140);
  EXPECT_EQ(s.table("Kuzey").rows.size(), 9u);
  // Slots 2 and 3 are in use but counted as two: slot 1 is skipped to 2, and the pass
  // ends before slot 3.
  EXPECT_EQ(s.table("2Kuzey").rows.size(), 5u);
  EXPECT_EQ(s.table("3Kuzey").rows.size(), 1u);
}

}  // namespace
}  // namespace tri
