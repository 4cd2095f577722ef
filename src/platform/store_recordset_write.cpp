// The recordset's edit buffer and its writes: new rows, edits, one-field updates, deletes.
#include <algorithm>
#include <cmath>

#include "platform/store_recordset_impl.h"
#include "platform/vbtext.h"

namespace tri {

namespace {

using store_internal::columnValue;
using store_internal::Editing;
using store_internal::fail;
using store_internal::fitsLong;
using store_internal::kMaxTextChars;
using store_internal::liveRows;
using store_internal::liveState;
using store_internal::shown;
using store_internal::Statement;

void bindValue(sqlite3_stmt* stmt, int parameter, const Value& value) {
  if (value.isNumber()) {
    sqlite3_bind_int(stmt, parameter, value.asNumber());
  } else if (value.isText()) {
    const std::string& text = value.asText();
    sqlite3_bind_text(stmt, parameter, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
  } else {
    sqlite3_bind_null(stmt, parameter);
  }
}

}  // namespace

void Recordset::Impl::requireEditing(const char* action, int column) const {
  if (editing != Editing::None) return;
  std::string what = column < 0 ? "table " + shown(name) : where(column);
  fail(FaultKind::Database,
       std::string("Update or CancelUpdate without AddNew or Edit: ") + action + " of " + what);
}

Value Recordset::Impl::fromNumber(int column, double number) const {
  if (typeOf(column) == FieldType::Text) return Value(numberText(number));
  // Most numbers are whole already; rounding changes the FPU mode twice.
  double whole = std::trunc(number) == number ? number : roundHalfEven(number, 0);
  if (!fitsLong(whole)) {
    fail(FaultKind::Overflow, numberText(number) + " does not fit " + where(column) +
                                  ", a whole number from -2147483648 to 2147483647");
  }
  return Value(static_cast<std::int32_t>(whole));
}

Value Recordset::Impl::fromText(int column, const std::string& text) const {
  if (typeOf(column) == FieldType::Long) {
    double number;
    try {
      number = toNumber(text);
    } catch (const Fault& fault) {
      fail(fault.kind(), where(column) + " takes numbers: " + fault.message());
    }
    return fromNumber(column, number);
  }
  // A character takes at least one byte, so a short text needs no counting.
  long length = text.size() > static_cast<size_t>(kMaxTextChars) ? charCount(text) : 0;
  if (length > kMaxTextChars) {
    fail(FaultKind::Database,
         "The field is too small to accept the amount of data: " + where(column) +
             " takes 255 characters, not " + std::to_string(length));
  }
  return Value(text);
}

void Recordset::Impl::bindBuffer(sqlite3_stmt* stmt) const {
  for (size_t i = 0; i < buffer.size(); ++i) bindValue(stmt, static_cast<int>(i + 1), buffer[i]);
}

// Runs a write to its end; in autocommit mode it is committed when the step returns. The
// texts bound without a copy are not read again: every run binds all its parameters anew.
void Recordset::Impl::stepWrite(sqlite3_stmt* stmt, const char* action) {
  int rc = sqlite3_step(stmt);
  if (rc != SQLITE_DONE) {
    connection->stepFault(stmt, std::string("cannot ") + action + " of table " + shown(name));
  }
  sqlite3_reset(stmt);
}

void Recordset::Impl::appendBuffer() {
  connection->beforeWrite();
  sqlite3_stmt* stmt = table->statement(Statement::Insert, *connection);
  bindBuffer(stmt);
  stepWrite(stmt, "add a row");
  if (!rowsKnown) {
    ++appendedBeforeLoad;
    noteRowsChanged();
    return;
  }
  std::int64_t rowid = sqlite3_last_insert_rowid(connection->db.get());
  bool afterLast = !onDeletedRow && position >= count();
  auto at = std::upper_bound(rowids.begin(), rowids.end(), rowid);
  if (!afterLast && at - rowids.begin() <= position) ++position;
  rowids.insert(at, rowid);
  if (afterLast) position = count();
  noteRowsChanged();
}

void Recordset::Impl::writeBackBuffer() {
  connection->beforeWrite();
  sqlite3_stmt* stmt = table->statement(Statement::Update, *connection);
  bindBuffer(stmt);
  sqlite3_bind_int64(stmt, static_cast<int>(buffer.size() + 1), editedRowid);
  stepWrite(stmt, "update the edited row");
  if (sqlite3_changes(connection->db.get()) == 0) {
    fail(FaultKind::Database, "Record is deleted: the edited row of table " + shown(name) +
                                  " was deleted before the update");
  }
}

void Recordset::Impl::deleteCurrentRow() {
  requireCurrentRow();
  connection->beforeWrite();
  std::int64_t rowid = rowids[position];
  sqlite3_stmt* stmt = table->statement(Statement::Delete, *connection);
  sqlite3_bind_int64(stmt, 1, rowid);
  stepWrite(stmt, "delete the current row");
  rowids.erase(rowids.begin() + position);
  editing = Editing::None;
  buffer.clear();
  onDeletedRow = true;
  deletedRowid = rowid;
  noteRowsChanged();
}

void Recordset::addNew() {
  Impl& r = liveState(impl_);
  r.buffer.assign(r.table->fields.size(), Value());
  r.editing = Editing::NewRow;
}

void Recordset::edit() {
  Impl& r = liveRows(impl_);
  r.table->selectAllFields();
  sqlite3_stmt* stmt = r.currentRow();
  std::vector<Value> values;
  values.reserve(r.table->fields.size());
  for (int i = 0; i < static_cast<int>(r.table->fields.size()); ++i) {
    values.push_back(columnValue(stmt, r.table->firstField() + i, r.typeOf(i)));
  }
  r.buffer = std::move(values);
  r.editedRowid = r.rowids[r.position];
  r.editing = Editing::CurrentRow;
}

void Recordset::set(const std::string& field, double number) {
  Impl& r = liveState(impl_);
  int column = r.column(field);
  r.requireEditing("set", column);
  r.buffer[column] = r.fromNumber(column, number);
}

void Recordset::set(const std::string& field, const std::string& text) {
  Impl& r = liveState(impl_);
  int column = r.column(field);
  r.requireEditing("set", column);
  r.buffer[column] = r.fromText(column, text);
}

void Recordset::setNull(const std::string& field) {
  Impl& r = liveState(impl_);
  int column = r.column(field);
  r.requireEditing("set", column);
  r.buffer[column] = Value();
}

void Recordset::update() {
  Impl& r = liveState(impl_);
  r.requireEditing("update", -1);
  if (r.editing == Editing::NewRow) {
    r.appendBuffer();
  } else {
    r.writeBackBuffer();
  }
  r.editing = Editing::None;
  r.buffer.clear();
}

void Recordset::cancelUpdate() {
  Impl& r = liveState(impl_);
  r.requireEditing("cancelUpdate", -1);
  r.editing = Editing::None;
  r.buffer.clear();
}

void Recordset::updateField(const std::string& field, double number) {
  Impl& r = liveRows(impl_);
  const int column = r.column(field);
  r.requireCurrentRow();
  r.editing = Editing::None;
  r.buffer.clear();
  const Value value = r.fromNumber(column, number);
  r.connection->beforeWrite();
  sqlite3_stmt* stmt = r.table->fieldUpdate(column, *r.connection);
  bindValue(stmt, 1, value);
  sqlite3_bind_int64(stmt, 2, r.rowids[r.position]);
  r.stepWrite(stmt, "update a field of the current row");
  if (sqlite3_changes(r.connection->db.get()) == 0) {
    fail(FaultKind::Database, "Record is deleted: the edited row of table " + shown(r.name) +
                                  " was deleted before the update");
  }
}

void Recordset::remove() { liveRows(impl_).deleteCurrentRow(); }

}  // namespace tri
