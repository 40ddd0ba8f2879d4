// An operator who presses everything about transmitting in any order, also in the middle of the
// program's waits, while modem or engine come and go: the program goes on, its cycle stands only
// while a panel is open that stops it, and what goes out is always a whole line.
#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/station/on_air_support.h"

namespace zepril {
namespace {

class RestlessOperator : public OnAirStation {
 protected:
  RestlessOperator() {
    station.clock.OnWait = [this](double, bool pumping) {
      // The waits that let presses through.
      if (pumping && nested_ < 2) {
        ++nested_;
        PressSomething();
        --nested_;
      }
    };
    station.modem.OnWrite = [this](std::string_view bytes) { LookAt(bytes); };
    station.dialogs.Allow(
        "ZEP RIL          TERMINAL",
        "A LINE IS TYPED WITHOUT ITS END. DO YOU WANT TO SEND IT OFF NOW ?   (NO: "
        "IT IS WIPED)",
        DialogAnswer::No);
  }
  // Whatever is said to a modem is a whole line, and while the operator talks to it nobody else
  // does; only a temporary mode, whose button is let go meanwhile, is ended.
  void LookAt(std::string_view bytes) {
    if (typing_) return;
    EXPECT_TRUE(!station.Controls().Terminal.Frame19.Visible || bytes.starts_with("\x1B%B") ||
                IsWipe(bytes))
        << bytes;
    EXPECT_TRUE(bytes.ends_with('\r') || bytes.ends_with("\r\n") || IsNoLine(bytes)) << bytes;
    const bool frame = bytes.starts_with("=") || bytes.starts_with(";") || bytes.starts_with("}");
    if (frame) ++frames;
    // From the byte that ends converse to the line that begins it a PK-232 takes commands.
    if (bytes == "\x03") commanded_ = true;
    EXPECT_FALSE(commanded_ && frame) << bytes;
    if (bytes == "K\r") commanded_ = false;
  }
  // What is said to a modem, whatever it was left in, and is no line.
  static bool IsNoLine(std::string_view bytes) {
    return bytes == "\x03" || bytes == "\x18" || bytes == "*" || bytes == "KISS OFF" ||
           bytes == "\xC0\xFF\xC0" || bytes == "\x01OHON\x17";
  }
  // Half a line that the operator has typed, at CLOSE.
  static bool IsWipe(std::string_view bytes) { return bytes == "\x18" || bytes == "\x1B\r"; }
  int Any(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

  // Only what an operator can reach.
  template <typename Box>
  void Toggle(Box& box) {
    if (!box.Visible || !box.Enabled || !box.Click) return;
    box.Value = box.Value == 1 ? 0 : 1;
    box.Click();
  }
  void Click(Control& control, bool right = false) {
    const Event<>& event = right ? control.RightClick : control.Click;
    if (control.Visible && control.Enabled && event) event();
  }

  void PressSomething() {
    MainWindowControls& all = station.Controls();
    switch (Any(12)) {
      case 0:
        return Toggle(all.Transmit.Check6);
      case 1:
        return Toggle(all.Transmit.Check18);
      case 2:
        return Click(all.Transmit.Check6, true);
      case 3:
        return Click(all.Transmit.Check18, true);
      case 4:
        return Click(all.Terminal.Command65);
      case 5:
        all.Raw.RawList.RightDown();
        return;
      case 6:
        all.Raw.RawList.RightUp();
        return;
      case 7:
        return all.Map.Picture1.MouseDown(
            {1 + Any(2), 0, static_cast<double>(Any(800)), static_cast<double>(Any(600))});
      case 8:
        return SendAgain();
      default:
        return PressInAPanel();
    }
  }
  void SendAgain() {
    Label& line = station.Controls().Record.Label20;
    if (GetParam() == RadioMode::None || !line.Enabled || Trim(line.Caption).empty()) return;
    station.dialogs.Expect("ZEP RIL          RETRANSMIT STATION'S POSITION",
                           "DO YOU WANT TO RETRANSMIT THIS STATION'S POSITION NOW ?",
                           Any(2) == 0 ? DialogAnswer::Yes : DialogAnswer::No);
    line.Click();
  }
  void PressInAPanel() {
    MainWindowControls& all = station.Controls();
    if (all.TxSetup.Frame4.Visible) PressInTxSetup(all.TxSetup);
    if (all.ObjectSetup.Frame11.Visible) PressInObjectSetup(all.ObjectSetup);
    if (!all.Terminal.Frame19.Visible) return;
    if (Any(3) == 0) return Click(all.Terminal.Command66);
    typing_ = true;
    all.Terminal.Text19.KeyTyped(Chr(Any(255) + 1));
    typing_ = false;
  }
  void PressInTxSetup(TxSetupControls& setup) {
    switch (Any(14)) {
      case 0:
        return Click(setup.TxAbort);
      case 1:
        return Toggle(setup.DigiBox);
      case 2:
        return Toggle(station.Controls().Transmit.Check2);
      case 3:
        return Click(setup.Speeds[static_cast<std::size_t>(Any(5))]);
      case 4:
        return Click(Any(2) == 0 ? setup.CrossUp : setup.CrossDown);
      case 5:
        return Click(Any(2) == 0 ? setup.TxIntervalUp : setup.TxIntervalDown);
      case 6:
        return Click(Any(2) == 0 ? setup.SymbolUp : setup.SymbolDown);
      case 7:
        return Click(setup.PathQuick[static_cast<std::size_t>(Any(6))]);
      case 8:
        return Click(setup.PathMemory[static_cast<std::size_t>(Any(4))], Any(2) == 0);
      case 9:
        return Click(setup.InfoMemory[static_cast<std::size_t>(Any(6))], Any(2) == 0);
      case 10:
        setup.InfoField[static_cast<std::size_t>(Any(6))].GotFocus();
        return;
      case 11:
        return Click(setup.PathClear);
      default:
        return Click(setup.TxOk);
    }
  }
  void PressInObjectSetup(ObjectSetupControls& setup) {
    switch (Any(5)) {
      case 0:
        return Click(setup.Command31);
      case 1:
        return Click(setup.Command32);
      case 2:
        return Click(Any(2) == 0 ? setup.ObjectSymbolUp : setup.ObjectSymbolDown);
      default:
        setup.ObjectNameField.Text = Any(3) == 0 ? "" : "PARTY";
        return Click(setup.ObjectOk);
    }
  }
  // What comes from outside.
  void SomethingHappens() {
    switch (Any(6)) {
      case 0:
        return station.modem.Vanish();
      case 1:
        station.modem.Absent = false;
        return;
      case 2:
        if (station.socket.State() == SocketState::Connected) {
          station.socket.SetState(SocketState::PeerClosed);
        }
        return;
      default:
        return Hear();
    }
  }
  void Hear() {
    const std::string text =
        "=" + TwoDigits(40 + Any(40)) + TwoDigits(Any(60)) + ".00N/01324.00E>Test";
    if (IsEngine(GetParam())) {
      station.Hear("N0CALL", text);
    } else if (station.modem.IsOpen()) {
      station.modem.Reads.push_back("N0CALL*>APRS <UI>:\r\n" + text + "\r\n");
      if (station.modem.DataArrived) station.modem.DataArrived();
    }
    // One station is always shown, so that it can be sent again.
    if (station.Controls().Record.Frame1.Visible) return;
    station.Controls().MoniAll.Command3.Click();
    station.Controls().MoniAll.HeardList.ListIndex = 0;
    station.Controls().MoniAll.HeardList.Click();
  }
  static std::string TwoDigits(int number) { return ZeroPadded(number, 2); }

  void CloseAllPanels() {
    MainWindowControls& all = station.Controls();
    if (all.TxSetup.Frame4.Visible) all.TxSetup.TxAbort.Click();
    if (all.ObjectSetup.Frame11.Visible) all.ObjectSetup.Command32.Click();
    if (all.Terminal.Frame19.Visible) all.Terminal.Command66.Click();
  }
  bool CycleRuns() {
    station.Controls().Status.Label15.Caption.clear();
    station.clock.Run(100.0);  // the longest that a picture is looked at, and a modem's set-up
    return !station.Controls().Status.Label15.Caption.empty();
  }

  int frames = 0;  // said to a modem

 private:
  std::mt19937 random_{20240228};
  int nested_ = 0;
  bool typing_ = false;
  bool commanded_ = false;
};

INSTANTIATE_TEST_SUITE_P(EveryRadio, RestlessOperator,
                         ::testing::Values(RadioMode::AgwLocal, RadioMode::Pk232,
                                           RadioMode::AgwRemote, RadioMode::None, RadioMode::ScsTnc,
                                           RadioMode::ScsPtc),
                         NameOf);

TEST_P(RestlessOperator, NeverStopsTheProgram) {
  ASSERT_TRUE(station.Start());
  for (int presses = 0; presses < 2000; ++presses) {
    PressSomething();
    if (Any(4) == 0) SomethingHappens();
    station.clock.Run(Any(80) / 10.0);
    EXPECT_FALSE(station.program->InTick());
    if (presses % 20 == 19) {
      CloseAllPanels();
      ASSERT_TRUE(CycleRuns()) << "after " << presses << " presses";
    }
  }
  station.clock.OnWait = nullptr;
  station.program->Stop(true);
  if (IsEngine(GetParam()) || GetParam() == RadioMode::None) return;
  EXPECT_GT(frames, 20);
}

}  // namespace
}  // namespace zepril
