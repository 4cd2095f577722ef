#include "platform/store_connection.h"

#include <algorithm>

namespace tri {

namespace store_internal {

void fail(FaultKind kind, const std::string& message) { throw Fault(kind, message); }

std::string shown(std::string_view name) { return "\"" + std::string(name) + "\""; }

std::string sqlName(std::string_view name) {
  std::string quoted = "\"";
  for (char c : name) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + "\"";
}

namespace {
char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
}  // namespace

bool equalNoCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         (a == b || std::equal(a.begin(), a.end(), b.begin(),
                               [](char x, char y) { return lowerAscii(x) == lowerAscii(y); }));
}

bool isReservedName(std::string_view name) {
  constexpr std::string_view kPrefix = "sqlite_";
  return name.size() >= kPrefix.size() && equalNoCase(name.substr(0, kPrefix.size()), kPrefix);
}

std::string columnText(sqlite3_stmt* stmt, int column) {
  const unsigned char* text = sqlite3_column_text(stmt, column);
  return text ? std::string(reinterpret_cast<const char*>(text),
                            static_cast<size_t>(sqlite3_column_bytes(stmt, column)))
              : std::string();
}

size_t NoCaseHash::operator()(std::string_view text) const {
  size_t hash = 14695981039346656037ull;  // FNV-1a
  for (char c : text) hash = (hash ^ static_cast<unsigned char>(lowerAscii(c))) * 1099511628211ull;
  return hash;
}

Connection& liveConnection(const std::shared_ptr<Connection>& connection) {
  if (!connection) fail(FaultKind::Database, "the project database was moved to another variable");
  if (!connection->isOpen()) {
    fail(FaultKind::Database, "the project database " + shown(connection->path) + " is closed");
  }
  return *connection;
}

}  // namespace store_internal

namespace {

using store_internal::columnText;
using store_internal::equalNoCase;
using store_internal::fail;
using store_internal::isReservedName;
using store_internal::shown;
using store_internal::sqlName;
using store_internal::Statement;

constexpr int kBusyTimeoutMs = 5000;

bool isLongType(std::string_view declared) {
  for (size_t i = 0; i + 3 <= declared.size(); ++i) {
    if (equalNoCase(declared.substr(i, 3), "int")) return true;
  }
  return false;
}

}  // namespace

std::string TableInfo::sqlOf(Statement kind) const {
  std::string table = sqlName(name);
  switch (kind) {
    case Statement::Rows: {
      std::string columns = selectsAll ? "*" : "";
      for (size_t i = 0; !selectsAll && i < selected.size(); ++i) {
        columns += (i ? "," : "") + sqlName(fields[selected[i]].name);
      }
      if (!rowsCarryRowid)
        return "SELECT " + columns + " FROM " + table + " WHERE " + rowid + "=?1";
      return "SELECT " + rowid + ", " + columns + " FROM " + table + " WHERE " + rowid +
             ">=?1 ORDER BY " + rowid;
    }
    case Statement::Rowids: return "SELECT " + rowid + " FROM " + table + " ORDER BY " + rowid;
    case Statement::Delete: return "DELETE FROM " + table + " WHERE " + rowid + "=?1";
    case Statement::Insert: {
      std::string columns, parameters;
      for (const FieldDef& field : fields) {
        columns += (columns.empty() ? "" : ",") + sqlName(field.name);
        parameters += parameters.empty() ? "?" : ",?";
      }
      return "INSERT INTO " + table + " (" + columns + ") VALUES (" + parameters + ")";
    }
    case Statement::Update: {
      std::string assignments;
      for (const FieldDef& field : fields) {
        assignments += (assignments.empty() ? "" : ",") + sqlName(field.name) + "=?";
      }
      return "UPDATE " + table + " SET " + assignments + " WHERE " + rowid + "=?";
    }
  }
  return {};
}

sqlite3_stmt* TableInfo::statement(Statement kind, Connection& connection) {
  SqliteStatement& slot = statements[static_cast<size_t>(kind)];
  if (!slot.isPrepared()) {
    slot = connection.prepare(sqlOf(kind), "cannot read table " + shown(name), true);
  }
  return slot.get();
}

namespace {
// Past this many widenings, or a quarter of the fields, the rows statement reads them all.
constexpr int kMaxWidenings = 8;
}  // namespace

