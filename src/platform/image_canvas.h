// The canvas drawn into a QImage with QPainter: the one implementation, used by the
// window, the picture file and the tests alike.
#pragma once

#include <QImage>
#include <string>

#include "platform/canvas.h"

namespace tri {

class ImageCanvas : public Canvas {
 public:
  ImageCanvas(int pixelWidth = 1000, int pixelHeight = 700, double dotsPerInch = 96);

  const QImage& image() const { return image_; }
  // Writes the picture; the format follows the extension (.bmp, .png, .jpg).
  // Returns false when the file cannot be written.
  bool save(const std::string& path) const;

 protected:
  void paintResize(int pixelWidth, int pixelHeight) override;
  void paintClear(Color background) override;
  void paintLine(double px1, double py1, double px2, double py2, Color color,
                 int width) override;
  void paintBox(double px1, double py1, double px2, double py2, Color color, bool filled,
                int width) override;
  void paintPoint(double px, double py, Color color, int width) override;
  void paintEllipse(double cx, double cy, double rx, double ry, Color color, int width,
                    bool filled, Color fill) override;
  void paintText(double px, double py, const std::string& text, Color color,
                 int pointSize) override;
  void paintPolygon(const int* xy, int points, Color color) override;
  double textPixelWidth(const std::string& text, int pointSize) const override;
  double textPixelHeight(int pointSize) const override;
  Color pixelAt(int px, int py) const override;

 private:
  QImage image_;
};

}  // namespace tri
