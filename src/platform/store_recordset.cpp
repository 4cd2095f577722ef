// The recordset: a cursor over one table's rows, its moves and its reads.
#include <algorithm>
#include <cmath>

#include "platform/store_recordset_impl.h"
#include "platform/vbtext.h"

namespace tri {

namespace {

using store_internal::columnText;
using store_internal::columnValue;
using store_internal::Editing;
using store_internal::equalNoCase;
using store_internal::fail;
using store_internal::fitsLong;
using store_internal::liveConnection;
using store_internal::liveRows;
using store_internal::liveState;
using store_internal::shown;
using store_internal::Statement;

}  // namespace

namespace store_internal {

// A stored value as its field's type reads it. The store itself writes only integers into
// Long fields and texts into Text fields; other storage comes from files made elsewhere.
Value columnValue(sqlite3_stmt* stmt, int column, FieldType type) {
  switch (sqlite3_column_type(stmt, column)) {
    case SQLITE_NULL: return {};
    case SQLITE_INTEGER: {
      std::int64_t n = sqlite3_column_int64(stmt, column);
      if (type == FieldType::Long && fitsLong(static_cast<double>(n))) {
        return Value(static_cast<std::int32_t>(n));
      }
      return Value(std::to_string(n));
    }
    case SQLITE_FLOAT: {
      double x = sqlite3_column_double(stmt, column);
      double whole = roundHalfEven(x, 0);
      if (type == FieldType::Long && fitsLong(whole))
        return Value(static_cast<std::int32_t>(whole));
      return Value(numberText(x));
    }
    default: return Value(columnText(stmt, column));
  }
}

}  // namespace store_internal

Recordset::Impl& Recordset::Impl::live() {
  if (closed) fail(FaultKind::Database, "the recordset of table " + shown(name) + " is closed");
  if (!connection->isOpen()) {
    fail(FaultKind::Database, "the project database " + shown(connection->path) +
                                  " is closed; table " + shown(name) + " cannot be used");
  }
  if (table->dropped) {
    fail(FaultKind::Database,
         "table " + shown(name) + " was deleted from " + shown(connection->path));
  }
  followChanges();
  return *this;
}

void Recordset::Impl::loadRows() {
  sqlite3_stmt* stmt = table->statement(Statement::Rowids, *connection);
  rowids.clear();
  int rc;
  while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) rowids.push_back(sqlite3_column_int64(stmt, 0));
  if (rc != SQLITE_DONE)
    connection->stepFault(stmt, "cannot read the rows of table " + shown(name));
  sqlite3_reset(stmt);
  seenVersion = table->rowsVersion;
}

void Recordset::Impl::ensureRows() {
  if (rowsKnown) return;
  loadRows();
  rowsKnown = true;
  // Opened on its first row; the rows it appended since lie after those it was opened on.
  position = count() > appendedBeforeLoad ? 0 : count();
}

// Another recordset of the table added or deleted rows: reload the row list and find the
// current row again by its rowid.
void Recordset::Impl::reloadRows() {
  bool beforeFirst = position < 0;
  bool afterLast = !onDeletedRow && position >= count();
  std::int64_t current = onDeletedRow               ? deletedRowid
                         : afterLast || beforeFirst ? 0
                                                    : rowids[position];
  loadRows();
  if (beforeFirst) return;
  if (afterLast) {
    position = count();
    return;
  }
  auto found = std::lower_bound(rowids.begin(), rowids.end(), current);
  position = static_cast<long>(found - rowids.begin());
  if (!onDeletedRow && (found == rowids.end() || *found != current)) {
    onDeletedRow = true;
    deletedRowid = current;
  }
}

// Every move ends an unfinished addNew or edit, as the engine's recordsets do.
void Recordset::Impl::leaveRow() {
  editing = Editing::None;
  buffer.clear();
  onDeletedRow = false;
}

void Recordset::Impl::moveForward(unsigned long steps) {
  if (atEof()) fail(FaultKind::NoCurrentRecord, "cannot move past the end of table " + shown(name));
  // From a deleted row the first step lands on the row after it, which is `position`.
  long start = onDeletedRow ? position - 1 : position;
  leaveRow();
  if (steps > static_cast<unsigned long>(count() - start)) {
    position = count();
    fail(FaultKind::NoCurrentRecord, "cannot move past the end of table " + shown(name));
  }
  position = start + static_cast<long>(steps);
}

void Recordset::Impl::moveBack(unsigned long steps) {
  if (atBof()) {
    fail(FaultKind::NoCurrentRecord, "cannot move before the start of table " + shown(name));
  }
  leaveRow();
  if (steps > static_cast<unsigned long>(position + 1)) {
    position = -1;
    fail(FaultKind::NoCurrentRecord, "cannot move before the start of table " + shown(name));
  }
  position -= static_cast<long>(steps);
}

