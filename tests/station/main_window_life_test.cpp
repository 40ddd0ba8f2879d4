// The orders of start and stop, and what each step does to state and controls.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "station/main_window_start.h"
#include "station/main_window_stop.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

using Names = std::vector<std::string>;

class StartRecorder final {
 public:
  StartSteps Steps() {
    StartSteps steps;
    steps.ReadConfig = [this] {
      Done.push_back("config");
      if (OnReadConfig) OnReadConfig();
    };
    steps.SetOwnNames = [this] { Done.push_back("names"); };
    steps.LayOutPanels = [this] { Done.push_back("panels"); };
    steps.ScanMapLibrary = [this] { Done.push_back("maps"); };
    steps.LoadHistory = [this] {
      Done.push_back("history");
      if (OnLoadHistory) OnLoadHistory();
    };
    steps.OpenLink = [this] {
      Done.push_back("link");
      return LinkOpens;
    };
    steps.OpenGpsPort = [this] { Done.push_back("gps"); };
    steps.RestoreTracksPlacesAndChat = [this] { Done.push_back("restore"); };
    steps.ShowTitleMarkers = [this] { Done.push_back("title"); };
    steps.StartIonoUpdate = [this] { Done.push_back("iono"); };
    steps.SetLabels = [this] { Done.push_back("labels"); };
    steps.ShowAndDrawMap = [this] { Done.push_back("draw"); };
    steps.RunTerminalHandler = [this] { Done.push_back("terminal"); };
    return steps;
  }

  Names Done;
  bool LinkOpens = true;
  std::function<void()> OnReadConfig;
  std::function<void()> OnLoadHistory;
};

class StartTest : public ::testing::Test {
 protected:
  bool Start() {
    recorder.OnReadConfig = [this] {
      state.Radio.RadioMode = mode;
      state.Identity.MyCall = call;
      if (WithConfig) WithConfig();
    };
    const StartSteps steps = recorder.Steps();
    return MainWindowStart(state, controls, clock, timer1, steps).Run("C:\\ZEPRIL", 32);
  }

  RuntimeState state;
  MainWindowControls controls;
  VirtualClock clock;
  Timer timer1{6000};
  StartRecorder recorder;
  int mode = 3;
  std::string call = "QX7KB";
  std::function<void()> WithConfig;
};

TEST_F(StartTest, RunsItsStepsInOrder) {
  EXPECT_TRUE(Start());
  EXPECT_EQ(recorder.Done, (Names{"config", "names", "panels", "maps", "history", "link", "gps",
                                  "restore", "title", "iono", "labels", "draw", "terminal"}));
  EXPECT_TRUE(timer1.Enabled());
  EXPECT_EQ(timer1.IntervalMs(), 6000);
  EXPECT_EQ(state.Reception.RxBuffer, "\n");
  EXPECT_EQ(state.Internet.LastMoni1InternetMinute, -5000);
  EXPECT_EQ(state.Internet.LastMoniAllInternetMinute, 0);
}

TEST_F(StartTest, WithoutARadioNothingIsTransmitted) {
  for (const int with_radio : {0, 1, 3, 5, 6}) {
    mode = with_radio;
    Start();
    EXPECT_TRUE(controls.Transmit.Check6.Visible) << with_radio;
    EXPECT_TRUE(controls.Chat.Check16.Enabled) << with_radio;
  }
  mode = 4;
  Start();
  EXPECT_FALSE(controls.Transmit.Check6.Visible);
  EXPECT_FALSE(controls.Chat.Check16.Enabled);
}

TEST_F(StartTest, AFailedLinkEndsTheStart) {
  recorder.LinkOpens = false;
  EXPECT_FALSE(Start());
  EXPECT_EQ(recorder.Done.back(), "link");
  EXPECT_FALSE(timer1.Enabled());
}

TEST_F(StartTest, StoreLimitsFollowTheSpeedOfTheComputer) {
  clock.Loops = 229500;
  Start();
  EXPECT_EQ(state.Stores.MoniAllRecords.Limit, 51);
  EXPECT_EQ(state.Stores.Moni1Records.Limit, 255);
}

TEST_F(StartTest, ADigitInTheThirdPlaceAllowsMessages) {
  EXPECT_EQ(TxAllowedOf("QX7KB"), 1);
  EXPECT_EQ(TxAllowedOf("DL1ABC"), 1);
  EXPECT_EQ(TxAllowedOf("2E0ABC"), 1);
  EXPECT_EQ(TxAllowedOf("G4ABC"), 0);
  EXPECT_EQ(TxAllowedOf("K1ABC"), 0);
  EXPECT_EQ(TxAllowedOf("DLXYZ"), 0);
  EXPECT_EQ(TxAllowedOf(""), 0);
  call = "G4ABC";
  state.Internet.AprsIsPasscode = "123";
  state.Internet.IGateOn = Gate::On;
  Start();
  EXPECT_EQ(controls.Chat.Check8.Value, 1);
  EXPECT_FALSE(controls.Chat.Check8.Enabled);
  EXPECT_FALSE(controls.Chat.Check16.Visible);
  EXPECT_FALSE(controls.Chat.Text2.Visible);
  EXPECT_FALSE(controls.Chat.Text3.Visible);
  EXPECT_EQ(controls.Gate.Check15.Value, 0);
  EXPECT_FALSE(controls.Gate.Check15.Enabled);
  EXPECT_TRUE(controls.Transmit.Check6.Visible);
}

