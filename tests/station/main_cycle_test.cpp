// The steps of a tick: their order, and when each is due.
#include "station/main_cycle.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/title_line.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

using Names = std::vector<std::string>;

class Recorder final : public MapActions, public DesktopActions {
 public:
  TickSteps Steps() {
    TickSteps steps;
    steps.PollAprsIsLink = [this] { Done.push_back("aprs-is"); };
    steps.WatchCompanion = [this] {
      if (Watched) Watched();
    };
    steps.RunScanSwitchHandler = [this] { Done.push_back("scan"); };
    steps.KeepSecondModeMonitored = [this] { Done.push_back("second mode"); };
    steps.ChangeFollowedStation = [this] { Done.push_back("follow"); };
    steps.ShowEmergencyPanel = [this] { Done.push_back("emergency"); };
    steps.SendIdentification = [this] { Done.push_back("identify"); };
    steps.StartIonoUpdate = [this] { Done.push_back("iono"); };
    steps.FetchMoni1 = [this] { Done.push_back("moni1"); };
    steps.FetchMoniAll = [this] { Done.push_back("moni all"); };
    steps.PollGps = [this] { Done.push_back("gps"); };
    steps.RunReceivePass = [this] {
      Done.push_back("receive");
      if (WhileReceiving) WhileReceiving();
    };
    steps.RunChatPass = [this] { Done.push_back("chat"); };
    steps.SendObjectReport = [this] { Done.push_back("object"); };
    steps.SendBeacon = [this] { Done.push_back("beacon"); };
    return steps;
  }
  void MapRedraw() override {
    Done.push_back("redraw");
    if (WhileRedrawing) WhileRedrawing();
  }
  void MapRefresh() override { Done.push_back("refresh"); }
  bool MainWindowActive() const override { return Active; }
  void Open(const std::string&) override {}
  bool MovePointerOnMap(int, int) override { return false; }

  Names Take() {
    Names taken;
    taken.swap(Done);
    return taken;
  }
  Names Done;
  bool Active = true;
  std::function<void()> Watched;
  std::function<void()> WhileReceiving;
  std::function<void()> WhileRedrawing;
};

class MainCycleTest : public ::testing::Test {
 protected:
  MainCycleTest() {
    cycle.Steps = recorder.Steps();
    state.Identity.MyCall = "QX7KB";
    state.Settings.TitleText = BaseTitle("8.08", "QX7KB");
    state.Radio.RadioMode = static_cast<int>(RadioMode::AgwRemote);
    state.Internet.IonoAutoOn = 0;
    state.Map.MapDrawn = true;
    controls.Moni1.Combo9.Text = state.Followed.Moni1Call;
    controls.Status.Text10.Visible = false;
  }
  Names Tick() {
    cycle.Tick();
    return recorder.Take();
  }
  // Transmission by timer every 10 minutes, last of each long ago.
  void TransmitEveryTenMinutes() {
    state.Transmission.TxIntervalMinutes = 10;
    controls.Transmit.Check6.Value = 1;
    state.Transmission.LastBeaconTime = Now();
    state.Transmission.LastObjectTime = Now();
  }
  std::int64_t Now() const { return SecondsOf(clock.Now()); }

  RuntimeState state;
  MainWindowControls controls;
  VirtualClock clock{{2024, 1, 15, 12, 34, 0}};
  Recorder recorder;
  Timer timer1{6000};
  Timer timer2{3000};
  MainCycle cycle{state, controls, clock, recorder, timer1, timer2, recorder};
};

TEST_F(MainCycleTest, EveryStepComesInItsOrder) {
  state.Radio.RadioMode = static_cast<int>(RadioMode::ScsTnc);
  state.Radio.HfDualOn = 1;
  state.Internet.AprsIsPasscode = "22513";
  state.Internet.IGateConnected = GateLink::Up;
  state.Transmission.LastIdBeaconTime = "12:34";
  state.Alarms.AlarmCall = "N0CALL";
  state.Alarms.AlarmClosedAt = -100;
  state.Map.MapDrawn = false;
  state.Gps.NmeaSource = "3";
  controls.Chat.Check7.Value = 1;
  EXPECT_EQ(Tick(),
            (Names{"aprs-is", "second mode", "emergency", "redraw", "gps", "receive", "chat"}));
  EXPECT_EQ(timer1.IntervalMs(), 12000);
  EXPECT_TRUE(timer1.Enabled());
}

