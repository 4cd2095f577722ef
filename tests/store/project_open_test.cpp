// Opening projects: what the program state holds afterwards, and files that are no project.
#include <gtest/gtest.h>

#include <fstream>

#include "platform/fault.h"
#include "store/project_format.h"
#include "support/session.h"
#include "support/stored_table.h"

namespace tri {
namespace {

using Names = std::vector<std::string>;

// A project of one lithology "ore" whose log and kor hold only their end mark.
std::string makeEmptyProject(const TempDir& dir) {
  const std::string path = dir.file("empty.mdb");
  Database db = Database::create(path);
  db.createTable("pol", polFields());
  for (const char* table : {"kor", "log"}) {
    db.createTable(table, table == std::string("log") ? logFields(1, 1) : holeFields(1));
    Recordset rs = db.openTable(table);
    rs.addNew();
    rs.set("eks", 0);
    rs.update();
  }
  db.createTable("ore", lithologyFields());
  db.createTable("litoloji", lithologyListFields());
  Recordset list = db.openTable("litoloji");
  list.addNew();
  list.set("isim", "ore");
  list.set("litno", 1);
  list.update();
  Recordset ore = db.openTable("ore");
  ore.addNew();
  ore.set("tsay", 0);
  ore.update();
  return path;
}

// Adds a drawing row with limit slots to a lithology's table.
void addDrawingRow(const std::string& path, const std::string& lithology,
                   const std::string& drawing, int number,
                   const std::vector<std::pair<int, std::pair<std::string, double>>>& limitSlots) {
  Database db = Database::open(path);
  Recordset table = db.openTable(lithology);
  table.addNew();
  table.set("cizim", drawing);
  table.set("tsay", number);
  for (const auto& [k, slot] : limitSlots) {
    table.set(numbered("limten", k), slot.first);
    table.set(numbered("limdeg", k), slot.second);
  }
  table.update();
}

TEST(OpenProject, RoundTripGivesTheSameHolesAndLists) {
  Session creator;
  const std::string path = creator.createProject(fixture("small.xls"), "Kuzey.mdb");
  Session s;
  s.openProject(path);
  const State& st = s.state;
  EXPECT_EQ(st.projects.projeno, 1);
  EXPECT_EQ(st.projects.projead[1], "Kuzey");
  EXPECT_EQ(st.projects.projeyol[1], path);
  EXPECT_EQ(st.holes.sondsay, 4);
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(st.holes.eks[i], creator.state.holes.eks[i]);
    EXPECT_EQ(st.holes.eye[i], creator.state.holes.eye[i]);
    EXPECT_EQ(st.holes.isim[i], creator.state.holes.isim[i]);
  }
  // The layer arrays hold the raw stored thousandths after an open.
  EXPECT_EQ(st.holes.ten(1, 2), 1234);
  EXPECT_EQ(st.holes.uz(1, 4), 3750);
  EXPECT_EQ(st.holes.lit(1, 3), "waste");
  EXPECT_EQ(st.holes.dya(2, 1), 250);
  EXPECT_EQ(st.holes.ten(2, 2), 0);
  EXPECT_EQ(st.projects.litsay[1], 3);
  EXPECT_EQ(st.projects.litad.get(1, 3), "waste");
  EXPECT_EQ(st.ui.combo4.items(), (Names{"Litoloji", "cover", "ore", "waste"}));
  EXPECT_EQ(st.frame.ebxk, 210.25);
  EXPECT_EQ(st.frame.ekyk, 340);
}

TEST(OpenProject, OpeningTheSameFileTwiceGivesTwoEntries) {
  Session creator;
  const std::string path = creator.createProject(fixture("small.xls"), "Kuzey.mdb");
  Session s;
  s.openProject(path);
  s.openProject(path);
  EXPECT_EQ(s.state.ui.combo5.items(), (Names{"Proje", "Kuzey", "Kuzey"}));
  EXPECT_EQ(s.state.ui.combo5.listIndex(), 2);
  EXPECT_EQ(s.state.ui.combo4.listIndex(), 0);
}

TEST(OpenProject, TheHundredAndFirstProjectIsASubscriptFault) {
  Session creator;
  const std::string path = creator.createProject(fixture("seven_rows.xls"));
  Session s;
  for (int i = 1; i <= 100; ++i) s.openProject(path);
  try {
    s.openProject(path);
    FAIL() << "the 101st project was accepted";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::SubscriptOutOfRange);
    EXPECT_EQ(fault.message(), "projead(101)");
  }
}

