// Sources of NMEA sentences: ports, devices, files, and what is neither.
#include "gps/nmea_source.h"

#include <gtest/gtest.h>

#include <string>

#include "core/texts/gps_texts.h"
#include "tests/gps/gps_world.h"

namespace zepril {
namespace {

constexpr const char* kFile = R"(C:\GPS.TXT)";

// Whether anything came.
bool Takes(NmeaSource& source, const GpsState& gps) {
  const std::string before = gps.NmeaBuffer;
  source.Take();
  return gps.NmeaBuffer != before;
}

// ---- What the setting means -------------------------------------------------------------------

TEST(NmeaSourceSetting, ANumberInFrontIsAPort) {
  for (const auto& [setting, device] :
       {std::pair{"3", "3"}, std::pair{" 3 ", "3"}, std::pair{"3 SAVE", "3"},
        std::pair{"12save", "12"}, std::pair{"COM5", "COM5"}, std::pair{"4GPS.TXT", "4"}}) {
    GpsWorld world(setting);
    EXPECT_TRUE(world.Port.IsOpen()) << setting;
    EXPECT_EQ(world.Port.Device, device);
    EXPECT_EQ(world.Port.Baud, 4800);
    EXPECT_TRUE(world.Source.IsThere());
    EXPECT_EQ(world.Gps.NmeaDevice, device);
  }
}

TEST(NmeaSourceSetting, NothingIsOpenedWithoutASource) {
  for (const char* setting : {"", " ", "0", "00", "0 SAVE"}) {
    GpsWorld world(setting);
    EXPECT_FALSE(world.Port.IsOpen()) << setting;
    EXPECT_FALSE(world.Source.IsThere()) << setting;
    EXPECT_FALSE(IsNoNmeaSource(setting)) << setting;
    world.Reader.Begin();
    world.Tick();
    EXPECT_FALSE(world.Controls.GpsNote.Visible) << setting;
  }
}

TEST(NmeaSourceSetting, OneThatCanBeNoSourceIsToldFromTheStart) {
  for (const std::string setting :
       {"ABC", "XSAVE", "GPSSAVE.TXT", "-3", "-3 SAVE", R"(C:\SAVED\GPS.TXT)", "ABC SAVE"}) {
    GpsWorld world(" " + setting);
    EXPECT_FALSE(world.Port.IsOpen()) << setting;
    EXPECT_FALSE(world.Source.IsThere()) << setting;
    EXPECT_TRUE(IsNoNmeaSource(setting)) << setting;
    world.Reader.Begin();
    EXPECT_TRUE(world.Controls.GpsNote.Visible) << setting;
    EXPECT_EQ(world.Controls.GpsNote.Caption, "GPS: " + setting + " is neither a port nor a file.");
    world.Controls.GpsNote.Click();
    world.Tick();
    EXPECT_FALSE(world.Controls.GpsNote.Visible) << setting;
  }
}

TEST(NmeaSourceSetting, WhatIsASourceIsNotTalkedOfAtTheStart) {
  for (const char* setting :
       {"3", "3 SAVE", "COM5", R"(C:\GPS.TXT)", "/dev/ttyACM0", "ttyUSB7", "0GPS.TXT"}) {
    GpsWorld world(setting);
    EXPECT_FALSE(IsNoNmeaSource(setting)) << setting;
    world.Reader.Begin();
    EXPECT_FALSE(world.Controls.GpsNote.Visible) << setting;
  }
}

TEST(NmeaSourceSetting, AFileOfUpToThreeCharactersOrWithTheWordIsNotRead) {
  for (const char* name : {"ABC", "XSAVE"}) {
    GpsWorld world(name);
    world.Disk.Write(name, RmcLine("123040"));
    EXPECT_FALSE(Takes(world.Source, world.Gps)) << name;
    EXPECT_TRUE(world.Disk.Exists(name)) << name;
  }
}

TEST(NmeaSourceSetting, ADeviceIsAPortByWhateverName) {
  MemoryFiles disk;
  FakeSerial port;
  VirtualClock clock;
  disk.Devices = {"/tmp/gps", "/dev/ttyUSB7"};
  for (const char* setting : {"/dev/ttyACM0", "/tmp/gps", "ttyUSB7"}) {
    GpsState gps;
    gps.NmeaSource = setting;
    gps.NmeaBaud = "9600x";
    NmeaSource source(gps, port, disk, clock);
    source.Open();
    EXPECT_TRUE(port.IsOpen()) << setting;
    EXPECT_EQ(port.Device, setting);
    EXPECT_EQ(port.Baud, 9600);
  }
}

TEST(NmeaSourceSetting, APortThatIsOpenIsClosedFirst) {
  MemoryFiles disk;
  FakeSerial port;
  VirtualClock clock;
  port.Open("9", 300);
  GpsState gps;
  NmeaSource source(gps, port, disk, clock);
  source.Open();
  EXPECT_FALSE(port.IsOpen());
}

// ---- Port -------------------------------------------------------------------------------------

TEST(NmeaPort, WhatComesIsKeptUpToThreeThousandCharacters) {
  GpsWorld world;
  EXPECT_FALSE(Takes(world.Source, world.Gps));
  world.Say("abc");
  world.Say("def");
  world.Source.Take();
  EXPECT_EQ(world.Gps.NmeaBuffer, "abcdef");
  EXPECT_FALSE(Takes(world.Source, world.Gps));
  world.Say(std::string(2998, 'x'));
  EXPECT_EQ(world.Gps.NmeaBuffer, "ef" + std::string(2998, 'x'));
  world.Say(std::string(70000, 'y') + "z");
  EXPECT_EQ(world.Gps.NmeaBuffer, std::string(2999, 'y') + "z");
}

TEST(NmeaPort, ALostOneIsTriedAgainEveryTenSeconds) {
  GpsWorld world;
  world.Port.Vanish();
  world.Port.Why = "gone";
  EXPECT_EQ(world.Source.Trouble(), "gone");
  world.Clock.Run(30.0);
  EXPECT_FALSE(world.Port.IsOpen());
  world.Port.Absent = false;
  world.Clock.Run(10.0);
  EXPECT_TRUE(world.Port.IsOpen());
  EXPECT_EQ(world.Source.Trouble(), "");
  EXPECT_EQ(world.Port.Device, "3");
}

TEST(NmeaPort, OnlyTheDeviceThatWasChosenIsTakenBack) {
  struct ChosenPort final : SerialPort {
    bool Open(const std::string&, int) override { return ++Opened > 0; }
    bool Reopen(const std::string&, int) override { return ++Reopened > 100; }
    void ForgetDevice() override { ++Forgotten; }
    void Close() override {}
    bool IsOpen() const override { return false; }
    void Write(std::string_view) override {}
    std::string ReadAll() override { return {}; }
    std::size_t BytesToWrite() const override { return 0; }
    int Opened = 0;
    int Reopened = 0;
    int Forgotten = 0;
  } port;
  GpsState gps;
  gps.NmeaSource = "3";
  MemoryFiles disk;
  VirtualClock clock;
  NmeaSource source(gps, port, disk, clock);
  clock.Drive(source.ReopenTimer, false);
  source.Open();
  clock.Run(35.0);
  EXPECT_EQ(port.Opened, 1);
  EXPECT_EQ(port.Forgotten, 1);
  EXPECT_EQ(port.Reopened, 3);
}

TEST(NmeaPort, ClosesAndIsNotTriedAgain) {
  GpsWorld world;
  world.Source.Close();
  EXPECT_FALSE(world.Port.IsOpen());
  EXPECT_FALSE(static_cast<bool>(world.Port.DataArrived));
  world.Clock.Run(60.0);
  EXPECT_FALSE(world.Port.IsOpen());
}

TEST(NmeaPort, EveryPieceThatIsHeldHasItsAge) {
  GpsWorld world;
  world.Say("abc");
  world.Clock.Run(10.0);
  world.Say("de");
  world.Clock.Run(100.0);
  world.Source.Take();
  EXPECT_EQ(world.Gps.NmeaBuffer, "abcde");
  EXPECT_EQ(world.Source.SecondsSinceItCame(0), 110.0);
  EXPECT_EQ(world.Source.SecondsSinceItCame(2), 110.0);
  EXPECT_EQ(world.Source.SecondsSinceItCame(3), 100.0);
  world.Say(std::string(2996, 'x'));
  EXPECT_EQ(world.Gps.NmeaBuffer.front(), 'b');
  EXPECT_EQ(world.Source.SecondsSinceItCame(1), 110.0);
  EXPECT_EQ(world.Source.SecondsSinceItCame(2), 100.0);
  EXPECT_EQ(world.Source.SecondsSinceItCame(2999), 0.0);
  world.Say(std::string(5000, 'y'));
  EXPECT_EQ(world.Source.SecondsSinceItCame(0), 0.0);
}

TEST(NmeaPort, ADeviceThatComesUnderTheNameOfAFileIsOpenedAndNotRead) {
  GpsWorld world("/tmp/gps-link");
  EXPECT_FALSE(world.Port.IsOpen());
  world.Disk.Devices.insert("/tmp/gps-link");
  world.Clock.Run(11.0);
  EXPECT_TRUE(world.Port.IsOpen());
}

TEST(NmeaPort, ADeviceWhoseNameGoesWithItIsNoFileMeanwhile) {
  MemoryFiles disk;
  FakeSerial port;
  VirtualClock clock;
  GpsState gps;
  gps.NmeaSource = "/tmp/gps";
  disk.Devices = {"/tmp/gps"};
  NmeaSource source(gps, port, disk, clock);
  source.Open();
  port.Vanish();
  port.Why = "gone";
  disk.Devices.clear();
  disk.Write("/tmp/gps", "$one\n");
  EXPECT_FALSE(Takes(source, gps));
  EXPECT_EQ(source.Trouble(), "gone");
  EXPECT_TRUE(disk.Exists("/tmp/gps"));
}

// ---- File -------------------------------------------------------------------------------------

TEST(NmeaFile, IsConsumedAndMakesTheTimeValid) {
  GpsWorld world(kFile);
  EXPECT_FALSE(world.Port.IsOpen());
  EXPECT_FALSE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Gps.GpsTimeValid, 0);
  world.Disk.Write(kFile, "$one\ntwo\r\n\rthree");
  EXPECT_TRUE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Gps.NmeaBuffer, "$one\r\ntwo\r\n\r\nthree\r\n");
  EXPECT_FALSE(world.Disk.Exists(kFile));
  EXPECT_EQ(world.Gps.GpsTimeValid, 1);
  world.Disk.Write(kFile, "$four\n");
  EXPECT_TRUE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Gps.NmeaBuffer, "$one\r\ntwo\r\n\r\nthree\r\n$four\r\n");
}

