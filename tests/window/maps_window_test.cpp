// The value maps and the 3D view in the real window: a network over the sample project
// entered with the mouse, each view drawn from the menu and written as a picture for a person
// to look at.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "window/gui_harness.h"

namespace tri {
namespace {

// A triangulation of the 40 holes of the sample workbook, by hole number.
const std::vector<std::array<int, 3>> kNetwork = {
    {1, 2, 4},    {1, 3, 4},    {2, 4, 5},    {2, 5, 6},    {2, 6, 7},    {3, 4, 10},
    {3, 9, 10},   {4, 5, 11},   {4, 10, 11},  {5, 6, 12},   {5, 11, 12},  {6, 7, 13},
    {6, 12, 13},  {7, 8, 14},   {7, 13, 14},  {8, 14, 15},  {9, 10, 16},  {9, 16, 22},
    {10, 11, 17}, {10, 16, 17}, {11, 12, 18}, {11, 17, 18}, {12, 13, 19}, {12, 18, 19},
    {13, 14, 20}, {13, 19, 20}, {14, 15, 21}, {14, 20, 21}, {15, 21, 28}, {16, 17, 23},
    {16, 22, 23}, {17, 18, 24}, {17, 23, 24}, {18, 19, 25}, {18, 24, 25}, {19, 20, 26},
    {19, 25, 26}, {20, 21, 27}, {20, 26, 27}, {21, 27, 28}, {22, 23, 29}, {23, 24, 30},
    {23, 29, 30}, {24, 25, 31}, {24, 30, 31}, {25, 26, 32}, {25, 31, 32}, {26, 27, 33},
    {26, 32, 33}, {27, 28, 34}, {27, 33, 34}, {29, 30, 35}, {30, 31, 36}, {30, 35, 36},
    {31, 32, 37}, {31, 36, 37}, {32, 33, 38}, {32, 37, 38}, {33, 34, 39}, {33, 38, 39},
    {34, 39, 40}};

const Color kGreen = rgb(0, 170, 0);
const Color kYellow = rgb(240, 200, 0);
const Color kRed = rgb(220, 0, 0);

bool isDark(const QColor& c) { return c.red() < 80 && c.green() < 80 && c.blue() < 80; }

// The sample project with the network entered through the mouse, three reserve classes
// and the value labels shown.
struct SampleMaps : WindowHarness {
  SampleMaps() {
    dialogs.answerOpen(std::string(TRIRESERVE_SAMPLES) + "/demo-holes.xls")
        .answerSave(dir.file("demo.mdb"));
    trigger("Mnprolus");
    choose("Combo4", 2);
    dialogs.answerInput("North", "Name the Drawing.");
    trigger("Mncizek");
    for (const auto& triangle : kNetwork) {
      for (int hole : triangle) click(pixelOf(hole));
    }
    dialogs.answerInput("3").answerColor(kGreen).answerColor(kYellow).answerColor(kRed);
    trigger("MNrrezerv");
    trigger("Mnmiktrgoster");
  }

  QPoint pixelOf(int hole) { return WindowHarness::pixelOf(eks(hole), eye(hole)); }
  double eks(int hole) { return state().holes.eks[hole]; }
  double eye(int hole) { return state().holes.eye[hole]; }
  QPoint centroidPixel(const std::array<int, 3>& t) {
    return WindowHarness::pixelOf((eks(t[0]) + eks(t[1]) + eks(t[2])) / 3,
                                  (eye(t[0]) + eye(t[1]) + eye(t[2])) / 3);
  }

