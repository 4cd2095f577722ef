// What creating a project from a drill-hole workbook would silently lose or misread: each
// finding with its cell.
#pragma once

#include <string>
#include <vector>

#include "platform/sheet.h"

namespace tri::report {

struct WorkbookFinding {
  int column = 0;
  int row = 0;
  std::string problem;
};

// Checks a sheet laid out one hole per column, in column order.
std::vector<WorkbookFinding> checkWorkbook(const Sheet& sheet);

// A column's letters as a spreadsheet names it: 1 is A, 27 is AA.
std::string columnLetters(int column);

}  // namespace tri::report
