// A session with a project, a lithology selected and a drawing ready for triangle entry.
#pragma once

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

  StoredTable table(const std::string& name) const { return readTable(path, name); }

  std::string path;
};

}  // namespace tri
