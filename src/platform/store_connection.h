// The store's connection to one project file: the engine handle, what it knows of each table
// and the statements it keeps prepared for them. Private to the store.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/fault.h"
#include "platform/sqlite_handles.h"
#include "platform/store.h"

namespace tri {

namespace store_internal {

[[noreturn]] void fail(FaultKind kind, const std::string& message);
// A name or a text as a message shows it.
std::string shown(std::string_view name);
// An identifier as SQL: always double-quoted, embedded quotes doubled, so it is never code.
std::string sqlName(std::string_view name);
// Names compare as the engine compares identifiers: ASCII letters without regard to case.
bool equalNoCase(std::string_view a, std::string_view b);
bool isReservedName(std::string_view name);
std::string columnText(sqlite3_stmt* stmt, int column);

struct NoCaseHash {
  size_t operator()(std::string_view text) const;
};
struct NoCaseEqual {
  bool operator()(std::string_view a, std::string_view b) const { return equalNoCase(a, b); }
};

enum class Statement { Rows, Rowids, Insert, Update, Delete };
inline constexpr size_t kStatementKinds = 5;

}  // namespace store_internal

// What the connection knows of one table: its fields, the column of each name, and its
// prepared statements. The rows statement is left "positioned" on the row it stepped to,
// so that further fields of that row are read without another lookup.
struct TableInfo {
  std::string name;
  std::vector<FieldDef> fields;
  std::unordered_map<std::string, int, store_internal::NoCaseHash, store_internal::NoCaseEqual>
      columnOf;
  // A name of the rowid that no field shadows.
  std::string rowid;
  // The rows statement reads on from a rowid, returning the rowid before the fields, so that
  // a walk row after row only steps it on. A table as wide as the engine allows leaves no
  // room for that column: its rows are sought one by one.
  bool rowsCarryRowid = true;
  std::array<SqliteStatement, store_internal::kStatementKinds> statements;
  SqliteStatement fieldUpdateStatement;
  int fieldUpdateField = -1;
  // The fields the rows statement reads: those asked for so far, or every field once many
  // have been asked for. Rows are mostly read far more narrowly than they are wide (a list of
  // holes reads 3 of 255 fields), and the engine computes every column it selects.
  std::vector<int> resultPosition;  // by field; -1 while the field is not selected
  std::vector<int> selected;
  bool selectsAll = false;
  int widenings = 0;
  bool positioned = false;
  std::int64_t positionedRowid = 0;
  // Counts inserts and deletes, so that every recordset notices a changed row list.
  std::uint64_t rowsVersion = 0;
  bool dropped = false;

  int firstField() const { return rowsCarryRowid ? 1 : 0; }
  // Where a field stands in the rows statement's result. A field not selected yet is added,
  // which ends the statement's run: ask before positioning on a row.
  int resultColumn(int field);
  void selectAllFields();
  sqlite3_stmt* statement(store_internal::Statement kind, Connection& connection);
  // The statement that writes one field of a row, kept for the field it was last made for.
  sqlite3_stmt* fieldUpdate(int field, Connection& connection);
  sqlite3_stmt* rows() const {
    return statements[static_cast<size_t>(store_internal::Statement::Rows)].get();
  }
  // Ends the run of the rows statement.
  void releaseRow();
  void finalize();

 private:
  std::string sqlOf(store_internal::Statement kind) const;
};

struct Connection {
  std::string path;
  SqliteConnection db;
  std::unordered_map<std::string, std::shared_ptr<TableInfo>, store_internal::NoCaseHash,
                     store_internal::NoCaseEqual>
      tables;
  // Finds a table and its fields in one step; kept for the connection's life, as commands
  // such as a triangle's limit passes open many tables in a row.
  SqliteStatement tableLookup;

  ~Connection() { close(); }

  // Opens an existing database file for reading and writing, with the journal of the store.
  // Read-only: the engine refuses every write, and readers never stand in a writer's way.
  static std::shared_ptr<Connection> connect(const std::string& path, bool readOnly = false);
  bool isOpen() const { return db.isOpen(); }
  [[noreturn]] void engineFault(const std::string& what) const;
  // Builds the message while the statement still holds the failure, then ends its run.
  [[noreturn]] void stepFault(sqlite3_stmt* stmt, const std::string& what) const;
  SqliteStatement prepare(std::string_view sql, const std::string& what, bool persistent);
  void execute(std::string_view sql, const std::string& what);
  // Every write first ends the runs of positioned statements: a statement keeps the values of
  // the row it stepped to, which the write may change.
  void beforeWrite();
  // The table's name as created, for a name in any case; none for a missing table.
  std::optional<std::string> storedTableName(const std::string& name);
  // Tables, indexes and views share one space of names.
  bool nameTaken(const std::string& name);
  // The table, read once per connection; a missing table is a Fault.
  std::shared_ptr<TableInfo> table(const std::string& name);
  // Drops what is known of a table that is being deleted.
  void forget(const std::string& storedName);
  void close();

 private:
  // The table as stored, with its fields, for a name in any case; none for a missing table.
  std::shared_ptr<TableInfo> loadTable(const std::string& name);
  void requireDatabaseFile();
  void setJournal();
};

namespace store_internal {
// The connection of a Database, with a Fault for one that was moved away or closed.
Connection& liveConnection(const std::shared_ptr<Connection>& connection);
}  // namespace store_internal

}  // namespace tri
