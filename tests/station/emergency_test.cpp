// An emergency in a whole station: heard, shown, closed, back after half a minute, cancelled; and a
// weather station's report beside its record.
#include <gtest/gtest.h>

#include <string>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr const char* kEmergency = "=5230.24N\\01324.31E!help";

class EmergencyTest : public ::testing::Test {
 protected:
  EmergencyTest() { EXPECT_TRUE(station.Start()); }
  EmergencyControls& Panel() { return station.Controls().Emergency; }
  void HearEmergency(const std::string& more = {}) {
    station.Hear("QX7GW", kEmergency + more);
    station.Ticks(1);
  }

  StationHarness station{"UTCD=0\r\n"};
};

TEST_F(EmergencyTest, AStationInEmergencyIsShownAndTheMapGoesThere) {
  EXPECT_FALSE(Panel().Frame14.Visible);
  HearEmergency();
  EXPECT_TRUE(Panel().Frame14.Visible);
  EXPECT_TRUE(Panel().EmergencyCall.Caption.starts_with("QX7GW       2024-01-15 12:34"));
  EXPECT_EQ(Panel().EmergencyInfo.Caption, "help");
  EXPECT_NEAR(station.State().Map.CentreNorthKm, 5818.297, 0.05);
  EXPECT_NEAR(station.State().Map.CentreEastKm, 391.750, 0.05);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  EXPECT_NE(station.File("U33\\LOG\\_ALARM_.TXT").find("STATION : QX7GW\r\n"), std::string::npos);
  EXPECT_NE(station.File("U33\\LOG\\_ALARM_.TXT").find("GLL     : "), std::string::npos);
}

TEST_F(EmergencyTest, ClosedItComesBackUntilItIsCancelled) {
  HearEmergency();
  for (int time = 0; time < 3; ++time) {
    Panel().EmergencyClose.Click();
    station.clock.Run(29.0);
    EXPECT_FALSE(Panel().Frame14.Visible);
    station.clock.Run(8.0);
    EXPECT_TRUE(Panel().Frame14.Visible);
  }
  // An hour later the operator is asked whether it lasts.
  station.clock.Run(3700.0);
  EXPECT_TRUE(Panel().Frame14.Visible);
  station.dialogs.Expect("ZEP RIL         EMERGENCY ALARM",
                         "CANCEL THIS ALARM  ( = FALSE ALARM )  ?", DialogAnswer::Yes);
  Panel().EmergencyClose.Click();
  station.clock.Run(600.0);
  EXPECT_FALSE(Panel().Frame14.Visible);
  EXPECT_NE(station.File("U33\\LOG\\_ALARM_.TXT").find("FALSE ALARM : QX7GW"), std::string::npos);
}

// Heard over another digipeater within ten minutes it counts as a repeat of the ordinary report.
TEST_F(EmergencyTest, TheFirstReportOfAnEmergencyFromWhereAStationStoodIsShown) {
  station.Hear("QX7GW", "=5230.24N/01324.31E>all well", "DIGIA*");
  station.Ticks(1);
  station.clock.Run(120.0);
  station.Hear("QX7GW", "=5230.24N\\01324.31E!help", "DIGIB*");
  station.Ticks(2);
  EXPECT_TRUE(Panel().Frame14.Visible);
  EXPECT_TRUE(Panel().EmergencyCall.Caption.starts_with("QX7GW"));
  EXPECT_NEAR(station.State().Map.CentreNorthKm, 5818.297, 0.05);
}

TEST_F(EmergencyTest, APictureGoesAndTheMapJumps) {
  station.State().Map.PictureMode = MapShows::Picture;
  station.Controls().Picture.Frame8.Visible = true;
  HearEmergency();
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Map);
  EXPECT_FALSE(station.Controls().Picture.Frame8.Visible);
  EXPECT_NEAR(station.State().Map.CentreNorthKm, 5818.297, 0.05);
}

TEST_F(EmergencyTest, ANewOneTakesThePlaceOfTheOneBefore) {
  HearEmergency();
  Panel().EmergencyClose.Click();
  station.Hear("QX8GW", "=5240.24N\\01330.31E!fire");
  station.Ticks(1);
  EXPECT_TRUE(Panel().Frame14.Visible);
  EXPECT_TRUE(Panel().EmergencyCall.Caption.starts_with("QX8GW"));
}

TEST_F(EmergencyTest, OneEverySecondForAnHourIsBorne) {
  for (int second = 0; second < 3600; ++second) {
    station.Hear("QX7GW", kEmergency + std::to_string(second));
    station.clock.Run(1.0);
  }
  EXPECT_TRUE(Panel().Frame14.Visible);
  EXPECT_LE(station.State().Stores.MoniAllRecords.Count(), 3000);
  EXPECT_TRUE(station.program->Timer1().Enabled());
}

TEST_F(EmergencyTest, AWeatherStationsReportIsShownWithItsRecord) {
  station.Hear("QX7WX", "!5232.00N/01328.00E_220/004g005t077r000p000P000h50b10139");
  station.Ticks(1);
  WeatherControls& weather = station.Controls().Weather;
  EXPECT_FALSE(weather.Frame15.Visible);
  station.Controls().MoniAll.Command3.Click();
  station.Controls().MoniAll.HeardList.ListIndex = 0;
  station.Controls().MoniAll.HeardList.Click();
  EXPECT_TRUE(weather.Frame15.Visible);
  EXPECT_EQ(weather.WxTitle.Caption, "WX STATION  QX7WX  2024-01-15 1234");
  EXPECT_EQ(weather.Values[8].Caption, "PRESSURE   hPa: 1014");
  EXPECT_FALSE(station.weather_surface.Operations.empty());
  // A newer report takes its place.
  station.Hear("QX7WX", "!5232.00N/01328.00E_220/004g005t050r000p000P000h50b10039");
  station.clock.Run(66.0);
  EXPECT_EQ(weather.Values[8].Caption, "PRESSURE   hPa: 1004");
  station.Controls().Record.Command23.Click();
  EXPECT_FALSE(weather.Frame15.Visible);
}

}  // namespace
}  // namespace zepril
