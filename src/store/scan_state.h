// The state of the bench scan: the elevations, the pick, the logs and pieces of a scan, and the
// printed results of the single scan.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

// The piece of a layer that lies in the bench, at one corner: its upper elevation (kept,
// never read), its length, tenor and density. A row without a piece holds 0.
struct Slice {
  double upper = 0;
  double length = 0;
  double tenor = 0;
  double density = 0;
};

// A layer of a hole's log: tenor (%), density, length (m) and lithology.
struct ScanLayer {
  double ten = 0;
  double yog = 0;
  double uz = 0;
  std::string lit;
};

// One printed result of the single scan: the bench at the time of the scan, the tenor and
// the reserve, each with its position. A slot reserved but never filled holds empty texts.
struct ScanLabel {
  double elevx = 0, elevy = 0;
  std::string elevup, elevdown;  // upkot and downkot in their general text
  double tenorx = 0, tenory = 0;
  std::string tenortext;
  double reservex = 0, reservey = 0;
  std::string reservetext;

  // "(" up " , " down ")", or nothing for a slot never filled.
  std::string elevationText() const {
    if (elevup.empty() && elevdown.empty()) return "";
    return "(" + elevup + " , " + elevdown + ")";
  }
};

struct Scan {
  // The bench, in metres; 0 until entered. They hold for the whole run.
  double upkot = 0;
  double downkot = 0;

  // The pick of the pick mode, and the red point of every triangle the display drew.
  double pickx = 0;
  double picky = 0;
  Bounded<double> redpointx{"redpointx", 999};
  Bounded<double> redpointy{"redpointy", 999};

  // The triangles of the chosen table.
  int ucgensay = 0;
  int secucgen = 0;  // 0 while none is found
  Bounded<double> ucgalan{"ucgalan", 999};

  // The holes and logs read from log, by hole i and layer j.
  Bounded<double> sondx{"sondx", 999};
  Bounded<double> sondy{"sondy", 999};
  Bounded<double> cevgir{"cevgir", 999};
  // Layer j of hole i is layers[i][j - 1]: its layerten, layeryog, layeruz and layerlit.
  Bounded<std::vector<ScanLayer>> layers{"layers", 999};
  Bounded<int> layersay{"layersay", 999};
  // The holes read, ordered by x, y and number, to find the holes of a corner.
  struct HoleAt {
    double x = 0;
    double y = 0;
    int i = 0;
  };
  std::vector<HoleAt> holeIndex;

  // The pieces by corner k and layer j, and the rows written since they were last cleared.
  Bounded2<Slice> slicetab{"slicetab", 3, 9999};
  std::array<int, 4> sliceRows{};
  // The hole whose walk began last: its layer count bounds the corner sums.
  int cornerHole = 0;
  // The coordinates of the hole matched at each corner: the three-corner accumulators,
  // 0 again after every triangle.
  std::array<double, 4> kosex{};
  std::array<double, 4> kosey{};

  // Corner and triangle values of the last scan.
  std::array<double, 4> koseuz{};
  std::array<double, 4> kosetenor{};
  std::array<double, 4> koseyog{};
  double ucgentenor = 0;
  double ucgenyog = 0;
  double ucgenuz = 0;
  double scanrezerv = 0;

  // The printed results of the single scan, slots 1 .. scansay.
  int scansay = 0;
  Bounded<ScanLabel> scanlabel{"scanlabel", 999};
};

}  // namespace tri
