// The serial modem in a running station: what holds while the terminal is open, what stays out of
// its conversations, and what the operator is told of a line that is not there.
#include <gtest/gtest.h>

#include <string>

#include "tests/station/on_air_support.h"

namespace zepril {
namespace {

constexpr double kTick = 6.0;
constexpr double kReopen = 10.0;
constexpr const char* kNotNow = "Not while the terminal is open";

class ModemAndTerminal : public OnAirStation {
 protected:
  TerminalControls& Terminal() { return station.Controls().Terminal; }
  Label& Notice() { return station.Controls().Status.LinkNotice; }
  void Begin() {
    ASSERT_TRUE(station.Start());
    sent.clear();
  }
  void Pull() {
    station.modem.Vanish();
    station.modem.Why = "the adapter is not there";
  }
  void PlugIn() { station.modem.Absent = false; }
};

INSTANTIATE_TEST_SUITE_P(EveryModem, ModemAndTerminal,
                         ::testing::Values(RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc),
                         NameOf);

// ---- The terminal -----------------------------------------------------------------------------

TEST_P(ModemAndTerminal, ATerminalThatStandsOpenAtTheStartIsOpenedEmpty) {
  Terminal().Frame19.Visible = true;
  Terminal().Text19.Text = "old";
  Terminal().Text20.Text = "old";
  Begin();
  EXPECT_TRUE(Terminal().Frame19.Visible);
  EXPECT_EQ(Terminal().Text19.Text + Terminal().Text20.Text, "");
  EXPECT_TRUE(Terminal().Text19.FocusWanted);
  EXPECT_FALSE(station.program->Timer1().Enabled());
  RunTo(Now() + 10 * kTick);
  ExpectSent({});
}

TEST_P(ModemAndTerminal, WhatWouldSpeakToTheModemWaitsForTheEndOfTheTerminal) {
  Begin();
  const Control* const speakers[] = {&Transmit().Check6, &station.Controls().TxSetup.TxOk,
                                     &station.Controls().Record.Label20, &Terminal().Command65};
  for (const Control* speaker : speakers)
    EXPECT_TRUE(speaker->Enabled);
  const std::string usual = station.Controls().Record.Label20.ToolTip;
  Terminal().Command65.Click();
  for (const Control* speaker : speakers)
    EXPECT_FALSE(speaker->Enabled);
  EXPECT_EQ(station.Controls().Record.Label20.ToolTip, kNotNow);
  Terminal().Command66.Click();
  for (const Control* speaker : speakers)
    EXPECT_TRUE(speaker->Enabled);
  EXPECT_EQ(station.Controls().Record.Label20.ToolTip, usual);
}

TEST_P(ModemAndTerminal, OneWhoWantsNoToolTipsGetsNoneOfTheTerminal) {
  station.files.Write("C:\\ZEPRIL\\ZEPRIL.INI", station.File("ZEPRIL.INI") + "LANG=1\r\n");
  Begin();
  ASSERT_EQ(Transmit().Check6.ToolTip, "");
  Terminal().Command65.Click();
  EXPECT_EQ(Transmit().Check6.ToolTip, "");
}

TEST_P(ModemAndTerminal, TheTerminalStaysClosedInTheMiddleOfAConversation) {
  Begin();
  Transmit().Check6.RightClick();
  station.clock.OnWait = [this](double, bool) { Terminal().Command65.Click(); };
  station.Controls().TxSetup.TxOk.Click();
  station.clock.OnWait = nullptr;
  EXPECT_FALSE(Terminal().Frame19.Visible);
  Terminal().Command65.Click();
  EXPECT_TRUE(Terminal().Frame19.Visible);
}

TEST_P(ModemAndTerminal, HalfALineIsWipedBeforeTheModemIsLedBackAtTheEnd) {
  Begin();
  Terminal().Command65.Click();
  Terminal().Text19.KeyTyped('x');
  station.modem.Written.clear();
  station.program->Stop(true);
  const std::string wipe = GetParam() == RadioMode::ScsPtc ? "\x1B\r" : "\x18";
  EXPECT_TRUE(station.modem.Written.starts_with(wipe));
}

TEST_P(ModemAndTerminal, AReportThatFallsDueInTheTickThatOpensItStaysBack) {
  Begin();
  SwitchOn(Transmit().Check6);
  station.clock.Schedule(kTick + 0.0005, [this] {
    EXPECT_TRUE(station.program->InTick());
    Terminal().Command65.Click();
  });
  RunTo(Now() + 5 * kTick);
  ASSERT_TRUE(Terminal().Frame19.Visible);
  ExpectSent({});
}

// ---- A line that is not there -----------------------------------------------------------------

TEST_P(ModemAndTerminal, AMissingLineIsSaidOnceAndTheLampGoesOnTelling) {
  Pull();
  Begin();
  EXPECT_TRUE(Notice().Visible);
  EXPECT_EQ(Notice().Caption, "the adapter is not there");
  Notice().Click();
  EXPECT_FALSE(Notice().Visible);
  RunTo(Now() + 20 * kReopen);
  EXPECT_FALSE(Notice().Visible);
  EXPECT_EQ(station.program->Lamp().State, LampState::Lost);
  EXPECT_GT(InStr(station.program->Lamp().ToolTip, "the adapter is not there"), 0);
  PlugIn();
  RunTo(Now() + kReopen + 0.1);
  EXPECT_NE(station.program->Lamp().State, LampState::Lost);
}

TEST_P(ModemAndTerminal, TheNoticeOfAMissingLineGoesWhenItIsThere) {
  Pull();
  Begin();
  ASSERT_TRUE(Notice().Visible);
  PlugIn();
  RunTo(Now() + kReopen + 3.0);
  EXPECT_FALSE(Notice().Visible);
  EXPECT_EQ(Notice().Caption, "");
}

TEST_P(ModemAndTerminal, ALineThatComesBackUnderTheTerminalWaitsForItsEnd) {
  Begin();
  Pull();
  Terminal().Command65.Click();
  PlugIn();
  RunTo(Now() + 3 * kReopen);
  EXPECT_FALSE(station.modem.IsOpen());
  ExpectSent({});
  Terminal().Command66.Click();
  RunTo(Now() + kReopen + 3.0);
  EXPECT_TRUE(station.modem.IsOpen());
}

// A tick hands control over once; the attempt that falls due there comes with the next one.
TEST_P(ModemAndTerminal, ALineIsNotOpenedInTheMiddleOfATick) {
  Begin();
  Pull();
  PlugIn();
  bool looked = false;
  station.clock.Schedule(2 * kReopen - 1.0, [&] {
    looked = station.program->InTick();
    EXPECT_FALSE(station.modem.IsOpen());
  });
  RunTo(Now() + kTick + 0.1);
  ASSERT_TRUE(looked);
  RunTo(Now() + 2 * kReopen);
  EXPECT_TRUE(station.modem.IsOpen());
}

// ---- Converse, and what a crash leaves ---------------------------------------------------------

TEST_P(ModemAndTerminal, WhatIsInConverseIsKeptInAFileUntilItIsLedBack) {
  bool before = true;
  station.modem.OnWrite = [&](std::string_view bytes) {
    if (bytes == "K\r") before = before && station.File("MODEM.RUN") != "(missing)";
  };
  EXPECT_EQ(station.File("MODEM.RUN"), "(missing)");
  Begin();
  EXPECT_TRUE(before);
  const std::string line = WholeNumber(static_cast<int>(GetParam())) +
                           (GetParam() == RadioMode::Pk232 ? " 1200 1\r\n" : " 38400 3\r\n");
  EXPECT_EQ(station.File("MODEM.RUN"), line);
  RunTo(Now() + 10 * kTick);
  EXPECT_EQ(station.File("MODEM.RUN"), line);
  station.program->Stop(true);
  EXPECT_EQ(station.File("MODEM.RUN"), "(missing)");
}

TEST_P(ModemAndTerminal, AModemThatIsAwayAtTheEndStaysInTheFile) {
  Begin();
  Pull();
  station.program->Stop(true);
  EXPECT_NE(station.File("MODEM.RUN"), "(missing)");
}

// ---- A line that takes nothing ----------------------------------------------------------------

TEST_P(ModemAndTerminal, AReportThatDoesNotLeaveMakesTheLinkLostAndNeverLeaves) {
  Begin();
  station.modem.OnWrite = [this](std::string_view bytes) {
    WriteDown(bytes);
    station.modem.Waiting += bytes.size();
  };
  SwitchOn(Transmit().Check6);
  RunTo(Now() + kTick + 0.9);
  ASSERT_EQ(sent.size(), 1U);
  RunTo(sent[0].Seconds + 10.1);
  EXPECT_FALSE(station.modem.IsOpen());
  EXPECT_GE(station.modem.Drops, 1);
  EXPECT_TRUE(Notice().Visible);
  EXPECT_EQ(Notice().Caption, "The modem's line takes no bytes.");
  EXPECT_EQ(station.program->Lamp().State, LampState::Lost);
  EXPECT_GT(InStr(station.program->Lamp().ToolTip, "takes no bytes"), 0);
}

TEST_P(ModemAndTerminal, AModemWithoutPowerGetsNoReport) {
  station.modem.Ready = true;
  Begin();
  SwitchOn(Transmit().Check6);
  station.modem.Ready = false;
  RunTo(Now() + kTick + 0.9);
  ExpectSent({});
  EXPECT_EQ(Notice().Caption, "The modem has lost its power.");
}

// ---- Two modes --------------------------------------------------------------------------------

class TwoModesAtATerminal : public ModemAndTerminal {};

INSTANTIATE_TEST_SUITE_P(ScsTnc, TwoModesAtATerminal, ::testing::Values(RadioMode::ScsTnc), NameOf);

TEST_P(TwoModesAtATerminal, ATerminalOpenedWithinATickHearsNothingOfTheSecondMode) {
  Begin();
  station.State().Radio.HfDualOn = 1;
  station.clock.Schedule(kTick + 0.0005, [this] {
    EXPECT_TRUE(station.program->InTick());
    Terminal().Command65.Click();
  });
  RunTo(Now() + 5 * kTick);
  ASSERT_TRUE(Terminal().Frame19.Visible);
  ExpectSent({});
}

TEST_P(ModemAndTerminal, HalfAFrameOfBeforeDoesNotRunIntoTheFirstOneOfNow) {
  Begin();
  station.State().Reception.ScsRxBuffer = "fm QX1AB to APRS ctl UI pid F0\r\n=5230.00N";
  Pull();
  PlugIn();
  RunTo(Now() + 2.0 * kReopen);
  EXPECT_TRUE(station.modem.IsOpen());
  EXPECT_EQ(station.State().Reception.ScsRxBuffer, "");
}

}  // namespace
}  // namespace zepril