  // Draws a map from the menu, writes the canvas into the build tree and checks that every
  // hole's point is on top: dark just left of its centre, where its name does not reach.
  QImage draw(const char* item, const char* picture) {
    trigger(item);
    const QImage image = window.canvas().image();
    QDir().mkpath(TRIRESERVE_PICTURES);
    EXPECT_TRUE(image.save(QString(TRIRESERVE_PICTURES) + "/" + picture));
    for (int i = 1; i <= state().holes.sondsay; ++i) {
      QPoint at = pixelOf(i) - QPoint(2, 0);
      at.setY(std::clamp(at.y(), 0, image.height() - 1));  // holes on the frame's edge
      EXPECT_TRUE(isDark(image.pixelColor(at))) << picture << " " << state().holes.isim[i];
    }
    return image;
  }
};

// Some dark pixels of text just right of and below a point.
bool labelAt(const QImage& image, QPoint at) {
  for (int dx = 2; dx < 20; ++dx) {
    for (int dy = 2; dy < 10; ++dy) {
      if (isDark(image.pixelColor(at + QPoint(dx, dy)))) return true;
    }
  }
  return false;
}

TEST(WindowMaps, EachMapOfTheSampleProjectIsDrawnAndSaved) {
  SampleMaps h;
  ASSERT_EQ(h.state().entry.ucgensira, static_cast<long>(kNetwork.size()));
  h.trigger("Mnsndjgoster");  // the hole names on the tenor map
  const QImage tenor = h.draw("Mnyuzdeten", "tenor-map.png");
  for (const auto& triangle : kNetwork) EXPECT_TRUE(labelAt(tenor, h.centroidPixel(triangle)));
  h.trigger("Mnsndjgoster");
  h.draw("Mnrezton", "reserve-map.png");
  EXPECT_TRUE(h.labelText(12).startsWith("Total Reserve (KiloTon): "));

  // Above and left of the centroid the disc shows, away from its label: all three classes
  // are used, and no other colour.
  const QImage general = h.draw("Mngenelrezervler", "general-reserve-map.png");
  std::set<QRgb> colors;
  for (const auto& triangle : kNetwork) {
    colors.insert(general.pixelColor(h.centroidPixel(triangle) - QPoint(4, 4)).rgb());
  }
  const std::set<QRgb> classes = {QColor(0, 170, 0).rgb(), QColor(240, 200, 0).rgb(),
                                  QColor(220, 0, 0).rgb()};
  EXPECT_EQ(colors, classes);
  EXPECT_TRUE(h.faults.empty()) << h.faultTexts();
}

// The 3D view from the menu, turned with the bar below the canvas and saved at three angles.
// A drag sends the bar's values faster than a view is drawn: only the latest is drawn, and
// the move and scale items stay away while the view is on.
TEST(WindowMaps, TheReserveViewTurnsWithTheBarAndADragDrawsTheLatestAngle) {
  SampleMaps h;
  auto* bar = h.window.findChild<QScrollBar*>("HScroll1");
  ASSERT_NE(bar, nullptr);
  auto save = [&h](const char* picture) {
    QDir().mkpath(TRIRESERVE_PICTURES);
    EXPECT_TRUE(h.window.canvas().image().save(QString(TRIRESERVE_PICTURES) + "/" + picture));
  };
  h.trigger("Mnrecboy");
  EXPECT_FALSE(bar->isHidden());
  save("reserve-3d-0.png");
  Canvas& canvas = h.state().canvas;
  canvas.setLogging(true);
  canvas.clearLog();
  for (int value = 1; value <= 90; ++value) bar->setValue(value);
  QApplication::processEvents();
  const auto& log = canvas.log();
  EXPECT_EQ(std::count_if(log.begin(), log.end(),
                          [](const CanvasOp& op) { return op.kind == CanvasOp::Kind::Clear; }),
            1);
  EXPECT_EQ(h.state().views.viewangle, 90);
  EXPECT_FALSE(h.action("Mnkaydir")->isEnabled() || h.action("Mnolcekg")->isEnabled());
  save("reserve-3d-90.png");
  canvas.setLogging(false);
  bar->setValue(200);
  QApplication::processEvents();
  EXPECT_EQ(h.state().views.viewangle, 200);
  save("reserve-3d-200.png");
  // The next view gives the move and scale items back and hides the bar.
  h.trigger("Mnyuzdeten");
  EXPECT_TRUE(h.action("Mnkaydir")->isEnabled() && h.action("Mnolcekg")->isEnabled());
  EXPECT_TRUE(bar->isHidden());
  EXPECT_TRUE(h.faults.empty()) << h.faultTexts();
}

}  // namespace
}  // namespace tri
