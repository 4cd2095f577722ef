// View, Show/Hide and View, Colors: the toggles' counters and check marks, the colours the
// dialogs remember, and the redraw each command asks for.
#include <gtest/gtest.h>

#include <algorithm>

#include "views/map_session.h"

namespace tri {
namespace {

using Kind = CanvasOp::Kind;

bool anyContains(const std::vector<std::string>& ops, const std::string& part) {
  return std::any_of(ops.begin(), ops.end(),
                     [&](const std::string& op) { return op.find(part) != std::string::npos; });
}

TEST(ShowHide, AnOddNumberOfUsesLeavesTheItemOnAndChecked) {
  struct Toggle {
    const char* item;
    bool (*flag)(const State&);
  };
  for (const Toggle& t :
       {Toggle{"Mnsndjgoster", [](const State& s) { return s.frame.sondgoster; }},
        Toggle{"Mnmiktrgoster", [](const State& s) { return s.views.miktargoster; }},
        Toggle{"Mngridgoster", [](const State& s) { return s.frame.gridgoster; }}}) {
    SCOPED_TRACE(t.item);
    Session s;
    const std::string procedure = std::string(t.item) + "_Click";
    for (int use = 1; use <= 3; ++use) s.run(procedure);
    EXPECT_TRUE(t.flag(s.state) && s.state.ui.checked(t.item));
    s.run(procedure);
    EXPECT_FALSE(t.flag(s.state) || s.state.ui.checked(t.item));
  }
}

TEST(ShowHide, EachToggleRedrawsTheMapShown) {
  MapSession s;
  s.showDrawing({{{1, 2, 4}, 1125, 0}});
  s.run("Mnyuzdeten_Click");
  ASSERT_TRUE(s.drawn(Kind::Text).empty());
  s.run("Mnmiktrgoster_Click");
  EXPECT_TRUE(anyContains(s.drawn(Kind::Text), "\"1.12\""));
  s.run("Mnsndjgoster_Click");
  EXPECT_TRUE(anyContains(s.drawn(Kind::Text), "\"C-01\" color=255"));
  // The grid, in the colour of its own dialog.
  s.dialogs.answerColor(65280);
  s.run("Mnrgrid_Click");
  s.run("Mngridgoster_Click");
  EXPECT_TRUE(anyContains(s.drawn(Kind::Line), "color=65280"));
}

TEST(Colors, EachDialogKeepsItsColourWhenCancelled) {
  MapSession s;
  s.showDrawing({{{1, 2, 4}, 1125, 1500}});
  s.run("Mnmiktrgoster_Click");
  s.run("Mnyuzdeten_Click");
  s.dialogs.answerColor(255).cancelColor();
  s.run("Mnrmiktr_Click");
  s.run("Mnrmiktr_Click");
  EXPECT_TRUE(anyContains(s.drawn(Kind::Text), "\"1.12\" color=255"));

  // A cancelled class takes the colour the classes' dialog holds; so do ore and gangue.
  s.dialogs.answerInput("2").answerColor(100).cancelColor();
  s.run("MNrrezerv_Click");
  EXPECT_EQ(s.state.views.renkler[2], 100);
  s.dialogs.answerButton(Answer::OK, "Select Color for Ore !")
      .cancelColor()
      .answerButton(Answer::OK, "Select Color for Gangue !")
      .answerColor(300);
  s.run("Mnrenksec_Click");
  EXPECT_EQ(s.state.views.cevrenk, 100);
  EXPECT_EQ(s.state.views.ganguerenk, 300);
  EXPECT_EQ(s.state.ui.label(1), "Select Color for Gangue !");
}

TEST(Colors, ChoosingClassesRedrawsOnlyAViewThatIsOn) {
  MapSession s;
  s.showDrawing({{{1, 2, 4}, 0, 1500}});
  const size_t before = s.canvas.log().size();
  s.dialogs.answerInput("1").answerColor(255);
  s.run("MNrrezerv_Click");
  EXPECT_EQ(s.canvas.log().size(), before);
  s.run("Mngenelrezervler_Click");
  s.dialogs.answerInput("1").answerColor(65280);
  s.run("MNrrezerv_Click");
  EXPECT_EQ(s.drawnOps(Kind::Circle).at(0).color, 65280);
}

}  // namespace
}  // namespace tri
