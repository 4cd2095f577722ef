#include "report/bench_report.h"

#include "canvas/selection.h"
#include "platform/dialogs.h"
#include "platform/image_canvas.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "store/state.h"

namespace tri::report {

namespace {

// The scan shows no dialog; a state needs something to answer none.
class NoDialogs : public Dialogs {
 public:
  std::string inputBox(const std::string&, const std::string&) override { return ""; }
  Answer messageBox(const std::string&, Buttons, Icon, const std::string&) override {
    return Answer::Cancel;
  }
  FileChoice openFile(const std::string&, const std::string&) override { return {}; }
  FileChoice saveFile(const std::string&, const std::string&) override { return {}; }
  std::optional<Color> chooseColor(const std::string&, Color) override { return std::nullopt; }
};

}  // namespace

std::vector<BenchRow> benchScan(ReportProject& project,
                                const std::vector<StoredTriangle>& triangles, const Bench& bench,
                                const std::string& lithology, std::optional<double> limit) {
  ImageCanvas canvas(1, 1);
  NoDialogs dialogs;
  ImageCanvas form(1, 1);
  State s(canvas, dialogs, form);
  Database& db = project.database();
  {
    // The holes the scan walks: those of the plan, as kor lists them.
    Recordset kor = db.openTable(kHoleTable);
    s.holes.sondsay = countHoles(kor, HoleListEnd::ZeroXOrPointName);
  }
  readScanLogs(s, db);
  const LayerFilter filter{lithology, limit ? numberText(*limit) : std::string(kLimitTitle)};
  std::vector<BenchRow> rows;
  for (const StoredTriangle& t : triangles) {
    TriangleCorners corners;
    for (int k = 1; k <= 3; ++k) {
      corners.x[k] = t.vertices[k].x;
      corners.y[k] = t.vertices[k].y;
    }
    BenchRow row;
    row.number = t.number;
    row.area = t.area;
    row.means = scanTriangle(s.scan, corners, bench, filter);
    row.tonnage = t.area * row.means.density * row.means.length;
    row.reserve = row.means.reserve(t.area);
    clearKeptCorners(s.scan);
    rows.push_back(row);
  }
  return rows;
}

BenchTotals benchTotals(const std::vector<BenchRow>& rows) {
  BenchTotals totals;
  for (const BenchRow& row : rows) {
    totals.area += row.area;
    totals.tonnage += row.tonnage;
    totals.reserve += row.reserve;
  }
  if (totals.tonnage != 0) totals.meanTenor = 100 * totals.reserve / totals.tonnage;
  return totals;
}

}  // namespace tri::report
