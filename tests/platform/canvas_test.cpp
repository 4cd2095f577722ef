// The drawing surface: its world scale, the pixels each operation leaves, the text position,
// the operation log and the picture file.
#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <string>
#include <vector>

#include "platform/image_canvas.h"
#include "support/temp_dir.h"

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

int countPixels(const ImageCanvas& canvas, Color color) {
  int count = 0;
  for (int y = 0; y < canvas.pixelHeight(); ++y) {
    for (int x = 0; x < canvas.pixelWidth(); ++x) count += pixel(canvas, x, y) == color;
  }
  return count;
}

// The bounding rectangle of the pixels not in white.
QRect drawnArea(const ImageCanvas& canvas) {
  QRect area;
  for (int y = 0; y < canvas.pixelHeight(); ++y) {
    for (int x = 0; x < canvas.pixelWidth(); ++x) {
      if (pixel(canvas, x, y) != kWhite) area |= QRect(x, y, 1, 1);
    }
  }
  return area;
}

TEST(CanvasScale, UserScaleWithYGrowingUpwardMapsBothWays) {
  ImageCanvas canvas(1000, 700);
  EXPECT_EQ(canvas.scaleWidth(), 1000);  // pixels until told otherwise
  EXPECT_EQ(canvas.scaleHeight(), 700);
  canvas.scale(4000, 9000, 6000, 8000);  // a plan: north up, 2000 x 1000 metres
  EXPECT_EQ(canvas.scaleMode(), ScaleMode::User);
  EXPECT_EQ(canvas.scaleHeight(), -1000);
  EXPECT_DOUBLE_EQ(canvas.toPixelX(5000), 500);
  EXPECT_DOUBLE_EQ(canvas.toPixelY(9000), 0);
  EXPECT_DOUBLE_EQ(canvas.toPixelY(8800), 140);  // north of the middle is above it
  EXPECT_DOUBLE_EQ(canvas.toWorldX(250), 4500);
  EXPECT_DOUBLE_EQ(canvas.toWorldY(canvas.toPixelY(8123.25)), 8123.25);
}

TEST(CanvasScale, ResizeKeepsAUserWorldRectangleAndMeasuresTheOthers) {
  ImageCanvas canvas(1000, 700);
  canvas.scale(0, 100, 200, 0);
  canvas.line(0, 0, 200, 100, kRed);
  canvas.backColor = kGreen;
  canvas.resize(500, 200);
  EXPECT_EQ(canvas.scaleWidth(), 200);
  EXPECT_EQ(canvas.scaleHeight(), -100);
  EXPECT_DOUBLE_EQ(canvas.toPixelX(100), 250);
  EXPECT_DOUBLE_EQ(canvas.toPixelY(50), 100);
  EXPECT_EQ(canvas.image().size(), QSize(500, 200));
  EXPECT_EQ(countPixels(canvas, kGreen), 500 * 200);  // blank, in the background colour

  ImageCanvas centimetres(1000, 700);
  centimetres.setScaleMode(ScaleMode::Centimeter);
  centimetres.resize(96, 192);
  EXPECT_DOUBLE_EQ(centimetres.scaleWidth(), 2.54);
  EXPECT_DOUBLE_EQ(centimetres.scaleHeight(), 5.08);
}

TEST(CanvasPixels, LinesReachingFarOutsideStillDrawTheirVisiblePart) {
  for (int width : {1, 3}) {
    ImageCanvas canvas(200, 100);
    canvas.drawWidth = width;
    canvas.line(-1e20, 50, 1e20, 50, kRed);
    canvas.line(-1e15, -1e15, 1e15, 1e15, kBlue);
    canvas.line(150, 0, 150 - 1e18, 1e18, kGreen);  // x + y = 150, one end far away
    EXPECT_EQ(pixel(canvas, 0, 50), kRed) << width;
    EXPECT_EQ(pixel(canvas, 199, 50), kRed) << width;
    EXPECT_EQ(pixel(canvas, 20, 20), kBlue) << width;
    EXPECT_EQ(pixel(canvas, 90, 90), kBlue) << width;
    EXPECT_EQ(pixel(canvas, 130, 20), kGreen) << width;
    EXPECT_EQ(pixel(canvas, 60, 90), kGreen) << width;
    EXPECT_EQ(pixel(canvas, 90, 20), kWhite) << width;
  }
}

TEST(CanvasPixels, PointReadsBackThePixelAThinPsetTook) {
  ImageCanvas canvas(1000, 700);
  canvas.scale(0, 7, 10, 0);
  // Between pixel centres and on the half: whatever pixel the dot takes, point() reads it.
  const double spots[][2] = {{3.337, 2.456}, {1.005, 6.995}, {9.99, 6.99}, {4.444, 3.336}};
  for (const auto& spot : spots) {
    canvas.cls();
    canvas.pset(spot[0], spot[1], kRed);
    EXPECT_EQ(countPixels(canvas, kRed), 1) << spot[0];
    EXPECT_EQ(canvas.point(spot[0], spot[1]), kRed) << spot[0];
  }
  EXPECT_EQ(canvas.point(5, 3.5), kWhite);
  EXPECT_EQ(canvas.point(-0.1, 3.5), -1);
  EXPECT_EQ(canvas.point(5, 7.1), -1);
  EXPECT_EQ(canvas.point(1e300, 3.5), -1);
}

