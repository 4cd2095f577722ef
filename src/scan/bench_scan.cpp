#include "scan/bench_scan.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "canvas/selection.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "triangles/reserve_math.h"

namespace tri {

void readScanLogs(State& s, Database& db) {
  Scan& sc = s.scan;
  Recordset log = db.openTable(kLogTable);
  log.moveFirst();
  StoredLogReader reader(log);
  for (int i = 1; i <= s.holes.sondsay; ++i) {
    sc.sondx[i] = log.number(field::eks) / 1000;
    sc.sondy[i] = log.number(field::eye) / 1000;
    sc.cevgir[i] = log.number(field::cevgir) / 1000;
    std::vector<StoredLayer> stored = reader.layersOfCurrentRow();
    std::vector<ScanLayer>& layers = sc.layers[i];
    layers.resize(stored.size());
    for (size_t n = 0; n < stored.size(); ++n) {
      layers[n] = {stored[n].ten / 1000, stored[n].yog / 1000, stored[n].uz / 1000,
                   std::move(stored[n].lit)};
    }
    const int count = static_cast<int>(layers.size());
    // A log whose every slot holds a layer has no end mark to count by.
    if (count < kMaxLayers) sc.layersay[i] = count;
    log.moveNext();
  }
  indexScanHoles(sc, s.holes.sondsay);
}

namespace {

bool beforeHole(const Scan::HoleAt& a, const Scan::HoleAt& b) {
  return a.x < b.x || (a.x == b.x && a.y < b.y);
}

}  // namespace

void indexScanHoles(Scan& sc, int sondsay) {
  sc.holeIndex.clear();
  for (int i = 1; i <= sondsay; ++i) sc.holeIndex.push_back({sc.sondx[i], sc.sondy[i], i});
  // Stable: the holes of one place stay in the order of their numbers.
  std::stable_sort(sc.holeIndex.begin(), sc.holeIndex.end(), beforeHole);
}

LayerFilter selectedLayerFilter(const State& s) { return {s.ui.combo4.text(), s.ui.combo1.text()}; }

namespace {

// The limit test of a layer; the limit's text becomes a number at the first layer tested.
class LimitTest {
 public:
  explicit LimitTest(const std::string& text) : text_(text), none_(text == kLimitTitle) {}
  bool passes(double tenor) {
    if (none_) return true;
    if (!converted_) {
      value_ = toNumber(text_);
      converted_ = true;
    }
    return tenor > value_;
  }

