// The grade-tonnage chart of the report program, drawn with Qt Charts without a display.
#pragma once

#include <string>
#include <vector>

#include "report/figures.h"

namespace tri::report {

// Writes, with a QApplication running, the classic two-axis chart: ore tonnage (left axis) and mean
// tenor (right axis) against the cut-off, as PNG or SVG by the file's extension. Any other
// extension, or a file that cannot be written, is BadInput.
void writeGradeTonnagePlot(const std::vector<GradeTonnageRow>& rows, const std::string& title,
                           const std::string& path);

// Before the QApplication that a chart needs is made: without a display, draw offscreen.
void prepareOffscreen();

// Whether a path names a picture the plot can write.
bool isPlotPath(const std::string& path);

}  // namespace tri::report
