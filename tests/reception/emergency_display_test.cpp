// A station in emergency: what is shown, where the map goes, how the panel closes and an alarm
// ends.
#include "reception/emergency_display.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class RecordedSound final : public Sound {
 public:
  explicit RecordedSound(std::vector<std::string>& calls) : calls_(calls) {}
  void Play(const std::string& path) override { calls_.push_back("play " + path); }
  void Stop() override { calls_.emplace_back("silence"); }

 private:
  std::vector<std::string>& calls_;
};

constexpr const char* kQuestionTitle = "ZEP RIL         EMERGENCY ALARM";
constexpr const char* kQuestion = "CANCEL THIS ALARM  ( = FALSE ALARM )  ?";
constexpr const char* kLog = R"(C:\ZEPRIL\U33\LOG\_ALARM_.TXT)";

class EmergencyDisplayTest : public ::testing::Test {
 protected:
  EmergencyDisplayTest() {
    identity.ProgramFolder = R"(C:\ZEPRIL)";
    panel.Frame14.Visible = false;
    alarms.AlarmCall = "QX7GW";
    alarms.AlarmTime = "2024-05-14 12:30";
    alarms.AlarmNorth = " 5818.297";
    alarms.AlarmEast = "  391.750";
    alarms.AlarmLat = " 52:30.24";
    alarms.AlarmLon = " 13:24.31";
    alarms.AlarmInfo = "R&D help";
    alarms.AlarmFile = kLog;
    display.ClosePicture = [this] { actions.Calls.emplace_back("no picture"); };
  }
  void CloseAt(LocalTime now) {
    panel.Frame14.Visible = true;
    clock.SetNow(now);
    panel.EmergencyClose.Click();
  }

  IdentityState identity;
  AlarmState alarms;
  MapViewState view;
  EmergencyControls panel;
  MapControls map;
  WindowControls window;
  MemoryFiles disk;
  VirtualClock clock{{2024, 5, 14, 12, 31, 0}};
  ScriptedDialogs boxes;
  RecordedActions actions;
  RecordedSound sound{actions.Calls};
  EmergencyDisplay display{
      {identity, alarms, view}, {panel, map, window}, {disk, clock, boxes, actions, &sound}};
};

TEST_F(EmergencyDisplayTest, TheStationIsShownOnPanelAndMap) {
  view.CentreFollow = Following::Station;
  view.PictureMode = MapShows::Picture;
  map.Option2.Value = true;
  display.ShowEmergency();
  EXPECT_EQ(view.PictureMode, MapShows::Map);
  EXPECT_EQ(panel.EmergencyCall.Caption, "QX7GW       2024-05-14 12:30");
  EXPECT_EQ(panel.EmergencyFile.Caption, kLog);
  EXPECT_EQ(panel.Label26.Caption, "UTM(Z33):  5818.297   391.750");
  EXPECT_EQ(panel.Label27.Caption, "GLL:  52:30.24   13:24.31");
  EXPECT_EQ(panel.EmergencyInfo.Caption, "R&&D help");
  EXPECT_TRUE(panel.Frame14.Visible);
  EXPECT_TRUE(window.MaximiseWanted);
  EXPECT_FALSE(map.Option1.Value);
  EXPECT_FALSE(map.Option2.Value);
  EXPECT_EQ(view.CentreFollow, Following::TypedPosition);
  EXPECT_TRUE(view.ManualMapMove);
  EXPECT_EQ(view.QthNorthText, " 5818.297");
  EXPECT_EQ(view.QthEastText, "  391.750");
  // In this order.
  EXPECT_EQ(actions.Calls,
            (std::vector<std::string>{"no picture", R"(play C:\ZEPRIL\ALARM.WAV)", "redraw"}));
}

TEST_F(EmergencyDisplayTest, WithoutASpeakerThereIsSilence) {
  EmergencyControls own_panel;
  EmergencyDisplay silent({identity, alarms, view}, {own_panel, map, window},
                          {disk, clock, boxes, actions, nullptr});
  silent.ShowEmergency();
  EXPECT_TRUE(own_panel.Frame14.Visible);
}

TEST_F(EmergencyDisplayTest, WithinAnHourItClosesWithoutAQuestion) {
  display.ShowEmergency();
  CloseAt({2024, 5, 14, 13, 30, 0});
  EXPECT_FALSE(panel.Frame14.Visible);
  EXPECT_EQ(alarms.AlarmCall, "QX7GW");
  EXPECT_EQ(alarms.AlarmClosedAt, clock.MonotonicSeconds());
}

TEST_F(EmergencyDisplayTest, LaterItAsksAndNoClosesItForAWhile) {
  display.ShowEmergency();
  clock.Run(100.0);
  boxes.Expect(kQuestionTitle, kQuestion, DialogAnswer::No);
  CloseAt({2024, 5, 14, 13, 31, 0});
  EXPECT_EQ(boxes.LastButtons, DialogButtons::YesNo);
  EXPECT_EQ(boxes.LastDefault, DialogAnswer::No);
  EXPECT_FALSE(panel.Frame14.Visible);
  EXPECT_EQ(alarms.AlarmCall, "QX7GW");
  EXPECT_EQ(alarms.AlarmClosedAt, 100.0);
}

