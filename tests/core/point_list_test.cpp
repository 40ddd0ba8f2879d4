// Lines kept over many blocks, and positions read as the general reader reads them.
#include "core/point_list.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "core/position_text.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr const char* kTrackLine = "\xFE 5378.123  412.345 20240514 1230";

TEST(PointList, ReadsPositionAndTextOfALine) {
  PointList points(10, 256);
  ASSERT_TRUE(points.Append(kTrackLine));
  EXPECT_EQ(points.Count(), 1);
  EXPECT_DOUBLE_EQ(points.NorthKm(1), 5378.123);
  EXPECT_DOUBLE_EQ(points.EastKm(1), 412.345);
  EXPECT_EQ(points.Line(1), kTrackLine);
  EXPECT_EQ(points.Length(1), 33u);
  EXPECT_EQ(points.Text(1), "20240514 1230");
  EXPECT_TRUE(points.HasPosition(1));
}

TEST(PointList, ANameIsTheSameBehindOneBlankAndBehindTwo) {
  PointList points(10, 256);
  points.Append("\xFE 5378.123  412.345  HUT");
  points.Append("\xFE 5378.123  412.345 HUT  ");
  EXPECT_EQ(points.Name(1), "HUT");
  EXPECT_EQ(points.Name(2), "HUT");
}

TEST(PointList, ReadsWhatThereIsOfALineOfAnyForm) {
  PointList points(10, 256);
  points.Append("");
  points.Append("rubbish");
  points.Append(std::string("\xFE", 1));
  points.Append("\xFE-  10.517");
  points.Append(std::string("\xFE\0\0\0\0\0.\0\0\0", 10));
  EXPECT_EQ(points.Line(1), "");
  EXPECT_EQ(points.Text(1), "");
  EXPECT_FALSE(points.HasPosition(1));
  EXPECT_EQ(points.Line(2), "rubbish");
  EXPECT_FALSE(points.HasPosition(3));
  EXPECT_DOUBLE_EQ(points.NorthKm(4), -10.517);
  EXPECT_EQ(points.EastKm(4), 0.0);
  EXPECT_TRUE(points.HasPosition(4));
  EXPECT_EQ(points.Length(5), 10u);
}

TEST(PointList, TakesNoMoreThanItsLimit) {
  PointList points(2, 256);
  EXPECT_TRUE(points.Append("a"));
  EXPECT_TRUE(points.Append("b"));
  EXPECT_FALSE(points.Append("c"));
  EXPECT_EQ(points.Count(), 2);
  points.Clear();
  EXPECT_EQ(points.Count(), 0);
  EXPECT_TRUE(points.Append("d"));
  EXPECT_EQ(points.Line(1), "d");
}

TEST(PointList, CutsALineThatIsTooLong) {
  PointList points(10, 40);
  points.Append(std::string(kTrackLine) + std::string(70000, 'x'));
  EXPECT_EQ(points.Length(1), 40u);
  EXPECT_EQ(points.Text(1), "20240514 1230xxxxxxx");
}

// Lines of every length, so that they meet the ends of the blocks in all ways.
TEST(PointList, KeepsEveryLineOverManyBlocks) {
  std::mt19937 random(3);
  PointList points(100000, 300);
  std::vector<std::string> lines;
  for (int i = 0; i < 40000; ++i) {
    lines.push_back(std::string(random() % 301, static_cast<char>('a' + i % 26)));
    ASSERT_TRUE(points.Append(lines.back()));
  }
  for (int i = 1; i <= points.Count(); ++i)
    ASSERT_EQ(points.Line(i), lines[static_cast<std::size_t>(i) - 1]) << i;
}

TEST(PointList, AnEmptyLineBehindAFullBlockIsStillThere) {
  constexpr std::size_t kBlock = std::size_t{1} << 20;
  PointList points(10, 2 * kBlock);
  points.Append(std::string(2 * kBlock, 'x'));  // fills its block to the last character
  points.Append("");
  points.Append("end");
  EXPECT_EQ(points.Line(2), "");
  EXPECT_EQ(points.Line(3), "end");
}

TEST(PointPosition, TheQuickReaderAgreesWithTheGeneralOneOnEveryText) {
  std::mt19937 random(11);
  // Mostly what positions are made of, so that the usual form is met often.
  const std::string usual = "0123456789     -";
  const std::string odd = "0123456789 -.+eE,x\xFE";
  for (int i = 0; i < 300000; ++i) {
    std::string text(i % 20 == 0 ? random() % 12 : 9, ' ');
    const std::string& from = i % 3 == 0 ? odd : usual;
    for (char& c : text)
      c = from[random() % from.size()];
    if (text.size() == 9 && i % 4 != 0) text[5] = '.';
    const double quick = PointPositionKm(text);
    const double general = PositionTextKm(text);
    ASSERT_EQ(quick, general) << '[' << text << ']';
    ASSERT_EQ(std::signbit(quick), std::signbit(general)) << '[' << text << ']';
  }
}

TEST(PointPosition, EveryMetreReadsToTheNearestDouble) {
  for (int metres = 0; metres < 10'000'000; metres += 137) {
    const std::string text = RecordEastText(metres);
    ASSERT_EQ(PointPositionKm(text), Val(FixedNumber(metres / 1000.0, 3))) << text;
  }
}

}  // namespace
}  // namespace zepril
