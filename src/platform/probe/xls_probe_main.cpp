// trireserve-xls-probe FILE [SHEET]: reads every cell of a workbook's sheet (the first when no
// sheet is named or none has the name) with FreeXL, and exits 0 once the read comes to an
// end, whatever FreeXL answered. The workbook guard runs it before the program reads the
// file, so that a file that crashes FreeXL ends this process only.
#include <freexl.h>

#include <cstdio>
#include <optional>
#include <string>

#include "platform/xls_worksheet.h"

namespace {

void readEveryCell(const char* path, const std::optional<std::string>& sheet) {
  const void* handle = nullptr;
  if (freexl_open(path, &handle) == FREEXL_OK &&
      freexl_select_active_worksheet(handle, tri::worksheetNamed(handle, sheet)) == FREEXL_OK) {
    unsigned rows = 0;
    unsigned short columns = 0;
    if (freexl_worksheet_dimensions(handle, &rows, &columns) == FREEXL_OK) {
      FreeXL_CellValue value;
      for (unsigned row = 0; row < rows; ++row) {
        for (unsigned short column = 0; column < columns; ++column) {
          freexl_get_cell_value(handle, row, column, &value);
        }
      }
    }
  }
  if (handle) freexl_close(handle);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::fputs("usage: trireserve-xls-probe FILE [SHEET]\n", stderr);
    return 2;
  }
  readEveryCell(argv[1], argc == 3 ? std::optional<std::string>(argv[2]) : std::nullopt);
  return 0;
}
