// The state of the reserve views: the value maps' and the 3D view's working values, the colour
// classes, the show/hide counters, and the overlays placed on the plan.
#pragma once

#include <cstdint>

#include "platform/bounded.h"
#include "platform/canvas.h"

namespace tri {

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
};

}  // namespace tri
