// The window driven as the user drives it: projects through the menu, the selectors, the
// triangles on the canvas, the mouse, and the end of the program on a run-time error.
#include <gtest/gtest.h>

#include <QApplication>
#include <fstream>

#include "window/gui_harness.h"

namespace tri {
namespace {

QStringList entries(const QComboBox* box) {
  QStringList list;
  for (int i = 0; i < box->count(); ++i) list << box->itemText(i);
  return list;
}

bool isBlack(const QColor& c) { return c.red() < 64 && c.green() < 64 && c.blue() < 64; }

// A side of width 1 may fall on either pixel next to the exact point.
bool blackNear(const QImage& image, QPoint at) {
  for (int dx = -1; dx <= 1; ++dx) {
    for (int dy = -1; dy <= 1; ++dy) {
      if (isBlack(image.pixelColor(at + QPoint(dx, dy)))) return true;
    }
  }
  return false;
}

// Creates the project, adds the drawing "plan1" of the triangles C-04 C-05 C-08 and
// C-05 C-09 C-08 to "ore", opens the project again and chooses ore and plan1 in the
// selectors, in triangle entry.
void showPlan(WindowHarness& h) {
  const std::string path = h.createProject();
  addDrawing(path, "ore", "plan1", {{4, 5, 8}, {5, 9, 8}});
  h.openProject(path);
  h.state().flags.modcizim = true;
  h.choose("Combo4", 1);
  h.choose("Combo2", 1);
}

TEST(WindowProject, CreatingAProjectFillsTheProjectAndLithologySelectors) {
  WindowHarness h;
  h.createProject();
  ASSERT_TRUE(h.faults.empty()) << h.faultTexts();
  EXPECT_EQ(h.dialogs.pending(), 0u);
  QComboBox* projects = h.combo("Combo5");
  EXPECT_EQ(entries(projects), QStringList({"Proje", "proj"}));
  EXPECT_EQ(projects->currentIndex(), 1);
  QComboBox* lithologies = h.combo("Combo4");
  EXPECT_EQ(entries(lithologies), QStringList({"Litoloji", "ore", "waste"}));
  EXPECT_EQ(lithologies->currentIndex(), 0);
  EXPECT_EQ(h.labelText(1), "Project Ready");
}

TEST(WindowProject, ChoosingADrawingShowsItsTrianglesOnTheCanvas) {
  WindowHarness h;
  showPlan(h);
  ASSERT_TRUE(h.faults.empty()) << h.faultTexts();
  EXPECT_EQ(entries(h.combo("Combo2")), QStringList({"Çizimler", "plan1"}));
  EXPECT_EQ(h.combo("Combo2")->currentIndex(), 1);

  const QImage shown = h.shownPicture();
  // On the sides C-04 C-05 and C-05 C-08, away from the holes; inside the first triangle.
  EXPECT_TRUE(blackNear(shown, h.pixelOf(587.5, 850)));
  EXPECT_TRUE(blackNear(shown, h.pixelOf(587.5, 862.5)));
  EXPECT_EQ(shown.pixelColor(h.pixelOf(562, 862)), QColor(Qt::white));
  EXPECT_TRUE(h.window.grab().save(QString::fromStdString(h.dir.file("window.png"))));
}

TEST(WindowCanvas, AClickReachesTheLogicAtTheWorldPointOfItsPixel) {
  WindowHarness h;
  showPlan(h);
  struct Press {
    int button;
    float x, y;
  };
  std::vector<Press> presses;
  QObject::connect(h.picture1(), &CanvasView::pressed, [&](int button, float x, float y) {
    presses.push_back({button, x, y});
  });
  const Canvas& canvas = h.window.canvas();
  const double pixelWidth = canvas.scaleWidth() / canvas.pixelWidth();

  h.click(h.pixelOf(600, 900));
  ASSERT_EQ(presses.size(), 1u);
  EXPECT_EQ(presses[0].button, 1);
  EXPECT_NEAR(presses[0].x, 600, pixelWidth);
  EXPECT_NEAR(presses[0].y, 900, pixelWidth);
  // Triangle entry took the hole under the pointer, C-09, as the first corner.
  EXPECT_EQ(h.state().entry.secsond, 9);
  EXPECT_EQ(h.labelText(1).toStdString(), h.state().ui.label(1));

  h.click(h.pixelOf(600, 900), Qt::RightButton);
  EXPECT_EQ(presses.back().button, 2);
  EXPECT_FALSE(h.state().flags.modcizim);
  ASSERT_TRUE(h.faults.empty()) << h.faultTexts();
}

TEST(WindowCanvas, TheCanvasFollowsTheSizeOfItsWidget) {
  WindowHarness h;
  EXPECT_EQ(h.window.canvas().pixelWidth(), h.picture1()->width());
  h.window.resize(900, 640);
  QApplication::processEvents();
  EXPECT_EQ(h.window.canvas().pixelWidth(), h.picture1()->width());
  EXPECT_EQ(h.window.canvas().pixelHeight(), h.picture1()->height());
  EXPECT_EQ(h.window.canvas().image().size(), h.picture1()->size());
}

TEST(WindowFault, ARunTimeErrorIsReportedAndEndsTheProgram) {
  WindowHarness h;
  const std::string notes = h.dir.file("notes.mdb");
  std::ofstream(notes) << "a plain text file\n";
  h.dialogs.answerOpen(notes, "Select Project File");

  const int code = h.runInApplication([&] { h.action("Mnprojeac")->trigger(); });
  ASSERT_EQ(h.faults.size(), 1u);
  EXPECT_EQ(h.faults[0].title, "Run-time error");
  EXPECT_TRUE(h.faults[0].text.startsWith("Database error: ")) << h.faultTexts();
  EXPECT_EQ(code, 1);
  EXPECT_FALSE(h.window.isVisible());
  // Nothing runs any more: this command would ask for a workbook.
  h.trigger("Mnprolus");
  EXPECT_EQ(h.faults.size(), 1u);
  EXPECT_EQ(h.dialogs.shown().size(), 1u);
}

TEST(WindowFault, ExitClosesTheWindowWithoutAnError) {
  WindowHarness h;
  EXPECT_EQ(h.runInApplication([&] { h.action("Mncikis")->trigger(); }), 0);
  EXPECT_FALSE(h.window.isVisible());
  EXPECT_TRUE(h.faults.empty());
}

}  // namespace
}  // namespace tri
