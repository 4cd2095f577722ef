// Owning handles of the SQLite engine: a connection and a prepared statement, each released
// exactly once, by its destructor or by an explicit close.
#pragma once

#include <sqlite3.h>

#include <string_view>
#include <utility>

namespace tri {

class SqliteConnection {
 public:
  SqliteConnection() = default;
  explicit SqliteConnection(sqlite3* db) : db_(db) {}
  ~SqliteConnection() { close(); }
  SqliteConnection(SqliteConnection&& other) noexcept : db_(std::exchange(other.db_, nullptr)) {}
  SqliteConnection& operator=(SqliteConnection&& other) noexcept;
  SqliteConnection(const SqliteConnection&) = delete;
  SqliteConnection& operator=(const SqliteConnection&) = delete;

  sqlite3* get() const { return db_; }
  bool isOpen() const { return db_ != nullptr; }
  // The engine's text for the last failure on this connection.
  const char* errorMessage() const;
  // Closes the connection; the last connection to a WAL file checkpoints it and removes the
  // -wal and -shm files, provided every statement has been finalized before.
  void close();

 private:
  sqlite3* db_ = nullptr;
};

class SqliteStatement {
 public:
  SqliteStatement() = default;
  ~SqliteStatement() { finalize(); }
  SqliteStatement(SqliteStatement&& other) noexcept : stmt_(std::exchange(other.stmt_, nullptr)) {}
  SqliteStatement& operator=(SqliteStatement&& other) noexcept;
  SqliteStatement(const SqliteStatement&) = delete;
  SqliteStatement& operator=(const SqliteStatement&) = delete;

  // Prepares exactly one statement; returns the engine's result code. Text after the first
  // statement is refused with SQLITE_MISUSE.
  int prepare(sqlite3* db, std::string_view sql, bool persistent);
  sqlite3_stmt* get() const { return stmt_; }
  bool isPrepared() const { return stmt_ != nullptr; }
  // Ends a run of the statement so that it holds no read or write transaction open.
  void reset() {
    if (stmt_) sqlite3_reset(stmt_);
  }
  void finalize();

 private:
  sqlite3_stmt* stmt_ = nullptr;
};

}  // namespace tri
