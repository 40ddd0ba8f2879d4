// TX SETUP: what it shows, what OK takes, and what each modem is then sent.
#include "transmit/tx_setup.h"

#include "tests/transmit/transmit_world.h"

namespace zepril {
namespace {

struct ListedActions {
  explicit ListedActions(const RadioState& radio) {
    Joins.RefreshStatusLine = [&] { Calls.emplace_back("status " + radio.BaudModeLabel); };
    Joins.ShowTitleMarkers = [&] { Calls.emplace_back("title"); };
    Joins.SetLabels = [&] { Calls.emplace_back("labels"); };
  }
  TxSetupJoins Joins;
  std::vector<std::string> Calls;
};

class TxSetupTest : public ::testing::Test {
 protected:
  TxSetupTest() {
    world.Actions.OnSave = [this] { actions.Calls.emplace_back("save"); };
    world.Engine.OnStart = [this](const std::string& call) {
      EXPECT_EQ(call, world.State.Identity.MyCallFull);
      actions.Calls.emplace_back("engine");
    };
  }
  TxSetupControls& Panel() { return world.Controls.TxSetup; }
  TransmitControls& Transmit() { return world.Controls.Transmit; }
  GateControls& Gate() { return world.Controls.Gate; }
  void Use(RadioMode mode) { world.State.Radio.RadioMode = static_cast<int>(mode); }
  void Open() { Transmit().Check6.RightClick(); }
  void Ok() { Panel().TxOk.Click(); }
  // Chooses one of the speeds as a click on its option does.
  void Choose(std::size_t speed) {
    for (OptionButton& option : Panel().Speeds)
      option.Value = false;
    Panel().Speeds[speed].Value = true;
    Panel().Speeds[speed].Click();
  }

