// Workbook cells: the FreeXL reader of .xls files and the in-memory sheet.
#include "platform/sheet.h"

#include <freexl.h>

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "platform/compound_file.h"
#include "platform/fault.h"
#include "platform/vbtext.h"
#include "platform/xls_guard.h"
#include "platform/xls_worksheet.h"

namespace tri {

std::string Cell::valueText() const {
  switch (kind) {
    case Kind::Number: return numberText(number);
    case Kind::Text:
    case Kind::Date: return text;
    case Kind::Empty: return {};
  }
  return {};
}

namespace {

std::string freexlReason(int code) {
  switch (code) {
    case FREEXL_FILE_NOT_FOUND: return "the file does not exist or cannot be read";
    case FREEXL_INSUFFICIENT_MEMORY: return "not enough memory to read it";
    case FREEXL_INVALID_CFBF_HEADER: return "it is not an .xls workbook (no compound-file header)";
    case FREEXL_CFBF_READ_ERROR: return "the file is damaged or too short (read error)";
    case FREEXL_CFBF_SEEK_ERROR: return "the file is damaged or cut short (seek error)";
    case FREEXL_CFBF_INVALID_SIGNATURE: return "it is not an .xls workbook (unknown signature)";
    case FREEXL_CFBF_INVALID_SECTOR_SIZE: return "the file header is damaged (bad sector size)";
    case FREEXL_CFBF_EMPTY_FAT_CHAIN: return "the file header is damaged (empty sector chain)";
    case FREEXL_CFBF_ILLEGAL_FAT_ENTRY: return "the file's sector table is damaged";
    case FREEXL_BIFF_INVALID_BOF: return "the workbook records are damaged";
    case FREEXL_BIFF_INVALID_SST: return "the table of shared texts is damaged";
    case FREEXL_BIFF_ILLEGAL_SST_INDEX: return "a text cell refers to a missing shared text";
    case FREEXL_BIFF_WORKBOOK_NOT_FOUND: return "the file holds no workbook";
    case FREEXL_BIFF_ILLEGAL_SHEET_INDEX: return "the workbook has no such sheet";
    case FREEXL_BIFF_UNSELECTED_SHEET: return "no sheet is selected";
    case FREEXL_INVALID_CHARACTER: return "a text holds a character outside its code page";
    case FREEXL_UNSUPPORTED_CHARSET: return "the workbook's code page is not supported";
    case FREEXL_ILLEGAL_CELL_ROW_COL: return "a cell lies outside the sheet";
    case FREEXL_ILLEGAL_RK_VALUE: return "a number cell is damaged";
    case FREEXL_INVALID_MINI_STREAM: return "the file's small-data stream is damaged";
    case FREEXL_CFBF_ILLEGAL_MINI_FAT_ENTRY: return "the file's small-data sector table is damaged";
    case FREEXL_CRAFTED_FILE: return "the file is badly damaged";
  }
  return "the reader failed (code " + std::to_string(code) + ")";
}

[[noreturn]] void workbookFault(const std::string& path, const std::string& reason) {
  throw Fault(FaultKind::Workbook, "cannot read the workbook \"" + path + "\": " + reason);
}

// Owns a FreeXL handle; FreeXL wants it closed even after a failed open.
class XlsHandle {
 public:
  XlsHandle() = default;
  ~XlsHandle() {
    if (handle_) freexl_close(handle_);
  }
  XlsHandle(const XlsHandle&) = delete;
  XlsHandle& operator=(const XlsHandle&) = delete;

  const void* get() const { return handle_; }
  const void** out() { return &handle_; }

