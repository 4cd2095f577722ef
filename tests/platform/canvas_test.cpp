// The drawing surface: its world scale, the pixels each operation leaves, the text position
// and the operation log.
#include <gtest/gtest.h>

#include <QImage>

#include "platform/image_canvas.h"

namespace tri {
namespace {

constexpr Color kRed = 255;
constexpr Color kGreen = 65280;
constexpr Color kBlue = 16711680;
constexpr Color kWhite = rgb(255, 255, 255);

// The colour of an image pixel as the platform's number.
Color pixel(const ImageCanvas& canvas, int x, int y) {
  const QRgb value = canvas.image().pixel(x, y);
  return rgb(qRed(value), qGreen(value), qBlue(value));
}

// The pixels of a colour, and the rectangle that holds them.
int countPixels(const ImageCanvas& canvas, Color color, QRect* area = nullptr) {
  int count = 0;
  for (int y = 0; y < canvas.pixelHeight(); ++y) {
    for (int x = 0; x < canvas.pixelWidth(); ++x) {
      if (pixel(canvas, x, y) != color) continue;
      ++count;
      if (area) *area |= QRect(x, y, 1, 1);
    }
  }
  return count;
}

TEST(CanvasScale, AUserScaleWithYGrowingUpwardMapsBothWaysAndSurvivesAResize) {
  ImageCanvas canvas(1000, 700);
  EXPECT_EQ(canvas.scaleWidth(), 1000);  // pixels until told otherwise
  canvas.scale(4000, 9000, 6000, 8000);  // a plan: north up, 2000 x 1000 metres
  EXPECT_EQ(canvas.scaleHeight(), -1000);
  EXPECT_DOUBLE_EQ(canvas.toPixelX(5000), 500);
  EXPECT_DOUBLE_EQ(canvas.toPixelY(8800), 140);  // north of the middle is above it
  EXPECT_DOUBLE_EQ(canvas.toWorldX(250), 4500);
  EXPECT_DOUBLE_EQ(canvas.toWorldY(canvas.toPixelY(8123.25)), 8123.25);
  canvas.backColor = kGreen;
  canvas.resize(500, 200);
  EXPECT_EQ(canvas.scaleWidth(), 2000);
  EXPECT_DOUBLE_EQ(canvas.toPixelY(8500), 100);
  EXPECT_EQ(countPixels(canvas, kGreen), 500 * 200);  // blank, in the background colour
  canvas.setScaleMode(ScaleMode::Centimeter);
  canvas.resize(96, 192);
  EXPECT_DOUBLE_EQ(canvas.scaleHeight(), 5.08);
}

TEST(CanvasPixels, EachOperationLeavesItsPixels) {
  for (int width : {1, 3}) {
    // Lines reaching far outside still draw their visible part.
    ImageCanvas canvas(200, 100);
    canvas.drawWidth = width;
    canvas.line(-1e20, 50, 1e20, 50, kRed);
    canvas.line(150, 0, 150 - 1e18, 1e18, kGreen);  // x + y = 150, one end far away
    EXPECT_EQ(pixel(canvas, 0, 50), kRed) << width;
    EXPECT_EQ(pixel(canvas, 199, 50), kRed) << width;
    EXPECT_EQ(pixel(canvas, 130, 20), kGreen) << width;
    EXPECT_EQ(pixel(canvas, 60, 90), kGreen) << width;
    EXPECT_EQ(pixel(canvas, 90, 20), kWhite) << width;
  }
  ImageCanvas canvas(1000, 700);
  canvas.scale(0, 7, 10, 0);
  // Between pixel centres and on the half: whatever pixel the dot takes, point() reads it.
  for (auto [x, y] : {std::pair{3.337, 2.456}, {1.005, 6.995}, {9.99, 6.99}, {4.444, 3.336}}) {
    canvas.cls();
    canvas.pset(x, y, kRed);
    EXPECT_EQ(countPixels(canvas, kRed), 1) << x;
    EXPECT_EQ(canvas.point(x, y), kRed) << x;
  }
  EXPECT_EQ(canvas.point(5, 3.5), kWhite);
  for (auto [x, y] : {std::pair{-0.1, 3.5}, {5.0, 7.1}, {1e300, 3.5}})
    EXPECT_EQ(canvas.point(x, y), -1);

  // A filled triangle of either winding, without outline.
  ImageCanvas fill(100, 100);
  fill.fillTriangle(10, 10, 90, 10, 10, 90, kGreen);
  fill.fillTriangle(60, 95, 95, 60, 95, 95, kBlue);
  EXPECT_EQ(pixel(fill, 20, 20), kGreen);
  EXPECT_EQ(pixel(fill, 60, 60), kWhite);  // beyond the long side
  EXPECT_EQ(pixel(fill, 90, 90), kBlue);
  EXPECT_EQ(countPixels(fill, fill.foreColor), 0);
  // Corners far off the picture are cut to it.
  ImageCanvas cut(100, 100);
  cut.fillTriangle(-2000000000, -2000000000, 2000000000, -2000000000, 0, 2000000000, kGreen);
  EXPECT_EQ(countPixels(cut, kGreen), 100 * 100);

  // A circle is round on screen with the radius on the x scale; filled or not.
  ImageCanvas round(1000, 700);
  round.scale(0, 1, 10, 0);  // 100 pixels a unit across, 700 up
  round.circle(5, 0.5, 1, kRed);
  QRect area;
  countPixels(round, kRed, &area);
  EXPECT_NEAR(area.width(), 201, 2);
  EXPECT_NEAR(area.height(), 201, 2);
  round.fillSolid = true;
  round.fillColor = kGreen;
  round.circle(5, 0.5, 1e20, kRed);  // a picture wholly inside a huge circle is all fill
  EXPECT_EQ(countPixels(round, kGreen), 1000 * 700);

  // A degenerate scale draws nothing.
  ImageCanvas flat(50, 50);
  flat.scale(5, 5, 5, 5);
  flat.line(0, 0, 10, 10, kRed);
  flat.circle(5, 5, 1, kRed);
  flat.print("x");
  EXPECT_EQ(countPixels(flat, kWhite), 50 * 50);
  EXPECT_EQ(flat.point(5, 5), -1);
}

TEST(CanvasText, PrintMovesOneLineDownInAPlanScale) {
  ImageCanvas canvas(1000, 700);
  canvas.scale(0, 70, 100, 0);  // ten pixels a unit, y upward
  canvas.currentX = 10;
  canvas.currentY = 60;
  const double line = canvas.textHeight("A");
  ASSERT_GT(line, 0.5);
  canvas.print("A");
  canvas.currentX = 30;
  canvas.print("B");
  EXPECT_EQ(canvas.currentX, 30);
  EXPECT_DOUBLE_EQ(canvas.currentY, 60 - 2 * line);
}

TEST(CanvasLog, DescribesEveryOperationWithWorldCoordinatesAsPassed) {
  ImageCanvas canvas(1000, 700);
  canvas.line(1, 2, 3, 4);
  EXPECT_TRUE(canvas.log().empty());  // off unless asked for
  canvas.setLogging(true);
  canvas.scale(0, 10, 10, 0);
  canvas.drawWidth = 5;
  canvas.foreColor = kBlue;
  canvas.pset(0.00001, 7);
  canvas.fillSolid = true;
  canvas.fillColor = kGreen;
  canvas.circle(5, 5, 1);
  canvas.currentX = 1;
  canvas.currentY = 9;
  canvas.print("S-12");
  std::vector<std::string> described;
  for (const CanvasOp& op : canvas.log()) described.push_back(op.describe());
  EXPECT_EQ(described, (std::vector<std::string>{"point 1E-05 7 color=16711680 width=5",
                                                 "circle 5 5 1 color=16711680 width=5 fill=65280",
                                                 "text 1 9 \"S-12\" color=16711680"}));
  canvas.clearLog();
  EXPECT_TRUE(canvas.log().empty());
}

}  // namespace
}  // namespace tri
