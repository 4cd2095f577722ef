// A recordset of the project store: moving over the rows, adding, editing and deleting,
// and two recordsets of one table seeing each other's writes.
#include <gtest/gtest.h>

#include <climits>
#include <optional>

#include "platform/fault.h"
#include "platform/store.h"
#include "store_test_support.h"
#include "support/temp_dir.h"

namespace tri {
namespace {

class StoreRecordsetTest : public testing::Test {
 protected:
  StoreRecordsetTest() : db_(Database::create(dir_.file("p.mdb"))) {}

  // A new table `name` with rows n = 1 .. rows, opened on its first row.
  Recordset freshTable(const std::string& name, int rows) {
    if (db_.hasTable(name)) db_.deleteTable(name);
    db_.createTable(name, {{"n", FieldType::Long}, {"s", FieldType::Text}});
    Recordset rs = db_.openTable(name);
    for (int n = 1; n <= rows; ++n) append(rs, n);
    return db_.openTable(name);
  }

  Recordset rowsUpTo(int rows) { return freshTable("t", rows); }

  static void append(Recordset& rs, int n) {
    rs.addNew();
    rs.set("n", n);
    rs.set("s", "row " + std::to_string(n));
    rs.update();
  }

  static std::vector<int> walk(Recordset& rs) {
    std::vector<int> seen;
    if (rs.recordCount() == 0) return seen;
    for (rs.moveFirst(); !rs.eof(); rs.moveNext()) seen.push_back(static_cast<int>(rs.number("n")));
    return seen;
  }

