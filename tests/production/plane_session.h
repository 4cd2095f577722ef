// A session over the cluster project (holes C-01 .. C-14, x 500 to 650, y 800 to 950), or
// another, whose plane workbook is read from sheets in memory.
#pragma once

#include <string>
#include <vector>

#include "platform/sheet.h"
#include "support/session.h"
#include "support/temp_dir.h"

namespace tri {

// The point sets of a plane workbook, each in its pair of columns.
using PointSets = std::vector<std::vector<ClickCorner>>;
GridSheet planeSheet(const PointSets& sets);

struct PlaneSession : Session {
  explicit PlaneSession(const std::string& workbook = fixture("cluster.xls"));

  // Runs Mnauis_Click; the workbook's first reading gives the first sheet, later readings
  // the last. Each set takes the next colour of `colors`.
  void readPlane(const std::vector<GridSheet>& readings, const std::vector<Color>& colors);

  std::string path;
};

}  // namespace tri
