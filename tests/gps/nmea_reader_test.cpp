// What a tick makes of the GPS: fix, clock, line, place, and what the map follows.
#include "gps/nmea_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "core/texts/gps_texts.h"
#include "platform/clock.h"
#include "tests/gps/gps_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kBerlin = "5230.2430,N,01324.3096,E";

std::string Rmcs(const std::string& place = kBerlin) {
  return RmcLine("123040", place) + RmcLine("123041", place);
}

std::string Ggas(const std::string& place) {
  return GgaLine("123040", place) + GgaLine("123041", place);
}

// ---- Position and fix -------------------------------------------------------------------------

TEST(ReadNmea, WhatLiesOffTheEarthIsNoPosition) {
  GpsWorld world;
  for (const char* place : {"9999.9999,N,01324.3096,E", "5230.2430,N,18124.3096,E"}) {
    world.SayAndTick(Rmcs(place));
    EXPECT_EQ(world.Gps.GpsFixValid, 0) << place;
    EXPECT_EQ(world.Gps.GpsNorthText, "") << place;
    EXPECT_FALSE(world.Controls.GpsInfo.Visible) << place;
  }
}

TEST(ReadNmea, TakesThePositionOfTwoSentencesThatAgree) {
  GpsWorld world;
  world.SayAndTick(Rmcs());
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
  EXPECT_EQ(world.Gps.GpsFixValidBefore, 0);
  EXPECT_TRUE(world.Gps.PositionUsed);
  EXPECT_EQ(world.Gps.GpsNorthText, " 5818.297");
  EXPECT_EQ(world.Gps.GpsEastText, "  391.750");
  EXPECT_NEAR(world.Gps.GpsNorthKm, 5818.2976, 0.001);
  EXPECT_NEAR(world.Gps.GpsEastKm, 391.7508, 0.001);
  world.SayAndTick(Rmcs());
  EXPECT_EQ(world.Gps.GpsFixValidBefore, 1);
}

TEST(ReadNmea, OneSentenceOrTornOnesLeaveTheOldPosition) {
  GpsWorld world;
  world.SayAndTick(Rmcs());
  world.Clock.Run(61.0);
  world.Tick();  // too old by now
  for (const char* text : {"", "$GPRMC,123040,A,4830.1500,N,00805.2000,E,12.4,90.0,140524,,*10\r\n",
                           "$GPRMC,123041,A,48", "30.15\r\n\r\n", "$$$\xFF\xFE\r\n"}) {
    world.SayAndTick(text);
    EXPECT_EQ(world.Gps.GpsFixValid, 0) << text;
    EXPECT_EQ(world.Gps.GpsNorthText, " 5818.297") << text;
  }
}

TEST(ReadNmea, ASentenceInTwoHalvesIsTakenWhenItIsWhole) {
  GpsWorld world;
  world.SayAndTick(RmcLine("123040") + "$GPRMC,123041,A,4830.1500,N,008");
  EXPECT_EQ(world.Gps.GpsFixValid, 0);
  world.SayAndTick("05.2000,E,12.4,90.0,140524,,*10\r\n");
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
}

TEST(ReadNmea, AJumpIsThrownAwayAndTakenOnceItIsRepeated) {
  GpsWorld world;
  world.SayAndTick(Rmcs("4830.1500,N,00805.2000,E"));
  const std::string before = world.Gps.GpsNorthText;
  world.SayAndTick(RmcLine("123046", "4835.1500,N,00805.2000,E"));
  EXPECT_EQ(world.Gps.GpsFixValid, 0);
  EXPECT_EQ(world.Gps.GpsNorthText, before);
  world.SayAndTick(RmcLine("123047", "4835.1510,N,00805.2000,E"));
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
  EXPECT_NE(world.Gps.GpsNorthText, before);
}

