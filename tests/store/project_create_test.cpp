// Creating a project from a drill-hole workbook: every table, field and stored value.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

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

Names comboEntries(const Combo& combo) { return combo.items(); }

Fault createFails(Session& s, const std::string& workbook) {
  try {
    s.createProject(fixture(workbook));
  } catch (const Fault& fault) {
    return fault;
  }
  ADD_FAILURE() << "no Fault for " << workbook;
  return Fault(FaultKind::Database, "");
}

TEST(CreateProject, MakesEveryTableInOrderWithItsFieldsInOrder) {
  Session s;
  const std::string path = s.createProject(fixture("small.xls"));
  Database db = Database::open(path);
  EXPECT_EQ(db.tableNames(), (Names{"pol", "kor", "log", "cover", "ore", "waste", "litoloji"}));
  // The longest log has four layers: five layer slots, the last for the end of a log.
  EXPECT_EQ(namesOf(db.fields("kor")), namesOf(holeFields(5)));
  EXPECT_EQ(namesOf(db.fields("log")), namesOf(logFields(5, 3)));
  EXPECT_EQ(namesOf(db.fields("pol")), namesOf(polFields()));
  EXPECT_EQ(namesOf(db.fields("ore")), namesOf(lithologyFields()));
  EXPECT_EQ(namesOf(db.fields("litoloji")), (Names{"isim", "litno", "litur"}));
  EXPECT_EQ(db.fields("log").back().name, "deg3");
  EXPECT_EQ(db.fields("log")[8].type, FieldType::Long);  // ten1
  EXPECT_EQ(db.fields("log")[7].type, FieldType::Text);  // lit1
}

TEST(CreateProject, StoresEveryValueInTruncatedThousandths) {
  Session s;
  const std::string path = s.createProject(fixture("small.xls"));
  for (const char* name : {"kor", "log"}) {
    SCOPED_TRACE(name);
    StoredTable t = readTable(path, name);
    ASSERT_EQ(t.rows.size(), 5u);  // four holes and the end mark
    EXPECT_EQ(t.number(1, "eks"), 120000);
    EXPECT_EQ(t.number(1, "eye"), 340000);
    EXPECT_EQ(t.text(1, "isim"), "S-1");
    EXPECT_EQ(t.number(1, "songir"), 250500);
    EXPECT_EQ(t.number(1, "cevgir"), 246500);
    EXPECT_EQ(t.number(1, "cevcik"), 224250);
    EXPECT_EQ(t.number(1, "soncik"), 224250);
    EXPECT_EQ(t.text(1, "lit1"), "cover");
    EXPECT_EQ(t.number(1, "ten1"), 50);
    EXPECT_EQ(t.number(1, "yog1"), 2100);
    EXPECT_EQ(t.number(1, "uz1"), 4000);
    EXPECT_EQ(t.number(1, "dya1"), 10);
    EXPECT_EQ(t.number(1, "ten2"), 1234);  // 1.2345 is cut, not rounded
    EXPECT_EQ(t.number(1, "uz4"), 3750);
    EXPECT_EQ(t.text(1, "lit5"), " ");
    EXPECT_EQ(t.number(1, "ten5"), 0);
    EXPECT_TRUE(t.at(1, "yog5").isNull());
    // The numeric-looking name stays a text; a negative elevation keeps its sign.
    EXPECT_EQ(t.text(2, "isim"), "101");
    EXPECT_EQ(t.number(2, "songir"), -12500);
    EXPECT_EQ(t.number(2, "ten1"), 3100);
    EXPECT_EQ(t.text(2, "lit2"), " ");
    EXPECT_TRUE(t.at(2, "lit3").isNull());
    EXPECT_EQ(t.number(4, "eks"), 210250);
    EXPECT_EQ(t.number(4, "eye"), 395500);
    EXPECT_EQ(t.number(5, "eks"), 0);
    EXPECT_TRUE(t.at(5, "isim").isNull());
    EXPECT_TRUE(t.at(5, "ten1").isNull());
  }
  StoredTable log = readTable(path, "log");
  for (int row = 1; row <= 4; ++row) {
    for (const char* deg : {"deg1", "deg2", "deg3"}) EXPECT_EQ(log.text(row, deg), "hayır");
  }
  EXPECT_TRUE(log.at(5, "deg1").isNull());

  StoredTable list = readTable(path, "litoloji");
  ASSERT_EQ(list.rows.size(), 3u);
  EXPECT_EQ(list.text(2, "isim"), "ore");
  EXPECT_EQ(list.number(3, "litno"), 3);
  EXPECT_TRUE(list.at(1, "litur").isNull());
  StoredTable ore = readTable(path, "ore");
  ASSERT_EQ(ore.rows.size(), 1u);
  EXPECT_EQ(ore.number(1, "tsay"), 0);
  EXPECT_TRUE(ore.at(1, "cizim").isNull());
  StoredTable pol = readTable(path, "pol");
  ASSERT_EQ(pol.rows.size(), 1u);
  EXPECT_EQ(pol.number(1, "polsay"), 0);
  EXPECT_EQ(pol.number(1, "polsil"), 0);
  EXPECT_TRUE(pol.at(1, "polalan").isNull());
}

