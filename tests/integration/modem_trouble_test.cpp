// The whole program with modems that misbehave: it never stands still for longer than its own
// waits, keeps its rhythm, and nothing grows without end.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>

#include "core/text_fields.h"
#include "links/setup_sequences.h"
#include "tests/doubles/babbler.h"
#include "tests/doubles/pseudo_terminal.h"
#include "tests/integration/modem_station_support.h"

namespace zepril {
namespace {

// Waits of a tick: listening to an SCS modem that goes on talking, and a frame.
constexpr double kMostListening = 0.05;
constexpr double kPauseBehindFrame = 0.8;
constexpr double kQuestion = 2.75;  // the call of a modem that says nothing
constexpr double kPolls = 0.5;      // a busy computer's line takes a moment to be empty
constexpr const char* kReport = "=4830.15N/00805.20E> Test\r";

class ModemTroubleTest : public ::testing::TestWithParam<RadioMode> {
 protected:
  RadioMode Mode() const { return GetParam(); }
  void Link(const PseudoTerminal& line) {
    std::filesystem::create_symlink(line.Path(), station.Link());
  }
  // Seconds that the program waits while `work` is done, in its own time.
  double WaitedFor(const std::function<void()>& work) {
    const double before = station.clock.Waited;
    work();
    return station.clock.Waited - before;
  }
  double DescribedTxSetup() {
    const RuntimeState& state = station.State();
    return ApplyTxSetupScript({state.Identity, state.Radio, state.Transmission}).Seconds();
  }
  void ExpectStartTakesItsTime(double more = kPolls) {
    bool started = false;
    EXPECT_NEAR(WaitedFor([&] { started = station.PressStart(); }), station.SetUp().Seconds(),
                more);
    EXPECT_TRUE(started);
    EXPECT_FALSE(station.port.IsOpen());
  }
  double DescribedEnd() { return LeaveModemScript(station.State().Radio).Seconds(); }
  void ConfirmTxSetup() {
    Transmit().Check6.RightClick();
    station.Controls().TxSetup.TxPathField.Text = "WIDE2-2";
    station.Controls().TxSetup.TxOk.Click();
    EXPECT_FALSE(station.Controls().TxSetup.Frame4.Visible);
    EXPECT_TRUE(station.program->Timer1().Enabled());
    EXPECT_NE(station.files.ReadAll("C:\\ZEPRIL\\ZEPRIL.INI", 1 << 20)->find("TXPA=WIDE2-2\r\n"),
              std::string::npos);
  }
  // What the modem is asked before a report.
  std::string Question() const {
    if (Mode() == RadioMode::Pk232) return "\x03*\rMYCALL\rK\r";
    return Mode() == RadioMode::ScsTnc ? "\x1BI\r" : "\x1BMYCALL\r\n";
  }
  // A tick that sends a report waits for nothing but the frame, a talking modem and the answer of a
  // silent one.
  void ExpectATickWithAReport() {
    station.State().Transmission.LastBeaconTime = 0;
    const double waited = WaitedFor([this] { station.Run(2 * kTickSeconds + 0.1); });
    EXPECT_GE(waited, kPauseBehindFrame - 1e-6);
    EXPECT_LE(waited, kPauseBehindFrame + 3 * kMostListening + kQuestion);
    EXPECT_NE(station.State().Transmission.LastBeaconTime, 0);
  }
  LampState Lamp() const { return station.program->Lamp().State; }
  TransmitControls& Transmit() { return station.Controls().Transmit; }

