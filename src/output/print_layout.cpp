#include "output/print_layout.h"

#include <cmath>
#include <string>

#include "platform/fault.h"

namespace tri {

double roundedPaperScale(double q) {
  const std::string digits = std::to_string(static_cast<long long>(std::floor(q)));
  const int first = digits[0] - '0';
  return (first + 1) * std::pow(10.0, static_cast<double>(digits.size()) - 1);
}

Excess excessOf(double mapWidth, double mapHeight, double sheetWidth, double sheetHeight) {
  const bool wide = mapWidth > sheetWidth;
  const bool high = mapHeight > sheetHeight;
  if (!wide && !high) return Excess::None;
  if (high && (!wide || mapHeight - sheetHeight >= mapWidth - sheetWidth)) return Excess::Height;
  return Excess::Width;
}

namespace {

void checkOption(int option) {
  if (option < 1 || option > 9) {
    throw Fault(FaultKind::ControlNotFound,
                "the window has no control named \"Option" + std::to_string(option) + "\"");
  }
}

}  // namespace

// The two columns stand as the program has them, Option8's canvas width included.
SheetPlace reducedPlace(int option, Excess excess, double W, double H, double pw, double ph,
                        double canvasWidth) {
  checkOption(option);
  if (excess == Excess::Height) {
    const double x[] = {0, (W - pw) / 2,     (W - pw) / 2, W - pw, (W - pw) / 2, 0, 0,
                        0, canvasWidth - pw, W - pw};
    return {x[option], 0};
  }
  const double y[] = {0, (H - ph) / 2, 0, ph / 2, ph, ph / 2, 0, 0, H - ph, H - ph};
  return {0, y[option]};
}

// Options 7 to 9 subtract the other way round: a smaller map starts off the sheet.
SheetPlace fittingPlace(int option, double W, double H, double w, double h) {
  checkOption(option);
  const SheetPlace places[] = {{0, 0},
                               {(W - w) / 2, (H - h) / 2},
                               {(W - w) / 2, 0},
                               {W - w, (H - h) / 2},
                               {(W - w) / 2, H - h},
                               {0, (H - h) / 2},
                               {0, 0},
                               {w - W, 0},
                               {w - W, h - H},
                               {0, h - H}};
  return places[option];
}

}  // namespace tri
