// What leaves the chat, how often, and in which way: typed lines, the pass over them, web messages.
#include "messages/chat_sender.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/radio_rules.h"
#include "tests/messages/messages_world.h"

namespace zepril {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ChatSenderTest : public ::testing::Test {
 protected:
  ChatControls& Chat() { return world.Controls.Chat; }
  MessagesWorld world;
};

// ---- Typed lines ----------------------------------------------------------------------------

TEST_F(ChatSenderTest, ATypedLineStandsAtTheBottomAndWaits) {
  world.State.Chat.ChatSerial = 6;
  world.Type("ab1cd", "Hello");
  EXPECT_EQ(world.State.Chat.ChatTxText, ":AB1CD    :Hello{07");
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:AB1CD    :Hello{07");
  EXPECT_EQ(world.Newest().Colour, 250U);
  EXPECT_EQ(world.Log(), "20240115 1234  QX7KB-10:AB1CD    :Hello{07\r\n");
  EXPECT_EQ(Chat().Text3.Text, "");
  EXPECT_EQ(Chat().Text2.Text, "ab1cd");
  EXPECT_TRUE(Chat().Text3.FocusWanted);
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_FALSE(world.Timer2.Enabled());
  EXPECT_THAT(world.Sent(), IsEmpty());
  EXPECT_EQ(Chat().Text1[7].ToolTip, "not sent yet, up to 5 sends");
}

TEST_F(ChatSenderTest, WithoutAddresseeOrTextNothingHappens) {
  world.Type("", "Hello");
  EXPECT_EQ(Chat().ChatNote.Caption, "TO WHOM? The call at the left of the message is empty");
  EXPECT_EQ(Chat().Text3.Text, "Hello");
  world.Type("AB1CD", "  ");
  EXPECT_EQ(world.Newest().Text, "");
  EXPECT_EQ(world.State.Chat.ChatSerial, 0);
  EXPECT_EQ(world.State.Chat.ChatTxText, "");
}

TEST_F(ChatSenderTest, BehindTheWishToEndNoMoreLinesOfThePassLeave) {
  for (std::size_t at = 4; at < 8; ++at)
    world.PutLine(at, " QX7KB-10:AB1CD    :Hello{0" + std::to_string(at), 250);
  world.Clock.OnWait = [this](double, bool) { world.Clock.EndIsAsked = true; };
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Sent().size(), 1U);
  EXPECT_EQ(world.Line(5).Colour, 250U);
  world.Hear("AB1CD", ":QX7KB-10 :Are you there?{11");
  EXPECT_EQ(world.Sent().size(), 1U);
}

TEST_F(ChatSenderTest, BehindAPressOfTheSwitchNoMoreLinesOfThePassLeave) {
  for (std::size_t at = 4; at < 8; ++at)
    world.PutLine(at, " QX7KB-10:AB1CD    :Hello{0" + std::to_string(at), 250);
  // The press is made while the second frame leaves, and acts behind the pass.
  int looks = 0;
  world.Clock.OnNotice = [&] { Chat().Check7.PressWaits = ++looks == 3; };
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Sent().size(), 2U);
  EXPECT_EQ(world.Line(5).Colour, 251U);
  EXPECT_EQ(world.Line(6).Colour, 250U);
  EXPECT_EQ(world.Line(6).Trouble, "");
}

TEST_F(ChatSenderTest, TheNumberBehind99Is00) {
  world.State.Chat.ChatSerial = 98;
  world.Type("AB1CD", "a");
  EXPECT_TRUE(world.Newest().Text.ends_with("a{99"));
  world.Type("AB1CD", "b");
  EXPECT_TRUE(world.Newest().Text.ends_with("b{00"));
  world.Type("AB1CD", "c");
  EXPECT_TRUE(world.Newest().Text.ends_with("c{01"));
}

