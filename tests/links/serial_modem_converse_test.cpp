// Converse of a serial modem: remembered beyond the end of a run, and left.
#include "links/serial_modem.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "tests/links/serial_modem_support.h"

namespace zepril {
namespace {

TEST_F(SerialModemTest, ConverseIsRememberedBeforeItsFirstByteUntilBehindTheLastOneOfTheWayOut) {
  for (const auto& [mode, before, after] :
       std::vector<std::tuple<RadioMode, std::string, std::string>>{
           {RadioMode::Pk232, "ECHO ON\r", "\x03"},
           {RadioMode::ScsTnc, "", "\x1B%ZL\r"},
           {RadioMode::ScsPtc, "", "\x1BQ\r\x1BRESET\r"}}) {
    Use(mode);
    std::string noted = "never";
    std::string ended = "never";
    modem.Memory.Begins = [&] { noted = port.Written; };
    modem.Memory.Ended = [&] { ended = port.Written; };
    port.Written.clear();
    modem.Open();
    EXPECT_EQ(noted, before);
    port.Written.clear();
    modem.Leave();
    EXPECT_EQ(ended, after);
  }
}

TEST_F(SerialModemTest, AModemThatCouldNotBeLedBackStaysRemembered) {
  int ended = 0;
  modem.Memory.Ended = [&] { ++ended; };
  modem.Open();
  port.Vanish();
  modem.Leave();
  port.Absent = false;
  modem.Open();
  Stall();
  modem.Leave();
  EXPECT_EQ(ended, 0);
}

TEST_F(SerialModemTest, NothingIsRememberedOfAModemThatIsAway) {
  int noted = 0;
  modem.Memory.Begins = [&] { ++noted; };
  port.Absent = true;
  modem.Open();
  EXPECT_EQ(noted, 0);
}

TEST_F(SerialModemTest, AModemLeftAtAnotherSpeedIsLedOutOfConverseThere) {
  modem.Memory.SpeedLeftAt = [] { return std::optional<int>(9600); };
  modem.Open();
  port.Close();
  std::vector<int> speeds;
  port.OnWrite = [&](std::string_view bytes) {
    if (bytes == "\x03") speeds.push_back(port.Baud);
  };
  clock.Run(30.0);
  EXPECT_EQ(speeds, (std::vector<int>{9600, 1200}));
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