 private:
  const void* handle_ = nullptr;
};

unsigned infoOf(const XlsHandle& xls, unsigned short what) {
  unsigned info = FREEXL_UNKNOWN;
  if (freexl_get_info(xls.get(), what, &info) != FREEXL_OK) return FREEXL_UNKNOWN;
  return info;
}

// Days from 1 January 1970 to a date of the proleptic Gregorian calendar.
long daysFromCivil(long year, unsigned month, unsigned day) {
  year -= month <= 2;
  const long era = (year >= 0 ? year : year - 399) / 400;
  const unsigned yearOfEra = static_cast<unsigned>(year - era * 400);
  const unsigned dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
  const unsigned dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
  return era * 146097 + static_cast<long>(dayOfEra) - 719468;
}

// The day number of the text FreeXL gives a date, time or date-time cell: "YYYY-MM-DD",
// "HH:MM:SS" or both, apart by a blank.
std::optional<double> dateSerial(const std::string& text) {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0, second = 0, used = 0;
  double days = 0;
  const char* rest = text.c_str();
  if (std::sscanf(rest, "%d-%d-%d%n", &year, &month, &day, &used) == 3) {
    if (month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
    days = static_cast<double>(
        daysFromCivil(year, static_cast<unsigned>(month), static_cast<unsigned>(day)) -
        daysFromCivil(1899, 12, 30));
    rest += used;
    while (*rest == ' ') ++rest;
  }
  if (*rest == '\0') return rest == text.c_str() ? std::nullopt : std::optional<double>(days);
  if (std::sscanf(rest, "%d:%d:%d%n", &hour, &minute, &second, &used) != 3 || rest[used] != '\0') {
    return std::nullopt;
  }
  return days + (hour * 3600 + minute * 60 + second) / 86400.0;
}

Cell cellFrom(const FreeXL_CellValue& value) {
  Cell cell;
  switch (value.type) {
    case FREEXL_CELL_INT:
      cell.kind = Cell::Kind::Number;
      cell.number = value.value.int_value;
      break;
    case FREEXL_CELL_DOUBLE:
      cell.kind = Cell::Kind::Number;
      cell.number = value.value.double_value;
      break;
    case FREEXL_CELL_TEXT:
    case FREEXL_CELL_SST_TEXT:
      cell.kind = Cell::Kind::Text;
      if (value.value.text_value) cell.text = value.value.text_value;
      break;
    case FREEXL_CELL_DATE:
    case FREEXL_CELL_DATETIME:
    case FREEXL_CELL_TIME:
      if (value.value.text_value) cell.text = value.value.text_value;
      if (const auto serial = dateSerial(cell.text)) {
        cell.kind = Cell::Kind::Date;
        cell.number = *serial;
      } else {
        cell.kind = Cell::Kind::Text;
      }
      break;
    default: break;
  }
  return cell;
}

// The guard's probe, found once: where it is does not change while the program runs.
TrialRead guardedTrialRead(const std::string& path, const std::optional<std::string>& sheet) {
  static const std::optional<std::string> probe = findXlsProbe();
  return probe ? trialRead(*probe, path, sheet) : TrialRead::NotStarted;
}

class XlsSheet : public Sheet {
 public:
  explicit XlsSheet(const std::string& path) : path_(path) {
    CompoundFile container(path);
    if (container.hasDamagedEntryName()) workbookFault(path_, "the file's directory is damaged");
    const std::optional<std::string> activeSheet = container.activeSheetName();
    switch (guardedTrialRead(path, activeSheet)) {
      case TrialRead::Crashed: workbookFault(path_, "the file is badly damaged");
      case TrialRead::Hung: workbookFault(path_, "reading the file did not come to an end");
      case TrialRead::Passed:
      case TrialRead::NotStarted:  // no probe to spare: the program reads unguarded
        break;
    }
    check(freexl_open(path.c_str(), xls_.out()));
    if (!xls_.get()) workbookFault(path_, "the file holds no workbook");
    if (infoOf(xls_, FREEXL_BIFF_PASSWORD) == FREEXL_BIFF_OBFUSCATED) {
      workbookFault(path_, "the workbook is password-protected");
    }
    if (infoOf(xls_, FREEXL_BIFF_SHEET_COUNT) == 0)
      workbookFault(path_, "the workbook has no sheet");
    check(freexl_select_active_worksheet(xls_.get(), worksheetNamed(xls_.get(), activeSheet)));
    check(freexl_worksheet_dimensions(xls_.get(), &rows_, &columns_));
  }

  Cell cell(int row, int column) const override {
    if (row < 1 || column < 1) return {};
    if (static_cast<unsigned>(row) > rows_ || static_cast<unsigned>(column) > columns_) return {};
    FreeXL_CellValue value{};
    check(freexl_get_cell_value(xls_.get(), row - 1, column - 1, &value));
    return cellFrom(value);
  }

 private:
  void check(int code) const {
    if (code != FREEXL_OK) workbookFault(path_, freexlReason(code));
  }

  std::string path_;
  XlsHandle xls_;
  unsigned rows_ = 0;
  unsigned short columns_ = 0;
};

}  // namespace

std::unique_ptr<Sheet> openXlsSheet(const std::string& path) {
  return std::make_unique<XlsSheet>(path);
}

void GridSheet::setNumber(int row, int column, double value) {
  Cell& target = slot(row, column);
  target.kind = Cell::Kind::Number;
  target.number = value;
  target.text.clear();
}

void GridSheet::setText(int row, int column, const std::string& text) {
  Cell& target = slot(row, column);
  target.kind = Cell::Kind::Text;
  target.number = 0;
  target.text = text;
}

Cell GridSheet::cell(int row, int column) const {
  if (row < 1 || column < 1 || static_cast<size_t>(column) > columns_.size()) return {};
  const std::vector<Cell>& cells = columns_[column - 1];
  if (static_cast<size_t>(row) > cells.size()) return {};
  return cells[row - 1];
}

Cell& GridSheet::slot(int row, int column) {
  if (row < 1 || column < 1) {
    throw Fault(FaultKind::SubscriptOutOfRange,
                "no cell at row " + std::to_string(row) + ", column " + std::to_string(column));
  }
  if (static_cast<size_t>(column) > columns_.size()) columns_.resize(column);
  std::vector<Cell>& cells = columns_[column - 1];
  if (static_cast<size_t>(row) > cells.size()) cells.resize(row);
  return cells[row - 1];
}

}  // namespace tri
