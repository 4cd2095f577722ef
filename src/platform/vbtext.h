// The runtime's number and text rules that the stored values and the labels depend on:
// the general number text, strict text-to-number conversion, rounding half to even,
// guarded division, and character-wise Left of UTF-8 text.
#pragma once

#include <string>
#include <string_view>

namespace tri {

// The general text of a number: up to 15 significant digits in the shortest form, with the
// exponent form ("1E-05", "1.5E+20") below 1E-4 and from 1E+15 on. -0 reads "0".
std::string numberText(double x);

// The significant digits of |x| as its general text shows them, x = d1.d2d3... x 10^exponent,
// without trailing zeros; false (and nothing promised) for the numbers whose text needs the
// slower exact rounding: zero, subnormals, non-finite values and those of over 15 digits.
struct DecimalDigits {
  char digits[15];
  int count = 0;
  int exponent = 0;
};
bool fifteenDigitsOf(double x, DecimalDigits& out);

// Strict conversion: optional blanks, an optional sign, digits with at most one '.', and an
// optional exponent. Anything else, the empty text included, is a "Type mismatch" Fault
// naming the text. A value beyond the range of a double is an "Overflow" Fault.
double toNumber(std::string_view text);
bool isNumberText(std::string_view text);

// Round to `decimals` places; an exact half goes to the even neighbour.
double roundHalfEven(double x, int decimals);

// A real taken to a whole index the way the runtime does it: half to even, and an
// "Overflow" Fault outside the 32-bit range.
long wholeIndex(double x);

// a / b, with a "Division by zero" Fault naming `what` when b is 0.
double divide(double a, double b, const char* what);

// The first `count` characters of UTF-8 text; a negative count is an
// "Invalid procedure call or argument" Fault.
std::string leftChars(std::string_view text, long count);
long charCount(std::string_view text);

}  // namespace tri
