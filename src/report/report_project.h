// A project file opened for the reports: read-only, its lithologies, drawings and limit
// tables checked by name, its triangle tables and its logs read in one pass each.
#pragma once

#include <array>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/store.h"
#include "triangles/records.h"
#include "triangles/reserve_math.h"

namespace tri::report {

// A bad input of the report program: a missing file, a name that the project does not
// hold, a malformed option. Its message is the one line the user sees.
class BadInput : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What a report reads: the lithology, the drawing and, when given, one of its limits (as
// typed: its table's name, or its value).
struct Selection {
  std::string lithology;
  std::string drawing;
  std::optional<std::string> limit;
};

// A triangle as its rows hold it: corners 1..3 and the summary's figures, divided by 1000
// (area m², cubage 1000 m³, tonnage and reserve kt).
struct StoredTriangle {
  int number = 0;
  std::array<VertexRow, 4> vertices;
  double length = 0;
  double tenor = 0;
  double density = 0;
  double area = 0;
  double cubage = 0;
  double tonnage = 0;
  double reserve = 0;
};

// A hole of table log: its row number (the hole's number), name, place, ore entry and log.
struct HoleLog {
  std::string name;
  double x = 0;
  double y = 0;
  double cevgir = 0;
  std::vector<Layer> layers;
};

// The holes of log up to the row that ends the list (x = 0, or a name beginning with "po"
// or "uz"), from 1; entry 0 is unused.
struct ProjectLogs {
  std::vector<HoleLog> holes;
  int count() const { return static_cast<int>(holes.size()) - 1; }
  // The hole of that number, or nothing when the list has no such hole.
  const HoleLog* hole(int number) const;
};

class ReportProject {
 public:
  // Opens the file read-only; a missing file or one that is not a project is BadInput.
  explicit ReportProject(const std::string& path);

  Database& database() { return db_; }
  const std::string& path() const { return path_; }

  std::vector<std::string> lithologies();
  std::vector<std::string> drawings(const std::string& lithology);
  // The limits of a drawing: each slot in use (1 to 30) as its table name and value.
  struct Limit {
    std::string table;
    double value = 0;
  };
  std::vector<Limit> limits(const std::string& lithology, const std::string& drawing);

  // The table that holds the selection's triangles, and the limit's value when one is
  // chosen; an unknown lithology, drawing or limit is BadInput naming what exists.
  struct Resolved {
    std::string table;
    std::optional<Limit> limit;
  };
  Resolved resolve(const Selection& selection);

  std::vector<StoredTriangle> readTriangles(const std::string& table);
  ProjectLogs readLogs();

 private:
  std::string path_;
  Database db_;
};

// The text of a number with exactly `decimals` decimals, rounded half to even.
std::string fixed(double x, int decimals);

}  // namespace tri::report
