// Reading a project's lithologies and drawings, with their limit tenors, into the state.
#pragma once

#include "platform/store.h"
#include "store/state.h"

namespace tri {

// litsay and litad of project p, from litoloji.
void loadLithologies(State& s, Database& db, int p);

// cizimsay, cizimad, limsay and limdeger of lithology l of project p, from the
// lithology's table. Only limit slots 1 to 10 are read; a slot is in use when its name is
// neither empty nor "Boş Alan" and its value is not 0. The value keeps its slot number
// while limsay counts the slots in use. What the state held for the lithology's drawings
// before is forgotten.
void loadDrawings(State& s, Database& db, int p, int l);

// Whether limit slot k of the current row of a lithology's table is in use.
bool limitSlotInUse(const Recordset& row, int k);

}  // namespace tri
