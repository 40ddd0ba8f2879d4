// A serial modem whose line takes no bytes, or which has lost its power.
#include "links/serial_modem.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/links/serial_modem_support.h"

namespace zepril {
namespace {

TEST_F(SerialModemTest, AFrameThatHasNotLeftWithinTenSecondsMakesTheLinkLost) {
  modem.Open();
  clock.Run(3.0);
  int given_up = 0;
  modem.GivenUp = [&] { ++given_up; };
  Stall();
  SendFrame("=report\r");
  clock.Run(9.9);
  EXPECT_TRUE(modem.LinkIsUp());
  clock.Run(0.2);
  EXPECT_FALSE(modem.LinkIsUp());
  EXPECT_EQ(given_up, 1);
  EXPECT_EQ(port.Drops, 1);
  EXPECT_EQ(port.Waiting, 0U);
  EXPECT_EQ(modem.Trouble(), "The modem's line takes no bytes.");
  // Opened again by the rules.
  Unstall();
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
  EXPECT_EQ(modem.Trouble(), "");
}

TEST_F(SerialModemTest, FramesThatLeaveSlowlyAreNoLoss) {
  modem.Open();
  Stall();
  // Each leaves 9 s after it was written, one in every 5 s.
  for (int frames = 0; frames < 20; ++frames) {
    SendFrame("0123456789");
    clock.Schedule(9.0, [this] { port.Waiting -= 10; });
    clock.Run(5.0);
    ASSERT_TRUE(modem.LinkIsUp()) << frames;
  }
  clock.Run(30.0);
  EXPECT_TRUE(modem.LinkIsUp());
  // The next one that stays is found out as fast as the first.
  SendFrame("0123456789");
  clock.Run(10.1);
  EXPECT_FALSE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, ALineThatStillTakesNothingIsNotSetUp) {
  modem.Open();
  Stall();
  SendFrame("=report\r");
  clock.Run(10.1);
  ASSERT_FALSE(modem.LinkIsUp());
  port.Written.clear();
  double waited = 0.0;
  clock.OnWait = [&](double seconds, bool) { waited += seconds; };
  clock.Run(100.0);
  EXPECT_FALSE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, std::string(10, '\x03'));
  EXPECT_LE(waited, 10.0);
}

TEST_F(SerialModemTest, ALineThatTakesNoSettingsIsGivenUp) {
  modem.Open();
  Stall();
  modem.Program(progress);
  EXPECT_FALSE(modem.LinkIsUp());
  EXPECT_EQ(modem.Trouble(), "The modem's line takes no bytes.");
}

TEST_F(SerialModemTest, DroppedIsWhatTheLineHoldsAndTheRestOfAHalfFrame) {
  for (const auto& [mode, wipe] :
       std::vector<std::pair<RadioMode, std::string>>{{RadioMode::Pk232, "\x18"},
                                                      {RadioMode::ScsTnc, "\x18"},
                                                      {RadioMode::ScsPtc, "\x1B\r"}}) {
    Use(mode);
    modem.Open();
    port.Written.clear();
    modem.DropUnsent();
    EXPECT_EQ(port.Written, "");
    port.Waiting = 12;
    modem.DropUnsent();
    EXPECT_EQ(port.Waiting, 0U);
    EXPECT_EQ(port.Written, wipe);
  }
}

TEST_F(SerialModemTest, ADroppedFrameMakesNoLoss) {
  modem.Open();
  Stall();
  SendFrame("=report\r");
  modem.DropUnsent();
  clock.Run(30.0);
  EXPECT_TRUE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, NothingIsDroppedOfAConversation) {
  modem.Open();
  port.Drops = 0;
  clock.OnWait = [&](double, bool) { modem.DropUnsent(); };
  modem.Program(progress);
  EXPECT_EQ(port.Drops, 0);
}

// A modem behind an adapter that stays: the device does not vanish with its power.
TEST_F(SerialModemTest, AModemThatWasOffAndOnAgainIsSetUpBeforeItSends) {
  port.Ready = true;
  modem.Open();
  clock.Run(30.0);
  EXPECT_TRUE(modem.MaySend());
  port.Ready = false;
  EXPECT_FALSE(modem.MaySend());
  EXPECT_EQ(modem.Trouble(), "The modem has lost its power.");
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
  // It was spoken to while it was off: once more when it is on.
  port.Written.clear();
  port.Ready = true;
  clock.Run(80.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
}

TEST_F(SerialModemTest, WithoutThatLineTheModemItselfIsAsked) {
  modem.Open();
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_EQ(port.Written, "");
  // One that never answered is sent to.
  EXPECT_TRUE(modem.MaySend());
  EXPECT_EQ(port.Written, "\x03*\rMYCALL\rK\r");
  EXPECT_TRUE(modem.LinkIsUp());
}

}  // namespace
}  // namespace zepril