TEST_F(ChatSenderTest, QueriesCarryNoNumberAndCountAllTheSame) {
  world.Type("ab1cd", "?aprst");
  EXPECT_EQ(world.State.Chat.ChatTxText, ":AB1CD    :?APRST");
  EXPECT_EQ(world.Newest().Colour, 252U);
  EXPECT_EQ(Chat().Text1[7].ToolTip, "not sent yet, up to 3 sends");
  world.Type("ab1cd", "?Aprst");
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:AB1CD    :?Aprst");
  EXPECT_EQ(world.Newest().Colour, 252U);
  world.Type("ab1cd", "ask ?aprs");
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:AB1CD    :ask ?aprs");
  EXPECT_EQ(world.State.Chat.ChatSerial, 3);
}

TEST_F(ChatSenderTest, ANinthLinePushesOutTheFirstWithItsTries) {
  for (int number = 0; number < 9; ++number)
    world.Type("AB1CD", "line " + std::to_string(number));
  EXPECT_TRUE(world.Line(0).Text.ends_with(":line 1{02"));
  EXPECT_EQ(world.Line(0).Colour, 250U);
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Sent().size(), 8U);
  EXPECT_EQ(world.Sent()[0], ":AB1CD    :line 1{02");
}

TEST_F(ChatSenderTest, ACallOfTenCharactersIsNotCut) {
  world.Type("DL1ABCD-15", "Hello");
  EXPECT_EQ(world.State.Chat.ChatTxText, ":DL1ABCD-15:Hello{01");
}

TEST_F(ChatSenderTest, EnterThatIsLeanedOnSendsOneLine) {
  world.Type("AB1CD", "Hello");
  for (int press = 0; press < 50; ++press)
    world.PressEnter();
  EXPECT_EQ(world.State.Chat.ChatSerial, 1);
}

TEST_F(ChatSenderTest, ATextThatALineCannotHoldIsCutAndThatIsSaid) {
  world.Type("AB1CD", std::string(120, 'x'));
  EXPECT_EQ(world.Newest().Text.size(), 100U);
  EXPECT_TRUE(world.Newest().Text.ends_with("x{01"));
  EXPECT_EQ(Chat().ChatNote.Caption, "THE TEXT WAS CUT: a line holds 100 characters");
  world.Room.Sender.RetryPass();
  EXPECT_TRUE(world.Sent()[0].ends_with("x{01"));
}

TEST_F(ChatSenderTest, AnAddresseeWithoutEndIsRefused) {
  world.Type(std::string(120, 'C'), "Hello");
  EXPECT_EQ(world.Newest().Text, "");
  EXPECT_EQ(Chat().Text3.Text, "Hello");
  EXPECT_TRUE(Chat().ChatNote.Caption.starts_with("NOT SENT")) << Chat().ChatNote.Caption;
}

// ---- The pass -------------------------------------------------------------------------------

TEST_F(ChatSenderTest, ALineLeavesFiveTimesAndIsGivenUp) {
  world.Type("AB1CD", "Hello");
  std::vector<std::uint32_t> colours;
  for (int pass = 0; pass < 7; ++pass) {
    world.Room.Sender.RetryPass();
    colours.push_back(world.Newest().Colour);
  }
  EXPECT_THAT(colours, ElementsAre(251U, 252U, 253U, 254U, 0x5FF0U, 0x5FF0U, 0x5FF0U));
  EXPECT_EQ(world.Sent(), std::vector<std::string>(5, ":AB1CD    :Hello{01"));
  EXPECT_EQ(world.Waits, std::vector<double>(5, 0.8));
  EXPECT_EQ(Chat().Text1[7].ToolTip, "given up after try 5 of 5, not acknowledged");
}

TEST_F(ChatSenderTest, ItsToolTipCountsTheTries) {
  world.Type("AB1CD", "Hello");
  for (int pass = 0; pass < 3; ++pass)
    world.Room.Sender.RetryPass();
  EXPECT_EQ(Chat().Text1[7].ToolTip, "sent, try 3 of 5");
  EXPECT_EQ(Chat().Text1[7].ForeColour, 253U);
  world.Hear("AB1CD", ":QX7KB    :ack01");
  EXPECT_EQ(Chat().Text1[7].ToolTip, "acknowledged");
}

TEST_F(ChatSenderTest, AQueryLeavesThreeTimes) {
  world.Type("AB1CD", "?APRST");
  for (int pass = 0; pass < 5; ++pass)
    world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Sent().size(), 3U);
  EXPECT_EQ(world.Newest().Colour, 0x5FF0U);
}

