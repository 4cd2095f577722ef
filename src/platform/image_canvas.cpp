#include "platform/image_canvas.h"

#include "platform/pixel_raster.h"
#include "platform/printer.h"

#include <QFontMetricsF>
#include <QPen>
#include <QPoint>
#include <QPolygonF>
#include <QRect>
#include <QString>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tri {

namespace {

QColor toQColor(Color color) { return QColor(redOf(color), greenOf(color), blueOf(color)); }

// The pixel a coordinate falls on, as a whole number: pixel i covers i - 0.5 up to i + 0.5.
double snap(double p) { return std::floor(p + 0.5); }

bool finite(double a, double b) { return std::isfinite(a) && std::isfinite(b); }

// The picture with a margin wide enough for a pen of `penWidth`: shapes reaching beyond
// it are cut there, so that no coordinate handed to the painter is absurdly large.
QRectF withMargin(const QImage& image, int penWidth) {
  const double margin = penWidth + 2.0;
  return QRectF(-margin, -margin, image.width() + 2 * margin, image.height() + 2 * margin);
}

enum Outside { kLeft = 1, kRight = 2, kAbove = 4, kBelow = 8 };

int outsideOf(const QPointF& p, const QRectF& box) {
  return (p.x() < box.left() ? kLeft : 0) | (p.x() > box.right() ? kRight : 0) |
         (p.y() < box.top() ? kAbove : 0) | (p.y() > box.bottom() ? kBelow : 0);
}

// Moves `p` along the line from `anchor` onto the first edge of `box` it lies beyond. The
// new coordinate is measured from the anchor, the other end: far ends lose their small
// digits, and an end already brought near the picture keeps the result exact.
QPointF ontoEdge(const QPointF& p, const QPointF& anchor, int outside, const QRectF& box) {
  const QPointF delta = p - anchor;
  if (outside & (kLeft | kRight)) {
    const double x = outside & kLeft ? box.left() : box.right();
    return QPointF(x, anchor.y() + delta.y() * ((x - anchor.x()) / delta.x()));
  }
  const double y = outside & kAbove ? box.top() : box.bottom();
  return QPointF(anchor.x() + delta.x() * ((y - anchor.y()) / delta.y()), y);
}

// Cuts the segment a-b to `box` (Cohen-Sutherland); false when none of it lies inside.
bool clipSegment(QPointF& a, QPointF& b, const QRectF& box) {
  // Each step clears one side of one end; rounding may at worst leave an end a hair outside.
  for (int step = 0; step < 8; ++step) {
    const int outsideA = outsideOf(a, box);
    const int outsideB = outsideOf(b, box);
    if ((outsideA | outsideB) == 0) return true;
    if (outsideA & outsideB) return false;
    if (outsideA) {
      a = ontoEdge(a, b, outsideA, box);
    } else {
      b = ontoEdge(b, a, outsideB, box);
    }
  }
  return true;
}

// True when every pixel of the image lies within `radius` of `centre`.
bool withinRadius(const QImage& image, const QPointF& centre, double radius) {
  const double farX = std::max(std::abs(centre.x() + 1), std::abs(centre.x() - image.width()));
  const double farY = std::max(std::abs(centre.y() + 1), std::abs(centre.y() - image.height()));
  return std::hypot(farX, farY) < radius;
}

QStaticText layOut(const std::string& text, const QFont& font) {
  QStaticText laid(QString::fromStdString(text));
  laid.setTextFormat(Qt::PlainText);
  laid.prepare(QTransform(), font);
  return laid;
}

// Larger circles go to the painter, which draws any size.
constexpr double kLargestPlottedRadius = 4096;

QPen solidPen(Color color, int width) {
  return QPen(toQColor(color), std::max(1, width), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

}  // namespace

ImageCanvas::ImageCanvas(int pixelWidth, int pixelHeight, double dotsPerInch)
    : Canvas(pixelWidth, pixelHeight, dotsPerInch) {
  paintResize(this->pixelWidth(), this->pixelHeight());
  paintClear(backColor);
}

const QImage& ImageCanvas::image() const {
  finishPainting();
  return image_;
}

bool ImageCanvas::save(const std::string& path, const char* format) const {
  finishPainting();
  return image_.save(QString::fromStdString(path), format);
}

void ImageCanvas::paintPicture(const Canvas& picture, double x, double y, double width,
                               double height) {
  const QImage source = imageOf(picture).image();
  if (!readyToPaint()) return;
  const double px = toPixelX(x);
  const double py = toPixelY(y);
  const QRectF target(px, py, toPixelX(x + width) - px, toPixelY(y + height) - py);
  // Scaled smoothly first, so that thin lines stay visible on a smaller copy.
  const QSize size = target.size().toSize();
  if (size.isEmpty()) return;
  painter_.drawImage(target.topLeft(),
                     source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

void ImageCanvas::resizeKeepingPicture(int pixelWidth, int pixelHeight) {
  const QImage kept = image();
  resize(pixelWidth, pixelHeight);
  if (readyToPaint()) painter_.drawImage(QPointF(0, 0), kept);
}

bool ImageCanvas::readyToPaint() {
  if (painter_.isActive()) return true;
  if (image_.isNull() || !painter_.begin(&image_)) return false;
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setRenderHint(QPainter::TextAntialiasing, false);
  pen_.reset();
  brush_.reset();
  fontOnPainter_ = false;
  return true;
}

void ImageCanvas::finishPainting() const {
  if (painter_.isActive()) painter_.end();
}

void ImageCanvas::paintResize(int pixelWidth, int pixelHeight) {
  finishPainting();
  image_ = QImage(pixelWidth, pixelHeight, QImage::Format_RGB32);
  const int dotsPerMeter = qRound(dotsPerInch() / 0.0254);
  image_.setDotsPerMeterX(dotsPerMeter);
  image_.setDotsPerMeterY(dotsPerMeter);
}

void ImageCanvas::paintClear(Color background) {
  finishPainting();
  texts_.clear();
  image_.fill(toQColor(background));
}

void ImageCanvas::paintLine(double px1, double py1, double px2, double py2, Color color,
                            int width) {
  if (!finite(px1, py1) || !finite(px2, py2) || !readyToPaint()) return;
  QPointF from(snap(px1), snap(py1));
  QPointF to(snap(px2), snap(py2));
  if (!clipSegment(from, to, withMargin(image_, width))) return;
  if (width <= 1) {
    plotThinLine(image_, from.toPoint(), to.toPoint(), toQColor(color).rgb());
    return;
  }
  usePen(color, width, false);
  painter_.drawLine(from, to);
}

void ImageCanvas::paintBox(double px1, double py1, double px2, double py2, Color color, bool filled,
                           int width) {
  if (!finite(px1, py1) || !finite(px2, py2) || !readyToPaint()) return;
  // Cutting an upright rectangle to the margin leaves its visible part as it was.
  const QRectF area = withMargin(image_, width);
  const auto inside = [&area](double px, double py) {
    return QPointF(std::clamp(snap(px), area.left(), area.right()),
                   std::clamp(snap(py), area.top(), area.bottom()));
  };
  const QRectF corners = QRectF(inside(px1, py1), inside(px2, py2)).normalized();
  if (filled) {
    // Both corner pixels belong to the box, as they do to its outline.
    painter_.fillRect(QRect(corners.topLeft().toPoint(), corners.bottomRight().toPoint()),
                      toQColor(color));
    return;
  }
  usePen(color, width, false);
  useBrush(std::nullopt);
  painter_.drawRect(corners);
}

void ImageCanvas::paintPoint(double px, double py, Color color, int width) {
  if (!finite(px, py) || !readyToPaint()) return;
  width = std::max(1, width);
  const double cx = snap(px);
  const double cy = snap(py);
  if (!withMargin(image_, width).contains(cx, cy)) return;
  // A round dot `width` pixels across. An even width has its middle between two pixels,
  // half a pixel up and to the left of (cx, cy), as the painter centres an even pen.
  const QRgb dotColor = toQColor(color).rgb();
  uchar* bits = image_.bits();
  const qsizetype stride = image_.bytesPerLine();
  const int first = -(width / 2);
  const int last = first + width - 1;
  const double middle = width % 2 == 0 ? -0.5 : 0.0;
  const double radiusSquared = width * width / 4.0;
  for (int dy = first; dy <= last; ++dy) {
    const double rowOffset = dy - middle;
    const double halfSpan = std::sqrt(std::max(0.0, radiusSquared - rowOffset * rowOffset));
    const int left = std::max(first, static_cast<int>(std::ceil(middle - halfSpan)));
    const int right = std::min(last, static_cast<int>(std::floor(middle + halfSpan)));
    if (left > right) continue;
    // A row of the dot straight into the picture's pixels, cut to it.
    const int y = static_cast<int>(cy) + dy;
    if (y < 0 || y >= image_.height()) continue;
    const int from = std::max(0, static_cast<int>(cx) + left);
    const int to = std::min(image_.width() - 1, static_cast<int>(cx) + right);
    QRgb* pixels = reinterpret_cast<QRgb*>(bits + y * stride);
    for (int x = from; x <= to; ++x) pixels[x] = dotColor;
  }
}

void ImageCanvas::paintEllipse(double cx, double cy, double rx, double ry, Color color, int width,
                               bool filled, Color fill) {
  if (!finite(cx, cy) || !finite(rx, ry) || !readyToPaint()) return;
  // Whole pixels, as a screen draws a circle; the painter's fast path takes only those,
  // and its general path costs six times as much.
  if (rx >= 0.5 && rx < 1e9) rx = std::round(rx);
  if (ry >= 0.5 && ry < 1e9) ry = std::round(ry);
  const QPointF centre(snap(cx), snap(cy));
  const QRectF bounds(centre.x() - rx, centre.y() - ry, 2 * rx, 2 * ry);
  if (!bounds.intersects(withMargin(image_, width))) return;
  // A picture wholly inside the outline is all fill; the painter gets a huge one wrong.
  if (withinRadius(image_, centre, std::min(rx, ry) - width)) {
    if (filled) painter_.fillRect(image_.rect(), toQColor(fill));
    return;
  }
  if (width <= 1 && rx >= 1 && ry >= 1 && std::max(rx, ry) <= kLargestPlottedRadius) {
    plotEllipse(image_, bounds.toRect(), toQColor(color).rgb(),
                filled ? std::optional<QRgb>(toQColor(fill).rgb()) : std::nullopt);
    return;
  }
  usePen(color, width, false);
  useBrush(filled ? std::optional<Color>(fill) : std::nullopt);
  painter_.drawEllipse(bounds);
}

void ImageCanvas::paintText(double px, double py, const std::string& text, Color color,
                            int pointSize) {
  if (!finite(px, py) || text.empty() || !readyToPaint()) return;
  const double left = snap(px);
  const double top = snap(py);
  // Text runs right and down from its corner; anything starting beyond the picture or
  // absurdly far before it shows nothing.
  constexpr double kFarAway = 1e6;
  if (left >= image_.width() || top >= image_.height() || left < -kFarAway || top < -kFarAway) {
    return;
  }
  useFont(pointSize);
  texts_.push_back({left, top, text, pointSize});
  if (const TextStamp* stamp = stampFor(text)) {
    plotStamp(image_, *stamp, static_cast<int>(left), static_cast<int>(top), toQColor(color).rgb());
    return;
  }
  if (!fontOnPainter_) {
    painter_.setFont(font_);
    fontOnPainter_ = true;
  }
  usePen(color, 1, true);
  painter_.drawStaticText(QPointF(left, top), laidOut(text));
}

const TextStamp* ImageCanvas::stampFor(const std::string& text) {
  auto found = stamps_.find(text);
  if (found == stamps_.end()) {
    if (stamps_.size() >= kMostTexts) stamps_.clear();
    found = stamps_.emplace(text, stampOf(layOut(text, font_), font_)).first;
  }
  return found->second ? &*found->second : nullptr;
}

const QStaticText& ImageCanvas::laidOut(const std::string& text) {
  auto found = laidOutTexts_.find(text);
  if (found != laidOutTexts_.end()) return found->second;
  if (laidOutTexts_.size() >= kMostTexts) laidOutTexts_.clear();
  return laidOutTexts_.emplace(text, layOut(text, font_)).first->second;
}

void ImageCanvas::paintPolygon(const int* xy, int points, Color color) {
  if (points < 3 || !readyToPaint()) return;
  if (points == 3) {
    fillTriangleInto(image_, xy, toQColor(color).rgb());
    return;
  }
  QPolygonF polygon;
  for (int i = 0; i < points; ++i) polygon << QPointF(xy[2 * i], xy[2 * i + 1]);
  painter_.setPen(Qt::NoPen);
  pen_.reset();
  useBrush(color);
  painter_.drawPolygon(polygon, Qt::WindingFill);
}

double ImageCanvas::textPixelWidth(const std::string& text, int pointSize) const {
  useFont(pointSize);
  return QFontMetricsF(font_).horizontalAdvance(QString::fromStdString(text));
}

double ImageCanvas::textPixelHeight(int pointSize) const {
  useFont(pointSize);
  return fontLineHeight_;
}

Color ImageCanvas::pixelAt(int px, int py) const {
  if (!image_.valid(px, py)) return -1;
  finishPainting();
  const QRgb pixel = image_.pixel(px, py);
  return rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

void ImageCanvas::useFont(int pointSize) const {
  pointSize = std::max(1, pointSize);
  if (pointSize == fontPointSize_) return;
  // Whole pixels from the points and the dots per inch, as a screen font is chosen.
  font_ = QFont();
  font_.setPixelSize(std::max(1, qRound(pointSize * dotsPerInch() / 72.0)));
  font_.setStyleStrategy(QFont::NoAntialias);
  const QFontMetricsF metrics(font_);
  fontLineHeight_ = std::max(metrics.height(), metrics.lineSpacing());
  fontPointSize_ = pointSize;
  fontOnPainter_ = false;
  laidOutTexts_.clear();
  stamps_.clear();
}

void ImageCanvas::usePen(Color color, int width, bool forText) {
  const PenKey key{color, width, forText};
  if (pen_ == key) return;
  if (forText) {
    painter_.setPen(toQColor(color));
  } else {
    painter_.setPen(solidPen(color, width));
  }
  pen_ = key;
}

void ImageCanvas::useBrush(std::optional<Color> fill) {
  if (brush_ == fill) return;
  if (fill) {
    painter_.setBrush(toQColor(*fill));
  } else {
    painter_.setBrush(Qt::NoBrush);
  }
  brush_ = fill;
}

}  // namespace tri
