// The project file: creating and opening it, its tables and fields, stored values and their
// conversions, and what survives a killed process.
#include "platform/store.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

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

void writeFile(const std::string& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}

const std::vector<FieldDef> kMixedFields{{"n", FieldType::Long}, {"s", FieldType::Text}};

TEST(StoreFile, CreateRefusesAnExistingPathAndLeavesItUntouched) {
  TempDir dir;
  std::string path = dir.file("proje.mdb");
  Database::create(path).close();
  std::string before = contents(path);
  EXPECT_TRUE(faults([&] { Database::create(path); }, FaultKind::Database, {path, "exists"}));
  EXPECT_EQ(contents(path), before);

  std::string text = dir.file("notes.txt");
  writeFile(text, "kuyu listesi\n");
  EXPECT_TRUE(faults([&] { Database::create(text); }, FaultKind::Database, {text}));
  EXPECT_EQ(contents(text), "kuyu listesi\n");

  EXPECT_TRUE(faults([&] { Database::create(dir.file("no-such-folder/p.mdb")); },
                     FaultKind::Database, {"no-such-folder/p.mdb"}));
}

TEST(StoreFile, OpenRefusesFilesThatAreNotProjectDatabases) {
  TempDir dir;
  std::string missing = dir.file("missing.mdb");
  EXPECT_TRUE(faults([&] { Database::open(missing); }, FaultKind::Database,
                     {missing, "not a project database"}));
  EXPECT_FALSE(std::filesystem::exists(missing));

  std::string text = dir.file("text.mdb");
  writeFile(text, std::string(20000, 'a') + "\nSQLite format 3\n");
  EXPECT_TRUE(
      faults([&] { Database::open(text); }, FaultKind::Database, {text, "not a project database"}));
  EXPECT_EQ(contents(text), std::string(20000, 'a') + "\nSQLite format 3\n");

  std::string garbled = dir.file("garbled.mdb");
  writeFile(garbled, std::string("SQLite format 3\0", 16) + std::string(4000, '\x7f'));
  EXPECT_TRUE(faults([&] { Database::open(garbled); }, FaultKind::Database, {garbled}));
}

TEST(StoreFile, AClosedProjectIsOneFileAndRefusesFurtherUse) {
  TempDir dir;
  std::string path = dir.file("p.mdb");
  Database db = Database::create(path);
  db.createTable("t", kMixedFields);
  Recordset rs = db.openTable("t");
  rs.addNew();
  rs.set("n", 1);
  rs.update();
  db.close();
  EXPECT_FALSE(std::filesystem::exists(path + "-wal"));
  EXPECT_FALSE(std::filesystem::exists(path + "-shm"));
  EXPECT_TRUE(faults([&] { db.tableNames(); }, FaultKind::Database, {path, "closed"}));
  EXPECT_TRUE(faults([&] { rs.moveFirst(); }, FaultKind::Database, {path, "closed"}));

  Recordset outlivesItsDatabase = Database::open(path).openTable("t");
  EXPECT_EQ(outlivesItsDatabase.number("n"), 1);
}

