// The hand on the chat: typing, switches, ping, the automatic answer, and what the panel says.
#include "messages/chat_panel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/messages/messages_world.h"

namespace zepril {
namespace {

using ::testing::IsEmpty;

class ChatPanelTest : public ::testing::Test {
 protected:
  ChatPanelTest() { world.Timer2.Stop(); }
  ChatControls& Chat() { return world.Controls.Chat; }
  RecordPanelControls& Record() { return world.Controls.Record; }
  ChatState& State() { return world.State.Chat; }
  void Switch(CheckBox& box, int value) {
    box.Value = value;
    box.Click();
  }
  MessagesWorld world;
};

// ---- Typing ---------------------------------------------------------------------------------

TEST_F(ChatPanelTest, EachKeyPutsTheCycleOffForTwoSeconds) {
  Chat().Text3.KeyDown({'H', 0});
  EXPECT_FALSE(world.Timer1.Enabled());
  EXPECT_TRUE(world.Timer2.Enabled());
  EXPECT_EQ(world.Timer2.IntervalMs(), 2000);
  const std::uint64_t generation = world.Timer2.Generation();
  Chat().Text3.KeyDown({'e', 0});
  EXPECT_NE(world.Timer2.Generation(), generation);
}

TEST_F(ChatPanelTest, EnterInTheAddresseeLeadsToTheMessage) {
  Chat().Text2.KeyDown({13, 0});
  EXPECT_TRUE(Chat().Text3.FocusWanted);
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(ChatPanelTest, TheClearButtonEmptiesBothFields) {
  Chat().Text2.Text = "AB1CD";
  Chat().Text3.Text = "Hello";
  Chat().Command16.Click();
  EXPECT_EQ(Chat().Text2.Text + Chat().Text3.Text, "");
}

// ---- Open and closed ------------------------------------------------------------------------

TEST_F(ChatPanelTest, TheSwitchOpensAndClosesAndIsASwitchOfTheInternet) {
  Switch(Chat().Check7, 0);
  EXPECT_FALSE(Chat().Frame3.Visible);
  EXPECT_EQ(world.State.Internet.InetSwitchTime, world.Clock.SecondsSinceMidnight());
  world.Clock.Run(10.0);
  Switch(Chat().Check7, 1);
  EXPECT_TRUE(Chat().Frame3.Visible);
  EXPECT_EQ(world.State.Internet.InetSwitchTime, world.Clock.SecondsSinceMidnight());
}

TEST_F(ChatPanelTest, SwitchedOffElsewhereThePanelFollows) {
  Chat().Check7.Value = 0;
  world.Room.SecondPassed();
  EXPECT_FALSE(Chat().Frame3.Visible);
}

TEST_F(ChatPanelTest, OpenedByAMessageWithoutAPositionItCanBeClosed) {
  CheckBox& box = world.Controls.Chat.Check7;
  box.Value = 0;
  box.Enabled = false;
  world.Room.Panel.Renew();
  world.Hear("AB1CD", ":QX7KB    :Hello");
  EXPECT_EQ(box.Value, 1);
  EXPECT_TRUE(box.Enabled);
  box.Value = 0;
  box.Click();
  EXPECT_FALSE(world.Controls.Chat.Frame3.Visible);
  // As it was: only a position makes it one to be opened.
  EXPECT_FALSE(box.Enabled);
  // One that could be pressed before can be pressed still.
  box.Enabled = true;
  world.Hear("AB1CD", ":QX7KB    :Hello again");
  box.Value = 0;
  box.Click();
  EXPECT_TRUE(box.Enabled);
}

TEST_F(ChatPanelTest, ClosedTheSwitchTellsWhatWaits) {
  world.Type("AB1CD", "Hello");
  EXPECT_EQ(Chat().Check7.ToolTip.substr(0, 46), "Messages / closed, none is sent or repeated / ");
  Switch(Chat().Check7, 0);
  EXPECT_EQ(Chat().Check7.ToolTip, "Messages / 1 to be sent wait until it is opened");
  Chat().Check7.Enabled = false;
  world.Room.SecondPassed();
  EXPECT_EQ(Chat().Check7.ToolTip, "Messages / only with a position of the own station");
}

// ---- The automatic answer -------------------------------------------------------------------

TEST_F(ChatPanelTest, WithoutAnAddresseeEnterTakesTheAutomaticAnswer) {
  Switch(Chat().Check16, 1);
  EXPECT_EQ(State().AutoAnswerOn, 1);
  EXPECT_EQ(Chat().Check16.Caption, "AUTO ANSWER TEXT:");
  world.Type("", "busy");
  EXPECT_EQ(State().AutoAnswerText, "AA: busy");
  EXPECT_EQ(Chat().Text3.Text, "AA: busy");
  world.Type("  ", "AA: x");
  EXPECT_EQ(State().AutoAnswerText, "AA: x");
  EXPECT_EQ(world.Newest().Text, "");
  EXPECT_EQ(State().ChatTxText, "");
  // The cycle comes back by the second timer.
  EXPECT_FALSE(world.Timer1.Enabled());
  EXPECT_TRUE(world.Timer2.Enabled());
}

TEST_F(ChatPanelTest, WithAnAddresseeEnterSendsAndTheTextStays) {
  State().AutoAnswerOn = 1;
  world.Type("AB1CD", "AA: busy");
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:AB1CD    :AA: busy{01");
  EXPECT_EQ(Chat().Text3.Text, "AA: busy");
  EXPECT_EQ(State().AutoAnswerText, "");
}

TEST_F(ChatPanelTest, TheCaptionFollowsTheAddressee) {
  Switch(Chat().Check16, 1);
  Chat().Text2.Text = "A";
  Chat().Text2.Change();
  EXPECT_EQ(Chat().Check16.Caption, "AUTO-A");
  Chat().Command16.Click();
  EXPECT_EQ(Chat().Check16.Caption, "AUTO ANSWER TEXT:");
}

TEST_F(ChatPanelTest, TheMessageFieldShowsTheAnswerWhileItIsOn) {
  State().AutoAnswerText = "AA: busy";
  Switch(Chat().Check16, 1);
  EXPECT_EQ(Chat().Text3.Text, "AA: busy");
  Switch(Chat().Check16, 0);
  EXPECT_EQ(Chat().Text3.Text, "");
  // Also where the transmitter has switched it on.
  State().AutoAnswerOn = 1;
  world.Room.SecondPassed();
  EXPECT_EQ(Chat().Text3.Text, "AA: busy");
}

TEST_F(ChatPanelTest, AHalfTypedMessageStaysWhenTheAnswerIsSwitchedOn) {
  State().AutoAnswerText = "AA: busy";
  Chat().Text3.Text = "half";
  Switch(Chat().Check16, 1);
  EXPECT_EQ(Chat().Text3.Text, "half");
}

// ---- Ping and prepare -----------------------------------------------------------------------

TEST_F(ChatPanelTest, PingOpensTheChatAndAsksTheStationForItsPath) {
  Switch(Chat().Check7, 0);
  world.State.Stores.SelectedStationCall = "N0CALL-9";
  Record().Command10.Click();
  EXPECT_TRUE(Chat().Frame3.Visible);
  EXPECT_EQ(Chat().Check7.Value, 1);
  EXPECT_EQ(Chat().Text2.Text, "N0CALL-9");
  EXPECT_EQ(Chat().Text3.Text, "");
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:N0CALL-9 :?APRST");
  EXPECT_EQ(world.Newest().Colour, 252U);
  EXPECT_EQ(State().ChatTxText, ":N0CALL-9 :?APRST");
}

TEST_F(ChatPanelTest, BehindAPingTheAutomaticAnswerIsShownAgain) {
  State().AutoAnswerOn = 1;
  State().AutoAnswerText = "AA: busy";
  world.State.Stores.SelectedStationCall = "N0CALL";
  Record().Command10.Click();
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:N0CALL   :?APRST");
  EXPECT_EQ(Chat().Text3.Text, "AA: busy");
  EXPECT_EQ(State().AutoAnswerText, "AA: busy");
}

TEST_F(ChatPanelTest, PingNeedsAStationAndItsButton) {
  Record().Command10.Click();
  world.State.Stores.SelectedStationCall = "N0CALL";
  Record().Command10.Enabled = false;
  Record().Command10.Click();
  EXPECT_EQ(world.Newest().Text, "");
}

TEST_F(ChatPanelTest, PrepareChatWritesToTheStation) {
  Switch(Chat().Check7, 0);
  world.State.Stores.SelectedStationCall = "N0CALL";
  Record().Command41.Click();
  EXPECT_TRUE(Chat().Frame3.Visible);
  EXPECT_EQ(Chat().Text2.Text, "N0CALL");
  EXPECT_TRUE(Chat().Text3.FocusWanted);
  EXPECT_EQ(world.Newest().Text, "");
}

TEST_F(ChatPanelTest, AClickOnALineWritesToItsStation) {
  world.PutLine(6, "N0CALL   :QX7KB    :Hello{07", 0x6000);
  world.PutLine(7, " QX7KB-10:AB1CD    :Hello{01", 250);
  Chat().Text1[6].Click();
  EXPECT_EQ(Chat().Text2.Text, "N0CALL");
  Chat().Text1[7].Click();
  EXPECT_EQ(Chat().Text2.Text, "AB1CD");
  Chat().Text1[0].Click();
  EXPECT_EQ(Chat().Text2.Text, "AB1CD");
}

// ---- What the panel says --------------------------------------------------------------------

TEST_F(ChatPanelTest, ItSaysWhyNothingLeaves) {
  world.Room.SecondPassed();
  EXPECT_THAT(Chat().ChatNote.Caption, IsEmpty());
  EXPECT_FALSE(Chat().ChatNote.Visible);
  world.State.Identity.TxAllowed = 0;
  world.Room.SecondPassed();
  EXPECT_EQ(Chat().ChatNote.Caption.substr(0, 9), "LISTENER:");
  EXPECT_TRUE(Chat().ChatNote.Visible);
}

TEST_F(ChatPanelTest, ItSaysThatTheLinkIsLost) {
  MessagesWorld lost(RadioMode::Pk232);
  lost.Room.SecondPassed();
  EXPECT_EQ(lost.Controls.Chat.ChatNote.Caption, "");
  lost.Port.Vanish();
  lost.Room.SecondPassed();
  EXPECT_EQ(lost.Controls.Chat.ChatNote.Caption.substr(0, 16), "RADIO LINK LOST:");
}

TEST_F(ChatPanelTest, WhatItSaysOfALineGoesAfterSomeSeconds) {
  world.Type("AB1CD", std::string(120, 'x'));
  world.Room.SecondPassed();
  EXPECT_TRUE(Chat().ChatNote.Visible);
  world.Clock.Run(11.0);
  world.Room.SecondPassed();
  EXPECT_FALSE(Chat().ChatNote.Visible);
}

TEST_F(ChatPanelTest, AmpersandsAreShown) {
  world.Hear("N0CALL", ":QX7KB    :you & me");
  EXPECT_EQ(Chat().Text1[7].Caption, "N0CALL   :QX7KB    :you && me");
}

}  // namespace
}  // namespace zepril