TEST_F(MainCycleTest, QuietTickOnlyReceives) {
  EXPECT_EQ(Tick(), (Names{"receive"}));
  EXPECT_EQ(timer1.IntervalMs(), 6000);
  EXPECT_TRUE(state.Settings.WindowActive);
  EXPECT_EQ(clock.HandOvers, 1);
}

TEST_F(MainCycleTest, TheTimerStandsStillWhileTheMapIsDrawn) {
  timer1.Arm(6000);
  state.Map.MapDrawn = false;
  bool enabled = true;
  recorder.WhileRedrawing = [&] { enabled = timer1.Enabled(); };
  EXPECT_EQ(Tick(), (Names{"redraw", "receive"}));
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(timer1.Enabled());
}

TEST_F(MainCycleTest, NoTickRunsInsideATick) {
  recorder.WhileReceiving = [this] { cycle.Tick(); };
  EXPECT_EQ(Tick(), (Names{"receive"}));
}

TEST_F(MainCycleTest, WithoutRadioNothingIsReceivedNorSent) {
  TransmitEveryTenMinutes();
  state.Transmission.LastBeaconTime = 0;
  state.Radio.RadioMode = static_cast<int>(RadioMode::None);
  EXPECT_EQ(Tick(), Names{});
  EXPECT_EQ(controls.Status.Label15.Caption, " 12:34");
}

TEST_F(MainCycleTest, PasscodeWithoutANumberLeavesTheSocketAlone) {
  state.Radio.RadioMode = static_cast<int>(RadioMode::Pk232);
  state.Internet.IGateOn = Gate::On;
  for (const char* passcode : {"0", "abc", ""}) {
    state.Internet.AprsIsPasscode = passcode;
    EXPECT_EQ(Tick(), (Names{"receive"})) << passcode;
  }
  state.Internet.AprsIsPasscode = "22513";
  EXPECT_EQ(Tick(), (Names{"aprs-is", "receive"}));
  state.Radio.RadioMode = static_cast<int>(RadioMode::AgwRemote);
  EXPECT_EQ(Tick(), (Names{"receive"}));
}

TEST_F(MainCycleTest, TitleTellsOfTheGate) {
  state.Internet.IGateConnected = GateLink::Up;
  state.Internet.IGateOn = Gate::On;
  Tick();
  EXPECT_EQ(state.Settings.TitleText.substr(75, 15), "IGate connected");
  state.Internet.IGateConnected = GateLink::Down;
  Tick();
  EXPECT_EQ(state.Settings.TitleText.substr(75, 15), "IGate          ");
  state.Internet.IGateOn = Gate::Off;
  Tick();
  EXPECT_EQ(state.Settings.TitleText.substr(75, 15), std::string(15, ' '));
  state.Internet.IGateConnected = GateLink::Up;
  Tick();
  EXPECT_EQ(state.Settings.TitleText.substr(75, 15), "      connected");
  EXPECT_EQ(state.Settings.TitleText.size(), 90U);
  EXPECT_EQ(controls.Window.Title.substr(0, 22), "ZEP RIL  V 8.08  QX7KB");
}

TEST_F(MainCycleTest, GatedLinesAgeWhileTheGateIsConnected) {
  for (int at = 0; at < 5; ++at) {
    state.Internet.RecentlyGated[static_cast<std::size_t>(at)].Text =
        std::string(1, static_cast<char>('a' + at));
  }
  Tick();
  EXPECT_EQ(state.Internet.RecentlyGated[0].Text, "a");
  state.Internet.IGateConnected = GateLink::Up;
  Tick();
  EXPECT_EQ(state.Internet.RecentlyGated[0].Text, "b");
  EXPECT_EQ(state.Internet.RecentlyGated[3].Text, "e");
  EXPECT_EQ(state.Internet.RecentlyGated[4].Text, "");
}

