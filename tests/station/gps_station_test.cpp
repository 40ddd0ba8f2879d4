// A station on the move, in virtual time: from the sentences of its GPS to own position, map,
// report and clock.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/position_text.h"
#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "tests/doubles/nmea_lines.h"
#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr double kStartLat = 52.0;
constexpr double kStartLon = 13.0;
constexpr double kNorthPerSecond = 0.0002;  // degrees: some 80 km/h
constexpr double kEastPerSecond = 0.0001;

// "5200.0120"
std::string MinutesText(double degrees, std::size_t digits) {
  const double whole = Int(degrees);
  std::string minutes = FixedNumber((degrees - whole) * 60.0, 4);
  if (minutes.size() < 7) minutes.insert(0, "0");
  return ZeroPadded(static_cast<std::int64_t>(whole), digits) + minutes;
}

struct Drive {
  double Lat(double second) const { return kStartLat + kNorthPerSecond * second; }
  double Lon(double second) const { return kStartLon + kEastPerSecond * second; }
  std::string Place(double second) const {
    return MinutesText(Lat(second), 2) + ",N," + MinutesText(Lon(second), 3) + ",E";
  }
  // Where it is on the map's grid, in km.
  GridMetres At(double second) const {
    const GridMetres metres = GeodeticToUtm(Lon(second), Lat(second), 15.0, kUtmFalseEasting);
    return {metres.East / 1000.0, metres.North / 1000.0};
  }
};

class GpsStation : public StationHarness {
 public:
  explicit GpsStation(const std::string& settings = "NMEA=4\r\nNBAUD=9600\r\nUTCD=1\r\n")
      : StationHarness(settings) {}

  void SayAll(const std::string& text) {
    gps.Reads.push_back(text);
    if (gps.DataArrived) gps.DataArrived();
  }
  // A sentence a second, one second behind the other, with the time that the clock shows.
  void DriveOn(int seconds) {
    for (int i = 0; i < seconds; ++i) {
      clock.Run(1.0);
      ++second;
      const LocalTime now = TimeOfSeconds(SecondsOf(clock.Now()) - 3600);
      SayAll(RmcLine(
          ZeroPadded(now.Hour, 2) + ZeroPadded(now.Minute, 2) + ZeroPadded(now.Second, 2) + ".00",
          drive.Place(second),
          ZeroPadded(now.Day, 2) + ZeroPadded(now.Month, 2) + ZeroPadded(now.Year % 100, 2)));
    }
  }
  void ExpectAt(double north_km, double east_km, double within_km) {
    EXPECT_NEAR(State().Map.OwnNorthKm, north_km, within_km);
    EXPECT_NEAR(State().Map.OwnEastKm, east_km, within_km);
  }

  Drive drive;
  int second = 0;
};

TEST(GpsStationTest, OpensThePortOfTheGpsAndClosesItAtTheEnd) {
  GpsStation station;
  ASSERT_TRUE(station.Start());
  EXPECT_TRUE(station.gps.IsOpen());
  EXPECT_EQ(station.gps.Device, "4");
  EXPECT_EQ(station.gps.Baud, 9600);
  station.program->Stop(true);
  EXPECT_FALSE(station.gps.IsOpen());
}

TEST(GpsStationTest, AnHoursDriveMovesOwnPositionAndMap) {
  GpsStation station;
  ASSERT_TRUE(station.Start());
  for (int minute = 0; minute < 60; ++minute) {
    station.DriveOn(60);
    // At most two ticks behind, at 80 km/h.
    const GridMetres at = station.drive.At(station.second);
    station.ExpectAt(at.North, at.East, 0.4);
    EXPECT_EQ(station.State().Map.CentreFollow, Following::OwnPosition);
    EXPECT_NEAR(station.State().Map.CentreNorthKm, at.North, 0.4);
    EXPECT_TRUE(station.Controls().Map.Option1.Value);
    EXPECT_TRUE(station.Controls().Gps.GpsInfo.Visible);
    EXPECT_FALSE(station.Controls().Gps.GpsNote.Visible);
  }
  const GridMetres begin = station.drive.At(0);
  EXPECT_GT(station.State().Map.OwnNorthKm, begin.North + 70.0);
  // The end of the run keeps it as the own position.
  station.program->Stop(true);
  const std::string ini = station.File("ZEPRIL.INI");
  const std::size_t at = ini.find("UUN=");
  ASSERT_NE(at, std::string::npos);
  EXPECT_NEAR(Val(ini.substr(at + 4, 12)), station.State().Map.OwnNorthKm, 0.01);
}