TEST_F(ChatSenderTest, OnlyLinesWithSendsLeftLeave) {
  const std::string line = " QX7KB-10:AB1CD    :Hello{07";
  const std::uint32_t colours[] = {249, 250, 254, 255, 128, 160, 0x6000, 0x5FF0};
  for (std::size_t at = 0; at < 8; ++at)
    world.PutLine(at, line, colours[at]);
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Sent().size(), 2U);
  EXPECT_EQ(world.Line(1).Colour, 251U);
  EXPECT_EQ(world.Line(2).Colour, 0x5FF0U);
  EXPECT_EQ(world.Line(3).Colour, 255U);
}

TEST_F(ChatSenderTest, EightLinesTakeTheirTimeAndTheCycleGoesOn) {
  for (int number = 0; number < 8; ++number)
    world.Type("AB1CD", std::to_string(number));
  world.Room.Sender.RetryPass();
  EXPECT_NEAR(world.Clock.MonotonicSeconds(), 6.4, 1e-9);
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_EQ(world.State.Chat.ChatTxText, "");
}

TEST_F(ChatSenderTest, AnAcknowledgedLineIsPassedOver) {
  world.Type("AB1CD", "one");
  world.Type("AB1CD", "two");
  world.Room.Sender.RetryPass();
  world.Hear("AB1CD", ":QX7KB    :ack01");
  world.Room.Sender.RetryPass();
  EXPECT_THAT(world.Sent(),
              ElementsAre(":AB1CD    :one{01", ":AB1CD    :two{02", ":AB1CD    :two{02"));
}

TEST_F(ChatSenderTest, AnAckThatIsSentMeanwhileTakesTheHurryOffTheLine) {
  world.Type("AB1CD", "Hello");
  world.Hear("N0CALL", ":QX7KB    :Hi{9");
  EXPECT_EQ(world.State.Chat.ChatTxText, "");
  EXPECT_EQ(world.Line(6).Colour, 250U);
}

TEST_F(ChatSenderTest, ClosedMeanwhileNothingLeaves) {
  world.Type("AB1CD", "Hello");
  Chat().Check7.Value = 0;
  world.Room.Sender.RetryPass();
  EXPECT_THAT(world.Sent(), IsEmpty());
  EXPECT_EQ(world.Newest().Colour, 250U);
}

TEST_F(ChatSenderTest, NothingLeavesUnderAnotherCall) {
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  world.State.Identity.MyCallFull = "QX7KB-11";
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Sent().size(), 1U);
  EXPECT_EQ(world.Newest().Colour, 0x5FF0U);
  EXPECT_EQ(Chat().Text1[7].ToolTip, "given up: typed under another call");
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Sent().size(), 2U);
}

TEST_F(ChatSenderTest, AListenerSendsNothing) {
  world.State.Identity.TxAllowed = 0;
  world.Type("AB1CD", "Hello");
  EXPECT_EQ(world.Newest().Text, "");
  world.PutLine(7, " QX7KB-10:AB1CD    :Hello{07", 250);
  world.Room.Sender.RetryPass();
  EXPECT_THAT(world.Sent(), IsEmpty());
  world.Room.SecondPassed();
  EXPECT_EQ(Chat().ChatNote.Caption.substr(0, 9), "LISTENER:");
}

TEST_F(ChatSenderTest, WhileTheOperatorTalksToTheModemATryIsLostAndThatIsSaid) {
  world.Frames.HeldBack = [] { return true; };
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Newest().Colour, 251U);
  EXPECT_EQ(Chat().Text1[7].ToolTip, "try 1 of 5 did not leave: modem busy");
  world.Frames.HeldBack = nullptr;
  world.Room.Sender.RetryPass();
  EXPECT_EQ(Chat().Text1[7].ToolTip, "sent, try 2 of 5");
}

// ---- Serial modems --------------------------------------------------------------------------

TEST(ChatOnSerialModems, GetTheTextAndAReturn) {
  for (const RadioMode mode : {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc}) {
    MessagesWorld world(mode);
    world.State.Chat.ChatSerial = 6;
    world.Type("AB1CD", "Hello");
    world.Room.Sender.RetryPass();
    EXPECT_EQ(world.Port.Written, ":AB1CD    :Hello{07\r");
  }
}

