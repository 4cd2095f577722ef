#include "report/figures.h"

#include <cmath>
#include <cstdint>

#include "platform/vbtext.h"
#include "store/ondayaz.h"

namespace tri::report {

namespace {

// A figure as the file holds it: thousandths, truncated.
std::int64_t thousandths(double x) { return static_cast<std::int64_t>(ondayaz(x)); }
// A figure read back from the file, divided by 1000, as exact thousandths again.
std::int64_t storedThousandths(double x) { return std::llround(x * 1000); }

std::optional<double> ratio(double a, double b) {
  if (b == 0) return std::nullopt;
  return a / b;
}

// The layers of each hole in the lithology, in log order: the only ones a cut-off can keep.
std::vector<std::vector<Layer>> oreLayersByHole(const ProjectLogs& logs,
                                                const std::string& lithology) {
  std::vector<std::vector<Layer>> ore(logs.holes.size());
  for (size_t i = 1; i < logs.holes.size(); ++i) {
    for (const Layer& layer : logs.holes[i].layers) {
      if (layer.lit == lithology) ore[i].push_back(layer);
    }
  }
  return ore;
}

const std::vector<Layer>& layersOf(const std::vector<std::vector<Layer>>& byHole, int hole) {
  static const std::vector<Layer> none;
  if (hole < 1 || static_cast<size_t>(hole) >= byHole.size()) return none;
  return byHole[static_cast<size_t>(hole)];
}

}  // namespace

TableTotals totalsOf(const std::vector<StoredTriangle>& triangles) {
  TableTotals totals;
  std::int64_t area = 0, cubage = 0, tonnage = 0, reserve = 0;
  double areaTenor = 0, cubageTenor = 0, areaDensity = 0, cubageDensity = 0;
  for (const StoredTriangle& t : triangles) {
    area += storedThousandths(t.area);
    cubage += storedThousandths(t.cubage);
    tonnage += storedThousandths(t.tonnage);
    reserve += storedThousandths(t.reserve);
    areaTenor += t.area * t.tenor;
    cubageTenor += t.cubage * t.tenor;
    areaDensity += t.area * t.density;
    cubageDensity += t.cubage * t.density;
  }
  totals.triangles = static_cast<int>(triangles.size());
  totals.area = static_cast<double>(area) / 1000;
  totals.cubage = static_cast<double>(cubage) / 1000;
  totals.tonnage = static_cast<double>(tonnage) / 1000;
  totals.reserve = static_cast<double>(reserve) / 1000;
  // The sums of ill and kubaj as the overlays take them: over the values as read.
  double areaSum = 0, cubageSum = 0;
  for (const StoredTriangle& t : triangles) {
    areaSum += t.area;
    cubageSum += t.cubage;
  }
  totals.areaTenor = ratio(areaTenor, areaSum);
  totals.cubageTenor = ratio(cubageTenor, cubageSum);
  totals.areaDensity = ratio(areaDensity, areaSum);
  totals.cubageDensity = ratio(cubageDensity, cubageSum);
  return totals;
}

std::vector<GradeTonnageRow> gradeTonnage(const std::vector<StoredTriangle>& triangles,
                                          const ProjectLogs& logs, const std::string& lithology,
                                          const std::vector<double>& cutoffs,
                                          const std::function<void(size_t)>& progress) {
  const std::vector<std::vector<Layer>> ore = oreLayersByHole(logs, lithology);
  std::vector<GradeTonnageRow> rows;
  rows.reserve(cutoffs.size());
  for (double cutoff : cutoffs) {
    GradeTonnageRow row;
    row.cutoff = cutoff;
    std::int64_t tonnage = 0, reserve = 0, cubage = 0;
    for (const StoredTriangle& t : triangles) {
      CornerMeans corners;
      for (int k = 1; k <= 3; ++k) {
        const std::vector<Layer>& layers = layersOf(ore, t.vertices[k].hole);
        if (layers.empty()) continue;
        CornerSums sums;
        addOreLayers(sums, layers, lithology, cutoff);
        corners.length[k] = sums.length;
        corners.tenor[k] = guardedRatio(sums.s1, sums.s2);
        corners.density[k] = guardedRatio(sums.s3, sums.s4);
      }
      const TriangleMeans means = guardedTriangleMeans(corners);
      const double m = t.area * means.length;
      const double n = m * means.density;
      const double metal = (means.tenor / 100) * n;
      const std::int64_t triangleTonnage = thousandths(n / 1000);
      if (triangleTonnage > 0) ++row.oreTriangles;
      tonnage += triangleTonnage;
      reserve += thousandths(metal / 1000);
      cubage += thousandths(m / 1000);
    }
    row.tonnage = static_cast<double>(tonnage) / 1000;
    row.reserve = static_cast<double>(reserve) / 1000;
    row.cubage = static_cast<double>(cubage) / 1000;
    if (tonnage != 0) row.meanTenor = 100.0 * static_cast<double>(reserve) / tonnage;
    rows.push_back(row);
    if (progress) progress(rows.size());
  }
  return rows;
}

std::vector<double> parseCutoffs(const std::string& text) {
  const std::string wanted = "--cutoffs wants FROM:TO:STEP with a positive STEP, such as 0:3:0.1";
  std::vector<std::string> parts;
  size_t start = 0;
  for (size_t colon; (colon = text.find(':', start)) != std::string::npos; start = colon + 1) {
    parts.push_back(text.substr(start, colon - start));
  }
  parts.push_back(text.substr(start));
  if (parts.size() != 3) throw BadInput("malformed range \"" + text + "\": " + wanted);
  double values[3];
  for (int i = 0; i < 3; ++i) {
    if (!isNumberText(parts[static_cast<size_t>(i)])) {
      throw BadInput("malformed range \"" + text + "\": \"" + parts[static_cast<size_t>(i)] +
                     "\" is no number; " + wanted);
    }
    values[i] = toNumber(parts[static_cast<size_t>(i)]);
  }
  const double from = values[0], to = values[1], step = values[2];
  if (!(step > 0)) throw BadInput("malformed range \"" + text + "\": " + wanted);
  if (from > to) throw BadInput("malformed range \"" + text + "\": FROM is above TO");
  const double count = std::floor((to - from) / step + 1e-6) + 1;
  if (count > 100000) throw BadInput("range \"" + text + "\" has more than 100000 cut-offs");
  std::vector<double> cutoffs;
  for (int i = 0; i < static_cast<int>(count); ++i) {
    // Through its general text, so 0.1 + 2 x 0.1 is the 0.3 that a typed limit would be.
    cutoffs.push_back(toNumber(numberText(from + i * step)));
  }
  return cutoffs;
}

std::string verdictText(LayerVerdict verdict, const std::string& lithology,
                        std::optional<double> limit) {
  switch (verdict) {
    case LayerVerdict::Counted: return "counted";
    case LayerVerdict::OtherLithology: return "not counted: not " + lithology;
    case LayerVerdict::CutBySelectCut: return "not counted: cut out by Select-Cut";
    case LayerVerdict::BelowLimit:
      return "not counted: tenor below the limit " + numberText(limit.value_or(0));
  }
  return "";
}

double planeArea(const TriangleCorners& c) {
  const double a = (c.x[2] - c.x[3]) * c.y[1];
  const double b = (c.x[3] - c.x[1]) * c.y[2];
  const double d = (c.x[1] - c.x[2]) * c.y[3];
  return std::fabs((a + b + d) / 2);
}

Explanation explainTriangle(const StoredTriangle& triangle, const ProjectLogs& logs,
                            const std::string& lithology, std::optional<double> limit) {
  Explanation e;
  CornerMeans means;
  TriangleCorners corners;
  for (int k = 1; k <= 3; ++k) {
    const VertexRow& vertex = triangle.vertices[k];
    corners.x[k] = vertex.x;
    corners.y[k] = vertex.y;
    ExplainedCorner& corner = e.corners[k];
    corner.hole = vertex.hole;
    corner.log = logs.hole(vertex.hole);
    const std::string corner_ =
        "corner " + std::to_string(k) + " (hole " + std::to_string(vertex.hole) + ")";
    if (!corner.log) {
      e.causes.push_back(corner_ + " is no longer in the list of holes: holes were removed " +
                         "since the triangle was entered");
      continue;
    }
    if (corner.log->x != vertex.x || corner.log->y != vertex.y) {
      e.causes.push_back(corner_ + " is now " + corner.log->name + " at (" +
                         numberText(corner.log->x) + ", " + numberText(corner.log->y) +
                         "), not at the corner (" + numberText(vertex.x) + ", " +
                         numberText(vertex.y) + "): a hole was removed and the holes " +
                         "renumbered since the triangle was entered");
    }
    int cut = 0;
    for (const Layer& layer : corner.log->layers) {
      ExplainedLayer explained{layer, LayerVerdict::Counted};
      if (layer.lit == lithology + "cev") {
        explained.verdict = LayerVerdict::CutBySelectCut;
        ++cut;
      } else if (layer.lit != lithology) {
        explained.verdict = LayerVerdict::OtherLithology;
      } else if (limit && !(layer.ten >= *limit)) {
        explained.verdict = LayerVerdict::BelowLimit;
      }
      corner.layers.push_back(explained);
    }
    addOreLayers(corner.sums, corner.log->layers, lithology, limit);
    corner.length = corner.sums.length;
    corner.tenor = guardedRatio(corner.sums.s1, corner.sums.s2);
    corner.density = guardedRatio(corner.sums.s3, corner.sums.s4);
    means.length[k] = corner.length;
    means.tenor[k] = corner.tenor;
    means.density[k] = corner.density;
    if (cut > 0) {
      e.causes.push_back(corner_ + " " + corner.log->name + ": " + std::to_string(cut) +
                         " layer(s) of its log cut out by Select-Cut (now \"" + lithology +
                         "cev\"); a cut made after the triangle was entered changes it");
    }
    if (!limit && corner.length == 0) {
      e.causes.push_back(corner_ + " has no " + lithology +
                         " layer now: the drawing's arithmetic would divide by 0");
    }
  }
  e.means = guardedTriangleMeans(means);
  const TriangleMeans& m = e.means;
  if (limit) {
    // A limit study's arithmetic, over the stored area.
    e.area = triangle.area;
    const double cubage = e.area * m.length;
    const double tonnage = cubage * m.density;
    e.cubage = cubage / 1000;
    e.tonnage = tonnage / 1000;
    e.reserve = (m.tenor / 100) * tonnage / 1000;
  } else {
    // The drawing's arithmetic, over the area of the corners.
    e.area = planeArea(corners);
    const double q2 = m.length * e.area;
    e.cubage = q2 / 1000;
    e.tonnage = q2 * m.density / 1000;
    e.reserve = m.length * e.area * ((m.tenor / 100) * m.density) / 1000;
  }
  return e;
}

}  // namespace tri::report
