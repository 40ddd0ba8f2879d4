// A way as it is driven, square by square, and its end.
#include "gps/way_recorder.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/doubles/memory_files.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

constexpr const char* kWay = "C:\\MAP\\U33\\QTHWAY.TXT";
constexpr const char* kLast = "C:\\MAP\\U33\\QTHACT.TXT";
constexpr const char* kLastPosition = "C:\\MAP\\U33\\QTHACTPR.TXT";

class WayRecorderTest : public ::testing::Test {
 protected:
  WayRecorderTest() {
    disk.Contents["C:\\MAP\\U33\\NAV.DAT"] = "";
    gps.NmeaSource = "3 SAVE";
    way.DecideNavigation();
  }
  void DriveTo(double north_km, double east_km) {
    gps.GpsNorthKm = north_km;
    gps.GpsEastKm = east_km;
    gps.PositionUsed = true;
    way.WriteWayPoint();
  }
  std::string Way() const { return disk.Of(kWay); }

  IdentityState identity;
  GpsState gps;
  MemoryFiles disk;
  VirtualClock clock{{2024, 5, 14, 12, 30, 0}};
  WayRecorder way{identity, gps, disk, clock};
};

TEST_F(WayRecorderTest, NavigationTakesAPortTheWordSaveAndAFile) {
  const struct {
    const char* Source;
    bool On;
  } rows[] = {{"3 SAVE", true},  {"3save", true},         {"3", false}, {"SAVE", false},
              {"0 SAVE", false}, {"C:\\SAVE.TXT", false}, {"", false},  {"-3 SAVE", false}};
  for (const auto& row : rows) {
    gps.NmeaSource = row.Source;
    way.DecideNavigation();
    EXPECT_EQ(gps.NavigationOn, row.On) << row.Source;
  }
  gps.NmeaSource = "3 SAVE";
  disk.Contents.clear();
  way.DecideNavigation();
  EXPECT_FALSE(gps.NavigationOn);
  // Of the map system in use.
  identity.MapZoneName = "U32";
  disk.Contents["C:\\MAP\\U32\\X"] = "";
  way.DecideNavigation();
  EXPECT_TRUE(gps.NavigationOn);
}

TEST_F(WayRecorderTest, StepsIntoNeighbouringSquaresAreDigitsOfOneLine) {
  DriveTo(5378.1, 412.2);
  clock.Run(60);
  DriveTo(5379.9, 412.9);
  DriveTo(5380.0, 413.0);
  EXPECT_EQ(Way(), "5378 412  240514 1230||01");
}

TEST_F(WayRecorderTest, StandingStillWritesNothing) {
  DriveTo(5378.1, 412.2);
  DriveTo(5378.9, 412.9);
  EXPECT_EQ(Way(), "5378 412  240514 1230||");
}

TEST_F(WayRecorderTest, AJumpBeginsALineAndWritesNoDigit) {
  DriveTo(5378, 412);
  DriveTo(5379, 412);
  DriveTo(5380, 413);
  clock.Run(300);
  DriveTo(5390, 420);
  DriveTo(5390, 420);
  EXPECT_EQ(Way(), "5378 412  240514 1230||01\r\n5390 420  240514 1235||");
}

TEST_F(WayRecorderTest, AJumpAlongAnAxisLeavesTheLineOpenWithAStepMissing) {
  DriveTo(5378, 412);
  DriveTo(5385, 412);
  DriveTo(5386, 412);
  EXPECT_EQ(Way(), "5378 412  240514 1230||0");
}

TEST_F(WayRecorderTest, AFullLineIsEndedAndTheNextBeginsAtOnce) {
  for (int km = 0; km <= 56; ++km)
    DriveTo(5300 + km, 412);
  const std::string full = "5300 412  240514 1230||" + std::string(56, '0');
  ASSERT_EQ(full.size(), 79U);
  EXPECT_EQ(Way(), full + "\r\n5356 412  240514 1230||");
  DriveTo(5357, 412);
  EXPECT_EQ(Way(), full + "\r\n5356 412  240514 1230||0");
}