TEST_F(EmergencyDisplayTest, YesEndsTheAlarmAndItsLogSaysSo) {
  display.ShowEmergency();
  disk.Contents[kLog] = "block\r\n";
  actions.Calls.clear();
  boxes.Expect(kQuestionTitle, kQuestion, DialogAnswer::Yes);
  CloseAt({2024, 5, 15, 0, 10, 0});
  EXPECT_EQ(alarms.AlarmCall, "");
  EXPECT_FALSE(panel.Frame14.Visible);
  EXPECT_EQ(actions.Calls, (std::vector<std::string>{"silence", "redraw"}));
  EXPECT_EQ(disk.Of(kLog),
            "block\r\nFALSE ALARM : QX7GW  2024-05-14 12:30  CANCELLED 2024-05-15 00:10\r\n");
}

TEST_F(EmergencyDisplayTest, AStationThatCallsUrgentlyIsAskedForAfterTwoHours) {
  alarms.AlarmInfo = "help!";
  display.ShowEmergency();
  CloseAt({2024, 5, 14, 14, 30, 0});
  EXPECT_FALSE(panel.Frame14.Visible);
  boxes.Expect(kQuestionTitle, kQuestion, DialogAnswer::No);
  CloseAt({2024, 5, 14, 14, 31, 0});
}

TEST_F(EmergencyDisplayTest, AFalseAlarmEndsWithOnePress) {
  display.ShowEmergency();
  panel.FalseAlarm.Click();
  EXPECT_EQ(alarms.AlarmCall, "");
  EXPECT_FALSE(panel.Frame14.Visible);
  EXPECT_EQ(disk.Of(kLog), "FALSE ALARM : QX7GW  2024-05-14 12:30  CANCELLED 2024-05-14 12:31\r\n");
  // There is nothing more to be cancelled.
  panel.FalseAlarm.Click();
  EXPECT_EQ(disk.LineCount(kLog), 1);
}

TEST_F(EmergencyDisplayTest, AClockThatWentBackAsksNothing) {
  display.ShowEmergency();
  CloseAt({2024, 5, 14, 9, 0, 0});
  EXPECT_FALSE(panel.Frame14.Visible);
  EXPECT_EQ(alarms.AlarmCall, "QX7GW");
}

TEST_F(EmergencyDisplayTest, OneThatWasNeverShownIsShownWhole) {
  // Its first report counted as a repeat of an ordinary one.
  display.ShowAgain();
  EXPECT_TRUE(panel.EmergencyCall.Caption.starts_with("QX7GW"));
  EXPECT_EQ(actions.CountOf(R"(play C:\ZEPRIL\ALARM.WAV)"), 1);
  EXPECT_EQ(view.CentreFollow, Following::TypedPosition);
  display.ShowAgain();
  EXPECT_EQ(actions.CountOf(R"(play C:\ZEPRIL\ALARM.WAV)"), 1);
}

TEST_F(EmergencyDisplayTest, AnotherOneThatCameMeanwhileIsNotCancelledWithTheShownOne) {
  display.ShowEmergency();
  alarms.AlarmCall = "QX8GW";
  alarms.AlarmTime = "2024-05-14 12:31";
  panel.FalseAlarm.Click();
  EXPECT_EQ(alarms.AlarmCall, "QX8GW");
  EXPECT_TRUE(disk.Of(kLog).starts_with("FALSE ALARM : QX7GW  2024-05-14 12:30"));
  display.ShowAgain();
  EXPECT_TRUE(panel.EmergencyCall.Caption.starts_with("QX8GW"));
  EXPECT_TRUE(panel.Frame14.Visible);
}

TEST_F(EmergencyDisplayTest, ACopyOfACancelledOneIsNone) {
  display.ShowEmergency();
  panel.FalseAlarm.Click();
  alarms.AlarmCall = "QX7GW";
  display.ShowAgain();
  EXPECT_FALSE(panel.Frame14.Visible);
  EXPECT_EQ(alarms.AlarmCall, "");
  // A report of its own is one again.
  alarms.AlarmCall = "QX7GW";
  display.ShowEmergency();
  EXPECT_TRUE(panel.Frame14.Visible);
  CloseAt({2024, 5, 14, 12, 40, 0});
  display.ShowAgain();
  EXPECT_TRUE(panel.Frame14.Visible);
}

TEST_F(EmergencyDisplayTest, ItComesBackWhileTheAlarmLasts) {
  display.ShowEmergency();
  CloseAt({2024, 5, 14, 12, 40, 0});
  display.ShowAgain();
  EXPECT_TRUE(panel.Frame14.Visible);
}

}  // namespace
}  // namespace zepril
