// The arithmetic of the triangle method: corner means weighted by length and density, the
// triangle's means of its corners, and its mean ore length.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tri {

// One layer of a hole's log, in percent, t/m³ and metres.
struct Layer {
  std::string lit;
  double ten = 0;
  double yog = 0;
  double uz = 0;
};

// The running sums of a corner's ore layers: the ore length, and the weights of its tenor
// (S1 = sum of uz x yog x ten, S2 = sum of uz x yog) and of its density (S3 = sum of
// uz x yog, S4 = sum of uz).
struct CornerSums {
  double length = 0;
  double s1 = 0;
  double s2 = 0;
  double s3 = 0;
  double s4 = 0;
};

// Adds to `sums`, in layer order, every layer whose lithology is `lithology` and, when a
// cut-off is given, whose tenor is at or above it. The sums go on from what they hold.
void addOreLayers(CornerSums& sums, const std::vector<Layer>& layers, const std::string& lithology,
                  std::optional<double> cutoff = std::nullopt);

// Per corner 1..3: ore length (the sum of the ore layers' lengths), tenor (weighted by
// length times density) and density (weighted by length).
struct CornerMeans {
  std::array<double, 4> length{};
  std::array<double, 4> tenor{};
  std::array<double, 4> density{};
};

struct TriangleMeans {
  double tenor = 0;
  double density = 0;
  double length = 0;
};

// The mean ore length of the corners that have ore: a third of the sum when all three
// have it, the one length itself, or the mean of two; 0 when none has ore.
double meanOreLength(const std::array<double, 4>& length);

// Sums over the corners, products in the order written: T D L, D L and L.
double gradeSum(const CornerMeans& m);
double weightedSum(const CornerMeans& m);
double lengthSum(const CornerMeans& m);

// The triangle's means with unguarded divisions: a triangle without ore divides by 0.
TriangleMeans triangleMeans(const CornerMeans& m);
// The triangle's means with every division guarded: what would divide by 0 is 0.
TriangleMeans guardedTriangleMeans(const CornerMeans& m);

// a / b, or 0 when either is 0.
inline double guardedRatio(double a, double b) { return (a == 0 || b == 0) ? 0 : a / b; }

}  // namespace tri