TEST(CreateProject, FillsTheSelectorsAndSaysReady) {
  Session s;
  s.createProject(fixture("small.xls"), "Kuzey.mdb");
  const State& st = s.state;
  EXPECT_EQ(st.projects.projead[1], "Kuzey");
  EXPECT_EQ(comboEntries(st.ui.combo5), (Names{"Proje", "Kuzey"}));
  EXPECT_EQ(st.ui.combo5.listIndex(), 1);
  EXPECT_EQ(comboEntries(st.ui.combo4), (Names{"Litoloji", "cover", "ore", "waste"}));
  EXPECT_EQ(st.ui.combo4.listIndex(), 0);
  EXPECT_EQ(comboEntries(st.ui.combo2), (Names{"Çizimler"}));
  EXPECT_EQ(comboEntries(st.ui.combo1), (Names{"Limit Tenor"}));
  EXPECT_EQ(st.ui.label(1), "Project Ready");
  // The holes come back from kor, in metres, and the frame is theirs.
  EXPECT_EQ(st.holes.sondsay, 4);
  EXPECT_EQ(st.holes.eks[4], 210.25);
  EXPECT_EQ(st.frame.ekxk, 120);
  EXPECT_EQ(st.frame.ebxk, 210.25);
  EXPECT_EQ(st.frame.ekyk, 340);
  EXPECT_EQ(st.frame.ebyk, 400);
  EXPECT_EQ(st.frame.haritagen, 90.25);
}

TEST(CreateProject, HoleLogsOfOddShapes) {
  {
    SCOPED_TRACE("a hole of seven rows has no layer and the end of its log in slot 1");
    Session s;
    StoredTable kor = readTable(s.createProject(fixture("seven_rows.xls")), "kor");
    EXPECT_EQ(kor.text(2, "lit1"), " ");
    EXPECT_EQ(kor.number(2, "ten1"), 0);
    EXPECT_EQ(kor.number(2, "soncik"), 80000);
  }
  {
    SCOPED_TRACE("a tenor of 0 is stored, and ends the log when it is read");
    Session s;
    const std::string path = s.createProject(fixture("zero_tenor.xls"));
    StoredTable log = readTable(path, "log");
    EXPECT_EQ(log.number(1, "ten2"), 0);
    EXPECT_EQ(log.number(1, "ten3"), 2200);
    Session reader;
    reader.openProject(path);
    EXPECT_EQ(reader.state.holes.ten(1, 1), 1800);
    EXPECT_EQ(reader.state.holes.ten(1, 2), 0);
    EXPECT_EQ(reader.state.holes.lit(1, 3), "");
  }
}

TEST(CreateProject, LithologiesComeFromTheFirstHoleOnly) {
  {
    SCOPED_TRACE("a lithology only in a later hole has no table, no list row, no mark");
    Session s;
    const std::string path = s.createProject(fixture("later_lithology.xls"));
    Database db = Database::open(path);
    EXPECT_EQ(db.tableNames(), (Names{"pol", "kor", "log", "ore", "waste", "litoloji"}));
    EXPECT_EQ(db.fields("log").back().name, "deg2");
    EXPECT_EQ(readTable(path, "log").text(2, "lit2"), "dyke");
  }
  {
    SCOPED_TRACE("a layer named ayni in the first hole is dropped from the list");
    Session s;
    const std::string path = s.createProject(fixture("ayni.xls"));
    EXPECT_EQ(Database::open(path).tableNames(),
              (Names{"pol", "kor", "log", "ore", "waste", "litoloji"}));
    EXPECT_EQ(readTable(path, "kor").text(1, "lit2"), "ayni");
  }
}

TEST(CreateProject, AFractionalLayerCountReadsRowsWhereRoundingPutsThem) {
  // Column 2 has 7 + 12 rows: n = 2.4, so the blocks start at fractional rows.
  GridSheet grid;
  auto header = [&](int column, double x) {
    grid.setNumber(1, column, x);
    grid.setNumber(2, column, 500);
    grid.setText(3, column, "H" + std::to_string(column));
    for (int row = 4; row <= 7; ++row) grid.setNumber(row, column, 100);
  };
  header(1, 300);
  grid.setText(8, 1, "ore");
  for (int row = 9; row <= 12; ++row) grid.setNumber(row, 1, 1);
  header(2, 360);
  grid.setText(8, 2, "ore");
  grid.setText(9, 2, "ore");
  for (int row = 10; row <= 19; ++row) grid.setNumber(row, 2, row);
  Session s;
  s.state.openSheet = [&](const std::string&) { return std::make_unique<GridSheet>(grid); };
  const std::string path = s.createProject("holes.xls");
  StoredTable kor = readTable(path, "kor");
  // Tenor rows 10.4 and 11.4 read rows 10 and 11; density 12.8 and 13.8 read 13 and 14;
  // length 15.2 and 16.2 read 15 and 16; the fifth 17.6 and 18.6 read 18 and 19.
  EXPECT_EQ(kor.number(2, "ten1"), 10000);
  EXPECT_EQ(kor.number(2, "ten2"), 11000);
  EXPECT_EQ(kor.number(2, "yog1"), 13000);
  EXPECT_EQ(kor.number(2, "yog2"), 14000);
  EXPECT_EQ(kor.number(2, "uz1"), 15000);
  EXPECT_EQ(kor.number(2, "uz2"), 16000);
  EXPECT_EQ(kor.number(2, "dya1"), 18000);
  EXPECT_EQ(kor.number(2, "dya2"), 19000);
  EXPECT_EQ(kor.text(2, "lit3"), " ");
  // L = 2.4: the tables have three layer slots.
  EXPECT_EQ(kor.fields.size(), 7u + 3 * 5);
}

