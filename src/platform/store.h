// The project store: tables of named fields over SQLite, with the semantics of the project
// file. Fields keep their creation order, rows their append order; a field never written
// reads as Null; numeric fields are 32-bit integers; identifiers are always quoted, so a
// name from the user is data and never SQL. Every update is in the file when update()
// returns, and a killed process leaves a valid file with every completed update.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tri {

enum class FieldType { Long, Text };

struct FieldDef {
  std::string name;
  FieldType type;
};

// A stored value: Null, a 32-bit integer or a text.
class Value {
 public:
  Value() = default;
  Value(std::int32_t number) : data_(number) {}
  Value(std::string text) : data_(std::move(text)) {}

  bool isNull() const { return std::holds_alternative<std::monostate>(data_); }
  bool isNumber() const { return std::holds_alternative<std::int32_t>(data_); }
  bool isText() const { return std::holds_alternative<std::string>(data_); }
  std::int32_t asNumber() const { return std::get<std::int32_t>(data_); }
  const std::string& asText() const { return std::get<std::string>(data_); }

  bool operator==(const Value& other) const = default;

 private:
  std::variant<std::monostate, std::int32_t, std::string> data_;
};

struct Connection;
struct TableInfo;

// One table opened as a recordset: a cursor over its rows in append order.
// Moves are by index and cost nothing; a row is read from the file when one of its fields
// is first read. After moveNext past the last row eof() is true; after movePrevious before
// the first, bof(). Reading a field or moving on without a current row is a
// "No current record" Fault.
class Recordset {
 public:
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  const std::string& tableName() const;
  const std::vector<FieldDef>& fields() const;
  long recordCount() const;
  bool bof() const;
  bool eof() const;

  void moveFirst();
  void moveLast();
  void moveNext();
  void movePrevious();
  // Moves `rows` rows on (or back, if negative) from the current row, as that many
  // moveNext or movePrevious calls would.
  void move(long rows);

  // Reading the current row (or, between addNew/edit and update, the edit buffer).
  Value get(const std::string& field) const;
  bool isNull(const std::string& field) const;
  // A number: Null is an "Invalid use of Null" Fault naming table, field and row;
  // a text field is converted strictly ("Type mismatch" if it is not a number).
  double number(const std::string& field) const;
  // A text: Null reads as the empty text; a number reads as its general text.
  std::string text(const std::string& field) const;
  // The position of a field in the table, for walks that read the same fields of many
  // rows: number() and text() by position skip finding the name. An unknown name is the
  // same Fault as reading it.
  int fieldIndex(const std::string& field) const;
  double number(int fieldIndex) const;
  std::string text(int fieldIndex) const;
  // The number of the current row's field when it is stored as a whole number, as number()
  // reads it; nothing otherwise. Never a Fault: a walk that reads ahead of its use takes
  // the other values later with number(), where their Faults belong.
  std::optional<double> storedWhole(int fieldIndex) const;

  // Editing. addNew() starts a new row, edit() the current one; set() writes into the
  // buffer; update() stores it. After update() of a new row the current row is the one
  // that was current before addNew(). A number outside the 32-bit range for a Long field
  // is an "Overflow" Fault naming the table, field and value; a text that is not a number
  // for a Long field is a "Type mismatch" Fault.
  void addNew();
  void edit();
  void set(const std::string& field, double number);
  void set(const std::string& field, int number) { set(field, static_cast<double>(number)); }
  void set(const std::string& field, const std::string& text);
  void set(const std::string& field, const char* text) { set(field, std::string(text)); }
  void setNull(const std::string& field);
  void update();
  void cancelUpdate();
  // edit(), set() of one field and update() in one step, with their result and their
  // Faults; the row's other fields are neither read nor written again.
  void updateField(const std::string& field, double number);
  // Deletes the current row. The deleted row stays current, without fields, until a move.
  void remove();

  void close();

 private:
  friend class Database;
  struct Impl;
  explicit Recordset(std::unique_ptr<Impl> impl);
  std::unique_ptr<Impl> impl_;
};

// The writes of a command that stores many rows in one go (a new project's holes, a limit
// study), made one transaction: they reach the file together when the batch is committed,
// or when it ends unfinished because a Fault ended the command. A killed process leaves
// none of the batch. Every other update is in the file when update() returns.
class WriteBatch {
 public:
  WriteBatch(WriteBatch&&) noexcept;
  WriteBatch& operator=(WriteBatch&&) = delete;
  ~WriteBatch();
  void commit();

 private:
  friend class Database;
  explicit WriteBatch(std::shared_ptr<Connection> connection);
  std::shared_ptr<Connection> connection_;
};

// One project file. Each command opens it, works and closes it.
class Database {
 public:
  // Makes a new file; a path that exists already is refused and left untouched.
  static Database create(const std::string& path);
  // Opens an existing file; a missing file, or one that is not a project database, is a
  // Fault that says so.
  static Database open(const std::string& path);
  // Opens an existing file for reading only, the same checks first; every write is a Fault
  // of the engine, and a program that writes the file meanwhile is never held up.
  static Database openReadOnly(const std::string& path);

  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;
  ~Database();

  const std::string& path() const;

  // Creates a table with the name as typed and the fields in the given order. A name that
  // exists already (names compare without regard to ASCII case), that is empty, that holds
  // a control character or that the engine reserves is refused with a Fault naming it.
  void createTable(const std::string& name, const std::vector<FieldDef>& fields);
  void deleteTable(const std::string& name);
  bool hasTable(const std::string& name) const;
  // The tables in the order of their creation.
  std::vector<std::string> tableNames() const;
  std::vector<FieldDef> fields(const std::string& table) const;

  // A missing table is a Fault naming it and the file.
  Recordset openTable(const std::string& name);

  WriteBatch beginBatch();

  void close();

 private:
  explicit Database(std::shared_ptr<Connection> connection);
  std::shared_ptr<Connection> connection_;
};

}  // namespace tri
