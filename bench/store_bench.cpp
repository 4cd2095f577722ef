// The project store against the plain engine work it cannot avoid: writing a drill-hole log
// as wide as 48 layers row by row, each row durable on its own, then reading it all back.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <array>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/store.h"
#include "store/project_format.h"
#include "support/temp_dir.h"

namespace tri {
namespace {

constexpr int kLogRows = 999;
const std::array<std::string, 5> kTexts{"SK-1042", "Kömür", "Marn", "evet", "hayır"};

const std::vector<FieldDef>& wideLogFields() {
  static const std::vector<FieldDef> fields = logFields(49, 3);
  return fields;
}

int longValue(int row, size_t column) { return row * 1009 + static_cast<int>(column) * 7; }
const std::string& textValue(int row, size_t column) {
  return kTexts[(row + column) % kTexts.size()];
}

void writeThroughStore(const std::string& path) {
  const std::vector<FieldDef>& fields = wideLogFields();
  Database db = Database::create(path);
  db.createTable(kLogTable, fields);
  Recordset rs = db.openTable(kLogTable);
  for (int row = 0; row < kLogRows; ++row) {
    rs.addNew();
    for (size_t c = 0; c < fields.size(); ++c) {
      if (fields[c].type == FieldType::Long) {
        rs.set(fields[c].name, longValue(row, c));
      } else {
        rs.set(fields[c].name, textValue(row, c));
      }
    }
    rs.update();
  }
  db.close();
}

long long readThroughStore(const std::string& path) {
  const std::vector<FieldDef>& fields = wideLogFields();
  Database db = Database::open(path);
  Recordset rs = db.openTable(kLogTable);
  long long sum = 0;
  for (; !rs.eof(); rs.moveNext()) {
    for (const FieldDef& field : fields) {
      sum += field.type == FieldType::Long ? static_cast<long long>(rs.number(field.name))
                                           : static_cast<long long>(rs.text(field.name).size());
    }
  }
  return sum;
}

void BM_StoreWriteReadLogWide(benchmark::State& state) {
  TempDir dir;
  std::string path = dir.file("log.mdb");
  long long sum = 0;
  for (auto _ : state) {
    writeThroughStore(path);
    sum = readThroughStore(path);
    state.PauseTiming();
    std::filesystem::remove(path);
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kLogRows);
  // Equal in both cases when both wrote and read the same values.
  state.counters["checksum"] = static_cast<double>(sum);
}
BENCHMARK(BM_StoreWriteReadLogWide)->Unit(benchmark::kMillisecond);

// The floor: the same schema, rows and pragmas through the engine alone.

void check(sqlite3* db, int rc, int expected, const char* what) {
  if (rc != expected) throw std::runtime_error(std::string(what) + ": " + sqlite3_errmsg(db));
}

sqlite3* openPlain(const std::string& path, int flags) {
  sqlite3* db = nullptr;
  check(db, sqlite3_open_v2(path.c_str(), &db, flags | SQLITE_OPEN_NOMUTEX, nullptr), SQLITE_OK,
        "open");
  sqlite3_busy_timeout(db, 5000);
  check(db,
        sqlite3_exec(db, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr,
                     nullptr),
        SQLITE_OK, "pragmas");
  return db;
}

void writePlain(const std::string& path) {
  const std::vector<FieldDef>& fields = wideLogFields();
  sqlite3* db = openPlain(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  std::string columns, names, parameters;
  for (const FieldDef& field : fields) {
    std::string separator = columns.empty() ? "" : ",";
    columns += separator + "\"" + field.name + "\"" +
               (field.type == FieldType::Long ? " INTEGER" : " TEXT");
    names += separator + "\"" + field.name + "\"";
    parameters += separator + "?";
  }
  std::string create = "CREATE TABLE \"log\" (" + columns + ")";
  check(db, sqlite3_exec(db, create.c_str(), nullptr, nullptr, nullptr), SQLITE_OK, "create");
  std::string insert = "INSERT INTO \"log\" (" + names + ") VALUES (" + parameters + ")";
  sqlite3_stmt* stmt = nullptr;
  check(db, sqlite3_prepare_v2(db, insert.c_str(), -1, &stmt, nullptr), SQLITE_OK, "prepare");
  for (int row = 0; row < kLogRows; ++row) {
    for (size_t c = 0; c < fields.size(); ++c) {
      int parameter = static_cast<int>(c + 1);
      if (fields[c].type == FieldType::Long) {
        sqlite3_bind_int(stmt, parameter, longValue(row, c));
      } else {
        const std::string& text = textValue(row, c);
        sqlite3_bind_text(stmt, parameter, text.data(), static_cast<int>(text.size()),
                          SQLITE_STATIC);
      }
    }
    check(db, sqlite3_step(stmt), SQLITE_DONE, "insert");
    sqlite3_reset(stmt);
  }
  sqlite3_finalize(stmt);
  sqlite3_close(db);
}

long long readPlain(const std::string& path) {
  const std::vector<FieldDef>& fields = wideLogFields();
  sqlite3* db = openPlain(path, SQLITE_OPEN_READWRITE);
  sqlite3_stmt* stmt = nullptr;
  check(db, sqlite3_prepare_v2(db, "SELECT * FROM \"log\" ORDER BY rowid", -1, &stmt, nullptr),
        SQLITE_OK, "prepare");
  long long sum = 0;
  while (sqlite3_step(stmt) == SQLITE_ROW) {
    for (size_t c = 0; c < fields.size(); ++c) {
      int column = static_cast<int>(c);
      if (fields[c].type == FieldType::Long) {
        sum += sqlite3_column_int(stmt, column);
      } else {
        sqlite3_column_text(stmt, column);
        sum += sqlite3_column_bytes(stmt, column);
      }
    }
  }
  sqlite3_finalize(stmt);
  sqlite3_close(db);
  return sum;
}

void BM_StoreWriteReadLogWide_floor(benchmark::State& state) {
  TempDir dir;
  std::string path = dir.file("log.mdb");
  long long sum = 0;
  for (auto _ : state) {
    writePlain(path);
    sum = readPlain(path);
    state.PauseTiming();
    std::filesystem::remove(path);
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kLogRows);
  // Equal in both cases when both wrote and read the same values.
  state.counters["checksum"] = static_cast<double>(sum);
}
BENCHMARK(BM_StoreWriteReadLogWide_floor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tri
