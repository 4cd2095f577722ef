#include "platform/pixel_raster.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tri {

namespace {

// The picture's pixels, looked up once a shape: asking the image for each row would check
// each time whether its pixels are shared.
struct Pixels {
  explicit Pixels(QImage& image)
      : bits(image.bits()),
        stride(image.bytesPerLine()),
        width(image.width()),
        height(image.height()) {}

  QRgb* row(int y) const { return reinterpret_cast<QRgb*>(bits + y * stride); }

  // A run of `length` pixels from (x, y) rightwards, cut to the picture.
  void run(int x, int y, int length, QRgb rgb) const {
    if (y < 0 || y >= height || length <= 0) return;
    const int from = std::max(x, 0);
    const int to = std::min(x + length, width);
    if (from < to) std::fill(row(y) + from, row(y) + to, rgb);
  }

  uchar* bits;
  qsizetype stride;
  int width;
  int height;
};

struct Span {
  int x;
  int y;
  int length;
};

// The outline runs of one step of the midpoint walk, mirrored into the four quarters, and
// the fill between them on the same rows. (x, y) is measured from the middle of `bounds`.
void plotEllipseStep(const Pixels& pixels, int x, int y, int length, const QRect& bounds,
                     QRgb outline, std::optional<QRgb> fill) {
  if (length == 0) return;
  const int midX = bounds.x() + (bounds.width() + 1) / 2;
  const int midY = bounds.y() + (bounds.height() + 1) / 2;
  x += midX;
  y = midY - y;
  const int leftX = midX + (midX - x) - (length - 1) - (bounds.width() & 1);
  const int leftLength = std::min(length, x - leftX);
  const int lowY = midY + (midY - y) - (bounds.height() & 1);
  const Span topLeft{leftX, y, leftLength}, topRight{x, y, length};
  const Span lowLeft{leftX, lowY, leftLength}, lowRight{x, lowY, length};
  if (fill && topLeft.x + topLeft.length < topRight.x) {
    const int fillX = topLeft.x + topLeft.length;
    const int fillLength = topRight.x - fillX;
    pixels.run(fillX, y, fillLength, *fill);
    if (y < lowY) pixels.run(fillX, lowY, fillLength, *fill);
  }
  for (const Span& span : {topLeft, topRight}) pixels.run(span.x, span.y, span.length, outline);
  if (y >= lowY) return;  // the middle row, drawn once
  for (const Span& span : {lowLeft, lowRight}) pixels.run(span.x, span.y, span.length, outline);
}

}  // namespace

void plotThinLine(QImage& image, QPoint a, QPoint b, QRgb rgb) {
  const int dx = std::abs(b.x() - a.x()), sx = a.x() < b.x() ? 1 : -1;
  const int dy = -std::abs(b.y() - a.y()), sy = a.y() < b.y() ? 1 : -1;
  const Pixels pixels(image);
  int err = dx + dy;
  for (int x = a.x(), y = a.y();;) {
    if (x >= 0 && x < pixels.width && y >= 0 && y < pixels.height) pixels.row(y)[x] = rgb;
    if (x == b.x() && y == b.y()) break;
    const int e2 = 2 * err;
    if (e2 >= dy) err += dy, x += sx;
    if (e2 <= dx) err += dx, y += sy;
  }
}

void fillTriangleInto(QImage& image, const int* xy, QRgb rgb) {
  struct Corner {
    double x, y;
  };
  Corner a{double(xy[0]), double(xy[1])}, b{double(xy[2]), double(xy[3])};
  Corner c{double(xy[4]), double(xy[5])};
  if (b.y < a.y) std::swap(a, b);
  if (c.y < a.y) std::swap(a, c);
  if (c.y < b.y) std::swap(b, c);
  if (c.y == a.y) return;
  const int width = image.width(), height = image.height();
  auto row = [height](double y) {
    return static_cast<int>(std::clamp(std::ceil(y - 0.5), 0.0, double(height)));
  };
  auto column = [width](double x) {
    return static_cast<int>(std::clamp(std::ceil(x - 0.5), 0.0, double(width)));
  };
  // The long side from a to c on one hand, a to b and b to c on the other; a pixel centre
  // is never on a corner's row.
  const double longSlope = (c.x - a.x) / (c.y - a.y);
  const Pixels pixels(image);
  for (const auto& [from, to] : {std::pair{a, b}, std::pair{b, c}}) {
    if (to.y == from.y) continue;
    const double slope = (to.x - from.x) / (to.y - from.y);
    for (int y = row(from.y), end = row(to.y); y < end; ++y) {
      const double centre = y + 0.5;
      const double x1 = a.x + (centre - a.y) * longSlope;
      const double x2 = from.x + (centre - from.y) * slope;
      const int left = column(std::min(x1, x2)), right = column(std::max(x1, x2));
      std::fill(pixels.row(y) + left, pixels.row(y) + std::max(left, right), rgb);
    }
  }
}

