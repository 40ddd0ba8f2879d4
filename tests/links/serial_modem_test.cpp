// The life of a serial modem: opened, lost, found again, set up anew.
#include "links/serial_modem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "tests/links/serial_modem_support.h"

namespace zepril {
namespace {

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

// It may have lost its power, and its call and speed with it; or it may have stayed in converse,
// where its commands would go on the air.
TEST_F(SerialModemTest, AVanishedModemIsLedOutOfConverseAndSetUpWholeAgain) {
  for (const auto& [mode, way_out, opening] : kModems) {
    Use(mode);
    modem.Open();
    port.Close();
    port.Written.clear();
    clock.Run(9.9);
    EXPECT_FALSE(modem.LinkIsUp());
    clock.Run(60.0);
    EXPECT_TRUE(modem.LinkIsUp());
    EXPECT_EQ(port.Written, way_out + SetUp() + opening);
    // Once.
    port.Written.clear();
    clock.Run(60.0);
    EXPECT_EQ(port.Written, "");
  }
}

TEST_F(SerialModemTest, WhileAModemIsSetUpAgainTheProgramTellsHowFarItIsAndNoEventComesBetween) {
  modem.Open();
  port.Close();
  progress.Shares.clear();
  int fired = 0;
  Timer tick{6000};
  tick.Elapsed = [&] { fired += modem.IsBusy() || !modem.LinkIsUp() ? 1 : 0; };
  clock.Run(9.0);
  clock.Drive(tick, false);
  tick.Arm(6000);
  double longest = 0.0;
  clock.OnWait = [&](double seconds, bool pumping) {
    EXPECT_FALSE(pumping);
    longest = std::max(longest, seconds);
  };
  clock.Run(2.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(fired, 0);
  EXPECT_EQ(progress.What, "MODEM SET-UP");
  EXPECT_EQ(progress.Shares.front(), 0.0);
  EXPECT_GT(progress.Shares.back(), 0.9);
  EXPECT_GT(progress.Shares.size(), 100U);
  EXPECT_EQ(progress.Ended, 1);
  EXPECT_LE(longest, 0.5);
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
  ASSERT_EQ(written.size(), 1U);
  EXPECT_TRUE(written.front().ends_with("ECHO ON\rK\r"));
}

TEST_F(SerialModemTest, ALineThatIsLostWithinTheSetUpIsTriedAnew) {
  modem.Open();
  port.Close();
  int reopened = 0;
  modem.Reopened = [&] { ++reopened; };
  clock.Schedule(20.0, [this] { port.Close(); });
  port.OnWrite = [this](std::string_view bytes) {
    if (bytes == "MYCALL QX7KB\r" && !port.Absent) port.Vanish();
  };
  clock.Run(60.0);
  EXPECT_EQ(reopened, 0);
  // Nothing was waited for behind that.
  port.OnWrite = nullptr;
  port.Absent = false;
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_EQ(reopened, 1);
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
}

TEST_F(SerialModemTest, TheEndOfTheProgramIsNotHeldUpByASetUp) {
  modem.Open();
  port.Close();
  int reopened = 0;
  modem.Reopened = [&] { ++reopened; };
  double ended = 0.0;
  clock.Schedule(12.0, [&] {
    clock.EndIsAsked = true;
    ended = clock.MonotonicSeconds();
  });
  double last = 0.0;
  clock.OnWait = [&](double seconds, bool) { last = clock.MonotonicSeconds() + seconds; };
  clock.Run(10.5);
  ASSERT_GT(ended, 0.0);
  EXPECT_LE(last - ended, 1.0);
  EXPECT_EQ(reopened, 0);
  EXPECT_FALSE(modem.LinkIsUp());
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

TEST_F(SerialModemTest, AModemThatWasAwayAtStartIsSetUpWholeWhenItComes) {
  port.Absent = true;
  modem.Open();
  port.Absent = false;
  clock.Run(60.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
}

// It came between START and the opening: it would send under the call that it has from the shop.
TEST_F(SerialModemTest, AModemThatStartHasNotReachedIsNotBroughtToConverseUnprogrammed) {
  modem.WasNotSetUp();
  modem.Open();
  EXPECT_EQ(port.Written, "");
  EXPECT_FALSE(modem.LinkIsUp());
  EXPECT_EQ(modem.Trouble(), "START has not reached the modem.");
  clock.Run(60.0);
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
  EXPECT_EQ(modem.Trouble(), "");
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

TEST_F(SerialModemTest, TheLastDataIsNoted) {
  modem.Open();
  clock.Run(5.0);
  int told = 0;
  modem.DataArrived = [&] { ++told; };
  port.DataArrived();
  EXPECT_EQ(radio.LastDataSeconds, clock.MonotonicSeconds());
  EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace zepril