  TransmitWorld world;
  SymbolPreview preview{world.Cell, world.Controls.TxSetup.SymbolPicture, world.Sheets,
                        world.Symbols};
  ListedActions actions{world.State.Radio};
  TxSetup setup{{world.State.Identity, world.State.Radio, world.State.Transmission,
                 world.State.Internet, world.State.Reception},
                world.Controls.TxSetup,
                world.Controls.Transmit,
                world.Controls.Gate,
                {actions.Joins, world.Actions, world.Switches, world.Links, world.LongWork,
                 world.Symbols, preview, world.Timer1, world.Timer2}};
};

// ---- Opening --------------------------------------------------------------------------------

TEST_F(TxSetupTest, ItOpensWithTheStateAndTheTimersStopped) {
  world.Timer1.Arm(6000);
  world.Timer2.Arm(3000);
  world.State.Transmission.InfoLineMemory[2] = "145.500 MHz";
  world.State.Transmission.TxPathMemory[1] = "WIDE2-2";
  Open();
  EXPECT_TRUE(Panel().Frame4.Visible);
  EXPECT_FALSE(world.Timer1.Enabled());
  EXPECT_FALSE(world.Timer2.Enabled());
  EXPECT_EQ(Panel().TxSsid.Text, "10");
  EXPECT_EQ(Panel().TxDestinationField.Text, "ZEPR");
  EXPECT_EQ(Panel().TxPathField.Text, "WIDE1-1");
  EXPECT_EQ(Panel().TxInterval.Text, "10");
  EXPECT_EQ(Panel().InfoField[0].Text, "Test");
  EXPECT_EQ(Panel().fr4ta[0].Value, 1);
  EXPECT_EQ(Panel().fr4ta[1].Value, 0);
  EXPECT_EQ(Panel().InfoMemory[2].ToolTip, "145.500 MHz");
  EXPECT_EQ(Panel().PathMemory[1].ToolTip, "WIDE2-2");
  EXPECT_TRUE(Panel().Speeds[1].Value);  // 300
}

TEST_F(TxSetupTest, EveryFieldShowsWhatHolds) {
  Use(RadioMode::ScsTnc);
  TransmissionState& own = world.State.Transmission;
  world.State.Radio.BaudMode = "300R";
  world.State.Radio.CrossMode = "300";
  world.State.Radio.HfDualOn = 1;
  world.State.Radio.DigiOn = Digipeater::On;
  world.State.Radio.TxAudioLevel = 450;
  world.State.Internet.IGateOn = Gate::On;
  own.TxTimestamp = 1;
  own.TxSymbolIndex = 103;  // "\\#" takes an overlay
  own.TxOverlay = "S";
  own.TxIntervalMinutes = 0;
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line) {
    own.InfoLine[line] = "line " + std::to_string(line);
    own.InfoLineActive[line] = static_cast<int>(line % 2);
    own.InfoLineMemory[line] = "memory " + std::to_string(line);
  }
  for (std::size_t at = 0; at < TxSetupControls::kPaths; ++at)
    own.TxPathMemory[at] = "PATH" + std::to_string(at);
  Open();
  EXPECT_TRUE(Panel().Speeds[0].Value);
  EXPECT_EQ(Panel().CrossField.Caption, "300");
  EXPECT_EQ(Transmit().Check2.Value, 1);
  EXPECT_EQ(Panel().DigiBox.Value, 1);
  EXPECT_EQ(Panel().TxLevel.Text, "450");
  EXPECT_EQ(Gate().Check15.Value, 1);
  EXPECT_EQ(Panel().TxTimestampBox.Value, 1);
  EXPECT_EQ(Panel().SymbolName.Caption, world.Symbols.Name(103));
  EXPECT_EQ(Panel().TxOverlayField.Text, "S");
  EXPECT_EQ(world.Cell.Operations.back().Words, "S");
  EXPECT_EQ(Panel().TxInterval.Text, "MANUAL");
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line) {
    EXPECT_EQ(Panel().InfoField[line].Text, own.InfoLine[line]);
    EXPECT_EQ(Panel().fr4ta[line].Value, own.InfoLineActive[line]);
    EXPECT_EQ(Panel().InfoMemory[line].ToolTip, own.InfoLineMemory[line]);
  }
  for (std::size_t at = 0; at < TxSetupControls::kPaths; ++at)
    EXPECT_EQ(Panel().PathMemory[at].ToolTip, own.TxPathMemory[at]);
  // Confirmed as it stands it changes none of it.
  const TransmissionState before = own;
  Ok();
  EXPECT_EQ(own.InfoLine, before.InfoLine);
  EXPECT_EQ(own.InfoLineActive, before.InfoLineActive);
  EXPECT_EQ(own.InfoLineMemory, before.InfoLineMemory);
  EXPECT_EQ(own.TxPathMemory, before.TxPathMemory);
  EXPECT_EQ(own.TxSymbolIndex, 103);
  EXPECT_EQ(own.TxOverlay, "S");
  EXPECT_EQ(own.TxTimestamp, 1);
  EXPECT_EQ(world.State.Radio.BaudMode, "300R");
  EXPECT_EQ(world.State.Radio.BaudModeLabel, "RPR 300");
  EXPECT_EQ(world.State.Radio.CrossMode, "300");
  EXPECT_EQ(world.State.Radio.HfDualOn, 1);
  EXPECT_EQ(world.State.Radio.DigiOn, Digipeater::On);
  EXPECT_EQ(world.State.Radio.TxAudioLevel, 450);
  EXPECT_EQ(world.State.Internet.IGateOn, Gate::On);
}

TEST_F(TxSetupTest, AnIntervalThatCanNotBeIsShownAsManual) {
  world.State.Transmission.TxIntervalMinutes = 90;
  Open();
  EXPECT_EQ(Panel().TxInterval.Text, "MANUAL");
}

TEST_F(TxSetupTest, ASecondRightClickLeavesWhatWasTyped) {
  Open();
  Panel().InfoField[0].Text = "typed";
  Open();
  EXPECT_EQ(Panel().InfoField[0].Text, "typed");
}