 private:
  const std::string& text_;
  bool none_;
  bool converted_ = false;
  double value_ = 0;
};

// Only the rows a scan wrote are cleared before the next: every other row is still 0.
void clearSlices(Scan& sc) {
  for (int k = 1; k <= 3; ++k) {
    for (int j = 1; j <= sc.sliceRows[k]; ++j) sc.slicetab(k, j) = Slice{};
    sc.sliceRows[k] = 0;
  }
}

Slice& sliceRow(Scan& sc, int k, int j) {
  sc.sliceRows[k] = std::max(sc.sliceRows[k], j);
  return sc.slicetab(k, j);
}

// A layer of a hole's log, placed between its top and bottom elevations.
struct PlacedLayer {
  double top = 0;
  double bottom = 0;
  double uz = 0;
  double ten = 0;
  double yog = 0;
};

// The cases of the cut, in their order; D follows B, C or neither, and overwrites.
void cutLayer(Scan& sc, int k, int j, const PlacedLayer& layer, const Bench& b) {
  const double up = b.upkot;
  const double down = b.downkot;
  const double top = layer.top;
  const double bottom = layer.bottom;
  const auto piece = [&](double length) -> Slice& {
    Slice& row = sliceRow(sc, k, j);
    row.length = length;
    row.tenor = layer.ten;
    row.density = layer.yog;
    return row;
  };
  if (top >= up && down >= bottom) {  // A: the layer holds the whole bench
    piece(std::abs(up - down)).upper = up;
    sliceRow(sc, k, j + 1).upper = down;
    return;
  }
  if (top >= up && up >= bottom) {  // B: it crosses the upper elevation
    piece(std::abs(up - bottom)).upper = up;
  } else if (up >= top && down <= bottom) {  // C: it lies in the bench
    piece(layer.uz);
  }
  if (top >= down && down >= bottom) {  // D: it crosses the lower elevation
    piece(std::abs(top - down)).upper = down;
  }
}

// Walks the log of hole i from its ore entry down, cutting the layers that count.
void walkHole(Scan& sc, int k, int i, const Bench& b, const std::string& lithology,
              LimitTest& limit) {
  sc.kosex[k] = sc.sondx[i];
  sc.kosey[k] = sc.sondy[i];
  sc.cornerHole = i;
  double top = sc.cevgir[i];
  const std::vector<ScanLayer>& log = sc.layers[i];
  const int layers = sc.layersay[i];
  for (int j = 1; j <= layers; ++j) {
    const ScanLayer& l = log[static_cast<size_t>(j - 1)];
    const PlacedLayer layer{top, top - l.uz, l.uz, l.ten, l.yog};
    const bool passes = limit.passes(layer.ten);
    if (b.downkot >= top) {
      // Below the bench.
    } else if (l.lit == lithology && passes) {
      cutLayer(sc, k, j, layer, b);
    }
    top = layer.bottom;
  }
}

void sumCorner(Scan& sc, int k) {
  double grade = 0;
  double weight = 0;
  double length = 0;
  // Over the rows of the hole's log; the rows past those written hold 0 and add nothing.
  const int rows = std::min(sc.layersay[sc.cornerHole], sc.sliceRows[k]);
  for (int j = 1; j <= rows; ++j) {
    const Slice& row = sc.slicetab(k, j);
    grade += row.length * row.tenor * row.density;
    weight += row.length * row.density;
    length += row.length;
  }
  sc.koseuz[k] = length;
  sc.kosetenor[k] = (grade != 0 && weight != 0) ? grade / weight : 0;
  sc.koseyog[k] = (weight != 0 && length != 0) ? weight / length : 0;
}

}  // namespace

ScanMeans scanTriangle(Scan& sc, const TriangleCorners& corners, const Bench& bench,
                       const LayerFilter& filter) {
  clearSlices(sc);
  LimitTest limit(filter.limit);
  for (int k = 1; k <= 3; ++k) {
    const Scan::HoleAt corner{corners.x[k], corners.y[k], 0};
    const auto [first, last] =
        std::equal_range(sc.holeIndex.begin(), sc.holeIndex.end(), corner, beforeHole);
    for (auto hole = first; hole != last; ++hole) {
      walkHole(sc, k, hole->i, bench, filter.lithology, limit);
    }
    sumCorner(sc, k);
  }
  CornerMeans means;
  for (int k = 1; k <= 3; ++k) {
    means.length[k] = sc.koseuz[k];
    means.tenor[k] = sc.kosetenor[k];
    means.density[k] = sc.koseyog[k];
  }
  const double grade = gradeSum(means);
  const double weight = weightedSum(means);
  const double length = lengthSum(means);
  sc.ucgentenor = weight != 0 ? grade / weight : 0;
  sc.ucgenyog = length != 0 ? weight / length : 0;
  sc.ucgenuz = meanOreLength(means.length);
  return {sc.ucgentenor, sc.ucgenyog, sc.ucgenuz};
}

ScanMeans scanTriangle(State& s, const TriangleCorners& corners, const Bench& bench) {
  return scanTriangle(s.scan, corners, bench, selectedLayerFilter(s));
}

double keptCentreX(const Scan& sc) { return (sc.kosex[1] + sc.kosex[2] + sc.kosex[3]) / 3; }
double keptCentreY(const Scan& sc) { return (sc.kosey[1] + sc.kosey[2] + sc.kosey[3]) / 3; }

void clearKeptCorners(Scan& sc) {
  sc.kosex = {};
  sc.kosey = {};
}

TriangleCorners displayCorners(const Display& d, int t) {
  TriangleCorners c;
  c.x = {0, d.x1[t], d.x2[t], d.x3[t]};
  c.y = {0, d.y1[t], d.y2[t], d.y3[t]};
  return c;
}

void setDisplayCorners(Display& d, int t, const TriangleCorners& c) {
  d.x1[t] = c.x[1];
  d.x2[t] = c.x[2];
  d.x3[t] = c.x[3];
  d.y1[t] = c.y[1];
  d.y2[t] = c.y[2];
  d.y3[t] = c.y[3];
}

}  // namespace tri