TEST(ReadNmea, SentencesOfTheBestKindThatDisagreeAreNotReplacedByThoseOfAnother) {
  GpsWorld world;
  world.SayAndTick(RmcLine("123040", kBerlin) + RmcLine("123041", "4830.1500,N,00805.2000,E") +
                   Ggas(kBerlin));
  EXPECT_EQ(world.Gps.GpsFixValid, 0);
  EXPECT_EQ(world.Gps.GpsNorthText, "");
  // Without them the others are taken.
  world.SayAndTick(std::string(GpsState::kLongestBuffer, '.') + "\r\n" + Ggas(kBerlin));
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
}

TEST(ReadNmea, SouthAndWestAreNegative) {
  GpsWorld world;
  world.SayAndTick(Ggas("0530.0000,S,01324.3100,E"));
  EXPECT_LT(world.Gps.GpsNorthKm, -600.0);
  EXPECT_EQ(world.Gps.GpsNorthText[0], '-');
  world.SayAndTick(Ggas("4830.1500,N,00805.2000,E"));
  EXPECT_EQ(world.Gps.GpsEastText, "-  10.524");
}

TEST(ReadNmea, WhatLiesBehindTheGridStandsAtItsEnd) {
  GpsWorld world;
  world.SayAndTick(Ggas("8500.0000,N,17000.0000,E"));
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
  EXPECT_EQ(world.Gps.GpsNorthKm, 9999.99);
  world.SayAndTick(Ggas("0000.00001,N,10500.0000,E"));
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
  EXPECT_TRUE(std::isfinite(world.Gps.GpsNorthKm) && std::isfinite(world.Gps.GpsEastKm));
}

TEST(ReadNmea, WithoutRmcThereIsNoClockAndNoSpeed) {
  GpsWorld world;
  world.Gps.SetsClock = true;
  world.SayAndTick(Ggas(kBerlin));
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
  EXPECT_EQ(world.Gps.GpsTimeValid, 0);
  EXPECT_THAT(world.Desktop.ClockSettings, IsEmpty());
  EXPECT_EQ(world.Controls.GpsInfo.Caption.find("Vkm"), std::string::npos);
}

TEST(ReadNmea, AsksForAWayOnlyWhereItIsKeptAndForATrackAlways) {
  GpsWorld world;
  std::string order;
  world.Reader.SaveWay = [&] { order += world.Gps.GpsFixValid == 0 ? "way " : "late way "; };
  world.Reader.SaveTrack = [&] { order += world.Gps.GpsFixValid == 1 ? "track " : "early track "; };
  world.SayAndTick(Rmcs());
  EXPECT_EQ(order, "track ");
  world.Gps.NavigationOn = true;
  world.SayAndTick(Rmcs());
  EXPECT_EQ(order, "track way track ");
  world.SayAndTick(RmcLine("123042", "4930.1500,N,00805.2000,E"));
  EXPECT_EQ(order, "track way track ");
}

TEST(ReadNmea, AFileGivesAPositionAndTheTime) {
  GpsWorld world(R"(C:\GPS.TXT)");
  world.Disk.Write(R"(C:\GPS.TXT)", Ggas(kBerlin));
  world.Tick();
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
  EXPECT_EQ(world.Gps.GpsTimeValid, 1);
  EXPECT_FALSE(world.Disk.Exists(R"(C:\GPS.TXT)"));
}

// ---- Age --------------------------------------------------------------------------------------

TEST(GpsAge, AFilesSentenceAgreesWithThatOfTheFileBeforeHoweverLongAgo) {
  GpsWorld world(R"(C:\GPS.TXT)");
  for (const char* time : {"120000", "120130", "120300"}) {
    world.Disk.Write(R"(C:\GPS.TXT)", GgaLine(time, kBerlin));
    world.Tick();
    EXPECT_EQ(world.Gps.GpsFixValid, time == std::string("120000") ? 0 : 1) << time;
    world.Clock.Run(84.0);
    world.Reader.ReadNmea();
    EXPECT_EQ(world.Gps.GpsFixValid, 0) << time;
  }
  world.Tick();
  EXPECT_EQ(world.Controls.GpsNote.Caption,
            R"(GPS: no position since 12:37   C:\GPS.TXT is not there.)");
}

