// The state of a recordset, shared by the files of its reads and of its writes.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "platform/store.h"
#include "platform/store_connection.h"

namespace tri {

namespace store_internal {

inline constexpr long kMaxTextChars = 255;
inline constexpr double kLongMin = std::numeric_limits<std::int32_t>::min();
inline constexpr double kLongMax = std::numeric_limits<std::int32_t>::max();

inline bool fitsLong(double x) { return x >= kLongMin && x <= kLongMax; }

// A stored value as its field's type reads it.
Value columnValue(sqlite3_stmt* stmt, int column, FieldType type);

enum class Editing { None, NewRow, CurrentRow };

}  // namespace store_internal

struct Recordset::Impl {
  std::string name;
  std::shared_ptr<Connection> connection;
  std::shared_ptr<TableInfo> table;
  // The row list is read when it is first needed: a recordset that only appends rows never
  // reads it.
  std::vector<std::int64_t> rowids;
  bool rowsKnown = false;
  long appendedBeforeLoad = 0;
  std::uint64_t seenVersion = 0;
  // -1 is before the first row, rowids.size() after the last.
  long position = 0;
  // After remove() the deleted row stays current: `position` is then the row after it.
  bool onDeletedRow = false;
  std::int64_t deletedRowid = 0;
  store_internal::Editing editing = store_internal::Editing::None;
  std::vector<Value> buffer;
  std::int64_t editedRowid = 0;
  bool closed = false;
  mutable int lastColumn = -1;

  Impl& live();
  long count() const { return static_cast<long>(rowids.size()); }
  bool atBof() const { return !onDeletedRow && (rowids.empty() || position < 0); }
  bool atEof() const { return !onDeletedRow && (rowids.empty() || position >= count()); }

  void loadRows();
  void ensureRows();
  void followChanges() {
    if (rowsKnown && seenVersion != table->rowsVersion) reloadRows();
  }
  void reloadRows();
  void leaveRow();
  void moveForward(unsigned long steps);
  void moveBack(unsigned long steps);

  void requireCurrentRow() const;
  // The row statement positioned on the current row.
  sqlite3_stmt* currentRow();
  sqlite3_stmt* positionOnCurrentRow();
  long rowsAheadOfPositioned() const;
  int column(const std::string& field) const;
  void requireField(int column) const;
  FieldType typeOf(int column) const { return table->fields[column].type; }
  std::string where(int column) const;
  std::string rowLabel() const;
  Value read(int column);
  double numberOf(const Value& value, int column) const;
  std::string textOf(const Value& value) const;

  // `action` names what needed the buffer, such as "set" or "update".
  void requireEditing(const char* action, int column) const;
  Value fromNumber(int column, double number) const;
  Value fromText(int column, const std::string& text) const;
  void bindBuffer(sqlite3_stmt* stmt) const;
  // `action` says what failed, as in "cannot <action> of table ...".
  void stepWrite(sqlite3_stmt* stmt, const char* action);
  void appendBuffer();
  void writeBackBuffer();
  void deleteCurrentRow();
  void noteRowsChanged() { seenVersion = ++table->rowsVersion; }
};

namespace store_internal {

// Access to a recordset's state, with a Fault for one that was moved away.
template <typename ImplPointer>
auto& liveState(const ImplPointer& impl) {
  if (!impl) fail(FaultKind::Database, "the recordset was moved to another variable");
  return impl->live();
}

// The same, for what needs the row list.
template <typename ImplPointer>
auto& liveRows(const ImplPointer& impl) {
  auto& state = liveState(impl);
  state.ensureRows();
  return state;
}

}  // namespace store_internal

}  // namespace tri
