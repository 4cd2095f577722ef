// The production tour over the sample project, read back from the project file: an area
// traced on the points of a sample set and one traced freely, both closed; a second plane
// keeps them, and deleting the areas frees every slot of both tables.
#include <gtest/gtest.h>

#include <cmath>

#include "production/plane_session.h"
#include "support/stored_table.h"

namespace tri {
namespace {

// The first set of samples/demo-points.xls: the ring of the central stope.
const std::vector<ClickCorner> kCentralStope = {
    {1387.8, 2189.9}, {1376.8, 2227.6}, {1329.1, 2250.5}, {1283.2, 2250.3}, {1229.2, 2228.8},
    {1214.9, 2193.6}, {1239.3, 2147.9}, {1283.0, 2122.0}, {1329.5, 2125.0}, {1373.8, 2143.7}};

// The slots of both tables that are not free ("bas" in the head row, "al" below).
size_t usedSlots(const std::string& path) {
  size_t used = 0;
  for (const char* name : {"aukor", "askor"}) {
    const StoredTable t = readTable(path, name);
    EXPECT_EQ(t.rows.size(), 1000u);
    EXPECT_EQ(t.fields.size(), 150u);
    for (size_t r = 0; r < t.rows.size(); ++r) {
      for (size_t f = 2; f < t.fields.size(); f += 3) {
        used += t.rows[r][f] != Value(std::string(r == 0 ? "bas" : "al"));
      }
    }
  }
  return used;
}

void readSamplePlane(PlaneSession& s) {
  s.dialogs.answerOpen(sample("demo-points.xls"));
  for (int p = 1; p <= 4; ++p) s.dialogs.answerColor(rgb(60 * p, 0, 0));
  s.run("Mnauis_Click");
}

TEST(SampleProduction, TwoAreasAreStoredKeptByTheNextPlaneAndDeleted) {
  PlaneSession s(sample("demo-holes.xls"));
  readSamplePlane(s);
  EXPECT_EQ(s.state.production.planesay, 4);
  EXPECT_EQ(usedSlots(s.path), 0u);
  s.run("Mnnuciz_Click");
  for (const ClickCorner& p : kCentralStope) s.click(p.x + 1.5, p.y - 2);
  s.click(kCentralStope[0].x - 1, kCentralStope[0].y + 1);
  s.run("Mnsuciz_Click");
  for (auto [x, y] :
       {std::pair{1420.0, 2360.0}, {1545.5, 2350.0}, {1540.0, 2460.0}, {1423.0, 2357.0}}) {
    s.click(x, y);
  }

  std::vector<std::string> ring;
  for (size_t k = 0; k <= kCentralStope.size(); ++k) {
    const ClickCorner& p = kCentralStope[k % kCentralStope.size()];
    ring.push_back("nal1nokb" + std::to_string(k + 1) + " " +
                   std::to_string(std::lround(p.x * 1000)) + " " +
                   std::to_string(std::lround(p.y * 1000)));
  }
  const std::vector<std::string> free = {"sal1nokb1 1420000 2360000", "sal1nokb2 1545500 2350000",
                                         "sal1nokb3 1540000 2460000", "sal1nokb4 1420000 2360000"};
  EXPECT_EQ(s.outline("aukor", 1), ring);
  EXPECT_EQ(s.outline("askor", 1), free);
  EXPECT_EQ(usedSlots(s.path), 11u + 4u);

  readSamplePlane(s);
  EXPECT_EQ(s.outline("aukor", 1), ring);
  EXPECT_EQ(s.outline("askor", 1), free);

  s.run("Mnuasil_Click");
  EXPECT_EQ(usedSlots(s.path), 0u);
  EXPECT_EQ(s.state.ui.label(1), "Drawings deleted");
}

}  // namespace
}  // namespace tri