TEST(GpsAge, OtherLinesDoNotKeepAPositionAlive) {
  GpsWorld world;
  world.Say(Rmcs());
  for (int tick = 1; tick <= 12; ++tick) {
    world.SayAndTick("$GPGSV,1,1,00*79\r\n");
    EXPECT_EQ(world.Gps.GpsFixValid, tick <= 10 ? 1 : 0) << tick;
  }
  world.Tick();
  EXPECT_EQ(world.Controls.GpsNote.Caption, "GPS: no position since 12:34");
}

TEST(GpsAge, ThatOfTheNewerSentenceCounts) {
  GpsWorld world;
  world.Say(RmcLine("123040", kBerlin));
  world.Clock.Run(300.0);
  world.SayAndTick(RmcLine("123041", kBerlin));
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
}

TEST(GpsAge, WhatCameWhileNothingWasReadIsOldToo) {
  GpsWorld world;
  world.Say(Rmcs());
  world.Clock.Run(600.0);
  world.Reader.ReadNmea();
  EXPECT_EQ(world.Gps.GpsFixValid, 0);
}

TEST(GpsAge, StandingStillIsAPositionAsLongAsItIsSaid) {
  GpsWorld world;
  for (int tick = 0; tick < 50; ++tick) {
    world.SayAndTick(RmcLine("123040", kBerlin));
    EXPECT_EQ(world.Gps.GpsFixValid, tick == 0 ? 0 : 1) << tick;
  }
}

// ---- Clock ------------------------------------------------------------------------------------

TEST(GpsClock, IsSetWhereTheOperatorWantsIt) {
  GpsWorld world;
  world.Settings.UtcOffsetHours = 2;
  world.Gps.SetsClock = true;
  world.SayAndTick(RmcLine("123040") + RmcLine("123050"));
  ASSERT_EQ(world.Desktop.ClockSettings.size(), 1U);
  EXPECT_EQ(SecondsOf(world.Desktop.ClockSettings[0]), SecondsOf({2024, 5, 14, 14, 30, 55}));
  EXPECT_EQ(world.Gps.ClockSetFromGps, 1);
  EXPECT_EQ(world.Gps.GpsTimeValid, 1);
}

TEST(GpsClock, IsLeftAloneByDefaultAndTheTimeIsValidAllTheSame) {
  GpsWorld world;
  world.SayAndTick(Rmcs());
  EXPECT_THAT(world.Desktop.ClockSettings, IsEmpty());
  EXPECT_EQ(world.Gps.GpsTimeValid, 1);
  EXPECT_EQ(world.Gps.ClockSetFromGps, 0);
}

TEST(GpsClock, ARefusalLeavesTheMarkOff) {
  GpsWorld world;
  world.Gps.SetsClock = true;
  world.Desktop.ClockMayBeSet = false;
  world.SayAndTick(Rmcs());
  EXPECT_EQ(world.Desktop.ClockSettings.size(), 1U);
  EXPECT_EQ(world.Gps.ClockSetFromGps, 0);
  EXPECT_EQ(world.Gps.GpsTimeValid, 1);
}

TEST(GpsClock, TheLastSecondsOfAMinuteLeaveItAloneButGiveAPosition) {
  GpsWorld world;
  world.Gps.SetsClock = true;
  world.SayAndTick(RmcLine("123054") + RmcLine("123055"));
  EXPECT_THAT(world.Desktop.ClockSettings, IsEmpty());
  EXPECT_EQ(world.Gps.GpsTimeValid, 0);
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
}

TEST(GpsClock, ADateThatIsNoneLeavesItAloneButGivesAPosition) {
  GpsWorld world;
  world.Gps.SetsClock = true;
  world.SayAndTick(RmcLine("123040", kBerlin, "310224") + RmcLine("123041", kBerlin, "310224"));
  EXPECT_THAT(world.Desktop.ClockSettings, IsEmpty());
  EXPECT_EQ(world.Gps.GpsTimeValid, 0);
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
}

