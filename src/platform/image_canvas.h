// The canvas drawn into a QImage with QPainter: the one implementation, used by the
// window, the picture file and the tests alike.
#pragma once

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QStaticText>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/canvas.h"
#include "platform/pixel_raster.h"

namespace tri {

class ImageCanvas : public Canvas {
 public:
  ImageCanvas(int pixelWidth = 1000, int pixelHeight = 700, double dotsPerInch = 96);

  // The finished picture: drawing still in progress is completed first.
  const QImage& image() const;
  // Writes the picture; the format follows the extension (.bmp, .png, .jpg) unless one is
  // given ("BMP"). Returns false when the file cannot be written.
  bool save(const std::string& path, const char* format = nullptr) const;
  // Copies another picture's image onto this one at (x, y), size width by height, in this
  // canvas's world units (PaintPicture).
  void paintPicture(const Canvas& picture, double x, double y, double width, double height);
  // A resize that keeps what is drawn at the top left corner, as a retained picture does: a
  // larger surface shows the background around it, a smaller one cuts it.
  void resizeKeepingPicture(int pixelWidth, int pixelHeight);

  // The texts on the picture since it was last cleared, at their top left corners in
  // pixels, so that a printed copy can carry them as text.
  struct PlacedText {
    double px;
    double py;
    std::string text;
    int pointSize;
  };
  const std::vector<PlacedText>& texts() const { return texts_; }

 protected:
  void paintResize(int pixelWidth, int pixelHeight) override;
  void paintClear(Color background) override;
  void paintLine(double px1, double py1, double px2, double py2, Color color, int width) override;
  void paintBox(double px1, double py1, double px2, double py2, Color color, bool filled,
                int width) override;
  void paintPoint(double px, double py, Color color, int width) override;
  void paintEllipse(double cx, double cy, double rx, double ry, Color color, int width, bool filled,
                    Color fill) override;
  void paintText(double px, double py, const std::string& text, Color color,
                 int pointSize) override;
  void paintPolygon(const int* xy, int points, Color color) override;
  double textPixelWidth(const std::string& text, int pointSize) const override;
  double textPixelHeight(int pointSize) const override;
  Color pixelAt(int px, int py) const override;

 private:
  bool readyToPaint();
  void finishPainting() const;
  void useFont(int pointSize) const;
  const QStaticText& laidOut(const std::string& text);
  // The pixels of a text in the current font, or nullptr when only the painter can draw it.
  const TextStamp* stampFor(const std::string& text);
  // The painter's pen, brush and font are set only when they change: making a pen costs
  // more than the short lines and small discs of a plan.
  void usePen(Color color, int width, bool forText);
  void useBrush(std::optional<Color> fill);

  QImage image_;
  std::vector<PlacedText> texts_;
  // One painter stays open across drawing calls (opening one per call costs more than
  // drawing a short line); it is ended before the picture is read or replaced.
  mutable QPainter painter_;
  mutable QFont font_;
  mutable int fontPointSize_ = 0;
  mutable double fontLineHeight_ = 0;
  // Texts laid out in the current font: a repaint prints the same labels again.
  mutable std::unordered_map<std::string, QStaticText> laidOutTexts_;
  mutable std::unordered_map<std::string, std::optional<TextStamp>> stamps_;
  // Both are bounded by starting afresh: the labels of one plan number far fewer than this.
  static constexpr size_t kMostTexts = 4096;
  // What the painter holds now; unknown (nullopt) once it is begun again.
  struct PenKey {
    Color color;
    int width;
    bool forText;
    bool operator==(const PenKey&) const = default;
  };
  std::optional<PenKey> pen_;
  std::optional<std::optional<Color>> brush_;
  mutable bool fontOnPainter_ = false;
};

}  // namespace tri
