// Keys, heads, digits and end lines of the way, letter by letter.
#include "gps/way_lines.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

constexpr LocalTime kHalfPastTwelve{2024, 5, 14, 12, 30, 59};

TEST(WayLines, AKeyIsNorthAndThenEastWithItsBlank) {
  EXPECT_EQ(WayKey({5378, 412}), "5378 412 ");
  EXPECT_EQ(WayKey({5395, -11}), "5395-11  ");
  EXPECT_EQ(WayKey({6600, 1012}), "6600 1012");
  EXPECT_EQ(WayKey({978, 412}), "978 412 ");
}

TEST(WayLines, ASquareIsNamedByItsSouthWesternCorner) {
  const auto key = [](double north, double east) { return WayKey(WaySquareOf(north, east)); };
  EXPECT_EQ(key(5378.9, 412.9), "5378 412 ");
  EXPECT_EQ(key(5395.275, -10.523), "5395-11  ");
}

TEST(WayLines, PlaceAndTimeOpenALine) {
  const std::string start = WayPlaceAndTime({5378, 412}, kHalfPastTwelve);
  EXPECT_EQ(start, "5378 412  240514 1230");
  EXPECT_EQ(WayHead(start), "5378 412  240514 1230||");
}

TEST(WayLines, TheDigitsGoRoundFromNorthWithTheSun) {
  const WaySquare from{5378, 412};
  EXPECT_EQ(WayDigit(from, {5379, 412}), "0");
  EXPECT_EQ(WayDigit(from, {5379, 413}), "1");
  EXPECT_EQ(WayDigit(from, {5378, 413}), "2");
  EXPECT_EQ(WayDigit(from, {5377, 413}), "3");
  EXPECT_EQ(WayDigit(from, {5377, 412}), "4");
  EXPECT_EQ(WayDigit(from, {5377, 411}), "5");
  EXPECT_EQ(WayDigit(from, {5378, 411}), "6");
  EXPECT_EQ(WayDigit(from, {5379, 411}), "7");
  EXPECT_EQ(WayDigit(from, from), "");
}

TEST(WayLines, AJumpLeavesTheNeighbourhoodInBothDirections) {
  const WaySquare from{5378, 412};
  EXPECT_TRUE(IsNeighbour(from, {5379, 411}));
  EXPECT_FALSE(IsNeighbour(from, {5380, 412}));
  EXPECT_FALSE(IsWayJump(from, {5380, 412}));
  EXPECT_FALSE(IsWayJump(from, {5380, 413}));
  EXPECT_TRUE(IsWayJump(from, {5380, 410}));
}

TEST(WayLines, TheEndLineIsFilledToTheMarkBehindIt) {
  const std::string line = WayEndLine("5378 412  240514 1230");
  EXPECT_EQ(line, "5378 412  240514 1230 STOP   ZEPRIL_NAVIGATION_ENDED  @(xxx)@yyy@zzz");
  EXPECT_EQ(line.size(), 68U);
}

TEST(WayLines, TenLettersHaveCodesOfTheirOwn) {
  EXPECT_EQ(ToOemText("a\xC4\xE4\xC5\xE5\xD6\xF6\xDC\xFC\xDF\xB5\xE9z"),
            "a\x8E\x84\x8F\x86\x99\x94\x9A\x81\xE1\xE6\xE9z");
}

TEST(WayLines, AnOutingIsToldByItsTurningPoint) {
  EXPECT_EQ(OutingLine("\xFE 5390.500  415.250 20240514 1300", "20240514.VEC"),
            "5390  415 240514 1300 OUT_A  OUTDOOR_ACT TK20240514.VEC");
}

}  // namespace
}  // namespace zepril
