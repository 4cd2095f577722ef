// A session with a project, a lithology selected and a drawing ready for triangle entry.
#pragma once

#include <ostream>
#include <string>

#include "support/session.h"
#include "support/stored_table.h"

namespace tri {

struct DrawingSession : Session {
  // Creates the project from a fixture workbook, selects the lithology by its name and
  // adds a drawing of that name.
  DrawingSession(const std::string& workbook, const std::string& lithology,
                 const std::string& drawing = "Kuzey");

  void addDrawing(const std::string& name);
  // Adds a limit tenor to the selected drawing.
  void addLimit(const std::string& limit);
  // Left clicks at three points.
  void pickTriangle(double x1, double y1, double x2, double y2, double x3, double y3);
  // worked_example.xls: A (100, 100), B (150, 100), C (100, 140).
  void pickABC() { pickTriangle(100, 100, 150, 100, 100, 140); }
  void pickCBA() { pickTriangle(100, 140, 150, 100, 100, 100); }

  StoredTable table(const std::string& name) const { return readTable(path, name); }

  std::string path;
};

// The stored values of a summary row, in thousandths.
struct Summary {
  long ilkuz, geneltenor, genelyog, kubaj, tonaj, genelrezerv, ill;
  bool operator==(const Summary&) const = default;
};
Summary summaryOf(const StoredTable& t, int row);
void PrintTo(const Summary& v, std::ostream* os);

// The worked example's triangle A B C: lengths 10, 20, 30, tenors 2, 3, 4, densities 2,
// 2.5, 3 and an area of 1000 m².
inline constexpr Summary kWorkedExample{20000, 3437, 2666, 20000, 53333, 1833, 1000000};

}  // namespace tri
