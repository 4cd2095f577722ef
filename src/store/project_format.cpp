#include "store/project_format.h"

#include <array>

namespace tri {

std::string numbered(const char* stem, int n) { return stem + std::to_string(n); }

const std::string& layerField(LayerField field, int slot) {
  static const auto names = [] {
    std::array<std::vector<std::string>, 5> made;
    const char* stems[] = {"lit", "ten", "yog", "uz", "dya"};
    for (size_t f = 0; f < made.size(); ++f) {
      for (int n = 0; n <= 999; ++n) made[f].push_back(numbered(stems[f], n));
    }
    return made;
  }();
  return names[static_cast<size_t>(field)].at(static_cast<size_t>(slot));
}

namespace {

FieldDef longField(std::string name) { return {std::move(name), FieldType::Long}; }
FieldDef textField(std::string name) { return {std::move(name), FieldType::Text}; }

std::vector<FieldDef> longFields(std::initializer_list<const char*> names) {
  std::vector<FieldDef> fields;
  for (const char* name : names) fields.push_back(longField(name));
  return fields;
}

}  // namespace

std::vector<FieldDef> polFields() {
  std::vector<FieldDef> fields;
  for (int n = 1; n <= 20; ++n) {
    for (const char* stem : {"koordinatx", "koordinaty", "koordinatuz", "koordinataz"}) {
      fields.push_back(longField(numbered(stem, n)));
    }
  }
  for (const char* name : {"okoordinatx", "okoordinaty", "polsay", "polsil", "polalan",
                           "polortten", "polortyog", "polhacim", "poltonaj", "polrezerv"}) {
    fields.push_back(longField(name));
  }
  return fields;
}

std::vector<FieldDef> holeFields(int layerSlots) {
  std::vector<FieldDef> fields{longField("eks"),    longField("eye"),    textField("isim"),
                               longField("songir"), longField("cevgir"), longField("cevcik"),
                               longField("soncik")};
  for (int n = 1; n <= layerSlots; ++n) {
    fields.push_back(textField(numbered("lit", n)));
    fields.push_back(longField(numbered("ten", n)));
    fields.push_back(longField(numbered("yog", n)));
    fields.push_back(longField(numbered("uz", n)));
    fields.push_back(longField(numbered("dya", n)));
  }
  return fields;
}

std::vector<FieldDef> logFields(int layerSlots, int lithologies) {
  std::vector<FieldDef> fields = holeFields(layerSlots);
  for (int k = 1; k <= lithologies; ++k) fields.push_back(textField(numbered("deg", k)));
  return fields;
}

std::vector<FieldDef> lithologyFields() {
  std::vector<FieldDef> fields{textField("cizim"), longField("tsay")};
  for (int k = 1; k <= kLimitSlots; ++k) {
    fields.push_back(textField(numbered("limten", k)));
    fields.push_back(longField(numbered("limdeg", k)));
  }
  return fields;
}

std::vector<FieldDef> lithologyListFields() {
  return {textField("isim"), longField("litno"), textField("litur")};
}

std::vector<FieldDef> drawingFields() {
  return longFields({"koordinat1", "koordinat2", "sondgir",    "cevhgir",    "cevhcik",
                     "sondcik",    "say",        "ebxk",       "ekxk",       "ebyk",
                     "ekyk",       "genelrezerv", "geneltenor", "ortucgen1",  "ortucgen2",
                     "ucgensay",   "ortucgen11", "ortucgen21", "ilkuz",      "genelyog",
                     "kubaj",      "tonaj",      "rezerv",     "ill",        "kal",
                     "bsy"});
}

std::vector<FieldDef> limitFields() {
  std::vector<FieldDef> fields = drawingFields();
  fields.pop_back();  // bsy
  return fields;
}

std::vector<FieldDef> productionAreaFields() {
  std::vector<FieldDef> fields;
  for (int n = 1; n <= 50; ++n) {
    fields.push_back(longField(numbered("xx", n)));
    fields.push_back(longField(numbered("yy", n)));
    fields.push_back(textField(numbered("ad", n)));
  }
  return fields;
}

std::string limitTableName(const std::string& limitText, const std::string& drawing) {
  return limitText + drawing;
}

}  // namespace tri
