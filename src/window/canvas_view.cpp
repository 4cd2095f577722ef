#include "window/canvas_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "window/qt_color.h"

namespace tri {

int logicButton(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    case Qt::MiddleButton: return 4;
    default: return 0;
  }
}

int logicButtons(Qt::MouseButtons buttons) {
  int sum = 0;
  for (Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (buttons & button) sum += logicButton(button);
  }
  return sum;
}

CanvasView::CanvasView(const ImageCanvas& canvas, QWidget* parent)
    : QWidget(parent), canvas_(canvas) {
  setObjectName("Picture1");
  // The logic follows every move, not only drags.
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMinimumSize(100, 100);
}

void CanvasView::setLine(const LineControl& line) {
  line_ = line;
  update();
}

void CanvasView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QImage& image = canvas_.image();
  painter.fillRect(rect(), toQColor(canvas_.backColor));
  painter.drawImage(0, 0, image);
  if (line_.visible) paintLine(painter);
}

void CanvasView::paintLine(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(toQColor(line_.color), std::max(1, line_.width)));
  painter.drawLine(QPointF(canvas_.toPixelX(line_.x1), canvas_.toPixelY(line_.y1)),
                   QPointF(canvas_.toPixelX(line_.x2), canvas_.toPixelY(line_.y2)));
}

void CanvasView::resizeEvent(QResizeEvent*) { emit resized(width(), height()); }

float CanvasView::worldX(const QMouseEvent* event) const {
  return static_cast<float>(canvas_.toWorldX(event->position().x()));
}

float CanvasView::worldY(const QMouseEvent* event) const {
  return static_cast<float>(canvas_.toWorldY(event->position().y()));
}

// Buttons beyond the three (back, forward) mean nothing to the canvas.
void CanvasView::mousePressEvent(QMouseEvent* event) {
  const int button = logicButton(event->button());
  if (button != 0) emit pressed(button, worldX(event), worldY(event));
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
  emit moved(logicButtons(event->buttons()), worldX(event), worldY(event));
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
  const int button = logicButton(event->button());
  if (button != 0) emit released(button, worldX(event), worldY(event));
}

}  // namespace tri
