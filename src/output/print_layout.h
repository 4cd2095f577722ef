// The arithmetic of the printed sheet: the scale on paper rounded up to one significant
// digit, and the place of the map on the sheet by the option of the Printing panel.
#pragma once

namespace tri {

// The denominator needed, rounded up at its first digit: 1234 gives 2000, 9500 gives 10000.
double roundedPaperScale(double q);

// Which direction of the map goes past the sheet: the one with the greater excess in cm,
// the height on a tie.
enum class Excess { None, Width, Height };
Excess excessOf(double mapWidth, double mapHeight, double sheetWidth, double sheetHeight);

struct SheetPlace {
  double x;
  double y;
};

// The place of a map reduced to pw by ph (option 1 .. 9) when it went past the sheet W by H
// in `excess`; `canvasWidth` is the map's width on the canvas in cm.
SheetPlace reducedPlace(int option, Excess excess, double W, double H, double pw, double ph,
                        double canvasWidth);
// The place of a map that fits, at its canvas size w by h.
SheetPlace fittingPlace(int option, double W, double H, double w, double h);

}  // namespace tri
