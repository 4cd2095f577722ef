// Creating a project from a drill-hole workbook: every table, field and stored value.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <tuple>

#include "platform/fault.h"
#include "store/project_format.h"
#include "support/session.h"
#include "support/stored_table.h"

namespace tri {
namespace {

using Names = std::vector<std::string>;

Names namesOf(const std::vector<FieldDef>& fields) {
  Names names;
  for (const FieldDef& f : fields) names.push_back(f.name);
  return names;
}

// A value as the file holds it: a number, a text, or Null.
struct Stored {
  int row;
  const char* field;
  Value value;
};

void expectStored(const StoredTable& t, std::initializer_list<Stored> values) {
  for (const Stored& v : values)
    EXPECT_EQ(t.at(v.row, v.field), v.value) << v.field << " " << v.row;
}

Value n(int number) { return Value(std::int32_t{number}); }
Value text(const char* t) { return Value(std::string(t)); }

TEST(CreateProject, MakesEveryTableWithItsFieldsAndValuesInTruncatedThousandths) {
  Session s;
  const std::string path = s.createProject(fixture("small.xls"));
  Database db = Database::open(path);
  EXPECT_EQ(db.tableNames(), (Names{"pol", "kor", "log", "cover", "ore", "waste", "litoloji"}));
  // The longest log has four layers: five layer slots, the last for the end of a log.
  EXPECT_EQ(namesOf(db.fields("kor")), namesOf(holeFields(5)));
  EXPECT_EQ(namesOf(db.fields("log")), namesOf(logFields(5, 3)));
  EXPECT_EQ(namesOf(db.fields("pol")), namesOf(polFields()));
  EXPECT_EQ(namesOf(db.fields("ore")), namesOf(lithologyFields()));
  EXPECT_EQ(db.fields("log")[8].type, FieldType::Long);  // ten1
  EXPECT_EQ(db.fields("log")[7].type, FieldType::Text);  // lit1
  for (const char* name : {"kor", "log"}) {
    SCOPED_TRACE(name);
    StoredTable t = readTable(path, name);
    ASSERT_EQ(t.rows.size(), 5u);  // four holes and the end mark
    expectStored(t, {{1, "eks", n(120000)},
                     {1, "isim", text("S-1")},
                     {1, "songir", n(250500)},
                     {1, "soncik", n(224250)},
                     {1, "lit1", text("cover")},
                     {1, "ten1", n(50)},
                     {1, "yog1", n(2100)},
                     {1, "uz1", n(4000)},
                     {1, "dya1", n(10)},
                     {1, "ten2", n(1234)},  // 1.2345 is cut, not rounded
                     {1, "lit5", text(" ")},
                     {1, "ten5", n(0)},
                     {1, "yog5", Value()},
                     // A numeric-looking name stays a text; a negative value keeps its sign.
                     {2, "isim", text("101")},
                     {2, "songir", n(-12500)},
                     {2, "lit3", Value()},
                     {4, "eye", n(395500)},
                     {5, "eks", n(0)},
                     {5, "isim", Value()}});
  }
  expectStored(readTable(path, "log"),
               {{1, "deg1", text("hayır")}, {4, "deg3", text("hayır")}, {5, "deg1", Value()}});
  expectStored(readTable(path, "litoloji"), {{2, "isim", text("ore")}, {3, "litno", n(3)}});
  expectStored(readTable(path, "ore"), {{1, "tsay", n(0)}, {1, "cizim", Value()}});
  expectStored(readTable(path, "pol"), {{1, "polsay", n(0)}, {1, "polsil", n(0)}});
  // The holes come back from kor, in metres, and the frame is theirs.
  EXPECT_EQ(s.state.holes.sondsay, 4);
  EXPECT_EQ(s.state.frame.ekxk, 120);
  EXPECT_EQ(s.state.frame.haritagen, 90.25);
}

TEST(CreateProject, HoleLogsOfOddShapes) {
  Session s;
  // A hole of seven rows has no layer and the end of its log in slot 1.
  expectStored(readTable(s.createProject(fixture("seven_rows.xls"), "seven.mdb"), "kor"),
               {{2, "lit1", text(" ")}, {2, "ten1", n(0)}, {2, "soncik", n(80000)}});
  // A tenor of 0 is stored, and ends the log when it is read.
  const std::string path = s.createProject(fixture("zero_tenor.xls"), "zero.mdb");
  expectStored(readTable(path, "log"), {{1, "ten2", n(0)}, {1, "ten3", n(2200)}});
  Session reader;
  reader.openProject(path);
  EXPECT_EQ(reader.state.holes.ten(1, 1), 1800);
  EXPECT_EQ(reader.state.holes.ten(1, 2), 0);
  EXPECT_EQ(reader.state.holes.lit(1, 3), "");
  // Lithologies come from the first hole only: one only in a later hole has no table, no
  // list row and no mark; a layer named ayni is dropped from the list.
  const std::string later = s.createProject(fixture("later_lithology.xls"), "later.mdb");
  EXPECT_EQ(Database::open(later).tableNames(),
            (Names{"pol", "kor", "log", "ore", "waste", "litoloji"}));
  EXPECT_EQ(Database::open(later).fields("log").back().name, "deg2");
  EXPECT_EQ(readTable(later, "log").text(2, "lit2"), "dyke");
  const std::string ayni = s.createProject(fixture("ayni.xls"), "ayni.mdb");
  EXPECT_EQ(Database::open(ayni).tableNames(),
            (Names{"pol", "kor", "log", "ore", "waste", "litoloji"}));
  EXPECT_EQ(readTable(ayni, "kor").text(1, "lit2"), "ayni");
}

TEST(CreateProject, AFractionalLayerCountReadsRowsWhereRoundingPutsThem) {
  // Column 2 has 7 + 12 rows: n = 2.4, so the blocks start at fractional rows.
  GridSheet grid;
  for (auto [column, x, firstValueRow] : {std::tuple{1, 300, 9}, std::tuple{2, 360, 10}}) {
    grid.setNumber(1, column, x);
    grid.setNumber(2, column, 500);
    grid.setText(3, column, "H" + std::to_string(column));
    for (int row = 4; row <= 7; ++row) grid.setNumber(row, column, 100);
    for (int row = 8; row < firstValueRow; ++row) grid.setText(row, column, "ore");
  }
  for (int row = 9; row <= 12; ++row) grid.setNumber(row, 1, 1);
  for (int row = 10; row <= 19; ++row) grid.setNumber(row, 2, row);
  Session s;
  s.state.openSheet = [&](const std::string&) { return std::make_unique<GridSheet>(grid); };
  StoredTable kor = readTable(s.createProject("holes.xls"), "kor");
  // Tenor rows 10.4 and 11.4 read rows 10 and 11; density 12.8 and 13.8 read 13 and 14;
  // length 15.2 and 16.2 read 15 and 16; the fifth 17.6 and 18.6 read 18 and 19.
  expectStored(kor, {{2, "ten1", n(10000)},
                     {2, "ten2", n(11000)},
                     {2, "yog1", n(13000)},
                     {2, "yog2", n(14000)},
                     {2, "uz1", n(15000)},
                     {2, "uz2", n(16000)},
                     {2, "dya1", n(18000)},
                     {2, "dya2", n(19000)},
                     {2, "lit3", text(" ")}});
  // L = 2.4: the tables have three layer slots.
  EXPECT_EQ(kor.fields.size(), 7u + 3 * 5);
}

TEST(CreateProject, RefusesWhatItCannotReadOrTheStoreCannotHold) {
  struct Case {
    const char* workbook;
    FaultKind kind;
    std::vector<std::string> mentions;
  };
  const Case cases[] = {
      {"text_in_number.xls", FaultKind::TypeMismatch, {"column 2, row 12", "\"n/a\""}},
      // A blank inside a log ends the column early, so the blocks are cut at the wrong
      // rows: the first tenor is read from row 9, a lithology name.
      {"blank_inside.xls", FaultKind::TypeMismatch, {"column 2, row 9", "\"waste\""}},
      // A lithology named like a fixed table.
      {"lithology_kor.xls", FaultKind::Database, {"kor"}},
  };
  for (const Case& c : cases) {
    Session s;
    try {
      s.createProject(fixture(c.workbook));
      ADD_FAILURE() << "no Fault for " << c.workbook;
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), c.kind) << c.workbook;
      for (const std::string& m : c.mentions) {
        EXPECT_NE(fault.message().find(m), std::string::npos) << fault.message();
      }
    }
  }
  // An existing file at the save path is left untouched; a workbook that is no workbook
  // leaves no project file.
  Session s;
  std::ofstream(s.dir.file("project.mdb")) << "precious";
  EXPECT_THROW(s.createProject(fixture("small.xls")), Fault);
  EXPECT_EQ(std::filesystem::file_size(s.dir.file("project.mdb")), 8u);
  std::ofstream(s.dir.file("notes.xls")) << "x,y\n1,2\n";
  EXPECT_THROW(s.createProject(s.dir.file("notes.xls"), "other.mdb"), Fault);
  EXPECT_FALSE(std::filesystem::exists(s.dir.file("other.mdb")));
}

}  // namespace
}  // namespace tri