TEST_F(MainCycleTest, CompanionIsLookedForInTheLocalEngineModeOnly) {
  bool runs = true;
  recorder.Watched = [&] { state.Radio.DigiOn = runs ? Digipeater::On : Digipeater::Off; };
  Tick();
  EXPECT_EQ(state.Radio.DigiOn, Digipeater::Off);
  state.Radio.RadioMode = static_cast<int>(RadioMode::AgwLocal);
  Tick();
  EXPECT_EQ(state.Radio.DigiOn, Digipeater::On);
  EXPECT_EQ(state.Settings.TitleText.substr(60, 11), "Digi: AGWUI");
  runs = false;
  Tick();
  EXPECT_EQ(state.Radio.DigiOn, Digipeater::Off);
  EXPECT_EQ(state.Settings.TitleText.substr(60, 11), std::string(11, ' '));
}

TEST_F(MainCycleTest, ScanRunsItsHandlerWhenTheTicksAreUsedUp) {
  state.Internet.Moni1ScanOn = 1;
  state.Internet.Moni1ScanTicks = 2;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  EXPECT_EQ(Tick(), (Names{"scan"}));
  EXPECT_EQ(controls.Window.SidePanelWidthPx, 121);
}

TEST_F(MainCycleTest, StatusLineHasModeAndTime) {
  clock.SetNow({2024, 1, 15, 14, 5, 33});
  Tick();
  EXPECT_EQ(controls.Status.Label15.Caption, "300 Bd   14:05");
  state.Gps.ClockSetFromGps = 1;
  Tick();
  EXPECT_EQ(controls.Status.Label15.Caption, "300 B!   14:05");
  state.Radio.RadioMode = static_cast<int>(RadioMode::None);
  Tick();
  EXPECT_EQ(controls.Status.Label15.Caption, " 14:0!");
}

TEST_F(MainCycleTest, TypedCallIsFollowedAndEndsTheTick) {
  controls.Moni1.Combo9.Text = " qx7gw ";
  EXPECT_EQ(Tick(), (Names{"follow"}));
  controls.Moni1.Combo9.Text = " qx7kb ";
  EXPECT_EQ(Tick(), (Names{"receive"}));
  controls.Moni1.Combo9.Text.clear();
  controls.Moni1.Combo9.HasFocus = true;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  controls.Moni1.Combo9.HasFocus = false;
  EXPECT_EQ(Tick(), (Names{"follow"}));
}

TEST_F(MainCycleTest, AHalfTypedCallIsLeftAloneUntilThreeSecondsAfterTheLastKey) {
  ComboBox& field = controls.Moni1.Combo9;
  field.Text = "QX";
  field.HasFocus = true;
  clock.Wait(100.0);
  field.LastKeySeconds = clock.MonotonicSeconds();
  clock.Wait(2.9);
  EXPECT_EQ(Tick(), (Names{"receive"}));
  clock.Wait(0.2);
  EXPECT_EQ(Tick(), (Names{"follow"}));
  // Only while the field has the focus.
  field.LastKeySeconds = clock.MonotonicSeconds();
  field.HasFocus = false;
  EXPECT_EQ(Tick(), (Names{"follow"}));
}

TEST_F(MainCycleTest, RawListShowsItsLastRow) {
  state.Reception.RawLineCount = 17;
  Tick();
  EXPECT_EQ(controls.Raw.RawList.ListIndex, 17);
  EXPECT_EQ(controls.Raw.RawList.TopIndex, 17);
}

TEST_F(MainCycleTest, EmergencyComesBackAfterThirtySeconds) {
  state.Alarms.AlarmCall = "N0CALL";
  state.Alarms.AlarmClosedAt = 0.0;
  clock.Wait(30.0);
  state.Alarms.AlarmClosedAt = clock.MonotonicSeconds() - 29.9;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  state.Alarms.AlarmClosedAt = clock.MonotonicSeconds() - 30.0;
  // So that the hand-over of the tick takes no time.
  clock.Schedule(0.0, [] {});
  EXPECT_EQ(Tick(), (Names{"receive"}));
  state.Alarms.AlarmClosedAt = clock.MonotonicSeconds() - 30.1;
  EXPECT_EQ(Tick(), (Names{"emergency", "receive"}));
  state.Alarms.AlarmCall.clear();
  EXPECT_EQ(Tick(), (Names{"receive"}));
}

