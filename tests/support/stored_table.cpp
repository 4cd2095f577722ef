#include "support/stored_table.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tri {

const Value& StoredTable::at(int row, const std::string& field) const {
  for (size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].name == field) return rows.at(static_cast<size_t>(row - 1)).at(i);
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
  StoredTable result{db.fields(table), {}};
  Recordset rs = db.openTable(table);
  for (long n = rs.recordCount(); n > 0; --n, rs.moveNext()) {
    std::vector<Value> row;
    for (const FieldDef& f : result.fields) row.push_back(rs.get(f.name));
    result.rows.push_back(std::move(row));
  }
  return result;
}

void writeStored(const std::string& path, const std::string& table, int row,
                 const std::string& field, const Value& value) {
  Database db = Database::open(path);
  Recordset rs = db.openTable(table);
  rs.move(row - 1);
  rs.edit();
  if (value.isNull()) rs.setNull(field);
  if (value.isNumber()) rs.set(field, value.asNumber());
  if (value.isText()) rs.set(field, value.asText());
  rs.update();
}

}  // namespace tri
