// Numbers and texts by the program's rules, at their edges.
#include "core/text_fields.h"

#include <gtest/gtest.h>

#include <limits>

namespace zepril {
namespace {

TEST(Val, ReadsTheNumberAtTheFront) {
  EXPECT_EQ(Val(" 12.5km"), 12.5);
  EXPECT_EQ(Val("-3"), -3);
  EXPECT_EQ(Val("+4"), 4);
  EXPECT_EQ(Val(".5"), 0.5);
  EXPECT_EQ(Val("5."), 5);
  EXPECT_EQ(Val("1.2.3"), 1.2);
  EXPECT_EQ(Val("abc"), 0);
  EXPECT_EQ(Val(""), 0);
  EXPECT_EQ(Val("-"), 0);
  EXPECT_EQ(Val("- 12"), 0);
  EXPECT_EQ(Val("1e3x"), 1000);
  EXPECT_EQ(Val("1e"), 1);
}

TEST(Val, HoldsWhatIsBeyondADouble) {
  EXPECT_EQ(Val("1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(Val("-" + std::string(400, '9')), -std::numeric_limits<double>::max());
  EXPECT_EQ(Val("1e-999"), 0);
  EXPECT_EQ(Val("0." + std::string(400, '0') + "1"), 0);
}

TEST(WholeVal, RoundsHalfToEvenAndRefusesWhatDoesNotFit) {
  EXPECT_EQ(WholeVal("2.5", 0, 10), 2);
  EXPECT_EQ(WholeVal("3.5", 0, 10), 4);
  EXPECT_EQ(WholeVal("300", 0, 255), std::nullopt);
}

TEST(Str, PrintsFifteenDigitsWithAPlaceForTheSign) {
  EXPECT_EQ(Str(5), " 5");
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(-0.5), "-.5");
  EXPECT_EQ(Str(0.5), " .5");
  EXPECT_EQ(Str(0.1 + 0.2), " .3");
  EXPECT_EQ(Str(1.0 / 3.0), " .333333333333333");
  EXPECT_EQ(ShortNumber(6600), "6600");
  EXPECT_EQ(ShortNumber(-10.517), "-10.517");
  EXPECT_EQ(ShortNumber(0.00005), ".00005");
  EXPECT_EQ(ShortNumber(123456789012345.0), "123456789012345");
  EXPECT_EQ(ShortNumber(1e15), "1E+15");
  EXPECT_EQ(ShortNumber(-2.5e-20), "-2.5E-20");
}

TEST(ShortNumber, ReadsBackAsTheSameNumberOfFifteenDigits) {
  for (double value : {0.5, -10.517, 6200.499, 5378.123, 1e-5, 99999.9999, -0.001}) {
    EXPECT_EQ(Val(ShortNumber(value)), value);
  }
}

TEST(ShortNumber, NothingFiniteIsNoCrash) {
  EXPECT_EQ(ShortNumber(std::numeric_limits<double>::quiet_NaN()), "0");
  EXPECT_FALSE(ShortNumber(std::numeric_limits<double>::infinity()).empty());
}

TEST(FixedNumber, HasAllItsPlaces) {
  EXPECT_EQ(FixedNumber(0.5, 7), "0.5000000");
  EXPECT_EQ(FixedNumber(-0.5, 1), "-0.5");
  EXPECT_EQ(FixedNumber(-0.01, 1), "0.0");
}

TEST(Rounding, GoesHalfToEven) {
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(2.4999), 2);
  EXPECT_EQ(Int(-0.5), -1);
  EXPECT_EQ(Fix(-0.5), 0);
  EXPECT_EQ(Sgn(-3), -1);
  EXPECT_EQ(ToWhole(std::numeric_limits<double>::quiet_NaN()), 0);
  EXPECT_EQ(IntegerQuotient(7.5, 2), 4);
  EXPECT_EQ(IntegerQuotient(-7, 2), -3);
  EXPECT_EQ(IntegerRemainder(-7, 2), -1);
  EXPECT_EQ(IntegerQuotient(7, 0.4), 0);
}

TEST(Cutting, ColumnsAreCountedFromOne) {
  EXPECT_EQ(Mid("abcdef", 2, 3), "bcd");
  EXPECT_EQ(Mid("abcdef", 5), "ef");
  EXPECT_EQ(Mid("abc", 9, 2), "");
  EXPECT_EQ(Mid("abc", 0, 2), "a");
  EXPECT_EQ(Left("abc", 2), "ab");
  EXPECT_EQ(Left("abc", -1), "");
  EXPECT_EQ(Right("abc", 2), "bc");
  EXPECT_EQ(Right("abc", 9), "abc");
}

TEST(Searching, ColumnsAreCountedFromOneAndZeroIsNone) {
  EXPECT_EQ(InStr("abcabc", "c"), 3);
  EXPECT_EQ(InStr(4, "abcabc", "c"), 6);
  EXPECT_EQ(InStr("abc", "x"), 0);
  EXPECT_EQ(InStr(9, "abc", "a"), 0);
}

TEST(NumericField, TakesDigitsAndPointsOnly) {
  EXPECT_TRUE(IsNumericField("4903.  "));
  EXPECT_TRUE(IsNumericField(""));
  EXPECT_FALSE(IsNumericField("490 .50"));
  EXPECT_FALSE(IsNumericField("49-3.50"));
}

TEST(Case, FollowsTheCodePage) {
  EXPECT_EQ(Upper("a\xE4\x9E\xFE\xF7"), "A\xC4\x8E\xDE\xF7");
  EXPECT_EQ(Lower("A\xC4\x8E"), "a\xE4\x9E");
  EXPECT_TRUE(EqualFolded("Qx7\xE5", "qX7\xC5"));
  EXPECT_FALSE(EqualFolded("ab", "abc"));
}

TEST(Padding, AddsBlanksAndFieldCuts) {
  EXPECT_EQ(PadLeft("7", 3), "  7");
  EXPECT_EQ(PadRight("7", 3), "7  ");
  EXPECT_EQ(Field("LONGNAMEXYZ", 9), "LONGNAMEX");
  EXPECT_EQ(ZeroPadded(7, 2), "07");
  EXPECT_EQ(DoubledAmpersands("a&b"), "a&&b");
  EXPECT_EQ(Split("a,,b", ',').size(), 3U);
  EXPECT_EQ(Split("", ',').size(), 1U);
}

}  // namespace
}  // namespace zepril
