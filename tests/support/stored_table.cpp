#include "support/stored_table.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tri {

std::vector<std::string> StoredTable::fieldNames() const {
  std::vector<std::string> names;
  for (const FieldDef& f : fields) names.push_back(f.name);
  return names;
}

const Value& StoredTable::at(int row, const std::string& field) const {
  if (row < 1 || row > static_cast<int>(rows.size())) {
    throw std::out_of_range("no row " + std::to_string(row));
  }
  for (size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].name == field) return rows[row - 1][i];
  }
  throw std::out_of_range("no field " + field);
}

long StoredTable::number(int row, const std::string& field) const {
  const Value& v = at(row, field);
  EXPECT_TRUE(v.isNumber()) << field << " of row " << row << " is not a number";
  return v.isNumber() ? v.asNumber() : -999999999;
}

std::string StoredTable::text(int row, const std::string& field) const {
  const Value& v = at(row, field);
  EXPECT_TRUE(v.isText()) << field << " of row " << row << " is not a text";
  return v.isText() ? v.asText() : "<not a text>";
}

StoredTable readTable(const std::string& path, const std::string& table) {
  Database db = Database::open(path);
  StoredTable result;
  result.fields = db.fields(table);
  Recordset rs = db.openTable(table);
  if (rs.recordCount() == 0) return result;
  for (rs.moveFirst(); !rs.eof(); rs.moveNext()) {
    std::vector<Value> row;
    for (const FieldDef& f : result.fields) row.push_back(rs.get(f.name));
    result.rows.push_back(std::move(row));
  }
  return result;
}

}  // namespace tri
