// The companion program's reports over a project file opened read-only, and its check of a
// drill-hole workbook: each sub-command a procedure that prints to `out` and returns the
// program's exit code.
#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>

#include "report/report_project.h"

namespace tri::report {

// What every sub-command takes besides its own options.
struct Output {
  std::ostream& out;
  bool csv = false;
  // Told how far a long piece of work has come: done of total, and what is counted.
  std::function<void(size_t done, size_t total, const char* what)> progress;
};

// --- reserve tables ---
int triangles(const std::string& path, const Selection& selection, Output& o);

// --- grade-tonnage curves; `plot` is called with the rows when a picture is wanted ---
struct GradeTonnageRow;
using PlotWriter =
    std::function<void(const std::vector<GradeTonnageRow>& rows, const std::string& title)>;
int gradeTonnage(const std::string& path, const Selection& selection, const std::string& cutoffs,
                 Output& o, const PlotWriter& plot);

// --- audits ---
int explain(const std::string& path, const Selection& selection, const std::string& triangle,
            Output& o);
int bench(const std::string& path, const Selection& selection, const std::string& up,
          const std::string& down, Output& o);

// --- workbook checks: 0 clean, 1 something found ---
int checkWorkbookFile(const std::string& path, Output& o);

}  // namespace tri::report
