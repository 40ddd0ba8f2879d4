// A GPS on a real pseudo-terminal, through the toolkit's serial port, to the own position: made
// logs of good and bad manners, each with the places that are expected of it (grid positions worked
// out with PROJ), and devices that vanish or are none.
#include <gtest/gtest.h>

#include <unistd.h>

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/controls/gps_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/text_fields.h"
#include "gps/nmea_reader.h"
#include "gps/nmea_source.h"
#include "platform/native/native_files.h"
#include "platform/qt/qt_serial_port.h"
#include "tests/doubles/nmea_lines.h"
#include "tests/doubles/pseudo_terminal.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/recorded_desktop.h"
#include "tests/doubles/temp_folder.h"
#include "tests/doubles/virtual_clock.h"
#include "tool/gps_route.h"

namespace zepril {
namespace {

constexpr int kPatienceMs = 20000;  // for what a busy computer does at once

constexpr const char* kBerlin = "5230.2430,N,01324.3096,E";
constexpr const char* kCape = "3351.5000,S,01825.2000,E";
constexpr const char* kMadrid = "4025.0000,N,00342.0000,W";

bool PumpUntil(const std::function<bool()>& done) {
  const QDeadlineTimer deadline(kPatienceMs);
  while (!done() && !deadline.hasExpired())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
  return done();
}

class GpsPortTest : public ::testing::Test {
 protected:
  void SetUp() override { Plug(); }

