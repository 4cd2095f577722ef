// Conversions between the platform's colour numbers (blue in the high byte) and QColor.
#pragma once

#include <QColor>

#include "platform/canvas.h"

namespace tri {

inline QColor toQColor(Color color) { return QColor(redOf(color), greenOf(color), blueOf(color)); }

inline Color fromQColor(const QColor& color) {
  return rgb(color.red(), color.green(), color.blue());
}

}  // namespace tri
