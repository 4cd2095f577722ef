// The repaint of the triangle network.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/fault.h"
#include "triangles/commands.h"
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

struct TwoTriangles : DrawingSession {
  TwoTriangles() : DrawingSession("worked_example.xls", "ore") {
    pickTriangle(100, 100, 150, 100, 100, 140);
    pickTriangle(150, 100, 100, 140, 100, 100);
    canvas.clearLog();
  }
};

TEST(TriangleDisplay, DrawsEveryTriangleAndKeepsItsCorners) {
  TwoTriangles s;
  s.run("ucgenplan");
  const auto lines = opsOf(s.canvas, CanvasOp::Kind::Line);
  EXPECT_EQ(lines.size(), 6u);
  // Third to second, third to first, first to second.
  EXPECT_EQ(lines[0], "line 100 140 150 100 color=0 width=1");
  EXPECT_EQ(lines[1], "line 100 140 100 100 color=0 width=1");
  EXPECT_EQ(lines[2], "line 100 100 150 100 color=0 width=1");
  EXPECT_EQ(lines[3], "line 100 100 100 140 color=0 width=1");
  const Display& d = s.state.display;
  EXPECT_EQ(d.x1[2], 150);
  EXPECT_EQ(d.y2[2], 140);
  EXPECT_EQ(d.x3[2], 100);
  EXPECT_EQ(opsOf(s.canvas, CanvasOp::Kind::Point).size(), 3u);
  EXPECT_EQ(s.canvas.log().front().kind, CanvasOp::Kind::Clear);
  EXPECT_FALSE(s.state.ui.visible("Frame1"));
  EXPECT_TRUE(s.state.ui.visible("Picture1"));
}

TEST(TriangleDisplay, WalksTheSummaryRowOfEveryTriangle) {
  TwoTriangles s;
  {
    Database db = Database::open(s.path);
    Recordset t = db.openTable("Kuzey");
    t.moveFirst();
    t.move(8);  // record 9: the second triangle's summary row
    t.edit();
    t.setNull("geneltenor");
    t.update();
  }
  try {
    s.run("ucgenplan");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::InvalidUseOfNull);
    EXPECT_NE(fault.message().find("geneltenor"), std::string::npos) << fault.message();
  }
}

TEST(TriangleDisplay, AChosenLimitShowsTheLimitTablesNetwork) {
  TwoTriangles s;
  s.addLimit("1");
  {
    Database db = Database::open(s.path);
    Recordset t = db.openTable("1Kuzey");
    t.moveFirst();
    t.move(1);
    t.edit();
    t.set("koordinat1", 120000);
    t.update();
  }
  s.canvas.clearLog();
  s.run("ucgenplan");
  EXPECT_TRUE(has(opsOf(s.canvas, CanvasOp::Kind::Line), "line 120 100 150 100 color=0 width=1"));
  s.state.ui.combo1.setListIndex(0);
  s.canvas.clearLog();
  s.run("ucgenplan");
  EXPECT_TRUE(has(opsOf(s.canvas, CanvasOp::Kind::Line), "line 100 100 150 100 color=0 width=1"));
}

TEST(TriangleDisplay, NoTableMeansNoTrianglesAndNoHoles) {
  TwoTriangles s;
  s.state.ui.combo2.setListIndex(0);
  s.canvas.clearLog();
  s.run("ucgenplan");
  EXPECT_TRUE(opsOf(s.canvas, CanvasOp::Kind::Line).empty());
  EXPECT_TRUE(opsOf(s.canvas, CanvasOp::Kind::Point).empty());
}

TEST(TriangleDisplay, AnEmptyDrawingShowsItsHolesAndNamesOnlyWhenAskedFor) {
  DrawingSession s("worked_example.xls", "ore");
  s.canvas.clearLog();
  s.run("ucgenplan");
  EXPECT_TRUE(opsOf(s.canvas, CanvasOp::Kind::Line).empty());
  EXPECT_EQ(opsOf(s.canvas, CanvasOp::Kind::Point).size(), 3u);
  EXPECT_TRUE(opsOf(s.canvas, CanvasOp::Kind::Text).empty());
  s.state.frame.sondgoster = true;
  s.canvas.clearLog();
  s.run("ucgenplan");
  EXPECT_TRUE(has(opsOf(s.canvas, CanvasOp::Kind::Text), "text 150 100 \"B\" color=255"));
}

}  // namespace
}  // namespace tri
