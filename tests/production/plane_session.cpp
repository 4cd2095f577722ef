#include "production/plane_session.h"

#include <memory>

namespace tri {

GridSheet planeSheet(const PointSets& sets) {
  GridSheet sheet;
  for (size_t p = 0; p < sets.size(); ++p) {
    for (size_t r = 0; r < sets[p].size(); ++r) {
      sheet.setNumber(static_cast<int>(r + 1), static_cast<int>(2 * p + 1), sets[p][r].x);
      sheet.setNumber(static_cast<int>(r + 1), static_cast<int>(2 * p + 2), sets[p][r].y);
    }
  }
  return sheet;
}

PlaneSession::PlaneSession(const std::string& workbook) { path = createProject(workbook); }

void PlaneSession::readPlane(const std::vector<GridSheet>& readings,
                             const std::vector<Color>& colors) {
  auto sheets = std::make_shared<std::vector<GridSheet>>(readings);
  auto opened = std::make_shared<size_t>(0);
  state.openSheet = [sheets, opened](const std::string&) {
    return std::make_unique<GridSheet>((*sheets)[std::min((*opened)++, sheets->size() - 1)]);
  };
  dialogs.answerOpen("plane.xls", "Select File with Coordinate Data");
  for (Color c : colors) dialogs.answerColor(c);
  run("Mnauis_Click");
}

}  // namespace tri