TEST(StoreTables, KeepTheirOrderFieldsAndTypesAcrossReopening) {
  TempDir dir;
  std::string path = dir.file("p.mdb");
  {
    Database db = Database::create(path);
    db.createTable("kor", {{"eks", FieldType::Long}, {"isim", FieldType::Text}});
    db.createTable("2.5Kuzey", {{"Koordinat1", FieldType::Long}, {"bsy", FieldType::Long}});
    db.createTable("şist", {{"cizim", FieldType::Text}});
    db.createTable("zeta", kMixedFields);
    db.deleteTable("2.5kuzey");
    db.createTable("alfa", kMixedFields);
  }
  Database db = Database::open(path);
  EXPECT_EQ(db.tableNames(), (std::vector<std::string>{"kor", "şist", "zeta", "alfa"}));
  std::vector<FieldDef> fields = db.fields("KOR");
  ASSERT_EQ(fields.size(), 2u);
  EXPECT_EQ(fields[0].name, "eks");
  EXPECT_EQ(fields[0].type, FieldType::Long);
  EXPECT_EQ(fields[1].name, "isim");
  EXPECT_EQ(fields[1].type, FieldType::Text);
  EXPECT_EQ(db.openTable("şist").fields()[0].name, "cizim");
  EXPECT_FALSE(db.hasTable("2.5Kuzey"));
  EXPECT_TRUE(db.hasTable("ZETA"));

  db.createTable("2.5Kuzey", {{"x", FieldType::Long}});
  EXPECT_EQ(db.tableNames().back(), "2.5Kuzey");
  EXPECT_EQ(db.openTable("2.5kuzey").tableName(), "2.5Kuzey");
}

TEST(StoreTables, AHostileNameIsStoredAsTypedAndRunsNothing) {
  TempDir dir;
  Database db = Database::create(dir.file("p.mdb"));
  db.createTable("kor", kMixedFields);
  const std::string hostile = "a\"; DROP TABLE kor; --";
  const std::string field = "x\") VALUES (1); DROP TABLE kor; --";
  db.createTable(hostile, {{field, FieldType::Long}, {"'quoted'", FieldType::Text}});
  EXPECT_EQ(db.tableNames(), (std::vector<std::string>{"kor", hostile}));
  EXPECT_EQ(db.fields(hostile)[0].name, field);

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

  // Fields may take the engine's names of the row order; rows still keep append order.
  db.createTable("gölge", {{"rowid", FieldType::Long}, {"oid", FieldType::Long}});
  Recordset shadow = db.openTable("gölge");
  for (int n : {30, 10, 20}) {
    shadow.addNew();
    shadow.set("rowid", n);
    shadow.update();
  }
  std::vector<double> order;
  for (shadow.moveFirst(); !shadow.eof(); shadow.moveNext())
    order.push_back(shadow.number("ROWID"));
  EXPECT_EQ(order, (std::vector<double>{30, 10, 20}));
}

TEST(StoreTables, RefuseUnusableAndTakenNamesNamingThem) {
  TempDir dir;
  std::string path = dir.file("p.mdb");
  Database db = Database::create(path);
  db.createTable("kor", kMixedFields);
  auto refused = [&](const std::string& table, std::vector<FieldDef> fields,
                     std::initializer_list<std::string_view> mentions) {
    return faults([&] { db.createTable(table, fields); }, FaultKind::Database, mentions);
  };
  EXPECT_TRUE(refused("KOR", kMixedFields, {"KOR", "exists"}));
  EXPECT_TRUE(refused("ab\ncd", kMixedFields, {"ab\ncd", "control"}));
  EXPECT_TRUE(refused("SQLite_stat1", kMixedFields, {"SQLite_stat1"}));
  EXPECT_TRUE(refused("t", {{"Ten1", FieldType::Long}, {"ten1", FieldType::Text}}, {"ten1"}));
  EXPECT_EQ(db.tableNames(), std::vector<std::string>{"kor"});

  EXPECT_TRUE(faults([&] { db.openTable("yok"); }, FaultKind::Database, {"yok", path}));
  EXPECT_TRUE(faults([&] { db.deleteTable("yok"); }, FaultKind::Database, {"yok", path}));
  EXPECT_TRUE(faults([&] { db.fields("sqlite_schema"); }, FaultKind::Database, {"sqlite_schema"}));
}

