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

TEST(OpenProject, RoundTripGivesTheSameHolesAndLists) {
  Session creator;
  const std::string path = creator.createProject(fixture("small.xls"), "Kuzey.mdb");
  Session s;
  s.openProject(path);
  s.openProject(path);
  const State& st = s.state;
  // The same file opened twice is two entries; the second is chosen.
  EXPECT_EQ(st.projects.projeno, 2);
  EXPECT_EQ(st.projects.projead[2], "Kuzey");
  EXPECT_EQ(st.projects.projeyol[2], path);
  EXPECT_EQ(st.ui.combo5.items(), (Names{"Proje", "Kuzey", "Kuzey"}));
  EXPECT_EQ(st.ui.combo5.listIndex(), 2);
  EXPECT_EQ(st.ui.combo4.listIndex(), 0);
  EXPECT_EQ(st.holes.sondsay, 4);
  // The layer arrays hold the raw stored thousandths after an open.
  EXPECT_EQ(st.holes.ten(1, 2), 1234);
  EXPECT_EQ(st.holes.uz(1, 4), 3750);
  EXPECT_EQ(st.holes.lit(1, 3), "waste");
  EXPECT_EQ(st.holes.dya(2, 1), 250);
  EXPECT_EQ(st.holes.ten(2, 2), 0);
  EXPECT_EQ(st.projects.litsay[2], 3);
  EXPECT_EQ(st.projects.litad.get(2, 3), "waste");
  EXPECT_EQ(st.ui.combo4.items(), (Names{"Litoloji", "cover", "ore", "waste"}));
  EXPECT_EQ(st.frame.ebxk, 210.25);
  EXPECT_EQ(st.frame.ekyk, 340);
}

TEST(OpenProject, LimitSlotsOneToTenOnlyAndFreedSlotsSkipped) {
  Session creator;
  const std::string path = creator.createProject(fixture("small.xls"));
  {
    Database db = Database::open(path);
    Recordset ore = db.openTable("ore");
    struct Slot {
      int k;
      const char* table;
      int value;
    };
    for (auto [drawing, number] : {std::pair{"Kuzey", 1}, std::pair{"Guney", 2}}) {
      ore.addNew();
      ore.set("cizim", drawing);
      ore.set("tsay", number);
      for (const Slot& slot : {Slot{1, "Boş Alan", 0}, Slot{2, "2Kuzey", 2000}, Slot{4, "", 3000},
                               Slot{5, "2.5Kuzey", 2500}, Slot{12, "5Kuzey", 5000}}) {
        if (number == 2) break;
        ore.set(numbered("limten", slot.k), slot.table);
        ore.set(numbered("limdeg", slot.k), slot.value);
      }
      ore.update();
    }
  }
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
  Session creator;
  const std::string path = creator.createProject(fixture("small.xls"));
  for (const char* table : {"kor", "log"}) writeStored(path, table, 1, "eks", 0);
  Session s;
  s.openProject(path);
  EXPECT_EQ(s.state.holes.sondsay, 0);
  EXPECT_EQ(s.state.frame.ebxk, 0);
  EXPECT_EQ(s.state.frame.ekyk, 0);
}

TEST(OpenProject, AFileThatIsNoProjectIsAFaultThatSaysSo) {
  Session s;
  const std::string text = s.dir.file("notes.mdb");
  std::ofstream(text) << "shopping list\n";
  const std::string other = s.dir.file("other.mdb");
  Database::create(other).createTable("things", {{"name", FieldType::Text}});
  for (auto [path, mention] : {std::pair{text, "notes.mdb"}, std::pair{other, "log"}}) {
    try {
      s.openProject(path);
      ADD_FAILURE() << path << " was opened";
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), FaultKind::Database);
      EXPECT_NE(fault.message().find(mention), std::string::npos) << fault.message();
    }
  }
  EXPECT_THROW(s.openProject(s.dir.file("missing.mdb")), Fault);
}

}  // namespace
}  // namespace tri
