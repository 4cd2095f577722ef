#include "triangles/reserve_math.h"

#include "platform/vbtext.h"

namespace tri {

void addOreLayers(CornerSums& sums, const std::vector<Layer>& layers, const std::string& lithology,
                  std::optional<double> cutoff) {
  for (const Layer& layer : layers) {
    if (layer.lit != lithology || (cutoff && !(layer.ten >= *cutoff))) continue;
    sums.length += layer.uz;
    sums.s1 += layer.uz * layer.yog * layer.ten;
    sums.s2 += layer.uz * layer.yog;
    sums.s3 += layer.uz * layer.yog;
    sums.s4 += layer.uz;
  }
}

double meanOreLength(const std::array<double, 4>& length) {
  if (length[1] != 0 && length[2] != 0 && length[3] != 0) {
    return (length[1] + length[2] + length[3]) / 3;
  }
  double sum = 0;
  int withOre = 0;
  for (int k = 1; k <= 3; ++k) {
    if (length[k] == 0) continue;
    sum += length[k];
    ++withOre;
  }
  if (withOre == 1) return sum;
  if (withOre == 2) return sum / 2;
  return 0;
}

double gradeSum(const CornerMeans& m) {
  return m.tenor[1] * m.density[1] * m.length[1] + m.tenor[2] * m.density[2] * m.length[2] +
         m.tenor[3] * m.density[3] * m.length[3];
}

double weightedSum(const CornerMeans& m) {
  return m.density[1] * m.length[1] + m.density[2] * m.length[2] + m.density[3] * m.length[3];
}

double lengthSum(const CornerMeans& m) { return m.length[1] + m.length[2] + m.length[3]; }

TriangleMeans triangleMeans(const CornerMeans& m) {
  TriangleMeans t;
  t.tenor = divide(gradeSum(m), weightedSum(m), "tenor of a triangle without ore");
  t.density = divide(weightedSum(m), lengthSum(m), "density of a triangle without ore");
  t.length = meanOreLength(m.length);
  return t;
}

TriangleMeans guardedTriangleMeans(const CornerMeans& m) {
  TriangleMeans t;
  const double weights = weightedSum(m);
  t.tenor = guardedRatio(gradeSum(m), weights);
  t.density = guardedRatio(weights, lengthSum(m));
  t.length = meanOreLength(m.length);
  return t;
}

}  // namespace tri