TEST(OpenProject, LimitSlotsOneToTenOnlyAndFreedSlotsSkipped) {
  Session creator;
  const std::string path = creator.createProject(fixture("small.xls"));
  addDrawingRow(path, "ore", "Kuzey", 1,
                {{1, {"Boş Alan", 0}},
                 {2, {"2Kuzey", 2000}},
                 {4, {"", 3000}},
                 {5, {"2.5Kuzey", 2500}},
                 {12, {"5Kuzey", 5000}}});
  addDrawingRow(path, "ore", "Guney", 2, {});
  Session s;
  s.openProject(path);
  const Projects& p = s.state.projects;
  EXPECT_EQ(p.cizimsay.get(1, 2), 2);
  EXPECT_EQ(p.cizimad.get(1, 2, 1), "Kuzey");
  EXPECT_EQ(p.cizimad.get(1, 2, 2), "Guney");
  EXPECT_EQ(p.limsay.get(1, 2, 1), 2);
  EXPECT_EQ(p.limdeger.get(1, 2, 1, 2).value, 2);
  EXPECT_EQ(p.limdeger.get(1, 2, 1, 5).value, 2.5);
  EXPECT_EQ(p.limdeger.get(1, 2, 1, 5).text, "2.5");
  EXPECT_EQ(p.limdeger.get(1, 2, 1, 12).value, 0);
  // Combo2 lists slots 1 to limsay, so the limit in slot 5 is not offered.
  s.state.ui.combo4.setListIndex(2);
  EXPECT_EQ(s.state.ui.combo2.items(), (Names{"Çizimler", "Kuzey", "Guney"}));
  s.state.ui.combo2.setListIndex(1);
  EXPECT_EQ(s.state.ui.combo1.items(), (Names{"Limit Tenor", "2"}));
}

TEST(OpenProject, ALogThatBeginsWithItsEndMarkHasNoHoles) {
  Session s;
  s.openProject(makeEmptyProject(s.dir));
  EXPECT_EQ(s.state.holes.sondsay, 0);
  EXPECT_EQ(s.state.frame.ebxk, 0);
  EXPECT_EQ(s.state.frame.ekyk, 0);
  EXPECT_EQ(s.state.ui.combo4.items(), (Names{"Litoloji", "ore"}));
}

TEST(OpenProject, AFileThatIsNoProjectIsAFaultThatSaysSo) {
  Session s;
  const std::string text = s.dir.file("notes.mdb");
  std::ofstream(text) << "shopping list\n";
  try {
    s.openProject(text);
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::Database);
    EXPECT_NE(fault.message().find("notes.mdb"), std::string::npos) << fault.message();
  }
  const std::string other = s.dir.file("other.mdb");
  Database::create(other).createTable("things", {{"name", FieldType::Text}});
  try {
    s.openProject(other);
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_NE(fault.message().find("log"), std::string::npos) << fault.message();
  }
  EXPECT_THROW(s.openProject(s.dir.file("missing.mdb")), Fault);
}

TEST(OpenProject, CancelLeavesTheStateButHidesTheScrollBar) {
  Session s;
  s.state.ui.show("HScroll1");
  s.dialogs.answerOpen("", "Select Project File")
      .answerButton(Answer::Cancel, "you have not selected an available file");
  s.run("Mnprojeac_Click");
  EXPECT_EQ(s.state.projects.projeno, 0);
  EXPECT_FALSE(s.state.ui.visible("HScroll1"));
  EXPECT_TRUE(s.state.ui.enabled("Mnolcekg"));
}

}  // namespace
}  // namespace tri