TEST(GpsClock, ASilentGpsDoesNotSetItBack) {
  GpsWorld world;
  world.Gps.SetsClock = true;
  world.SayAndTick(Rmcs());
  for (int tick = 0; tick < 8; ++tick)
    world.Tick();
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
  EXPECT_EQ(world.Desktop.ClockSettings.size(), 1U);
  world.SayAndTick(RmcLine("123049", kBerlin));
  EXPECT_EQ(world.Desktop.ClockSettings.size(), 2U);
}

TEST(GpsClock, IsSetByAFileThatWasJustWrittenAndByNoOther) {
  constexpr std::int64_t kSecondNs = 1'000'000'000;
  for (const auto& [age, sets] : {std::pair{0, 1U}, std::pair{10, 1U}, std::pair{11, 0U},
                                  std::pair{86400, 0U}, std::pair{-1, 0U}}) {
    GpsWorld world(R"(C:\GPS.TXT)");
    world.Gps.SetsClock = true;
    world.Disk.Write(R"(C:\GPS.TXT)", Rmcs());
    world.Disk.ModifiedNs[R"(C:\GPS.TXT)"] = world.Clock.FileTimeNs() - age * kSecondNs;
    world.Reader.ReadNmea();
    EXPECT_EQ(world.Desktop.ClockSettings.size(), sets) << age;
    EXPECT_EQ(world.Gps.ClockSetFromGps, static_cast<int>(sets)) << age;
    EXPECT_EQ(world.Gps.GpsTimeValid, 1) << age;
    EXPECT_EQ(world.Gps.GpsFixValid, 1) << age;
  }
}

TEST(GpsClock, IsNotSetByWhatCameWhileNothingWasRead) {
  GpsWorld world;
  world.Gps.SetsClock = true;
  world.Say(Rmcs());
  world.Clock.Run(11.0);
  world.Reader.ReadNmea();
  EXPECT_TRUE(world.Desktop.ClockSettings.empty());
  EXPECT_EQ(world.Gps.GpsTimeValid, 1);
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
}

// ---- The line over the map --------------------------------------------------------------------

TEST(GpsLine, ComesWithThePositionAndGoesTwoTicksAfterIt) {
  GpsWorld world;
  world.Tick();
  EXPECT_FALSE(world.Controls.GpsInfo.Visible);
  world.SayAndTick(Rmcs());
  EXPECT_TRUE(world.Controls.GpsInfo.Visible);
  EXPECT_TRUE(world.Controls.GpsInfo.Caption.starts_with("   GPS-INFO:  GLN:___ 52.50N"));
  world.SayAndTick(RmcLine("123046", "1235.1500,N,00805.2000,E"));
  EXPECT_EQ(world.Gps.GpsFixValid, 0);
  EXPECT_TRUE(world.Controls.GpsInfo.Visible);
  world.SayAndTick(RmcLine("123046", "2235.1500,N,00805.2000,E"));
  EXPECT_FALSE(world.Controls.GpsInfo.Visible);
}

TEST(GpsNote, SaysSinceWhenAndWhyThereIsNoPosition) {
  GpsWorld world;
  world.Tick();
  EXPECT_TRUE(world.Controls.GpsNote.Visible);
  EXPECT_EQ(world.Controls.GpsNote.Caption, "GPS: no position yet");
  world.SayAndTick(Rmcs());
  EXPECT_FALSE(world.Controls.GpsNote.Visible);
  const LocalTime last = world.Clock.Now();
  EXPECT_EQ(last.Minute, 34);
  for (int tick = 0; tick < 30; ++tick)
    world.Tick();
  EXPECT_EQ(world.Gps.GpsFixValid, 0);
  EXPECT_TRUE(world.Controls.GpsNote.Visible);
  EXPECT_EQ(world.Controls.GpsNote.Caption, gps_texts::kNoPositionSince.With({"12:34"}));
  world.Port.Vanish();
  world.Port.Why = "It is not there.";
  world.Tick();
  EXPECT_EQ(world.Controls.GpsNote.Caption, "GPS: no position since 12:34   It is not there.");
  world.Port.Absent = false;
  world.Clock.Run(10.0);
  world.SayAndTick(Rmcs());
  EXPECT_FALSE(world.Controls.GpsNote.Visible);
}

