// The state of the reserve views: the value maps' and the 3D view's working values, the colour
// classes, the show/hide counters, and the overlays placed on the plan.
#pragma once

#include <array>
#include <cstdint>

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

// A place on the plan, in the map units of the canvas.
struct PlanPoint {
  double x = 0;
  double y = 0;
};

// The overlays of View, Add: one line of result text, or the dial of the colour classes,
// printed where the user clicks. A command arms its item and computes its number at once;
// every left click then prints the armed item and notes the place, which printing on paper
// reads. None of it is stored in the project.
struct Overlays {
  // Pending flags, in the order a click places them. A command leaves at most one set.
  bool olcekyaz = false;        // the scale
  bool skalayaz = false;        // the dial
  bool alanortenyaz = false;    // area-relative tenor
  bool kubajortenyaz = false;   // cubage-relative tenor
  bool alanortyogyaz = false;   // area-relative density
  bool kubajortyogyaz = false;  // cubage-relative density
  bool toprezyaz = false;       // total reserve
  bool limtenyaz = false;       // limit tenor

  // Each command's clicks; an odd count arms its item, an even one disarms all. The dial
  // counts afresh in every use, so it has no counter here.
  int olceksay = 0;
  int alanortensay = 0;
  int kubajortensay = 0;
  int alanortyogsay = 0;
  int kubajortyogsay = 0;
  int toprezsay = 0;
  int limtensay = 0;

  // The numbers, as their commands last computed them.
  double alanortten = 0;
  double kubajortten = 0;
  double alanortyog = 0;
  double kubajortyog = 0;
  double toprez = 0;  // kilotons
  double seclimten = 0;

  // The last place each item was printed, by slot: 1 scale, 2 area-relative tenor,
  // 3 cubage-relative tenor, 4 area-relative density, 5 cubage-relative density, 6 total
  // reserve, 7 limit tenor, 8 dial. 0 until printed.
  std::array<PlanPoint, 9> yazikonum{};

  bool armed() const {
    return olcekyaz || skalayaz || alanortenyaz || kubajortenyaz || alanortyogyaz ||
           kubajortyogyaz || toprezyaz || limtenyaz;
  }
  // Clears the eight pending flags; the counters and the menu's check marks stay.
  void disarm() {
    olcekyaz = skalayaz = alanortenyaz = kubajortenyaz = false;
    alanortyogyaz = kubajortyogyaz = toprezyaz = limtenyaz = false;
  }
  // Forgets every noted place.
  void clearPositions() { yazikonum.fill({}); }
};

struct Views {
  // Show/hide: each item's flag follows the parity of its click counter. The hole names'
  // and the grid's flags are the plan's own (Frame::sondgoster, Frame::gridgoster).
  bool miktargoster = false;  // the value label of each triangle
  int miktarsay = 0;
  int isimsay = 0;
  int gridsay = 0;

  // The colour classes of the general reserve map, class j at index j; chosen by the user,
  // black until then.
  double renksay = 1;
  Bounded<Color> renkler{"renkler", 999};
  // Ore and gangue in the Select-Cut view.
  Color cevrenk = 0;
  Color ganguerenk = 0;

  // The classes of the last general map (or 3D view): the reserves of its table sorted
  // ascending at 1 .. rezervsay, and the width of one class. Entries past rezervsay keep
  // what an earlier, larger table left.
  Bounded<double> rezervsira{"rezervsira", 999};
  double rezervadim = 0;
  std::int16_t rezervsay = 0;

  // The reserve maps' running total of the pass, and the number of passes that reached a
  // triangle table.
  double toplamrezerv = 0;
  long rezervcizimsay = 0;
  // The half perimeter of the last triangle given a disc; it carries over from triangle to
  // triangle and from pass to pass.
  double yaricevre = 0;

  // The overlays placed on the plan.
  Overlays overlays;

  // The 3D reserve view: its click-point flag (set with modrecboy, never cleared), the angle
  // of the scroll bar as last read, the reserves of the table's triangles in table order,
  // and the constant of every angle conversion.
  bool recboyizi = false;
  int viewangle = 0;
  Bounded<double> trireserve{"trireserve", 999};
  double pi = 3.14159265358979;
};

}  // namespace tri
