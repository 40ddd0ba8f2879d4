#include "links/terminal.h"

#include <gtest/gtest.h>

#include "tests/doubles/fake_serial.h"

namespace zepril {
namespace {

class CountedMap final : public MapActions {
 public:
  void MapRedraw() override {}
  void MapRefresh() override { ++Refreshed; }
  int Refreshed = 0;
};

class TerminalTest : public ::testing::Test {
 protected:
  TerminalTest() {
    port.Open("1", 9600);
    port.DataArrived = [this] { terminal.DataArrived(); };
    Timer1.Arm(6000);
  }
  void Type(const std::string& keys) {
    for (const char key : keys)
      panel.Text19.KeyTyped(key);
  }
  void Print(const std::string& text) {
    port.Reads.push_back(text);
    port.DataArrived();
  }

  FakeSerial port;
  CountedMap map;
  TerminalControls panel;
  Timer Timer1{6000};
  Timer Timer2{3000};
  Terminal terminal{panel, {port, map, Timer1, Timer2}};
};

TEST_F(TerminalTest, OnlyASerialModemHasOne) {
  EXPECT_FALSE(panel.Command65.Enabled);
  for (const RadioMode mode : {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc}) {
    terminal.EnableFor(mode);
    EXPECT_TRUE(panel.Command65.Enabled);
  }
  for (const RadioMode mode : {RadioMode::AgwLocal, RadioMode::AgwRemote, RadioMode::None}) {
    terminal.EnableFor(mode);
    EXPECT_FALSE(panel.Command65.Enabled);
  }
}

TEST_F(TerminalTest, ItOpensEmptyWithTheMainCycleStopped) {
  panel.Text19.Text = "old";
  panel.Text20.Text = "old";
  EXPECT_FALSE(panel.Frame19.Visible);
  panel.Command65.Click();
  EXPECT_TRUE(panel.Frame19.Visible);
  EXPECT_FALSE(Timer1.Enabled());
  EXPECT_EQ(panel.Text19.Text, "");
  EXPECT_EQ(panel.Text20.Text, "");
  EXPECT_TRUE(panel.Text19.FocusWanted);
}

TEST_F(TerminalTest, EachKeyIsShownAndSentAsItIs) {
  terminal.Open();
  Type("mh\r\x1B\x03");
  EXPECT_EQ(panel.Text19.Text, "mh\r\x1B\x03");
  EXPECT_EQ(port.Written, "mh\r\x1B\x03");
}

TEST_F(TerminalTest, AThousandCharactersStayAndOneMoreLeavesThreeHundred) {
  terminal.Open();
  Type(std::string(700, 'a') + std::string(300, 'b'));
  EXPECT_EQ(panel.Text19.Text.size(), 1000U);
  Type("c");
  EXPECT_EQ(panel.Text19.Text, std::string(299, 'b') + "c");
  EXPECT_EQ(port.Written.size(), 1001U);
  Print(std::string(1000, 'x'));
  EXPECT_EQ(panel.Text20.Text.size(), 1000U);
  Print("y");
  EXPECT_EQ(panel.Text20.Text, std::string(299, 'x') + "y");
}

TEST_F(TerminalTest, WhatTheModemPrintsIsShownAndTheFocusStaysInTheTypedField) {
  terminal.Open();
  panel.Text19.FocusWanted = false;
  Print("cmd:");
  EXPECT_EQ(panel.Text20.Text, "cmd:");
  EXPECT_TRUE(panel.Text19.FocusWanted);
  panel.Text19.FocusWanted = false;
  panel.Text20.Click();
  EXPECT_TRUE(panel.Text19.FocusWanted);
}

TEST_F(TerminalTest, ClosedItLeavesTheInputToTheMainCycle) {
  Print("fm QX7AB");
  EXPECT_EQ(panel.Text20.Text, "");
  EXPECT_EQ(port.Reads.size(), 1U);
}

TEST_F(TerminalTest, NothingReceivedTakesNoFocus) {
  terminal.Open();
  panel.Text19.FocusWanted = false;
  terminal.DataArrived();
  EXPECT_FALSE(panel.Text19.FocusWanted);
}

TEST_F(TerminalTest, ClosingBringsBothTimersBackAndTellsOfIt) {
  int changes = 0;
  terminal.Changed = [&] { ++changes; };
  terminal.Open();
  EXPECT_EQ(changes, 1);
  panel.Command66.Click();
  EXPECT_EQ(changes, 2);
  EXPECT_FALSE(panel.Frame19.Visible);
  EXPECT_TRUE(Timer1.Enabled());
  EXPECT_TRUE(Timer2.Enabled());
  EXPECT_EQ(map.Refreshed, 1);
}

}  // namespace
}  // namespace zepril
