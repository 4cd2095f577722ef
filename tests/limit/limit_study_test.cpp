// Limit tenor studies over a drawing: the table they write, the slots they take, and
// their removal.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

using Names = std::vector<std::string>;

// worked_example.xls with two triangles entered: A B C, then C B A.
struct TwoTriangles : DrawingSession {
  TwoTriangles() : DrawingSession("worked_example.xls", "ore") {
    pickABC();
    pickCBA();
  }
};

TEST(LimitStudy, RecomputesEveryTriangleWithTheLayersAtOrAboveTheLimit) {
  TwoTriangles s;
  const std::pair<std::string, Summary> cases[] = {
      {"0", kWorkedExample},
      {"3", {25000, 3642, 2800, 25000, 70000, 2550, 1000000}},  // A drops out, B equals it
      {"3.5", {30000, 4000, 3000, 30000, 90000, 3600, 1000000}},
      {"9", {0, 0, 0, 0, 0, 0, 1000000}},  // the waste layers reach it, but not as ore
  };
  for (const auto& [limit, values] : cases) {
    s.addLimit(limit);
    // The second triangle's sums start afresh: it has the same values.
    for (int row : {5, 9}) EXPECT_EQ(summaryOf(s.table(limit + "Kuzey"), row), values) << limit;
  }
  // The study copies the vertex rows and the frame, but not the extents; its header has
  // no bsy.
  StoredTable own = s.table("Kuzey");
  StoredTable study = s.table("0Kuzey");
  ASSERT_EQ(study.rows.size(), own.rows.size());
  for (int row = 2; row <= 9; ++row) {
    for (const char* field : {"koordinat1", "koordinat2", "say", "sondgir", "cevhgir", "cevhcik",
                              "sondcik", "ucgensay", "ebxk", "ekyk"}) {
      EXPECT_EQ(study.at(row, field), own.at(row, field)) << field << " row " << row;
    }
  }
  EXPECT_TRUE(study.at(9, "ortucgen1").isNull());
  EXPECT_EQ(study.number(1, "ucgensay"), 0);
  EXPECT_EQ(study.fields.back().name, "kal");
}

TEST(LimitStudy, AHoleNamedAsAPointEndsTheHoleList) {
  // The third hole, C, renamed in log: from a point name on, no hole's log is read.
  for (const auto& [name, meanLength] : std::vector<std::pair<std::string, long>>{
           {"po-3", 15000}, {"uz-3", 15000}, {"Puz-3", 20000}}) {
    TwoTriangles s;
    writeStored(s.path, "log", 3, "isim", name);
    s.addLimit("0");
    EXPECT_EQ(s.table("0Kuzey").number(5, "ilkuz"), meanLength) << name;
  }
}

TEST(LimitStudy, TriangleEntryAndStudyAgreeOnTheFirstTriangleOfARun) {
  DrawingSession s("worked_example.xls", "ore");
  s.addLimit("2.5");
  s.pickABC();
  s.addLimit("2.50");
  EXPECT_EQ(summaryOf(s.table("2.5Kuzey"), 5), summaryOf(s.table("2.50Kuzey"), 5));
}

TEST(LimitStudy, ALimitThatIsNoNumberOrTakenOrOneTooMany) {
  auto faultOf = [](DrawingSession& s, const std::string& limit) {
    try {
      s.addLimit(limit);
    } catch (const Fault& fault) {
      return fault;
    }
    ADD_FAILURE() << limit << " was accepted";
    return Fault(FaultKind::Overflow, "");
  };
  TwoTriangles s;
  EXPECT_EQ(faultOf(s, "high").kind(), FaultKind::TypeMismatch);
  EXPECT_FALSE(s.state.ui.visible("Picture1"));
  EXPECT_EQ(s.state.ui.label(1), " Preparing for the Limit Tenor ");

  // Each limit takes the next slot of the drawing's row and is selected; the plan is shown
  // again by the redraw of the entry mode.
  DrawingSession d("worked_example.xls", "ore");
  for (int k = 1; k <= 30; ++k) d.addLimit(std::to_string(k));
  const StoredTable row = d.table("ore");
  EXPECT_EQ((Names{row.text(2, "limten1"), row.text(2, "limten30")}), (Names{"1Kuzey", "30Kuzey"}));
  EXPECT_EQ(row.number(2, "limdeg2"), 2000);
  EXPECT_EQ(d.state.projects.limsay.get(1, 1, 1), 30);
  EXPECT_EQ(d.state.ui.combo1.listIndex(), 30);
  EXPECT_TRUE(d.state.ui.visible("Picture1"));
  const Fault taken = faultOf(d, "2");
  EXPECT_EQ(taken.kind(), FaultKind::Database);
  EXPECT_NE(taken.message().find("2Kuzey"), std::string::npos) << taken.message();
  EXPECT_EQ(faultOf(d, "31").kind(), FaultKind::SubscriptOutOfRange);
}

TEST(LimitRemoval, FreesTheSlotOfTheListIndex) {
  DrawingSession s("worked_example.xls", "ore");
  for (const char* limit : {"1", "2", "3"}) s.addLimit(limit);
  s.state.ui.combo1.setListIndex(1);
  s.run("Mnlimsil_Click");
  EXPECT_FALSE(Database::open(s.path).hasTable("1Kuzey"));
  StoredTable row = s.table("ore");
  EXPECT_EQ(row.text(2, "limten1"), "Boş Alan");
  EXPECT_EQ(row.number(2, "limdeg1"), 0);
  EXPECT_EQ(s.state.ui.combo1.items(), (Names{"Limit Tenor", "2", "3"}));
  EXPECT_EQ(s.state.ui.combo1.listIndex(), 0);
  EXPECT_EQ(s.state.projects.limsay.get(1, 1, 1), 3) << "the count is not lowered";
  // Deleting "2", now at index 1, drops its table but frees slot 1 again: slot 2 still
  // names the table that is gone, and the list shows it.
  s.state.ui.combo1.setListIndex(1);
  s.run("Mnlimsil_Click");
  EXPECT_FALSE(Database::open(s.path).hasTable("2Kuzey"));
  EXPECT_EQ(s.table("ore").text(2, "limten2"), "2Kuzey");
  EXPECT_EQ(s.state.ui.combo1.items(), (Names{"Limit Tenor", "2", "3"}));
  // The title entry names no table.
  s.state.ui.combo1.setListIndex(0);
  EXPECT_THROW(s.run("Mnlimsil_Click"), Fault);
}

}  // namespace
}  // namespace tri
