// The window driven as the user drives it: projects through the menu, the selectors, the
// triangles on the canvas, the mouse, and the end of the program on a run-time error.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QRadioButton>
#include <fstream>

#include "window/gui_harness.h"

namespace tri {
namespace {

// A side of width 1 may fall on either pixel next to the exact point.
bool blackNear(const QImage& image, QPoint at) {
  for (int dx = -1; dx <= 1; ++dx) {
    for (int dy = -1; dy <= 1; ++dy) {
      const QColor c = image.pixelColor(at + QPoint(dx, dy));
      if (c.red() < 64 && c.green() < 64 && c.blue() < 64) return true;
    }
  }
  return false;
}

// Creates the project, chooses ore, adds the drawing "plan1" and clicks the triangles
// C-04 C-05 C-08 and C-05 C-09 C-08 on the canvas; then chooses plan1 again, which draws
// its network, and stays in triangle entry.
void showPlan(WindowHarness& h) {
  h.createProject();
  h.choose("Combo4", 1);
  h.dialogs.answerInput("plan1", "Name the Drawing.");
  h.trigger("Mncizek");
  for (auto [x, y] :
       {std::pair{550, 850}, {600, 850}, {550, 900}, {600, 850}, {600, 900}, {550, 900}}) {
    h.click(h.pixelOf(x, y));
  }
  h.choose("Combo2", 1);
}

TEST(WindowCanvas, ADrawingIsShownAndAClickReachesTheLogicAtTheWorldPointOfItsPixel) {
  WindowHarness h;
  showPlan(h);
  EXPECT_EQ(h.combo("Combo2")->currentText(), "plan1");
  const QImage shown = h.shownPicture();
  // On the sides C-04 C-05 and C-05 C-08, away from the holes; inside the first triangle.
  EXPECT_TRUE(blackNear(shown, h.pixelOf(587.5, 850)));
  EXPECT_TRUE(blackNear(shown, h.pixelOf(587.5, 862.5)));
  EXPECT_EQ(shown.pixelColor(h.pixelOf(562, 862)), QColor(Qt::white));

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
  EXPECT_TRUE(h.faults.empty()) << h.faultTexts();
}

TEST(WindowCanvas, TheCanvasFollowsTheSizeOfItsWidget) {
  WindowHarness h;
  h.window.resize(900, 640);
  QApplication::processEvents();
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

TEST(WindowPrint, ThePrintPanelsTakeTheCanvasPlaceWithThePdfEntryLast) {
  WindowHarness h;
  h.trigger("Mnyazdır");
  QComboBox* printers = h.combo("Combo3");
  ASSERT_GT(printers->count(), 0);
  EXPECT_EQ(printers->itemText(printers->count() - 1), "PDF file");
  EXPECT_FALSE(h.picture1()->isVisible());
  h.window.findChild<QRadioButton*>("Option8")->click();
  EXPECT_EQ(h.state().ui.printOption, 8);
  QDir().mkpath(TRIRESERVE_PICTURES);
  h.window.grab().save(QString(TRIRESERVE_PICTURES) + "/print_panels.png");
}

}  // namespace
}  // namespace tri