int TableInfo::resultColumn(int field) {
  if (selectsAll) return firstField() + field;
  if (resultPosition.empty()) resultPosition.assign(fields.size(), -1);
  if (resultPosition[field] >= 0) return resultPosition[field];
  statements[static_cast<size_t>(Statement::Rows)].finalize();
  positioned = false;
  if (++widenings > kMaxWidenings || (selected.size() + 1) * 4 > fields.size()) {
    selectsAll = true;
    return firstField() + field;
  }
  selected.push_back(field);
  resultPosition[field] = firstField() + static_cast<int>(selected.size()) - 1;
  return resultPosition[field];
}

void TableInfo::selectAllFields() {
  if (selectsAll) return;
  statements[static_cast<size_t>(Statement::Rows)].finalize();
  positioned = false;
  selectsAll = true;
}

void TableInfo::releaseRow() {
  if (!positioned) return;
  statements[static_cast<size_t>(Statement::Rows)].reset();
  positioned = false;
}

sqlite3_stmt* TableInfo::fieldUpdate(int field, Connection& connection) {
  if (fieldUpdateField != field || !fieldUpdateStatement.isPrepared()) {
    fieldUpdateStatement =
        connection.prepare("UPDATE " + sqlName(name) + " SET " + sqlName(fields[field].name) +
                               "=?1 WHERE " + rowid + "=?2",
                           "cannot update table " + shown(name), true);
    fieldUpdateField = field;
  }
  return fieldUpdateStatement.get();
}

void TableInfo::finalize() {
  for (SqliteStatement& statement : statements) statement.finalize();
  fieldUpdateStatement.finalize();
  positioned = false;
}

std::shared_ptr<Connection> Connection::connect(const std::string& path, bool readOnly) {
  sqlite3* raw = nullptr;
  // A reader is opened for writing too where the file allows it, and told to change nothing:
  // closing it then removes the journal files that reading a WAL database makes.
  int rc =
      sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  auto connection = std::make_shared<Connection>();
  connection->path = path;
  connection->db = SqliteConnection(raw);
  if (rc != SQLITE_OK) connection->engineFault("cannot open the project database");
  sqlite3_busy_timeout(raw, kBusyTimeoutMs);
  connection->requireDatabaseFile();
  if (readOnly) {
    connection->execute("PRAGMA query_only=1", "cannot open the project database for reading");
  } else {
    connection->setJournal();
  }
  return connection;
}

void Connection::engineFault(const std::string& what) const {
  fail(FaultKind::Database, what + " in " + shown(path) + ": " + db.errorMessage());
}

void Connection::stepFault(sqlite3_stmt* stmt, const std::string& what) const {
  std::string message = what + " in " + shown(path) + ": " + db.errorMessage();
  sqlite3_reset(stmt);
  fail(FaultKind::Database, message);
}

SqliteStatement Connection::prepare(std::string_view sql, const std::string& what,
                                    bool persistent) {
  SqliteStatement statement;
  if (statement.prepare(db.get(), sql, persistent) != SQLITE_OK) engineFault(what);
  return statement;
}

void Connection::execute(std::string_view sql, const std::string& what) {
  SqliteStatement statement = prepare(sql, what, false);
  int rc = sqlite3_step(statement.get());
  if (rc != SQLITE_DONE && rc != SQLITE_ROW) stepFault(statement.get(), what);
}

// Reading the schema is what tells a database from any other file.
void Connection::requireDatabaseFile() {
  SqliteStatement statement;
  int rc = statement.prepare(db.get(), "SELECT count(*) FROM sqlite_schema", false);
  if (rc == SQLITE_OK) rc = sqlite3_step(statement.get());
  if (rc == SQLITE_ROW) return;
  if (rc == SQLITE_NOTADB) {
    fail(FaultKind::Database,
         shown(path) + " is not a project database (" + db.errorMessage() + ")");
  }
  engineFault("cannot read the tables of the project database");
}

void Connection::setJournal() {
  SqliteStatement wal;
  int rc = wal.prepare(db.get(), "PRAGMA journal_mode=WAL", false);
  if (rc == SQLITE_OK) rc = sqlite3_step(wal.get());
  // A write-protected file cannot change its journal; it is still readable.
  bool readOnly = sqlite3_db_readonly(db.get(), "main") == 1;
  if (rc != SQLITE_ROW && rc != SQLITE_DONE && !readOnly) {
    engineFault("cannot set the journal of the project database");
  }
  execute("PRAGMA synchronous=NORMAL", "cannot set the synchronous mode");
}

