// The repaint of the triangle network, beside the scenario network: the table it reads
// and the holes it shows.
#include <gtest/gtest.h>

#include <algorithm>

#include "triangles/drawing_session.h"

namespace tri {
namespace {

std::vector<std::string> opsOf(const Canvas& c, CanvasOp::Kind kind) {
  std::vector<std::string> ops;
  for (const CanvasOp& op : c.log()) {
    if (op.kind == kind) ops.push_back(op.describe());
  }
  return ops;
}

bool has(const std::vector<std::string>& ops, const std::string& op) {
  return std::find(ops.begin(), ops.end(), op) != ops.end();
}

TEST(TriangleDisplay, TheSelectorsChooseTheTableShown) {
  DrawingSession s("worked_example.xls", "ore");
  s.pickABC();
  s.addLimit("1");
  writeStored(s.path, "1Kuzey", 2, "koordinat1", 120000);
  const std::pair<int, std::string> choices[] = {{1, "line 120 100 150 100 color=0 width=1"},
                                                 {0, "line 100 100 150 100 color=0 width=1"}};
  for (const auto& [limit, side] : choices) {
    s.state.ui.combo1.setListIndex(limit);
    s.canvas.clearLog();
    s.run("ucgenplan");
    EXPECT_TRUE(has(opsOf(s.canvas, CanvasOp::Kind::Line), side)) << limit;
  }
}

TEST(TriangleDisplay, AnEmptyDrawingShowsItsHolesUpToAPointName) {
  DrawingSession s("worked_example.xls", "ore");
  s.canvas.clearLog();
  s.run("ucgenplan");
  EXPECT_TRUE(opsOf(s.canvas, CanvasOp::Kind::Line).empty());
  EXPECT_EQ(opsOf(s.canvas, CanvasOp::Kind::Point).size(), 3u);
  // A point name in kor ends the list of holes shown.
  writeStored(s.path, "kor", 2, "isim", std::string("uz-2"));
  s.canvas.clearLog();
  s.run("ucgenplan");
  EXPECT_EQ(opsOf(s.canvas, CanvasOp::Kind::Point).size(), 1u);
}

}  // namespace
}  // namespace tri