TEST(NmeaFile, OfALongOneTheEndCounts) {
  GpsWorld world(kFile);
  std::string text;
  for (int line = 0; line < 100000; ++line)
    text += "$123456789\n";
  world.Disk.Write(kFile, text + "end");
  EXPECT_TRUE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Gps.NmeaBuffer.size(), GpsState::kLongestBuffer);
  EXPECT_TRUE(world.Gps.NmeaBuffer.ends_with("\r\n$123456789\r\nend\r\n"));
  world.Disk.Write(kFile, std::string(5000, '\n') + "$");
  EXPECT_TRUE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Gps.NmeaBuffer.size(), GpsState::kLongestBuffer);
  EXPECT_EQ(world.Gps.NmeaBuffer.find_first_not_of("\r\n"), GpsState::kLongestBuffer - 3);
}

TEST(NmeaFile, OneThatGrowsWhileItIsReadIsTakenAtTheNextTick) {
  GpsWorld world(kFile);
  world.Disk.Write(kFile, "$one\n");
  world.Disk.OnReadRange = [&] { world.Disk.Append(kFile, "two\n"); };
  EXPECT_FALSE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Gps.NmeaBuffer, "");
  EXPECT_EQ(world.Disk.Of(kFile), "$one\ntwo\n");
  world.Disk.OnReadRange = nullptr;
  EXPECT_TRUE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Gps.NmeaBuffer, "$one\r\ntwo\r\n");
}

