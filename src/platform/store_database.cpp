// The project database: opening and creating the file, its tables, and write batches.
#include "platform/store.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <unordered_set>

#include "platform/store_connection.h"

namespace tri {

namespace {

using store_internal::columnText;
using store_internal::fail;
using store_internal::isReservedName;
using store_internal::liveConnection;
using store_internal::NoCaseEqual;
using store_internal::NoCaseHash;
using store_internal::shown;
using store_internal::sqlName;

void requireUsableName(const char* what, std::string_view name, std::string_view table) {
  std::string where = table.empty() ? std::string() : " in table " + shown(table);
  if (name.empty()) fail(FaultKind::Database, std::string("a ") + what + " needs a name" + where);
  for (unsigned char c : name) {
    if (c < 0x20 || c == 0x7f) {
      fail(FaultKind::Database, std::string("the ") + what + " name " + shown(name) + where +
                                    " holds a control character");
    }
  }
}

// The engine takes a short file of any content for an empty database and would write its
// header over it, so the file's own header decides first.
void requireProjectFile(const std::string& path) {
  std::error_code error;
  auto status = std::filesystem::status(path, error);
  std::string notProject = shown(path) + " is not a project database: ";
  if (status.type() == std::filesystem::file_type::not_found) {
    fail(FaultKind::Database, notProject + "there is no such file");
  }
  if (error) fail(FaultKind::Database, notProject + error.message());
  if (!std::filesystem::is_regular_file(status))
    fail(FaultKind::Database, notProject + "not a file");
  static constexpr char kHeader[] = "SQLite format 3";  // with its closing zero: 16 bytes
  char header[sizeof kHeader] = {};
  int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) fail(FaultKind::Database, "cannot open " + shown(path) + ": " + std::strerror(errno));
  ssize_t got = ::read(fd, header, sizeof header);
  ::close(fd);
  if (got != static_cast<ssize_t>(sizeof header) ||
      std::memcmp(header, kHeader, sizeof header) != 0) {
    fail(FaultKind::Database, notProject + "it does not begin with a database header");
  }
}

void createEmptyFile(const std::string& path) {
  int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  if (fd < 0) {
    int error = errno;
    if (error == EEXIST) {
      fail(FaultKind::Database, "cannot create " + shown(path) + ": the file exists already");
    }
    fail(FaultKind::Database, "cannot create " + shown(path) + ": " + std::strerror(error));
  }
  ::close(fd);
}

}  // namespace

Database::Database(std::shared_ptr<Connection> connection) : connection_(std::move(connection)) {}
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;
Database::~Database() = default;

Database Database::create(const std::string& path) {
  createEmptyFile(path);
  try {
    return Database(Connection::connect(path));
  } catch (...) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    throw;
  }
}

Database Database::open(const std::string& path) {
  requireProjectFile(path);
  return Database(Connection::connect(path));
}

Database Database::openReadOnly(const std::string& path) {
  requireProjectFile(path);
  return Database(Connection::connect(path, true));
}

const std::string& Database::path() const {
  static const std::string none;
  return connection_ ? connection_->path : none;
}

void Database::createTable(const std::string& name, const std::vector<FieldDef>& fields) {
  Connection& c = liveConnection(connection_);
  requireUsableName("table", name, "");
  std::string table = "table " + shown(name);
  if (isReservedName(name)) {
    fail(FaultKind::Database, "cannot create " + table +
                                  ": names beginning with sqlite_ "
                                  "are reserved for the database engine");
  }
  if (fields.empty()) fail(FaultKind::Database, "cannot create " + table + " without fields");
  int limit = sqlite3_limit(c.db.get(), SQLITE_LIMIT_COLUMN, -1);
  if (fields.size() > static_cast<size_t>(limit)) {
    fail(FaultKind::Database, "cannot create " + table + " with " + std::to_string(fields.size()) +
                                  " fields: a table holds at most " + std::to_string(limit));
  }
  std::unordered_set<std::string, NoCaseHash, NoCaseEqual> seen;
  std::string columns;
  for (const FieldDef& field : fields) {
    requireUsableName("field", field.name, name);
    if (!seen.insert(field.name).second) {
      fail(FaultKind::Database,
           "cannot create " + table + ": field " + shown(field.name) + " appears twice");
    }
    columns += (columns.empty() ? "" : ", ") + sqlName(field.name) +
               (field.type == FieldType::Long ? " INTEGER" : " TEXT");
  }
  if (seen.contains("rowid") && seen.contains("_rowid_") && seen.contains("oid")) {
    fail(FaultKind::Database, "cannot create " + table +
                                  ": fields named rowid, _rowid_ and oid would hide its row order");
  }
  if (c.nameTaken(name)) {
    fail(FaultKind::Database, table + " exists already in " + shown(c.path));
  }
  c.beforeWrite();
  c.execute("CREATE TABLE " + sqlName(name) + " (" + columns + ")", "cannot create " + table);
}

void Database::deleteTable(const std::string& name) {
  Connection& c = liveConnection(connection_);
  std::optional<std::string> stored = c.storedTableName(name);
  if (!stored) {
    fail(FaultKind::Database,
         "cannot delete table " + shown(name) + ": it does not exist in " + shown(c.path));
  }
  c.beforeWrite();
  c.forget(*stored);
  c.execute("DROP TABLE " + sqlName(*stored), "cannot delete table " + shown(*stored));
}

bool Database::hasTable(const std::string& name) const {
  return liveConnection(connection_).storedTableName(name).has_value();
}

std::vector<std::string> Database::tableNames() const {
  Connection& c = liveConnection(connection_);
  std::string what = "cannot list the tables";
  SqliteStatement statement =
      c.prepare("SELECT name FROM sqlite_schema WHERE type='table' ORDER BY rowid", what, false);
  std::vector<std::string> names;
  int rc;
  while ((rc = sqlite3_step(statement.get())) == SQLITE_ROW) {
    std::string name = columnText(statement.get(), 0);
    if (!isReservedName(name)) names.push_back(std::move(name));
  }
  if (rc != SQLITE_DONE) c.stepFault(statement.get(), what);
  return names;
}

std::vector<FieldDef> Database::fields(const std::string& table) const {
  return liveConnection(connection_).table(table)->fields;
}

void Database::close() {
  if (connection_) connection_->close();
}

WriteBatch Database::beginBatch() {
  Connection& c = liveConnection(connection_);
  c.execute("BEGIN IMMEDIATE", "cannot begin writing to " + shown(c.path));
  return WriteBatch(connection_);
}

WriteBatch::WriteBatch(std::shared_ptr<Connection> connection)
    : connection_(std::move(connection)) {}

WriteBatch::WriteBatch(WriteBatch&& other) noexcept = default;

void WriteBatch::commit() {
  if (!connection_) return;
  std::shared_ptr<Connection> connection = std::move(connection_);
  if (connection->isOpen()) {
    connection->execute("COMMIT", "cannot write the batch to " + shown(connection->path));
  }
}

WriteBatch::~WriteBatch() {
  // A batch left by a Fault keeps what was written before it, as every update does.
  try {
    commit();
  } catch (const Fault&) {
  }
}

}  // namespace tri
