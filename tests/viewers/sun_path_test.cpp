// The sun's angles and energies at worked places and at the ends of the year.
#include "viewers/sun_path.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zepril {
namespace {

SunPath PathOf(const SunPlace& place, int month, int day) {
  return {place, DeclinationDeg(DayAngleDeg(month, day))};
}

// Watt hours of the day itself, of 21 June and of 21 December.
struct ThreeDays {
  double Today;
  double Summer;
  double Winter;
};
ThreeDays EnergiesOf(const SunPlace& place, int month, int day) {
  return {EnergyOfDay(PathOf(place, month, day), 1.0).WattHours,
          EnergyOfDay(SunPath(place, kAxialTiltDeg), 7.5).WattHours,
          EnergyOfDay(SunPath(place, -kAxialTiltDeg), 7.5).WattHours};
}

TEST(DayAngle, CountsTenDaysBeforeTheNewYearInAYearOf364Days) {
  EXPECT_DOUBLE_EQ(DayAngleDeg(1, 1), 11.0 / 364.0 * 360.0);
  EXPECT_DOUBLE_EQ(DayAngleDeg(3, 21), 90.0 / 364.0 * 360.0);
  EXPECT_DOUBLE_EQ(DayAngleDeg(12, 19), 363.0 / 364.0 * 360.0);
}

TEST(DayAngle, WrapsAtTheEndOfTheYear) {
  EXPECT_DOUBLE_EQ(DayAngleDeg(12, 20), 0.0);
  EXPECT_NEAR(DayAngleDeg(12, 31) / 360.0, 0.03022, 0.000005);
}

TEST(DayAngle, TheLeapDayIsTheFirstOfMarch) {
  EXPECT_DOUBLE_EQ(DayAngleDeg(2, 29), DayAngleDeg(3, 1));
}

TEST(DayAngle, MonthsOutOfRangeAreHeld) {
  EXPECT_DOUBLE_EQ(DayAngleDeg(0, 5), DayAngleDeg(1, 5));
  EXPECT_DOUBLE_EQ(DayAngleDeg(13, 5), DayAngleDeg(12, 5));
}

TEST(Declination, RunsBetweenTheTropics) {
  EXPECT_DOUBLE_EQ(DeclinationDeg(0.0), -23.45);
  EXPECT_NEAR(DeclinationDeg(180.0), 23.45, 1e-12);
  EXPECT_NEAR(DeclinationDeg(90.0), 0.0, 1e-6);
}

TEST(EnergyOfDay, MatchesWorkedPlaces) {
  const ThreeDays june = EnergiesOf({48.5, 8.0, 2.0}, 6, 21);
  EXPECT_NEAR(june.Today, 879.081, 0.0005);
  EXPECT_NEAR(june.Summer, 878.757, 0.0005);
  EXPECT_NEAR(june.Winter, 163.447, 0.0005);
  EXPECT_NEAR(EnergiesOf({48.5, 8.0, 1.0}, 12, 31).Today, 169.169, 0.0005);
  const ThreeDays equator = EnergiesOf({0.0, 0.0, 0.0}, 3, 21);
  EXPECT_NEAR(equator.Today, 763.905, 0.0005);
  EXPECT_NEAR(equator.Summer, 699.847, 0.0005);
  EXPECT_NEAR(equator.Winter, 699.847, 0.0005);
}

TEST(EnergyOfDay, IsNothingInThePolarNight) {
  const ThreeDays polar = EnergiesOf({80.0, 15.0, 1.0}, 12, 21);
  EXPECT_EQ(polar.Today, 0.0);
  EXPECT_EQ(polar.Winter, 0.0);
  EXPECT_NEAR(polar.Summer, 952.0, 1.0);
}

TEST(EnergyOfDay, AmpereHoursAreThoseOfATwelveVoltBattery) {
  const SunEnergy energy = EnergyOfDay(SunPath({0.0, 0.0, 0.0}, 0.0), 1.0);
  EXPECT_DOUBLE_EQ(energy.AmpereHours, energy.WattHours / 12.0);
}

TEST(SumOfSines, CountsBothMidnights) {
  // At the pole in summer the sun stands still all day: 361 and 49 equal terms.
  const SunPath pole({90.0, 0.0, 0.0}, kAxialTiltDeg);
  const double sine = pole.SineAt(0.0);
  EXPECT_NEAR(pole.SumOfSines(1.0), 361.0 * sine, 1e-6);
  EXPECT_NEAR(pole.SumOfSines(7.5), 49.0 * sine, 1e-6);
}

TEST(SunPath, StandsHighestWhenTheClockShowsNoonOnItsMeridian) {
  const SunPath on_meridian({50.0, 15.0, 1.0}, 0.0);
  EXPECT_NEAR(on_meridian.ElevationDegAt(180.0), 40.0, 1e-5);
  // An hour of summer time puts noon an hour later on the clock.
  const SunPath summer_time({50.0, 15.0, 2.0}, 0.0);
  EXPECT_NEAR(summer_time.ElevationDegAt(195.0), 40.0, 1e-5);
  // West of the meridian noon is later too, east of it earlier.
  const SunPath west({50.0, 0.0, 1.0}, 0.0);
  EXPECT_NEAR(west.ElevationDegAt(195.0), 40.0, 1e-5);
}

TEST(SunPath, TheZenithIsFinite) {
  const SunPath zenith({23.45, 0.0, 0.0}, 23.45);
  EXPECT_LT(zenith.SineAt(180.0), 1.0);
  EXPECT_NEAR(zenith.ElevationDegAt(180.0), 90.0, 0.001);
  const SunPath nadir({-90.0, 0.0, 0.0}, 90.0);
  EXPECT_GT(nadir.SineAt(0.0), -1.0);
  EXPECT_NEAR(nadir.ElevationDegAt(0.0), -90.0, 0.001);
}

TEST(SunPath, APlaceThatIsNoNumberBringsNothing) {
  for (double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(EnergyOfDay(SunPath({bad, 0.0, 0.0}, 0.0), 1.0).WattHours, 0.0);
    EXPECT_EQ(EnergyOfDay(SunPath({0.0, bad, 0.0}, 0.0), 7.5).WattHours, 0.0);
  }
}

}  // namespace
}  // namespace zepril
