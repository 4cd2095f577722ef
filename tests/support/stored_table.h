// A table of a project file read whole, for tests that check what was stored.
#pragma once

#include <string>
#include <vector>

#include "platform/store.h"

namespace tri {

struct StoredTable {
  std::vector<FieldDef> fields;
  std::vector<std::vector<Value>> rows;

  std::vector<std::string> fieldNames() const;
  // The value of a field in a row counted from 1.
  const Value& at(int row, const std::string& field) const;
  // As a number; fails the test if it is not one.
  long number(int row, const std::string& field) const;
  std::string text(int row, const std::string& field) const;
};

StoredTable readTable(const std::string& path, const std::string& table);

}  // namespace tri