TEST(GpsNote, AClickClosesItUntilItChanges) {
  GpsWorld world;
  world.Tick();
  world.Controls.GpsNote.Click();
  EXPECT_FALSE(world.Controls.GpsNote.Visible);
  world.Tick();
  EXPECT_FALSE(world.Controls.GpsNote.Visible);
  world.Port.Vanish();
  world.Port.Why = "It is not there.";
  world.Tick();
  EXPECT_TRUE(world.Controls.GpsNote.Visible);
}

TEST(GpsNote, OneThatWasClosedComesBackWithTheNextLossInTheSameMinute) {
  GpsWorld world;
  const auto lose = [&] {
    world.SayAndTick(RmcLine("1", "1235.1500,N,00805.2000,E"));
    world.SayAndTick(RmcLine("1", "2235.1500,N,00805.2000,E"));
  };
  world.SayAndTick(Rmcs());
  lose();
  const std::string words = world.Controls.GpsNote.Caption;
  EXPECT_TRUE(world.Controls.GpsNote.Visible);
  world.Controls.GpsNote.Click();
  world.SayAndTick(Rmcs());
  lose();
  EXPECT_EQ(world.Controls.GpsNote.Caption, words);
  EXPECT_TRUE(world.Controls.GpsNote.Visible);
}

// ---- What the map follows ---------------------------------------------------------------------

TEST(GpsFollow, ThePositionIsFollowedAndDrawn) {
  GpsWorld world;
  world.View.MapDrawn = true;
  world.SayAndTick(Rmcs());
  EXPECT_EQ(world.View.CentreFollow, Following::OwnPosition);
  EXPECT_TRUE(world.Map.Option1.Value);
  EXPECT_FALSE(world.Map.Option2.Value);
  EXPECT_FALSE(world.View.MapDrawn);
}

TEST(GpsFollow, AMapThatWasMovedByHandStaysForHalfAMinute) {
  GpsWorld world;
  world.SayAndTick(Rmcs());
  world.View.CentreFollow = Following::Nobody;
  world.View.ManualMapMove = true;
  world.SayAndTick(Rmcs());
  EXPECT_FALSE(world.View.ManualMapMove);
  for (int tick = 0; tick < 4; ++tick) {
    world.SayAndTick(Rmcs());
    EXPECT_EQ(world.View.CentreFollow, Following::Nobody) << tick;
    EXPECT_EQ(world.Gps.GpsFixValid, 1);
  }
  world.SayAndTick(Rmcs());
  EXPECT_EQ(world.View.CentreFollow, Following::OwnPosition);
}

TEST(GpsFollow, WithoutAPositionNothingFollows) {
  GpsWorld world;
  world.View.CentreFollow = Following::Station;
  world.SayAndTick(RmcLine("123040"));
  EXPECT_EQ(world.View.CentreFollow, Following::Station);
}

TEST(GpsFollow, AStandingStationIsDrawnOnceAndALostFixOnceMore) {
  GpsWorld world;
  world.SayAndTick(Rmcs());
  world.View.MapDrawn = true;
  world.SayAndTick(Rmcs());
  EXPECT_TRUE(world.View.MapDrawn);
  world.SayAndTick(Rmcs("5230.2530,N,01324.3096,E"));
  EXPECT_FALSE(world.View.MapDrawn);
  world.View.MapDrawn = true;
  world.SayAndTick(RmcLine("1", "1230.0,N,01324.3096,E"));
  EXPECT_TRUE(world.View.MapDrawn);
  world.SayAndTick(RmcLine("1", "2230.0,N,01324.3096,E"));
  EXPECT_FALSE(world.View.MapDrawn);
}

