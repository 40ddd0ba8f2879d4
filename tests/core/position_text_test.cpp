// Nine columns of kilometres: written, cut, rounded, read back.
#include "core/position_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/text_fields.h"

namespace zepril {
namespace {

TEST(RecordPositionText, HasNineColumnsWithTheMetresBehindThePoint) {
  EXPECT_EQ(RecordNorthText(5817860.727), " 5817.860");
  EXPECT_EQ(RecordEastText(391394.248), "  391.394");
}

TEST(RecordPositionText, PutsNoZeroBeforeThePointAndTheSignNextToTheDigits) {
  EXPECT_EQ(RecordNorthText(42.0), "     . 42");
  EXPECT_EQ(RecordNorthText(345.0), "     .345");
  EXPECT_EQ(RecordNorthText(-345.0), "    -.345");
  EXPECT_EQ(RecordNorthText(-45.0), "     .-45");
  EXPECT_EQ(RecordNorthText(-12345.0), "  -12.345");
  EXPECT_EQ(RecordNorthText(0.0), "     .  0");
}

TEST(RecordPositionText, NorthIsCutTowardsZeroAndEastRoundedDown) {
  EXPECT_EQ(RecordEastText(-10519.02), "  -10.520");
  EXPECT_EQ(RecordNorthText(-10519.98), "  -10.519");
  EXPECT_EQ(RecordEastText(10519.98), "   10.519");
}

TEST(RecordPositionText, NorthIsHeldBelowTheEndOfTheGrid) {
  EXPECT_EQ(RecordNorthText(9999990.0), " 9999.990");
  EXPECT_EQ(RecordNorthText(9999995.0), " 9999.990");
  EXPECT_EQ(RecordNorthText(1e300), " 9999.990");
  EXPECT_EQ(RecordNorthText(-9999000.0), "-9999.000");
}

TEST(RecordPositionText, WhatIsNoNumberReadsAsZero) {
  EXPECT_EQ(RecordEastText(std::numeric_limits<double>::quiet_NaN()), "     .  0");
  EXPECT_EQ(RecordNorthText(std::numeric_limits<double>::infinity()), " 9999.990");
}

TEST(PositionText, IsReadWithItsBlanksAndItsSignAnywhere) {
  EXPECT_DOUBLE_EQ(PositionTextKm(" 5817.860"), 5817.860);
  EXPECT_DOUBLE_EQ(PositionTextKm("     . 42"), 0.042);
  EXPECT_DOUBLE_EQ(PositionTextKm("     .-45"), -0.045);
  EXPECT_DOUBLE_EQ(PositionTextKm("-    .  1"), -0.001);
  EXPECT_DOUBLE_EQ(PositionTextKm("-  10.517"), -10.517);
  EXPECT_DOUBLE_EQ(PositionTextKm("  -10.517"), -10.517);
  EXPECT_DOUBLE_EQ(PositionTextKm("         "), 0.0);
  EXPECT_DOUBLE_EQ(PositionTextKm(""), 0.0);
  EXPECT_DOUBLE_EQ(PositionTextKm("410"), 410.0);
}

TEST(PositionText, EveryWrittenMetreReadsBack) {
  for (int metres = -20000; metres <= 20000; ++metres) {
    const std::string text = RecordEastText(metres);
    ASSERT_EQ(text.size(), 9U) << metres;
    ASSERT_DOUBLE_EQ(PositionTextKm(text), metres / 1000.0) << text;
  }
}

TEST(PositionText, BytesThatAreNoPositionAreSurvived) {
  for (int byte = 0; byte < 256; ++byte) {
    for (const std::size_t at : {0U, 4U, 5U, 8U}) {
      std::string text = " 5817.860";
      text[at] = Chr(byte);
      EXPECT_TRUE(std::isfinite(PositionTextKm(text)));
    }
  }
}

}  // namespace
}  // namespace zepril
