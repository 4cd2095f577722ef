#include "report/report_project.h"

#include <algorithm>
#include <cstdio>

#include "platform/fault.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/ondayaz.h"
#include "store/project_format.h"
#include "store/project_lists.h"

namespace tri::report {

namespace {

// The most limit slots a drawing's row holds.
constexpr int kLimitSlots = 30;

std::string quoted(const std::string& name) { return "\"" + name + "\""; }

std::string listed(const std::vector<std::string>& names) {
  if (names.empty()) return "none";
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

Database openProject(const std::string& path) {
  try {
    Database db = Database::openReadOnly(path);
    for (const char* table : {kLogTable, kLithologyListTable}) {
      if (!db.hasTable(table)) {
        throw BadInput(path + " is not a project: it has no table " + quoted(table));
      }
    }
    return db;
  } catch (const Fault& fault) {
    throw BadInput(fault.message());
  }
}

}  // namespace

const HoleLog* ProjectLogs::hole(int number) const {
  if (number < 1 || number > count()) return nullptr;
  return &holes[static_cast<size_t>(number)];
}

ReportProject::ReportProject(const std::string& path) : path_(path), db_(openProject(path)) {}

std::vector<std::string> ReportProject::lithologies() {
  std::vector<std::string> names;
  Recordset list = db_.openTable(kLithologyListTable);
  for (list.moveFirst(); !list.eof(); list.moveNext()) names.push_back(list.text(field::isim));
  return names;
}

std::vector<std::string> ReportProject::drawings(const std::string& lithology) {
  std::vector<std::string> names;
  Recordset table = db_.openTable(lithology);
  table.moveFirst();
  for (table.moveNext(); !table.eof(); table.moveNext()) names.push_back(table.text(field::cizim));
  return names;
}

std::vector<ReportProject::Limit> ReportProject::limits(const std::string& lithology,
                                                        const std::string& drawing) {
  std::vector<Limit> found;
  Recordset table = db_.openTable(lithology);
  table.moveFirst();
  for (table.moveNext(); !table.eof(); table.moveNext()) {
    if (table.text(field::cizim) != drawing) continue;
    for (int k = 1; k <= kLimitSlots; ++k) {
      if (!limitSlotInUse(table, k)) continue;
      found.push_back({table.text(numbered(field::limten, k)),
                       table.number(numbered(field::limdeg, k)) / 1000});
    }
    break;
  }
  return found;
}

ReportProject::Resolved ReportProject::resolve(const Selection& selection) {
  const std::vector<std::string> lithologies = this->lithologies();
  if (std::find(lithologies.begin(), lithologies.end(), selection.lithology) == lithologies.end()) {
    throw BadInput("no lithology " + quoted(selection.lithology) + " in " + path_ +
                   " (it has: " + listed(lithologies) + ")");
  }
  const std::vector<std::string> drawings = this->drawings(selection.lithology);
  if (std::find(drawings.begin(), drawings.end(), selection.drawing) == drawings.end() ||
      !db_.hasTable(selection.drawing)) {
    throw BadInput("no drawing " + quoted(selection.drawing) + " of lithology " +
                   quoted(selection.lithology) + " in " + path_ + " (it has: " + listed(drawings) +
                   ")");
  }
  Resolved resolved{selection.drawing, std::nullopt};
  if (!selection.limit) return resolved;

  const std::string& wanted = *selection.limit;
  const std::vector<Limit> limits = this->limits(selection.lithology, selection.drawing);
  std::vector<std::string> names;
  for (const Limit& limit : limits) {
    names.push_back(numberText(limit.value));
    const bool byName = limit.table == limitTableName(wanted, selection.drawing);
    const bool byValue = isNumberText(wanted) && ondayaz(toNumber(wanted)) / 1000 == limit.value;
    if ((byName || byValue) && db_.hasTable(limit.table)) {
      resolved.table = limit.table;
      resolved.limit = limit;
      return resolved;
    }
  }
  throw BadInput("no limit " + quoted(wanted) + " on drawing " + quoted(selection.drawing) +
                 " (it has: " + listed(names) + ")");
}

namespace {

// A figure of a summary row; one its writer left empty reads as 0.
double figure(const Recordset& row, const char* field) {
  return row.isNull(field) ? 0 : row.number(field) / 1000;
}

}  // namespace

std::vector<StoredTriangle> ReportProject::readTriangles(const std::string& name) {
  Recordset table = db_.openTable(name);
  std::vector<StoredTriangle> triangles;
  if (table.recordCount() == 0) return triangles;
  const int count = triangleCount(table);
  table.moveFirst();
  for (int t = 1; t <= count; ++t) {
    StoredTriangle triangle;
    for (int k = 1; k <= 3; ++k) {
      table.moveNext();
      triangle.vertices[k] = readVertexRow(table);
    }
    table.moveNext();
    triangle.number = static_cast<int>(table.number(field::ucgensay));
    triangle.length = figure(table, field::ilkuz);
    triangle.tenor = figure(table, field::geneltenor);
    triangle.density = figure(table, field::genelyog);
    triangle.area = figure(table, field::ill);
    triangle.cubage = figure(table, field::kubaj);
    triangle.tonnage = figure(table, field::tonaj);
    triangle.reserve = figure(table, field::genelrezerv);
    triangles.push_back(std::move(triangle));
  }
  return triangles;
}

ProjectLogs ReportProject::readLogs() {
  ProjectLogs logs;
  Recordset log = db_.openTable(kLogTable);
  const int count = countHoles(log, HoleListEnd::ZeroXOrPointName);
  logs.holes.resize(static_cast<size_t>(count) + 1);
  log.moveFirst();
  StoredLogReader reader(log);
  for (int i = 1; i <= count; ++i, log.moveNext()) {
    HoleLog& hole = logs.holes[static_cast<size_t>(i)];
    hole.name = log.text(field::isim);
    hole.x = log.number(field::eks) / 1000;
    hole.y = log.number(field::eye) / 1000;
    hole.cevgir = log.number(field::cevgir) / 1000;
    for (const StoredLayer& layer : reader.layersOfCurrentRow()) {
      hole.layers.push_back({layer.lit, layer.ten / 1000, layer.yog / 1000, layer.uz / 1000});
    }
  }
  return logs;
}

std::string fixed(double x, int decimals) {
  double rounded = roundHalfEven(x, decimals);
  if (rounded == 0) rounded = 0;  // no "-0"
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, rounded);
  return text;
}

}  // namespace tri::report
