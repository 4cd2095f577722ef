// A triangle entered into a drawing that has limit tenors goes into every limit table,
// computed again with the layers at or above each limit.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

// worked_example.xls: ore tenors 2, 3, 4 at A, B, C; every hole also has a waste layer
// of tenor 9.9, which is never ore.
struct WorkedExample : DrawingSession {
  WorkedExample() : DrawingSession("worked_example.xls", "ore") {}
  void pickABC() { pickTriangle(100, 100, 150, 100, 100, 140); }
  void pickBCA() { pickTriangle(150, 100, 100, 140, 100, 100); }
};

struct Values {
  long ilkuz, geneltenor, genelyog, kubaj, tonaj, genelrezerv, ill;
  bool operator==(const Values&) const = default;
};

void PrintTo(const Values& v, std::ostream* os) {
  *os << "{ilkuz " << v.ilkuz << ", tenor " << v.geneltenor << ", yog " << v.genelyog << ", kubaj "
      << v.kubaj << ", tonaj " << v.tonaj << ", rezerv " << v.genelrezerv << ", ill " << v.ill
      << "}";
}

Values summary(const StoredTable& t, int row) {
  return {t.number(row, "ilkuz"), t.number(row, "geneltenor"), t.number(row, "genelyog"),
          t.number(row, "kubaj"), t.number(row, "tonaj"),      t.number(row, "genelrezerv"),
          t.number(row, "ill")};
}

TEST(LimitPass, OneCornerAboveTheLimitGivesItsWholeLength) {
  WorkedExample s;
  s.addLimit("3.5");
  s.addLimit("2.5");
  s.pickABC();
  StoredTable high = s.table("3.5Kuzey");
  ASSERT_EQ(high.rows.size(), 5u);
  EXPECT_EQ(summary(high, 5), (Values{30000, 4000, 3000, 30000, 90000, 3600, 1000000}));
  // Two corners: the sum of their lengths over 2.
  StoredTable low = s.table("2.5Kuzey");
  EXPECT_EQ(summary(low, 5), (Values{25000, 3642, 2800, 25000, 70000, 2550, 1000000}));
  EXPECT_EQ(low.number(2, "say"), 1);
  EXPECT_EQ(low.number(4, "koordinat2"), 140000);
  EXPECT_EQ(low.number(5, "ucgensay"), 1);
}

TEST(LimitPass, ATenorEqualToTheLimitCounts) {
  WorkedExample s;
  s.addLimit("3");
  s.pickABC();
  EXPECT_EQ(summary(s.table("3Kuzey"), 5),
            (Values{25000, 3642, 2800, 25000, 70000, 2550, 1000000}));
}

TEST(LimitPass, AnotherLithologyNeverCountsHoweverRich) {
  WorkedExample s;
  s.addLimit("5");  // only the waste layers (9.9) reach it
  s.pickABC();
  EXPECT_EQ(summary(s.table("5Kuzey"), 5), (Values{0, 0, 0, 0, 0, 0, 1000000}));
}

TEST(LimitPass, ALimitBelowEveryTenorRepeatsTheDrawingsOwnValues) {
  WorkedExample s;
  s.addLimit("0.001");
  s.pickABC();
  EXPECT_EQ(summary(s.table("0.001Kuzey"), 5), summary(s.table("Kuzey"), 5));
}

TEST(LimitPass, ALimitOfZeroLooksLikeAFreedSlot) {
  // The pass skips slots whose value is 0, so it runs on past the last slot.
  WorkedExample s;
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
  WorkedExample s;
  s.addLimit("0.001");
  s.pickABC();
  s.pickBCA();
  StoredTable own = s.table("Kuzey");
  StoredTable limit = s.table("0.001Kuzey");
  EXPECT_EQ(own.number(9, "genelyog"), 2666);
  EXPECT_EQ(own.number(9, "geneltenor"), 3437);
  EXPECT_EQ(summary(limit, 9), (Values{20000, 3357, 2636, 20000, 52722, 1770, 1000000}));
}

TEST(LimitPass, FreedSlotsAreSkippedAfterTheProjectIsOpenedAgain) {
  WorkedExample s;
  s.addLimit("1");
  s.addLimit("2");
  s.addLimit("3");
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
  const size_t before = readTable(s.path, "Kuzey").rows.size();
  again.click(100, 100);
  again.click(150, 100);
  again.click(100, 140);
  EXPECT_EQ(readTable(s.path, "Kuzey").rows.size(), before + 4);
  // Slots 2 and 3 are in use but counted as two: slot 1 is skipped to 2, and the pass
  // ends before slot 3.
  EXPECT_EQ(readTable(s.path, "2Kuzey").rows.size(), 5u);
  EXPECT_EQ(readTable(s.path, "3Kuzey").rows.size(), 1u);
}

}  // namespace
}  // namespace tri
