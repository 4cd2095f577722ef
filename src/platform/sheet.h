// Workbooks of drill-hole and point-set data: the cells of the sheet a workbook was saved
// with active (the first, when the file does not say), by row and column counted from 1.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tri {

struct Cell {
  // A date, a time or both is a number of days since 30 December 1899 shown as its text:
  // it reads as that number where a number is wanted and as that text where a text is.
  enum class Kind { Empty, Number, Text, Date };
  Kind kind = Kind::Empty;
  double number = 0;
  std::string text;

  bool holdsNumber() const { return kind == Kind::Number || kind == Kind::Date; }
  // The cell's value as text: the general number text of a number, the text of a text or
  // a date, nothing for an empty cell.
  std::string valueText() const;
  // A cell counts as empty when its value text has length 0 (a number's never has).
  bool isEmpty() const { return kind == Kind::Empty || (kind == Kind::Text && text.empty()); }
};

class Sheet {
 public:
  virtual ~Sheet() = default;
  // Rows and columns from 1. A cell beyond the sheet's data is empty.
  virtual Cell cell(int row, int column) const = 0;
};

// An .xls workbook read with FreeXL. A file that is missing or is not a readable workbook
// is a "Workbook error" Fault naming the file and the reason.
std::unique_ptr<Sheet> openXlsSheet(const std::string& path);

// A sheet held in memory, for tests and benchmarks.
class GridSheet : public Sheet {
 public:
  void setNumber(int row, int column, double value);
  void setText(int row, int column, const std::string& text);
  Cell cell(int row, int column) const override;

 private:
  Cell& slot(int row, int column);
  std::vector<std::vector<Cell>> columns_;
};

// How a command opens a workbook by path; the default reads .xls files.
using SheetOpener = std::function<std::unique_ptr<Sheet>(const std::string& path)>;

}  // namespace tri
