// A serial modem that tells its call: asked before a frame, set up when it is another.
#include "links/serial_modem.h"

#include <gtest/gtest.h>

#include "tests/links/serial_modem_support.h"

namespace zepril {
namespace {

TEST_F(SerialModemCallTest, ItIsAskedBeforeAFrameAndAnOwnCallHoldsForSomeSeconds) {
  for (const auto& [mode, way_out, opening] : kModems) {
    OpenIn(mode);
    EXPECT_TRUE(modem.MaySend());
    EXPECT_EQ(port.Written, Question());
    clock.Run(SerialModem::kAnswerHoldsSeconds - 0.5);
    EXPECT_TRUE(modem.MaySend());
    EXPECT_EQ(port.Written, Question());
    clock.Run(1.0);
    EXPECT_TRUE(modem.MaySend());
    EXPECT_EQ(port.Written, Question() + Question());
  }
}

TEST_F(SerialModemCallTest, OneThatLostItsPowerUnseenIsSetUpWholeBeforeItSends) {
  for (const auto& [mode, way_out, opening] : kModems) {
    OpenIn(mode);
    ASSERT_TRUE(modem.MaySend());
    clock.Run(30.0);
    SwitchOffAndOn();
    port.Written.clear();
    EXPECT_FALSE(modem.MaySend());
    EXPECT_EQ(modem.Trouble(), "The modem has lost its power.");
    EXPECT_FALSE(modem.LinkIsUp());
    clock.Run(60.0);
    EXPECT_EQ(port.Written, Question() + way_out + SetUp() + opening);
    EXPECT_TRUE(modem.LinkIsUp());
    EXPECT_TRUE(modem.MaySend());
    EXPECT_EQ(modem.Trouble(), "");
  }
}

// It may have been off when START spoke to it.
TEST_F(SerialModemCallTest, OneThatComesToItsPowerAfterStartIsSetUpBeforeItSends) {
  Use(RadioMode::ScsTnc);
  has_power = false;
  modem.Open();
  EXPECT_TRUE(modem.MaySend());
  clock.Run(30.0);
  has_power = true;
  EXPECT_FALSE(modem.MaySend());
  clock.Run(60.0);
  EXPECT_EQ(call, "QX7KB");
  EXPECT_TRUE(modem.MaySend());
}

TEST_F(SerialModemCallTest, OneThatDoesNotAnswerAnyMoreIsLostUntilItAnswers) {
  for (const auto& [mode, way_out, opening] : kModems) {
    has_power = true;
    OpenIn(mode);
    ASSERT_TRUE(modem.MaySend());
    clock.Run(30.0);
    has_power = false;
    port.Written.clear();
    EXPECT_FALSE(modem.MaySend());
    EXPECT_EQ(port.Written, Question() + Question());
    EXPECT_EQ(modem.Trouble(), "The modem does not answer.");
    // No set-up for nobody.
    port.Written.clear();
    clock.Run(25.0);
    EXPECT_EQ(port.Written, Question() + Question());
    EXPECT_FALSE(modem.LinkIsUp());
    EXPECT_EQ(modem.Trouble(), "The modem does not answer.");
    // It kept its power: only its cable was off.
    has_power = true;
    port.Written.clear();
    clock.Run(10.0);
    EXPECT_EQ(port.Written, Question());
    EXPECT_TRUE(modem.LinkIsUp());
    EXPECT_EQ(modem.Trouble(), "");
  }
}

TEST_F(SerialModemCallTest, OneThatAnswersAgainUnderAnotherCallIsSetUpWhole) {
  for (const auto& [mode, way_out, opening] : kModems) {
    has_power = true;
    OpenIn(mode);
    ASSERT_TRUE(modem.MaySend());
    clock.Run(30.0);
    has_power = false;
    ASSERT_FALSE(modem.MaySend());
    SwitchOffAndOn();
    has_power = true;
    port.Written.clear();
    clock.Run(70.0);
    EXPECT_EQ(port.Written, Question() + way_out + SetUp() + opening);
    EXPECT_TRUE(modem.MaySend());
  }
}

TEST_F(SerialModemCallTest, SettingsConfirmedWhileItWasSilentAreToldWhenItAnswers) {
  OpenIn(RadioMode::ScsTnc);
  ASSERT_TRUE(modem.MaySend());
  clock.Run(30.0);
  has_power = false;
  ASSERT_FALSE(modem.MaySend());
  transmission.TxPath = "RELAY";
  modem.Program(progress);
  has_power = true;
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_EQ(port.Written, Question() + "\x18" + SetUp());
  EXPECT_TRUE(modem.LinkIsUp());
}

TEST_F(SerialModemCallTest, AListenersModemIsAskedAfterFiveMinutesOfSilence) {
  OpenIn(RadioMode::ScsTnc);
  ASSERT_TRUE(modem.MaySend());
  port.Written.clear();
  clock.Run(200.0);
  port.DataArrived();  // something is heard
  clock.Run(SerialModem::kLongestSilenceSeconds - 1.0);
  EXPECT_EQ(port.Written, "");
  SwitchOffAndOn();
  clock.Run(60.0);
  EXPECT_EQ(port.Written, Question() + "\x18" + SetUp());
  EXPECT_EQ(call, "QX7KB");
}

TEST_F(SerialModemCallTest, NothingIsAskedWhileTheOperatorTalksToIt) {
  OpenIn(RadioMode::ScsTnc);
  modem.MayReopen = [] { return false; };
  clock.Run(2.0 * SerialModem::kLongestSilenceSeconds);
  EXPECT_EQ(port.Written, "");
}

TEST_F(SerialModemCallTest, WhatIsHeardWhileItIsAskedIsNotLost) {
  OpenIn(RadioMode::ScsTnc);
  port.Reads = {"fm N0CALL to APRS ctl UI pid F0\r\n"};
  heard_by_modem = "!tst\r\n";
  EXPECT_TRUE(modem.MaySend());
  EXPECT_EQ(heard, "fm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n");
}

TEST_F(SerialModemCallTest, BytesThatTheLineDoesNotTakeAreNotAskedBehind) {
  OpenIn(RadioMode::ScsTnc);
  ASSERT_TRUE(modem.MaySend());
  clock.Run(6.0);
  port.Written.clear();
  port.Waiting = 10;
  EXPECT_TRUE(modem.MaySend());
  EXPECT_EQ(port.Written, "");
}

TEST_F(SerialModemCallTest, TheEndOfTheProgramDoesNotWaitForAnAnswer) {
  OpenIn(RadioMode::ScsTnc);
  ASSERT_TRUE(modem.MaySend());
  clock.Run(6.0);
  has_power = false;
  clock.EndIsAsked = true;
  const double begin = clock.MonotonicSeconds();
  EXPECT_FALSE(modem.MaySend());
  EXPECT_LT(clock.MonotonicSeconds() - begin, 0.1);
  // Its silence tells nothing: the line stays for the way out of converse.
  EXPECT_TRUE(modem.LinkIsUp());
}

}  // namespace
}  // namespace zepril
