#include <algorithm>
#include <cmath>

#include "platform/fault.h"
#include "platform/sheet.h"
#include "platform/vbtext.h"
#include "report/bench_report.h"
#include "report/commands.h"
#include "report/figures.h"
#include "report/text_table.h"
#include "report/workbook_check.h"
#include "store/ondayaz.h"

namespace tri::report {

namespace {

std::string optionalText(const std::optional<double>& value, int decimals) {
  return value ? fixed(*value, decimals) : "";
}

std::string tableTitle(const Selection& selection, const ReportProject::Resolved& resolved) {
  std::string title = "Drawing " + selection.drawing + ", lithology " + selection.lithology;
  if (resolved.limit) title += ", limit tenor " + numberText(resolved.limit->value) + " %";
  return title + " (table " + resolved.table + ")";
}

double number(const std::string& text, const std::string& option) {
  if (!isNumberText(text)) throw BadInput(option + " wants a number, not \"" + text + "\"");
  return toNumber(text);
}

std::string holeName(const ProjectLogs& logs, int hole) {
  const HoleLog* log = logs.hole(hole);
  return log ? log->name : "hole " + std::to_string(hole) + "?";
}

}  // namespace

int triangles(const std::string& path, const Selection& selection, Output& o) {
  ReportProject project(path);
  const ReportProject::Resolved resolved = project.resolve(selection);
  const std::vector<StoredTriangle> triangles = project.readTriangles(resolved.table);
  const ProjectLogs logs = project.readLogs();
  TextTable table({"triangle", "corner 1", "corner 2", "corner 3", "area m2", "length m", "tenor %",
                   "density", "cubage 1000m3", "tonnage kt", "reserve kt"});
  for (const StoredTriangle& t : triangles) {
    table.add({std::to_string(t.number), holeName(logs, t.vertices[1].hole),
               holeName(logs, t.vertices[2].hole), holeName(logs, t.vertices[3].hole),
               fixed(t.area, 3), fixed(t.length, 3), fixed(t.tenor, 3), fixed(t.density, 3),
               fixed(t.cubage, 3), fixed(t.tonnage, 3), fixed(t.reserve, 3)});
  }
  const TableTotals totals = totalsOf(triangles);
  table.add({"total", "", "", "", fixed(totals.area, 3), "", "", "", fixed(totals.cubage, 3),
             fixed(totals.tonnage, 3), fixed(totals.reserve, 3)});
  if (!o.csv) o.out << tableTitle(selection, resolved) << "\n\n";
  table.print(o.out, o.csv);

  TextTable averages({"average", "value"});
  averages.add({"area relative tenor %", optionalText(totals.areaTenor, 5)});
  averages.add({"cubage relative tenor %", optionalText(totals.cubageTenor, 5)});
  averages.add({"area relative density", optionalText(totals.areaDensity, 5)});
  averages.add({"cubage relative density", optionalText(totals.cubageDensity, 5)});
  o.out << "\n";
  averages.print(o.out, o.csv);
  return 0;
}

int gradeTonnage(const std::string& path, const Selection& selection, const std::string& cutoffs,
                 Output& o, const PlotWriter& plot) {
  const std::vector<double> values = parseCutoffs(cutoffs);
  ReportProject project(path);
  const ReportProject::Resolved resolved =
      project.resolve({selection.lithology, selection.drawing, std::nullopt});
  const std::vector<StoredTriangle> triangles = project.readTriangles(resolved.table);
  const ProjectLogs logs = project.readLogs();
  const std::vector<GradeTonnageRow> rows =
      report::gradeTonnage(triangles, logs, selection.lithology, values, [&](size_t done) {
        if (o.progress) o.progress(done, values.size(), "cut-offs");
      });
  TextTable table(
      {"cut-off %", "ore triangles", "tonnage kt", "mean tenor %", "reserve kt", "cubage 1000m3"});
  for (const GradeTonnageRow& row : rows) {
    table.add({numberText(row.cutoff), std::to_string(row.oreTriangles), fixed(row.tonnage, 3),
               optionalText(row.meanTenor, 5), fixed(row.reserve, 3), fixed(row.cubage, 3)});
  }
  if (!o.csv) {
    o.out << "Grade-tonnage of drawing " << selection.drawing << ", lithology "
          << selection.lithology << ", " << triangles.size() << " triangles\n\n";
  }
  table.print(o.out, o.csv);
  if (plot) {
    plot(rows, "Grade-tonnage: " + selection.drawing + " (" + selection.lithology + ")");
  }
  return 0;
}

int explain(const std::string& path, const Selection& selection, const std::string& triangle,
            Output& o) {
  const double wanted = number(triangle, "--triangle");
  ReportProject project(path);
  const ReportProject::Resolved resolved = project.resolve(selection);
  const std::vector<StoredTriangle> triangles = project.readTriangles(resolved.table);
  const auto found = std::find_if(triangles.begin(), triangles.end(),
                                  [&](const StoredTriangle& t) { return t.number == wanted; });
  if (found == triangles.end()) {
    throw BadInput("no triangle " + triangle + " in table " + resolved.table + " (it has " +
                   std::to_string(triangles.size()) + ")");
  }
  const ProjectLogs logs = project.readLogs();
  const std::optional<double> limit =
      resolved.limit ? std::optional<double>(resolved.limit->value) : std::nullopt;
  const Explanation e = explainTriangle(*found, logs, selection.lithology, limit);

  std::ostream& out = o.out;
  if (!o.csv)
    out << "Triangle " << found->number << " of " << tableTitle(selection, resolved) << "\n";
  TextTable layers(
      {"corner", "hole", "layer", "lithology", "tenor %", "density", "length m", "verdict"});
  TextTable corners(
      {"corner", "hole", "x", "y", "ore length m", "S1", "S2", "S3", "S4", "tenor %", "density"});
  for (int k = 1; k <= 3; ++k) {
    const ExplainedCorner& c = e.corners[k];
    const VertexRow& v = found->vertices[k];
    const std::string name = c.log ? c.log->name : "(none)";
    int j = 0;
    for (const ExplainedLayer& l : c.layers) {
      layers.add({std::to_string(k), name, std::to_string(++j), l.layer.lit,
                  numberText(l.layer.ten), numberText(l.layer.yog), numberText(l.layer.uz),
                  verdictText(l.verdict, selection.lithology, limit)});
    }
    corners.add({std::to_string(k), name + " (no. " + std::to_string(c.hole) + ")", numberText(v.x),
                 numberText(v.y), numberText(c.length), numberText(c.sums.s1),
                 numberText(c.sums.s2), numberText(c.sums.s3), numberText(c.sums.s4),
                 numberText(c.tenor), numberText(c.density)});
  }
  out << (o.csv ? "" : "\nLayers of the corner logs\n");
  layers.print(out, o.csv);
  out << (o.csv ? "\n" : "\nCorners: sums and means\n");
  corners.print(out, o.csv);

  TextTable figures({"figure", "recomputed", "as thousandths", "stored", "same"});
  bool differs = false;
  auto figure = [&](const std::string& name, double recomputed, double stored) {
    const double thousandths = ondayaz(recomputed) / 1000;
    const bool same = std::llround(thousandths * 1000) == std::llround(stored * 1000);
    differs = differs || !same;
    figures.add({name, numberText(recomputed), fixed(thousandths, 3), fixed(stored, 3),
                 same ? "yes" : "NO"});
  };
  figure("mean ore length m", e.means.length, found->length);
  figure("tenor %", e.means.tenor, found->tenor);
  figure("density", e.means.density, found->density);
  figure("area m2", e.area, found->area);
  figure("cubage 1000m3", e.cubage, found->cubage);
  figure("tonnage kt", e.tonnage, found->tonnage);
  figure("reserve kt", e.reserve, found->reserve);
  out << (o.csv ? "\n" : "\nTriangle: recomputed beside stored\n");
  figures.print(out, o.csv);
  if (differs) {
    out << "\nWARNING: the stored figures differ from those of the logs as they are now.\n";
    if (e.causes.empty()) out << "  No cut or renumbering found; the logs were edited since.\n";
  }
  if (!e.causes.empty()) {
    out << (differs ? "" : "\n") << (differs ? "  Likely causes:\n" : "Notes:\n");
    for (const std::string& cause : e.causes) out << "  - " << cause << "\n";
  }
  return 0;
}

int bench(const std::string& path, const Selection& selection, const std::string& up,
          const std::string& down, Output& o) {
  const Bench elevations{number(up, "--up"), number(down, "--down")};
  ReportProject project(path);
  const ReportProject::Resolved resolved = project.resolve(selection);
  const std::vector<StoredTriangle> triangles = project.readTriangles(resolved.table);
  const std::optional<double> limit =
      resolved.limit ? std::optional<double>(resolved.limit->value) : std::nullopt;
  const std::vector<BenchRow> rows =
      benchScan(project, triangles, elevations, selection.lithology, limit);
  TextTable table(
      {"triangle", "area m2", "length m", "density", "tenor %", "tonnage kt", "reserve kt"});
  for (const BenchRow& row : rows) {
    table.add({std::to_string(row.number), fixed(row.area, 3), fixed(row.means.length, 3),
               fixed(row.means.density, 3), fixed(row.means.tenor, 2), fixed(row.tonnage / 1000, 3),
               fixed(row.reserve / 1000, 2)});
  }
  const BenchTotals totals = benchTotals(rows);
  table.add({"total", fixed(totals.area, 3), "", "", optionalText(totals.meanTenor, 2),
             fixed(totals.tonnage / 1000, 3), fixed(totals.reserve / 1000, 2)});
  if (!o.csv) {
    o.out << "Bench " << numberText(elevations.upkot) << " m to " << numberText(elevations.downkot)
          << " m under " << tableTitle(selection, resolved) << "\n\n";
  }
  table.print(o.out, o.csv);
  return 0;
}

int checkWorkbookFile(const std::string& path, Output& o) {
  std::unique_ptr<Sheet> sheet;
  try {
    sheet = openXlsSheet(path);
  } catch (const Fault& fault) {
    throw BadInput(fault.message());
  }
  const std::vector<WorkbookFinding> findings = checkWorkbook(*sheet);
  if (findings.empty()) {
    if (!o.csv) o.out << path << ": no problem found\n";
    return 0;
  }
  TextTable table({"cell", "column", "row", "problem"});
  for (const WorkbookFinding& f : findings) {
    table.add({columnLetters(f.column) + std::to_string(f.row), std::to_string(f.column),
               std::to_string(f.row), f.problem});
  }
  table.print(o.out, o.csv);
  return 1;
}

}  // namespace tri::report
