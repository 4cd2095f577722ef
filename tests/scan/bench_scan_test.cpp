// The scan of one triangle over logs given in memory: the cut of each layer against the
// bench, the layer tests, the corner sums and the triangle's means.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "scan/bench_scan.h"
#include "triangles/reserve_math.h"

namespace tri {
namespace {

struct Hole {
  double x, y, cevgir;
  std::vector<Layer> layers;
};

// Loads the holes as the log reading would and scans the triangle (0, 0), (10, 0), (0, 10).
ScanMeans scanHoles(Scan& sc, const std::vector<Hole>& holes, Bench bench,
                    const LayerFilter& filter = {"ore", "Limit Tenor"}) {
  for (int i = 1; i <= static_cast<int>(holes.size()); ++i) {
    const Hole& h = holes[static_cast<size_t>(i - 1)];
    sc.sondx[i] = h.x;
    sc.sondy[i] = h.y;
    sc.cevgir[i] = h.cevgir;
    sc.layersay[i] = static_cast<int>(h.layers.size());
    sc.layers[i].clear();
    for (const Layer& l : h.layers) sc.layers[i].push_back({l.ten, l.yog, l.uz, l.lit});
  }
  indexScanHoles(sc, static_cast<int>(holes.size()));
  TriangleCorners c;
  c.x = {0, 0, 10, 0};
  c.y = {0, 0, 0, 10};
  return scanTriangle(sc, c, bench, filter);
}

// One ore layer of tenor 2 and density 2.5 from `top` down, against the bench.
TEST(BenchScan, CutsALayerByTheCaseItMeets) {
  struct {
    const char* name;
    double top, uz;
    Bench bench;
    double upper, length, row2Upper;
  } const cases[] = {
      {"holds the whole bench", 110, 40, {100, 80}, 100, 20, 80},
      {"crosses the upper elevation", 105, 10, {100, 80}, 100, 5, 0},
      {"begins at the upper elevation", 100, 10, {100, 80}, 100, 10, 0},
      {"ends exactly at the upper elevation", 110, 10, {100, 80}, 100, 0, 0},
      {"lies inside", 95, 10, {100, 80}, 0, 10, 0},
      {"ends at the lower elevation", 90, 10, {100, 80}, 80, 10, 0},
      {"crosses the lower elevation", 85, 10, {100, 80}, 80, 5, 0},
      {"starts at the lower elevation", 80, 10, {100, 80}, 0, 0, 0},
      {"lies above the bench", 130, 10, {100, 80}, 0, 0, 0},
      {"meets a bench with Up below Down", 105, 10, {80, 100}, 80, 20, 100},
      {"meets a bench with Up equal to Down", 110, 20, {90, 90}, 90, 0, 90},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Scan sc;
    scanHoles(sc, {{0, 0, c.top, {{"ore", 2, 2.5, c.uz}}}}, c.bench);
    const Slice& row = sc.slicetab(1, 1);
    EXPECT_DOUBLE_EQ(row.upper, c.upper);
    EXPECT_DOUBLE_EQ(row.length, c.length);
    // A piece of length 0 keeps its tenor and density but weighs nothing.
    const bool piece = c.upper != 0 || c.length != 0;
    EXPECT_DOUBLE_EQ(row.tenor + row.density, piece ? 4.5 : 0);
    EXPECT_DOUBLE_EQ(sc.slicetab(1, 2).upper, c.row2Upper);
    EXPECT_DOUBLE_EQ(sc.koseuz[1], c.length);
    EXPECT_DOUBLE_EQ(sc.kosetenor[1], c.length != 0 ? 2 : 0);
  }
}

TEST(BenchScan, OtherLithologiesMoveTheTopAndTheLimitIsStrict) {
  // 105-95 ore (5 m in the bench), 95-90 waste, 90-80 ore of tenor 2, 80-70 below.
  const Hole hole{0, 0, 105, {{"ore", 1, 2, 10}, {"waste", 9, 3, 5}, {"ore", 2, 2.5, 10}}};
  Scan sc;
  scanHoles(sc, {hole}, {100, 80});
  EXPECT_DOUBLE_EQ(sc.koseuz[1], 15);
  EXPECT_DOUBLE_EQ(sc.kosetenor[1], 60.0 / 35);  // (5 x 1 x 2 + 10 x 2 x 2.5) / (10 + 25)
  EXPECT_DOUBLE_EQ(sc.koseyog[1], 35.0 / 15);
  scanHoles(sc, {hole}, {100, 80}, {"ore", "1.999"});
  EXPECT_DOUBLE_EQ(sc.koseuz[1], 10);
  scanHoles(sc, {hole}, {100, 80}, {"ore", "2"});
  EXPECT_DOUBLE_EQ(sc.koseuz[1], 0) << "a tenor equal to the limit";
  try {
    scanHoles(sc, {hole}, {100, 80}, {"ore", "2,5"});
    FAIL() << "a limit that is no number";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::TypeMismatch);
  }
}

// (0, 0): 10 m of tenor 2, density 2; (10, 0): 20 m of 3, 2.5; (0, 10): waste, then 5 m of
// 4, 3 and 10 m of 1, 2.
const std::vector<Hole> kThreeCorners = {
    {0, 0, 100, {{"ore", 2, 2, 10}}},
    {10, 0, 100, {{"ore", 3, 2.5, 30}}},
    {0, 10, 100, {{"waste", 1, 2, 5}, {"ore", 4, 3, 5}, {"ore", 1, 2, 20}}},
};

TEST(BenchScan, WeighsTheCornersAndSkipsACornerWithoutOre) {
  Scan sc;
  const ScanMeans means = scanHoles(sc, kThreeCorners, {100, 80});
  EXPECT_DOUBLE_EQ(sc.kosetenor[3], 80.0 / 35);
  // N = 40 + 150 + 80, D = 20 + 50 + 35, S = 45
  EXPECT_DOUBLE_EQ(means.tenor, 270.0 / 105);
  EXPECT_DOUBLE_EQ(means.density, 105.0 / 45);
  EXPECT_DOUBLE_EQ(means.length, 15);
  EXPECT_NEAR(means.reserve(500), 450, 1e-9);
  EXPECT_DOUBLE_EQ(keptCentreX(sc), 10.0 / 3);

  // Without the hole of the third corner: the mean of two lengths, and the corner kept at 0.
  Scan two;
  const ScanMeans twoMeans = scanHoles(two, {kThreeCorners[0], kThreeCorners[1]}, {100, 80});
  EXPECT_DOUBLE_EQ(twoMeans.length, 15);
  EXPECT_DOUBLE_EQ(twoMeans.tenor, 190.0 / 70);
  EXPECT_DOUBLE_EQ(keptCentreY(two), 0);
}

TEST(BenchScan, TwoHolesOnACornerShareItsRowsAndTheLastCountsThem) {
  Scan sc;
  scanHoles(sc,
            {{0, 0, 100, {{"ore", 1, 2, 5}, {"ore", 2, 2, 5}, {"ore", 3, 2, 5}}},
             {0, 0, 100, {{"ore", 4, 3, 8}, {"waste", 1, 2, 5}}}},
            {100, 80});
  // Rows 8 m of 4 (second hole), 5 m of 2 and 5 m of 3 (first): the second hole's two count.
  EXPECT_DOUBLE_EQ(sc.koseuz[1], 13);
  EXPECT_DOUBLE_EQ(sc.kosetenor[1], 116.0 / 34);

  // The next triangle starts from empty rows.
  clearKeptCorners(sc);
  scanHoles(sc, {{0, 0, 110, {{"waste", 2, 2, 40}}}}, {100, 80});
  EXPECT_EQ(sc.slicetab(1, 2).length + sc.slicetab(1, 3).tenor + sc.koseuz[1], 0);
}

}  // namespace
}  // namespace tri