TEST(NmeaFile, AnEmptyOneIsLeftToItsWriter) {
  GpsWorld world(kFile);
  world.Disk.Write(kFile, "");
  EXPECT_FALSE(Takes(world.Source, world.Gps));
  EXPECT_TRUE(world.Disk.Exists(kFile));
  EXPECT_EQ(world.Gps.GpsTimeValid, 0);
}

TEST(NmeaFile, OneThatCannotBeRemovedIsNotReadAgainAndAgain) {
  GpsWorld world(kFile);
  world.Disk.Write(kFile, "$one\n");
  world.Disk.NothingIsRemoved = true;
  EXPECT_FALSE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Gps.NmeaBuffer, "");
  EXPECT_EQ(world.Gps.GpsTimeValid, 0);
  EXPECT_EQ(world.Source.Trouble(), gps_texts::kFileStays.With({kFile}));
}

TEST(NmeaFile, OneThatCannotBeReadStays) {
  GpsWorld world(kFile);
  world.Disk.Write(kFile, "$one\n");
  world.Disk.UnreadableEnding = "GPS.TXT";
  EXPECT_FALSE(Takes(world.Source, world.Gps));
  EXPECT_TRUE(world.Disk.Exists(kFile));
  EXPECT_EQ(world.Source.Trouble(), gps_texts::kFileUnread.With({kFile}));
  world.Disk.UnreadableEnding.clear();
  EXPECT_TRUE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Source.Trouble(), "");
}

