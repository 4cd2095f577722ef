#include "platform/xls_worksheet.h"

#include <freexl.h>

namespace tri {

unsigned short worksheetNamed(const void* handle, const std::optional<std::string>& name) {
  unsigned count = 0;
  if (!name || freexl_get_info(handle, FREEXL_BIFF_SHEET_COUNT, &count) != FREEXL_OK) return 0;
  for (unsigned short index = 0; index < count; ++index) {
    const char* found = nullptr;
    if (freexl_get_worksheet_name(handle, index, &found) == FREEXL_OK && found && *name == found)
      return index;
  }
  return 0;
}

}  // namespace tri
