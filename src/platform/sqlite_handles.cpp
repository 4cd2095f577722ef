#include "platform/sqlite_handles.h"

namespace tri {

SqliteConnection& SqliteConnection::operator=(SqliteConnection&& other) noexcept {
  if (this != &other) {
    close();
    db_ = std::exchange(other.db_, nullptr);
  }
  return *this;
}

const char* SqliteConnection::errorMessage() const {
  return db_ ? sqlite3_errmsg(db_) : "the connection is closed";
}

void SqliteConnection::close() {
  // close_v2 never fails for statements still alive: it defers the close until they go.
  if (db_) sqlite3_close_v2(std::exchange(db_, nullptr));
}

SqliteStatement& SqliteStatement::operator=(SqliteStatement&& other) noexcept {
  if (this != &other) {
    finalize();
    stmt_ = std::exchange(other.stmt_, nullptr);
  }
  return *this;
}

int SqliteStatement::prepare(sqlite3* db, std::string_view sql, bool persistent) {
  finalize();
  const char* tail = nullptr;
  int rc = sqlite3_prepare_v3(db, sql.data(), static_cast<int>(sql.size()),
                              persistent ? SQLITE_PREPARE_PERSISTENT : 0, &stmt_, &tail);
  if (rc != SQLITE_OK) return rc;
  for (const char* end = sql.data() + sql.size(); tail && tail < end; ++tail) {
    if (*tail != ' ' && *tail != ';' && *tail != '\n') {
      finalize();
      return SQLITE_MISUSE;
    }
  }
  return stmt_ ? SQLITE_OK : SQLITE_MISUSE;
}

void SqliteStatement::finalize() {
  if (stmt_) sqlite3_finalize(std::exchange(stmt_, nullptr));
}

}  // namespace tri