TEST_F(TxSetupTest, WithTheSwitchDisabledItStaysClosed) {
  Transmit().Check6.Enabled = false;
  world.Timer1.Arm(6000);
  Open();
  EXPECT_FALSE(Panel().Frame4.Visible);
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(TxSetupTest, WhatIsOfferedDependsOnTheInterface) {
  const struct {
    RadioMode Mode;
    bool Level;
    bool Second;
    bool Digi;
  } rows[] = {{RadioMode::AgwLocal, false, false, true},   {RadioMode::Pk232, false, false, true},
              {RadioMode::AgwRemote, false, false, false}, {RadioMode::None, false, false, false},
              {RadioMode::ScsTnc, true, true, true},       {RadioMode::ScsPtc, true, false, true}};
  for (const auto& row : rows) {
    Use(row.Mode);
    Open();
    EXPECT_EQ(Panel().TxLevel.Visible, row.Level) << static_cast<int>(row.Mode);
    EXPECT_EQ(Panel().TxLevelLabel.Visible, row.Level);
    // Only the PTC is not told a new call by OK.
    EXPECT_EQ(Panel().CallNotice.Visible, row.Mode == RadioMode::ScsPtc);
    EXPECT_EQ(Panel().CallNotice.Caption, "the call follows at the next START");
    EXPECT_EQ(Panel().CrossField.Visible, row.Second);
    EXPECT_EQ(Panel().CrossUp.Visible, row.Second);
    EXPECT_EQ(Panel().CrossDown.Visible, row.Second);
    // Only the SCS modems know more than 300 and 1200 Bd.
    for (const std::size_t speed : {0, 3, 4})
      EXPECT_EQ(Panel().Speeds[speed].Visible, row.Level);
    EXPECT_TRUE(Panel().Speeds[1].Visible && Panel().Speeds[2].Visible);
    EXPECT_EQ(Transmit().Check2.Visible, row.Second);
    EXPECT_EQ(Panel().DigiBox.Visible, row.Digi);
    Panel().TxAbort.Click();
  }
  Use(RadioMode::ScsTnc);
  Open();
  EXPECT_EQ(Panel().TxLevelLabel.Caption, " SCS TNC: AFSK TX LEVEL ( 30 mV - 3000 mV )");
  Panel().TxAbort.Click();
  Use(RadioMode::ScsPtc);
  Open();
  EXPECT_EQ(Panel().TxLevelLabel.Caption, " SCS PTC: AFSK TX LEVEL ( 30 mV - 3000 mV )");
}

TEST_F(TxSetupTest, AbortChangesNothing) {
  Open();
  Panel().TxSsid.Text = "7";
  Panel().InfoField[0].Text = "other";
  Panel().PathMemory[0].RightClick();
  Transmit().Check2.Value = 1;
  Transmit().Check2.Click();
  Gate().Check15.Value = 1;
  Panel().TxAbort.Click();
  EXPECT_FALSE(Panel().Frame4.Visible);
  EXPECT_EQ(world.State.Identity.MySsid, "10");
  EXPECT_EQ(world.State.Transmission.InfoLine[0], "Test");
  EXPECT_EQ(world.State.Transmission.TxPathMemory[0], "");
  EXPECT_EQ(world.State.Radio.HfDualOn, 0);
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_TRUE(actions.Calls.empty());
  // Boxes that others read too show again what holds.
  EXPECT_EQ(Transmit().Check2.Value, 0);
  EXPECT_EQ(Gate().Check15.Value, 0);
  // And so does the panel when it is opened anew.
  Open();
  EXPECT_EQ(Panel().TxSsid.Text, "10");
  EXPECT_EQ(Panel().InfoField[0].Text, "Test");
  EXPECT_EQ(Panel().PathMemory[0].ToolTip, "");
}

// ---- OK -------------------------------------------------------------------------------------

TEST_F(TxSetupTest, OkTakesEverythingInItsOrder) {
  Open();
  Panel().TxSsid.Text = " 7 ";
  Panel().TxDestinationField.Text = " apzzz ";
  Panel().TxPathField.Text = " wide2-2 ";
  Panel().TxInterval.Text = "15";
  Panel().InfoField[1].Text = " more ";
  Panel().fr4ta[1].Value = 1;
  Panel().InfoMemory[0].ToolTip = "kept";
  Panel().TxOverlayField.Text = "ab";
  Panel().TxTimestampBox.Value = 1;
  Panel().SymbolUp.Click();
  Choose(2);  // 1200
  Panel().DigiBox.Value = 1;
  Gate().Check15.Value = 1;
  world.State.Identity.MyCall = " QX7KB ";
  world.State.Transmission.LastBeaconTime = 99;
  Ok();
  const TransmissionState& own = world.State.Transmission;
  EXPECT_EQ(world.State.Identity.MySsid, "7");
  EXPECT_EQ(world.State.Identity.MyCall, "QX7KB");
  EXPECT_EQ(world.State.Identity.MyCallFull, "QX7KB-7");
  EXPECT_EQ(world.State.Radio.BaudMode, "1200");
  EXPECT_EQ(world.State.Radio.DigiOn, Digipeater::On);
  EXPECT_EQ(world.State.Internet.IGateOn, Gate::On);
  EXPECT_EQ(own.TxDestination, "APZZZ");
  EXPECT_EQ(own.TxPath, "WIDE2-2");
  EXPECT_EQ(own.TxIntervalMinutes, 15);
  EXPECT_EQ(own.InfoLine[1], "more");
  EXPECT_EQ(own.InfoLineActive[1], 1);
  EXPECT_EQ(own.InfoLineMemory[0], "kept");
  EXPECT_EQ(own.TxOverlay, "B");
  EXPECT_EQ(own.TxTimestamp, 1);
  EXPECT_EQ(own.TxSymbolIndex, 31);
  EXPECT_EQ(own.LastBeaconTime, 0);
  EXPECT_EQ(world.State.Reception.OwnHeaderPattern, "QX7KB-7*>WIDE2-2>APZZZ");
  EXPECT_EQ(Transmit().Check6.Caption, "TX 15");
  EXPECT_EQ(actions.Calls,
            (std::vector<std::string>{"status 1200 Bd", "engine", "title", "save", "labels"}));
  EXPECT_FALSE(Panel().Frame4.Visible);
  EXPECT_EQ(Panel().TxOk.Caption, "OK");
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(TxSetupTest, AnySsidIsUsedAndAnEmptyDestinationIsFilled) {
  Open();
  Panel().TxSsid.Text = "AB";
  Panel().TxDestinationField.Text = " ";
  Panel().TxInterval.Text = "MANUAL";
  Ok();
  EXPECT_EQ(world.State.Identity.MyCallFull, "QX7KB-AB");
  EXPECT_EQ(world.State.Transmission.TxDestination, "ZEPR");
  EXPECT_EQ(world.State.Transmission.TxIntervalMinutes, 0);
  EXPECT_EQ(Transmit().Check6.Caption, "TX !");
}

TEST_F(TxSetupTest, TheButtonReadsDotsWhileTheModemIsProgrammed) {
  Use(RadioMode::Pk232);
  world.Port.Open("2", 1200);
  std::string caption;
  bool may_press = true;
  world.Clock.OnWait = [&](double, bool) {
    caption = Panel().TxOk.Caption;
    may_press = Panel().TxOk.Enabled || Panel().TxAbort.Enabled;
  };
  Open();
  Ok();
  EXPECT_EQ(caption, "...");
  // Events come in between; none may confirm a second time.
  EXPECT_FALSE(may_press);
  EXPECT_TRUE(Panel().TxOk.Enabled && Panel().TxAbort.Enabled);
  EXPECT_EQ(world.Port.Written,
            "\x03MYCALL QX7KB-10\rUNPROTO ZEPR VIA WIDE1-1\rDIGIPEAT OFF\rDFROM NONE\r"
            "MYALIAS NONE\r\rK\r");
}

TEST_F(TxSetupTest, TheScsTncGetsItsLinesInTheirOrder) {
  Use(RadioMode::ScsTnc);
  world.Port.Open("3", 38400);
  Open();
  Choose(1);  // 300
  Transmit().Check2.Value = 1;
  Transmit().Check2.Click();
  EXPECT_EQ(Panel().CrossField.Caption, "R300");
  Panel().DigiBox.Value = 1;
  Ok();
  EXPECT_EQ(world.Port.Written,
            "\x1B%B300\r\x1BIQX7KB-10\r\x1B%AMQX7KB-10\r\x1B"
            "CZEPR WIDE1-1\r\x1B%X 300\r\x1B%AGH\r\x1BR1\r\x1B%AD3\r\x1B%AU1\r\x1B%F 2000\r");
  EXPECT_EQ(world.State.Radio.BaudModeLabel, "300 Bd");
  EXPECT_EQ(world.State.Radio.HfDualOn, 1);
}

TEST_F(TxSetupTest, ARemoteEngineAndNoRadioAreSentNothing) {
  for (RadioMode mode : {RadioMode::AgwRemote, RadioMode::None}) {
    Use(mode);
    actions.Calls.clear();
    Open();
    Ok();
    EXPECT_EQ(actions.Calls,
              (std::vector<std::string>{"status 300 Bd", "title", "save", "labels"}));
    EXPECT_EQ(world.Clock.MonotonicSeconds(), 0.0);
  }
}

TEST_F(TxSetupTest, TheScsPtcGetsItsLines) {
  Use(RadioMode::ScsPtc);
  world.Port.Open("3", 38400);
  Open();
  Panel().TxPathField.Text = "wide1-1,wide2-1";
  Panel().TxLevel.Text = "250";
  Choose(4);  // 19200
  Ok();
  EXPECT_EQ(world.Port.Written,
            "\x1B"
            "B 19200\r\x1BTXL A 250\r\x1BTXL F 250\r\x1B"
            "DIGI OFF\r\x1BUNPROTO ZEPR WIDE1-1 WIDE2-1\r");
}

TEST_F(TxSetupTest, ALevelIsASmallNumber) {
  world.State.Radio.TxAudioLevel = 300;
  const struct {
    const char* Typed;
    int Level;
  } rows[] = {{"3000", 3000}, {"32767", 32767}, {"40000", 32767}, {"-1", 32767}, {"", 0}};
  for (const auto& row : rows) {
    Open();
    Panel().TxLevel.Text = row.Typed;
    Ok();
    EXPECT_EQ(world.State.Radio.TxAudioLevel, row.Level) << row.Typed;
  }
}

TEST_F(TxSetupTest, OnlyTheFirstReportLeavesEarlierWhenTxStaysOn) {
  Transmit().Check6.Value = 1;
  world.State.Transmission.LastBeaconTime = 99;
  world.State.Transmission.LastObjectTime = 99;
  Open();
  Ok();
  EXPECT_EQ(Transmit().Check6.Value, 1);
  EXPECT_EQ(world.State.Transmission.LastBeaconTime, 0);
  EXPECT_EQ(world.State.Transmission.LastObjectTime, 99);
}

TEST_F(TxSetupTest, ManualTakesTheSwitchAndTheObjectOff) {
  Transmit().Check6.Value = 1;
  Transmit().Check18.Value = 1;
  world.State.Transmission.ObjectTxOn = 1;
  Open();
  Panel().TxInterval.Text = "MANUAL";
  Ok();
  EXPECT_EQ(Transmit().Check6.Value, 0);
  EXPECT_EQ(Transmit().Check18.Value, 0);
  EXPECT_EQ(world.State.Transmission.ObjectTxOn, 0);
}

// ---- Fields ---------------------------------------------------------------------------------

TEST_F(TxSetupTest, TheIntervalFieldCorrectsItselfAndSteps) {
  Open();
  Panel().TxInterval.Text = "61";
  Panel().TxInterval.Change();
  EXPECT_EQ(Panel().TxInterval.Text, "MANUAL");
  Panel().TxIntervalDown.Click();
  EXPECT_EQ(Panel().TxInterval.Text, "60");
  Panel().TxIntervalUp.Click();
  EXPECT_EQ(Panel().TxInterval.Text, "MANUAL");
}

TEST_F(TxSetupTest, PathButtonsFillStoreAndClear) {
  Open();
  Panel().TxPathField.Text = " WIDE1-1 ";
  Panel().PathQuick[4].Click();
  EXPECT_EQ(Panel().TxPathField.Text, "WIDE1-1,ECHO");
  Panel().TxPathField.Text = " relay ";
  Panel().PathMemory[3].RightClick();
  EXPECT_EQ(Panel().PathMemory[3].ToolTip, "RELAY");
  Panel().PathClear.Click();
  EXPECT_EQ(Panel().TxPathField.Text, "");
  Panel().PathMemory[3].Click();
  EXPECT_EQ(Panel().TxPathField.Text, "RELAY");
  Ok();
  EXPECT_EQ(world.State.Transmission.TxPathMemory[3], "RELAY");
}

TEST_F(TxSetupTest, TheOverlayIsSeenWhileItIsTyped) {
  world.State.Transmission.TxSymbolIndex = 103;
  Open();
  Panel().TxOverlayField.Text = "ab";
  Panel().TxOverlayField.Change();
  EXPECT_EQ(world.Cell.Operations.back().Words, "B");
}

TEST_F(TxSetupTest, ARecalledPathIsTrimmedAndInCapitals) {
  world.State.Transmission.TxPathMemory[2] = " wide2-2 ";
  Open();
  Panel().PathMemory[2].Click();
  EXPECT_EQ(Panel().TxPathField.Text, "WIDE2-2");
}

TEST_F(TxSetupTest, TheLineWithTheFocusIsRememberedFromVisitToVisit) {
  Open();
  Panel().InfoField[3].GotFocus();
  Panel().TxAbort.Click();
  Open();
  Panel().InfoMemory[0].ToolTip = "Hello";
  Panel().InfoMemory[0].Click();
  EXPECT_EQ(Panel().InfoField[3].Text, "Hello");
}

TEST_F(TxSetupTest, QuickButtonsNameTheirPaths) {
  std::vector<std::string> captions;
  for (const Button& quick : Panel().PathQuick)
    captions.push_back(quick.Caption);
  EXPECT_EQ(captions,
            (std::vector<std::string>{"WIDE1-1", "WIDE2-1", "WIDE2-2", "RELAY", "ECHO", "GATE"}));
}

TEST_F(TxSetupTest, InfoMemoriesStoreAndRecallTheLineWithTheFocus) {
  Open();
  Panel().InfoMemory[0].ToolTip = "Hello";
  Panel().InfoMemory[0].Click();  // no line had the focus
  EXPECT_EQ(Panel().InfoField[0].Text, "Test");
  Panel().InfoField[4].GotFocus();
  Panel().InfoMemory[0].Click();
  EXPECT_EQ(Panel().InfoField[4].Text, "Hello");
  Panel().InfoField[4].Text = "145.500 MHz";
  Panel().InfoMemory[1].RightClick();
  EXPECT_EQ(Panel().InfoMemory[1].ToolTip, "145.500 MHz");
  EXPECT_TRUE(Panel().InfoField[4].FocusWanted);
  // A frequency goes where a frequency stands.
  Panel().InfoField[5].GotFocus();
  Panel().InfoMemory[1].ToolTip = "144.800 MHz";
  Panel().InfoMemory[1].Click();
  EXPECT_EQ(Panel().InfoField[4].Text, "144.800 MHz");
}

TEST_F(TxSetupTest, SpeedsSecondModeAndHfDualWorkOnEachOther) {
  Use(RadioMode::ScsTnc);
  Open();
  Panel().DigiBox.Value = 1;
  Choose(2);  // 1200
  EXPECT_EQ(Panel().DigiBox.Value, 0);
  Panel().TxPathField.Text = "";
  Panel().TxInterval.Text = "1";
  Transmit().Check2.Value = 1;
  Transmit().Check2.Click();
  EXPECT_TRUE(Panel().Speeds[0].Value);  // RPR 300
  EXPECT_EQ(Panel().CrossField.Caption, "300");
  EXPECT_EQ(Panel().TxInterval.Text, "2");
  EXPECT_EQ(Panel().TxPathField.Text, "");
  Panel().CrossUp.Click();
  EXPECT_EQ(Panel().CrossField.Caption, "R300");
  EXPECT_EQ(Transmit().Check2.Value, 0);
  Panel().CrossDown.Click();
  EXPECT_EQ(Panel().CrossField.Caption, "300");
  Transmit().Check2.Value = 0;
  Transmit().Check2.Click();
  EXPECT_EQ(Panel().CrossField.Caption, "NONE");
}

}  // namespace
}  // namespace zepril
