#include "platform/canvas.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/vbtext.h"

namespace tri {

namespace {

// The numbers of an operation, separated by blanks.
std::string numbersText(const std::vector<double>& numbers) {
  std::string text;
  for (double number : numbers) {
    if (!text.empty()) text += ' ';
    text += numberText(number);
  }
  return text;
}

CanvasOp operation(CanvasOp::Kind kind, std::vector<double> at, Color color = 0, int width = 1) {
  CanvasOp op;
  op.kind = kind;
  op.at = std::move(at);
  op.color = color;
  op.width = width;
  return op;
}

std::string colorText(Color color) { return "color=" + std::to_string(color); }

std::string circleText(const CanvasOp& op) {
  std::string fill = op.filled ? std::to_string(op.fillColor) : "none";
  return "circle " + numbersText(op.at) + " " + colorText(op.color) +
         " width=" + std::to_string(op.width) + " fill=" + fill;
}

}  // namespace

std::string CanvasOp::describe() const {
  switch (kind) {
    case Kind::Clear: return "cls";
    case Kind::Line:
      return "line " + numbersText(at) + " " + colorText(color) + " width=" + std::to_string(width);
    case Kind::Box:
      return "box " + numbersText(at) + " " + colorText(color) + " filled=" + (filled ? "1" : "0");
    case Kind::Point:
      return "point " + numbersText(at) + " " + colorText(color) +
             " width=" + std::to_string(width);
    case Kind::Circle: return circleText(*this);
    case Kind::Text: return "text " + numbersText(at) + " \"" + text + "\" " + colorText(color);
    case Kind::FillTriangle: return "filltriangle " + numbersText(at) + " " + colorText(color);
  }
  return "?";
}

Canvas::Canvas(int pixelWidth, int pixelHeight, double dotsPerInch)
    : pixelWidth_(std::max(0, pixelWidth)),
      pixelHeight_(std::max(0, pixelHeight)),
      dpi_(dotsPerInch > 0 ? dotsPerInch : 96),
      width_(pixelWidth_),
      height_(pixelHeight_) {}

void Canvas::resize(int pixelWidth, int pixelHeight) {
  pixelWidth_ = std::max(0, pixelWidth);
  pixelHeight_ = std::max(0, pixelHeight);
  // A user scale keeps its world rectangle; the other modes measure the new size.
  if (mode_ != ScaleMode::User) setScaleMode(mode_);
  paintResize(pixelWidth_, pixelHeight_);
  paintClear(backColor);
}

void Canvas::scale(double x1, double y1, double x2, double y2) {
  mode_ = ScaleMode::User;
  left_ = x1;
  top_ = y1;
  width_ = x2 - x1;
  height_ = y2 - y1;
}

void Canvas::setScaleMode(ScaleMode mode) {
  mode_ = mode;
  if (mode == ScaleMode::User) return;
  const double unitsPerPixel = mode == ScaleMode::Centimeter ? 2.54 / dpi_ : 1.0;
  left_ = 0;
  top_ = 0;
  width_ = pixelWidth_ * unitsPerPixel;
  height_ = pixelHeight_ * unitsPerPixel;
}

double Canvas::toPixelX(double x) const { return (x - left_) / width_ * pixelWidth_; }
double Canvas::toPixelY(double y) const { return (y - top_) / height_ * pixelHeight_; }
double Canvas::toWorldX(double px) const { return left_ + px / pixelWidth_ * width_; }
double Canvas::toWorldY(double py) const { return top_ + py / pixelHeight_ * height_; }

std::vector<std::string> Canvas::describeSinceClear() const {
  auto clear = std::find_if(log_.rbegin(), log_.rend(),
                            [](const CanvasOp& op) { return op.kind == CanvasOp::Kind::Clear; });
  std::vector<std::string> lines;
  for (auto op = clear.base(); op != log_.end(); ++op) lines.push_back(op->describe());
  return lines;
}

void Canvas::cls() {
  if (logging_) record(operation(CanvasOp::Kind::Clear, {}));
  paintClear(backColor);
  currentX = 0;
  currentY = 0;
}

void Canvas::line(double x1, double y1, double x2, double y2) { line(x1, y1, x2, y2, foreColor); }

void Canvas::line(double x1, double y1, double x2, double y2, Color color) {
  if (logging_) record(operation(CanvasOp::Kind::Line, {x1, y1, x2, y2}, color, drawWidth));
  paintLine(toPixelX(x1), toPixelY(y1), toPixelX(x2), toPixelY(y2), color, drawWidth);
  currentX = x2;
  currentY = y2;
}

void Canvas::box(double x1, double y1, double x2, double y2, Color color, bool filled) {
  if (logging_) {
    CanvasOp op = operation(CanvasOp::Kind::Box, {x1, y1, x2, y2}, color, drawWidth);
    op.filled = filled;
    record(std::move(op));
  }
  paintBox(toPixelX(x1), toPixelY(y1), toPixelX(x2), toPixelY(y2), color, filled, drawWidth);
  currentX = x2;
  currentY = y2;
}

void Canvas::pset(double x, double y) { pset(x, y, foreColor); }

void Canvas::pset(double x, double y, Color color) {
  if (logging_) record(operation(CanvasOp::Kind::Point, {x, y}, color, drawWidth));
  paintPoint(toPixelX(x), toPixelY(y), color, drawWidth);
  currentX = x;
  currentY = y;
}

void Canvas::circle(double x, double y, double radius) { circle(x, y, radius, foreColor); }

void Canvas::circle(double x, double y, double radius, Color color) {
  if (logging_) {
    CanvasOp op = operation(CanvasOp::Kind::Circle, {x, y, radius}, color, drawWidth);
    op.filled = fillSolid;
    op.fillColor = fillColor;
    record(std::move(op));
  }
  // The radius is measured on the x scale and kept for both axes: a circle stays round
  // whatever the aspect of the scale.
  const double pixelRadius = std::abs(radius / width_ * pixelWidth_);
  paintEllipse(toPixelX(x), toPixelY(y), pixelRadius, pixelRadius, color, drawWidth, fillSolid,
               fillColor);
  currentX = x;
  currentY = y;
}

void Canvas::print(const std::string& text) {
  const double startX = currentX;
  const double startY = currentY;
  if (logging_) {
    CanvasOp op = operation(CanvasOp::Kind::Text, {startX, startY}, foreColor);
    op.text = text;
    record(std::move(op));
  }
  paintText(toPixelX(startX), toPixelY(startY), text, foreColor, fontPointSize);
  const double lineStep = textPixelHeight(fontPointSize) / pixelHeight_ * height_;
  currentX = startX;
  if (std::isfinite(lineStep)) currentY = startY + lineStep;
}

double Canvas::textWidth(const std::string& text) const {
  return std::abs(textPixelWidth(text, fontPointSize) / pixelWidth_ * width_);
}

double Canvas::textHeight(const std::string&) const {
  return std::abs(textPixelHeight(fontPointSize) / pixelHeight_ * height_);
}

void Canvas::fillTriangle(int x1, int y1, int x2, int y2, int x3, int y3, Color color) {
  if (logging_) {
    record(operation(CanvasOp::Kind::FillTriangle,
                     {double(x1), double(y1), double(x2), double(y2), double(x3), double(y3)},
                     color));
  }
  const int corners[] = {x1, y1, x2, y2, x3, y3};
  paintPolygon(corners, 3, color);
}

Color Canvas::point(double x, double y) const {
  // Pixel i covers the pixel coordinates from i - 0.5 up to i + 0.5, as in the drawing.
  const double px = std::floor(toPixelX(x) + 0.5);
  const double py = std::floor(toPixelY(y) + 0.5);
  // Negated comparisons so that a NaN coordinate counts as outside.
  if (!(px >= 0 && px < pixelWidth_ && py >= 0 && py < pixelHeight_)) return -1;
  return pixelAt(static_cast<int>(px), static_cast<int>(py));
}

void Canvas::record(CanvasOp op) { log_.push_back(std::move(op)); }

}  // namespace tri