void plotEllipse(QImage& image, const QRect& bounds, QRgb outline, std::optional<QRgb> fill) {
  const Pixels pixels(image);
  const double a = bounds.width() / 2.0;
  const double b = bounds.height() / 2.0;
  double d = b * b - (a * a * b) + 0.25 * a * a;
  int x = 0;
  int y = (bounds.height() + 1) / 2;
  int startX = x;
  // Where the slope is below one: a step to the right each time, down when the error says.
  while (a * a * (2 * y - 1) > 2 * b * b * (x + 1)) {
    if (d < 0) {
      d += b * b * (2 * x + 3);
      ++x;
    } else {
      d += b * b * (2 * x + 3) + a * a * (-2 * y + 2);
      plotEllipseStep(pixels, startX, y, x - startX + 1, bounds, outline, fill);
      startX = ++x;
      --y;
    }
  }
  plotEllipseStep(pixels, startX, y, x - startX + 1, bounds, outline, fill);
  // Where it is steeper: a step down each time, right when the error says.
  d = b * b * (x + 0.5) * (x + 0.5) + a * a * ((y - 1) * (y - 1) - b * b);
  const int lowestY = bounds.height() & 1;
  while (y > lowestY) {
    if (d < 0) {
      d += b * b * (2 * x + 2) + a * a * (-2 * y + 3);
      ++x;
    } else {
      d += a * a * (-2 * y + 3);
    }
    --y;
    plotEllipseStep(pixels, x, y, 1, bounds, outline, fill);
  }
}

std::optional<TextStamp> stampOf(const QStaticText& text, const QFont& font) {
  // Room around the text for glyphs reaching before their origin or beyond their advance.
  const int pad = std::max(4, font.pixelSize());
  const QSizeF size = text.size();
  const int width = static_cast<int>(std::ceil(size.width())) + 2 * pad;
  const int height = static_cast<int>(std::ceil(size.height())) + 2 * pad;
  if (width > 4096 || height > 1024) return std::nullopt;
  QImage scratch(width, height, QImage::Format_RGB32);
  const QRgb paper = qRgb(255, 255, 255), ink = qRgb(0, 0, 0);
  scratch.fill(paper);
  {
    QPainter painter(&scratch);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    painter.setFont(font);
    painter.setPen(QColor(ink));
    painter.drawStaticText(QPointF(pad, pad), text);
  }
  TextStamp stamp;
  for (int y = 0; y < height; ++y) {
    const QRgb* pixels = reinterpret_cast<const QRgb*>(scratch.constScanLine(y));
    for (int x = 0; x < width;) {
      if (pixels[x] == paper) {
        ++x;
        continue;
      }
      const bool onBorder = x == 0 || y == 0 || y == height - 1;
      if (pixels[x] != ink || onBorder) return std::nullopt;
      const int start = x;
      while (x < width && pixels[x] == ink) ++x;
      if (x == width) return std::nullopt;
      stamp.push_back({start - pad, y - pad, x - start});
    }
  }
  return stamp;
}

void plotStamp(QImage& image, const TextStamp& stamp, int left, int top, QRgb rgb) {
  const Pixels pixels(image);
  for (const PixelRun& run : stamp) pixels.run(left + run.dx, top + run.dy, run.length, rgb);
}

}  // namespace tri
