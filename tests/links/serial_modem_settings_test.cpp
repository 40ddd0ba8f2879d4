// What a serial modem is told of new settings, also while it is lost or spoken to.
#include "links/serial_modem.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "tests/links/serial_modem_support.h"

namespace zepril {
namespace {

// Else it would go on under the old call and path.
TEST_F(SerialModemTest, SettingsConfirmedWhileTheLineWasLostAreToldWhenItIsBack) {
  for (const auto& [mode, way_out, opening] : kModems) {
    Use(mode);
    modem.Open();
    port.Vanish();
    transmission.TxDestination = "APZEP";
    transmission.TxPath = "";
    modem.Program(progress);
    port.Absent = false;
    port.Written.clear();
    clock.Run(60.0);
    EXPECT_EQ(port.Written, way_out + SetUp() + opening);
    EXPECT_NE(port.Written.find("APZEP"), std::string::npos);
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
  port.Written.clear();
  bool pressed = false;
  clock.OnWait = [&](double, bool pumping) {
    if (!pumping || pressed) return;
    pressed = true;
    transmission.TxDestination = "APZEP";
    modem.Program(progress);
  };
  modem.Program(progress);
  clock.OnWait = nullptr;
  ASSERT_TRUE(pressed);
  EXPECT_EQ(progress.Ended, 2);
  const std::size_t first = port.Written.find("UNPROTO ZEPR\r");
  const std::size_t second = port.Written.find("UNPROTO APZEP\r");
  ASSERT_NE(first, std::string::npos);
  ASSERT_NE(second, std::string::npos);
  EXPECT_LT(port.Written.find("K\r", first), second);
}

// The way out of converse is still to be told.
TEST_F(SerialModemTest, TheEndInTheMiddleOfTxSetupLosesNoLine) {
  modem.Open();
  clock.OnWait = [&](double, bool) { clock.EndIsAsked = true; };
  modem.Program(progress);
  EXPECT_TRUE(modem.LinkIsUp());
  clock.EndIsAsked = false;
  clock.OnWait = nullptr;
  port.Written.clear();
  modem.Leave();
  EXPECT_EQ(port.Written, "\x03");
}

TEST_F(SerialModemTest, ProgrammingTellsHowFarItIs) {
  modem.Open();
  modem.Program(progress);
  EXPECT_EQ(progress.What, "TX SETUP");
  EXPECT_EQ(progress.Shares.front(), 0.0);
  EXPECT_EQ(progress.Shares.back(), 1.0);
  EXPECT_EQ(progress.Ended, 1);
}

}  // namespace
}  // namespace zepril