TEST(GpsStationTest, AGpsThatIsLostLeavesTheLastPositionAndSaysSinceWhen) {
  GpsStation station;
  ASSERT_TRUE(station.Start());
  station.DriveOn(120);
  station.gps.Vanish();
  station.Ticks(2);  // what had come is taken
  const double north = station.State().Map.OwnNorthKm;
  station.Ticks(20);
  EXPECT_EQ(station.State().Map.OwnNorthKm, north);
  EXPECT_FALSE(station.Controls().Gps.GpsInfo.Visible);
  EXPECT_TRUE(station.Controls().Gps.GpsNote.Visible);
  EXPECT_TRUE(station.Controls().Gps.GpsNote.Caption.starts_with("GPS: no position since 12:3"));
  // Plugged in again it is found within ten seconds.
  station.gps.Absent = false;
  station.clock.Run(10.0);
  EXPECT_TRUE(station.gps.IsOpen());
  station.second += 300;
  station.DriveOn(20);
  EXPECT_TRUE(station.Controls().Gps.GpsInfo.Visible);
  const GridMetres at = station.drive.At(station.second);
  station.ExpectAt(at.North, at.East, 0.4);
}

TEST(GpsStationTest, AMapPressHoldsTheMapForHalfAMinute) {
  GpsStation station;
  ASSERT_TRUE(station.Start());
  station.DriveOn(60);
  MainWindowControls& controls = station.Controls();
  controls.Map.Picture1.MouseDown({1, 0, 10.0, 10.0});
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  station.DriveOn(24);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  station.DriveOn(30);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::OwnPosition);
}

TEST(GpsStationTest, TheReportTellsTheMovingPlaceAndTheTime) {
  GpsStation station("NMEA=4\r\nUTCD=1\r\nTXON=1\r\nTXTIM=1\r\nTXI1=drive\r\n");
  ASSERT_TRUE(station.Start());
  station.DriveOn(60);
  std::vector<std::string> reports;
  station.socket.OnSend = [&](std::string_view bytes) {
    if (bytes[4] == 'M' || bytes[4] == 'V') reports.emplace_back(bytes.substr(36));
  };
  CheckBox& tx = station.Controls().Transmit.Check6;
  tx.Value = 1;
  tx.Click();
  station.DriveOn(300);
  ASSERT_GE(reports.size(), 3U);
  EXPECT_NE(reports.front(), reports.back());
  EXPECT_NE(reports.front().find("@15"), std::string::npos) << reports.front();
  EXPECT_NE(reports.front().find("z5200."), std::string::npos) << reports.front();
}

TEST(GpsStationTest, TheClockIsSetOnlyWithTheWishInTheWindowFile) {
  for (const bool wanted : {false, true}) {
    GpsStation station;
    if (wanted) station.files.Write("C:\\ZEPRIL\\WINDOW.TXT", "SETCLOCK=1\r\n");
    ASSERT_TRUE(station.Start());
    station.DriveOn(30);
    EXPECT_EQ(station.State().Gps.GpsTimeValid, 1);
    EXPECT_EQ(station.State().Gps.ClockSetFromGps, wanted ? 1 : 0);
    EXPECT_EQ(station.desktop.ClockSettings.empty(), !wanted);
    // The status line marks it.
    EXPECT_EQ(station.Controls().Status.Label15.Caption.substr(5, 1) == "!", wanted);
  }
}