TEST(GpsFollow, ATransmittingStationGoesToItsFirstPositionAtOnce) {
  GpsWorld world;
  world.Transmit.Check6.Value = 1;
  world.SayAndTick(Rmcs());
  EXPECT_THAT(world.Up.Calls, ElementsAre("redraw"));
  world.SayAndTick(Rmcs());
  EXPECT_EQ(world.Up.CountOf("redraw"), 1);
}

TEST(GpsFollow, ButNotFromARecordAPictureOrAMapJustMoved) {
  const auto redraws = [](const std::function<void(GpsWorld&)>& set) {
    GpsWorld world;
    world.Transmit.Check6.Value = 1;
    set(world);
    world.SayAndTick(Rmcs());
    return world.Up.CountOf("redraw");
  };
  EXPECT_EQ(redraws([](GpsWorld&) {}), 1);
  EXPECT_EQ(redraws([](GpsWorld& world) { world.Transmit.Check6.Value = 0; }), 0);
  EXPECT_EQ(redraws([](GpsWorld& world) { world.View.MapLockedOnRecord = 1; }), 0);
  EXPECT_EQ(redraws([](GpsWorld& world) { world.View.PictureMode = MapShows::Picture; }), 0);
  EXPECT_EQ(redraws([](GpsWorld& world) { world.View.ManualMapMove = true; }), 0);
}

// ---- Long runs --------------------------------------------------------------------------------

TEST(GpsNoise, AnHourAtFullSpeedLeavesThePositionAndTheMemoryAlone) {
  GpsWorld world;
  world.SayAndTick(Rmcs());
  const std::string north = world.Gps.GpsNorthText;
  unsigned seed = 12345;
  for (int second = 0; second < 3600; ++second) {
    std::string noise(11520, '\0');
    for (char& c : noise) {
      seed = seed * 1103515245U + 12345U;
      c = static_cast<char>(seed >> 16);
    }
    world.Say(noise);
    world.Clock.Run(1.0);
    if (second % 6 == 0) world.Reader.ReadNmea();
    ASSERT_LE(world.Gps.NmeaBuffer.size(), GpsState::kLongestBuffer);
  }
  EXPECT_EQ(world.Gps.GpsNorthText, north);
  EXPECT_EQ(world.Gps.GpsFixValid, 0);
  world.SayAndTick("\r\n" + Rmcs());
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
}

TEST(GpsClock, JumpsOfTheClockDisturbNeitherFollowingNorSilence) {
  GpsWorld world;
  world.View.ManualMapMove = true;
  world.SayAndTick(Rmcs());
  EXPECT_EQ(world.View.CentreFollow, Following::Nobody);
  for (const LocalTime& now : {LocalTime{2024, 2, 29, 23, 59, 58}, LocalTime{2024, 3, 31, 3, 0, 1},
                               LocalTime{2024, 10, 27, 2, 0, 0}, LocalTime{2001, 1, 1, 0, 0, 0},
                               LocalTime{2099, 12, 31, 23, 59, 59}}) {
    world.Clock.SetNow(now);
    world.SayAndTick(Rmcs());
    EXPECT_EQ(world.Gps.GpsFixValid, 1);
  }
  EXPECT_EQ(world.View.CentreFollow, Following::OwnPosition);
}

TEST(GpsTalkers, TwoThatAgreeAreOne) {
  GpsWorld world;
  world.SayAndTick(RmcLine("123040", kBerlin, "140524", "1", "GP") +
                   RmcLine("123040", kBerlin, "140524", "1", "GN"));
  EXPECT_EQ(world.Gps.GpsFixValid, 1);
  // Two that stand far apart: neither is believed while both talk.
  world.SayAndTick(RmcLine("123046", kBerlin) + RmcLine("123046", "4830.1500,N,00805.2000,E"));
  EXPECT_EQ(world.Gps.GpsFixValid, 0);
}

}  // namespace
}  // namespace zepril
