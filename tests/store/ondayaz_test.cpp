// Fixed thousandths through the number's text: truncated, never rounded.
#include <gtest/gtest.h>

#include "platform/fault.h"
#include "store/ondayaz.h"

namespace tri {
namespace {

TEST(Ondayaz, KeepsThreeDecimalsOfTheText) {
  EXPECT_EQ(ondayaz(2.3), 2300);
  EXPECT_EQ(ondayaz(1234.5678), 1234567);
  EXPECT_EQ(ondayaz(-1.5), -1500);
  EXPECT_EQ(ondayaz(7), 7000);
  EXPECT_EQ(ondayaz(0), 0);
  EXPECT_EQ(ondayaz(-0.5), -500);
  EXPECT_EQ(ondayaz(2147483.647), 2147483647);
}

TEST(Ondayaz, TruncatesWhereArithmeticWouldRound) {
  EXPECT_EQ(ondayaz(1.9999), 1999);
  EXPECT_EQ(ondayaz(53.3333333333333), 53333);
  EXPECT_EQ(ondayaz(-2.0009), -2000);
  // 0.1 + 0.2 is 0.30000000000000004, but its text is "0.3".
  EXPECT_EQ(ondayaz(0.1 + 0.2), 300);
  // 2.675 x 1000 in binary is 2674.9999...; the text keeps 2675.
  EXPECT_EQ(ondayaz(2.675), 2675);
}

TEST(Ondayaz, AcceptsEitherSeparator) {
  EXPECT_EQ(ondayazText("2,5"), 2500);
  EXPECT_EQ(ondayazText("1234,5678"), 1234567);
  EXPECT_EQ(ondayazText("-0,25"), -250);
  EXPECT_EQ(ondayazText("12"), 12000);
}

TEST(Ondayaz, ExponentTextIsNotTreatedSpecially) {
  // "1.5E+20" splits at its point into "1" and "5E+", which is no number.
  EXPECT_THROW(ondayaz(1.5e20), Fault);
  // "1E-05" has no separator and becomes "1E-05000", a number too small to matter.
  EXPECT_EQ(ondayaz(0.00001), 0);
}

}  // namespace
}  // namespace tri