  ModemStation station{GetParam(), {}, 100.0};
};

INSTANTIATE_TEST_SUITE_P(EveryModem, ModemTroubleTest,
                         ::testing::Values(RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc),
                         NameOfModem);

TEST_P(ModemTroubleTest, AnAbsentModemCostsTheDescribedWaitsAndSaysSoOnce) {
  ExpectStartTakesItsTime();
  // One that START has not reached is not opened unprogrammed.
  EXPECT_EQ(WaitedFor([this] { ASSERT_TRUE(station.Start()); }), 0.0);
  EXPECT_EQ(Lamp(), LampState::Lost);
  Label& notice = station.Controls().Status.LinkNotice;
  EXPECT_TRUE(notice.Visible);
  EXPECT_GT(InStr(notice.Caption, station.Link()), 0) << notice.Caption;
  notice.Click();
  station.Switch(Transmit().Check6, 1);
  ExpectATickWithAReport();
  EXPECT_NEAR(WaitedFor([this] { ConfirmTxSetup(); }), DescribedTxSetup(), 1e-6);
  // Attempts to open it cost nothing, and say nothing anew.
  EXPECT_NEAR(WaitedFor([this] { station.Run(3 * kReopenSeconds); }), kPauseBehindFrame,
              6 * kMostListening);
  EXPECT_FALSE(notice.Visible);
  EXPECT_NEAR(WaitedFor([this] { station.program->Stop(true); }), DescribedEnd(), 1e-6);
}

TEST_P(ModemTroubleTest, AModemThatNeverAnswersCostsTheDescribedWaits) {
  PseudoTerminal line;
  Link(line);
  ExpectStartTakesItsTime();
  EXPECT_NEAR(WaitedFor([this] { ASSERT_TRUE(station.Start()); }), station.Opening().Seconds(),
              1e-6);
  EXPECT_EQ(Lamp(), LampState::Silent);
  EXPECT_FALSE(station.Controls().Status.LinkNotice.Visible);
  line.Heard();
  station.Switch(Transmit().Check6, 1);
  ExpectATickWithAReport();
  EXPECT_EQ(line.Heard(), Question() + kReport);
  EXPECT_NEAR(WaitedFor([this] { ConfirmTxSetup(); }), DescribedTxSetup(), kPolls);
  EXPECT_NE(line.Heard().find("WIDE2-2"), std::string::npos);
  EXPECT_NEAR(WaitedFor([this] { station.program->Stop(true); }), DescribedEnd(), 1e-6);
}

// The line is there and takes not a byte.
TEST_P(ModemTroubleTest, AModemThatTakesNothingHoldsTheProgramNoLongerThanALimit) {
  PseudoTerminal line;
  Link(line);
  ASSERT_TRUE(station.Start());
  for (int blocks = 0; blocks < 100 && station.port.BytesToWrite() < 30000; ++blocks) {
    station.port.Write(std::string(4096, 'x'));
    station.loop.Wait(0.002);
  }
  ASSERT_GT(station.port.BytesToWrite(), 0U);
  station.Switch(Transmit().Check6, 1);
  ExpectATickWithAReport();
  EXPECT_LE(WaitedFor([this] { ConfirmTxSetup(); }),
            DescribedTxSetup() + kLongestDrainSeconds + kPolls);
  // The link is lost, and what it held back never leaves: it is opened anew, and takes bytes again.
  EXPECT_TRUE(station.RunUntil([this] { return station.port.IsOpen(); }));
  EXPECT_LT(station.port.BytesToWrite(), 4096U);
  const std::string heard = line.Heard();
  // Of the reports only the one that fell due behind that.
  EXPECT_LE(std::count(heard.begin(), heard.end(), '='), 1);
  ExpectATickWithAReport();
  EXPECT_NEAR(WaitedFor([this] { station.program->Stop(true); }), DescribedEnd(), 1e-6);
  EXPECT_FALSE(station.port.IsOpen());
}

class BabbledAt : public ModemTroubleTest {
 protected:
  void ExpectEverythingGoesOn() {
    ExpectStartTakesItsTime(kMostPrompts + kPolls);
    EXPECT_NEAR(WaitedFor([this] { ASSERT_TRUE(station.Start()); }), station.Opening().Seconds(),
                1e-6);
    EXPECT_TRUE(station.Comes([this] { return Lamp() == LampState::Data; }));
    station.Switch(Transmit().Check6, 1);
    ExpectATickWithAReport();
    const double tx_setup = WaitedFor([this] { ConfirmTxSetup(); });
    EXPECT_GE(tx_setup, DescribedTxSetup() - 1e-6);
    EXPECT_LE(tx_setup, DescribedTxSetup() + kMostPrompts + kPolls);
    ExpectTheTerminalStaysSmall();
    ExpectATickWithAReport();
    EXPECT_LE(station.State().Reception.RxBuffer.size(), kLongestReceiveBuffer);
    EXPECT_LE(station.State().Reception.ScsRxBuffer.size(), 1000U);
    EXPECT_LE(station.State().Reception.RawLineCount, 400);
    EXPECT_EQ(station.Records(), 0);
    EXPECT_NEAR(WaitedFor([this] { station.program->Stop(true); }), DescribedEnd(), 1e-6);
  }
  void ExpectTheTerminalStaysSmall() {
    TerminalControls& terminal = station.Controls().Terminal;
    terminal.Command65.Click();
    std::size_t longest = 0;
    for (int looks = 0; looks < 20; ++looks) {
      station.Run(0.6);
      longest = std::max(longest, terminal.Text20.Text.size());
    }
    EXPECT_GT(longest, 0U);
    EXPECT_LE(longest, 1000U);
    for (int keys = 0; keys < 1500; ++keys)
      terminal.Text19.KeyTyped('x');
    EXPECT_LE(terminal.Text19.Text.size(), 1000U);
    station.dialogs.Expect("ZEP RIL          TERMINAL",
                           "A LINE IS TYPED WITHOUT ITS END. DO YOU WANT TO SEND IT OFF NOW ?   "
                           "(NO: IT IS WIPED)",
                           DialogAnswer::No);
    terminal.Command66.Click();
    EXPECT_FALSE(terminal.Frame19.Visible);
  }
};

INSTANTIATE_TEST_SUITE_P(EveryModem, BabbledAt,
                         ::testing::Values(RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc),
                         NameOfModem);

TEST_P(BabbledAt, GarbageWithoutEndStopsNothing) {
  PseudoTerminal line;
  Link(line);
  const Babbler babbler(line, "\xFF\x1B%fm \r\n* to via ctl UI pid F0\r\n");
  ExpectEverythingGoesOn();
}

// Only for this modem the program waits until the prompts have ended.
class PromptedAt : public BabbledAt {};

INSTANTIATE_TEST_SUITE_P(Pk232, PromptedAt, ::testing::Values(RadioMode::Pk232), NameOfModem);

TEST_P(PromptedAt, PromptsWithoutEndStopNothing) {
  PseudoTerminal line;
  Link(line);
  const Babbler babbler(line, "cmd:");
  ExpectEverythingGoesOn();
}

TEST_P(ModemTroubleTest, AModemThatHangsUpInTheMiddleOfStartCostsTheDescribedWaits) {
  ServedModem modem(station.Link(), MakeModel(Mode()));
  constexpr std::size_t kBytes = 20;
  modem.HangUpBehind(kBytes);
  ExpectStartTakesItsTime();
  ASSERT_TRUE(station.Comes([&] { return modem.BytesTaken() >= kBytes; }));
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(Lamp(), LampState::Lost);
  EXPECT_TRUE(station.Controls().Status.LinkNotice.Visible);
}

TEST_P(ModemTroubleTest, AModemThatHangsUpInTheMiddleOfTheOpeningCostsTheDescribedWaits) {
  ServedModem modem(station.Link(), MakeModelSetUpBy(Mode(), station.SetUp()));
  modem.HangUpBehind(1);
  EXPECT_NEAR(WaitedFor([this] { ASSERT_TRUE(station.Start()); }), station.Opening().Seconds(),
              1e-6);
  station.Switch(Transmit().Check6, 1);
  // The one that is told nothing at the opening goes with the first report.
  station.Run(2 * kTickSeconds + 0.1);
  EXPECT_TRUE(station.Comes([this] { return Lamp() == LampState::Lost; }));
  ExpectATickWithAReport();
}

TEST_P(ModemTroubleTest, AModemThatHangsUpInTheMiddleOfTxSetupCostsTheDescribedWaits) {
  ServedModem modem(station.Link(), MakeModelSetUpBy(Mode(), station.SetUp()));
  ASSERT_TRUE(station.Start());
  ASSERT_TRUE(station.Comes([&] { return modem.Runs(); }));
  modem.HangUpBehind(modem.BytesTaken() + 12);
  EXPECT_NEAR(WaitedFor([this] { ConfirmTxSetup(); }), DescribedTxSetup(), kPolls);
  EXPECT_TRUE(station.Comes([this] { return Lamp() == LampState::Lost; }));
  station.Switch(Transmit().Check6, 1);
  ExpectATickWithAReport();
}

TEST_P(ModemTroubleTest, APortOfAnotherProgramIsLeftAloneUntilItIsFree) {
  PseudoTerminal line;
  Link(line);
  QtSerialPort other;
  ASSERT_TRUE(other.Open(line.Path(), 9600)) << other.Trouble();
  ExpectStartTakesItsTime();
  EXPECT_EQ(WaitedFor([this] { ASSERT_TRUE(station.Start()); }), 0.0);
  EXPECT_EQ(Lamp(), LampState::Lost);
  EXPECT_TRUE(station.Controls().Status.LinkNotice.Visible);
  EXPECT_EQ(station.Controls().Status.LinkNotice.Caption,
            line.Path() + " is used by another program.");
  EXPECT_GT(InStr(station.program->Lamp().ToolTip, "is used by another program"), 0);
  station.Switch(Transmit().Check6, 1);
  ExpectATickWithAReport();
  ConfirmTxSetup();
  station.Run(2 * kReopenSeconds);
  EXPECT_EQ(line.Heard(), "");
  other.Close();
  station.Run(kReopenSeconds + 0.1);
  EXPECT_EQ(Lamp(), LampState::Silent) << station.port.Trouble();
  EXPECT_FALSE(station.Controls().Status.LinkNotice.Visible);
  ExpectATickWithAReport();
  EXPECT_TRUE(line.Heard().ends_with(kReport));
}

}  // namespace
}  // namespace zepril