void Recordset::Impl::requireCurrentRow() const {
  if (onDeletedRow) {
    fail(FaultKind::Database,
         "Record is deleted: the current row of table " + shown(name) + " was deleted");
  }
  if (position < 0 || position >= count()) {
    fail(FaultKind::NoCurrentRecord, "table " + shown(name) + " has no current row");
  }
}

sqlite3_stmt* Recordset::Impl::currentRow() {
  bool onRow = !onDeletedRow && position >= 0 && position < count();
  if (onRow && table->positioned && table->positionedRowid == rowids[position]) {
    return table->rows();
  }
  return positionOnCurrentRow();
}

// A row a few places past the open statement's row is reached by stepping on: a fresh lookup
// would end the statement's read transaction and start another, which costs far more.
long Recordset::Impl::rowsAheadOfPositioned() const {
  constexpr long kReadThrough = 8;
  if (!table->rowsCarryRowid || !table->positioned) return 0;
  for (long back = 1; back <= kReadThrough && back <= position; ++back) {
    if (rowids[position - back] == table->positionedRowid) return back;
  }
  return 0;
}

sqlite3_stmt* Recordset::Impl::positionOnCurrentRow() {
  requireCurrentRow();
  std::int64_t rowid = rowids[position];
  sqlite3_stmt* stmt = table->statement(Statement::Rows, *connection);
  auto onWantedRow = [&](int rc) {
    return rc == SQLITE_ROW && (!table->rowsCarryRowid || sqlite3_column_int64(stmt, 0) == rowid);
  };
  int rc = SQLITE_DONE;
  for (long ahead = rowsAheadOfPositioned(); ahead > 0; --ahead) {
    rc = sqlite3_step(stmt);
    if (rc != SQLITE_ROW || sqlite3_column_int64(stmt, 0) >= rowid) break;
  }
  if (!onWantedRow(rc)) {
    sqlite3_reset(stmt);
    sqlite3_bind_int64(stmt, 1, rowid);
    rc = sqlite3_step(stmt);
  }
  if (onWantedRow(rc)) {
    table->positioned = true;
    table->positionedRowid = rowid;
    return stmt;
  }
  table->positioned = false;
  if (rc == SQLITE_ROW || rc == SQLITE_DONE) {
    sqlite3_reset(stmt);
    fail(FaultKind::Database, "Record is deleted: " + rowLabel() + " of table " + shown(name) +
                                  " is no longer in " + shown(connection->path));
  }
  connection->stepFault(stmt, "cannot read " + rowLabel() + " of table " + shown(name));
}

int Recordset::Impl::column(const std::string& field) const {
  // Rows are mostly read field after field in table order, or in small groups around it,
  // as the five fields of a layer: look near the last field before the hash table.
  const int fieldCount = static_cast<int>(table->fields.size());
  for (int offset : {1, 2, 3, 4, 5, -1, -2, -3, -4, -5, 0}) {
    const int near = lastColumn + offset;
    if (near < 0 || near >= fieldCount) continue;
    const std::string& name = table->fields[near].name;
    if (name.size() == field.size() && equalNoCase(name, field)) return lastColumn = near;
  }
  auto found = table->columnOf.find(field);
  if (found == table->columnOf.end()) {
    fail(FaultKind::Database, "Item not found in this collection: table " + shown(name) +
                                  " has no field " + shown(field));
  }
  return lastColumn = found->second;
}

void Recordset::Impl::requireField(int column) const {
  if (column < 0 || column >= static_cast<int>(table->fields.size())) {
    fail(FaultKind::Database, "Item not found in this collection: table " + shown(name) +
                                  " has no field number " + std::to_string(column));
  }
}

std::string Recordset::Impl::where(int column) const {
  return "field " + shown(table->fields[column].name) + " of table " + shown(name);
}

std::string Recordset::Impl::rowLabel() const {
  if (editing == Editing::NewRow) return "the new row";
  return "row " + std::to_string(position + 1);
}

Value Recordset::Impl::read(int column) {
  if (editing != Editing::None) return buffer[column];
  const int at = table->resultColumn(column);
  return columnValue(currentRow(), at, typeOf(column));
}

double Recordset::Impl::numberOf(const Value& value, int column) const {
  if (value.isNumber()) return value.asNumber();
  if (value.isNull()) {
    fail(FaultKind::InvalidUseOfNull, where(column) + " is Null in " + rowLabel());
  }
  try {
    return toNumber(value.asText());
  } catch (const Fault& fault) {
    fail(fault.kind(), where(column) + " in " + rowLabel() + ": " + fault.message());
  }
}

