// The number text and conversion rules that stored values and labels depend on.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <tuple>
#include <vector>

#include "platform/fault.h"
#include "platform/vbtext.h"

namespace tri {
namespace {

FaultKind faultOf(auto&& action) {
  try {
    action();
  } catch (const Fault& fault) {
    return fault.kind();
  }
  ADD_FAILURE() << "no Fault";
  return FaultKind::Database;
}

TEST(NumberText, ShortestFormUpToFifteenDigitsAndExponentsOutsideTheirRange) {
  const std::pair<double, const char*> cases[] = {{0.1 + 0.2, "0.3"},
                                                  {1.0 / 3, "0.333333333333333"},
                                                  {2147483.647, "2147483.647"},
                                                  {123456789012345.0, "123456789012345"},
                                                  {-1.5, "-1.5"},
                                                  {-0.0, "0"},
                                                  {0.0001, "0.0001"},
                                                  {0.00001, "1E-05"},
                                                  {0.0000123, "1.23E-05"},
                                                  {1e15, "1E+15"},
                                                  {1.5e20, "1.5E+20"}};
  for (const auto& [x, text] : cases) EXPECT_EQ(numberText(x), text);
}

TEST(ToNumber, AcceptsNumbersWithBlanksSignAndExponentAndNothingElse) {
  const std::pair<const char*, double> numbers[] = {
      {" 12.5 ", 12.5}, {"-3", -3}, {"+.5", 0.5}, {"1E-05", 0.00001}, {"2.", 2}};
  for (const auto& [text, x] : numbers) EXPECT_EQ(toNumber(text), x) << text;
  for (const char* text : {"", " ", "abc", "1,5", "1.2.3", "--1", "e5", "1e", "12a", "."}) {
    EXPECT_EQ(faultOf([&] { toNumber(text); }), FaultKind::TypeMismatch) << text;
  }
  EXPECT_EQ(faultOf([] { toNumber("1e400"); }), FaultKind::Overflow);
}

TEST(Rounding, HalfGoesToTheEvenNeighbourWhateverTheProcessorsMode) {
  const std::tuple<double, int, double> cases[] = {{2.5, 0, 2},
                                                   {3.5, 0, 4},
                                                   {-2.5, 0, -2},
                                                   {-1.5, 0, -2},
                                                   {0.125, 2, 0.12},
                                                   {0.375, 2, 0.38},
                                                   {1.8339, 5, 1.8339},
                                                   {1000.004, 2, 1000},
                                                   {0.49999999999999994, 0, 0},
                                                   {4503599627370497.0, 0, 4503599627370497.0}};
  for (const auto& [x, digits, rounded] : cases) EXPECT_EQ(roundHalfEven(x, digits), rounded) << x;
  for (auto [x, index] : {std::pair{2.5, 2L}, {3.5, 4L}, {10.4, 10L}, {12.8, 13L}, {-0.5, 0L}}) {
    EXPECT_EQ(wholeIndex(x), index) << x;
  }
  EXPECT_EQ(faultOf([] { wholeIndex(3e9); }), FaultKind::Overflow);
  const int previous = std::fegetround();
  std::fesetround(FE_UPWARD);
  const double down = roundHalfEven(2.5, 0);
  const long index = wholeIndex(4.5);
  std::fesetround(previous);
  EXPECT_EQ(down, 2);
  EXPECT_EQ(index, 4);
}

TEST(LeftChars, CountsCharactersNotBytes) {
  EXPECT_EQ(leftChars("Çizim.mdb", 5), "Çizim");
  EXPECT_EQ(charCount("Çizim.mdb"), 9);
  EXPECT_EQ(leftChars("ab", 5), "ab");
  EXPECT_EQ(faultOf([] { leftChars("a.b", -1); }), FaultKind::InvalidProcedureCall);
}

// The general text is made without printf on its fast path; it must agree with %.15G for
// every kind of number the program meets.
TEST(NumberText, AgreesWithFifteenDigitPrintfEverywhere) {
  std::vector<double> values = {0.1,
                                0.5,
                                1.2345,
                                2.675,
                                1e-4,
                                9.99999e-5,
                                1e-5,
                                123.456,
                                1e14,
                                1e15,
                                9.99999999999999e14,
                                2147483.647,
                                0.001,
                                -12.5,
                                1.0 / 3,
                                2.0 / 3,
                                1e300,
                                5e-324,
                                123456789012345678.0,
                                0.30000000000000004};
  uint64_t seed = 88172645463325252ull;
  auto next = [&] { return seed ^= seed << 13, seed ^= seed >> 7, seed ^= seed << 17; };
  for (int i = 0; i < 20000; ++i) {
    const double thousandths =
        static_cast<double>(static_cast<int64_t>(next() % 4294967296ull) - 2147483648ll) / 1000;
    values.push_back(thousandths);
    values.push_back(thousandths * 7 / 3);
    double bits;
    uint64_t raw = next();
    std::memcpy(&bits, &raw, sizeof bits);
    if (std::isfinite(bits)) values.push_back(bits);
  }
  for (double x : values) {
    char expected[40];
    std::snprintf(expected, sizeof expected, "%.15G", x);
    if (x == 0) std::snprintf(expected, sizeof expected, "0");
    ASSERT_EQ(numberText(x), expected) << "for " << std::hexfloat << x;
  }
}

}  // namespace
}  // namespace tri
