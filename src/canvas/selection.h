// The selection state of the four selectors and the one rule that names the table a view
// reads: the limit table if a limit is chosen, else the drawing's table, else none.
#pragma once

#include <optional>
#include <string>

#include "store/state.h"

namespace tri {

inline constexpr const char* kProjectTitle = "Proje";
inline constexpr const char* kLithologyTitle = "Litoloji";
inline constexpr const char* kDrawingTitle = "Çizimler";
inline constexpr const char* kLimitTitle = "Limit Tenor";

std::optional<std::string> selectedTable(const State& s);

// Clears a selector and gives it its title entry, without selecting it.
void resetToTitle(Combo& combo, const char* title);

}  // namespace tri