TEST_F(StartTest, SwitchesShowWhatIsHeldAndHfDualFollowsItsBox) {
  controls.Map.Option1.Value = true;
  controls.Transmit.Check2.Value = 1;
  state.Chat.AutoAnswerOn = 1;
  Start();
  EXPECT_FALSE(controls.Map.Option1.Value);
  EXPECT_EQ(state.Radio.HfDualOn, 1);
  EXPECT_EQ(controls.Chat.Check16.Value, 1);
}

TEST_F(StartTest, WithoutAPasscodeThereIsNoGateSwitch) {
  state.Internet.IGateOn = Gate::On;
  state.Internet.AprsIsPasscode = "0";
  Start();
  EXPECT_EQ(state.Internet.IGateOn, Gate::Off);
  EXPECT_FALSE(controls.Gate.Check15.Visible);
}

TEST_F(StartTest, APicturePlaceInBothCoordinatesOpensTheMapThere) {
  WithConfig = [this] {
    state.Map.CentreNorthKm = 6200.499;
    state.Map.CentreEastKm = 400.499;
    state.Map.StoredNorthText = "6200.499";
    state.Map.StoredEastText = "400.499";
  };
  recorder.OnLoadHistory = [this] {
    state.Stores.Moni1Records.Append(StationRecord("240115 1234"));
  };
  Start();
  EXPECT_EQ(state.Map.CentreFollow, Following::Nobody);
  EXPECT_FALSE(controls.Map.Option2.Value);
  EXPECT_EQ(state.Map.CentreNorthKm, 6200.499);
  WithConfig = [this] {
    state.Map.StoredNorthText = "6200.499";
    state.Map.StoredEastText = "400.5";
  };
  Start();
  EXPECT_EQ(state.Map.CentreFollow, Following::Station);
  EXPECT_TRUE(controls.Map.Option2.Value);
  // The text decides, not the number.
  WithConfig = [this] {
    state.Map.StoredNorthText = "6200.4990";
    state.Map.StoredEastText = "400.499";
  };
  Start();
  EXPECT_EQ(state.Map.CentreFollow, Following::Station);
}

TEST_F(StartTest, WithoutAHistoryTheMapIsFreeAndHasADefaultCentre) {
  Start();
  EXPECT_EQ(state.Map.CentreFollow, Following::Nobody);
  EXPECT_EQ(state.Map.CentreNorthKm, 6600.0);
  EXPECT_EQ(state.Map.CentreEastKm, 400.0);
}

TEST_F(StartTest, PositionPanelComesWhenNothingIsKnown) {
  controls.Qth.Frame2.Visible = false;
  Start();
  EXPECT_TRUE(controls.Qth.Frame2.Visible);
  controls.Qth.Frame2.Visible = false;
  WithConfig = [this] { state.Map.OwnNorthKm = 5800; };
  Start();
  EXPECT_FALSE(controls.Qth.Frame2.Visible);
}

TEST_F(StartTest, IonosphereUpdateRunsOnlyWhenArmed) {
  WithConfig = [this] { state.Internet.IonoAutoOn = 0; };
  Start();
  EXPECT_EQ(std::count(recorder.Done.begin(), recorder.Done.end(), "iono"), 0);
}

TEST_F(StartTest, AlarmDistanceIsAtLeastOne) {
  WithConfig = [this] { state.Alarms.AlarmDistanceKm = 0; };
  Start();
  EXPECT_EQ(state.Alarms.AlarmDistanceKm, 1);
}

class StopRecorder final {
 public:
  StopSteps Steps() {
    StopSteps steps;
    steps.CloseSound = [this] { Done.push_back("sound"); };
    steps.StopPageLoading = [this] { Done.push_back("page"); };
    steps.StopPicturePanel = [this] { Done.push_back("picture"); };
    steps.LeaveLink = [this] { Done.push_back("link"); };
    steps.ClosePorts = [this] { Done.push_back("ports"); };
    steps.WriteNavigationFiles = [this] { Done.push_back("navigation"); };
    steps.MergeConfigAtExit = [this] { Done.push_back("merge"); };
    steps.DeleteRunFiles = [this] { Done.push_back("delete"); };
    return steps;
  }

  Names Done;
};

class StopTest : public ::testing::Test {
 protected:
  Names Stop(bool by_operator) {
    StopRecorder recorder;
    timer1.Arm(6000);
    timer2.Arm(3000);
    const StopSteps steps = recorder.Steps();
    MainWindowStop(controls, timer1, timer2, steps).Run(by_operator);
    EXPECT_FALSE(timer1.Enabled());
    EXPECT_FALSE(timer2.Enabled());
    return recorder.Done;
  }
  StopTest() { controls.Picture.Frame8.Visible = false; }
  MainWindowControls controls;
  Timer timer1{6000};
  Timer timer2{3000};
};

TEST_F(StopTest, RunsItsStepsInOrder) {
  EXPECT_EQ(Stop(true),
            (Names{"sound", "sound", "link", "ports", "navigation", "merge", "delete"}));
}

TEST_F(StopTest, SettingsAreMergedOnACloseByTheOperatorOnly) {
  EXPECT_EQ(Stop(false), (Names{"sound", "sound", "link", "ports", "navigation", "delete"}));
}

TEST_F(StopTest, LoadingPagesAreStopped) {
  controls.Moni1.Check22.Value = 1;
  controls.Picture.Frame8.Visible = true;
  EXPECT_EQ(Stop(true), (Names{"sound", "page", "picture", "sound", "link", "ports", "navigation",
                               "merge", "delete"}));
}

}  // namespace
}  // namespace zepril
