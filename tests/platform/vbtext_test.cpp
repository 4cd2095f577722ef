// The number text and conversion rules that stored values and labels depend on.
#include <gtest/gtest.h>

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

TEST(NumberText, ShortestFormUpToFifteenDigits) {
  EXPECT_EQ(numberText(0.1 + 0.2), "0.3");
  EXPECT_EQ(numberText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(numberText(2147483.647), "2147483.647");
  EXPECT_EQ(numberText(123456789012345.0), "123456789012345");
  EXPECT_EQ(numberText(-1.5), "-1.5");
  EXPECT_EQ(numberText(7), "7");
  EXPECT_EQ(numberText(-0.0), "0");
}

TEST(NumberText, ExponentFormBelowOneTenThousandthAndFromOneE15) {
  EXPECT_EQ(numberText(0.0001), "0.0001");
  EXPECT_EQ(numberText(0.00001), "1E-05");
  EXPECT_EQ(numberText(0.000123), "0.000123");
  EXPECT_EQ(numberText(0.0000123), "1.23E-05");
  EXPECT_EQ(numberText(1e15), "1E+15");
  EXPECT_EQ(numberText(1.5e20), "1.5E+20");
}

TEST(ToNumber, AcceptsNumbersWithBlanksSignAndExponent) {
  EXPECT_EQ(toNumber(" 12.5 "), 12.5);
  EXPECT_EQ(toNumber("-3"), -3);
  EXPECT_EQ(toNumber("+.5"), 0.5);
  EXPECT_EQ(toNumber("1E-05"), 0.00001);
  EXPECT_EQ(toNumber("2."), 2);
}

TEST(ToNumber, AnythingElseIsATypeMismatch) {
  for (const char* text : {"", " ", "abc", "1,5", "1.2.3", "--1", "e5", "1e", "12a", "."}) {
    EXPECT_EQ(faultOf([&] { toNumber(text); }), FaultKind::TypeMismatch) << text;
  }
  EXPECT_EQ(faultOf([] { toNumber("1e400"); }), FaultKind::Overflow);
}

TEST(Rounding, HalfGoesToTheEvenNeighbour) {
  EXPECT_EQ(roundHalfEven(2.5, 0), 2);
  EXPECT_EQ(roundHalfEven(3.5, 0), 4);
  EXPECT_EQ(roundHalfEven(-2.5, 0), -2);
  EXPECT_EQ(roundHalfEven(0.125, 2), 0.12);
  EXPECT_EQ(roundHalfEven(0.375, 2), 0.38);
  EXPECT_EQ(numberText(roundHalfEven(1.8339, 5)), "1.8339");
  EXPECT_EQ(numberText(roundHalfEven(1000.004, 2)), "1000");
}

TEST(Rounding, WholeIndexRoundsHalfToEvenWithinThirtyTwoBits) {
  EXPECT_EQ(wholeIndex(2.5), 2);
  EXPECT_EQ(wholeIndex(3.5), 4);
  EXPECT_EQ(wholeIndex(10.4), 10);
  EXPECT_EQ(wholeIndex(12.8), 13);
  EXPECT_EQ(wholeIndex(-0.5), 0);
  EXPECT_EQ(faultOf([] { wholeIndex(3e9); }), FaultKind::Overflow);
}

TEST(Divide, ByZeroIsAFaultNamingWhat) {
  EXPECT_EQ(divide(1, 4, "q"), 0.25);
  try {
    divide(0, 0, "corner tenor");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::DivisionByZero);
    EXPECT_NE(fault.message().find("corner tenor"), std::string::npos);
  }
}

TEST(LeftChars, CountsCharactersNotBytes) {
  EXPECT_EQ(leftChars("Çizim.mdb", 5), "Çizim");
  EXPECT_EQ(charCount("Çizim.mdb"), 9);
  EXPECT_EQ(leftChars("ab", 5), "ab");
  EXPECT_EQ(faultOf([] { leftChars("a.b", -1); }), FaultKind::InvalidProcedureCall);
}

}  // namespace
}  // namespace tri
