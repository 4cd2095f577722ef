#include "triangles/drawing_session.h"

#include <gtest/gtest.h>

namespace tri {

DrawingSession::DrawingSession(const std::string& workbook, const std::string& lithology,
                               const std::string& drawing) {
  path = createProject(fixture(workbook));
  const auto& items = state.ui.combo4.items();
  for (size_t i = 1; i < items.size(); ++i) {
    if (items[i] == lithology) state.ui.combo4.setListIndex(static_cast<int>(i));
  }
  EXPECT_EQ(state.ui.combo4.text(), lithology);
  addDrawing(drawing);
}

void DrawingSession::addDrawing(const std::string& name) {
  dialogs.answerInput(name, "Name the Drawing.");
  run("Mncizek_Click");
}

void DrawingSession::addLimit(const std::string& limit) {
  dialogs.answerInput(limit, "Enter Limit Grade Value (%) :");
  run("Mnlimekle_Click");
}

void DrawingSession::pickTriangle(double x1, double y1, double x2, double y2, double x3,
                                  double y3) {
  click(x1, y1);
  click(x2, y2);
  click(x3, y3);
}

Summary summaryOf(const StoredTable& t, int row) {
  return {t.number(row, "ilkuz"), t.number(row, "geneltenor"), t.number(row, "genelyog"),
          t.number(row, "kubaj"), t.number(row, "tonaj"),      t.number(row, "genelrezerv"),
          t.number(row, "ill")};
}

void PrintTo(const Summary& v, std::ostream* os) {
  *os << "{ilkuz " << v.ilkuz << ", tenor " << v.geneltenor << ", yog " << v.genelyog << ", kubaj "
      << v.kubaj << ", tonaj " << v.tonaj << ", rezerv " << v.genelrezerv << ", ill " << v.ill
      << "}";
}

}  // namespace tri
