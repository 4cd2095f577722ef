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
    pickTriangle(100, 100, 150, 100, 100, 140);
    pickTriangle(100, 140, 150, 100, 100, 100);
  }
  StoredTable lithologyRow() const { return table("ore"); }
};

const char* const kValueFields[] = {"ilkuz", "geneltenor", "genelyog", "genelrezerv",
                                    "kubaj", "tonaj",      "ill"};

TEST(LimitStudy, ALimitOfZeroReproducesTheDrawingsOwnValues) {
  TwoTriangles s;
  s.addLimit("0");
  StoredTable own = s.table("Kuzey");
  StoredTable study = s.table("0Kuzey");
  ASSERT_EQ(study.rows.size(), own.rows.size());
  for (int row : {5, 9}) {
    for (const char* field : kValueFields) {
      EXPECT_EQ(study.number(row, field), own.number(row, field)) << field << " row " << row;
    }
    EXPECT_TRUE(study.at(row, "ortucgen1").isNull());
    EXPECT_TRUE(study.at(row, "ortucgen21").isNull());
    EXPECT_EQ(study.number(row, "ebxk"), own.number(row, "ebxk"));
  }
  for (int row : {2, 3, 4, 6, 7, 8}) {
    for (const char* field :
         {"koordinat1", "koordinat2", "say", "sondgir", "cevhgir", "cevhcik", "sondcik"}) {
      EXPECT_EQ(study.number(row, field), own.number(row, field)) << field << " row " << row;
    }
  }
  EXPECT_EQ(study.number(1, "ucgensay"), 0);
  EXPECT_TRUE(study.at(1, "kal").isNull());
  EXPECT_EQ(study.fields.back().name, "kal");  // no bsy
}

TEST(LimitStudy, ALimitAboveEveryTenorKeepsOnlyTheArea) {
  TwoTriangles s;
  s.addLimit("9");  // the waste layers reach it, but waste is not the lithology
  StoredTable study = s.table("9Kuzey");
  for (const char* field : kValueFields) {
    EXPECT_EQ(study.number(5, field), std::string(field) == "ill" ? 1000000 : 0) << field;
  }
}

TEST(LimitStudy, AHoleWithoutCountedLayersLowersOnlyTheLengthDivisor) {
  TwoTriangles s;
  s.addLimit("2.5");  // A (tenor 2) drops out
  StoredTable study = s.table("2.5Kuzey");
  EXPECT_EQ(study.number(5, "ilkuz"), 25000);      // (20 + 30) / 2
  EXPECT_EQ(study.number(5, "geneltenor"), 3642);  // 510 / 140
  EXPECT_EQ(study.number(5, "genelyog"), 2800);    // 140 / 50
  EXPECT_EQ(study.number(9, "genelyog"), 2800);    // the sums start afresh per corner
}

TEST(LimitStudy, RecordsTheSlotAndSelectsTheNewLimit) {
  TwoTriangles s;
  s.addLimit("2.5");
  s.addLimit("3.5");
  StoredTable row = s.lithologyRow();
  EXPECT_EQ(row.text(2, "limten1"), "2.5Kuzey");
  EXPECT_EQ(row.number(2, "limdeg1"), 2500);
  EXPECT_EQ(row.text(2, "limten2"), "3.5Kuzey");
  EXPECT_EQ(row.number(2, "limdeg2"), 3500);
  const State& st = s.state;
  EXPECT_EQ(st.projects.limsay.get(1, 1, 1), 2);
  EXPECT_EQ(st.ui.combo1.items(), (Names{"Limit Tenor", "2.5", "3.5"}));
  EXPECT_EQ(st.ui.combo1.listIndex(), 2);
  EXPECT_EQ(st.ui.label(1), "Ready");
  // The plan is shown again by the redraw of the entry mode.
  EXPECT_TRUE(st.ui.visible("Picture1"));
}

TEST(LimitStudy, TheTypedTextNamesTheTableUntilTheProjectIsOpenedAgain) {
  TwoTriangles s;
  s.addLimit("2.50");
  EXPECT_EQ(s.table("2.50Kuzey").rows.size(), 9u);
  EXPECT_EQ(s.state.ui.combo1.text(), "2.50");
  Session again;
  again.openProject(s.path);
  again.state.ui.combo4.setListIndex(1);
  again.state.ui.combo2.setListIndex(1);
  EXPECT_EQ(again.state.ui.combo1.items(), (Names{"Limit Tenor", "2.5"}));
}

TEST(LimitStudy, TriangleEntryAndStudyAgreeOnTheFirstTriangleOfARun) {
  DrawingSession s("worked_example.xls", "ore");
  s.addLimit("2.5");
  s.pickTriangle(100, 100, 150, 100, 100, 140);
  s.addLimit("2.50");
  StoredTable entered = s.table("2.5Kuzey");
  StoredTable studied = s.table("2.50Kuzey");
  for (const char* field : kValueFields) {
    EXPECT_EQ(entered.number(5, field), studied.number(5, field)) << field;
  }
}

TEST(LimitStudy, BadAnswersAndRepeats) {
  {
    TwoTriangles s;
    s.dialogs.answerInput("", "Enter Limit Grade Value (%) :")
        .answerButton(Answer::OK, "You Didn't Enter a Value")
        .answerInput("", "Enter Limit Grade Value (%) :")
        .answerButton(Answer::Cancel, "You Didn't Enter a Value");
    s.run("Mnlimekle_Click");
    EXPECT_EQ(s.state.projects.limsay.get(1, 1, 1), 0);
  }
  {
    TwoTriangles s;
    try {
      s.addLimit("high");
      FAIL();
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), FaultKind::TypeMismatch);
    }
    EXPECT_FALSE(s.state.ui.visible("Picture1"));
    EXPECT_EQ(s.state.ui.label(1), " Preparing for the Limit Tenor ");
  }
  {
    TwoTriangles s;
    s.addLimit("2");
    try {
      s.addLimit("2");
      FAIL();
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), FaultKind::Database);
      EXPECT_NE(fault.message().find("2Kuzey"), std::string::npos) << fault.message();
    }
  }
}

TEST(LimitStudy, TheThirtyFirstLimitIsASubscriptFault) {
  DrawingSession s("worked_example.xls", "ore");
  for (int k = 1; k <= 30; ++k) s.addLimit(std::to_string(k));
  EXPECT_EQ(s.table("ore").text(2, "limten30"), "30Kuzey");
  try {
    s.addLimit("31");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::SubscriptOutOfRange);
  }
}

TEST(LimitRemoval, FreesTheSlotOfTheListIndex) {
  DrawingSession s("worked_example.xls", "ore");
  s.addLimit("1");
  s.addLimit("2");
  s.addLimit("3");
  s.state.ui.combo1.setListIndex(1);
  s.run("Mnlimsil_Click");
  Database db = Database::open(s.path);
  EXPECT_FALSE(db.hasTable("1Kuzey"));
  StoredTable row = readTable(s.path, "ore");
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
  EXPECT_EQ(readTable(s.path, "ore").text(2, "limten2"), "2Kuzey");
  EXPECT_EQ(s.state.ui.combo1.items(), (Names{"Limit Tenor", "2", "3"}));
}

TEST(LimitRemoval, TheTitleEntryNamesNoTable) {
  DrawingSession s("worked_example.xls", "ore");
  s.addLimit("1");
  s.state.ui.combo1.setListIndex(0);
  EXPECT_THROW(s.run("Mnlimsil_Click"), Fault);
}

}  // namespace
}  // namespace tri
