// The gate and the digipeater program in a whole station: from the file to the server, on and off.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/station/on_air_support.h"

namespace zepril {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kGateSettings =
    "MODEM=0\r\nIGATE=1\r\nTXID=10\r\nAISRV=igate.example\r\nAIPRT=14580\r\nTXTO=ZEPR\r\n"
    "TXSY=30\r\nUUN=5395.276\r\nUUE=-10.523\r\n";
constexpr const char* kLogin = "user QX7KB pass 22513 vers ZEPRIL 8.08 filter b/ZZ9ZZZ\r\n";

class GateStationTest : public ::testing::Test {
 protected:
  void Make(const std::string& more = {}) {
    station = std::make_unique<StationHarness>(kGateSettings + more);
    // Away from the minutes at which the station identifies itself.
    station->clock.SetNow({2024, 1, 15, 12, 34, 0});
    Server().OnConnect = [this] {
      station->clock.Schedule(0.1, [this] { Server().SetState(SocketState::Connected); });
    };
    Server().OnSend = [this](std::string_view bytes) {
      if (!bytes.starts_with("user ")) return;
      station->clock.Schedule(
          0.1, [this] { Server().Deliver("# logresp QX7KB verified, server T2TEST\r\n"); });
    };
  }
  void Start(const std::string& more = {}) {
    Make(more);
    ASSERT_TRUE(station->Start());
  }
  void StartLoggedIn(const std::string& more = {}) {
    Start(more);
    Ticks(3);
    ASSERT_EQ(Internet().IGateConnected, GateLink::Up);
    Server().Sent.clear();
  }
  // What the server does comes within a tick, which makes the next one later.
  void Ticks(int count) { station->clock.Run(6.15 * count); }
  FakeSocket& Server() { return station->server_socket; }
  PlayedPrograms& Programs() { return station->programs; }
  InternetState& Internet() { return station->State().Internet; }
  std::string TitleColumns(int first, int count) {
    return std::string(Mid(station->State().Settings.TitleText, first, count));
  }
  std::string Words() {
    station->program->SecondPassed();
    return station->Controls().Gate.GateWords.Caption;
  }
  void OpenTxSetup() { station->Controls().Transmit.Check6.RightClick(); }
  void ConfirmTxSetup() { station->Controls().TxSetup.TxOk.Click(); }

