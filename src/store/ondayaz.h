// ondayaz: a real number to the fixed thousandths of the project file, through its text.
#pragma once

#include <string_view>

namespace tri {

// x times 1000, truncated: the general text of x with its separator removed and exactly
// three decimals kept (2.3 -> 2300, -1.5 -> -1500, 1234.5678 -> 1234567). A text in
// exponent form is not treated specially and gives a wrong result: 1.5E+20 -> 15.
double ondayaz(double x);

// The same on a number text in either locale form, with ',' or '.' as separator.
double ondayazText(std::string_view text);

}  // namespace tri
