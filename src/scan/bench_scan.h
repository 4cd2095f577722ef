// The scan of one triangle between two elevations: the logs of its corner holes cut at the
// bench, the pieces' weighted means per corner and over the triangle. The scan commands run
// it with upkot and downkot; production digitizing runs it with its own bench.
#pragma once

#include <optional>
#include <string>

#include "platform/store.h"
#include "store/state.h"
#include "triangles/records.h"

namespace tri {

// Reads table log from its first row into the scan's hole and layer arrays, for the holes
// 1 .. sondsay of the program state, and indexes them.
void readScanLogs(State& s, Database& db);
// Orders the holes 1 .. sondsay of the scan's arrays by their coordinates: the holes a scan
// looks among for the holes of a corner.
void indexScanHoles(Scan& scan, int sondsay);

// The two elevations of a bench, in metres.
struct Bench {
  double upkot = 0;
  double downkot = 0;
};

// What a layer is tested against: the text of Combo4 (its lithology must equal it) and the
// text of Combo1 (unless it is "Limit Tenor", the layer's tenor must lie strictly above it
// taken as a number; a text that is no number is a "Type mismatch" Fault at the first
// layer walked).
struct LayerFilter {
  std::string lithology;
  std::string limit;
};
LayerFilter selectedLayerFilter(const State& s);

// The means of a scanned triangle: tenor (%), density and mean ore length.
struct ScanMeans {
  double tenor = 0;
  double density = 0;
  double length = 0;
  // The metal in tons over a plane area in square metres.
  double reserve(double area) const { return area * density * length * (tenor / 100); }
};

// Scans the triangle with these corners over the indexed holes: every hole that lies exactly
// on a corner, in the order of their numbers. Fills the pieces, the corner values and the
// kept corners (kosex, kosey) of `scan`, and sets and returns its triangle means.
ScanMeans scanTriangle(Scan& scan, const TriangleCorners& corners, const Bench& bench,
                       const LayerFilter& filter);
// The same with the selectors' texts.
ScanMeans scanTriangle(State& s, const TriangleCorners& corners, const Bench& bench);

// The mean of the corners kept by the last scan: the centre its results are printed at.
double keptCentreX(const Scan& scan);
double keptCentreY(const Scan& scan);
// Sets the kept corners to 0 for the next triangle.
void clearKeptCorners(Scan& scan);

// The corners of triangle t in the triangle display's arrays, and their writing back.
TriangleCorners displayCorners(const Display& d, int t);
void setDisplayCorners(Display& d, int t, const TriangleCorners& corners);

}  // namespace tri