TEST(StoreTables, HoldAsManyFieldsAsTheEngineAllows) {
  TempDir dir;
  Database db = Database::create(dir.file("p.mdb"));
  std::vector<FieldDef> fields;
  for (int i = 1; i <= 2000; ++i) fields.push_back({"f" + std::to_string(i), FieldType::Long});
  db.createTable("wide", fields);
  Recordset rs = db.openTable("wide");
  for (int n : {1, 2}) {
    rs.addNew();
    rs.set("f1", n);
    rs.set("f2000", 2000 + n);
    rs.update();
  }
  rs.moveFirst();
  EXPECT_EQ(rs.number("f2000"), 2001);
  EXPECT_TRUE(rs.isNull("f2"));
  rs.moveNext();
  EXPECT_EQ(rs.number("f1"), 2);
  EXPECT_EQ(rs.number("f2000"), 2002);

  fields.push_back({"f2001", FieldType::Long});
  EXPECT_TRUE(faults([&] { db.createTable("wider", fields); }, FaultKind::Database,
                     {"wider", "2001", "2000"}));
  EXPECT_FALSE(db.hasTable("wider"));
}

TEST(StoreValues, RoundTripThroughTheFile) {
  TempDir dir;
  std::string path = dir.file("p.mdb");
  const std::string turkish = "Kömür ŞİST ğüıöç";
  {
    Database db = Database::create(path);
    db.createTable("t", kMixedFields);
    Recordset rs = db.openTable("t");
    for (auto [n, s] : {std::pair{-2147483648.0, turkish}, {0.0, ""}, {2147483647.0, " a "}}) {
      rs.addNew();
      rs.set("n", n);
      rs.set("s", s);
      rs.update();
    }
    rs.addNew();
    rs.update();
  }
  Database db = Database::open(path);
  Recordset rs = db.openTable("t");
  ASSERT_EQ(rs.recordCount(), 4);
  EXPECT_EQ(rs.get("n"), Value(std::int32_t{-2147483647 - 1}));
  EXPECT_EQ(rs.get("S"), Value(turkish));
  rs.moveNext();
  EXPECT_EQ(rs.get("s"), Value(std::string()));
  EXPECT_EQ(rs.text("n"), "0");
  rs.moveNext();
  EXPECT_EQ(rs.number("n"), 2147483647);
  EXPECT_EQ(rs.text("s"), " a ");
  rs.moveNext();
  EXPECT_TRUE(rs.get("n").isNull());
  EXPECT_TRUE(rs.isNull("s"));
  EXPECT_EQ(rs.text("n"), "");
  EXPECT_TRUE(
      faults([&] { rs.number("n"); }, FaultKind::InvalidUseOfNull, {"\"n\"", "\"t\"", "row 4"}));
  EXPECT_TRUE(faults([&] { rs.number("s"); }, FaultKind::InvalidUseOfNull, {"\"s\"", "row 4"}));
  EXPECT_TRUE(faults([&] { rs.get("yok"); }, FaultKind::Database,
                     {"Item not found in this collection", "\"t\"", "yok"}));
}

TEST(StoreValues, LongFieldsTakeWholeNumbersWithin32Bits) {
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
  EXPECT_TRUE(faults([&] { rs.set("eks", 2147483648.0); }, FaultKind::Overflow,
                     {"2147483648", "\"eks\"", "\"kor\""}));
  EXPECT_TRUE(faults([&] { rs.set("eks", 2147483647.5); }, FaultKind::Overflow, {"\"eks\""}));
  EXPECT_TRUE(faults([&] { rs.set("EKS", "2147483648"); }, FaultKind::Overflow, {"\"eks\""}));
  EXPECT_EQ(rs.get("eks"), Value(std::int32_t{-2147483647 - 1}))
      << "a refused value changes nothing";

  rs.set("eks", " 12.5 ");
  EXPECT_EQ(rs.number("eks"), 12);
  EXPECT_TRUE(faults([&] { rs.set("eks", "12,5"); }, FaultKind::TypeMismatch, {"\"eks\"", "12,5"}));
  EXPECT_TRUE(faults([&] { rs.set("eks", ""); }, FaultKind::TypeMismatch, {"\"eks\""}));
}

