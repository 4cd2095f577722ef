#include "window/form_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

#include "window/canvas_view.h"
#include "window/qt_color.h"

namespace tri {

namespace {

int whole(double v) { return static_cast<int>(std::lround(v)); }

}  // namespace

ShapeItem::ShapeItem(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeItem::setShape(const ShapeControl& shape) {
  shape_ = shape;
  setGeometry(whole(shape.left), whole(shape.top), std::max(1, whole(shape.width)),
              std::max(1, whole(shape.height)));
  update();
}

void ShapeItem::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (shape_.fillStyle == 0) painter.fillRect(rect(), toQColor(shape_.fillColor));
  painter.setPen(toQColor(shape_.borderColor));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

FormView::FormView(ImageCanvas& form, QWidget* parent) : QWidget(parent), form_(form) {
  setObjectName("Form3");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::ClickFocus);
}

void FormView::reflectShapes(const Controls& ui) {
  const auto& shapes = ui.shapes();
  for (auto it = items_.begin(); it != items_.end();) {
    if (shapes.count(it->first) == 0) {
      delete it->second;
      it = items_.erase(it);
    } else {
      ++it;
    }
  }
  for (const auto& [name, shape] : shapes) {
    ShapeItem*& item = items_[name];
    if (!item) {
      item = new ShapeItem(this);
      item->setObjectName(QString::fromStdString(name));
      item->show();
    }
    item->setShape(shape);
  }
}

void FormView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), toQColor(form_.backColor));
  painter.drawImage(0, 0, form_.image());
}

void FormView::resizeEvent(QResizeEvent*) {
  form_.resizeKeepingPicture(width(), height());
  update();
}

void FormView::mousePressEvent(QMouseEvent* event) {
  const int button = logicButton(event->button());
  if (button == 0) return;
  emit pressed(button, static_cast<float>(form_.toWorldX(event->position().x())),
               static_cast<float>(form_.toWorldY(event->position().y())));
}

}  // namespace tri
