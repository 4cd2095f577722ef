// Reading the list of holes from kor or log: where the list ends, and the hole values
// into the program state.
#pragma once

#include <string>

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

// Sets sondsay and reads eks and eye (in metres) and isim of every hole; entries past the
// last hole are cleared.
void loadHoleCoordinates(State& s, Recordset& rs, HoleListEnd end);

// As loadHoleCoordinates, with songir, cevgir, cevcik and soncik as well.
void loadHoleRecords(State& s, Recordset& rs, HoleListEnd end);

}  // namespace tri