TEST(StoreValues, TextFieldsTakeNumberTextAndAtMost255Characters) {
  TempDir dir;
  Database db = Database::create(dir.file("p.mdb"));
  db.createTable("t", kMixedFields);
  Recordset rs = db.openTable("t");
  rs.addNew();
  rs.set("s", 1234.5);
  EXPECT_EQ(rs.get("s"), Value(std::string("1234.5")));
  rs.set("s", 0.00001);
  EXPECT_EQ(rs.text("s"), "1E-05");
  EXPECT_EQ(rs.number("s"), 0.00001);

  std::string wide;
  for (int i = 0; i < 255; ++i) wide += "ş";
  rs.set("s", wide);
  rs.update();
  rs.moveFirst();
  EXPECT_EQ(rs.text("s"), wide);
  rs.edit();
  EXPECT_TRUE(faults([&] { rs.set("s", wide + "a"); }, FaultKind::Database, {"\"s\"", "255"}));
  rs.set("s", "12a");
  EXPECT_TRUE(faults([&] { rs.number("s"); }, FaultKind::TypeMismatch, {"\"s\"", "12a"}));
}

// A child process appends rows and reports each update() that returned; it is killed
// without warning. Every reported row must be in the file, and the file must be sound.
void appendUntilKilled(const std::string& path, int first, int reportFd) {
  try {
    Database db = Database::open(path);
    Recordset rs = db.openTable("t");
    for (int n = first;; ++n) {
      rs.addNew();
      rs.set("n", n);
      rs.set("s", std::string(200, 'a' + n % 26));
      rs.update();
      if (write(reportFd, &n, sizeof n) != sizeof n) break;
      // Reads between the updates, as the program makes them.
      rs.moveLast();
      if (rs.number("n") != n) break;
    }
  } catch (...) {
  }
  _exit(0);
}

int reportsUntilKill(const std::string& path, int first, int wanted) {
  int pipeFds[2];
  if (pipe(pipeFds) != 0) return -1;
  pid_t child = fork();
  if (child < 0) {
    close(pipeFds[0]);
    close(pipeFds[1]);
    return -1;
  }
  if (child == 0) {
    close(pipeFds[0]);
    appendUntilKilled(path, first, pipeFds[1]);
  }
  close(pipeFds[1]);
  int reports = 0;
  for (int n; reports < wanted && read(pipeFds[0], &n, sizeof n) == sizeof n;) ++reports;
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  close(pipeFds[0]);
  return reports;
}

std::string integrityCheck(const std::string& path) {
  sqlite3* raw = nullptr;
  std::string result = "cannot open";
  if (sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK) {
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(raw, "PRAGMA integrity_check", -1, &stmt, nullptr);
    result = sqlite3_step(stmt) == SQLITE_ROW
                 ? reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0))
                 : sqlite3_errmsg(raw);
    sqlite3_finalize(stmt);
  }
  sqlite3_close(raw);
  return result;
}

TEST(StoreDurability, AKilledWriterLeavesASoundFileWithEveryCompletedUpdate) {
  TempDir dir;
  std::string path = dir.file("p.mdb");
  Database::create(path).createTable("t", kMixedFields);
  int expected = 0;
  for (int wanted : {1, 40, 250}) {
    ASSERT_EQ(reportsUntilKill(path, expected, wanted), wanted);
    expected += wanted;
    ASSERT_EQ(integrityCheck(path), "ok");

    Database db = Database::open(path);
    Recordset rs = db.openTable("t");
    ASSERT_GE(rs.recordCount(), expected);
    for (int n = 0; n < expected; ++n, rs.moveNext()) {
      ASSERT_EQ(rs.number("n"), n);
      ASSERT_EQ(rs.text("s"), std::string(200, 'a' + n % 26));
    }
    // Rows whose report the kill cut off are dropped, so numbering stays continuous.
    while (!rs.eof()) rs.remove(), rs.moveNext();
  }
}

}  // namespace
}  // namespace tri
