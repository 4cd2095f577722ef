#include "sqlite_floor.h"

#include <stdexcept>

namespace tri::bench {

std::string quoted(const std::string& name) {
  std::string q = "\"";
  for (char c : name) q += c == '"' ? std::string("\"\"") : std::string(1, c);
  return q + "\"";
}

namespace {

class Statement {
 public:
  Statement(sqlite3* db, const std::string& sql) {
    if (sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt_, nullptr) != SQLITE_OK) {
      throw std::runtime_error(sqlite3_errmsg(db));
    }
  }
  ~Statement() { sqlite3_finalize(stmt_); }
  sqlite3_stmt* get() { return stmt_; }

 private:
  sqlite3_stmt* stmt_ = nullptr;
};

long long touchColumns(sqlite3_stmt* stmt) {
  long long sum = 0;
  const int n = sqlite3_column_count(stmt);
  for (int c = 0; c < n; ++c) {
    if (sqlite3_column_type(stmt, c) == SQLITE_TEXT) {
      sum += sqlite3_column_bytes(stmt, c);
    } else {
      sum += sqlite3_column_int64(stmt, c);
    }
  }
  return sum;
}

}  // namespace

RawDatabase::RawDatabase(const std::string& path) {
  if (sqlite3_open(path.c_str(), &db_) != SQLITE_OK) throw std::runtime_error("cannot open");
  exec("PRAGMA journal_mode=WAL");
  exec("PRAGMA synchronous=NORMAL");
}

RawDatabase::~RawDatabase() { sqlite3_close(db_); }

void RawDatabase::exec(const std::string& sql) {
  char* error = nullptr;
  if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
    std::string message = error ? error : "error";
    sqlite3_free(error);
    throw std::runtime_error(message + " in " + sql);
  }
}

long RawDatabase::readAll(const std::string& sql) {
  Statement stmt(db_, sql);
  long rows = 0;
  long long sum = 0;
  while (sqlite3_step(stmt.get()) == SQLITE_ROW) {
    sum += touchColumns(stmt.get());
    ++rows;
  }
  return sum == -1 ? -1 : rows;
}

void RawDatabase::readRow(const std::string& table, long long rowid) {
  Statement stmt(db_, "SELECT * FROM " + quoted(table) + " WHERE rowid = ?");
  sqlite3_bind_int64(stmt.get(), 1, rowid);
  if (sqlite3_step(stmt.get()) == SQLITE_ROW) touchColumns(stmt.get());
}

void RawDatabase::insert(const RawTable& table, const std::vector<Row>& rows) {
  std::string sql = "INSERT INTO " + quoted(table.name) + " VALUES (";
  for (size_t c = 0; c < table.columns.size(); ++c) sql += c ? ",?" : "?";
  Statement stmt(db_, sql + ")");
  for (const Row& row : rows) {
    for (size_t c = 0; c < row.size(); ++c) {
      const int at = static_cast<int>(c) + 1;
      if (const auto* n = std::get_if<long long>(&row[c])) {
        sqlite3_bind_int64(stmt.get(), at, *n);
      } else if (const auto* t = std::get_if<std::string>(&row[c])) {
        sqlite3_bind_text(stmt.get(), at, t->c_str(), static_cast<int>(t->size()), SQLITE_STATIC);
      } else {
        sqlite3_bind_null(stmt.get(), at);
      }
    }
    if (sqlite3_step(stmt.get()) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(db_));
    sqlite3_reset(stmt.get());
  }
}

RawTable RawDatabase::copyTable(const std::string& name) {
  RawTable table;
  table.name = name;
  {
    Statement sql(db_, "SELECT sql FROM sqlite_schema WHERE name = ?");
    sqlite3_bind_text(sql.get(), 1, name.c_str(), -1, SQLITE_TRANSIENT);
    if (sqlite3_step(sql.get()) == SQLITE_ROW) {
      table.createSql = reinterpret_cast<const char*>(sqlite3_column_text(sql.get(), 0));
    }
  }
  Statement stmt(db_, "SELECT * FROM " + quoted(name) + " ORDER BY rowid");
  const int n = sqlite3_column_count(stmt.get());
  for (int c = 0; c < n; ++c) table.columns.push_back(sqlite3_column_name(stmt.get(), c));
  while (sqlite3_step(stmt.get()) == SQLITE_ROW) {
    Row row;
    for (int c = 0; c < n; ++c) {
      switch (sqlite3_column_type(stmt.get(), c)) {
        case SQLITE_INTEGER: row.emplace_back(sqlite3_column_int64(stmt.get(), c)); break;
        case SQLITE_TEXT:
          row.emplace_back(
              std::string(reinterpret_cast<const char*>(sqlite3_column_text(stmt.get(), c))));
          break;
        default: row.emplace_back(std::monostate{});
      }
    }
    table.rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace tri::bench