TEST_F(MainCycleTest, InternetSupportEndsAfterAQuarterOfAnHourAndAtMidnight) {
  controls.Moni1.Check22.Value = 1;
  controls.MoniAll.Check23.Value = 1;
  controls.Chat.Check7.Value = 1;
  state.Internet.LastMoni1InternetMinute = 1234;
  state.Internet.LastMoniAllInternetMinute = 1234;
  state.Internet.InetSwitchTime = clock.SecondsSinceMidnight() - 899.0;
  Tick();
  EXPECT_EQ(controls.Moni1.Check22.Value, 1);
  state.Internet.InetSwitchTime = clock.SecondsSinceMidnight() - 901.0;
  Tick();
  EXPECT_EQ(controls.Moni1.Check22.Value, 0);
  EXPECT_EQ(controls.MoniAll.Check23.Value, 0);
  EXPECT_EQ(controls.Chat.Check7.Value, 1);
  state.Radio.RadioMode = static_cast<int>(RadioMode::None);
  Tick();
  EXPECT_EQ(controls.Chat.Check7.Value, 0);
  // Switched on just before midnight it goes off just after.
  state.Internet.InetSwitchTime = 86390.0;
  controls.MoniAll.Check23.Value = 1;
  clock.SetNow({2024, 1, 16, 0, 0, 2});
  Tick();
  EXPECT_EQ(controls.MoniAll.Check23.Value, 0);
}

TEST_F(MainCycleTest, IdentificationFallsOnTheMinutesOfTheCall) {
  state.Radio.RadioMode = static_cast<int>(RadioMode::Pk232);
  state.Radio.DigiOn = Digipeater::On;
  const auto minutes_of = [&](const std::string& call) {
    state.Identity.MyCall = call;
    std::vector<int> minutes;
    for (int minute = 0; minute < 60; ++minute) {
      clock.SetNow({2024, 1, 15, 9, minute, 10});
      const Names done = Tick();
      if (done == Names{"identify"}) minutes.push_back(minute);
    }
    return minutes;
  };
  EXPECT_EQ(minutes_of("QX7KB"), (std::vector<int>{7, 27, 47}));
  EXPECT_EQ(minutes_of("AB1CD"), (std::vector<int>{1, 21, 41}));
  EXPECT_EQ(minutes_of("DLXYZ"), (std::vector<int>{0, 20, 40}));
  EXPECT_EQ(minutes_of("AB5CD"), (std::vector<int>{5, 25, 45}));
  EXPECT_EQ(minutes_of("AB9CD"), (std::vector<int>{9, 29, 49}));
  // The gate alone has something to tell too; neither of them has not.
  state.Radio.DigiOn = Digipeater::Off;
  EXPECT_EQ(minutes_of("QX7KB"), std::vector<int>{});
  state.Internet.IGateConnected = GateLink::Up;
  EXPECT_EQ(minutes_of("QX7KB"), (std::vector<int>{7, 27, 47}));
}

TEST_F(MainCycleTest, IdentificationIsSentOnceAMinuteAndNeverOverTheRemoteEngine) {
  clock.SetNow({2024, 1, 15, 9, 7, 10});
  state.Radio.DigiOn = Digipeater::On;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  state.Radio.RadioMode = static_cast<int>(RadioMode::ScsPtc);
  EXPECT_EQ(Tick(), (Names{"identify"}));
  EXPECT_EQ(Tick(), (Names{"receive"}));
}

TEST_F(MainCycleTest, IonosphereIsUpdatedHourly) {
  state.Internet.IonoAutoOn = 1;
  state.Internet.LastIonoTimer = clock.SecondsSinceMidnight() - 3599.9;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  state.Internet.LastIonoTimer = clock.SecondsSinceMidnight() - 3600.5;
  EXPECT_EQ(Tick(), (Names{"iono"}));
  EXPECT_EQ(controls.Status.IonoLabel.Caption, "UPDATING...");
  EXPECT_EQ(Tick(), (Names{"receive"}));
}

