#include "store/project_format.h"

#include <array>

namespace tri {

std::string numbered(const char* stem, int n) { return stem + std::to_string(n); }

const std::string& layerField(LayerField field, int slot) {
  static const auto names = [] {
    std::array<std::vector<std::string>, 5> made;
    const char* stems[] = {field::lit, field::ten, field::yog, field::uz, field::dya};
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
    for (const char* stem :
         {field::koordinatx, field::koordinaty, field::koordinatuz, field::koordinataz}) {
      fields.push_back(longField(numbered(stem, n)));
    }
  }
  for (const char* name :
       {field::okoordinatx, field::okoordinaty, field::polsay, field::polsil, field::polalan,
        field::polortten, field::polortyog, field::polhacim, field::poltonaj, field::polrezerv}) {
    fields.push_back(longField(name));
  }
  return fields;
}

std::vector<FieldDef> holeFields(int layerSlots) {
  std::vector<FieldDef> fields{longField(field::eks),    longField(field::eye),
                               textField(field::isim),   longField(field::songir),
                               longField(field::cevgir), longField(field::cevcik),
                               longField(field::soncik)};
  for (int n = 1; n <= layerSlots; ++n) {
    fields.push_back(textField(numbered(field::lit, n)));
    fields.push_back(longField(numbered(field::ten, n)));
    fields.push_back(longField(numbered(field::yog, n)));
    fields.push_back(longField(numbered(field::uz, n)));
    fields.push_back(longField(numbered(field::dya, n)));
  }
  return fields;
}

std::vector<FieldDef> logFields(int layerSlots, int lithologies) {
  std::vector<FieldDef> fields = holeFields(layerSlots);
  for (int k = 1; k <= lithologies; ++k) fields.push_back(textField(numbered(field::deg, k)));
  return fields;
}

std::vector<FieldDef> lithologyFields() {
  std::vector<FieldDef> fields{textField(field::cizim), longField(field::tsay)};
  for (int k = 1; k <= kLimitSlots; ++k) {
    fields.push_back(textField(numbered(field::limten, k)));
    fields.push_back(longField(numbered(field::limdeg, k)));
  }
  return fields;
}

std::vector<FieldDef> lithologyListFields() {
  return {textField(field::isim), longField(field::litno), textField(field::litur)};
}

std::vector<FieldDef> drawingFields() {
  return longFields({field::koordinat1, field::koordinat2, field::sondgir,   field::cevhgir,
                     field::cevhcik,    field::sondcik,    field::say,       field::ebxk,
                     field::ekxk,       field::ebyk,       field::ekyk,      field::genelrezerv,
                     field::geneltenor, field::ortucgen1,  field::ortucgen2, field::ucgensay,
                     field::ortucgen11, field::ortucgen21, field::ilkuz,     field::genelyog,
                     field::kubaj,      field::tonaj,      field::rezerv,    field::ill,
                     field::kal,        field::bsy});
}

std::vector<FieldDef> limitFields() {
  std::vector<FieldDef> fields = drawingFields();
  fields.pop_back();  // bsy
  return fields;
}

std::vector<FieldDef> productionAreaFields() {
  std::vector<FieldDef> fields;
  for (int n = 1; n <= 50; ++n) {
    fields.push_back(longField(numbered(field::xx, n)));
    fields.push_back(longField(numbered(field::yy, n)));
    fields.push_back(textField(numbered(field::ad, n)));
  }
  return fields;
}

std::string limitTableName(const std::string& limitText, const std::string& drawing) {
  return limitText + drawing;
}

}  // namespace tri