  std::string Link() const { return folder.Sub("usb-GPS_1234-if00"); }
  // A device under the lasting name.
  void Plug() {
    line = std::make_unique<PseudoTerminal>();
    std::filesystem::remove(Link());
    std::filesystem::create_symlink(line->Path(), Link());
  }
  void Unplug() {
    std::filesystem::remove(Link());
    line->HangUp();
  }
  void Open(const std::string& source) {
    gps.NmeaSource = source;
    reading.Open();
  }
  // Said, come through the line, and read by a tick six seconds later.
  void Say(const std::string& text) {
    std::size_t said = 0;
    const std::string held(Right(gps.NmeaBuffer + text, GpsState::kLongestBuffer));
    EXPECT_TRUE(PumpUntil([&] {
      said += line->Say(std::string_view(text).substr(said));
      return said == text.size() && gps.NmeaBuffer == held;
    }));
    Tick();
  }
  void Tick() {
    clock.Run(6.0);
    reader.ReadNmea();
  }
  std::string Place() const {
    return gps.GpsFixValid == 1 ? gps.GpsNorthText + "|" + gps.GpsEastText : "none";
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  std::unique_ptr<PseudoTerminal> line;
  QtSerialPort port;
  VirtualClock clock;
  RecordedDesktop desktop;
  RecordedActions up;
  GpsState gps;
  MapViewState view;
  SettingsState settings;
  GpsControls controls;
  MapControls map;
  TransmitControls transmit;
  NmeaSource reading{gps, port, files, clock};
  NmeaReader reader{
      {settings, gps, view}, {controls, map, transmit}, {reading, clock, desktop, up}};
};

TEST_F(GpsPortTest, PlaceAndHeightAloneGiveAPlaceAndNoTime) {
  Open(Link());
  Say(GgaLine("235958", kBerlin) + GgaLine("235959", kBerlin));
  EXPECT_EQ(Place(), " 5818.297|  391.750");
  EXPECT_EQ(gps.GpsTimeValid, 0);
}

TEST_F(GpsPortTest, PlaceAndTimeGiveBoth) {
  Open(Link());
  Say(RmcLine("123040", kBerlin) + RmcLine("123041", kBerlin));
  EXPECT_EQ(Place(), " 5818.297|  391.750");
  EXPECT_EQ(gps.GpsTimeValid, 1);
  EXPECT_TRUE(desktop.ClockSettings.empty());
}

TEST_F(GpsPortTest, SouthAndWestHaveTheirSigns) {
  Open(Link());
  Say(RmcLine("123040", kCape) + RmcLine("123041", kCape));
  EXPECT_EQ(Place(), "-3751.714|  816.424");
  Say(RmcLine("123046", kMadrid) + RmcLine("123047", kMadrid));
  EXPECT_EQ(Place(), " 4645.612|-1090.634");
}

TEST_F(GpsPortTest, TwoTalkersOfOnePlaceAreRead) {
  Open(Link());
  Say(RmcLine("123040", kBerlin, "140524", "1.0", "GN") + GgaLine("123040", kBerlin) +
      RmcLine("123041", kBerlin, "140524", "1.0", "GP") + "$GPGSV,1,1,11,07,79,048,42*4F\r\n");
  EXPECT_EQ(Place(), " 5818.297|  391.750");
  EXPECT_NE(controls.GpsInfo.Caption.find(" USE:_____08/11_sats"), std::string::npos);
}

TEST_F(GpsPortTest, ADamagedSentenceIsThrownAway) {
  Open(Link());
  Say(RmcLine("123040", kBerlin) + RmcLine("123041", "5238.2430,N,01324.3096,E"));
  EXPECT_EQ(Place(), "none");
  Say(RmcLine("123042", kBerlin));
  EXPECT_EQ(Place(), "none");
  Say(RmcLine("123043", kBerlin));
  EXPECT_EQ(Place(), " 5818.297|  391.750");
}

TEST_F(GpsPortTest, HalfASentenceWaitsForItsOtherHalf) {
  Open(Link());
  const std::string second = RmcLine("123041", kBerlin);
  Say(RmcLine("123040", kBerlin) + second.substr(0, 30));
  EXPECT_EQ(Place(), "none");
  Say(second.substr(30));
  EXPECT_EQ(Place(), " 5818.297|  391.750");
}

TEST_F(GpsPortTest, TheYearMayChange) {
  gps.SetsClock = true;
  settings.UtcOffsetHours = 1;
  Open(Link());
  Say(RmcLine("235953", kBerlin, "311224") + RmcLine("235954", kBerlin, "311224"));
  ASSERT_EQ(desktop.ClockSettings.size(), 1U);
  EXPECT_EQ(SecondsOf(desktop.ClockSettings[0]), SecondsOf({2025, 1, 1, 0, 59, 59}));
  Say(RmcLine("000000", kBerlin, "010125"));
  EXPECT_EQ(Place(), "none");  // as numbers the times lie far apart
  Say(RmcLine("000001", kBerlin, "010125"));
  EXPECT_EQ(Place(), " 5818.297|  391.750");
  EXPECT_EQ(SecondsOf(desktop.ClockSettings.back()), SecondsOf({2025, 1, 1, 1, 0, 6}));
}

TEST_F(GpsPortTest, ThePlayedGpsIsFollowedInEveryManner) {
  Open(Link());
  for (const GpsManner manner :
       {GpsManner::Rmc, GpsManner::Gga, GpsManner::Mixed, GpsManner::Damaged, GpsManner::Halves}) {
    GpsTalker talker(manner);
    int fixes = 0;
    for (int tick = 0; tick < 10; ++tick) {
      std::string said;
      for (int second = 0; second < 6; ++second) {
        const int count = tick * 6 + second;
        said += talker.Say({{52.50405, 13.40516}, {2024, 5, 14, 12, 30, count}, 43.2, count});
      }
      Say(said);
      if (gps.GpsFixValid == 1) ++fixes;
    }
    // Of the damaged ones every tick's last pair is bad by this rhythm.
    EXPECT_EQ(fixes, manner == GpsManner::Damaged ? 0 : 10) << static_cast<int>(manner);
    if (fixes > 0) {
      EXPECT_EQ(Place(), " 5818.297|  391.750");
    }
    Say("\r\n" + std::string(GpsState::kLongestBuffer, '.') + "\r\n");
  }
}

TEST_F(GpsPortTest, APulledDeviceIsFoundAgainByItsNameAndNoOtherIsTaken) {
  clock.Drive(reading.ReopenTimer, false);
  Open(Link());
  Say(GgaLine("1", kBerlin) + GgaLine("2", kBerlin));
  EXPECT_EQ(Place(), " 5818.297|  391.750");
  Unplug();
  ASSERT_TRUE(PumpUntil([this] { return !port.IsOpen(); }));
  // Another one is put in: it has another name.
  const PseudoTerminal other;
  std::filesystem::create_symlink(other.Path(), folder.Sub("usb-Other-if00"));
  clock.Run(30.0);
  EXPECT_FALSE(port.IsOpen());
  EXPECT_NE(reading.Trouble(), "");
  Plug();
  clock.Run(10.0);
  ASSERT_TRUE(port.IsOpen());
  Say(GgaLine("3", kCape) + GgaLine("4", kCape));
  EXPECT_EQ(Place(), "-3751.714|  816.424");
}

TEST_F(GpsPortTest, ADeviceIsNeverReadAsAFileNorRemoved) {
  Open(Link());
  EXPECT_TRUE(port.IsOpen());
  Tick();
  EXPECT_TRUE(std::filesystem::exists(Link()));
  EXPECT_EQ(gps.GpsTimeValid, 0);
}

TEST_F(GpsPortTest, AFolderAndAFileAreNoDevices) {
  Open(folder.Path());
  Tick();
  EXPECT_FALSE(port.IsOpen());
  EXPECT_TRUE(controls.GpsNote.Visible);
  EXPECT_NE(controls.GpsNote.Caption.find("is no file."), std::string::npos);
  files.Write("C:\\GPS.TXT", GgaLine("1", kBerlin) + GgaLine("2", kBerlin));
  gps.NmeaSource = "C:\\GPS.TXT";
  Tick();
  EXPECT_EQ(Place(), " 5818.297|  391.750");
  EXPECT_FALSE(files.Exists("C:\\GPS.TXT"));
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
