// The project file: creating and opening it, its tables and fields, stored values and their
// conversions, and the write batches.
#include "platform/store.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <tuple>

#include "platform/fault.h"
#include "store_test_support.h"
#include "support/temp_dir.h"

namespace tri {
namespace {

std::string contents(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

const std::vector<FieldDef> kMixedFields{{"n", FieldType::Long}, {"s", FieldType::Text}};

TEST(StoreFile, CreateAndOpenRefuseWhatIsNoNewOrNoProjectFileAndLeaveItUntouched) {
  TempDir dir;
  const std::string project = dir.file("proje.mdb");
  Database::create(project).close();
  const std::string text = dir.file("notes.txt");
  std::ofstream(text) << std::string(20000, 'a') << "\nSQLite format 3\n";
  const std::string garbled = dir.file("garbled.mdb");
  std::ofstream(garbled) << std::string("SQLite format 3\0", 16) << std::string(4000, '\x7f');
  const std::string missing = dir.file("missing.mdb");
  for (const std::string& path : {project, text}) {
    const std::string before = contents(path);
    EXPECT_TRUE(faults([&] { Database::create(path); }, FaultKind::Database, {path})) << path;
    EXPECT_EQ(contents(path), before);
  }
  EXPECT_TRUE(faults([&] { Database::create(project); }, FaultKind::Database, {"exists"}));
  EXPECT_TRUE(faults([&] { Database::create(dir.file("no-such-folder/p.mdb")); },
                     FaultKind::Database, {"no-such-folder/p.mdb"}));
  for (const std::string& path : {text, missing}) {
    EXPECT_TRUE(faults([&] { Database::open(path); }, FaultKind::Database,
                       {path, "not a project database"}));
  }
  EXPECT_FALSE(std::filesystem::exists(missing));
  EXPECT_TRUE(faults([&] { Database::open(garbled); }, FaultKind::Database, {garbled}));
}

TEST(StoreFile, EveryUpdateIsInTheFileWhenItReturnsAndAClosedProjectIsOneFile) {
  TempDir dir;
  const std::string path = dir.file("p.mdb");
  Database db = Database::create(path);
  db.createTable("t", kMixedFields);
  Recordset rs = db.openTable("t");
  for (int n = 1; n <= 3; ++n) {
    rs.addNew();
    rs.set("n", n);
    rs.update();
    EXPECT_EQ(Database::open(path).openTable("t").recordCount(), n) << "another connection";
  }
  db.close();
  EXPECT_FALSE(std::filesystem::exists(path + "-wal"));
  EXPECT_FALSE(std::filesystem::exists(path + "-shm"));
  EXPECT_TRUE(faults([&] { db.tableNames(); }, FaultKind::Database, {path, "closed"}));
  EXPECT_TRUE(faults([&] { rs.moveFirst(); }, FaultKind::Database, {path, "closed"}));
  {
    Recordset outlivesItsDatabase = Database::open(path).openTable("t");
    EXPECT_EQ(outlivesItsDatabase.number("n"), 1);
  }

  // A reader changes nothing and, closed, leaves the project one file again.
  const std::string before = contents(path);
  {
    Database reader = Database::openReadOnly(path);
    Recordset read = reader.openTable("t");
    EXPECT_EQ(read.recordCount(), 3);
    read.edit();
    read.set("n", 7);
    EXPECT_THROW(read.update(), Fault);
    EXPECT_THROW(reader.createTable("u", kMixedFields), Fault);
  }
  EXPECT_EQ(contents(path), before);
  EXPECT_FALSE(std::filesystem::exists(path + "-wal"));
  EXPECT_FALSE(std::filesystem::exists(path + "-shm"));
}

TEST(StoreTables, AreFoundWhateverTheCaseAndKeepTheirNamesAndFieldsAsCreated) {
  TempDir dir;
  Database db = Database::create(dir.file("p.mdb"));
  db.createTable("2.5Kuzey", {{"Koordinat1", FieldType::Long}, {"isim", FieldType::Text}});
  EXPECT_TRUE(db.hasTable("2.5KUZEY"));
  EXPECT_EQ(db.openTable("2.5kuzey").tableName(), "2.5Kuzey");
  const std::vector<FieldDef> fields = db.fields("2.5kuzey");
  EXPECT_EQ(fields.at(0).name, "Koordinat1");
  EXPECT_EQ((std::vector<FieldType>{fields.at(0).type, fields.at(1).type}),
            (std::vector<FieldType>{FieldType::Long, FieldType::Text}));
  db.deleteTable("2.5kuzey");
  EXPECT_FALSE(db.hasTable("2.5Kuzey"));
}

TEST(StoreTables, AHostileNameIsStoredAsTypedAndRunsNothing) {
  TempDir dir;
  Database db = Database::create(dir.file("p.mdb"));
  db.createTable("kor", kMixedFields);
  const std::string hostile = "a\"; DROP TABLE kor; --";
  const std::string field = "x\") VALUES (1); DROP TABLE kor; --";
  db.createTable(hostile, {{field, FieldType::Long}, {"'quoted'", FieldType::Text}});
  EXPECT_EQ(db.tableNames(), (std::vector<std::string>{"kor", hostile}));
  Recordset rs = db.openTable(hostile);
  rs.addNew();
  rs.set(field, 7);
  rs.set("'quoted'", "'); DROP TABLE kor; --");
  rs.update();
  rs.moveFirst();
  rs.edit();
  rs.set(field, 8);
  rs.update();
  EXPECT_EQ(rs.number(field), 8);
  EXPECT_EQ(rs.text("'QUOTED'"), "'); DROP TABLE kor; --");
  rs.remove();
  db.deleteTable(hostile);
  EXPECT_EQ(db.tableNames(), std::vector<std::string>{"kor"});
}

TEST(StoreTables, RefuseUnusableAndTakenNamesNamingThem) {
  TempDir dir;
  std::string path = dir.file("p.mdb");
  Database db = Database::create(path);
  db.createTable("kor", kMixedFields);
  std::vector<FieldDef> wide;
  for (int i = 1; i <= 2001; ++i) wide.push_back({"f" + std::to_string(i), FieldType::Long});
  const std::tuple<std::string, std::vector<FieldDef>, std::vector<std::string_view>> cases[] = {
      {"KOR", kMixedFields, {"KOR", "exists"}},
      {"ab\ncd", kMixedFields, {"ab\ncd", "control"}},
      {"SQLite_stat1", kMixedFields, {"SQLite_stat1"}},
      {"t", {{"Ten1", FieldType::Long}, {"ten1", FieldType::Text}}, {"ten1"}},
      {"t",
       {{"rowid", FieldType::Long}, {"_rowid_", FieldType::Long}, {"oid", FieldType::Long}},
       {"rowid"}},
      {"wide", wide, {"wide", "2001", "2000"}},
  };
  for (const auto& [table, fields, mentions] : cases) {
    EXPECT_TRUE(faults([&] { db.createTable(table, fields); }, FaultKind::Database, mentions))
        << table;
  }
  EXPECT_EQ(db.tableNames(), std::vector<std::string>{"kor"});
  EXPECT_TRUE(faults([&] { db.openTable("yok"); }, FaultKind::Database, {"yok", path}));
  EXPECT_TRUE(faults([&] { db.deleteTable("yok"); }, FaultKind::Database, {"yok", path}));
  EXPECT_TRUE(faults([&] { db.fields("sqlite_schema"); }, FaultKind::Database, {"sqlite_schema"}));
  // As many as the store allows.
  wide.pop_back();
  db.createTable("wide", wide);
  Recordset rs = db.openTable("wide");
  rs.addNew();
  rs.set("f2000", 2001);
  rs.update();
  rs.moveFirst();
  EXPECT_EQ(rs.number("f2000"), 2001);
  EXPECT_TRUE(rs.isNull("f2"));
}

TEST(StoreValues, ANullIsAFaultWhereANumberIsWantedAndAnEmptyText) {
  TempDir dir;
  Database db = Database::create(dir.file("p.mdb"));
  db.createTable("t", kMixedFields);
  Recordset rs = db.openTable("t");
  rs.addNew();
  rs.update();
  rs.moveFirst();
  EXPECT_TRUE(rs.isNull("s"));
  EXPECT_EQ(rs.text("n"), "");
  EXPECT_TRUE(
      faults([&] { rs.number("n"); }, FaultKind::InvalidUseOfNull, {"\"n\"", "\"t\"", "row 1"}));
  EXPECT_TRUE(faults([&] { rs.get("yok"); }, FaultKind::Database,
                     {"Item not found in this collection", "\"t\"", "yok"}));
}

TEST(StoreValues, LongFieldsTakeWholeNumbersWithin32BitsAndTextFields255Characters) {
  TempDir dir;
  Database db = Database::create(dir.file("p.mdb"));
  db.createTable("kor", {{"eks", FieldType::Long}, {"isim", FieldType::Text}});
  Recordset rs = db.openTable("kor");
  rs.addNew();
  for (auto [in, stored] : {std::pair{2.5, 2},
                            {3.5, 4},
                            {2147483647.4, 2147483647},
                            {-2147483648.5, -2147483647 - 1}}) {
    rs.set("eks", in);
    EXPECT_EQ(rs.get("eks"), Value(std::int32_t(stored))) << in;
  }
  for (double big : {2147483648.0, 2147483647.5}) {
    EXPECT_TRUE(faults([&] { rs.set("eks", big); }, FaultKind::Overflow, {"\"eks\"", "\"kor\""}));
  }
  EXPECT_TRUE(faults([&] { rs.set("EKS", "2147483648"); }, FaultKind::Overflow, {"\"eks\""}));
  EXPECT_EQ(rs.get("eks"), Value(std::int32_t{-2147483647 - 1}))
      << "a refused value changes nothing";
  rs.set("eks", " 12.5 ");
  EXPECT_EQ(rs.number("eks"), 12);
  for (const char* bad : {"12,5", ""}) {
    EXPECT_TRUE(faults([&] { rs.set("eks", bad); }, FaultKind::TypeMismatch, {"\"eks\"", bad}));
  }
  rs.set("isim", 0.00001);
  EXPECT_EQ(rs.get("isim"), Value(std::string("1E-05")));
  EXPECT_EQ(rs.number("isim"), 0.00001);
  std::string wide;
  for (int i = 0; i < 255; ++i) wide += "ş";
  rs.set("isim", wide);
  EXPECT_TRUE(
      faults([&] { rs.set("isim", wide + "a"); }, FaultKind::Database, {"\"isim\"", "255"}));
  rs.set("isim", "12a");
  EXPECT_TRUE(faults([&] { rs.number("isim"); }, FaultKind::TypeMismatch, {"\"isim\"", "12a"}));
}

// The bulk writers' batches: seen by other connections only when committed; a Fault inside
// keeps what was written before it.
TEST(StoreBatch, IsSeenByOthersOnlyWhenCommittedAndKeepsWhatCameBeforeAFault) {
  TempDir dir;
  const std::string path = dir.file("p.mdb");
  Database::create(path).createTable("t", kMixedFields);
  auto count = [&] { return Database::open(path).openTable("t").recordCount(); };
  Database db = Database::open(path);
  {
    WriteBatch batch = db.beginBatch();
    Recordset rs = db.openTable("t");
    for (int n : {1, 2}) {
      rs.addNew();
      rs.set("n", n);
      rs.update();
    }
    EXPECT_EQ(rs.recordCount(), 2) << "the writer sees its own rows";
    EXPECT_EQ(count(), 0) << "another connection does not, yet";
    batch.commit();
  }
  EXPECT_EQ(count(), 2);
  try {
    WriteBatch batch = db.beginBatch();
    Recordset rs = db.openTable("t");
    rs.addNew();
    rs.update();
    rs.addNew();
    rs.set("n", 3e9);
    FAIL() << "no overflow";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::Overflow);
  }
  EXPECT_EQ(count(), 3);
}

}  // namespace
}  // namespace tri
