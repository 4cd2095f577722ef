#include "report/workbook_check.h"

#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

#include "platform/vbtext.h"
#include "store/hole_lists.h"

namespace tri::report {

namespace {

// Rows and columns are read this far, as project creation reads them.
constexpr int kScanLimit = 999;
// The largest magnitude a field of thousandths holds.
constexpr double kLargestStored = 2147483.647;

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

class Checker {
 public:
  explicit Checker(const Sheet& sheet) : sheet_(sheet) {}

  std::vector<WorkbookFinding> run() {
    const int holes = countHoles();
    for (int i = 1; i <= holes; ++i) checkHole(i);
    return std::move(findings_);
  }

 private:
  void add(int column, int row, std::string problem) {
    findings_.push_back({column, row, std::move(problem)});
  }

  int countHoles() {
    for (int column = 1; column <= kScanLimit; ++column) {
      if (sheet_.cell(1, column).isEmpty()) return column - 1;
    }
    add(kScanLimit + 1, 1,
        "more than 999 holes: row 1 has no empty cell up to column 999, more than a "
        "project holds");
    return kScanLimit;
  }

  // The value of a number cell, or a finding when it holds a text that is no number.
  std::optional<double> number(int row, int column, const char* what) {
    const Cell cell = sheet_.cell(row, column);
    if (cell.holdsNumber()) return cell.number;
    if (cell.isEmpty()) return 0.0;
    if (isNumberText(cell.text)) return toNumber(cell.text);
    add(column, row,
        std::string("the text ") + quoted(cell.text) + " where a number is needed (" + what +
            "): creating the project stops here");
    return std::nullopt;
  }

  void checkHole(int i) {
    int rows = kScanLimit;
    for (int row = 1; row <= kScanLimit; ++row) {
      if (sheet_.cell(row, i).isEmpty()) {
        rows = row - 1;
        break;
      }
    }
    checkPlace(i);
    const std::string name = sheet_.cell(3, i).valueText();
    if (name.size() >= 2 && isPointName(name)) {
      add(i, 3,
          "the name " + quoted(name) + " marks a point, not a hole: the list of holes ends " +
              "here, and this hole and those after it are not seen in the plan");
    }
    static const char* const kHeader[] = {"",           "",          "",         "",
                                          "hole entry", "ore entry", "ore exit", "hole exit"};
    for (int row = 4; row <= 7; ++row) number(row, i, kHeader[row]);
    checkBlankInside(i, rows);
    if (rows < 7) {
      add(i, rows + 1,
          "the column has only " + std::to_string(rows) +
              " rows: a hole needs its seven rows of place, name, entry and exit");
      return;
    }
    if ((rows - 7) % 5 != 0) {
      add(i, rows,
          std::to_string(rows) + " filled rows leave a fraction of a layer: (" +
              std::to_string(rows) + " - 7) / 5 = " + numberText((rows - 7) / 5.0) +
              ", so the five blocks do not line up and the last rows are misread");
    }
    checkLayers(i, (rows - 7) / 5.0);
  }

  void checkPlace(int i) {
    const std::optional<double> x = number(1, i, "x");
    const std::optional<double> y = number(2, i, "y");
    if (x && *x == 0) {
      add(i, 1, "x = 0 ends the list of holes: this hole and those after it are not seen");
    }
    for (auto [value, row, axis] : {std::tuple{x, 1, "x"}, std::tuple{y, 2, "y"}}) {
      if (value && std::fabs(*value) > kLargestStored) {
        add(i, row,
            std::string(axis) + " = " + numberText(*value) +
                " is outside the file's range (at most 2147483.647 either way): local " +
                "coordinates are needed");
      }
    }
    if (!x || !y) return;
    const auto place = std::make_pair(*x, *y);
    const auto [at, fresh] = places_.emplace(place, i);
    if (!fresh) {
      add(i, 1,
          "this hole stands at the same place (" + numberText(*x) + ", " + numberText(*y) +
              ") as the hole of column " + columnLetters(at->second) +
              ": a click picks the lower one only");
    }
  }

  // A blank cell inside the log: the column ends there, and the cells after it are lost.
  void checkBlankInside(int i, int rows) {
    for (int row = rows + 2; row <= kScanLimit; ++row) {
      if (!sheet_.cell(row, i).isEmpty()) {
        add(i, rows + 1,
            "a blank cell inside the log: the column ends here, " + std::to_string(rows) +
                " rows are read and the cells from row " + std::to_string(row) + " on are lost");
        return;
      }
    }
  }

  // The rows project creation reads, a fractional one rounded as it rounds it.
  static int rowAt(double row) { return static_cast<int>(wholeIndex(row)); }

  void checkLayers(int i, double n) {
    for (int k = 1; k <= n; ++k) {
      const int litRow = 7 + k;
      const std::string lit = sheet_.cell(litRow, i).valueText();
      if (i == 1) {
        if (lit == "ayni") {
          add(i, litRow,
              "the lithology \"ayni\" in the first hole is dropped from the list of "
              "lithologies");
        } else {
          firstHole_.insert(lit);
        }
      } else if (!firstHole_.count(lit) && reported_.insert(lit).second) {
        add(i, litRow,
            "the lithology " + quoted(lit) +
                " is absent from the first hole: it gets no table, and its layers never count");
      }
      const int tenRow = rowAt(7 + n + k);
      const std::optional<double> ten = number(tenRow, i, "tenor");
      if (ten && *ten == 0) {
        add(i, tenRow,
            "a tenor of 0 ends the log on reading: layer " + std::to_string(k) +
                " and those after it are not seen");
      }
      number(rowAt(7 + 2 * n + k), i, "density");
      number(rowAt(7 + 3 * n + k), i, "length");
      number(rowAt(7 + 4 * n + k), i, "fifth quantity");
    }
  }

  const Sheet& sheet_;
  std::vector<WorkbookFinding> findings_;
  std::map<std::pair<double, double>, int> places_;
  std::set<std::string> firstHole_;
  std::set<std::string> reported_;
};

}  // namespace

std::vector<WorkbookFinding> checkWorkbook(const Sheet& sheet) { return Checker(sheet).run(); }

std::string columnLetters(int column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
  }
  return letters;
}

}  // namespace tri::report
