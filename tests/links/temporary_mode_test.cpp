// The other mode while the button is held, and when it is not sent.
#include "links/temporary_mode.h"

#include <gtest/gtest.h>

#include "tests/doubles/fake_serial.h"

namespace zepril {
namespace {

class TemporaryModeTest : public ::testing::Test {
 protected:
  TemporaryModeTest() {
    radio.RadioMode = static_cast<int>(RadioMode::ScsTnc);
    terminal.Frame19.Visible = false;
    port.Open("3", 38400);
  }

  RadioState radio;
  RawListControls raw;
  TerminalControls terminal;
  FakeSerial port;
  TemporaryMode mode{radio, raw, terminal, port};
};

TEST_F(TemporaryModeTest, FromRobustItGoesToFskAndBack) {
  radio.BaudMode = "300R";
  raw.RawList.RightDown();
  EXPECT_EQ(port.Written, "\x1B%B300\r");
  EXPECT_TRUE(terminal.Label49.Visible);
  EXPECT_EQ(terminal.Label49.Caption,
            "TEMPORARY MODE FSK 300 Bd RELEASE BUTTON TO RETURN TO RPR 300 Bd");
  raw.RawList.RightUp();
  EXPECT_EQ(port.Written, "\x1B%B300\r\x1B%BR300\r");
  EXPECT_FALSE(terminal.Label49.Visible);
}

TEST_F(TemporaryModeTest, FromFskItGoesToRobustAndBack) {
  radio.BaudMode = "300";
  raw.RawList.RightDown();
  EXPECT_EQ(port.Written, "\x1B%BR300\r");
  EXPECT_EQ(terminal.Label49.Caption,
            "TEMPORARY MODE RPR 300 Bd RELEASE BUTTON TO RETURN TO FSK 300 Bd");
  raw.RawList.RightUp();
  EXPECT_EQ(port.Written, "\x1B%BR300\r\x1B%B300\r");
}

TEST_F(TemporaryModeTest, OtherSpeedsAndModemsDoNothing) {
  for (const char* speed : {"1200", "9600", "19200"}) {
    radio.BaudMode = speed;
    raw.RawList.RightDown();
    raw.RawList.RightUp();
  }
  radio.BaudMode = "300";
  for (const RadioMode other : {RadioMode::Pk232, RadioMode::ScsPtc, RadioMode::AgwRemote}) {
    radio.RadioMode = static_cast<int>(other);
    raw.RawList.RightDown();
    raw.RawList.RightUp();
  }
  EXPECT_EQ(port.Written, "");
  EXPECT_FALSE(terminal.Label49.Visible);
}

TEST_F(TemporaryModeTest, ASecondPressOrReleaseSendsNothing) {
  radio.BaudMode = "300";
  raw.RawList.RightUp();
  EXPECT_EQ(port.Written, "");
  raw.RawList.RightDown();
  raw.RawList.RightDown();
  raw.RawList.RightUp();
  raw.RawList.RightUp();
  EXPECT_EQ(port.Written, "\x1B%BR300\r\x1B%B300\r");
}

TEST_F(TemporaryModeTest, TheOperatorsOwnTalkIsNotBrokenInto) {
  radio.BaudMode = "300";
  terminal.Frame19.Visible = true;
  raw.RawList.RightDown();
  EXPECT_EQ(port.Written, "");
}

// Else the modem would stay in a mode that nobody knows of.
TEST_F(TemporaryModeTest, ATerminalOpenedMeanwhileDoesNotKeepTheOtherMode) {
  radio.BaudMode = "300R";
  raw.RawList.RightDown();
  terminal.Frame19.Visible = true;
  raw.RawList.RightUp();
  EXPECT_EQ(port.Written, "\x1B%B300\r\x1B%BR300\r");
  EXPECT_FALSE(terminal.Label49.Visible);
}

}  // namespace
}  // namespace zepril
