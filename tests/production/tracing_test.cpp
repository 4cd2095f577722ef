// Production, Area, Draw: the rubber line that follows the pointer from the last corner of the
// outline under way, in point and in free tracing.
#include <gtest/gtest.h>

#include "production/plane_session.h"

namespace tri {
namespace {

TEST(Tracing, TheRubberLineRunsFromTheLastCornerToThePointer) {
  // Set 1 has points at (520, 820) and (630, 820).
  PlaneSession s;
  s.readPlane({planeSheet({{{520, 820}, {630, 820}}})}, {rgb(255, 0, 0)});
  s.run("Mnnuciz_Click");
  const LineControl& line = s.state.ui.line1;
  s.move(600, 900);
  EXPECT_FALSE(line.visible);
  s.click(521, 819);
  s.click(629, 821);
  s.move(600, 900);
  EXPECT_TRUE(line.visible && line.color == 0 && line.width == 1);
  EXPECT_EQ(std::vector<double>({line.x1, line.y1, line.x2, line.y2}),
            std::vector<double>({630, 820, 600, 900}));
  s.click(1, 1, 2);
  EXPECT_FALSE(line.visible);
  s.run("Mnsuciz_Click");
  s.click(540.5, 860);
  s.move(600, 900);
  EXPECT_EQ(std::vector<double>({line.x1, line.y1}), std::vector<double>({540.5, 860}));
}

}  // namespace
}  // namespace tri
