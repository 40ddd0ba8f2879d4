// What an operator does about transmitting, with the whole program in virtual time: TX SETUP as a
// transcript, OBJECT SETUP, the terminal, the temporary mode, a station's position sent again.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/station/on_air_support.h"

namespace zepril {
namespace {

constexpr double kHourSeconds = 3600.0;
constexpr double kTick = 6.0;
constexpr double kHandOver = 0.001;
constexpr double kListening = 0.01;  // to a silent SCS modem
constexpr const char* kReport = "=4830.15N/00805.20E> Test";

class OperatorOnTheAir : public OnAirStation {
 protected:
  explicit OperatorOnTheAir(const std::string& more_settings = {}) : OnAirStation(more_settings) {}
  void SetUp() override {
    ASSERT_TRUE(station.Start());
    sent.clear();
  }
  // When a tick sends whose timer was started `now`.
  double NextSending() const {
    const bool scs = GetParam() == RadioMode::ScsTnc || GetParam() == RadioMode::ScsPtc;
    return Now() + kTick + kHandOver + (scs ? kListening : 0.0);
  }
  TxSetupControls& TxPanel() { return station.Controls().TxSetup; }
  ObjectSetupControls& Object() { return station.Controls().ObjectSetup; }
  TerminalControls& Terminal() { return station.Controls().Terminal; }
  // The map is looked at elsewhere, which draws it anew.
  void MoveTheMap() { station.Controls().Map.Picture1.MouseDown({1, 0, 500.0, 299.0}); }
  // Its line in the record panel, and a Yes to the question that comes with a click there.
  void OpenARecordToBeSentAgain() {
    station.State().Stores.MoniAllRecords.Append(
        StationRecord("240228 1159 \xFE 5817.860  391.394'N0CALL    Test" + std::string(43, ' ') +
                      " WIDE1-1   />    Car        0  "));
    station.Controls().MoniAll.Command3.Click();
    station.Controls().MoniAll.HeardList.ListIndex = 0;
    station.Controls().MoniAll.HeardList.Click();
    station.dialogs.Expect("ZEP RIL          RETRANSMIT STATION'S POSITION",
                           "DO YOU WANT TO RETRANSMIT THIS STATION'S POSITION NOW ?",
                           DialogAnswer::Yes);
  }
  // Only the first report counts; the times from `origin`.
  void ExpectNext(const std::string& frame, double seconds) {
    RunTo(seconds + 0.5);
    ExpectSent({{seconds, frame}});
  }
};

struct Conversation {
  std::vector<Outgoing> Sent;
  double Seconds = 0.0;
};

// What OK says, from the press on, and how long it takes. To the second engine nothing is said.
Conversation TxSetupOf(RadioMode mode) {
  switch (mode) {
    case RadioMode::AgwLocal:
      return {{{0.0, EngineFrame('x', "APRS", "")},
               {2.05, EngineFrame('X', "APRS", "")},
               {2.05, EngineFrame('m', "APRS", "")}},
              2.05};
    case RadioMode::Pk232:
      return {{{0.0, "\x03"},
               {0.5, "MYCALL QX7KB-10\r"},
               {0.7, "UNPROTO ZEPR VIA WIDE2-2\r"},
               {0.9, "DIGIPEAT OFF\r"},
               {1.1, "DFROM NONE\r"},
               {1.3, "MYALIAS NONE\r"},
               {1.5, "\r"},
               {3.5, "K\r"}},
              3.7};
    case RadioMode::ScsTnc:
      return {{{0.0, "\x1B%B300\r"},
               {0.1, "\x1BIQX7KB-10\r"},
               {0.2, "\x1B%AMQX7KB-10\r"},
               {0.3,
                "\x1B"
                "CZEPR WIDE2-2\r"},
               {0.4, "\x1B%X 300\r"},
               {0.5, "\x1B%AG NONE\r"},
               {0.6, "\x1BR0\r"},
               {0.7, "\x1B%AD0\r"},
               {0.8, "\x1B%AU0\r"},
               {0.9, "\x1B%F 2000\r"}},
              2.0};
    case RadioMode::ScsPtc:
      return {{{0.0,
                "\x1B"
                "B 300\r"},
               {0.1, "\x1BTXL A 300\r"},
               {0.6, "\x1BTXL F 300\r"},
               {0.7,
                "\x1B"
                "DIGI OFF\r"},
               {0.8, "\x1BUNPROTO ZEPR WIDE2-2\r"}},
              2.0};
    default:
      return {};
  }
}

std::string ByWide22(RadioMode mode, const std::string& text) {
  if (!IsEngine(mode)) return text + "\r";
  return EngineFrame('V', "ZEPR", "\x01" + Zeros("WIDE2-2", 10) + text);
}

INSTANTIATE_TEST_SUITE_P(EveryRadio, OperatorOnTheAir,
                         ::testing::Values(RadioMode::AgwLocal, RadioMode::Pk232,
                                           RadioMode::AgwRemote, RadioMode::ScsTnc,
                                           RadioMode::ScsPtc),
                         NameOf);

TEST_P(OperatorOnTheAir, TxSetupSaysItsLinesAtTheirTenthsAndTheNextTickReports) {
  SwitchOn(Transmit().Check6);
  Transmit().Check6.RightClick();
  TxPanel().TxPathField.Text = "wide2-2";
  const double press = Now();
  const Conversation said = TxSetupOf(GetParam());
  TxPanel().TxOk.Click();
  ExpectSent(said.Sent, press);
  EXPECT_NEAR(Now() - press, said.Seconds, 0.0005);
  EXPECT_FALSE(TxPanel().Frame4.Visible);
  ExpectNext(ByWide22(GetParam(), kReport), NextSending());
}

TEST_P(OperatorOnTheAir, UnderAnOpenTxSetupNothingGoesOutAndAbortChangesNothing) {
  SwitchOn(Transmit().Check6);
  Transmit().Check6.RightClick();
  TxPanel().TxPathField.Text = "wide2-2";
  RunTo(Now() + kHourSeconds);
  MoveTheMap();
  RunTo(Now() + kHourSeconds);
  ExpectSent({});
  TxPanel().TxAbort.Click();
  EXPECT_FALSE(TxPanel().Frame4.Visible);
  ExpectNext(Framed(GetParam(), kReport), NextSending());
}

TEST_P(OperatorOnTheAir, AnObjectIsPlacedSentMovedAndDeletedWithoutAWord) {
  SwitchOn(Transmit().Check6);
  station.State().Transmission.ObjectName.clear();
  // Without a name the switch falls back.
  SwitchOn(Transmit().Check18);
  EXPECT_EQ(Transmit().Check18.Value, 0);
  Transmit().Check18.RightClick();
  ASSERT_TRUE(Object().Frame11.Visible);
  RunTo(Now() + kHourSeconds);
  ExpectSent({});
  station.State().Map.CentreNorthKm = 5817.860;
  station.State().Map.CentreEastKm = 391.394;
  Object().ObjectNameField.Text = "Party";
  Object().ObjectTextField.Text = " at eight ";
  Object().ObjectOk.Click();
  SwitchOn(Transmit().Check18);
  EXPECT_EQ(Transmit().Check18.Value, 1);
  // One hour and some seconds behind noon; UTC is two hours behind.
  ExpectNext(Framed(GetParam(), ";PARTY    *281100z5230.00N/01324.00Er at eight"), NextSending());
  station.State().Transmission.LastBeaconTime = 2'000'000'000;  // no reports for this test
  Transmit().Check18.RightClick();
  Object().Command31.Click();
  RunTo(Now() + kHourSeconds);
  ExpectSent({});
  EXPECT_EQ(Transmit().Check18.Value, 0);
}

TEST_P(OperatorOnTheAir, SwitchedOffInTheMiddleNothingMoreGoesOut) {
  SwitchOn(Transmit().Check6);
  SwitchOn(Transmit().Check18);
  RunTo(Now() + kHourSeconds);
  EXPECT_GT(sent.size(), 5U);
  sent.clear();
  Press(Transmit().Check6, 0);
  EXPECT_EQ(Transmit().Check18.Value, 0);
  RunTo(Now() + kHourSeconds);
  ExpectSent({});
  // Switched on again: a report in the next tick, and the object stays off.
  const double due = Now() + kTick + 1.0;
  SwitchOn(Transmit().Check6);
  RunTo(due);
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_NE(sent[0].Bytes.find("=4830.15N/00805.20E> "), std::string::npos);
}

TEST_P(OperatorOnTheAir, AStationsPositionIsSentAgainAfterAYes) {
  OpenARecordToBeSentAgain();
  const double press = Now();
  station.Controls().Record.Label20.Click();
  ExpectSent(
      {{press, Framed(GetParam(), "}N0CALL>ZEPRRE,QX7KB-10*:/281159z5230.00N/01324.00E> Test" +
                                      std::string(43, ' '))}});
  RunTo(Now() + kHourSeconds);
  ExpectSent({});
}

// ---- Serial modems ----------------------------------------------------------------------------

class OperatorAtTheTerminal : public OperatorOnTheAir {};

INSTANTIATE_TEST_SUITE_P(EveryModem, OperatorAtTheTerminal,
                         ::testing::Values(RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc),
                         NameOf);

TEST_P(OperatorAtTheTerminal, OnlyWhatIsTypedGoesOutAndTheCycleComesBack) {
  SwitchOn(Transmit().Check6);
  Terminal().Command65.Click();
  RunTo(Now() + kHourSeconds);
  MoveTheMap();
  RunTo(Now() + kHourSeconds);
  ExpectSent({});
  const double typed = Now();
  Terminal().Text19.KeyTyped('K');
  Terminal().Text19.KeyTyped('\r');
  ExpectSent({{typed, "K"}, {typed, "\r"}});
  // Neither by hand nor by OK anything comes between.
  EXPECT_FALSE(Transmit().Check6.Enabled);
  EXPECT_FALSE(TxPanel().TxOk.Enabled);
  EXPECT_EQ(Transmit().Check6.ToolTip, "Not while the terminal is open");
  station.modem.Reads.emplace_back("cmd:");
  station.modem.DataArrived();
  EXPECT_EQ(Terminal().Text20.Text, "cmd:");
  Terminal().Command66.Click();
  EXPECT_TRUE(Transmit().Check6.Enabled);
  EXPECT_NE(Transmit().Check6.ToolTip, "Not while the terminal is open");
  ExpectNext(Framed(GetParam(), kReport), NextSending());
}

TEST_P(OperatorAtTheTerminal, OnAVanishedLineNothingStandsStill) {
  SwitchOn(Transmit().Check6);
  station.modem.Vanish();
  RunTo(Now() + kHourSeconds);
  ExpectSent({});
  EXPECT_EQ(station.program->Lamp().State, LampState::Lost);
  EXPECT_TRUE(station.program->Timer1().Enabled());
  const double since_report = static_cast<double>(SecondsOf(station.clock.Now()) -
                                                  station.State().Transmission.LastBeaconTime);
  EXPECT_LT(since_report, 620.0);  // the rhythm went on
  station.modem.Absent = false;
  RunTo(Now() + 10.0);
  EXPECT_NE(station.program->Lamp().State, LampState::Lost);
}

// Its waits let the operator's presses through.
TEST_P(OperatorAtTheTerminal, APressOfTxInTheMiddleOfTxSetupSendsNothingIntoIt) {
  station.State().Transmission.TxIntervalMinutes = 0;
  Transmit().Check6.RightClick();
  TxPanel().TxPathField.Text = "wide2-2";
  TxPanel().TxInterval.Text = "MANUAL";
  station.clock.OnWait = [this](double, bool pumping) {
    if (pumping) SwitchOn(Transmit().Check6);
  };
  const double press = Now();
  TxPanel().TxOk.Click();
  station.clock.OnWait = nullptr;
  ExpectSent(TxSetupOf(GetParam()).Sent, press);
}

class OperatorAtAnScsTnc : public OperatorOnTheAir {};

INSTANTIATE_TEST_SUITE_P(ScsTnc, OperatorAtAnScsTnc, ::testing::Values(RadioMode::ScsTnc), NameOf);

TEST_P(OperatorAtAnScsTnc, TheOtherModeHoldsAsLongAsTheButtonIsHeld) {
  RawListControls& raw = station.Controls().Raw;
  const double press = Now();
  raw.RawList.RightDown();
  ExpectSent({{press, "\x1B%BR300\r"}});
  EXPECT_EQ(Terminal().Label49.Caption,
            "TEMPORARY MODE RPR 300 Bd RELEASE BUTTON TO RETURN TO FSK 300 Bd");
  RunTo(press + 30.0);
  raw.RawList.RightUp();
  ExpectSent({{press + 30.0, "\x1B%B300\r"}});
  EXPECT_FALSE(Terminal().Label49.Visible);
}

TEST_P(OperatorAtAnScsTnc, APositionSentAgainLeavesTheSecondModeAlone) {
  station.State().Radio.HfDualOn = 1;
  OpenARecordToBeSentAgain();
  station.Controls().Record.Label20.Click();
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_TRUE(sent[0].Bytes.starts_with("}N0CALL>"));
}

// ---- Engines ----------------------------------------------------------------------------------

class OperatorAtAnEngine : public OperatorOnTheAir {
 protected:
  void EngineGoes() {
    accepts_ = station.socket.OnConnect;
    station.socket.SetState(SocketState::PeerClosed);
    station.socket.FailSends = true;
    station.socket.OnConnect = [this] { station.socket.SetState(SocketState::Error); };
  }
  void EngineComesBack() {
    station.socket.FailSends = false;
    station.socket.OnConnect = accepts_;
  }

 private:
  std::function<void()> accepts_;
};

INSTANTIATE_TEST_SUITE_P(BothEngines, OperatorAtAnEngine,
                         ::testing::Values(RadioMode::AgwLocal, RadioMode::AgwRemote), NameOf);

TEST_P(OperatorAtAnEngine, ALostEngineCostsNoBoxAndTheReportsComeBackWithIt) {
  SwitchOn(Transmit().Check6);
  EngineGoes();
  // A report falls between the loss and the first attempt to connect anew, too.
  RunTo(Now() + kHourSeconds);
  ExpectSent({});
  EXPECT_EQ(station.program->Lamp().State, LampState::Lost);
  EngineComesBack();
  RunTo(Now() + 21.0);
  EXPECT_NE(station.program->Lamp().State, LampState::Lost);
  ASSERT_EQ(sent.size(), 2U);
  EXPECT_EQ(sent[0].Bytes, EngineFrame('X', "APRS", ""));
  EXPECT_EQ(sent[1].Bytes, EngineFrame('m', "APRS", ""));
  sent.clear();
  RunTo(Now() + 610.0);
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_EQ(sent[0].Bytes, Framed(GetParam(), kReport));
}

}  // namespace
}  // namespace zepril
