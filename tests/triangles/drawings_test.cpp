// Drawings: adding, continuing and deleting them.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/project_format.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

using Names = std::vector<std::string>;

TEST(Drawings, AddMakesTheTableTheRowAndTheEntryAndStartsEntry) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  Database db = Database::open(s.path);
  ASSERT_TRUE(db.hasTable("Kuzey"));
  std::vector<std::string> fields;
  for (const FieldDef& f : db.fields("Kuzey")) fields.push_back(f.name);
  std::vector<std::string> expected;
  for (const FieldDef& f : drawingFields()) expected.push_back(f.name);
  EXPECT_EQ(fields, expected);
  StoredTable header = s.table("Kuzey");
  ASSERT_EQ(header.rows.size(), 1u);
  EXPECT_EQ(header.number(1, "ucgensay"), 0);
  EXPECT_EQ(header.number(1, "kal"), 0);
  EXPECT_EQ(header.number(1, "bsy"), 0);
  StoredTable ore = s.table("ore");
  EXPECT_EQ(ore.text(2, "cizim"), "Kuzey");
  EXPECT_EQ(ore.number(2, "tsay"), 1);
  EXPECT_EQ(s.state.ui.combo2.items(), (Names{"Çizimler", "Kuzey"}));
  EXPECT_EQ(s.state.ui.combo2.listIndex(), 1);
  EXPECT_TRUE(s.state.flags.modcizim);
  EXPECT_FALSE(s.state.ui.enabled("Mntoprez"));
  EXPECT_FALSE(s.state.ui.enabled("Mnaortyog"));
  EXPECT_EQ(s.state.ui.label(1), "Add Drawing");
}

TEST(Drawings, TheHeaderTakesTheLastStudiedHeadersKal) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  {
    Database db = Database::open(s.path);
    Recordset header = db.openTable("Kuzey");
    header.edit();
    header.set("kal", 1234);
    header.update();
  }
  s.addLimit("1");
  s.addDrawing("Guney");
  EXPECT_EQ(s.table("Guney").number(1, "kal"), 1234);
}

TEST(Drawings, ANameTakenInTheProjectFailsWithTheEntryAlreadyListed) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  s.state.ui.combo4.setListIndex(2);  // waste
  try {
    s.addDrawing("Kuzey");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::Database);
  }
  EXPECT_EQ(s.state.ui.combo2.items(), (Names{"Çizimler", "Kuzey"}));
}

TEST(Drawings, AnEmptyNameAsksAgainUntilCancelled) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  s.dialogs.answerInput("", "Name the Drawing.")
      .answerButton(Answer::OK, "You did not enter a name")
      .answerInput("", "Name the Drawing.")
      .answerButton(Answer::Cancel, "You did not enter a name");
  s.run("Mncizek_Click");
  EXPECT_EQ(s.state.ui.combo2.listCount(), 2);
}

TEST(Drawings, EditContinuesTheSelectedDrawing) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  s.pickTriangle(100, 100, 150, 100, 100, 140);
  s.click(0, 0, 2);
  ASSERT_FALSE(s.state.flags.modcizim);
  s.state.flags.ilkmod = true;
  s.run("Mncizduz_Click");
  EXPECT_TRUE(s.state.flags.modcizim);
  EXPECT_FALSE(s.state.flags.ilkmod);
  EXPECT_EQ(s.state.ui.label(1), "Select Point One");
  s.pickTriangle(100, 140, 150, 100, 100, 100);
  StoredTable t = s.table("Kuzey");
  ASSERT_EQ(t.rows.size(), 9u);
  EXPECT_EQ(t.number(9, "ucgensay"), 2);
}

TEST(Drawings, DeletingRenumbersTheLaterOnesAndDropsTheirTables) {
  DrawingSession s("worked_example.xls", "ore", "D1");
  s.addDrawing("D2");
  s.addLimit("2");
  s.addDrawing("D3");
  s.state.ui.combo2.setListIndex(2);
  ASSERT_EQ(s.state.ui.combo1.items(), (Names{"Limit Tenor", "2"}));
  s.run("Mncizisil_Click");

  Database db = Database::open(s.path);
  EXPECT_FALSE(db.hasTable("D2"));
  EXPECT_FALSE(db.hasTable("2D2"));
  EXPECT_TRUE(db.hasTable("D3"));
  StoredTable ore = s.table("ore");
  ASSERT_EQ(ore.rows.size(), 3u);
  EXPECT_EQ(ore.number(1, "tsay"), 0);
  EXPECT_EQ(ore.text(2, "cizim"), "D1");
  EXPECT_EQ(ore.number(2, "tsay"), 1);
  EXPECT_EQ(ore.text(3, "cizim"), "D3");
  EXPECT_EQ(ore.number(3, "tsay"), 2);
  EXPECT_EQ(s.state.projects.cizimsay.get(1, 1), 2);
  EXPECT_EQ(s.state.projects.cizimad.get(1, 1, 2), "D3");
  EXPECT_EQ(s.state.projects.limsay.get(1, 1, 2), 0) << "D2's limit does not pass to D3";
  EXPECT_EQ(s.state.ui.combo2.items(), (Names{"Çizimler", "D1", "D3"}));
  EXPECT_EQ(s.state.ui.combo2.listIndex(), 0);
  EXPECT_EQ(s.state.ui.label(1), " Delete the selected drawing ");
  // A drawing added now takes the next number and starts with no limit.
  s.addDrawing("D4");
  EXPECT_EQ(s.table("ore").number(4, "tsay"), 3);
  s.pickTriangle(100, 100, 150, 100, 100, 140);
  EXPECT_EQ(s.table("D4").rows.size(), 5u);
}

}  // namespace
}  // namespace tri
