#include "platform/vbtext.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "platform/fault.h"

namespace tri {

bool fifteenDigitsOf(double x, DecimalDigits& out) {
  if (!std::isnormal(x)) return false;
  char buffer[40];
  const auto [end, error] =
      std::to_chars(buffer, buffer + sizeof buffer, std::abs(x), std::chars_format::scientific);
  const char* e = std::find(buffer, end, 'e');
  out.count = 0;
  for (const char* c = buffer; c < e; ++c) {
    if (*c == '.') continue;
    // The spacing of a normal double is finer than 15 digits', so 15 shortest digits are
    // also its 15-digit rounding; more need the rounding itself.
    if (out.count == 15) return false;
    out.digits[out.count++] = *c;
  }
  std::from_chars(e + 1 + (e[1] == '+'), end, out.exponent);
  while (out.count > 1 && out.digits[out.count - 1] == '0') --out.count;
  return true;
}

namespace {

// The general form of 15 significant digits from its digits: exponent form below 1E-4 and
// from 1E+15, at least two exponent digits.
std::string generalForm(bool negative, const DecimalDigits& d) {
  std::string text = negative ? "-" : "";
  const std::string_view digits(d.digits, d.count);
  const int n = d.count;
  if (d.exponent < -4 || d.exponent >= 15) {
    text += digits[0];
    if (n > 1) (text += '.') += digits.substr(1);
    const int magnitude = std::abs(d.exponent);
    text += d.exponent < 0 ? "E-" : "E+";
    if (magnitude < 10) text += '0';
    return text + std::to_string(magnitude);
  }
  if (d.exponent < 0) return (text + "0." + std::string(-d.exponent - 1, '0')) += digits;
  if (n <= d.exponent + 1) return (text += digits) + std::string(d.exponent + 1 - n, '0');
  ((text += digits.substr(0, d.exponent + 1)) += '.') += digits.substr(d.exponent + 1);
  return text;
}

}  // namespace

std::string numberText(double x) {
  if (x == 0) return "0";
  if (std::isnan(x)) return "NaN";
  if (std::isinf(x)) return x > 0 ? "Inf" : "-Inf";
  // Up to 15 significant digits, the runtime's rule (printf's %.15G).
  DecimalDigits digits;
  if (fifteenDigitsOf(x, digits)) return generalForm(x < 0, digits);
  char buffer[40];
  const auto [end, error] =
      std::to_chars(buffer, buffer + sizeof buffer, x, std::chars_format::general, 15);
  std::string text(buffer, error == std::errc() ? end : buffer);
  for (char& c : text) {
    if (c == 'e') c = 'E';
  }
  return text;
}

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Returns the trimmed number text, or an empty view when `text` is not a number.
std::string_view numberSyntax(std::string_view text) {
  size_t begin = text.find_first_not_of(' ');
  if (begin == std::string_view::npos) return {};
  size_t end = text.find_last_not_of(' ') + 1;
  std::string_view body = text.substr(begin, end - begin);

  size_t i = 0;
  if (i < body.size() && (body[i] == '+' || body[i] == '-')) ++i;
  size_t digits = 0;
  while (i < body.size() && isDigit(body[i])) ++i, ++digits;
  if (i < body.size() && body[i] == '.') {
    ++i;
    while (i < body.size() && isDigit(body[i])) ++i, ++digits;
  }
  if (digits == 0) return {};
  if (i < body.size() && (body[i] == 'e' || body[i] == 'E')) {
    ++i;
    if (i < body.size() && (body[i] == '+' || body[i] == '-')) ++i;
    size_t exponentDigits = 0;
    while (i < body.size() && isDigit(body[i])) ++i, ++exponentDigits;
    if (exponentDigits == 0) return {};
  }
  return i == body.size() ? body : std::string_view{};
}

}  // namespace

bool isNumberText(std::string_view text) { return !numberSyntax(text).empty(); }

double toNumber(std::string_view text) {
  std::string_view body = numberSyntax(text);
  if (body.empty()) {
    throw Fault(FaultKind::TypeMismatch, "\"" + std::string(text) + "\" is not a number");
  }
  if (body.front() == '+') body.remove_prefix(1);
  double value = 0;
  const auto [end, error] = std::from_chars(body.data(), body.data() + body.size(), value);
  if (error == std::errc() && end == body.data() + body.size()) return value;
  // Out of range: too small a number reads 0, too large is an overflow.
  std::string owned(body);
  value = std::strtod(owned.c_str(), nullptr);
  if (std::isinf(value)) {
    throw Fault(FaultKind::Overflow, "\"" + owned + "\" is too large for a number");
  }
  return value;
}

namespace {

// The nearest whole number, an exact half to the even one, whatever the FPU's rounding mode.
double nearestWholeHalfEven(double x) {
  const double away = std::round(x);
  return std::abs(away - x) == 0.5 ? 2 * std::round(x / 2) : away;
}

}  // namespace

double roundHalfEven(double x, int decimals) {
  if (!std::isfinite(x)) return x;
  if (decimals == 0) return nearestWholeHalfEven(x);
  double scale = std::pow(10.0, decimals);
  double scaled = x * scale;
  if (!std::isfinite(scaled)) return x;
  return nearestWholeHalfEven(scaled) / scale;
}

long wholeIndex(double x) {
  const double rounded = nearestWholeHalfEven(x);
  if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max())) {
    throw Fault(FaultKind::Overflow, numberText(x) + " does not fit a whole number");
  }
  return static_cast<long>(rounded);
}

double divide(double a, double b, const char* what) {
  if (b == 0) {
    throw Fault(FaultKind::DivisionByZero,
                std::string(what) + ": " + numberText(a) + " divided by 0");
  }
  return a / b;
}

namespace {
bool isContinuationByte(unsigned char c) { return (c & 0xC0) == 0x80; }
}  // namespace

long charCount(std::string_view text) {
  long count = 0;
  for (unsigned char c : text) count += isContinuationByte(c) ? 0 : 1;
  return count;
}

std::string leftChars(std::string_view text, long count) {
  if (count < 0) {
    throw Fault(
        FaultKind::InvalidProcedureCall,
        "cannot take " + std::to_string(count) + " characters of \"" + std::string(text) + "\"");
  }
  size_t i = 0;
  long taken = 0;
  while (i < text.size()) {
    if (!isContinuationByte(static_cast<unsigned char>(text[i]))) {
      if (taken == count) break;
      ++taken;
    }
    ++i;
  }
  return std::string(text.substr(0, i));
}

}  // namespace tri
