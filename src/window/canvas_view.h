// Picture1: the widget that shows the canvas's picture with the rubber-band line over it
// and reports the mouse in world coordinates.
#pragma once

#include <QWidget>

#include "platform/controls.h"
#include "platform/image_canvas.h"

class QMouseEvent;

namespace tri {

// The logic's button numbers: left 1, right 2, middle 4; a move reports the sum of the
// buttons held.
int logicButton(Qt::MouseButton button);
int logicButtons(Qt::MouseButtons buttons);

class CanvasView : public QWidget {
  Q_OBJECT

 public:
  explicit CanvasView(const ImageCanvas& canvas, QWidget* parent = nullptr);

  void setLine(const LineControl& line);
  const LineControl& line() const { return line_; }
  QSize sizeHint() const override { return {1000, 700}; }

 signals:
  // The point is in the canvas's world coordinates.
  void pressed(int button, float x, float y);
  void moved(int button, float x, float y);
  void released(int button, float x, float y);
  // The new size in pixels.
  void resized(int width, int height);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  float worldX(const QMouseEvent* event) const;
  float worldY(const QMouseEvent* event) const;
  void paintLine(QPainter& painter) const;

  const ImageCanvas& canvas_;
  LineControl line_;
};

}  // namespace tri
