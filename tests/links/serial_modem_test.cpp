#include "links/serial_modem.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "links/agw_link.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class SerialModemTest : public ::testing::Test {
 protected:
  SerialModemTest() {
    identity.MyCall = "QX7KB";
    identity.MyCallFull = "QX7KB";
    Use(RadioMode::Pk232);
    clock.Drive(reopen, true);
  }
  void Use(RadioMode mode) { radio.RadioMode = static_cast<int>(mode); }

  IdentityState identity;
  RadioState radio;
  TransmissionState transmission;
  FakeSerial port;
  VirtualClock clock;
  Timer reopen{kReopenMilliseconds};
  RecordedProgress progress;
  SerialModem modem{identity, radio, transmission, {port, clock, reopen}};
};

TEST_F(SerialModemTest, ItOpensThePortOfTheMode) {
  radio.TncPort = 2;
  radio.TncBaud = "1200";
  modem.Open();
  EXPECT_EQ(port.Device, "2");
  EXPECT_EQ(port.Baud, 1200);
  EXPECT_EQ(port.Written, "ECHO ON\rK\r");
  EXPECT_TRUE(modem.LinkIsUp());
  Use(RadioMode::ScsTnc);
  radio.ScsPort = 4;
  radio.ScsBaud = "38400";
  modem.Open();
  EXPECT_EQ(port.Device, "4");
  EXPECT_EQ(port.Baud, 38400);
}

TEST_F(SerialModemTest, AVanishedPortIsOpenedAgainWithWhatTheModemIsToldAtStart) {
  modem.Open();
  port.Close();
  port.Written.clear();
  clock.Run(9.9);
  EXPECT_FALSE(modem.LinkIsUp());
  clock.Run(0.2);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written,
            "\x03"
            "ECHO ON\rK\r");
}

// It may have stayed in converse, where its commands would go on the air.
TEST_F(SerialModemTest, AModemThatWasFoundAgainIsBroughtBackToItsCommandsFirst) {
  for (const auto& [mode, told] : std::vector<std::pair<RadioMode, std::string>>{
           {RadioMode::ScsTnc, ""}, {RadioMode::ScsPtc, "\x1BQ\rPAC\rK\r"}}) {
    Use(mode);
    modem.Open();
    port.Close();
    port.Written.clear();
    clock.Run(kReopenMilliseconds / 1000.0 + 0.1);
    EXPECT_EQ(port.Written, told);
  }
}

TEST_F(SerialModemTest, AReopenedPortIsToldBehindItsConversation) {
  modem.Open();
  port.Close();
  std::vector<std::string> written;
  modem.Reopened = [&] {
    written.push_back(port.Written);
    EXPECT_TRUE(modem.LinkIsUp());
    EXPECT_FALSE(modem.IsBusy());
  };
  port.Absent = true;
  clock.Run(15.0);
  EXPECT_TRUE(written.empty());
  port.Absent = false;
  port.Written.clear();
  clock.Run(30.0);
  EXPECT_EQ(written, (std::vector<std::string>{"\x03"
                                               "ECHO ON\rK\r"}));
}

TEST_F(SerialModemTest, AnAbsentDeviceCostsNoTimeAtEachAttempt) {
  port.Absent = true;
  modem.Open();
  double waited = 0.0;
  clock.OnWait = [&](double seconds, bool) { waited += seconds; };
  clock.Run(60.0);
  EXPECT_EQ(waited, 0.0);
  EXPECT_FALSE(modem.LinkIsUp());
  port.Absent = false;
  clock.Run(10.0);
  EXPECT_TRUE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, AModemThatWasAwayAtStartHearsItsCallWhenItComes) {
  port.Absent = true;
  modem.Open();
  port.Absent = false;
  clock.Run(20.0);
  EXPECT_NE(port.Written.find("ECHO ON\rK\r"), std::string::npos);
  EXPECT_NE(port.Written.find("MYCALL QX7KB\r"), std::string::npos);
  EXPECT_TRUE(port.Written.ends_with("K\r"));
  // Once is enough.
  port.Close();
  port.Written.clear();
  clock.Run(20.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written.find("MYCALL"), std::string::npos);
}

TEST_F(SerialModemTest, APortThatStandsIsLeftAlone) {
  modem.Open();
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_EQ(port.Written, "");
}

