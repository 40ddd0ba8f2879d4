// The transmitting rooms in a running station: what holds the main cycle, and what may speak to the
// modem meanwhile.
#include "transmit/transmit_room.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "links/agw_frame.h"
#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr const char* kOneObject = "ONAM=WORKS\r\nOUTN=5817.860\r\nOUTE=391.394\r\n";

void Press(CheckBox& box, int value) {
  box.Value = value;
  box.Click();
}

TEST(TransmitRoom, ThePanelOfTheObjectHoldsTheCycleWhateverIsRedrawn) {
  StationHarness station(kOneObject);
  ASSERT_TRUE(station.Start());
  ObjectSetupControls& panel = station.Controls().ObjectSetup;
  station.Controls().Transmit.Check18.RightClick();
  ASSERT_TRUE(panel.Frame11.Visible);
  // The map has gone to the object, and its redraw has left the timer alone.
  EXPECT_EQ(station.State().Map.CentreNorthKm, 5817.860);
  EXPECT_EQ(station.State().Map.CentreEastKm, 391.394);
  EXPECT_FALSE(station.program->Timer1().Enabled());
  station.Hear("QX1AB", "=5230.00N/01324.00E>");
  station.Ticks(3);
  // The operator moves the map to the object's place.
  station.Controls().Map.Command8.Click();
  station.Ticks(3);
  EXPECT_EQ(station.State().Reception.RawLineCount, 0);
  panel.Command32.Click();
  station.Ticks(2);
  EXPECT_GT(station.State().Reception.RawLineCount, 0);
}

TEST(TransmitRoom, ThePanelOfTheTransmitterHoldsTheCycleWhateverIsRedrawn) {
  StationHarness station;
  ASSERT_TRUE(station.Start());
  station.Controls().Transmit.Check6.RightClick();
  station.Hear("QX1AB", "=5230.00N/01324.00E>");
  station.Controls().Map.Command8.Click();
  station.Ticks(3);
  EXPECT_EQ(station.State().Reception.RawLineCount, 0);
  EXPECT_FALSE(station.program->Timer1().Enabled());
  station.Controls().TxSetup.TxAbort.Click();
  station.Ticks(2);
  EXPECT_GT(station.State().Reception.RawLineCount, 0);
}

TEST(TransmitRoom, NoReportGoesBetweenTheLinesThatProgramTheModem) {
  StationHarness station("MODEM=1\r\nTXON=0\r\nTXTO=ZEPR\r\nTXPA=\r\nTXID=10\r\n");
  ASSERT_TRUE(station.Start());
  CheckBox& tx = station.Controls().Transmit.Check6;
  ASSERT_EQ(tx.Caption, "TX !");
  int presses = 0;
  station.clock.OnWait = [&](double, bool pumping) {
    if (!pumping || presses > 4) return;
    ++presses;
    Press(tx, 1);
  };
  tx.RightClick();
  station.modem.Written.clear();
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_EQ(presses, 5);
  EXPECT_EQ(station.modem.Written,
            "\x03MYCALL QX7KB-10\rUNPROTO ZEPR\rDIGIPEAT OFF\rDFROM NONE\rMYALIAS NONE\r\rK\r");
  // Behind them a press sends again.
  station.clock.OnWait = nullptr;
  Press(tx, 1);
  EXPECT_NE(station.modem.Written.find("K\r=5230.00N/01324.00E"), std::string::npos)
      << station.modem.Written;
}

TEST(TransmitRoom, TxOffDropsWhatTheLineHasNotTaken) {
  StationHarness station("MODEM=1\r\nTXON=10\r\n");
  ASSERT_TRUE(station.Start());
  Press(station.Controls().Transmit.Check6, 1);
  station.Ticks(1);
  station.modem.Waiting = 40;
  const int before = station.modem.Drops;
  Press(station.Controls().Transmit.Check6, 0);
  EXPECT_EQ(station.modem.Drops, before + 1);
  EXPECT_EQ(station.modem.Waiting, 0U);
}

TEST(TransmitRoom, UnderTheOpenTerminalNothingElseSpeaksToTheModem) {
  StationHarness station("MODEM=5\r\nTXON=0\r\n");
  ASSERT_TRUE(station.Start());
  MainWindowControls& controls = station.Controls();
  ASSERT_TRUE(controls.Terminal.Command65.Enabled);
  controls.Terminal.Command65.Click();
  ASSERT_TRUE(controls.Terminal.Frame19.Visible);
  station.modem.Written.clear();
  const Control* const held[] = {&controls.Transmit.Check6, &controls.TxSetup.TxOk,
                                 &controls.Record.Label20, &controls.Terminal.Command65};
  for (const Control* control : held)
    EXPECT_FALSE(control->Enabled);
  Press(controls.Transmit.Check6, 1);
  station.State().Radio.HfDualOn = 1;
  controls.Map.Command8.Click();
  station.Ticks(5);
  EXPECT_EQ(station.modem.Written, "");
  controls.Terminal.Command66.Click();
  for (const Control* control : held)
    EXPECT_TRUE(control->Enabled);
  station.Ticks(2);
  EXPECT_TRUE(station.modem.Written.starts_with("\x1B%AU1\r")) << station.modem.Written;
}

