#include "store/ondayaz.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/vbtext.h"

namespace tri {

namespace {

// The number at the start of a text, as far as it reads as one; 0 when none does. An
// exponent text cut by the separator rule ("15E-") so gives its digits, a wrong result
// rather than a stop.
double leadingNumber(const std::string& text) {
  for (size_t length = text.size(); length > 0; --length) {
    const std::string_view prefix(text.data(), length);
    if (isNumberText(prefix)) return toNumber(prefix);
  }
  return 0;
}

}  // namespace

double ondayazText(std::string_view text) {
  size_t separator = text.find_last_of(",.");
  if (separator == std::string_view::npos) return leadingNumber(std::string(text) + "000");
  std::string whole(text.substr(0, separator));
  std::string decimals(text.substr(separator + 1));
  if (decimals.size() >= 3) {
    decimals.resize(3);
  } else {
    decimals.append(3 - decimals.size(), '0');
  }
  return leadingNumber(whole + decimals);
}

namespace {

// ondayaz of a number whose general text is plain decimals: its digits up to the third
// decimal, read as a whole number, without making the text.
std::optional<double> ondayazOfPlainDigits(double x) {
  DecimalDigits d;
  if (!fifteenDigitsOf(x, d) || d.exponent < -4 || d.exponent >= 15) return std::nullopt;
  int64_t thousandths = 0;
  for (int power = std::max(d.exponent, 0); power >= -3; --power) {
    const int at = d.exponent - power;
    thousandths = thousandths * 10 + (at >= 0 && at < d.count ? d.digits[at] - '0' : 0);
  }
  const double magnitude = static_cast<double>(thousandths);
  return x < 0 ? -magnitude : magnitude;
}

}  // namespace

double ondayaz(double x) {
  if (const auto fast = ondayazOfPlainDigits(x)) return *fast;
  return ondayazText(numberText(x));
}

}  // namespace tri
