// The bench of every triangle of a table: the scan's arithmetic between two elevations,
// with the holes as the window's scan finds them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report/report_project.h"
#include "scan/bench_scan.h"

namespace tri::report {

// One triangle's bench: the scan's means, its stored area (m²), the ore in the bench
// (area x density x length, tons) and its metal (tons).
struct BenchRow {
  int number = 0;
  double area = 0;
  ScanMeans means;
  double tonnage = 0;
  double reserve = 0;
};

struct BenchTotals {
  double area = 0;
  double tonnage = 0;
  double reserve = 0;
  // The metal over the ore, in percent; none without ore.
  std::optional<double> meanTenor;
};

// Scans every triangle between the elevations. A layer counts when its lithology is
// `lithology` and, with a limit, its tenor lies strictly above it (the scan's test).
std::vector<BenchRow> benchScan(ReportProject& project,
                                const std::vector<StoredTriangle>& triangles, const Bench& bench,
                                const std::string& lithology, std::optional<double> limit);
BenchTotals benchTotals(const std::vector<BenchRow>& rows);

}  // namespace tri::report