TEST(TransmitRoom, TheTerminalWaitsForTheEndOfAConversation) {
  StationHarness station("MODEM=1\r\n");
  ASSERT_TRUE(station.Start());
  TerminalControls& terminal = station.Controls().Terminal;
  station.Controls().Transmit.Check6.RightClick();
  bool opened = false;
  station.clock.OnWait = [&](double, bool pumping) {
    if (pumping) terminal.Command65.Click();
    opened = opened || terminal.Frame19.Visible;
  };
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_FALSE(opened);
  terminal.Command65.Click();
  EXPECT_TRUE(terminal.Frame19.Visible);
}

TEST(TransmitRoom, ALocalEngineIsOpenedAnewUnderTheNewCall) {
  StationHarness station("MODEM=0\r\nTXID=10\r\n");
  ASSERT_TRUE(station.Start());
  station.Controls().Transmit.Check6.RightClick();
  station.Controls().TxSetup.TxSsid.Text = "7";
  station.socket.Sent.clear();
  const double pressed = station.clock.MonotonicSeconds();
  double connected = 0.0;
  station.socket.OnConnect = [&, accept = station.socket.OnConnect] {
    connected = station.clock.MonotonicSeconds();
    accept();
  };
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_NEAR(connected - pressed, 2.0, 1e-6);
  ASSERT_EQ(station.socket.Sent.size(), 3U);
  EXPECT_EQ(station.socket.Sent[0][4], 'x');
  EXPECT_EQ(station.socket.Sent[1], MakeAgwFrame(0, 'X', "QX7KB-7", "APRS", {}));
  EXPECT_EQ(station.socket.Sent[2], MakeAgwFrame(0, 'm', "QX7KB-7", "APRS", {}));
}

TEST(TransmitRoom, AnAbsentLocalEngineIsTriedTwiceAndTheProgramGoesOn) {
  StationHarness station("MODEM=0\r\n");
  ASSERT_TRUE(station.Start());
  std::vector<double> tries;
  station.socket.OnConnect = [&] {
    tries.push_back(station.clock.MonotonicSeconds());
    station.socket.SetState(SocketState::Error);
  };
  station.Controls().Transmit.Check6.RightClick();
  const double pressed = station.clock.MonotonicSeconds();
  station.Controls().TxSetup.TxOk.Click();
  ASSERT_EQ(tries.size(), 2U);
  EXPECT_NEAR(tries[0] - pressed, 2.0, 1e-6);
  EXPECT_NEAR(tries[1] - pressed, 4.0, 1e-6);
  EXPECT_FALSE(station.Controls().TxSetup.Frame4.Visible);
  EXPECT_TRUE(station.program->Timer1().Enabled());
}

TEST(TransmitRoom, TheTitleTellsOfTheDigipeaterAndOfTheNewCall) {
  StationHarness station("MODEM=1\r\nTXID=10\r\n");
  ASSERT_TRUE(station.Start());
  station.Controls().Transmit.Check6.RightClick();
  station.Controls().TxSetup.TxSsid.Text = "7";
  station.Controls().TxSetup.DigiBox.Value = 1;
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_EQ(Mid(station.State().Settings.TitleText, 61, 11), "Digi active");
  EXPECT_NE(station.Controls().Window.Title.find("QX7KB-7"), std::string::npos);
  EXPECT_NE(station.Controls().Window.Title.find("Digi active"), std::string::npos);
  station.Controls().Transmit.Check6.RightClick();
  station.Controls().TxSetup.DigiBox.Value = 0;
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_EQ(Mid(station.State().Settings.TitleText, 61, 11), "           ");
}

TEST(TransmitRoom, TheBarTellsTheMinutesToTheNextReport) {
  StationHarness station("TXON=10\r\n");
  ASSERT_TRUE(station.Start());
  FillBar& bar = station.Controls().Transmit.NextBeacon;
  EXPECT_FALSE(bar.Visible);
  Press(station.Controls().Transmit.Check6, 1);
  station.Ticks(1);
  EXPECT_TRUE(bar.Visible);
  EXPECT_EQ(bar.FilledPx, 0);
  EXPECT_EQ(bar.ToolTip, "next position report in 10 min");
  station.clock.Run(300.0);
  EXPECT_EQ(bar.ToolTip, "next position report in 6 min");
  EXPECT_NEAR(bar.FilledPx, bar.FullWidthPx / 2, 3);
  station.clock.Run(290.0);
  EXPECT_EQ(bar.ToolTip, "next position report in 1 min");
}

