#include "store/ondayaz.h"

#include <string>

#include "platform/vbtext.h"

namespace tri {

double ondayazText(std::string_view text) {
  size_t separator = text.find_last_of(",.");
  if (separator == std::string_view::npos) return toNumber(std::string(text) + "000");
  std::string whole(text.substr(0, separator));
  std::string decimals(text.substr(separator + 1));
  if (decimals.size() >= 3) {
    decimals.resize(3);
  } else {
    decimals.append(3 - decimals.size(), '0');
  }
  return toNumber(whole + decimals);
}

double ondayaz(double x) { return ondayazText(numberText(x)); }

}  // namespace tri