TEST_F(MainCycleTest, IonosphereIsUpdatedBehindTheHourAndNotOnIt) {
  state.Internet.IonoAutoOn = 1;
  state.Internet.LastIonoTimer = clock.SecondsSinceMidnight() - 3600.0;
  // So that the hand-over of the tick takes no time.
  clock.Schedule(0.0, [] {});
  EXPECT_EQ(Tick(), (Names{"receive"}));
  state.Internet.LastIonoTimer = clock.SecondsSinceMidnight() - 3600.1;
  EXPECT_EQ(Tick(), (Names{"iono"}));
}

TEST_F(MainCycleTest, IonosphereIsUpdatedEarlyWhenTheDayChanges) {
  state.Internet.IonoAutoOn = 1;
  clock.SetNow({2024, 1, 15, 0, 0, 10});
  state.Internet.LastIonoTimer = 86390.0;
  EXPECT_EQ(Tick(), (Names{"iono"}));
  EXPECT_EQ(state.Internet.LastIonoTimer, clock.SecondsSinceMidnight());
}

TEST_F(MainCycleTest, Moni1IsCollectedEachMinuteAndEverySecondOneBesideMoniAll) {
  controls.Moni1.Check22.Value = 1;
  state.Internet.InetSwitchTime = clock.SecondsSinceMidnight();
  state.Internet.LastMoni1InternetMinute = 1234;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  state.Internet.LastMoni1InternetMinute = 1233;
  EXPECT_EQ(Tick(), (Names{"moni1"}));
  EXPECT_FALSE(timer1.Enabled());
  EXPECT_EQ(controls.Status.Text10.Caption, "COLLECTING INTERNET DATA (MONI 1) ...");
  EXPECT_EQ(controls.Status.Text10.BackColour, 0x00C000U);
  EXPECT_EQ(controls.Map.Picture1.Pointer, PointerShape::Hourglass);
  controls.MoniAll.Check23.Value = 1;
  state.Internet.LastMoniAllInternetMinute = 1200;
  clock.SetNow({2024, 1, 15, 12, 1, 0});
  state.Internet.InetSwitchTime = clock.SecondsSinceMidnight();
  state.Internet.LastMoni1InternetMinute = 1200;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  clock.SetNow({2024, 1, 15, 12, 2, 0});
  EXPECT_EQ(Tick(), (Names{"moni1"}));
}

TEST_F(MainCycleTest, ScanCollectsInEveryTick) {
  controls.Moni1.Check22.Value = 1;
  state.Internet.InetSwitchTime = clock.SecondsSinceMidnight();
  state.Internet.LastMoni1InternetMinute = 1234;
  state.Internet.Moni1ScanOn = 1;
  state.Internet.Moni1ScanTicks = 5;
  EXPECT_EQ(Tick(), (Names{"moni1"}));
}

TEST_F(MainCycleTest, MoniAllIsCollectedByQuartersOfTheClockNumber) {
  controls.MoniAll.Check23.Value = 1;
  clock.SetNow({2024, 1, 15, 13, 0, 0});
  state.Internet.InetSwitchTime = clock.SecondsSinceMidnight();
  state.Internet.LastMoniAllInternetMinute = 1258;
  EXPECT_EQ(Tick(), (Names{"moni all"}));
  EXPECT_EQ(controls.Status.Text10.Caption, "COLLECTING INTERNET DATA (MONI ALL) ...");
  EXPECT_EQ(controls.Status.Text10.BackColour, 0xFF80E0U);
  state.Internet.LastMoniAllInternetMinute = 1300;
  clock.SetNow({2024, 1, 15, 13, 3, 0});
  EXPECT_EQ(Tick(), (Names{"receive"}));
}