TEST(TransmitRoom, WithoutAPositionTheSwitchOpensUserQthSetup) {
  StationHarness station("UUN=0\r\nUUE=0\r\nTXON=10\r\n");
  ASSERT_TRUE(station.Start());
  QthSetupControls& qth = station.Controls().Qth;
  TransmitControls& transmit = station.Controls().Transmit;
  qth.Frame2.Visible = false;
  EXPECT_FALSE(station.Controls().Chat.Check7.Enabled);
  Press(transmit.Check6, 1);
  EXPECT_TRUE(qth.Frame2.Visible);
  EXPECT_EQ(transmit.Check6.Value, 0);
  // The map's centre is taken; then the switch holds.
  qth.QthOk.Click();
  EXPECT_TRUE(station.Controls().Chat.Check7.Enabled);
  Press(transmit.Check6, 1);
  EXPECT_FALSE(qth.Frame2.Visible);
  EXPECT_EQ(transmit.Check6.Value, 1);
}

TEST(TransmitRoom, WhatWasConfirmedComesBackAtTheNextStart) {
  StationHarness station("MODEM=5\r\n");
  ASSERT_TRUE(station.Start());
  TxSetupControls& panel = station.Controls().TxSetup;
  station.Controls().Transmit.Check6.RightClick();
  panel.TxSsid.Text = "16";
  panel.TxDestinationField.Text = "apzzz";
  panel.TxPathField.Text = "wide1-1,wide2-1";
  panel.TxInterval.Text = "25";
  panel.TxOverlayField.Text = "s";
  panel.TxTimestampBox.Value = 1;
  panel.TxLevel.Text = "450";
  panel.CrossUp.Click();  // "19200"
  panel.DigiBox.Value = 1;
  panel.SymbolUp.Click();
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line) {
    panel.InfoField[line].Text = "line " + std::to_string(line) + " \xB0 = {x}";
    panel.fr4ta[line].Value = static_cast<int>(line % 2);
    panel.InfoMemory[line].ToolTip = "memory " + std::to_string(line);
  }
  for (std::size_t at = 0; at < TxSetupControls::kPaths; ++at)
    panel.PathMemory[at].ToolTip = "PATH" + std::to_string(at);
  panel.TxOk.Click();
  station.Controls().Transmit.Check18.RightClick();
  ObjectSetupControls& object = station.Controls().ObjectSetup;
  object.ObjectNameField.Text = "longnamexyz";
  object.ObjectTextField.Text = "one lane";
  object.ObjectOverlayField.Text = "j";
  object.ObjectSymbolUp.Click();
  object.ObjectOk.Click();
  const TransmissionState before = station.State().Transmission;
  const RadioState radio = station.State().Radio;
  EXPECT_EQ(before.ObjectName, "LONGNAMEXYZ");
  Press(station.Controls().Transmit.Check6, 1);
  Press(station.Controls().Transmit.Check18, 1);
  EXPECT_EQ(station.State().Transmission.ObjectTxOn, 1);

  station.Restart();
  const TransmissionState& after = station.State().Transmission;
  EXPECT_EQ(after.TxDestination, "APZZZ");
  EXPECT_EQ(after.TxPath, "WIDE1-1,WIDE2-1");
  EXPECT_EQ(after.TxIntervalMinutes, 25);
  EXPECT_EQ(after.TxOverlay, "S");
  EXPECT_EQ(after.TxTimestamp, 1);
  EXPECT_EQ(after.TxSymbolIndex, before.TxSymbolIndex);
  EXPECT_EQ(after.InfoLine, before.InfoLine);
  EXPECT_EQ(after.InfoLineActive, before.InfoLineActive);
  EXPECT_EQ(after.InfoLineMemory, before.InfoLineMemory);
  EXPECT_EQ(after.TxPathMemory, before.TxPathMemory);
  EXPECT_EQ(station.State().Radio.TxAudioLevel, 450);
  EXPECT_EQ(station.State().Radio.CrossMode, "19200");
  EXPECT_EQ(station.State().Radio.BaudMode, radio.BaudMode);
  EXPECT_EQ(station.State().Radio.DigiOn, Digipeater::On);
  // Kept: an SSID that is none makes no suffix of the call, yet the modem is told it.
  EXPECT_EQ(station.State().Identity.MySsid, "16");
  EXPECT_EQ(station.State().Identity.MyCallFull, "QX7KB");
  EXPECT_EQ(station.State().Reception.OwnHeaderPattern, "QX7KB*>WIDE1-1>WIDE2-1>APZZZ");
  // The object is there with nine characters of its name, and off the air like the station.
  EXPECT_EQ(after.ObjectName, "LONGNAMEX");
  EXPECT_EQ(after.ObjectText, "one lane");
  EXPECT_EQ(after.ObjectOverlay, "J");
  EXPECT_EQ(after.ObjectSymbol, before.ObjectSymbol);
  EXPECT_NEAR(after.ObjectNorth, before.ObjectNorth, 0.0005);
  EXPECT_NEAR(after.ObjectEast, before.ObjectEast, 0.0005);
  EXPECT_EQ(after.ObjectTxOn, 0);
  EXPECT_EQ(station.Controls().Transmit.Check6.Value, 0);
  EXPECT_EQ(station.Controls().Transmit.Check18.Value, 0);
  EXPECT_EQ(station.Controls().Transmit.Check6.Caption, "TX 25");
}

}  // namespace
}  // namespace zepril
