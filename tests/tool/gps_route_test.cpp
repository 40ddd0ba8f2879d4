// Routes, and the sentences of a GPS that is driven along one.
#include "tool/gps_route.h"

#include <gtest/gtest.h>

#include <string>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr GpsMoment kMoment{{52.50405, 13.40516}, {2024, 5, 14, 12, 30, 40}, 43.2, 0};

GpsMoment Nth(int count) {
  GpsMoment moment = kMoment;
  moment.Count = count;
  moment.Utc.Second += count;
  return moment;
}

TEST(GpsRoute, IsReadAsPointsInDegrees) {
  const auto route = ReadGpsRoute("52.5,13.4;-5.25,-100");
  ASSERT_TRUE(route);
  ASSERT_EQ(route->size(), 2U);
  EXPECT_EQ((*route)[1].Lat, -5.25);
  EXPECT_EQ((*route)[1].Lon, -100.0);
  for (const char* bad : {"", "52.5", "52.5,13.4;", "a,b", "90,0", "0,181", "1,2,3", "--1,2"})
    EXPECT_FALSE(ReadGpsRoute(bad)) << bad;
}

TEST(GpsRoute, GoesFromPointToPointAndStaysAtItsEnd) {
  const std::vector<GpsPoint> route{{0.0, 10.0}, {1.0, 10.0}, {1.0, 11.0}};
  const double degree = 60.0 * 1852.0;
  EXPECT_NEAR(PointOfRoute(route, 0.0).Lat, 0.0, 1e-9);
  EXPECT_NEAR(PointOfRoute(route, degree / 2).Lat, 0.5, 1e-9);
  EXPECT_NEAR(PointOfRoute(route, degree * 1.5).Lon, 10.5, 1e-3);
  EXPECT_NEAR(PointOfRoute(route, degree * 9).Lon, 11.0, 1e-9);
  EXPECT_NEAR(PointOfRoute({{3.0, 4.0}}, 5.0).Lon, 4.0, 1e-9);
}

TEST(GpsSentence, TellsPlaceTimeAndChecksum) {
  EXPECT_EQ(GpsSentences(GpsManner::Rmc, kMoment),
            "$GPRMC,123040.00,A,5230.2430,N,01324.3096,E,43.2,0.0,140524,,,A*60\r\n");
  EXPECT_EQ(GpsSentences(GpsManner::Gga, kMoment),
            "$GPGGA,123040.00,5230.2430,N,01324.3096,E,1,08,0.9,54.3,M,46.9,M,,*59\r\n");
}

TEST(GpsSentence, CarriesFullMinutesIntoTheDegrees) {
  GpsMoment moment = kMoment;
  moment.At = {-4.9999999999, -9.9999999999};
  EXPECT_NE(GpsSentences(GpsManner::Rmc, moment).find(",0500.0000,S,01000.0000,W,"),
            std::string::npos);
}

TEST(GpsSentence, MixedOnesTakeTurnsOfTalkers) {
  EXPECT_NE(GpsSentences(GpsManner::Mixed, Nth(0)).find("$GPRMC"), std::string::npos);
  EXPECT_NE(GpsSentences(GpsManner::Mixed, Nth(1)).find("$GNRMC"), std::string::npos);
  EXPECT_NE(GpsSentences(GpsManner::Mixed, Nth(1)).find("$GNGGA"), std::string::npos);
}

TEST(GpsSentence, EveryThirdDamagedOneHasAnotherMinute) {
  for (int count = 0; count < 9; ++count) {
    const std::string good = GpsSentences(GpsManner::Rmc, Nth(count));
    const std::string said = GpsSentences(GpsManner::Damaged, Nth(count));
    EXPECT_EQ(said == good, count % 3 != 2) << count;
    EXPECT_EQ(Right(said, 5), Right(good, 5));
  }
}

TEST(GpsTalker, HalvesMakeTheWhole) {
  GpsTalker talker(GpsManner::Halves);
  std::string said;
  std::string whole;
  for (int count = 0; count < 4; ++count) {
    const std::string piece = talker.Say(Nth(count));
    EXPECT_FALSE(piece.ends_with("\r\n"));
    said += piece;
    whole += GpsSentences(GpsManner::Rmc, Nth(count));
  }
  EXPECT_TRUE(whole.starts_with(said));
  EXPECT_GT(said.size(), whole.size() * 3 / 4);
}

TEST(GpsTalker, MannersHaveNames) {
  EXPECT_EQ(GpsMannerNamed("gga"), GpsManner::Gga);
  EXPECT_EQ(GpsMannerNamed("halves"), GpsManner::Halves);
  EXPECT_FALSE(GpsMannerNamed("loud"));
}

}  // namespace
}  // namespace zepril
