// The drawing surface the logic sees: a picture with a world scale, a pen and a text
// position, drawn in world units. Colours are the platform's numbers with blue in the high
// byte (255 is red). The screen, the picture file and the tests all draw through it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tri {

using Color = std::int32_t;

constexpr Color rgb(int red, int green, int blue) {
  return static_cast<Color>((blue & 0xFF) << 16 | (green & 0xFF) << 8 | (red & 0xFF));
}
constexpr int redOf(Color c) { return c & 0xFF; }
constexpr int greenOf(Color c) { return (c >> 8) & 0xFF; }
constexpr int blueOf(Color c) { return (c >> 16) & 0xFF; }

enum class ScaleMode { User = 0, Pixel = 3, Centimeter = 7 };

// One drawing operation, as kept in the canvas log for tests.
struct CanvasOp {
  enum class Kind { Clear, Line, Box, Point, Circle, Text, FillTriangle };
  Kind kind;
  std::vector<double> at;  // world coordinates (pixels for FillTriangle)
  Color color = 0;
  int width = 1;
  bool filled = false;
  Color fillColor = 0;  // the inside of a filled circle
  std::string text;

  // "line 1 2 3 4 color=255 width=1", "point 5 6 color=0 width=5", "text 1 2 \"A\" ..."
  std::string describe() const;
};

class Canvas {
 public:
  Canvas(int pixelWidth, int pixelHeight, double dotsPerInch);
  virtual ~Canvas() = default;
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  // Size of the surface. A resize starts a blank picture and keeps the scale.
  int pixelWidth() const { return pixelWidth_; }
  int pixelHeight() const { return pixelHeight_; }
  double dotsPerInch() const { return dpi_; }
  void resize(int pixelWidth, int pixelHeight);

  // Coordinates. scale() sets a user scale with (x1, y1) at the top left corner and
  // (x2, y2) at the bottom right; a y1 above y2 makes y grow upward.
  void scale(double x1, double y1, double x2, double y2);
  void setScaleMode(ScaleMode mode);
  ScaleMode scaleMode() const { return mode_; }
  double scaleLeft() const { return left_; }
  double scaleTop() const { return top_; }
  double scaleWidth() const { return width_; }
  double scaleHeight() const { return height_; }
  double toPixelX(double x) const;
  double toPixelY(double y) const;
  double toWorldX(double px) const;
  double toWorldY(double py) const;

  // The pen, the fill and the text position.
  int drawWidth = 1;
  Color foreColor = 0;
  Color backColor = rgb(255, 255, 255);
  bool fillSolid = false;  // FillStyle: solid when true, transparent otherwise
  Color fillColor = 0;
  double currentX = 0;
  double currentY = 0;
  int fontPointSize = 8;

  // Drawing. Points and lines take the pen width in pixels; a colour argument overrides
  // foreColor for that call. Each leaves the text position at its end point.
  void cls();
  void line(double x1, double y1, double x2, double y2);
  void line(double x1, double y1, double x2, double y2, Color color);
  void box(double x1, double y1, double x2, double y2, Color color, bool filled);
  void pset(double x, double y);
  void pset(double x, double y, Color color);
  void circle(double x, double y, double radius);
  void circle(double x, double y, double radius, Color color);
  // Prints at the text position and moves it to the start of the next line.
  void print(const std::string& text);
  double textWidth(const std::string& text) const;
  double textHeight(const std::string& text) const;
  // A solid triangle in pixel coordinates, no outline; the pen is left as it is.
  void fillTriangle(int x1, int y1, int x2, int y2, int x3, int y3, Color color);
  // The colour of the pixel under a world point; -1 outside the picture.
  Color point(double x, double y) const;

  // A log of every drawing operation, off unless a test asks for it.
  void setLogging(bool on) { logging_ = on; }
  const std::vector<CanvasOp>& log() const { return log_; }
  void clearLog() { log_.clear(); }
  // The logged operations since the last clear, each in its described form.
  std::vector<std::string> describeSinceClear() const;

 protected:
  virtual void paintResize(int pixelWidth, int pixelHeight) = 0;
  virtual void paintClear(Color background) = 0;
  virtual void paintLine(double px1, double py1, double px2, double py2, Color color,
                         int width) = 0;
  virtual void paintBox(double px1, double py1, double px2, double py2, Color color, bool filled,
                        int width) = 0;
  virtual void paintPoint(double px, double py, Color color, int width) = 0;
  virtual void paintEllipse(double cx, double cy, double rx, double ry, Color color, int width,
                            bool filled, Color fill) = 0;
  virtual void paintText(double px, double py, const std::string& text, Color color,
                         int pointSize) = 0;
  virtual void paintPolygon(const int* xy, int points, Color color) = 0;
  virtual double textPixelWidth(const std::string& text, int pointSize) const = 0;
  virtual double textPixelHeight(int pointSize) const = 0;
  virtual Color pixelAt(int px, int py) const = 0;

 private:
  void record(CanvasOp op);

  int pixelWidth_;
  int pixelHeight_;
  double dpi_;
  ScaleMode mode_ = ScaleMode::Pixel;
  double left_ = 0;
  double top_ = 0;
  double width_;
  double height_;
  bool logging_ = false;
  std::vector<CanvasOp> log_;
};

}  // namespace tri
