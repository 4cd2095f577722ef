// The plain SQLite work a benchmark case cannot avoid, done directly against the engine:
// the floor that each case is measured beside.
#include <sqlite3.h>

#include <string>
#include <variant>
#include <vector>

#pragma once

namespace tri::bench {

using Cell = std::variant<std::monostate, long long, std::string>;
using Row = std::vector<Cell>;

struct RawTable {
  std::string name;
  std::string createSql;
  std::vector<std::string> columns;
  std::vector<Row> rows;
};

// One connection with the store's own settings (WAL, synchronous NORMAL).
class RawDatabase {
 public:
  explicit RawDatabase(const std::string& path);
  ~RawDatabase();
  RawDatabase(const RawDatabase&) = delete;
  RawDatabase& operator=(const RawDatabase&) = delete;

  void exec(const std::string& sql);
  // Runs a query and reads every column of every row; returns the number of rows.
  long readAll(const std::string& sql);
  // Reads one row by rowid, every column.
  void readRow(const std::string& table, long long rowid);
  // Inserts rows, each in its own transaction unless a transaction is open.
  void insert(const RawTable& table, const std::vector<Row>& rows);
  RawTable copyTable(const std::string& name);

 private:
  sqlite3* db_ = nullptr;
};

std::string quoted(const std::string& name);

}  // namespace tri::bench
