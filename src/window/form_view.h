// The window's own surface under its controls: the picture the logic draws on the form, the
// shape controls it adds at run time as child items named as the logic named them, and the
// mouse in the form's pixels. Picture1 and the print panels lie over it.
#pragma once

#include <QWidget>
#include <map>
#include <string>

#include "platform/controls.h"
#include "platform/image_canvas.h"

namespace tri {

// One shape control: a rectangle in its fill and outline colours. Clicks pass through it to
// the form, which decides what they hit.
class ShapeItem : public QWidget {
 public:
  explicit ShapeItem(QWidget* parent);
  void setShape(const ShapeControl& shape);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ShapeControl shape_;
};

class FormView : public QWidget {
  Q_OBJECT

 public:
  FormView(ImageCanvas& form, QWidget* parent = nullptr);

  // Adds, changes and removes the child items so that they are the controls' shapes.
  void reflectShapes(const Controls& ui);
  int shapeItemCount() const { return static_cast<int>(items_.size()); }

 signals:
  // The point is in the form's units.
  void pressed(int button, float x, float y);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  ImageCanvas& form_;
  std::map<std::string, ShapeItem*> items_;
};

}  // namespace tri