TEST(GpsStationTest, ADroppedFileIsTakenWithoutAnyRadio) {
  GpsStation station("NMEA=C:\\ZEPRIL\\GPS.TXT\r\nMODEM=4\r\n");
  ASSERT_TRUE(station.Start());
  station.files.Write("C:\\ZEPRIL\\GPS.TXT", GgaLine("120000", station.drive.Place(0)) +
                                                 GgaLine("120001", station.drive.Place(1)));
  station.Ticks(2);
  EXPECT_FALSE(station.files.Exists("C:\\ZEPRIL\\GPS.TXT"));
  const GridMetres at = station.drive.At(1);
  station.ExpectAt(at.North, at.East, 0.02);
  EXPECT_EQ(station.State().Gps.GpsTimeValid, 1);
}

TEST(GpsStationTest, WithoutASourceNothingIsOpenedOrSaid) {
  GpsStation station("NMEA=0\r\n");
  ASSERT_TRUE(station.Start());
  station.Ticks(3);
  EXPECT_FALSE(station.gps.IsOpen());
  EXPECT_FALSE(station.Controls().Gps.GpsNote.Visible);
  EXPECT_FALSE(station.Controls().Gps.GpsInfo.Visible);
}

TEST(GpsStationTest, ASourceThatCanBeNoneIsToldThroughTheRun) {
  GpsStation station("NMEA=ABC\r\n");
  ASSERT_TRUE(station.Start());
  EXPECT_TRUE(station.Controls().Gps.GpsNote.Visible);
  EXPECT_EQ(station.Controls().Gps.GpsNote.Caption, "GPS: ABC is neither a port nor a file.");
  station.Ticks(3);
  EXPECT_TRUE(station.Controls().Gps.GpsNote.Visible);
}

TEST(GpsStationTest, DatesAndClockJumpsLeaveTheDriveAlone) {
  for (const LocalTime& begin :
       {LocalTime{2024, 2, 28, 23, 59, 30}, LocalTime{2023, 12, 31, 23, 59, 30},
        LocalTime{2024, 3, 31, 1, 59, 30}, LocalTime{2024, 10, 27, 2, 59, 30}}) {
    GpsStation station;
    station.clock.SetNow(begin);
    ASSERT_TRUE(station.Start());
    station.DriveOn(60);
    station.clock.SetNow({2031, 5, 5, 5, 5, 5});
    station.DriveOn(60);
    station.clock.SetNow({2009, 5, 5, 5, 5, 5});
    station.DriveOn(60);
    EXPECT_EQ(station.State().Gps.GpsFixValid, 1);
    const GridMetres at = station.drive.At(station.second);
    station.ExpectAt(at.North, at.East, 0.4);
  }
}

// ---- What is kept of the way ----------------------------------------------------------------

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (const std::string_view line : Split(text, '\n'))
    lines.emplace_back(line.substr(0, line.find('\r')));
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

// Follows the digits of a line of the way; false where it has none.
bool FollowWay(const std::string& line, int& north, int& east) {
  constexpr int kNorth[] = {1, 1, 0, -1, -1, -1, 0, 1};
  constexpr int kEast[] = {0, 1, 1, 1, 0, -1, -1, -1};
  north = static_cast<int>(Val(line.substr(0, 4)));
  east = static_cast<int>(Val(line.substr(4, 5)));
  for (const char digit : line.substr(23)) {
    if (digit < '0' || digit > '7') return false;
    north += kNorth[digit - '0'];
    east += kEast[digit - '0'];
  }
  return true;
}

constexpr const char* kNavigator = "NMEA=4 SAVE\r\nNBAUD=9600\r\nUTCD=1\r\nTRKF=20240115\r\n";

