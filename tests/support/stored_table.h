// A table of a project file read whole, for tests that check what was stored.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "platform/store.h"

namespace tri {

struct StoredTable {
  std::vector<FieldDef> fields;
  std::vector<std::vector<Value>> rows;

  // The value of a field in a row counted from 1.
  const Value& at(int row, const std::string& field) const;
  // As a number or a text; fails the test if it is not one.
  long number(int row, const std::string& field) const;
  std::string text(int row, const std::string& field) const;
};

StoredTable readTable(const std::string& path, const std::string& table);
// Writes a value (Null, a number or a text) into a field of a row counted from 1.
void writeStored(const std::string& path, const std::string& table, int row,
                 const std::string& field, const Value& value);

inline void PrintTo(const Value& v, std::ostream* os) {
  *os << (v.isNull()     ? "Null"
          : v.isNumber() ? std::to_string(v.asNumber())
                         : '"' + v.asText() + '"');
}

}  // namespace tri
