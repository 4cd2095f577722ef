// The selectors: the table a view reads, and how a choice clears and fills the lists
// below it.
#include <gtest/gtest.h>

#include "canvas/selection.h"
#include "support/session.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

using Names = std::vector<std::string>;

// Selectors that run no procedure, to set up each state directly.
struct Selectors {
  ImageCanvas canvas;
  ScriptedDialogs dialogs;
  State state{canvas, dialogs};

  void set(Combo& combo, std::vector<std::string> items, int index) {
    combo.clear();
    for (const std::string& item : items) combo.addItem(item);
    combo.setListIndex(index);
  }
  void all(int project, int lithology, int drawing, int limit, std::string limitText = "2.5") {
    set(state.ui.combo5, {"Proje", "P"}, project);
    set(state.ui.combo4, {"Litoloji", "ore"}, lithology);
    set(state.ui.combo2, {"Çizimler", "Kuzey"}, drawing);
    set(state.ui.combo1, {"Limit Tenor", limitText}, limit);
  }
};

TEST(Selectors, TheTableRuleInEveryState) {
  Selectors s;
  s.all(1, 1, 1, 1);
  EXPECT_EQ(selectedTable(s.state), "2.5Kuzey");
  s.all(1, 1, 1, 0);
  EXPECT_EQ(selectedTable(s.state), "Kuzey");
  s.all(1, 1, 1, 1, "0");
  EXPECT_EQ(selectedTable(s.state), std::nullopt) << "a limit of 0 is no limit";
  s.all(1, 1, 1, -1);
  EXPECT_EQ(selectedTable(s.state), std::nullopt);
  for (int project : {-1, 0}) {
    s.all(project, 1, 1, 0);
    EXPECT_EQ(selectedTable(s.state), std::nullopt);
    s.all(project, 1, 1, 1);
    EXPECT_EQ(selectedTable(s.state), std::nullopt);
  }
  s.all(1, 0, 1, 0);
  EXPECT_EQ(selectedTable(s.state), std::nullopt);
  s.all(1, 1, 0, 0);
  EXPECT_EQ(selectedTable(s.state), std::nullopt);
  s.all(1, 1, 0, 1);
  EXPECT_EQ(selectedTable(s.state), std::nullopt);
  s.set(s.state.ui.combo2, {"Çizimler", ""}, 1);
  s.set(s.state.ui.combo1, {"Limit Tenor"}, 0);
  EXPECT_EQ(selectedTable(s.state), std::nullopt) << "an empty drawing name";
}

TEST(Selectors, EachChoiceClearsTheListsBelowAndFillsTheNext) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  s.addLimit("2");
  s.addDrawing("Guney");
  Controls& ui = s.state.ui;
  // A lithology lists its drawings but selects none of them.
  ui.combo4.setListIndex(1);
  EXPECT_EQ(ui.combo2.items(), (Names{"Çizimler", "Kuzey", "Guney"}));
  EXPECT_EQ(ui.combo2.listIndex(), -1);
  EXPECT_EQ(ui.combo1.items(), (Names{"Limit Tenor"}));
  // A drawing lists its limits with the title selected.
  ui.combo2.setListIndex(1);
  EXPECT_EQ(ui.combo1.items(), (Names{"Limit Tenor", "2"}));
  EXPECT_EQ(ui.combo1.listIndex(), 0);
  ui.combo2.setListIndex(2);
  EXPECT_EQ(ui.combo1.items(), (Names{"Limit Tenor"}));
  // The lithology's title clears both lists below it and selects their titles.
  ui.combo4.setListIndex(0);
  EXPECT_EQ(ui.combo2.items(), (Names{"Çizimler"}));
  EXPECT_EQ(ui.combo2.listIndex(), 0);
  EXPECT_EQ(ui.combo1.listIndex(), 0);
  // The project's title clears everything below it.
  ui.combo4.setListIndex(2);
  ui.combo5.setListIndex(0);
  EXPECT_EQ(ui.combo4.items(), (Names{"Litoloji"}));
  EXPECT_EQ(ui.combo4.listIndex(), 0);
}

TEST(Selectors, ChoosingAProjectReloadsItsHolesAndFrame) {
  Session s;
  s.createProject(fixture("small.xls"), "small.mdb");
  s.createProject(fixture("cluster.xls"), "cluster.mdb");
  EXPECT_EQ(s.state.holes.sondsay, 14);
  s.state.ui.combo5.setListIndex(1);
  EXPECT_EQ(s.state.holes.sondsay, 4);
  EXPECT_EQ(s.state.holes.isim[2], "101");
  EXPECT_EQ(s.state.frame.ebxk, 210.25);
  EXPECT_EQ(s.state.ui.combo4.items(), (Names{"Litoloji", "cover", "ore", "waste"}));
}

TEST(Selectors, TheLimitTitleWithTheDrawingTitleRedrawsNothing) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  s.state.ui.combo2.setListIndex(0);
  s.canvas.clearLog();
  s.state.ui.combo1.setListIndex(0);
  EXPECT_TRUE(s.canvas.log().empty());
  // With a drawing chosen, the same choice redraws the views that are on.
  s.state.ui.combo2.setListIndex(1);
  s.canvas.clearLog();
  s.state.ui.combo1.setListIndex(0);
  EXPECT_FALSE(s.canvas.log().empty());
}

}  // namespace
}  // namespace tri