void Connection::beforeWrite() {
  for (auto& entry : tables) entry.second->releaseRow();
}

std::optional<std::string> Connection::storedTableName(const std::string& name) {
  if (isReservedName(name)) return std::nullopt;
  SqliteStatement statement =
      prepare("SELECT name FROM sqlite_schema WHERE type='table' AND name=?1 COLLATE NOCASE",
              "cannot look up table " + shown(name), false);
  sqlite3_bind_text(statement.get(), 1, name.data(), static_cast<int>(name.size()), SQLITE_STATIC);
  int rc = sqlite3_step(statement.get());
  if (rc == SQLITE_ROW) return columnText(statement.get(), 0);
  if (rc != SQLITE_DONE) stepFault(statement.get(), "cannot look up table " + shown(name));
  return std::nullopt;
}

// Tables, indexes and views share one space of names.
bool Connection::nameTaken(const std::string& name) {
  SqliteStatement statement = prepare("SELECT 1 FROM sqlite_schema WHERE name=?1 COLLATE NOCASE",
                                      "cannot look up table " + shown(name), false);
  sqlite3_bind_text(statement.get(), 1, name.data(), static_cast<int>(name.size()), SQLITE_STATIC);
  int rc = sqlite3_step(statement.get());
  if (rc != SQLITE_ROW && rc != SQLITE_DONE) {
    stepFault(statement.get(), "cannot look up table " + shown(name));
  }
  return rc == SQLITE_ROW;
}

std::shared_ptr<TableInfo> Connection::table(const std::string& name) {
  if (auto cached = tables.find(name); cached != tables.end()) return cached->second;
  std::shared_ptr<TableInfo> info = isReservedName(name) ? nullptr : loadTable(name);
  if (!info) {
    fail(FaultKind::Database, "table " + shown(name) + " does not exist in " + shown(path));
  }
  tables.emplace(info->name, info);
  return info;
}

std::shared_ptr<TableInfo> Connection::loadTable(const std::string& name) {
  std::string what = "cannot read the fields of table " + shown(name);
  if (!tableLookup.isPrepared()) {
    tableLookup = prepare(
        "SELECT s.name, p.name, p.type FROM sqlite_schema AS s, pragma_table_info(s.name) AS p"
        " WHERE s.type = 'table' AND s.name = ?1 COLLATE NOCASE ORDER BY p.cid",
        what, true);
  }
  sqlite3_stmt* statement = tableLookup.get();
  sqlite3_bind_text(statement, 1, name.data(), static_cast<int>(name.size()), SQLITE_TRANSIENT);
  auto info = std::make_shared<TableInfo>();
  int rc;
  while ((rc = sqlite3_step(statement)) == SQLITE_ROW) {
    if (info->fields.empty()) info->name = columnText(statement, 0);
    std::string type = columnText(statement, 2);
    info->fields.push_back(
        {columnText(statement, 1), isLongType(type) ? FieldType::Long : FieldType::Text});
    info->columnOf.emplace(info->fields.back().name, static_cast<int>(info->fields.size() - 1));
  }
  if (rc != SQLITE_DONE) stepFault(statement, what);
  tableLookup.reset();
  if (info->fields.empty()) return nullptr;
  for (const char* alias : {"rowid", "_rowid_", "oid"}) {
    if (!info->columnOf.contains(alias)) {
      info->rowid = alias;
      break;
    }
  }
  int columnLimit = sqlite3_limit(db.get(), SQLITE_LIMIT_COLUMN, -1);
  info->rowsCarryRowid = static_cast<int>(info->fields.size()) < columnLimit;
  if (info->rowid.empty()) {
    fail(FaultKind::Database, what + ": fields named rowid, _rowid_ and oid hide its row order");
  }
  return info;
}

void Connection::forget(const std::string& storedName) {
  auto cached = tables.find(storedName);
  if (cached == tables.end()) return;
  cached->second->finalize();
  cached->second->dropped = true;
  tables.erase(cached);
}

void Connection::close() {
  // Finalizing every statement first lets the engine checkpoint and remove the -wal file.
  for (auto& entry : tables) entry.second->finalize();
  tableLookup.finalize();
  if (db.isOpen() && !sqlite3_get_autocommit(db.get()))
    sqlite3_exec(db.get(), "COMMIT", nullptr, nullptr, nullptr);
  tables.clear();
  db.close();
}

}  // namespace tri
