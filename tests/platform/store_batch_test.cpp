// What the store does to go fast: a row list read only when needed, rows read field by
// field as asked, and the write batches of the bulk writers.
#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <algorithm>

#include "platform/store.h"
#include "store_test_support.h"
#include "support/temp_dir.h"

namespace tri {
namespace {

const std::vector<FieldDef> kFields = {
    {"a", FieldType::Long},    {"b", FieldType::Long}, {"c", FieldType::Long},
    {"name", FieldType::Text}, {"d", FieldType::Long}, {"e", FieldType::Long},
    {"f", FieldType::Long},    {"g", FieldType::Long}, {"h", FieldType::Long},
    {"i", FieldType::Long},    {"j", FieldType::Long}, {"k", FieldType::Long}};

void appendRow(Recordset& rs, int n) {
  rs.addNew();
  for (size_t f = 0; f < kFields.size(); ++f) {
    if (kFields[f].type == FieldType::Long) {
      rs.set(kFields[f].name, n * 100 + static_cast<int>(f));
    } else {
      rs.set(kFields[f].name, "row" + std::to_string(n));
    }
  }
  rs.update();
}

struct Table {
  TempDir dir;
  std::string path = dir.file("t.mdb");
  explicit Table(int rows) {
    Database db = Database::create(path);
    db.createTable("t", kFields);
    Recordset rs = db.openTable("t");
    for (int n = 1; n <= rows; ++n) appendRow(rs, n);
  }
  long count() { return Database::open(path).openTable("t").recordCount(); }
};

TEST(StoreRowList, AppendsBeforeTheListIsReadKeepTheRecordsetsWhereTheyOpened) {
  Table t(3);
  Database db = Database::open(t.path);
  Recordset rs = db.openTable("t");
  Recordset other = db.openTable("t");
  appendRow(rs, 4);
  appendRow(other, 5);
  EXPECT_EQ(rs.recordCount(), 5);
  EXPECT_EQ(rs.number("a"), 100) << "still on the first row";
  rs.moveLast();
  EXPECT_EQ(rs.number("a"), 500);

  Table empty(0);
  Recordset fresh = Database::open(empty.path).openTable("t");
  appendRow(fresh, 1);
  EXPECT_TRUE(fresh.eof());
  fresh.moveLast();
  EXPECT_EQ(fresh.text("name"), "row1");
}

TEST(StoreFieldReads, FieldsAskedForLateOrOutOfOrderReadTheirOwnRow) {
  Table t(30);
  Database db = Database::open(t.path);
  Recordset rs = db.openTable("t");
  // A first walk over one field, then fields asked for one by one in no order, past the
  // point where every field is read at once.
  for (int n = 1; n <= 30; ++n, rs.moveNext()) ASSERT_EQ(rs.number("c"), n * 100 + 2);
  rs.moveFirst();
  rs.move(9);
  for (const char* field : {"k", "a", "name", "f", "b", "j", "d", "h", "e", "g", "i"}) {
    SCOPED_TRACE(field);
    const std::string name = field;
    if (name == "name") {
      EXPECT_EQ(rs.text(name), "row10");
    } else {
      const int f =
          static_cast<int>(std::find_if(kFields.begin(), kFields.end(),
                                        [&](const FieldDef& d) { return d.name == name; }) -
                           kFields.begin());
      EXPECT_EQ(rs.number(name), 1000 + f);
    }
  }
  rs.moveNext();
  EXPECT_EQ(rs.number("a"), 1100);
  // An edit after narrow reads keeps every field of the row.
  rs.edit();
  rs.set("b", 7);
  rs.update();
  EXPECT_EQ(rs.number("k"), 1111);
  EXPECT_EQ(rs.number("b"), 7);
  EXPECT_EQ(rs.text("name"), "row11");
}

TEST(StoreBatch, OtherReadersSeeTheBatchOnlyWhenItIsCommitted) {
  Table t(1);
  Database db = Database::open(t.path);
  {
    WriteBatch batch = db.beginBatch();
    Recordset rs = db.openTable("t");
    appendRow(rs, 2);
    appendRow(rs, 3);
    EXPECT_EQ(rs.recordCount(), 3) << "the writer sees its own rows";
    EXPECT_EQ(t.count(), 1) << "another connection does not, yet";
    batch.commit();
  }
  EXPECT_EQ(t.count(), 3);
}

TEST(StoreBatch, AFaultInTheBatchKeepsWhatWasWrittenBeforeIt) {
  Table t(0);
  try {
    Database db = Database::open(t.path);
    WriteBatch batch = db.beginBatch();
    Recordset rs = db.openTable("t");
    appendRow(rs, 1);
    rs.addNew();
    rs.set("a", 3e9);
    FAIL() << "no overflow";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::Overflow);
  }
  EXPECT_EQ(t.count(), 1);
}

TEST(StoreBatch, AKilledWriterLeavesNoneOfAnUnfinishedBatch) {
  Table t(2);
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    // The child never returns into the test: it would run on as a second test program.
    try {
      close(ready[0]);
      Database db = Database::open(t.path);
      WriteBatch batch = db.beginBatch();
      Recordset rs = db.openTable("t");
      for (int n = 3; n <= 50; ++n) appendRow(rs, n);
      char done = 1;
      if (write(ready[1], &done, 1) == 1) pause();
    } catch (...) {
    }
    _exit(0);
  }
  close(ready[1]);
  char done = 0;
  const bool written = read(ready[0], &done, 1) == 1;
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  close(ready[0]);
  ASSERT_TRUE(written) << "the writer ended before its batch was written";
  EXPECT_EQ(t.count(), 2);
}

}  // namespace
}  // namespace tri
