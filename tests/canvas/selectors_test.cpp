// The selectors: the table a view reads, and how a choice clears and fills the lists
// below it.
#include <gtest/gtest.h>

#include <optional>

#include "canvas/selection.h"
#include "support/session.h"
#include "triangles/drawing_session.h"

namespace tri {
namespace {

using Names = std::vector<std::string>;

TEST(Selectors, TheTableRuleInEveryState) {
  // Selectors that run no procedure, to set up each state directly.
  ImageCanvas canvas;
  ScriptedDialogs dialogs;
  State state{canvas, dialogs, canvas};
  auto set = [](Combo& combo, std::vector<std::string> items, int index) {
    combo.clear();
    for (const std::string& item : items) combo.addItem(item);
    combo.setListIndex(index);
  };
  struct Case {
    int project, lithology, drawing, limit;
    std::string drawingName, limitText;
    std::optional<std::string> table;
  };
  const Case cases[] = {
      {1, 1, 1, 1, "Kuzey", "2.5", "2.5Kuzey"},    {1, 1, 1, 0, "Kuzey", "2.5", "Kuzey"},
      {1, 1, 1, 1, "Kuzey", "0", std::nullopt},  // a limit of 0 is no limit
      {1, 1, 1, -1, "Kuzey", "2.5", std::nullopt}, {-1, 1, 1, 0, "Kuzey", "2.5", std::nullopt},
      {-1, 1, 1, 1, "Kuzey", "2.5", std::nullopt}, {0, 1, 1, 0, "Kuzey", "2.5", std::nullopt},
      {0, 1, 1, 1, "Kuzey", "2.5", std::nullopt},  {1, 0, 1, 0, "Kuzey", "2.5", std::nullopt},
      {1, 1, 0, 0, "Kuzey", "2.5", std::nullopt},  {1, 1, 0, 1, "Kuzey", "2.5", std::nullopt},
      {1, 1, 1, 0, "", "2.5", std::nullopt},  // an empty drawing name
  };
  for (const Case& c : cases) {
    set(state.ui.combo5, {"Proje", "P"}, c.project);
    set(state.ui.combo4, {"Litoloji", "ore"}, c.lithology);
    set(state.ui.combo2, {"Çizimler", c.drawingName}, c.drawing);
    set(state.ui.combo1, {"Limit Tenor", c.limitText}, c.limit);
    EXPECT_EQ(selectedTable(state), c.table)
        << c.project << " " << c.lithology << " " << c.drawing << " " << c.limit;
  }
}

TEST(Selectors, ChoosingAProjectReloadsItsHolesAndFrame) {
  Session s;
  s.createProject(fixture("small.xls"), "small.mdb");
  s.createProject(fixture("cluster.xls"), "cluster.mdb");
  s.state.ui.combo5.setListIndex(1);
  EXPECT_EQ(s.state.holes.sondsay, 4);
  EXPECT_EQ(s.state.holes.isim[2], "101");
  EXPECT_EQ(s.state.frame.ebxk, 210.25);
}

TEST(Selectors, ALithologyChoosesNoDrawingAndTheLimitTitleRedrawsOnlyUnderADrawing) {
  DrawingSession s("worked_example.xls", "ore", "Kuzey");
  s.state.ui.combo4.setListIndex(1);
  EXPECT_EQ(s.state.ui.combo2.listIndex(), -1);
  for (int drawing : {0, 1}) {
    s.state.ui.combo2.setListIndex(drawing);
    EXPECT_EQ(s.state.ui.combo1.listIndex(), 0);
    s.canvas.clearLog();
    s.state.ui.combo1.setListIndex(0);
    EXPECT_EQ(s.canvas.log().empty(), drawing == 0);
  }
}

}  // namespace
}  // namespace tri