TEST_F(MainCycleTest, ChatPassComesEveryFifthTickOrAtOnce) {
  controls.Chat.Check7.Value = 1;
  std::vector<int> due;
  for (int tick = 0; tick < 11; ++tick) {
    if (Tick() == Names{"receive", "chat"}) due.push_back(tick);
  }
  EXPECT_EQ(due, (std::vector<int>{0, 5, 10}));
  state.Chat.ChatTxText = ":N0CALL   :Hello{01";
  EXPECT_EQ(Tick(), (Names{"receive", "chat"}));
}

TEST_F(MainCycleTest, ChatPassKeepsBeaconAndObjectBack) {
  TransmitEveryTenMinutes();
  state.Transmission.LastBeaconTime = 0;
  controls.Chat.Check7.Value = 1;
  EXPECT_EQ(Tick(), (Names{"receive", "chat"}));
  EXPECT_EQ(timer1.IntervalMs(), 12000);
  EXPECT_EQ(Tick(), (Names{"receive", "beacon"}));
}

TEST_F(MainCycleTest, BeaconIsDueAfterMoreThanItsInterval) {
  TransmitEveryTenMinutes();
  state.Transmission.LastBeaconTime = Now() - 600;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  state.Transmission.LastBeaconTime = Now() - 601;
  EXPECT_EQ(Tick(), (Names{"receive", "beacon"}));
  EXPECT_EQ(state.Transmission.LastBeaconTime, Now());
  state.Transmission.LastBeaconTime = 0;
  controls.Transmit.Check6.Value = 0;
  EXPECT_EQ(Tick(), (Names{"receive"}));
}

TEST_F(MainCycleTest, ObjectHasHalfTheRateAndGoesBeforeTheBeacon) {
  TransmitEveryTenMinutes();
  controls.Transmit.Check18.Value = 1;
  state.Transmission.ObjectTxOn = 1;
  state.Transmission.LastObjectTime = Now() - 1200;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  state.Transmission.LastObjectTime = Now() - 1201;
  state.Transmission.LastBeaconTime = 0;
  EXPECT_EQ(Tick(), (Names{"receive", "object"}));
  EXPECT_EQ(state.Transmission.LastObjectTime, Now());
  EXPECT_EQ(Tick(), (Names{"receive", "beacon"}));
}

TEST_F(MainCycleTest, AnObjectThatIsNotArmedIsNotSent) {
  TransmitEveryTenMinutes();
  controls.Transmit.Check18.Value = 1;
  state.Transmission.LastObjectTime = 7;
  EXPECT_EQ(Tick(), (Names{"receive"}));
  EXPECT_EQ(state.Transmission.LastObjectTime, 7);
}

TEST_F(MainCycleTest, GpsIsPolledByWhatItsSourceReads) {
  for (const char* polled : {"3", "3 SAVE", "C:\\GPS.TXT"}) {
    state.Gps.NmeaSource = polled;
    EXPECT_EQ(Tick(), (Names{"gps", "receive"})) << polled;
  }
  for (const char* idle : {"", "0", "ABC", "GPSSAVE.TXT", "gpssave.txt"}) {
    state.Gps.NmeaSource = idle;
    EXPECT_EQ(Tick(), (Names{"receive"})) << idle;
  }
}

TEST_F(MainCycleTest, TheSecondTimerBringsTheFirstBackAndWatchesTheBanner) {
  timer2.Arm(3000);
  controls.Moni1.Check22.Value = 1;
  cycle.Timer2Elapsed();
  EXPECT_TRUE(timer1.Enabled());
  EXPECT_FALSE(timer2.Enabled());
  EXPECT_EQ(controls.Moni1.Check22.Value, 1);
  controls.Status.Text10.Visible = true;
  controls.Window.Pointer = PointerShape::Hourglass;
  cycle.Timer2Elapsed();
  EXPECT_EQ(controls.Moni1.Check22.Value, 0);
  EXPECT_FALSE(controls.Status.Text10.Visible);
  EXPECT_EQ(controls.Window.Pointer, PointerShape::Default);
}

TEST_F(MainCycleTest, ChatLogPanelClosesWithATick) {
  controls.Chat.Frame7.Visible = true;
  Tick();
  EXPECT_FALSE(controls.Chat.Frame7.Visible);
}

}  // namespace
}  // namespace zepril
