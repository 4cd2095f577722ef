// Reading the list of holes from kor or log: where the list ends, and the hole values
// into the program state.
#pragma once

#include <string>
#include <vector>

#include "platform/store.h"
#include "store/state.h"

namespace tri {

// The most rows a hole list is read over.
inline constexpr int kMaxHoles = 999;
// The most layer slots a hole's log is read over.
inline constexpr int kMaxLayers = 999;

// Where a list of holes ends: at the first row whose eks is 0, or also at the first whose
// name begins with "po" or "uz" (rows that mark points which are no drill holes).
enum class HoleListEnd { ZeroX, ZeroXOrPointName };

bool isPointName(const std::string& isim);

// Counts the hole rows from the first row on, at most 999, and leaves the recordset on
// the row that ended the count.
int countHoles(Recordset& rs, HoleListEnd end);

// One layer of a hole's log as it is stored: thousandths, and the lithology's name.
struct StoredLayer {
  std::string lit;
  double ten = 0;
  double yog = 0;
  double uz = 0;
  double dya = 0;
};

// Reads the stored logs of kor or log, row after row of one recordset: the layers of the
// hole on the current row, up to the first slot whose tenor is 0 (at most 999); the fifth
// quantity only when asked for. The slots' fields are found once, as first needed.
class StoredLogReader {
 public:
  explicit StoredLogReader(const Recordset& rs) : rs_(rs) {}
  std::vector<StoredLayer> layersOfCurrentRow(bool withFifth = false);

 private:
  struct SlotFields {
    int lit, ten, yog, uz, dya;
  };
  const SlotFields& slot(int k);

  const Recordset& rs_;
  std::vector<SlotFields> slots_;  // slot k at k - 1
};

// Sets sondsay and reads eks and eye (in metres) and isim of every hole; entries past the
// last hole are cleared.
void loadHoleCoordinates(State& s, Recordset& rs, HoleListEnd end);

// As loadHoleCoordinates, with songir, cevgir, cevcik and soncik as well.
void loadHoleRecords(State& s, Recordset& rs, HoleListEnd end);

}  // namespace tri
