// The value maps and their display settings over stored drawings of the cluster project. The
// maps of the sample project, with the order of their drawing, are the scenarios tenor_map,
// reserve_map and general_reserve_map.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "platform/fault.h"
#include "platform/store.h"
#include "store/project_format.h"
#include "views/map_session.h"

namespace tri {
namespace {

using Kind = CanvasOp::Kind;

const StoredTriangle kLowerLeft{{1, 2, 4}, 1125, 1005};  // C-01 C-02 C-04, legs of 50 m

TEST(ShowHide, EachUseRedrawsAndAnOddNumberOfUsesLeavesTheItemOn) {
  struct Toggle {
    const char* item;
    bool (*on)(const State&);
    Kind shows;
  };
  const Toggle toggles[] = {
      {"Mnsndjgoster", [](const State& s) { return s.frame.sondgoster; }, Kind::Text},
      {"Mnmiktrgoster", [](const State& s) { return s.views.miktargoster; }, Kind::Text},
      {"Mngridgoster", [](const State& s) { return s.frame.gridgoster; }, Kind::Line}};
  // One session for all three: each item counts its own uses.
  MapSession s({kLowerLeft});
  s.run("Mnyuzdeten_Click");
  for (const Toggle& t : toggles) {
    SCOPED_TRACE(t.item);
    const size_t before = s.drawn(t.shows).size();
    const std::string procedure = std::string(t.item) + "_Click";
    s.run(procedure);
    EXPECT_GT(s.drawn(t.shows).size(), before);
    s.run(procedure);
    s.run(procedure);
    EXPECT_TRUE(t.on(s.state) && s.state.ui.checked(t.item));
  }
  for (const Toggle& t : toggles) {
    SCOPED_TRACE(t.item);
    s.run(std::string(t.item) + "_Click");
    EXPECT_FALSE(t.on(s.state) || s.state.ui.checked(t.item));
  }
}

TEST(Colors, EachDialogKeepsItsOwnColourWhenCancelled) {
  MapSession s({kLowerLeft});
  s.run("Mnmiktrgoster_Click");
  s.run("Mnyuzdeten_Click");
  s.dialogs.answerColor(255).cancelColor().answerColor(65280);
  s.run("Mnrmiktr_Click");
  s.run("Mnrmiktr_Click");
  // 2 decimals, the tie to the even digit, top left at the centroid.
  EXPECT_EQ(s.drawn(Kind::Text).at(0).describe(),
            "text 566.666666666667 816.666666666667 \"1.12\" color=255");
  s.run("Mnrgrid_Click");
  s.run("Mngridgoster_Click");
  EXPECT_EQ(s.drawn(Kind::Line).at(0).color, 65280);
  // Classes, ore and gangue share one dialog.
  s.dialogs.answerInput("2").answerColor(100).cancelColor();
  s.run("MNrrezerv_Click");
  s.dialogs.answerButton(Answer::OK, "Select Color for Ore !").cancelColor();
  s.dialogs.answerButton(Answer::OK, "Select Color for Gangue !").answerColor(300);
  s.run("Mnrenksec_Click");
  EXPECT_EQ(std::vector<Color>(
                {s.state.views.renkler[2], s.state.views.cevrenk, s.state.views.ganguerenk}),
            std::vector<Color>({100, 100, 300}));
  EXPECT_EQ(s.state.ui.label(1), "Select Color for Gangue !");
}

TEST(MapPass, EachMapReplacesTheOtherViewsAndShowsTheCanvasAlone) {
  struct Case {
    const char* procedure;
    bool Flags::*own;
    bool keepsTools;  // the reserve map turns off the other three views only
  };
  for (const Case& c : {Case{"Mnyuzdeten_Click", &Flags::modyuzdeten, false},
                        Case{"Mnrezton_Click", &Flags::modrezton, true},
                        Case{"Mngenelrezervler_Click", &Flags::modgenelrezerv, false}}) {
    SCOPED_TRACE(c.procedure);
    MapSession s({kLowerLeft});
    Flags& f = s.state.flags;
    f.modyuzdeten = f.modrezton = f.modgenelrezerv = f.modrecboy = f.modcizim = true;
    s.state.ui.enable("Mnaortyog", false);
    s.state.ui.show("HScroll1");
    s.run(c.procedure);
    EXPECT_TRUE(f.*c.own && s.state.ui.enabled("Mnaortyog") && !s.state.ui.visible("HScroll1"));
    EXPECT_EQ(f.modyuzdeten + f.modrezton + f.modgenelrezerv + f.modrecboy, 1);
    EXPECT_EQ(f.modcizim, c.keepsTools);
  }
}

TEST(MapPass, HolesEndAtAPointNameAndAreNotDrawnWithoutATable) {
  MapSession s(std::vector<StoredTriangle>{});
  {
    Database db = Database::open(s.path);
    Recordset kor = db.openTable(kHoleTable);
    kor.move(4);
    kor.edit();
    kor.set("isim", "uz5");
    kor.update();
  }
  s.run("Mnrezton_Click");
  EXPECT_EQ(s.state.ui.label(12), "Total Reserve (KiloTon): 0");
  EXPECT_EQ(s.drawn(Kind::Point).size(), 4u);
  s.state.ui.combo2.setListIndex(0);
  s.run("Mnrezton_Click");
  EXPECT_TRUE(s.drawn(Kind::Point).empty());
}

TEST(MapPass, AFrameOfFiftySquareKilometresIsShrunkAndSaidSo) {
  MapSession s({kLowerLeft});
  // 10 by 7 km, the canvas's own shape, so that the fit does not crop it first.
  s.state.frame.ebxk = 10000;
  s.state.frame.ebyk = 7000;
  s.state.frame.ekxk = s.state.frame.ekyk = 0;
  s.dialogs.answerButton(Answer::OK).answerButton(Answer::OK);
  s.run("Mnyuzdeten_Click");
  EXPECT_EQ(s.dialogs.shown().back().title, "Attention !");
  EXPECT_EQ(s.state.ui.label(1), "The corresponding fix has been made!");
  EXPECT_EQ(s.drawn(Kind::Line).size(), 3u);
}

TEST(GeneralMap, ClassesAreEqualWidthsBetweenTheSmallestAndTheGreatestReserve) {
  struct Case {
    const char* count;
    std::vector<int> reserves;
    std::vector<Color> discs;  // the colour of class j is 100 j
  };
  const Case cases[] = {
      {"2", {1000, 2000, 3000}, {100, 100, 200}},          // on a limit: the lower class
      {"3", {1500, 1500, 1500}, {100, 100, 100}},          // all equal: class 1
      {"2.5", {1000, 2000, 3000}, {100, 200}},             // above the top limit: no disc
      {"4", {4000, 0, 2500, 1000}, {400, 100, 300, 100}},  // limits from the sorted reserves
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.count);
    std::vector<StoredTriangle> triangles;
    for (int reserve : c.reserves) triangles.push_back({{1, 2, 4}, 0, reserve});
    MapSession s(triangles);
    s.run("Mngenelrezervler_Click");
    s.dialogs.answerInput(c.count);
    for (int j = 1; j <= std::stod(c.count); ++j) s.dialogs.answerColor(100 * j);
    s.run("MNrrezerv_Click");  // which draws the map again
    std::vector<Color> colors;
    for (const CanvasOp& disc : s.drawn(Kind::Circle)) colors.push_back(disc.color);
    EXPECT_EQ(colors, c.discs);
    EXPECT_EQ(s.drawn(Kind::Line).size(), 3 * c.reserves.size());
  }
}

TEST(GeneralMap, TheDiscRadiusKeepsTheHalfPerimeterOfTheTriangleBefore) {
  // C-03 C-05 C-09: sides 100, 111.8 and 50; then C-03 C-04 C-05, three holes
  // on a line.
  MapSession s({{{3, 5, 9}, 0, 1000}, {{3, 4, 5}, 0, 1000}});
  auto radii = [&s] {
    s.run("Mngenelrezervler_Click");
    std::vector<double> r;
    for (const CanvasOp& disc : s.drawn(Kind::Circle)) r.push_back(disc.at[2]);
    return r;
  };
  const std::vector<double> first = radii();
  ASSERT_EQ(first.size(), 2u);
  // The inscribed radius, 2 x area / perimeter, over 1.3.
  EXPECT_NEAR(first[0], 2 * 2500 / (150 + std::sqrt(12500.0)) / 1.3, 1e-12);
  // No area: the area term is 1, the half perimeter 100.
  EXPECT_DOUBLE_EQ(first[1], 1.0 / 100 / 1.3);
  // The next pass starts from that half perimeter of 100: the side of 100
  // counts as 99.
  EXPECT_DOUBLE_EQ(radii().at(0), 14.596907080966082);
}

TEST(GeneralMap, CornersThatAreNotWholeNumbersAreReadInTheirTurn) {
  // Triangle 2's first corner (row 5) holds a fraction, then nothing: the walk that reads
  // the reserves takes only whole numbers ahead, the others are read as the tenor map
  // reads them, and a Null stops the map at its own triangle.
  MapSession s({kLowerLeft, {{3, 5, 9}, 0, 2000}, {{1, 2, 4}, 0, 3000}});
  // Written past the store, which keeps Long fields whole, as another program may have.
  auto storeCorner = [&s](const std::string& value) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(s.path.c_str(), &db), SQLITE_OK);
    const std::string sql =
        "UPDATE plan1 SET koordinat1 = " + value +
        " WHERE rowid = (SELECT rowid FROM plan1 ORDER BY rowid LIMIT 1 OFFSET 5)";
    EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(db);
  };
  auto sides = [&s](const char* map) {
    s.run(map);
    std::vector<std::array<double, 4>> lines;
    for (const CanvasOp& op : s.drawn(Kind::Line)) {
      lines.push_back({op.at[0], op.at[1], op.at[2], op.at[3]});
    }
    return lines;
  };
  storeCorner("koordinat1 + 0.75");
  const auto general = sides("Mngenelrezervler_Click");
  ASSERT_EQ(general.size(), 9u);
  EXPECT_EQ(general, sides("Mnyuzdeten_Click"));
  // A Long field reads a fraction as the whole number nearest to it.
  EXPECT_DOUBLE_EQ(general[4][2], s.state.holes.eks[3] + 0.001);  // third to first
  storeCorner("NULL");
  try {
    s.run("Mngenelrezervler_Click");
    ADD_FAILURE() << "a Null corner was drawn";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::InvalidUseOfNull);
  }
  EXPECT_EQ(s.drawn(Kind::Line).size(), 3u);  // the first triangle only
}

TEST(GeneralMap, ClassCountsThatCannotWorkStopTheProgram) {
  MapSession s({kLowerLeft});
  auto fault = [&s](const char* answer, const char* procedure) -> std::optional<FaultKind> {
    s.dialogs.answerInput(answer);
    try {
      s.run("MNrrezerv_Click");
      s.run(procedure);
    } catch (const Fault& fault) {
      return fault.kind();
    }
    return std::nullopt;
  };
  EXPECT_EQ(fault("", "Mnyuzdeten_Click"), FaultKind::TypeMismatch);
  EXPECT_EQ(fault("two", "Mnyuzdeten_Click"), FaultKind::TypeMismatch);
  // No classes: no colour dialog, and the class width divides by zero at the
  // next map.
  EXPECT_EQ(fault("0", "Mngenelrezervler_Click"), FaultKind::DivisionByZero);
}

}  // namespace
}  // namespace tri