TEST_F(SerialModemTest, ItIsNotOpenedWhileTheProgramSaysNo) {
  modem.Open();
  port.Close();
  bool may = false;
  modem.MayReopen = [&] { return may; };
  clock.Run(30.0);
  EXPECT_FALSE(modem.LinkIsUp());
  may = true;
  clock.Run(10.0);
  EXPECT_TRUE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, ItIsNotOpenedInTheMiddleOfAConversation) {
  modem.Open();
  // The line is lost in the first wait, which lets timers run.
  bool busy = false;
  clock.OnWait = [&](double, bool pumping) {
    if (!pumping) return;
    port.Close();
    busy = modem.IsBusy();
    modem.ReopenElapsed();
    EXPECT_FALSE(port.IsOpen());
  };
  modem.Program(progress);
  EXPECT_TRUE(busy);
  EXPECT_FALSE(modem.IsBusy());
}

// Else it would go on under the old call and path.
TEST_F(SerialModemTest, SettingsConfirmedWhileTheLineWasLostAreToldWhenItIsBack) {
  for (const auto& [mode, told] : std::vector<std::pair<RadioMode, std::string>>{
           {RadioMode::Pk232,
            "\x03"
            "ECHO ON\rK\r"
            "\x03MYCALL QX7KB\rUNPROTO APZEP\rDIGIPEAT OFF\rDFROM NONE\rMYALIAS NONE\r\rK\r"},
           {RadioMode::ScsPtc,
            "\x1BQ\rPAC\rK\r\x1B"
            "B 300\r\x1BTXL A 300\r\x1BTXL F 300\r\x1B"
            "DIGI OFF\r\x1BUNPROTO APZEP \r"}}) {
    Use(mode);
    modem.Open();
    port.Vanish();
    transmission.TxDestination = "APZEP";
    transmission.TxPath = "";
    modem.Program(progress);
    port.Absent = false;
    port.Written.clear();
    clock.Run(20.0);
    EXPECT_EQ(port.Written, told);
    // Once is enough.
    port.Close();
    port.Written.clear();
    clock.Run(20.0);
    EXPECT_EQ(port.Written.find("UNPROTO"), std::string::npos);
  }
}

TEST_F(SerialModemTest, SettingsThatALostLineCutShortAreToldWhenItIsBack) {
  modem.Open();
  clock.OnWait = [&](double, bool) { port.Close(); };
  modem.Program(progress);
  clock.OnWait = nullptr;
  port.Written.clear();
  clock.Run(20.0);
  EXPECT_NE(port.Written.find("UNPROTO"), std::string::npos);
}

// The waits of its telling let the operator's presses through.
TEST_F(SerialModemTest, SettingsConfirmedWhileOthersAreToldFollowBehindThem) {
  transmission.TxPath = "";
  modem.Open();
  port.Vanish();
  modem.Program(progress);
  port.Absent = false;
  port.Written.clear();
  bool pressed = false;
  clock.OnWait = [&](double, bool pumping) {
    if (!pumping || pressed) return;
    pressed = true;
    transmission.TxDestination = "APZEP";
    modem.Program(progress);
  };
  clock.Run(30.0);
  clock.OnWait = nullptr;
  ASSERT_TRUE(pressed);
  EXPECT_EQ(progress.Ended, 2);
  const std::size_t first = port.Written.find("UNPROTO ZEPR\r");
  const std::size_t second = port.Written.find("UNPROTO APZEP\r");
  ASSERT_NE(first, std::string::npos);
  ASSERT_NE(second, std::string::npos);
  EXPECT_LT(port.Written.find("K\r", first), second);
}

TEST_F(SerialModemTest, ProgrammingTellsHowFarItIs) {
  modem.Open();
  modem.Program(progress);
  EXPECT_EQ(progress.What, "TX SETUP");
  EXPECT_EQ(progress.Shares.front(), 0.0);
  EXPECT_EQ(progress.Shares.back(), 1.0);
  EXPECT_EQ(progress.Ended, 1);
}

TEST_F(SerialModemTest, TheLastDataIsNoted) {
  modem.Open();
  clock.Run(5.0);
  int told = 0;
  modem.DataArrived = [&] { ++told; };
  port.DataArrived();
  EXPECT_EQ(radio.LastDataSeconds, clock.MonotonicSeconds());
  EXPECT_EQ(told, 1);
}

TEST_F(SerialModemTest, LeavingEndsTheAttemptsToo) {
  Use(RadioMode::ScsPtc);
  modem.Open();
  port.Written.clear();
  modem.Leave();
  EXPECT_EQ(port.Written, "\x1BQ\r\x1BRESET\r");
  port.Close();
  clock.Run(60.0);
  EXPECT_FALSE(modem.LinkIsUp());
}

}  // namespace
}  // namespace zepril
