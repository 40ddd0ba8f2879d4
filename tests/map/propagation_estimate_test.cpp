// Both models of the ionosphere: hours, seasons, latitudes, hops.
#include "map/propagation_estimate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "core/text_fields.h"
#include "map/map_overlays.h"
#include "map/minimuf.h"

namespace zepril {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kRadian = 3.14159265358979 / 180.0;

// Berlin and a place some thousand kilometres to the south-west, at noon in June.
PropagationResult Estimate(const PropagationInputs& inputs) {
  return PropagationEstimate(52.5, 13.4, 45.0, 3.0, inputs);
}

TEST(CriticalFrequency, FollowsLatitudeHourAndSeason) {
  // 13 degrees east, June, noon UTC, and December midnight, when the swing is held at 60 degrees.
  EXPECT_NEAR(CriticalFrequency(50.0, -13.0, 40.0, 6, 12.0), 6.41694, 5e-6);
  EXPECT_NEAR(CriticalFrequency(50.0, -13.0, 40.0, 12, 0.0), 3.37418, 5e-6);
}

TEST(CriticalFrequency, TheSouthHasItsSeasonsHalfAYearOff) {
  // Over the geomagnetic equator at 20 degrees west the shift is 5 degrees.
  const double north = CriticalFrequency(45.0, 20.0, 40.0, 1, 12.0);
  const double south = CriticalFrequency(-35.0, 20.0, 40.0, 7, 12.0);
  EXPECT_NEAR(north, south, 1e-9);
}

TEST(CriticalFrequency, FarLatitudesCountAsTheLastBeforeThePole) {
  EXPECT_DOUBLE_EQ(CriticalFrequency(89.0, 20.0, 40.0, 6, 12.0),
                   CriticalFrequency(85.0, 20.0, 40.0, 6, 12.0));
}

TEST(CriticalFrequency, BeyondTheDateLineTheMagneticEquatorGoesOn) {
  // 170 degrees east is 190 degrees west.
  const double far_east = CriticalFrequency(10.0, -170.0, 40.0, 3, 0.0);
  const double just_before = CriticalFrequency(10.0, 179.9999, 40.0, 3, 0.0);
  const double just_behind = CriticalFrequency(10.0, -179.9999, 40.0, 3, 0.0);
  EXPECT_NEAR(just_before, just_behind, 0.01);
  EXPECT_TRUE(std::isfinite(far_east));
}

TEST(HopPlan, OneHopUnderTheLayerOfAThousandKilometres) {
  const HopPlan plan = PlanHops(1000.0 / 111.1, 40.0);
  EXPECT_EQ(plan.Hops, 1);
  EXPECT_NEAR(plan.TakeOffDeg, 27.7009, 5e-5);
  EXPECT_NEAR(6.41694 * ObliqueRayFactor(plan.TakeOffDeg, 40.0), 12.0416, 5e-5);
  EXPECT_DOUBLE_EQ(LayerHeightKm(40.0), 295.0);
}

TEST(HopPlan, LongPathsAreCutUntilTheRayLeavesTheGround) {
  // 1.5 degrees of take-off end a hop well below its 4500 km.
  EXPECT_EQ(PlanHops(3400.0 / 111.1, 40.0).Hops, 1);
  EXPECT_EQ(PlanHops(4000.0 / 111.1, 40.0).Hops, 2);
  const HopPlan half_way_round = PlanHops(180.0, 40.0);
  EXPECT_GE(half_way_round.Hops, 5);
  EXPECT_GE(half_way_round.TakeOffDeg, 1.5);
  EXPECT_DOUBLE_EQ(half_way_round.HopDeg, 180.0 / half_way_round.Hops);
}

TEST(HopPlan, EndsWhereNoNumberOfHopsHelps) {
  EXPECT_EQ(PlanHops(40000.0, 40.0).Hops, 0);
  EXPECT_EQ(PlanHops(kNan, 40.0).Hops, 0);
}

TEST(PropagationEstimate, ADisturbedFieldCostsMostInHighLatitudes) {
  const double q = DisturbanceWeight(52.5, 52.5);
  EXPECT_NEAR(q, 0.15608978, 5e-9);
  EXPECT_DOUBLE_EQ(DisturbanceWeight(-52.5, 52.5), q);
  const auto fopt = [&](double v, double kp) {
    return Int(10.0 * (v - std::pow(kp, 1.5) * q / 9.0 * v)) / 10.0;
  };
  EXPECT_DOUBLE_EQ(fopt(10.0, 2.0), 9.5);
  EXPECT_DOUBLE_EQ(fopt(14.27, 5.0), 11.5);
  EXPECT_DOUBLE_EQ(fopt(14.27, 0.0), 14.2);
}

TEST(PropagationEstimate, TheMeanCountsTheFirstModelTwiceAndAllIsCut) {
  for (int month = 1; month <= 12; ++month) {
    for (double hour = 0.25; hour < 24.0; hour += 3.0) {
      const PropagationResult quiet = Estimate({40.0, 0.0, month, hour});
      EXPECT_NEAR(quiet.Mean, (2.0 * quiet.MufPath + quiet.MufSecond) / 3.0, 0.1001);
      EXPECT_DOUBLE_EQ(quiet.Fopt, quiet.Mean);
      for (double value : {quiet.MufPath, quiet.MufSecond, quiet.Mean})
        EXPECT_DOUBLE_EQ(RoundHalfEven(value * 10.0) / 10.0, value);
      const PropagationResult storm = Estimate({40.0, 7.0, month, hour});
      EXPECT_LT(storm.Fopt, quiet.Fopt);
      EXPECT_DOUBLE_EQ(storm.Mean, quiet.Mean);
    }
  }
}

TEST(PropagationEstimate, SunspotsAreHeldWithinTheirRange) {
  const auto of = [](double sunspots) { return Estimate({sunspots, 2.0, 6, 12.0}); };
  EXPECT_DOUBLE_EQ(of(0.0).Fopt, of(1.0).Fopt);
  EXPECT_DOUBLE_EQ(of(0.0).MufSecond, of(1.0).MufSecond);
  EXPECT_DOUBLE_EQ(of(200.0).Fopt, of(180.0).Fopt);
  EXPECT_DOUBLE_EQ(of(200.0).MufSecond, of(180.0).MufSecond);
  EXPECT_GT(of(150.0).MufPath, of(20.0).MufPath);
}

TEST(PropagationEstimate, NoonCarriesHigherThanTheNight) {
  for (int month = 1; month <= 12; ++month) {
    const PropagationResult noon = Estimate({60.0, 2.0, month, 12.0});
    const PropagationResult night = Estimate({60.0, 2.0, month, 3.0});
    EXPECT_GT(noon.MufPath, night.MufPath) << month;
    EXPECT_GT(noon.MufSecond, night.MufSecond) << month;
  }
}

TEST(PropagationEstimate, EastAndWestAreNotMistaken) {
  // Six in the evening in Berlin: in the west it is still bright day, in the east dark.
  const PropagationInputs winter{60.0, 2.0, 12, 17.0};
  const PropagationResult west = PropagationEstimate(52.5, 13.4, 50.0, -25.0, winter);
  const PropagationResult east = PropagationEstimate(52.5, 13.4, 50.0, 52.0, winter);
  EXPECT_GT(west.MufPath, east.MufPath);
  EXPECT_GT(west.MufSecond, east.MufSecond);
}

TEST(PropagationEstimate, AWayAndItsReturnAreAlike) {
  const PropagationInputs inputs{60.0, 2.0, 4, 9.0};
  const PropagationResult there = PropagationEstimate(52.5, 13.4, 40.0, -3.7, inputs);
  const PropagationResult back = PropagationEstimate(40.0, -3.7, 52.5, 13.4, inputs);
  EXPECT_NEAR(there.MufPath, back.MufPath, 0.2);
  EXPECT_NEAR(there.MufSecond, back.MufSecond, 0.2);
}

TEST(PropagationEstimate, WhatIsNotOnEarthGivesNothing) {
  const PropagationInputs inputs;
  for (const auto& result : {PropagationEstimate(90.1, 0.0, 50.0, 0.0, inputs),
                             PropagationEstimate(50.0, 180.1, 50.0, 0.0, inputs),
                             PropagationEstimate(50.0, 0.0, -90.1, 0.0, inputs),
                             PropagationEstimate(50.0, 0.0, 50.0, -180.1, inputs),
                             PropagationEstimate(kNan, 0.0, 50.0, 0.0, inputs),
                             PropagationEstimate(50.0, 0.0, 50.0, 10.0, {kNan, 2.0, 6, 12.0}),
                             PropagationEstimate(50.0, 0.0, 50.0, 10.0, {40.0, -2.0, 6, 12.0})}) {
    EXPECT_EQ(result.Fopt, 0.0);
    EXPECT_EQ(result.MufPath, 0.0);
    EXPECT_EQ(result.MufSecond, 0.0);
    EXPECT_EQ(result.Mean, 0.0);
  }
}

TEST(PropagationEstimate, AnyPlacesGiveFiniteValues) {
  std::mt19937 random(11);
  const auto within = [&](double limit) {
    return limit * (static_cast<double>(random() % 20001) / 10000.0 - 1.0);
  };
  for (int i = 0; i < 20000; ++i) {
    const PropagationResult result =
        PropagationEstimate(within(90.0), within(180.0), within(90.0), within(180.0),
                            {std::fabs(within(250.0)), std::fabs(within(9.0)),
                             1 + static_cast<int>(random() % 12), std::fabs(within(24.0))});
    ASSERT_TRUE(std::isfinite(result.Fopt));
    ASSERT_LT(std::fabs(result.Fopt), 200.0);
  }
}

TEST(Minimuf, RefusesWhatItWasNotMadeFor) {
  const MinimufInputs good{
      52.5 * kRadian, -13.4 * kRadian, 40.7 * kRadian, 74.0 * kRadian, 60.0, 6, 15.0};
  EXPECT_GT(Minimuf(good), 0.0);
  const auto changed = [&](auto change) {
    MinimufInputs inputs = good;
    change(inputs);
    return Minimuf(inputs);
  };
  EXPECT_EQ(changed([](MinimufInputs& in) { in.Lat1 = 1.6; }), 0.0);
  EXPECT_EQ(changed([](MinimufInputs& in) { in.Lat2 = -1.6; }), 0.0);
  EXPECT_EQ(changed([](MinimufInputs& in) { in.Lon1 = 6.3; }), 0.0);
  EXPECT_EQ(changed([](MinimufInputs& in) { in.Lon2 = -6.3; }), 0.0);
  EXPECT_EQ(changed([](MinimufInputs& in) { in.Month = 0; }), 0.0);
  EXPECT_EQ(changed([](MinimufInputs& in) { in.Month = 13; }), 0.0);
  EXPECT_EQ(changed([](MinimufInputs& in) { in.SunspotNumber = -1.0; }), 0.0);
  EXPECT_EQ(changed([](MinimufInputs& in) {
              in.Lat2 = in.Lat1;
              in.Lon2 = in.Lon1;
            }),
            0.0);
}

TEST(Minimuf, FrequenciesAreThoseOfShortWaves) {
  // From Berlin to New York over a day of an equinox: lowest before sunrise, highest by daylight.
  double lowest = 100.0;
  double highest = 0.0;
  double lowest_hour = 0.0;
  double highest_hour = 0.0;
  for (double hour = 0.0; hour < 24.0; hour += 1.0) {
    const double muf =
        Minimuf({52.5 * kRadian, -13.4 * kRadian, 40.7 * kRadian, 74.0 * kRadian, 100.0, 3, hour});
    if (muf < lowest) lowest_hour = hour;
    if (muf > highest) highest_hour = hour;
    lowest = std::min(lowest, muf);
    highest = std::max(highest, muf);
  }
  EXPECT_GT(lowest, 5.0);
  EXPECT_LT(lowest, 12.0);
  EXPECT_GT(highest, 18.0);
  EXPECT_LT(highest, 35.0);
  EXPECT_LE(lowest_hour, 12.0);
  EXPECT_GE(highest_hour, 12.0);
}

TEST(Minimuf, RisesWithTheSunspotsInProportion) {
  const auto of = [](double sunspots) { return Minimuf({0.9, -0.2, 0.7, 0.1, sunspots, 6, 12.0}); };
  EXPECT_NEAR(of(125.0) / of(0.0), 1.5, 1e-9);
}

TEST(Minimuf, APathOverTheEquatorCarriesTenPercentHigherThanItsNorthernTwin) {
  // The same control point on the equator's northern side; only the far end changes side.
  const double north = Minimuf({0.3, 0.0, 0.02, 0.0, 60.0, 3, 12.0});
  const double across = Minimuf({0.34, 0.0, -0.02, 0.0, 60.0, 3, 12.0});
  EXPECT_GT(across, north * 1.1);
}

TEST(PropagationInputs, UtcIsTheLocalHourLessTheOffset) {
  InternetState internet;
  internet.SunspotNumber = 70.0;
  internet.KpIndex = 3.0;
  LocalTime time{2026, 6, 21, 1, 30, 0};
  const PropagationInputs summer = InputsOfNow(internet, 2, time);
  EXPECT_DOUBLE_EQ(summer.UtcHours, 23.5);
  EXPECT_EQ(summer.Month, 6);
  EXPECT_DOUBLE_EQ(summer.SunspotNumber, 70.0);
  EXPECT_DOUBLE_EQ(summer.KpIndex, 3.0);
  time.Hour = 22;
  EXPECT_DOUBLE_EQ(InputsOfNow(internet, -5, time).UtcHours, 3.5);
}

}  // namespace
}  // namespace zepril