TEST(CreateProject, BadCellsEndInAFaultNamingTheCell) {
  {
    Session s;
    Fault f = createFails(s, "text_in_number.xls");
    EXPECT_EQ(f.kind(), FaultKind::TypeMismatch);
    EXPECT_NE(f.message().find("column 2, row 12"), std::string::npos) << f.message();
    EXPECT_NE(f.message().find("\"n/a\""), std::string::npos) << f.message();
  }
  {
    // A blank inside a log ends the column early, so the blocks are cut at the wrong
    // rows: the first tenor is read from row 9, a lithology name.
    Session s;
    Fault f = createFails(s, "blank_inside.xls");
    EXPECT_EQ(f.kind(), FaultKind::TypeMismatch);
    EXPECT_NE(f.message().find("column 2, row 9"), std::string::npos) << f.message();
    EXPECT_NE(f.message().find("\"waste\""), std::string::npos) << f.message();
  }
}

TEST(CreateProject, RefusesWhatTheStoreCannotHold) {
  {
    SCOPED_TRACE("a lithology named like a fixed table");
    Session s;
    Fault f = createFails(s, "lithology_kor.xls");
    EXPECT_EQ(f.kind(), FaultKind::Database);
    EXPECT_NE(f.message().find("kor"), std::string::npos) << f.message();
  }
  {
    SCOPED_TRACE("an existing file at the save path is left untouched");
    Session s;
    const std::string path = s.dir.file("project.mdb");
    std::ofstream(path) << "precious";
    EXPECT_THROW(s.createProject(fixture("small.xls")), Fault);
    std::ifstream in(path);
    std::string content((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    EXPECT_EQ(content, "precious");
  }
  {
    SCOPED_TRACE("a workbook that is no workbook");
    Session s;
    const std::string path = s.dir.file("notes.xls");
    std::ofstream(path) << "x,y\n1,2\n";
    EXPECT_THROW(s.createProject(path, "other.mdb"), Fault);
    EXPECT_FALSE(std::filesystem::exists(s.dir.file("other.mdb")));
  }
}

TEST(CreateProject, TheAreaLimitAsksWhetherToShrink) {
  const std::string passed =
      "You have passed the Plane Counted Area Value (50 Square Kilometers) ! Projection "
      "required.";
  const std::string question =
      "If the Relevant Area is Reduced, You Cannot Work with Drills Outside the Area Value. "
      "Make a Correction?";
  {
    // 10000 m by 5000 m is exactly 50 km², which reaches the limit; one metre less on each
    // side brings it under.
    Session s;
    s.dialogs.answerOpen(fixture("wide_area.xls")).answerSave(s.dir.file("wide.mdb"));
    s.dialogs.answerButton(Answer::OK, passed)
        .answerButton(Answer::Yes, question)
        .answerButton(Answer::OK, "The corresponding fix has been made!");
    s.run("Mnprolus_Click");
    EXPECT_EQ(s.state.frame.ebxk, 10999.5);
    EXPECT_EQ(s.state.frame.ekxk, 1000.5);
    EXPECT_EQ(s.state.frame.ebyk, 5999.5);
    EXPECT_EQ(s.state.frame.ekyk, 1000.5);
    EXPECT_EQ(s.state.ui.label(1), "Project Ready");
  }
  {
    Session s;
    s.dialogs.answerOpen(fixture("wide_area.xls")).answerSave(s.dir.file("wide.mdb"));
    s.dialogs.answerButton(Answer::OK, passed)
        .answerButton(Answer::No, question)
        .answerButton(Answer::OK, "Projection is Required for Your Project !");
    s.run("Mnprolus_Click");
    EXPECT_EQ(s.state.frame.ebxk, 11000);
    EXPECT_EQ(s.state.frame.haritayuk, 5000);
  }
}

TEST(CreateProject, CancelEndsTheCommandAndOkAsksAgain) {
  Session s;
  s.dialogs.answerOpen("")
      .answerButton(Answer::OK, "You did not enter a name")
      .answerOpen("")
      .answerButton(Answer::Cancel, "You did not enter a name");
  s.run("Mnprolus_Click");
  EXPECT_EQ(s.state.projects.projeno, 0);
  EXPECT_EQ(s.dialogs.pending(), 0u);
}

}  // namespace
}  // namespace tri
