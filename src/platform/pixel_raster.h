// Shapes written straight into a picture's pixels, each leaving exactly the pixels the painter
// leaves for it without antialiasing. A plan of a thousand triangles is mostly thin lines,
// small discs and short labels, and for those the painter's general path costs far more than
// the pixels themselves.
#pragma once

#include <QFont>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QStaticText>
#include <optional>
#include <vector>

namespace tri {

// A one-pixel line from a to b, both ends included, cut to the picture.
void plotThinLine(QImage& image, QPoint a, QPoint b, QRgb rgb);

// A solid triangle (x1, y1, x2, y2, x3, y3): each row fills the pixels whose centres lie
// inside it, cut to the picture.
void fillTriangleInto(QImage& image, const int* xy, QRgb rgb);

// The ellipse inscribed in `bounds` with a one-pixel outline and, if given, a fill, as the
// painter's midpoint path draws it; the outline is drawn over the fill.
void plotEllipse(QImage& image, const QRect& bounds, QRgb outline, std::optional<QRgb> fill);

// The pixels a text covers, as runs along rows measured from its top left corner.
struct PixelRun {
  int dx;
  int dy;
  int length;
};
using TextStamp = std::vector<PixelRun>;

// The pixels the painter leaves for `text` in `font` without antialiasing; nullopt when the
// font draws anything but whole pixels, or reaches beyond the room it is given.
std::optional<TextStamp> stampOf(const QStaticText& text, const QFont& font);
void plotStamp(QImage& image, const TextStamp& stamp, int left, int top, QRgb rgb);

}  // namespace tri
