// The tables of a project file: their names and their fields in the order of creation.
// Every command that creates such a table takes its fields from here.
#pragma once

#include <string>
#include <vector>

#include "platform/store.h"

namespace tri {

inline constexpr const char* kPolTable = "pol";
inline constexpr const char* kHoleTable = "kor";
inline constexpr const char* kLogTable = "log";
inline constexpr const char* kLithologyListTable = "litoloji";
inline constexpr const char* kPointAreaTable = "aukor";
inline constexpr const char* kFreeAreaTable = "askor";

// A repeated field: the stem and the number, with no leading zeros ("ten12").
std::string numbered(const char* stem, int n);

// The five fields of a layer slot, whose names the readers of logs ask for by the
// thousand: made once, for slots 1 to 999.
enum class LayerField { Lit, Ten, Yog, Uz, Dya };
const std::string& layerField(LayerField field, int slot);

// Limit slots of a drawing's row in its lithology's table.
inline constexpr int kLimitSlots = 30;
// The slots that opening a project reads back.
inline constexpr int kLimitSlotsLoaded = 10;
// A freed limit slot holds this name.
inline constexpr const char* kFreeSlot = "Boş Alan";

// The text flags of the log table's per-lithology fields.
inline constexpr const char* kMarkedNo = "hayır";
inline constexpr const char* kMarkedYes = "evet";

std::vector<FieldDef> polFields();
// kor: the seven leading fields and five fields per layer slot 1 .. layerSlots.
std::vector<FieldDef> holeFields(int layerSlots);
// log: as kor, then deg1 .. deg<lithologies>.
std::vector<FieldDef> logFields(int layerSlots, int lithologies);
// The table of one lithology: its drawings and their limit slots.
std::vector<FieldDef> lithologyFields();
std::vector<FieldDef> lithologyListFields();
// A drawing's table of triangles.
std::vector<FieldDef> drawingFields();
// A limit table: the drawing's fields without bsy.
std::vector<FieldDef> limitFields();
// aukor and askor: 50 areas of xx, yy, ad.
std::vector<FieldDef> productionAreaFields();

// The name of a limit table: the limit's text followed by the drawing's name.
std::string limitTableName(const std::string& limitText, const std::string& drawing);

}  // namespace tri
