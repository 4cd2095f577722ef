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

// The fields of the tables, by their names in the file.
namespace field {
// kor and log: a hole and its layer slots lit<n>, ten<n>, yog<n>, uz<n>, dya<n>; log's
// per-lithology flags deg<k>. litoloji: isim, litno, litur.
inline constexpr const char* eks = "eks";
inline constexpr const char* eye = "eye";
inline constexpr const char* isim = "isim";
inline constexpr const char* songir = "songir";
inline constexpr const char* cevgir = "cevgir";
inline constexpr const char* cevcik = "cevcik";
inline constexpr const char* soncik = "soncik";
inline constexpr const char* lit = "lit";
inline constexpr const char* ten = "ten";
inline constexpr const char* yog = "yog";
inline constexpr const char* uz = "uz";
inline constexpr const char* dya = "dya";
inline constexpr const char* deg = "deg";
inline constexpr const char* litno = "litno";
inline constexpr const char* litur = "litur";
// A lithology's table: a drawing and its limit slots limten<k>, limdeg<k>.
inline constexpr const char* cizim = "cizim";
inline constexpr const char* tsay = "tsay";
inline constexpr const char* limten = "limten";
inline constexpr const char* limdeg = "limdeg";
// A drawing's or limit's table: vertex, summary and header rows.
inline constexpr const char* koordinat1 = "koordinat1";
inline constexpr const char* koordinat2 = "koordinat2";
inline constexpr const char* sondgir = "sondgir";
inline constexpr const char* cevhgir = "cevhgir";
inline constexpr const char* cevhcik = "cevhcik";
inline constexpr const char* sondcik = "sondcik";
inline constexpr const char* say = "say";
inline constexpr const char* ebxk = "ebxk";
inline constexpr const char* ekxk = "ekxk";
inline constexpr const char* ebyk = "ebyk";
inline constexpr const char* ekyk = "ekyk";
inline constexpr const char* genelrezerv = "genelrezerv";
inline constexpr const char* geneltenor = "geneltenor";
inline constexpr const char* ortucgen1 = "ortucgen1";
inline constexpr const char* ortucgen2 = "ortucgen2";
inline constexpr const char* ucgensay = "ucgensay";
inline constexpr const char* ortucgen11 = "ortucgen11";
inline constexpr const char* ortucgen21 = "ortucgen21";
inline constexpr const char* ilkuz = "ilkuz";
inline constexpr const char* genelyog = "genelyog";
inline constexpr const char* kubaj = "kubaj";
inline constexpr const char* tonaj = "tonaj";
inline constexpr const char* rezerv = "rezerv";
inline constexpr const char* ill = "ill";
inline constexpr const char* kal = "kal";
inline constexpr const char* bsy = "bsy";
// aukor and askor: the corners xx<n>, yy<n> and names ad<n> of area n.
inline constexpr const char* xx = "xx";
inline constexpr const char* yy = "yy";
inline constexpr const char* ad = "ad";
// pol: neighbour points koordinatx<n>, koordinaty<n>, koordinatuz<n>, koordinataz<n>.
inline constexpr const char* koordinatx = "koordinatx";
inline constexpr const char* koordinaty = "koordinaty";
inline constexpr const char* koordinatuz = "koordinatuz";
inline constexpr const char* koordinataz = "koordinataz";
inline constexpr const char* okoordinatx = "okoordinatx";
inline constexpr const char* okoordinaty = "okoordinaty";
inline constexpr const char* polsay = "polsay";
inline constexpr const char* polsil = "polsil";
inline constexpr const char* polalan = "polalan";
inline constexpr const char* polortten = "polortten";
inline constexpr const char* polortyog = "polortyog";
inline constexpr const char* polhacim = "polhacim";
inline constexpr const char* poltonaj = "poltonaj";
inline constexpr const char* polrezerv = "polrezerv";
}  // namespace field

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
