// The printers' settings in Qt's terms, shared by the PDF entry and the system's printers.
#pragma once

#include <QPageSize>
#include <algorithm>

#include "platform/printer.h"

namespace tri {

inline constexpr double kCmPerInch = 2.54;

inline QPageSize::PageSizeId pageSizeId(int code) {
  switch (code) {
    case kPaperA3: return QPageSize::A3;
    case kPaperA5: return QPageSize::A5;
    default: return QPageSize::A4;
  }
}

// Dots per inch of each print quality, draft to high.
inline int resolutionOf(int quality) {
  static constexpr int kDpi[] = {150, 200, 300, 600};
  return kDpi[std::clamp(quality, 1, 4) - 1];
}

}  // namespace tri
