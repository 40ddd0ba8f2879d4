// Columns, signs and cuts of kilometres, degrees and locators.
#include "geodesy/coordinate_texts.h"

#include <gtest/gtest.h>

#include <limits>

#include "core/position_text.h"

namespace zepril {
namespace {

TEST(KilometreText, IsNineCharactersWithAPointBeforeTheMetres) {
  EXPECT_EQ(KilometreText(5912.345), " 5912.345");
  EXPECT_EQ(KilometreText(0.1), "     .100");
  EXPECT_EQ(KilometreText(0.05), "     . 50");
}

TEST(KilometreText, ExactZeroHasFourDigitsAndAlmostZeroHasOne) {
  EXPECT_EQ(KilometreText(0.0), "    0.000");
  EXPECT_EQ(KilometreText(0.0004), "     .  0");
}

TEST(KilometreText, SignOfANegativeValueStaysInTheFirstColumn) {
  EXPECT_EQ(KilometreText(-12.345), "-  12.345");
  EXPECT_EQ(KilometreText(-0.0005), "-    .  1");
  EXPECT_EQ(KilometreText(-12.3454), "-  12.346");  // rounded down
}

TEST(KilometreText, IsReadBackByThePositionReader) {
  for (double km : {0.0, 0.042, -0.001, 12.345, -12.345, 5912.345, -9999.998, 400.0}) {
    EXPECT_NEAR(PositionTextKm(KilometreText(km)), km, 0.0005) << km;
  }
}

TEST(GridTexts, EastFromTenThousandKilometresShowsTwoDecimals) {
  EXPECT_EQ(GridEastText(15500.00012), " 15500.00");
  EXPECT_EQ(GridEastText(10484.25506), " 10484.55");
  EXPECT_EQ(GridEastText(4595.17776), " 4595.177");  // cut, not rounded
  EXPECT_EQ(GridEastText(10000.0), " 10000.00");
  EXPECT_EQ(GridEastText(9999.999), " 9999.999");
}

TEST(GridTexts, NorthIsHeldBelowTenThousandKilometres) {
  EXPECT_EQ(GridNorthText(12345.678), " 9999.999");
  EXPECT_EQ(GridNorthText(9999.999), " 9999.999");
  EXPECT_EQ(GridNorthText(-12.345), "-  12.345");
}

TEST(PointTexts, WholeMetresSurviveBinaryFractions) {
  EXPECT_EQ(PointKilometreText(RoundedToMetre(1.001)), "    1.001");
}

TEST(PointTexts, BeyondTheGridIsEmptyButTheCentreHasNoSuchRule) {
  EXPECT_EQ(PointKilometreText(RoundedToMetre(9999.9994)), "");
  EXPECT_EQ(PointKilometreText(RoundedToMetre(-9999.9994)), "");
  EXPECT_EQ(PointKilometreText(9999.998), " 9999.998");
  EXPECT_EQ(KilometreText(9999.9994), " 9999.999");
}

TEST(DegreeMinuteText, CutsAndKeepsTheSignWhereThereIsRoom) {
  EXPECT_EQ(DegreeMinuteText(52.5041), " 52:30.24");
  EXPECT_EQ(DegreeMinuteText(-9.5), "- 9:30.00");
  EXPECT_EQ(DegreeMinuteText(-0.5), "- 0:30.00");
  EXPECT_EQ(DegreeMinuteText(-0.00001), "- 0:00.00");
  EXPECT_EQ(DegreeMinuteText(48.5025), " 48:30.14");
  EXPECT_EQ(DegreeMinuteText(59.99999999), " 59:59.99");
}

TEST(DegreeMinuteText, ThreeDigitsOfDegreesLoseTheSign) {
  EXPECT_EQ(DegreeMinuteText(-122.5), "122:30.00");
  EXPECT_EQ(DegreeMinuteText(122.0), "122:00.00");
}

TEST(Locator, IsAllCapitalsAndDoesNotWrap) {
  EXPECT_EQ(LocatorOf(52.5, 13.4), "JO62QM");
  EXPECT_EQ(LocatorOf(0.0, 15.0), "JJ70MA");
  EXPECT_EQ(LocatorOf(0.0, 180.0), "SJ00AA");
}

TEST(GpsPositionTexts, AreKilometresFilledOnTheLeft) {
  const PositionTexts texts = FormatGpsPositionTexts(5378.123, 412.345);
  EXPECT_EQ(texts.North, " 5378.123");
  EXPECT_EQ(texts.East, "  412.345");
  EXPECT_EQ(FormatGpsPositionTexts(5818.297, 391.750).East, "  391.750");
}

TEST(GpsPositionTexts, ZeroHasFourDigitsAndShortDistancesNoZeros) {
  EXPECT_EQ(FormatGpsPositionTexts(0.0, 0.042).North, "    0.000");
  EXPECT_EQ(FormatGpsPositionTexts(0.0, 0.042).East, "     . 42");
}

TEST(GpsPositionTexts, ANegativeOneHasItsSignInTheFirstColumn) {
  EXPECT_EQ(FormatGpsPositionTexts(-10.517, -0.001).North, "-  10.517");
  EXPECT_EQ(FormatGpsPositionTexts(-10.517, -0.001).East, "-    .  1");
  EXPECT_EQ(FormatGpsPositionTexts(-9999.999, 0.0).North, "-9999.999");
}

TEST(GpsPositionTexts, BeyondTheGridTheyAreEmptyAndNineBlanksInAPlace) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (double km : {10000.0, 9999.9995, -10000.0, 1e300, nan}) {
    EXPECT_EQ(FormatGpsPositionTexts(km, 5.0).North, "") << km;
    EXPECT_EQ(FormatPoiPositionTexts(5.0, km).East, "         ") << km;
  }
  EXPECT_EQ(FormatGpsPositionTexts(9999.999, 0.0).North, " 9999.999");
  EXPECT_EQ(FormatPoiPositionTexts(5378.123, 412.345).North, " 5378.123");
}

TEST(GpsPositionTexts, EveryMetreReadsBack) {
  for (int metres = -9999999; metres <= 9999999; metres += 997) {
    const PositionTexts texts = FormatGpsPositionTexts(metres / 1000.0, metres / 1000.0);
    ASSERT_EQ(texts.North.size(), 9u) << metres;
    ASSERT_EQ(PositionTextKm(texts.North), metres / 1000.0) << texts.North;
  }
}

}  // namespace
}  // namespace zepril
