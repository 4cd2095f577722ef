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
  StoredTable header = s.table("Kuzey");
  EXPECT_EQ(header.fields.size(), drawingFields().size());
  ASSERT_EQ(header.rows.size(), 1u);
  for (const char* field : {"ucgensay", "kal", "bsy"}) EXPECT_EQ(header.number(1, field), 0);
  StoredTable ore = s.table("ore");
  EXPECT_EQ(ore.text(2, "cizim"), "Kuzey");
  EXPECT_EQ(ore.number(2, "tsay"), 1);
  EXPECT_EQ(s.state.ui.combo2.items(), (Names{"Çizimler", "Kuzey"}));
  EXPECT_EQ(s.state.ui.combo2.listIndex(), 1);
  EXPECT_TRUE(s.state.flags.modcizim);
  EXPECT_FALSE(s.state.ui.enabled("Mntoprez"));
  EXPECT_FALSE(s.state.ui.enabled("Mnaortyog"));
  // A new header takes the kal of the last studied header.
  writeStored(s.path, "Kuzey", 1, "kal", 1234);
  s.addLimit("1");
  s.addDrawing("Guney");
  EXPECT_EQ(s.table("Guney").number(1, "kal"), 1234);

  // A name taken in the project fails, with the entry already listed.
  s.state.ui.combo4.setListIndex(2);  // waste
  EXPECT_THROW(s.addDrawing("Kuzey"), Fault);
  EXPECT_EQ(s.state.ui.combo2.items(), (Names{"Çizimler", "Kuzey"}));
}

TEST(Drawings, EditContinuesTheSelectedDrawing) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  s.pickABC();
  s.click(0, 0, 2);
  ASSERT_FALSE(s.state.flags.modcizim);
  s.state.flags.ilkmod = true;
  s.run("Mncizduz_Click");
  EXPECT_TRUE(s.state.flags.modcizim);
  EXPECT_FALSE(s.state.flags.ilkmod);
  EXPECT_EQ(s.state.ui.label(1), "Select Point One");
  s.pickCBA();
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
  EXPECT_EQ((std::vector<bool>{db.hasTable("D2"), db.hasTable("2D2"), db.hasTable("D3")}),
            (std::vector<bool>{false, false, true}));
  StoredTable ore = s.table("ore");
  ASSERT_EQ(ore.rows.size(), 3u);
  EXPECT_EQ((Names{ore.text(2, "cizim"), ore.text(3, "cizim")}), (Names{"D1", "D3"}));
  EXPECT_EQ(ore.number(3, "tsay"), 2);
  EXPECT_EQ(s.state.projects.cizimsay.get(1, 1), 2);
  EXPECT_EQ(s.state.projects.cizimad.get(1, 1, 2), "D3");
  EXPECT_EQ(s.state.projects.limsay.get(1, 1, 2), 0) << "D2's limit does not pass to D3";
  EXPECT_EQ(s.state.ui.combo2.items(), (Names{"Çizimler", "D1", "D3"}));
  EXPECT_EQ(s.state.ui.combo2.listIndex(), 0);
  // A drawing added now takes the next number and starts with no limit.
  s.addDrawing("D4");
  EXPECT_EQ(s.table("ore").number(4, "tsay"), 3);
  s.pickABC();
  EXPECT_EQ(s.table("D4").rows.size(), 5u);
}

}  // namespace
}  // namespace tri