  std::unique_ptr<StationHarness> station;
};

TEST_F(GateStationTest, WhatTheFileSwitchesOnComesUpInThreeTicks) {
  Start();
  EXPECT_EQ(Internet().AprsIsPasscode, "22513");
  const CheckBox& box = station->Controls().Gate.Check15;
  EXPECT_TRUE(box.Visible);
  EXPECT_TRUE(box.Enabled);
  EXPECT_EQ(box.Value, 1);
  EXPECT_EQ(TitleColumns(76, 15), "IGate          ");
  EXPECT_EQ(Server().Connects, 0);
  Ticks(1);
  EXPECT_EQ(Server().Host, "igate.example");
  EXPECT_EQ(Server().Port, 14580);
  EXPECT_TRUE(Server().Sent.empty());
  EXPECT_EQ(Words(), "igate.example has not answered the login since 12:34");
  Ticks(1);
  EXPECT_EQ(Server().Sent, Lines{kLogin});
  EXPECT_EQ(TitleColumns(76, 15), "IGate          ");
  Ticks(1);
  EXPECT_EQ(Server().Sent, Lines{kLogin});
  EXPECT_EQ(TitleColumns(76, 15), "IGate connected");
  EXPECT_NE(station->Controls().Window.Title.find("IGate connected"), std::string::npos);
  EXPECT_EQ(Words(), "connected since 12:34, nothing gated yet");
}

TEST_F(GateStationTest, TheSwitchIsKeptInTheFile) {
  StartLoggedIn();
  station->program->Stop(true);
  EXPECT_NE(station->File("ZEPRIL.INI").find("IGATE=1\r\n"), std::string::npos);
}

TEST_F(GateStationTest, WhatIsHeardReachesTheServerInItsTick) {
  StartLoggedIn();
  station->Hear("QX2CD-7", "!5232.00N/01324.00E[on foot \xE4\x1D  ", "QX0DIG*,WIDE2-1");
  EXPECT_TRUE(Server().Sent.empty());
  Ticks(1);
  EXPECT_EQ(Server().Sent, Lines{"QX2CD-7>APRS,QX0DIG,WIDE2-1,qAR,QX7KB-10:"
                                 "!5232.00N/01324.00E[on foot \xE4\x1D  \r\n"});
  // And the station on the map: reception goes on with its own copy.
  EXPECT_EQ(station->State().Stores.MoniAllRecords.Count(), 1);
  EXPECT_EQ(Words(), "connected since 12:34, 1 line gated since 12:34");
}

TEST_F(GateStationTest, WhatASerialModemHearsReachesTheServer) {
  struct Row {
    const char* Settings;
    const char* Text;
  };
  for (const Row& row :
       {Row{"MODEM=1\r\nCOM=1\r\n", "QX2CD-7*>APRS <UI>:\r\n!5232.00N/01324.00E[on foot\r\n"},
        Row{"MODEM=5\r\n", "fm QX2CD-7 to APRS ctl UI pid F0\r\n!5232.00N/01324.00E[on foot\r\n"},
        Row{"MODEM=6\r\n",
            "1:fm QX2CD-7 to APRS ctl UI pid F0\r\n!5232.00N/01324.00E[on foot\r\n"}}) {
    StartLoggedIn(row.Settings);
    station->modem.Reads = {row.Text};
    Ticks(2);
    EXPECT_EQ(Server().Sent, Lines{"QX2CD-7>APRS,qAR,QX7KB-10:!5232.00N/01324.00E[on foot\r\n"})
        << row.Settings;
    station.reset();
  }
}

TEST_F(GateStationTest, NothingIsGatedBeforeTheLoginHolds) {
  Start();
  Ticks(1);
  station->Hear("QX2CD-7", "!5232.00N/01324.00E[on foot");
  Ticks(1);
  EXPECT_EQ(Server().Sent, Lines{kLogin});
}

TEST_F(GateStationTest, TheSameFrameOverADigipeaterGoesOnce) {
  StartLoggedIn();
  for (int tick = 0; tick < 4; ++tick) {
    station->Hear("QX2CD-7", "!5232.00N/01324.00E[on foot", tick % 2 == 0 ? "" : "QX0DIG*");
    Ticks(1);
  }
  // Its path is no part of what is compared.
  EXPECT_EQ(Server().Sent.size(), 1U);
  EXPECT_EQ(station->Controls().Gate.GateWords.ToolTip, "");
  Words();
  EXPECT_EQ(station->Controls().Gate.GateWords.ToolTip,
            "last not gated 12:34: like one of the last half minute");
  Ticks(3);
  station->Hear("QX2CD-7", "!5232.00N/01324.00E[on foot");
  Ticks(1);
  EXPECT_EQ(Server().Sent.size(), 2U);
}

TEST_F(GateStationTest, NothingLeavesOnceItIsSwitchedOff) {
  StartLoggedIn();
  OpenTxSetup();
  EXPECT_EQ(station->Controls().Gate.Check15.Value, 1);
  station->Hear("QX2CD-7", "!5232.00N/01324.00E[on foot");
  station->Controls().Gate.Check15.Value = 0;
  ConfirmTxSetup();
  EXPECT_EQ(Internet().IGateOn, Gate::Off);
  Ticks(3);
  EXPECT_TRUE(Server().Sent.empty());
  EXPECT_EQ(Server().State(), SocketState::Closed);
  EXPECT_EQ(TitleColumns(76, 15), std::string(15, ' '));
  EXPECT_EQ(Words(), "IGATE off");
  // On again: the login once more.
  OpenTxSetup();
  station->Controls().Gate.Check15.Value = 1;
  ConfirmTxSetup();
  EXPECT_EQ(TitleColumns(76, 5), "IGate");
  Ticks(3);
  EXPECT_EQ(Server().Sent, Lines{kLogin});
  EXPECT_EQ(Internet().IGateConnected, GateLink::Up);
}

TEST_F(GateStationTest, ANewSsidIsThatOfTheNextLine) {
  StartLoggedIn();
  OpenTxSetup();
  station->Controls().TxSetup.TxSsid.Text = "7";
  ConfirmTxSetup();
  Ticks(1);
  station->Hear("QX2CD-7", "!5232.00N/01324.00E[on foot");
  station->Hear("QX7KB-7", "=5233.00N/01324.00E>own");
  Ticks(1);
  EXPECT_EQ(Server().Sent, (Lines{"QX2CD-7>APRS,qAR,QX7KB-7:!5232.00N/01324.00E[on foot\r\n",
                                  "QX7KB-7>APRS,qAR,TCPIP:=5233.00N/01324.00E>own\r\n"}));
  // The passcode is that of the start.
  EXPECT_EQ(Internet().AprsIsPasscode, "22513");
}

TEST_F(GateStationTest, ALostServerIsLoggedInAtAgain) {
  StartLoggedIn();
  Server().SetState(SocketState::PeerClosed);
  station->Hear("QX2CD-7", "!5232.00N/01324.00E[on foot");
  Ticks(1);
  EXPECT_TRUE(Server().Sent.empty());
  EXPECT_EQ(TitleColumns(76, 15), "IGate          ");
  Ticks(2);
  EXPECT_EQ(Server().Sent, Lines{kLogin});
  EXPECT_EQ(TitleColumns(76, 15), "IGate connected");
}

TEST_F(GateStationTest, AServerThatTakesNothingGetsNothingLate) {
  StartLoggedIn();
  station->Hear("QX2CD-7", "!5232.00N/01324.00E[on foot");
  Ticks(1);
  Server().Unsent = 60;
  for (int second = 0; second <= 11; ++second)
    station->program->SecondPassed();
  EXPECT_EQ(Server().Drops, 1);
  Ticks(3);
  EXPECT_EQ(Internet().IGateConnected, GateLink::Up);
}

TEST_F(GateStationTest, AListenerHasNoGate) {
  Start("USER=DLXYZ\r\n");
  EXPECT_EQ(Internet().AprsIsPasscode, "0");
  EXPECT_EQ(Internet().IGateOn, Gate::Off);
  EXPECT_FALSE(station->Controls().Gate.Check15.Visible);
  EXPECT_FALSE(station->Controls().Gate.Check15.Enabled);
  Ticks(5);
  EXPECT_EQ(Server().Connects, 0);
  EXPECT_EQ(Words(), "no gate: no passcode for this call");
  // A hidden switch is not read.
  OpenTxSetup();
  station->Controls().Gate.Check15.Value = 1;
  ConfirmTxSetup();
  EXPECT_EQ(Internet().IGateOn, Gate::Off);
}

TEST_F(GateStationTest, InterfacesWithoutAGateNeverTouchTheServer) {
  for (const char* mode : {"MODEM=3\r\n", "MODEM=4\r\n"}) {
    Start(mode);
    Ticks(5);
    EXPECT_EQ(Server().Connects, 0) << mode;
    EXPECT_EQ(Words(), "no gate with this radio interface");
    if (station->State().Radio.RadioMode == 3) station->Hear("QX2CD-7", "!5232.00N/01324.00E[");
    Ticks(1);
    EXPECT_TRUE(Server().Sent.empty());
  }
}

TEST_F(GateStationTest, AConnectedGateIdentifiesTheStation) {
  StartLoggedIn();
  station->socket.Sent.clear();
  station->clock.SetNow({2024, 1, 15, 13, 7, 0});
  Ticks(2);
  ASSERT_EQ(station->socket.Sent.size(), 1U);
  EXPECT_TRUE(station->socket.Sent[0].ends_with("=4830.15N/00805.20E> ZEPRIL  IGate R->I active"))
      << ::testing::PrintToString(station->socket.Sent[0]);
  EXPECT_EQ(station->State().Transmission.LastIdBeaconTime, "13:07");
}

TEST_F(GateStationTest, TheEndClosesTheLink) {
  StartLoggedIn();
  station->program->Stop(true);
  EXPECT_EQ(Server().State(), SocketState::Closed);
}

// ---- Digipeater program -------------------------------------------------------------------------

TEST_F(GateStationTest, TheDigipeaterProgramIsStartedWatchedAndClosed) {
  Make("DIGI=1\r\nIGATE=0\r\n");
  double waited = 0.0;
  station->clock.OnWait = [&](double seconds, bool pumping) { waited += pumping ? seconds : 0.0; };
  ASSERT_TRUE(station->Start());
  ASSERT_EQ(Programs().Started.size(), 1U);
  EXPECT_TRUE(Programs().Started[0].ends_with("/ZEPRIL/AGWUIDIGI.EXE")) << Programs().Started[0];
  EXPECT_GE(waited, 4.0);
  Ticks(1);
  EXPECT_EQ(TitleColumns(61, 11), "Digi: AGWUI");
  // Closed by hand, and started by hand.
  Programs().Process = 0;
  Ticks(1);
  EXPECT_EQ(station->State().Radio.DigiOn, Digipeater::Off);
  EXPECT_EQ(TitleColumns(61, 11), std::string(11, ' '));
  Programs().Process = PlayedPrograms::kProcess;
  Ticks(1);
  EXPECT_EQ(station->State().Radio.DigiOn, Digipeater::On);
  EXPECT_EQ(Internet().UiDigiWindow, PlayedPrograms::kProcess);
  station->program->Stop(true);
  EXPECT_EQ(Programs().Closed.size(), 1U);
}

TEST_F(GateStationTest, TxSetupStartsAndClosesTheDigipeaterProgram) {
  Start("IGATE=0\r\n");
  EXPECT_TRUE(Programs().Started.empty());
  OpenTxSetup();
  station->Controls().TxSetup.DigiBox.Value = 1;
  ConfirmTxSetup();
  EXPECT_EQ(Programs().Started.size(), 1U);
  Ticks(1);
  EXPECT_EQ(TitleColumns(61, 11), "Digi: AGWUI");
  OpenTxSetup();
  EXPECT_EQ(station->Controls().TxSetup.DigiBox.Value, 1);
  station->Controls().TxSetup.DigiBox.Value = 0;
  ConfirmTxSetup();
  EXPECT_EQ(Programs().Closed.size(), 1U);
  Ticks(1);
  EXPECT_EQ(station->State().Radio.DigiOn, Digipeater::Off);
}

TEST_F(GateStationTest, TheOperatorNamesAnotherDigipeaterProgram) {
  Make("DIGI=1\r\nIGATE=0\r\n");
  station->files.Write("C:\\ZEPRIL\\WINDOW.TXT", "UIDIGI=C:\\DIGI\\run\r\n");
  ASSERT_TRUE(station->Start());
  ASSERT_EQ(Programs().Started.size(), 1U);
  EXPECT_TRUE(Programs().Started[0].ends_with("/DIGI/run")) << Programs().Started[0];
  station->program->Stop(true);
  EXPECT_NE(station->File("WINDOW.TXT").find("UIDIGI=C:\\DIGI\\run"), std::string::npos);
}

}  // namespace
}  // namespace zepril