TEST(NmeaFile, OneWithoutSentencesIsLeftAloneAndTold) {
  GpsWorld world(kFile);
  for (const std::string& text :
       {std::string("my letters\n"), std::string("\n"), std::string("\0\x01\x02", 3),
        std::string("costs 5$\nRMC\n"), GgaLine("1") + std::string(6000, '.')}) {
    world.Disk.Write(kFile, text);
    world.Tick();
    EXPECT_EQ(world.Disk.Of(kFile), text);
    EXPECT_EQ(world.Gps.NmeaBuffer, "");
    EXPECT_EQ(world.Gps.GpsTimeValid, 0);
    EXPECT_EQ(world.Controls.GpsNote.Caption,
              R"(GPS: no position yet   C:\GPS.TXT holds no NMEA sentences, and is left alone.)");
  }
}

TEST(NmeaFile, AWordOfASentenceOrADollarAtTheBeginningOfALineIsEnough) {
  for (const char* text :
       {"RMC,1\n", "GPGGA,1\n", "xGLL,\n", "$GPGSV,1\n", "a\n$PGRME\n", "a\r$\n"}) {
    GpsWorld world(kFile);
    world.Disk.Write(kFile, text);
    EXPECT_TRUE(Takes(world.Source, world.Gps)) << text;
    EXPECT_FALSE(world.Disk.Exists(kFile)) << text;
    EXPECT_EQ(world.Source.Trouble(), "") << text;
  }
}

TEST(NmeaFile, OneThatIsNotThereIsNamedUnlessItCameInTheLastMinute) {
  GpsWorld world(kFile);
  const std::string absent = R"(C:\GPS.TXT is not there.)";
  world.Tick();
  EXPECT_EQ(world.Controls.GpsNote.Caption, "GPS: no position yet   " + absent);
  world.Disk.Write(kFile, GgaLine("1"));
  world.Tick();
  EXPECT_EQ(world.Controls.GpsNote.Caption, "GPS: no position yet");
  world.Clock.Run(60.0);
  world.Source.Take();
  EXPECT_EQ(world.Source.Trouble(), "");
  world.Tick();
  EXPECT_EQ(world.Controls.GpsNote.Caption, "GPS: no position yet   " + absent);
}

TEST(NmeaFile, AFolderIsNone) {
  GpsWorld world(R"(C:\GPS)");
  world.Disk.Folders.insert(R"(C:\GPS)");
  EXPECT_FALSE(Takes(world.Source, world.Gps));
  EXPECT_EQ(world.Source.Trouble(), gps_texts::kNoFile.With({R"(C:\GPS)"}));
  EXPECT_FALSE(world.Port.IsOpen());
}

}  // namespace
}  // namespace zepril