TEST(ChatOnSerialModems, TheSecondModeIsLeftForTheFrame) {
  MessagesWorld world(RadioMode::ScsTnc);
  world.State.Radio.HfDualOn = 1;
  world.Type("AB1CD", "Hello");
  world.Waits.clear();
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Port.Written, "\x1B%AU0\r:AB1CD    :Hello{01\r");
  EXPECT_THAT(world.Waits, ElementsAre(0.1, 0.8));
}

TEST(ChatOnSerialModems, ALostLineUsesUpTriesAndSendsNothingLater) {
  MessagesWorld world(RadioMode::Pk232);
  world.Type("AB1CD", "one");
  world.Type("AB1CD", "two");
  // It is pulled out behind the first frame of a pass.
  world.Port.OnWrite = [&world](std::string_view) { world.Port.Vanish(); };
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Line(6).Colour, 251U);
  EXPECT_EQ(world.Newest().Colour, 251U);
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip, "try 1 of 5 did not leave: radio link lost");
  for (int pass = 0; pass < 4; ++pass)
    world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Newest().Colour, 0x5FF0U);
  world.Port.OnWrite = nullptr;
  world.Port.Absent = false;
  world.Port.Open("/dev/ttyUSB0", 1200);
  world.Port.Written.clear();
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Port.Written, "");
}

// Each one would wait for the modem anew.
TEST(ChatOnSerialModems, ALineThatFindsTheModemBusySpeaksForTheRestOfThePass) {
  MessagesWorld world(RadioMode::Pk232);
  for (const char* text : {"one", "two", "three"})
    world.Type("AB1CD", text);
  int asked = 0;
  world.Frames.HeldBack = [&asked] {
    ++asked;
    return true;
  };
  world.Room.Sender.RetryPass();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(world.Port.Written, "");
  for (std::size_t at = 5; at < 8; ++at) {
    EXPECT_EQ(world.Line(at).Colour, 251U) << at;
    EXPECT_EQ(world.Controls.Chat.Text1[at].ToolTip, "try 1 of 5 did not leave: modem busy") << at;
  }
  EXPECT_EQ(world.State.Chat.ChatTxText, "");
  world.Frames.HeldBack = nullptr;
  world.Room.Sender.RetryPass();
  EXPECT_EQ(std::count(world.Port.Written.begin(), world.Port.Written.end(), '\r'), 3);
}

TEST(ChatOnSerialModems, AnAnswerThatDoesNotLeaveIsTheLastOfItsPass) {
  MessagesWorld world(RadioMode::Pk232);
  int asked = 0;
  world.Frames.HeldBack = [&asked] {
    ++asked;
    return true;
  };
  for (const char* from : {"AB1CD", "AB2CD", "AB3CD"})
    world.Hear(from, ":QX7KB    :Hello{01");
  EXPECT_EQ(asked, 1);
  world.Room.Heard.PassBegins();
  world.Hear("AB1CD", ":QX7KB    :Hello{01");
  EXPECT_EQ(asked, 2);
}

TEST_F(ChatSenderTest, ACallOfMoreThanNinePlacesLeavesWholeTexts) {
  world.State.Identity.MyCallFull = "QX7KB-ABCD";
  world.Type("AB1CD", "Hello");
  EXPECT_EQ(world.Newest().Text, "QX7KB-ABC:AB1CD    :Hello{01");
  world.Room.Sender.RetryPass();
  EXPECT_THAT(world.Sent(), ElementsAre(":AB1CD    :Hello{01"));
  EXPECT_EQ(world.Newest().Colour, 251U);
}

TEST(ChatOnSerialModems, ACommandInANumberReachesNoModem) {
  MessagesWorld world(RadioMode::ScsTnc);
  world.Hear("N0CALL", ":QX7KB    :x{1\x1B%ZL\r\x03");
  EXPECT_EQ(world.Port.Written.find_first_of("\x1B\x03"), std::string::npos);
  EXPECT_EQ(std::count(world.Port.Written.begin(), world.Port.Written.end(), '\r'), 1);
}

}  // namespace
}  // namespace zepril