TEST_F(WayRecorderTest, WithoutNavigationNothingIsWritten) {
  gps.NavigationOn = false;
  DriveTo(5378, 412);
  way.EndWay();
  EXPECT_EQ(disk.Contents.size(), 1U);
}

TEST_F(WayRecorderTest, TheEndIsTheLastPositionInThreeFiles) {
  disk.Contents[kLast] = "of yesterday\r\n";
  gps.GpsNorthText = " 5379.900";
  gps.GpsEastText = "  412.900";
  DriveTo(5378, 412);
  DriveTo(5379.9, 412.9);
  clock.Run(3600);
  DriveTo(5379.9, 412.9);  // an hour in the same square
  way.EndWay();
  const std::string end =
      "5379 412  240514 1330 STOP   ZEPRIL_NAVIGATION_ENDED  @(xxx)@yyy@zzz\r\n";
  EXPECT_EQ(Way(), "5378 412  240514 1230||0\r\n" + end);
  EXPECT_EQ(disk.Of(kLast), end);
  EXPECT_EQ(disk.Of(kLastPosition), "\xFE 5379.900  412.900\r\n");
}

TEST_F(WayRecorderTest, APositionOutOfRangeKeepsItsColumns) {
  gps.GpsNorthText = " 5379.900";
  DriveTo(5379, 12345);
  way.EndWay();
  EXPECT_EQ(disk.Of(kLastPosition), "\xFE 5379.900         \r\n");
}

TEST_F(WayRecorderTest, WithoutAPositionInThisRunThereIsNoEnd) {
  way.EndWay();
  EXPECT_EQ(disk.Contents.size(), 1U);
}

TEST_F(WayRecorderTest, HalfALineOfARunThatWasCutOffStaysALineOfItsOwn) {
  disk.Contents[kWay] = "5300 400  240513 0800||012";
  DriveTo(5378, 412);
  EXPECT_EQ(Way(), "5300 400  240513 0800||012\r\n5378 412  240514 1230||");
}

TEST_F(WayRecorderTest, AStepThatCantBeWrittenBeginsALineWhereItCan) {
  DriveTo(5378, 412);
  disk.RefusedEnding = "QTHWAY.TXT";
  DriveTo(5379, 412);
  DriveTo(5380, 412);
  disk.RefusedEnding.clear();
  DriveTo(5381, 412);
  EXPECT_EQ(Way(), "5378 412  240514 1230||\r\n5381 412  240514 1230||");
}

TEST_F(WayRecorderTest, TheEndStandsInTheFolderOfTheMapSystemInUse) {
  identity.MapZoneName = "U32";
  disk.Contents["C:\\MAP\\U32\\NAV.DAT"] = "";
  way.DecideNavigation();
  DriveTo(5378, 412);
  way.EndWay();
  for (const char* name : {"QTHWAY.TXT", "QTHACT.TXT", "QTHACTPR.TXT"}) {
    EXPECT_TRUE(disk.Exists("C:\\MAP\\U32\\" + std::string(name))) << name;
    EXPECT_FALSE(disk.Exists("C:\\MAP\\U33\\" + std::string(name))) << name;
  }
}

TEST_F(WayRecorderTest, AStopAtTheFirstPointIsAHeadAlone) {
  DriveTo(5378, 412);
  way.EndWay();
  EXPECT_EQ(Way(),
            "5378 412  240514 1230||\r\n"
            "5378 412  240514 1230 STOP   ZEPRIL_NAVIGATION_ENDED  @(xxx)@yyy@zzz\r\n");
}

TEST_F(WayRecorderTest, TheEndBehindHalfALineIsALineOfItsOwn) {
  DriveTo(5378, 412);
  disk.RefusedEnding = "QTHWAY.TXT";
  DriveTo(5379, 412);
  disk.RefusedEnding.clear();
  way.EndWay();
  EXPECT_EQ(Way(),
            "5378 412  240514 1230||\r\n"
            "5379 412  240514 1230 STOP   ZEPRIL_NAVIGATION_ENDED  @(xxx)@yyy@zzz\r\n");
}

}  // namespace
}  // namespace zepril