TEST(CanvasPixels, FillTriangleFillsInsideOnlyAndLeavesThePen) {
  ImageCanvas canvas(100, 100);
  canvas.currentX = 7;
  canvas.currentY = 8;
  canvas.fillTriangle(10, 10, 90, 10, 10, 90, kGreen);
  canvas.fillTriangle(60, 95, 95, 60, 95, 95, kBlue);  // the other winding
  EXPECT_EQ(pixel(canvas, 20, 20), kGreen);
  EXPECT_EQ(pixel(canvas, 80, 12), kGreen);
  EXPECT_EQ(pixel(canvas, 60, 60), kWhite);  // beyond the long side
  EXPECT_EQ(pixel(canvas, 5, 50), kWhite);
  EXPECT_EQ(pixel(canvas, 90, 90), kBlue);
  EXPECT_EQ(pixel(canvas, 70, 70), kWhite);
  EXPECT_EQ(countPixels(canvas, canvas.foreColor), 0);  // no outline
  EXPECT_EQ(canvas.currentX, 7);
  EXPECT_EQ(canvas.currentY, 8);
}

TEST(CanvasPixels, CircleIsRoundOnScreenWithTheRadiusOnTheXScale) {
  ImageCanvas canvas(1000, 700);
  canvas.scale(0, 1, 10, 0);  // 100 pixels a unit across, 700 up
  canvas.circle(5, 0.5, 1, kRed);
  const QRect area = drawnArea(canvas);
  EXPECT_NEAR(area.width(), 201, 2);
  EXPECT_NEAR(area.height(), 201, 2);
  EXPECT_NEAR(area.center().y(), 350, 1);
  EXPECT_EQ(pixel(canvas, 500, 350), kWhite);  // transparent inside

  canvas.fillSolid = true;
  canvas.fillColor = kGreen;
  canvas.circle(5, 0.5, 1, kRed);
  EXPECT_EQ(pixel(canvas, 560, 410), kGreen);
  EXPECT_EQ(pixel(canvas, 580, 430), kWhite);

  // A picture wholly inside a huge circle is all fill.
  canvas.circle(5, 0.5, 1e20, kRed);
  EXPECT_EQ(countPixels(canvas, kGreen), 1000 * 700);
}

TEST(CanvasPixels, DegenerateScaleAndEmptyPictureDrawNothing) {
  ImageCanvas canvas(50, 50);
  canvas.scale(5, 5, 5, 5);
  canvas.line(0, 0, 10, 10, kRed);
  canvas.pset(5, 5, kRed);
  canvas.circle(5, 5, 1, kRed);
  canvas.print("x");
  EXPECT_EQ(countPixels(canvas, kWhite), 50 * 50);
  EXPECT_EQ(canvas.point(5, 5), -1);

  ImageCanvas empty(0, 0);
  empty.line(0, 0, 10, 10, kRed);
  empty.print("x");
  EXPECT_EQ(empty.point(0, 0), -1);
  empty.resize(10, 10);
  empty.pset(5, 5, kRed);
  EXPECT_EQ(empty.point(5, 5), kRed);
}

TEST(CanvasText, PrintMovesOneLineDownInAPlanScale) {
  ImageCanvas canvas(1000, 700);
  canvas.scale(0, 70, 100, 0);  // ten pixels a unit, y upward
  canvas.currentX = 10;
  canvas.currentY = 60;
  const double line = canvas.textHeight("A");
  ASSERT_GT(line, 0.5);
  canvas.print("A");
  EXPECT_EQ(canvas.currentX, 10);
  EXPECT_DOUBLE_EQ(canvas.currentY, 60 - line);
  canvas.currentX = 30;
  canvas.print("B");
  EXPECT_EQ(canvas.currentX, 30);
  EXPECT_DOUBLE_EQ(canvas.currentY, 60 - 2 * line);

  canvas.setScaleMode(ScaleMode::Pixel);
  EXPECT_DOUBLE_EQ(canvas.textHeight("A"), 10 * line);
  EXPECT_GT(canvas.textWidth("WWWW"), 3 * canvas.textWidth("W"));
  canvas.fontPointSize = 16;
  EXPECT_GT(canvas.textHeight("A"), 16 * line);
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
  const std::vector<std::string> expected = {
      "point 1E-05 7 color=16711680 width=5",
      "circle 5 5 1 color=16711680 width=5 fill=65280",
      "text 1 9 \"S-12\" color=16711680",
  };
  EXPECT_EQ(described, expected);
  canvas.clearLog();
  EXPECT_TRUE(canvas.log().empty());
}

TEST(CanvasSave, WritesAReadablePictureOrFails) {
  TempDir dir;
  ImageCanvas canvas(120, 80);
  canvas.box(10, 10, 20, 20, kRed, true);
  for (const char* name : {"plan.png", "plan.bmp"}) {
    ASSERT_TRUE(canvas.save(dir.file(name))) << name;
    QImage read(QString::fromStdString(dir.file(name)));
    ASSERT_EQ(read.size(), QSize(120, 80)) << name;
    EXPECT_EQ(read.pixel(15, 15) & 0xFFFFFF, 0xFF0000u) << name;
    EXPECT_EQ(read.pixel(25, 25) & 0xFFFFFF, 0xFFFFFFu) << name;
  }
  EXPECT_FALSE(canvas.save(dir.file("missing/plan.png")));
  EXPECT_FALSE(canvas.save(dir.file("plan.nosuchformat")));
}

}  // namespace
}  // namespace tri
