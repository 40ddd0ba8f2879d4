// The terminal's keys, its printed text, and half a line at its end.
#include "links/terminal.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/doubles/fake_serial.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/scripted_dialogs.h"

namespace zepril {
namespace {

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
  RecordedActions map;
  TerminalControls panel;
  Timer Timer1{6000};
  Timer Timer2{3000};
  ScriptedDialogs boxes;
  RadioState radio;
  Terminal terminal{radio, panel, {port, map, Timer1, Timer2, boxes}};
};

TEST_F(TerminalTest, ThereIsOneWhenThereIsAModemToTalkTo) {
  EXPECT_FALSE(panel.Command65.Enabled);
  terminal.Enable();
  EXPECT_TRUE(panel.Command65.Enabled);
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
  EXPECT_EQ(map.CountOf("refresh"), 1);
}

// ---- Half a line -------------------------------------------------------------------------------

class HalfLineTest : public TerminalTest {
 protected:
  void Use(RadioMode mode) { radio.RadioMode = static_cast<int>(mode); }
  void Expect(DialogAnswer answer) {
    boxes.Expect("ZEP RIL          TERMINAL",
                 "A LINE IS TYPED WITHOUT ITS END. DO YOU WANT TO SEND IT OFF NOW ?   (NO: IT IS "
                 "WIPED)",
                 answer);
  }
  // What goes to the modem at CLOSE.
  std::string WrittenAtClose() {
    port.Written.clear();
    panel.Command66.Click();
    return port.Written;
  }
};

TEST_F(HalfLineTest, IsSentOffOrWipedAsTheModemTakesItBeforeTheProgramGoesOn) {
  for (const auto& [mode, wipe] :
       std::vector<std::pair<RadioMode, std::string>>{{RadioMode::Pk232, "\x18"},
                                                      {RadioMode::ScsTnc, "\x18"},
                                                      {RadioMode::ScsPtc, "\x1B\r"}}) {
    Use(mode);
    boxes.WhileAsking = [&] {
      EXPECT_TRUE(panel.Frame19.Visible);
      EXPECT_FALSE(Timer1.Enabled());
    };
    for (const auto& [answer, written] : std::vector<std::pair<DialogAnswer, std::string>>{
             {DialogAnswer::Yes, "\r"}, {DialogAnswer::No, wipe}}) {
      terminal.Open();
      Type(">half");
      Expect(answer);
      EXPECT_EQ(WrittenAtClose(), written);
      EXPECT_EQ(boxes.LastButtons, DialogButtons::YesNo);
      EXPECT_EQ(boxes.LastDefault, DialogAnswer::No);
      EXPECT_FALSE(panel.Frame19.Visible);
      EXPECT_TRUE(Timer1.Enabled());
    }
  }
}

TEST_F(HalfLineTest, AWholeLineOrNoneIsNoQuestion) {
  for (const auto& [mode, keys] :
       std::vector<std::pair<RadioMode, std::string>>{{RadioMode::Pk232, ""},
                                                      {RadioMode::Pk232, "MYCALL\r"},
                                                      {RadioMode::Pk232, "MYCALL\r\n"},
                                                      {RadioMode::Pk232, "ab\b\b\b"},
                                                      {RadioMode::Pk232, "ab\x18"},
                                                      {RadioMode::Pk232, "ab\x03"},
                                                      {RadioMode::ScsTnc, "\x1BI\r"},
                                                      {RadioMode::ScsTnc, "ab\x18"},
                                                      {RadioMode::ScsPtc, "ab\x1BQ\r"},
                                                      {RadioMode::ScsPtc, "ab\x1B\b"}}) {
    Use(mode);
    terminal.Open();
    Type(keys);
    EXPECT_EQ(WrittenAtClose(), "") << keys;
  }
}

TEST_F(HalfLineTest, ACommandWithoutItsEndIsHalfALineToo) {
  for (const auto& [mode, keys] :
       std::vector<std::pair<RadioMode, std::string>>{{RadioMode::ScsTnc, "\x1B"},
                                                      {RadioMode::ScsTnc, "ab\x03"},
                                                      {RadioMode::ScsPtc, "x\r\x1B"},
                                                      {RadioMode::ScsPtc, "\x18"},
                                                      {RadioMode::Pk232, "ab\b"}}) {
    Use(mode);
    terminal.Open();
    Type(keys);
    Expect(DialogAnswer::No);
    EXPECT_NE(WrittenAtClose(), "") << keys;
  }
}

TEST_F(HalfLineTest, OnALostLineNothingIsAsked) {
  terminal.Open();
  Type("ab");
  port.Vanish();
  EXPECT_EQ(WrittenAtClose(), "");
}

TEST_F(HalfLineTest, AtTheEndOfTheProgramItIsWipedWithoutAQuestion) {
  Use(RadioMode::ScsTnc);
  terminal.Open();
  Type("ab");
  port.Written.clear();
  terminal.WipeHalfLine();
  EXPECT_EQ(port.Written, "\x18");
  terminal.WipeHalfLine();
  EXPECT_EQ(port.Written, "\x18");
}

}  // namespace
}  // namespace zepril
