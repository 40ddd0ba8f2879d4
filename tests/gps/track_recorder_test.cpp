// Points of the way, one a minute, in the file of the day and on the map.
#include "gps/track_recorder.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/doubles/memory_files.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

constexpr const char* kDay = "C:\\ZEPRIL\\U33\\TRK\\20240514.TRK";
constexpr const char* kPoint = "\xFE 5378.123  412.345 20240514 1230";

class TrackRecorderTest : public ::testing::Test {
 protected:
  TrackRecorderTest() {
    identity.MapSystemFolder = "C:\\ZEPRIL\\U33";
    gps.GpsNorthText = " 5378.123";
    gps.GpsEastText = "  412.345";
  }
  std::string Day() const { return disk.Of(kDay); }

  IdentityState identity;
  MapViewState view;
  SettingsState settings;
  GpsState gps;
  PlacesState places;
  MemoryFiles disk;
  VirtualClock clock{{2024, 5, 14, 12, 30, 0}};
  TrackRecorder track{identity, settings, gps, view, places, disk, clock};
};

TEST_F(TrackRecorderTest, APointIsALineInTheFileOfTheDay) {
  track.WriteTrackPoint();
  EXPECT_EQ(Day(), std::string(kPoint) + "\r\n");
  EXPECT_EQ(std::string(kPoint).size(), 33U);
  EXPECT_EQ(gps.LastTrackMinute, "12:30");
}

TEST_F(TrackRecorderTest, AMinuteHasOnePoint) {
  track.WriteTrackPoint();
  clock.Run(59);
  track.WriteTrackPoint();
  EXPECT_EQ(disk.LineCount(kDay), 1);
  clock.Run(1);
  track.WriteTrackPoint();
  EXPECT_EQ(Day(), std::string(kPoint) + "\r\n\xFE 5378.123  412.345 20240514 1231\r\n");
}

TEST_F(TrackRecorderTest, AClockThatWasSetBackWritesAgain) {
  track.WriteTrackPoint();
  clock.SetNow({2024, 5, 14, 12, 10, 0});
  track.WriteTrackPoint();
  EXPECT_TRUE(Day().ends_with("20240514 1210\r\n")) << Day();
}

TEST_F(TrackRecorderTest, MidnightBeginsAnotherFile) {
  clock.SetNow({2024, 2, 28, 23, 59, 0});
  track.WriteTrackPoint();
  clock.Run(60);
  track.WriteTrackPoint();
  EXPECT_EQ(disk.Of("C:\\ZEPRIL\\U33\\TRK\\20240228.TRK"),
            "\xFE 5378.123  412.345 20240228 2359\r\n");
  EXPECT_EQ(disk.Of("C:\\ZEPRIL\\U33\\TRK\\20240229.TRK"),
            "\xFE 5378.123  412.345 20240229 0000\r\n");
}

TEST_F(TrackRecorderTest, APositionOutOfRangeIsBlankAndTheColumnsHold) {
  gps.GpsNorthText.clear();
  gps.GpsEastText = "-  10.523";
  track.WriteTrackPoint();
  EXPECT_EQ(Day(), "\xFE         -  10.523 20240514 1230\r\n");
}

TEST_F(TrackRecorderTest, WhatCantBeWrittenIsTriedAgainInTheNextMinute) {
  disk.RefusedEnding = ".TRK";
  track.WriteTrackPoint();
  disk.RefusedEnding.clear();
  clock.Run(30);
  track.WriteTrackPoint();
  EXPECT_EQ(Day(), "");
  clock.Run(30);
  track.WriteTrackPoint();
  EXPECT_EQ(Day(), "\xFE 5378.123  412.345 20240514 1231\r\n");
}

TEST_F(TrackRecorderTest, HalfALineStaysALineOfItsOwn) {
  disk.Contents[kDay] = "\xFE 5378.1";
  track.WriteTrackPoint();
  EXPECT_EQ(Day(), "\xFE 5378.1\r\n" + std::string(kPoint) + "\r\n");
}

TEST_F(TrackRecorderTest, TheDaysOwnTrackGrowsOnTheMap) {
  settings.TrackFile = "20240514";
  view.TracksOn = true;
  view.MapDrawn = true;
  track.WriteTrackPoint();
  ASSERT_EQ(places.TrackPoints.Count(), 1);
  EXPECT_EQ(places.TrackPoints.Line(1), kPoint);
  EXPECT_FALSE(view.MapDrawn);
  view.TracksOn = false;
  view.MapDrawn = true;
  clock.Run(60);
  track.WriteTrackPoint();
  EXPECT_EQ(places.TrackPoints.Count(), 2);
  EXPECT_TRUE(view.MapDrawn);
}

TEST_F(TrackRecorderTest, AnotherTrackDoesNotGrow) {
  settings.TrackFile = "20240513";
  view.TracksOn = true;
  view.MapDrawn = true;
  track.WriteTrackPoint();
  EXPECT_EQ(places.TrackPoints.Count(), 0);
  EXPECT_TRUE(view.MapDrawn);
}

TEST_F(TrackRecorderTest, TheSameMinuteOfAnotherDayIsNoNewOne) {
  track.WriteTrackPoint();
  clock.SetNow({2024, 5, 15, 12, 30, 0});
  track.WriteTrackPoint();
  EXPECT_EQ(disk.Contents.size(), 1U);
  clock.Run(60);
  track.WriteTrackPoint();
  EXPECT_EQ(disk.Of("C:\\ZEPRIL\\U33\\TRK\\20240515.TRK"),
            "\xFE 5378.123  412.345 20240515 1231\r\n");
}

TEST_F(TrackRecorderTest, TracksLieInTheFolderOfTheMapSystem) {
  identity.MapSystemFolder = "C:\\ELSEWHERE\\U32";
  track.WriteTrackPoint();
  ASSERT_EQ(disk.Contents.size(), 1U);
  EXPECT_EQ(disk.Of("C:\\ELSEWHERE\\U32\\TRK\\20240514.TRK"), std::string(kPoint) + "\r\n");
}

TEST_F(TrackRecorderTest, APointThatCantBeWrittenIsNotShownEither) {
  settings.TrackFile = "20240514";
  view.TracksOn = true;
  view.MapDrawn = true;
  disk.RefusedEnding = ".TRK";
  track.WriteTrackPoint();
  EXPECT_EQ(places.TrackPoints.Count(), 0);
  EXPECT_TRUE(view.MapDrawn);
}

}  // namespace
}  // namespace zepril
