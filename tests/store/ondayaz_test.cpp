// Fixed thousandths through the number's text: truncated, never rounded.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <vector>

#include "platform/vbtext.h"
#include "store/ondayaz.h"

namespace tri {
namespace {

TEST(Ondayaz, KeepsThreeDecimalsOfTheTextAndCutsTheRest) {
  const std::pair<double, double> cases[] = {
      {2.3, 2300},
      {1234.5678, 1234567},
      {-1.5, -1500},
      {7, 7000},
      {0, 0},
      {-0.5, -500},
      {2147483.647, 2147483647},
      {1.9999, 1999},
      {53.3333333333333, 53333},
      {-2.0009, -2000},
      // 0.1 + 0.2 is 0.30000000000000004, but its text is "0.3"; 2.675 x 1000 in binary is
      // 2674.9999..., but the text keeps 2675.
      {0.1 + 0.2, 300},
      {2.675, 2675},
      // "1.5E+20" splits at its point into "1" and "5E+": the number read is 15. "1E-05"
      // has no separator and becomes "1E-05000", a number too small to matter.
      {1.5e20, 15},
      {-1.25e-7, -125},
      {0.00001, 0}};
  for (const auto& [x, thousandths] : cases) EXPECT_EQ(ondayaz(x), thousandths) << x;
  for (const auto& [text, thousandths] : std::vector<std::pair<const char*, double>>{
           {"2,5", 2500}, {"1234,5678", 1234567}, {"-0,25", -250}, {"12", 12000}}) {
    EXPECT_EQ(ondayazText(text), thousandths) << text;
  }
}

// ondayaz skips making the text for plain decimal numbers; it must give what the text gives.
TEST(Ondayaz, AgreesWithItsTextForEveryKindOfNumber) {
  std::vector<double> values = {
      0.5,   0.0005,    0.00049,          0.001,  -0.0001, 0.12345, 99999999999.999, 1e14,
      -1e14, 0.1 + 0.2, 123456789012.345, 5e-324, -7.25};
  uint64_t seed = 2463534242ull;
  auto next = [&] { return seed ^= seed << 13, seed ^= seed >> 7, seed ^= seed << 17; };
  for (int i = 0; i < 20000; ++i) {
    const double thousandths =
        static_cast<double>(static_cast<int64_t>(next() % 4294967296ull) - 2147483648ll);
    values.push_back(thousandths / 1000);
    values.push_back(thousandths / 7);
    values.push_back(std::ldexp(thousandths, -static_cast<int>(next() % 60)));
  }
  for (double x : values) {
    const double expected = ondayazText(numberText(x));
    ASSERT_EQ(ondayaz(x), expected) << "for " << numberText(x);
    ASSERT_EQ(std::signbit(ondayaz(x)), std::signbit(expected)) << "for " << numberText(x);
  }
}

}  // namespace
}  // namespace tri