  TempDir dir_;
  Database db_;
};

using StoreNavigation = StoreRecordsetTest;
using StoreEditing = StoreRecordsetTest;
using StoreTwoRecordsets = StoreRecordsetTest;

// Where a recordset stands: at bof, at eof, on a row (its n), or on a deleted row (0).
struct Place {
  bool bof;
  bool eof;
  std::optional<int> n;
  bool operator==(const Place&) const = default;
};

Place placeOf(Recordset& rs) {
  Place place{rs.bof(), rs.eof(), std::nullopt};
  if (!place.bof && !place.eof) {
    try {
      place.n = static_cast<int>(rs.number("n"));
    } catch (const Fault&) {
      place.n = 0;
    }
  }
  return place;
}

std::string describe(const Place& place) {
  return "bof=" + std::to_string(place.bof) + " eof=" + std::to_string(place.eof) +
         " n=" + (place.n ? std::to_string(*place.n) : "-");
}

TEST_F(StoreNavigation, WalksBothWaysAndStopsAtEitherEnd) {
  Recordset empty = rowsUpTo(0);
  EXPECT_EQ(placeOf(empty), (Place{true, true, std::nullopt}));
  empty.move(0);
  for (auto action : std::initializer_list<void (*)(Recordset&)>{
           [](Recordset& r) { r.moveFirst(); }, [](Recordset& r) { r.move(1); },
           [](Recordset& r) { r.text("s"); }, [](Recordset& r) { r.remove(); }}) {
    EXPECT_TRUE(faults([&] { action(empty); }, FaultKind::NoCurrentRecord, {"\"t\""}));
  }
  Recordset rs = rowsUpTo(3);
  EXPECT_EQ(placeOf(rs), (Place{false, false, 1}));
  rs.move(2);
  EXPECT_EQ(placeOf(rs), (Place{false, false, 3}));
  rs.moveNext();
  EXPECT_EQ(placeOf(rs), (Place{false, true, std::nullopt}));
  EXPECT_TRUE(faults([&] { rs.moveNext(); }, FaultKind::NoCurrentRecord, {"\"t\""}));
  rs.moveFirst();
  rs.movePrevious();
  EXPECT_EQ(placeOf(rs), (Place{true, false, std::nullopt}));
  EXPECT_TRUE(faults([&] { rs.movePrevious(); }, FaultKind::NoCurrentRecord, {"\"t\""}));
  EXPECT_TRUE(faults([&] { rs.move(LONG_MAX); }, FaultKind::NoCurrentRecord, {"\"t\""}));
}

// Puts a recordset of rows 1 .. 5 at a start: 0 before the first row, 1 .. 5 on that row,
// 6 after the last, 7 .. 9 on row 1, 3 or 5 just deleted.
void placeAt(Recordset& rs, int start) {
  rs.moveFirst();
  if (start == 0) rs.movePrevious();
  int row = start <= 6 ? start : 2 * (start - 7) + 1;
  for (int i = 1; i < row; ++i) rs.moveNext();
  if (start >= 7) rs.remove();
}

// The place a recordset ends at after an action, and whether the action faulted.
template <typename Action>
std::string outcome(Recordset& rs, Action action) {
  bool faulted = false;
  try {
    action();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::NoCurrentRecord) << fault.what();
    faulted = true;
  }
  return describe(placeOf(rs)) + (faulted ? " faulted" : "");
}

TEST_F(StoreNavigation, MoveEndsWhereSingleStepsEnd) {
  for (int start = 0; start <= 9; ++start) {
    for (long rows = -7; rows <= 7; ++rows) {
      Recordset jumper = freshTable("j", 5);
      Recordset stepper = freshTable("s", 5);
      placeAt(jumper, start);
      placeAt(stepper, start);
      std::string jumped = outcome(jumper, [&] { jumper.move(rows); });
      std::string stepped = outcome(stepper, [&] {
        for (long i = 0; i < rows; ++i) stepper.moveNext();
        for (long i = 0; i > rows; --i) stepper.movePrevious();
      });
      EXPECT_EQ(jumped, stepped) << "start " << start << ", move " << rows;
    }
  }
}

TEST_F(StoreEditing, AnAddedRowLeavesTheCurrentRowWhereItWas) {
  Recordset rs = rowsUpTo(3);
  rs.moveNext();
  rs.addNew();
  rs.set("n", 4);
  EXPECT_EQ(rs.number("n"), 4) << "the buffer is read while it is open";
  EXPECT_TRUE(rs.isNull("s"));
  rs.update();
  EXPECT_EQ(placeOf(rs), (Place{false, false, 2}));
  rs.moveLast();
  rs.moveNext();
  append(rs, 5);
  EXPECT_EQ(placeOf(rs), (Place{false, true, std::nullopt}));
  EXPECT_EQ(walk(rs), (std::vector<int>{1, 2, 3, 4, 5}));
  Recordset empty = rowsUpTo(0);
  append(empty, 7);
  EXPECT_TRUE(empty.eof());
  empty.moveLast();
  EXPECT_EQ(empty.number("n"), 7);
}

TEST_F(StoreEditing, EditWritesTheRowBackAndCancelOrAMoveDropsTheBuffer) {
  Recordset rs = rowsUpTo(3);
  EXPECT_TRUE(faults([&] { rs.set("s", "x"); }, FaultKind::Database,
                     {"Update or CancelUpdate without AddNew or Edit", "\"s\""}));
  EXPECT_TRUE(faults([&] { rs.update(); }, FaultKind::Database, {"without AddNew or Edit"}));
  EXPECT_TRUE(faults([&] { rs.cancelUpdate(); }, FaultKind::Database, {"without AddNew"}));
  rs.moveNext();
  rs.edit();
  rs.set("s", "changed");
  rs.setNull("n");
  EXPECT_TRUE(faults([&] { rs.number("n"); }, FaultKind::InvalidUseOfNull, {"\"n\"", "row 2"}));
  rs.cancelUpdate();
  EXPECT_EQ(rs.text("s"), "row 2");
  rs.edit();
  rs.set("s", "kept");
  rs.moveNext();  // a move drops an unfinished edit
  EXPECT_TRUE(faults([&] { rs.set("s", "x"); }, FaultKind::Database, {"without AddNew"}));
  rs.movePrevious();
  EXPECT_EQ(rs.text("s"), "row 2");
  rs.edit();
  rs.set("s", "stored");
  rs.update();
  EXPECT_EQ(rs.text("s"), "stored");
  EXPECT_EQ(rs.number("n"), 2);
  EXPECT_EQ(db_.openTable("t").recordCount(), 3);
}

TEST_F(StoreEditing, UpdateFieldWritesOneFieldAndDropsAnUnfinishedEdit) {
  Recordset rs = rowsUpTo(3);
  Recordset other = db_.openTable("t");
  rs.moveNext();
  other.moveNext();
  other.get("n");  // a positioned read that the write must not leave stale
  rs.edit();
  rs.set("s", "dropped");
  rs.updateField("n", 20);
  EXPECT_EQ(other.number("n"), 20);
  EXPECT_EQ(other.text("s"), "row 2");
}

TEST_F(StoreEditing, ADeletedRowStaysCurrentUntilTheNextMoveAndAppendsComeAfterTheRest) {
  Recordset rs = rowsUpTo(6);
  rs.move(2);
  rs.remove();
  EXPECT_EQ(placeOf(rs), (Place{false, false, 0}));
  EXPECT_TRUE(faults([&] { rs.get("n"); }, FaultKind::Database, {"Record is deleted", "\"t\""}));
  EXPECT_TRUE(faults([&] { rs.edit(); }, FaultKind::Database, {"Record is deleted"}));
  rs.moveNext();
  EXPECT_EQ(rs.number("n"), 4);
  rs.remove();
  rs.movePrevious();
  EXPECT_EQ(rs.number("n"), 2);
  rs.moveLast();
  rs.remove();
  rs.moveNext();
  EXPECT_TRUE(rs.eof());
  append(rs, 7);
  append(rs, 8);
  EXPECT_EQ(walk(rs), (std::vector<int>{1, 2, 5, 7, 8}));
  rs.moveLast();
  rs.remove();
  append(rs, 9);
  EXPECT_EQ(walk(rs), (std::vector<int>{1, 2, 5, 7, 9}));
  rs.moveFirst();
  while (!rs.eof()) rs.remove(), rs.moveNext();
  EXPECT_EQ(rs.recordCount(), 0);
  EXPECT_TRUE(rs.bof() && rs.eof());
}

TEST_F(StoreTwoRecordsets, EachFollowsWhatTheOtherAddsEditsAndDeletes) {
  Recordset a = rowsUpTo(3);
  Recordset b = db_.openTable("t");
  a.moveNext();
  append(b, 4);
  b.remove();  // row 1, before a's current row
  EXPECT_EQ(a.recordCount(), 3);
  EXPECT_EQ(a.number("n"), 2);
  b.moveNext();
  b.edit();
  b.set("s", "edited");
  b.update();
  EXPECT_EQ(a.text("s"), "edited");
  a.edit();
  b.remove();  // a's current row
  a.set("s", "too late");
  EXPECT_TRUE(faults([&] { a.update(); }, FaultKind::Database, {"Record is deleted"}));
  a.moveNext();
  EXPECT_EQ(a.number("n"), 3);
  a.moveNext();
  a.moveNext();
  append(b, 5);
  EXPECT_TRUE(a.eof());
  a.moveLast();
  EXPECT_EQ(a.number("n"), 5);
}

}  // namespace
}  // namespace tri