std::string Recordset::Impl::textOf(const Value& value) const {
  if (value.isText()) return value.asText();
  if (value.isNumber()) return numberText(value.asNumber());
  return {};
}

Recordset::Recordset(std::unique_ptr<Impl> impl) : impl_(std::move(impl)) {}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

const std::string& Recordset::tableName() const {
  if (!impl_) fail(FaultKind::Database, "the recordset was moved to another variable");
  return impl_->name;
}

const std::vector<FieldDef>& Recordset::fields() const { return liveState(impl_).table->fields; }
long Recordset::recordCount() const { return liveRows(impl_).count(); }
bool Recordset::bof() const { return liveRows(impl_).atBof(); }
bool Recordset::eof() const { return liveRows(impl_).atEof(); }

void Recordset::moveFirst() {
  Impl& r = liveRows(impl_);
  if (r.rowids.empty()) fail(FaultKind::NoCurrentRecord, "table " + shown(r.name) + " is empty");
  r.leaveRow();
  r.position = 0;
}

void Recordset::moveLast() {
  Impl& r = liveRows(impl_);
  if (r.rowids.empty()) fail(FaultKind::NoCurrentRecord, "table " + shown(r.name) + " is empty");
  r.leaveRow();
  r.position = r.count() - 1;
}

void Recordset::moveNext() { liveRows(impl_).moveForward(1); }
void Recordset::movePrevious() { liveRows(impl_).moveBack(1); }

void Recordset::move(long rows) {
  Impl& r = liveRows(impl_);
  if (rows > 0) r.moveForward(static_cast<unsigned long>(rows));
  // Negated in unsigned arithmetic, where even the most negative count has a magnitude.
  if (rows < 0) r.moveBack(0ul - static_cast<unsigned long>(rows));
}

Value Recordset::get(const std::string& field) const {
  Impl& r = liveRows(impl_);
  return r.read(r.column(field));
}

bool Recordset::isNull(const std::string& field) const { return get(field).isNull(); }

int Recordset::fieldIndex(const std::string& field) const { return liveRows(impl_).column(field); }

double Recordset::number(const std::string& field) const {
  return number(liveRows(impl_).column(field));
}

double Recordset::number(int column) const {
  Impl& r = liveRows(impl_);
  r.requireField(column);
  if (r.editing == Editing::None) {
    const int at = r.table->resultColumn(column);
    sqlite3_value* value = sqlite3_column_value(r.currentRow(), at);
    if (sqlite3_value_type(value) == SQLITE_INTEGER) {
      return static_cast<double>(sqlite3_value_int64(value));
    }
  }
  return r.numberOf(r.read(column), column);
}

std::optional<double> Recordset::storedWhole(int column) const {
  try {
    Impl& r = liveRows(impl_);
    if (column < 0 || column >= static_cast<int>(r.table->fields.size())) return std::nullopt;
    if (r.editing != Editing::None || r.onDeletedRow || r.position < 0 || r.position >= r.count())
      return std::nullopt;
    sqlite3_value* value = sqlite3_column_value(r.currentRow(), r.table->resultColumn(column));
    if (sqlite3_value_type(value) != SQLITE_INTEGER) return std::nullopt;
    return static_cast<double>(sqlite3_value_int64(value));
  } catch (const Fault&) {
    return std::nullopt;
  }
}

std::string Recordset::text(const std::string& field) const {
  return text(liveRows(impl_).column(field));
}

std::string Recordset::text(int column) const {
  Impl& r = liveRows(impl_);
  r.requireField(column);
  if (r.editing == Editing::None) {
    const int at = r.table->resultColumn(column);
    sqlite3_value* value = sqlite3_column_value(r.currentRow(), at);
    if (sqlite3_value_type(value) == SQLITE_TEXT) {
      return std::string(reinterpret_cast<const char*>(sqlite3_value_text(value)),
                         static_cast<size_t>(sqlite3_value_bytes(value)));
    }
  }
  return r.textOf(r.read(column));
}

void Recordset::close() {
  if (!impl_ || impl_->closed) return;
  impl_->closed = true;
  impl_->rowids.clear();
  impl_->buffer.clear();
  impl_->table.reset();
  impl_->connection.reset();
}

// Opening a table makes a recordset's state, which is known to this file alone.
Recordset Database::openTable(const std::string& name) {
  Connection& c = liveConnection(connection_);
  auto impl = std::make_unique<Recordset::Impl>();
  impl->table = c.table(name);
  impl->name = impl->table->name;
  impl->connection = connection_;
  return Recordset(std::move(impl));
}

}  // namespace tri
