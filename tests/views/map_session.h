// A project of the cluster workbook (holes C-01 .. C-14, 50 m apart) with drawings and limit
// tables written straight into its file, so that the views can be fed any stored values.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "support/session.h"

namespace tri {

// A triangle between three holes (numbers from 1) with the tenor and reserve its summary
// row stores, in thousandths.
struct StoredTriangle {
  std::array<int, 3> holes;
  int tenor = 0;
  int reserve = 0;
};

// A limit table of the drawing: the limit's text and its triangles.
struct StoredLimit {
  std::string text;
  std::vector<StoredTriangle> triangles;
};

struct MapSession : Session {
  MapSession() { path = createProject(fixture("cluster.xls")); }
  explicit MapSession(const std::vector<StoredTriangle>& triangles) : MapSession() {
    showDrawing(triangles);
  }

  // Writes the drawing "plan1" of lithology ore with its limit tables, opens the project
  // again and selects ore and the drawing.
  void showDrawing(const std::vector<StoredTriangle>& triangles,
                   const std::vector<StoredLimit>& limits = {});
  // The operations of a kind since the canvas was last cleared.
  std::vector<CanvasOp> drawn(CanvasOp::Kind kind) const;

  std::string path;
};

}  // namespace tri
