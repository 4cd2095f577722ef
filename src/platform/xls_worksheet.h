// Finding a sheet of an open FreeXL workbook by name, shared by the reader and its probe.
#pragma once

#include <optional>
#include <string>

namespace tri {

// The index of the sheet named `name` among FreeXL's worksheets; the first sheet when no
// name is known or none has it.
unsigned short worksheetNamed(const void* handle, const std::optional<std::string>& name);

}  // namespace tri
