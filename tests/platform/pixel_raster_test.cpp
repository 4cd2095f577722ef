// The shapes written straight into the pixels must leave exactly what the painter leaves: a
// picture saved or printed is the same whichever path drew it.
#include <gtest/gtest.h>

#include <QPainter>
#include <QPen>
#include <cmath>
#include <string>
#include <tuple>

#include "platform/image_canvas.h"
#include "platform/pixel_raster.h"

namespace tri {
namespace {

constexpr QRgb kPaper = 0xffffffff;
constexpr QRgb kPen = 0xff1040c0;
constexpr QRgb kFill = 0xff20b010;

QImage blank(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(kPaper);
  return image;
}

void plainHints(QPainter& painter) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setRenderHint(QPainter::TextAntialiasing, false);
}

// The first pixel where two pictures differ, as "x,y", or "" when they are alike.
std::string firstDifference(const QImage& a, const QImage& b) {
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      if (a.pixel(x, y) != b.pixel(x, y)) return std::to_string(x) + "," + std::to_string(y);
    }
  }
  return "";
}

QImage paintedEllipse(const QSize& size, const QRect& bounds, bool filled) {
  QImage image = blank(size.width(), size.height());
  QPainter painter(&image);
  plainHints(painter);
  painter.setPen(QPen(QColor(kPen), 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  if (filled) painter.setBrush(QColor(kFill));
  painter.drawEllipse(QRectF(bounds));
  return image;
}

TEST(PixelRaster, EllipsesOfEverySmallSizeMatchThePainterEvenWhereCut) {
  const QSize size(60, 50);
  for (bool filled : {false, true}) {
    for (int width = 1; width <= 26; width += width < 14 ? 1 : 3) {
      for (int height = 1; height <= 26; height += height < 14 ? 1 : 5) {
        // Inside, and over each edge of the picture.
        for (QPoint corner : {QPoint(20, 15), QPoint(-7, 30), QPoint(45, -9), QPoint(50, 40)}) {
          const QRect bounds(corner, QSize(width, height));
          QImage plotted = blank(size.width(), size.height());
          plotEllipse(plotted, bounds, kPen, filled ? std::optional<QRgb>(kFill) : std::nullopt);
          EXPECT_EQ(firstDifference(plotted, paintedEllipse(size, bounds, filled)), "")
              << width << "x" << height << " at " << corner.x() << "," << corner.y()
              << (filled ? " filled" : "");
        }
      }
    }
  }
  const QRect large(-150, -40, 400, 300);  // a disc far larger than the picture
  QImage plotted = blank(size.width(), size.height());
  plotEllipse(plotted, large, kPen, kFill);
  EXPECT_EQ(firstDifference(plotted, paintedEllipse(size, large, true)), "");
}

TEST(PixelRaster, TextStampsMatchThePainterInSizesAndPlacesOfAPlan) {
  const QSize size(90, 40);
  for (int pixelSize : {8, 11, 16, 27}) {
    QFont font;
    font.setPixelSize(pixelSize);
    font.setStyleStrategy(QFont::NoAntialias);
    font.setItalic(pixelSize == 27);  // italics reach beyond their advance
    for (const char* text : {"12.35", "-0.5", "AK-17", "Wj|gy", "W W", "fff"}) {
      QStaticText laid{QString(text)};
      laid.setTextFormat(Qt::PlainText);
      laid.prepare(QTransform(), font);
      const std::optional<TextStamp> stamp = stampOf(laid, font);
      ASSERT_TRUE(stamp) << text << " at " << pixelSize << " pixels";
      for (QPoint at : {QPoint(5, 5), QPoint(-9, 20), QPoint(60, -6), QPoint(70, 30)}) {
        QImage painted = blank(size.width(), size.height());
        {
          QPainter painter(&painted);
          plainHints(painter);
          painter.setFont(font);
          painter.setPen(QColor(kPen));
          painter.drawStaticText(at, laid);
        }
        QImage plotted = blank(size.width(), size.height());
        plotStamp(plotted, *stamp, at.x(), at.y(), kPen);
        EXPECT_EQ(firstDifference(plotted, painted), "")
            << text << " at " << pixelSize << " pixels, " << at.x() << "," << at.y();
      }
    }
  }
}

// Through the canvas: the path each circle and label takes leaves the painter's pixels, wide
// pens and radii under a pixel included, and texts of any colour on a drawing in progress.
TEST(PixelRaster, ACanvasPlanMatchesThePainterPixelForPixel) {
  ImageCanvas canvas(120, 90);
  QImage painted = blank(120, 90);
  QPainter painter(&painted);
  plainHints(painter);
  struct Disc {
    double x, y, radius;
    int width;
    bool filled;
  };
  for (const Disc& d :
       {Disc{30.4, 20.6, 9.4, 1, true}, Disc{80, 60, 0.3, 1, true}, Disc{60, 45, 6.6, 2, true},
        Disc{115, 5, 12, 1, false}, Disc{10, 80, 4, 3, false}, Disc{62.5, 30, 2.5, 1, true}}) {
    canvas.drawWidth = d.width;
    canvas.fillSolid = d.filled;
    canvas.fillColor = rgb(qRed(kFill), qGreen(kFill), qBlue(kFill));
    canvas.circle(d.x, d.y, d.radius, rgb(qRed(kPen), qGreen(kPen), qBlue(kPen)));
    const double r = d.radius >= 0.5 ? std::round(d.radius) : d.radius;
    const QPointF centre(std::floor(d.x + 0.5), std::floor(d.y + 0.5));
    painter.setPen(QPen(QColor(kPen), d.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(d.filled ? QBrush(QColor(kFill)) : QBrush(Qt::NoBrush));
    painter.drawEllipse(QRectF(centre.x() - r, centre.y() - r, 2 * r, 2 * r));
  }
  // Point sizes at 96 dots an inch: 8 points are 11 pixels, 14 are 19.
  for (const auto& [x, y, text, points] : {std::tuple{20.0, 30.0, "3.14", 8},
                                           {100.4, 70.6, "25", 8},
                                           {-4.0, 50.0, "A1", 14},
                                           {20.0, 32.0, "3.14", 14},
                                           {50.0, 75.0, "3.14", 8}}) {
    QFont font;
    font.setPixelSize(points == 8 ? 11 : 19);
    font.setStyleStrategy(QFont::NoAntialias);
    painter.setFont(font);
    canvas.fontPointSize = points;
    canvas.foreColor = rgb(200, 0, int(x) & 0xff);
    canvas.currentX = x;
    canvas.currentY = y;
    canvas.print(text);
    painter.setPen(QColor(200, 0, int(x) & 0xff));
    QStaticText laid{QString(text)};
    laid.setTextFormat(Qt::PlainText);
    painter.drawStaticText(QPointF(std::floor(x + 0.5), std::floor(y + 0.5)), laid);
  }
  painter.end();
  EXPECT_EQ(firstDifference(canvas.image(), painted), "");
}

}  // namespace
}  // namespace tri