TEST(GpsStationTest, ADriveIsKeptAsATrackAPointAMinute) {
  GpsStation station(kNavigator);
  ASSERT_TRUE(station.Start());
  for (int minute = 0; minute < 60; ++minute) {
    station.DriveOn(60);
    const std::vector<std::string> track = LinesOf(station.File("U33\\TRK\\20240115.TRK"));
    ASSERT_GE(static_cast<int>(track.size()), minute);
    // The track that is shown grows.
    EXPECT_EQ(station.State().Places.TrackPoints.Count(), static_cast<int>(track.size()));
    const std::string& last = track.back();
    ASSERT_EQ(last.size(), 33U) << last;
    const GridMetres at = station.drive.At(station.second);
    EXPECT_NEAR(PositionTextKm(Mid(last, 2, 9)), at.North, 2.0) << last;
    EXPECT_NEAR(PositionTextKm(Mid(last, 11, 9)), at.East, 2.0) << last;
  }
  const std::vector<std::string> track = LinesOf(station.File("U33\\TRK\\20240115.TRK"));
  EXPECT_GE(track.size(), 60U);
  EXPECT_LE(track.size(), 61U);
  for (std::size_t point = 1; point < track.size(); ++point)
    EXPECT_LT(Mid(track[point - 1], 21), Mid(track[point], 21));
}

TEST(GpsStationTest, ADriveIsKeptAsAWayForTheNavigationProgram) {
  GpsStation station(kNavigator);
  const std::string folder = "C:\\MAP\\U33\\";
  station.files.MakeFolder(folder);
  station.files.Write(folder + "NAV.DAT", "");
  ASSERT_TRUE(station.Start());
  station.DriveOn(3600);
  const GpsState gps = station.State().Gps;
  station.program->Stop(true);
  const auto file = [&](const char* name) {
    return station.files.ReadAll(folder + name, 1 << 20).value_or("(missing)");
  };
  std::vector<std::string> way = LinesOf(file("QTHWAY.TXT"));
  ASSERT_EQ(way.size(), 3U) << file("QTHWAY.TXT");
  EXPECT_EQ(way[0].size(), 79U);
  int north = 0;
  int east = 0;
  ASSERT_TRUE(FollowWay(way[0], north, east));
  // The next line begins where the first one ends, and ends where the drive does.
  EXPECT_TRUE(way[1].starts_with(ShortNumber(north) + Str(east))) << way[1];
  ASSERT_TRUE(FollowWay(way[1], north, east));
  EXPECT_EQ(north, static_cast<int>(Int(gps.GpsNorthKm)));
  EXPECT_EQ(east, static_cast<int>(Int(gps.GpsEastKm)));
  EXPECT_TRUE(way[2].starts_with(ShortNumber(north) + Str(east))) << way[2];
  EXPECT_TRUE(way[2].ends_with(" STOP   ZEPRIL_NAVIGATION_ENDED  @(xxx)@yyy@zzz")) << way[2];
  EXPECT_EQ(file("QTHACT.TXT"), way[2] + "\r\n");
  EXPECT_EQ(file("QTHACTPR.TXT"), "\xFE" + gps.GpsNorthText + gps.GpsEastText + "\r\n");
}

// The session ends, or the system stops the program.
TEST(GpsStationTest, AnEndWithoutTheOperatorEndsTheWayOnceToo) {
  GpsStation station(kNavigator);
  const std::string folder = "C:\\MAP\\U33\\";
  station.files.MakeFolder(folder);
  station.files.Write(folder + "NAV.DAT", "");
  ASSERT_TRUE(station.Start());
  station.DriveOn(120);
  station.program->Stop(false);
  station.program.reset();
  const std::vector<std::string> way =
      LinesOf(station.files.ReadAll(folder + "QTHWAY.TXT", 1 << 20).value_or(""));
  ASSERT_EQ(way.size(), 2U);
  EXPECT_EQ(way[0].find("STOP"), std::string::npos);
  EXPECT_NE(way[1].find(" STOP   ZEPRIL_NAVIGATION_ENDED"), std::string::npos);
  EXPECT_EQ(station.files.ReadAll(folder + "QTHACT.TXT", 1000), way[1] + "\r\n");
  EXPECT_TRUE(station.files.Exists(folder + "QTHACTPR.TXT"));
}

TEST(GpsStationTest, WithoutANavigationProgramNoWayIsWritten) {
  GpsStation station(kNavigator);
  ASSERT_TRUE(station.Start());
  station.DriveOn(120);
  station.program->Stop(true);
  EXPECT_FALSE(station.files.Exists("C:\\MAP"));
}

}  // namespace
}  // namespace zepril
