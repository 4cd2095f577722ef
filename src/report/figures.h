// The figures of the reports: a table's totals and its four averages, the grade-tonnage
// curve of a drawing recomputed in memory, and a triangle's figures recomputed from the
// logs of its corners.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "report/report_project.h"

namespace tri::report {

// The sums over a table, in the units of its rows, and the averages of tenor and density
// relative to area and to cubage: each the two sums over every triangle divided once.
// An average whose divisor is 0 has no value.
struct TableTotals {
  int triangles = 0;
  double area = 0;
  double cubage = 0;
  double tonnage = 0;
  double reserve = 0;
  std::optional<double> areaTenor;
  std::optional<double> cubageTenor;
  std::optional<double> areaDensity;
  std::optional<double> cubageDensity;
};
TableTotals totalsOf(const std::vector<StoredTriangle>& triangles);

// One cut-off of the curve: the whole network recomputed with the layers at or above it,
// each triangle's figures taken at the file's thousandths as a limit table holds them.
// Tonnage and reserve in kilotons, cubage in thousands of m³; the mean tenor is the metal
// over the ore tonnage, in percent (none without ore).
struct GradeTonnageRow {
  double cutoff = 0;
  int oreTriangles = 0;
  double tonnage = 0;
  double reserve = 0;
  double cubage = 0;
  std::optional<double> meanTenor;
};

// The curve over the cut-offs in order; `progress` is told after each cut-off.
std::vector<GradeTonnageRow> gradeTonnage(const std::vector<StoredTriangle>& triangles,
                                          const ProjectLogs& logs, const std::string& lithology,
                                          const std::vector<double>& cutoffs,
                                          const std::function<void(size_t)>& progress = {});

// The cut-offs FROM, FROM + STEP, ... up to TO (within a millionth of a step); a text
// that is not three numbers with a positive step, or a FROM above TO, is BadInput.
std::vector<double> parseCutoffs(const std::string& text);

// Why a layer of a corner log counts or not.
enum class LayerVerdict { Counted, OtherLithology, CutBySelectCut, BelowLimit };
std::string verdictText(LayerVerdict verdict, const std::string& lithology,
                        std::optional<double> limit);

struct ExplainedLayer {
  Layer layer;
  LayerVerdict verdict = LayerVerdict::Counted;
};

struct ExplainedCorner {
  int hole = 0;                  // the vertex row's hole number
  const HoleLog* log = nullptr;  // that hole of log now, if the list still has it
  std::vector<ExplainedLayer> layers;
  CornerSums sums;
  double length = 0;
  double tenor = 0;
  double density = 0;
};

// A triangle recomputed from the corner logs as they are now: the drawing's arithmetic
// for a drawing (the area by the shoelace rule from the corners), a limit study's for a
// limit table (its stored area). Figures in the units of the stored row.
struct Explanation {
  std::array<ExplainedCorner, 4> corners;
  TriangleMeans means;
  double area = 0;
  double cubage = 0;
  double tonnage = 0;
  double reserve = 0;
  // What may have made the stored figures differ, one line each.
  std::vector<std::string> causes;
};
Explanation explainTriangle(const StoredTriangle& triangle, const ProjectLogs& logs,
                            const std::string& lithology, std::optional<double> limit);

// The plane area of three corners by the shoelace rule, in the drawing's order of terms.
double planeArea(const TriangleCorners& c);

}  // namespace tri::report
