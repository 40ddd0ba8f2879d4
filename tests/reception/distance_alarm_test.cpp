// When the distance alarm is raised, for whom, and what it shows.
#include "reception/distance_alarm.h"

#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

class DistanceAlarmTest : public ::testing::Test {
 protected:
  DistanceAlarmTest() {
    station.Map.OwnNorthKm = 5817.860;
    station.Map.OwnEastKm = 391.394;
    station.Map.StationLabelLevel = LabelLevel::Marks;
    station.Alarms.MoniAllAlarmOn = 1;
    station.Alarms.AlarmDistanceKm = 10;
  }
  bool Alarms(const StationRecord& record) {
    station.Controls.Status.Frame12.Visible = false;
    station.Distance.TestAllStations(record);
    return station.Controls.Status.Frame12.Visible;
  }
  static StationRecord North(const std::string& text, const std::string& call = "N0CALL") {
    return RecordOf(call, "240115 1234", text);
  }
  Reception station;
};

TEST_F(DistanceAlarmTest, TellsLimitTimeCallAndDistance) {
  ASSERT_TRUE(Alarms(North(" 5821.060")));
  EXPECT_EQ(station.Controls.Status.Frame12.Caption, "MONI ALL  < 10 km  ALARM   2024-01-15 12:34");
  EXPECT_EQ(station.Controls.Status.Label25.Caption, "N0CALL    D = 3.2 km !");
  EXPECT_TRUE(station.Controls.Window.MaximiseWanted);
}

TEST_F(DistanceAlarmTest, DistanceEqualToTheLimitDoesNotAlarm) {
  station.Map.OwnNorthKm = 5800.0;
  station.Map.OwnEastKm = 391.394;
  EXPECT_FALSE(Alarms(North(" 5810.000")));
  EXPECT_TRUE(Alarms(North(" 5809.999")));
}

TEST_F(DistanceAlarmTest, NeedsItsSwitchAndTheStationLabels) {
  station.Map.StationLabelLevel = LabelLevel::NoStations;
  EXPECT_FALSE(Alarms(North(" 5821.060")));
  station.Map.StationLabelLevel = LabelLevel::Marks;
  station.Map.WxCaption = true;
  EXPECT_TRUE(Alarms(North(" 5821.060")));
  station.Alarms.MoniAllAlarmOn = 0;
  EXPECT_FALSE(Alarms(North(" 5821.060")));
}

TEST_F(DistanceAlarmTest, FollowedAndOwnStationsDoNotAlarm) {
  station.Followed.Moni1Call = "n0moni";
  EXPECT_FALSE(Alarms(North(" 5821.060", "N0MONI")));
  EXPECT_FALSE(Alarms(North(" 5821.060", "QX7KB")));
  EXPECT_FALSE(Alarms(North(" 5821.060", "QX7KB-9")));
  EXPECT_TRUE(Alarms(North(" 5821.060", "QX7KBA")));
}

TEST_F(DistanceAlarmTest, ClassSwitchedOffDoesNotAlarm) {
  station.Map.StationClassMask = kAllClasses & ~4;  // a car is of class 0
  EXPECT_FALSE(Alarms(North(" 5821.060")));
}

TEST_F(DistanceAlarmTest, FollowedStationAlarmsInBlackOnYellow) {
  station.Followed.Moni1AlarmOn = 0;
  station.Distance.TestFollowed(North(" 5821.060"));
  EXPECT_FALSE(station.Controls.Status.Frame12.Visible);
  station.Followed.Moni1AlarmOn = 1;
  station.Distance.TestFollowed(North(" 5821.060"));
  EXPECT_EQ(station.Controls.Status.Frame12.Caption, "MONI 1  < 10 km  ALARM   2024-01-15 12:34");
  EXPECT_EQ(station.Controls.Status.Label25.BackColour, 0x00FFFFu);
  EXPECT_EQ(station.Controls.Status.Label25.ForeColour, 0u);
  EXPECT_EQ(station.Controls.Status.Frame12.BackColour, 0x00FFFFu);
  EXPECT_EQ(station.Controls.Status.Frame12.ForeColour, 0u);
}

TEST_F(DistanceAlarmTest, AlarmOfAllStationsGoesBackToTheColoursOfThePanel) {
  station.Distance.TestFollowed(North(" 5821.060"));
  EXPECT_TRUE(Alarms(North(" 5821.060")));
  EXPECT_FALSE(station.Controls.Status.Frame12.BackColour.has_value());
  EXPECT_FALSE(station.Controls.Status.Frame12.ForeColour.has_value());
  EXPECT_FALSE(station.Controls.Status.Label25.BackColour.has_value());
  EXPECT_FALSE(station.Controls.Status.Label25.ForeColour.has_value());
}

}  // namespace
}  // namespace zepril
