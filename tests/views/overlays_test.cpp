// The overlays: their numbers over a drawing and over a limit against values worked by hand,
// the arming by counters and by the limit selector, and the places clicks leave. What is
// printed, the dial and the limit tenor at the selector's title included, is the scenario
// overlays'.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "platform/store.h"
#include "triangles/records.h"
#include "views/map_session.h"

namespace tri {
namespace {

// A triangle's summary values as stored, in thousandths, in the order of kSummaryFields.
using Summary = std::array<int, 5>;
const char* const kSummaryFields[] = {"ill", "kubaj", "geneltenor", "genelyog", "genelrezerv"};

// Area 1000, 3000 and 500 m²; cubage 2.5, 5 and 0.5; tenor 2, 4 and 0 %; density 2.5, 3.1
// and 2; reserve 0.125, 0.5 and 0 kt.
const std::vector<Summary> kDrawing = {
    {1000000, 2500, 2000, 2500, 125}, {3000000, 5000, 4000, 3100, 500}, {500000, 500, 0, 2000, 0}};
const std::vector<Summary> kLimit = {{2000000, 1000, 3000, 2000, 60},
                                     {2000000, 3000, 5000, 3000, 450}};

// The cluster project with the drawing plan1 and its limit 2.5 holding those values.
struct OverlaySession : MapSession {
  OverlaySession(const std::vector<Summary>& drawing = kDrawing) {
    const StoredTriangle t{{1, 2, 4}, 0, 0};
    showDrawing(std::vector<StoredTriangle>(drawing.size(), t), {{"2.5", {t, t}}});
    store("plan1", drawing);
    store("2.5plan1", kLimit);
  }
  void store(const std::string& table, const std::vector<Summary>& rows) {
    Database db = Database::open(path);
    Recordset t = db.openTable(table);
    for (int i = 1; i <= static_cast<int>(rows.size()); ++i) {
      moveToSummary(t, i);
      t.edit();
      for (int f = 0; f < 5; ++f) t.set(kSummaryFields[f], rows[i - 1][f]);
      t.update();
    }
  }
  Overlays& o() { return state.views.overlays; }
};

TEST(OverlayNumbers, SumsOverEveryTriangleDividedOnceForTheDrawingAndForTheChosenLimit) {
  struct Case {
    const char* procedure;
    double Overlays::*number;
    double drawing, limit;
  };
  for (const Case& c : {Case{"Mnorten_Click", &Overlays::alanortten, 14000.0 / 4500, 4},
                        Case{"Mnhorten_Click", &Overlays::kubajortten, 3.125, 4.5},
                        Case{"Mnaortyog_Click", &Overlays::alanortyog, 12800.0 / 4500, 2.5},
                        Case{"Mnkortyog_Click", &Overlays::kubajortyog, 2.84375, 2.75},
                        Case{"Mntoprez_Click", &Overlays::toprez, 0.625, 0.51}}) {
    OverlaySession s;
    s.run(c.procedure);
    EXPECT_NEAR(s.o().*c.number, c.drawing, 1e-12) << c.procedure;
    s.state.ui.combo1.setListIndex(1);  // the limit's own triangles and values
    EXPECT_NEAR(s.o().*c.number, c.limit, 1e-12) << c.procedure;
  }
}

TEST(OverlayNumbers, AWeightThatSumsToZeroIsADivisionByZero) {
  OverlaySession s({{0, 0, 2000, 2500, 125}, {0, 0, 4000, 3100, 500}});
  for (const char* procedure :
       {"Mnorten_Click", "Mnhorten_Click", "Mnaortyog_Click", "Mnkortyog_Click"}) {
    try {
      s.run(procedure);
      ADD_FAILURE() << procedure;
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), FaultKind::DivisionByZero) << procedure;
    }
  }
}

TEST(OverlayCommands, OneItemIsArmedAtATimeEvenByTheLimitSelectorAndAnEvenUseDisarmsAll) {
  OverlaySession s;
  s.run("Mntoprez_Click");
  s.run("Mntoprez_Click");  // used twice: its mark goes again
  EXPECT_FALSE(s.o().armed() || s.state.ui.checked("Mntoprez"));
  s.run("Mnorten_Click");
  s.run("Mntoprez_Click");
  EXPECT_TRUE(s.o().toprezyaz && !s.o().alanortenyaz && !s.state.ui.checked("Mnorten"));
  // The limit selector brings both up to date, in its order: the total, then the area
  // tenor, which stays armed alone.
  s.state.ui.combo1.setListIndex(1);
  EXPECT_TRUE(s.o().alanortenyaz && !s.o().toprezyaz && !s.state.ui.checked("Mntoprez"));
  // The second use of the first item counts even: every item goes, and its number is 0.
  s.run("Mnorten_Click");
  EXPECT_FALSE(s.o().armed() || s.state.ui.checked("Mntoprez"));
  EXPECT_EQ(s.o().alanortten, 0);
  // A tool that picks on the canvas leaves the items and their counters alone.
  for (bool Flags::*tool : {&Flags::modcikart, &Flags::moducsec, &Flags::modcizim}) {
    s.state.flags.*tool = true;
    s.run("MNolcek_Click");
    s.state.flags.*tool = false;
  }
  EXPECT_FALSE(s.o().armed() || s.o().olceksay);
}

// The drag mode and both removal selections keep the places; a new or edited drawing forgets
// them.
TEST(OverlayCommands, ToolsDisarmAndOnlyADrawingToEditForgetsThePlaces) {
  for (const std::string procedure :
       {"Mnkaydir_Click", "Mnucsec_Click", "Mncikart_Click", "Mncizduz_Click", "Mncizek_Click"}) {
    SCOPED_TRACE(procedure);
    const bool forgets = procedure.starts_with("Mnciz");
    OverlaySession s;
    s.run("Mntoprez_Click");
    s.click(700, 900);
    s.click(650, 850);
    s.click(600, 800, 2);
    EXPECT_EQ(s.o().yazikonum[6].x, 650);  // the last left click
    if (procedure == "Mncizek_Click") s.dialogs.answerInput("plan2");
    s.run(procedure);
    EXPECT_TRUE(!s.o().armed() && s.o().yazikonum[6].x == (forgets ? 0 : 650));
    if (!forgets) continue;
    // Armed again by the selector, a click in entry mode places it and picks a hole.
    s.state.ui.combo1.setListIndex(0);
    s.click(550, 800);
    EXPECT_EQ(s.o().yazikonum[6].x, 550);
    EXPECT_EQ(s.state.entry.noktasay, 1);
  }
}

}  // namespace
}  // namespace tri
