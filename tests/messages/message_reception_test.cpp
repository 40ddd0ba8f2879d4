// Messages as they are heard: shown once, acknowledged each time, answered; acknowledgements and
// pings; what bad or too much input does.
#include "messages/message_reception.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/messages/messages_world.h"

namespace zepril {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Texts = std::vector<std::string>;

class MessageReceptionTest : public ::testing::Test {
 protected:
  ChatControls& Chat() { return world.Controls.Chat; }
  MessagesWorld world;
};

// ---- For me ---------------------------------------------------------------------------------

TEST_F(MessageReceptionTest, AMessageIsShownLoggedAndAcknowledged) {
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  EXPECT_EQ(world.Newest().Text, "N0CALL   :QX7KB    :Hello{07");
  EXPECT_EQ(world.Newest().Colour, 0x6000U);
  EXPECT_EQ(Chat().Text1[7].Caption, "N0CALL   :QX7KB    :Hello{07");
  EXPECT_EQ(Chat().Text1[7].ForeColour, 0x6000U);
  EXPECT_EQ(Chat().Text1[7].ToolTip, "message for me");
  EXPECT_EQ(world.Log(), "20240115 1234  N0CALL   :QX7KB    :Hello{07\r\n");
  EXPECT_THAT(world.Sent(), ElementsAre(":N0CALL   :ack07"));
  EXPECT_EQ(world.State.Chat.ChatTxText, "");
}

TEST_F(MessageReceptionTest, ARepeatIsAcknowledgedAndNotShown) {
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  world.Hear("N0CALL", ":QX7KB    :Hello{07", "WIDE1-1*");
  EXPECT_EQ(world.Line(6).Text, "");
  EXPECT_EQ(world.LogLines(), 1);
  EXPECT_THAT(world.Sent(), ElementsAre(":N0CALL   :ack07", ":N0CALL   :ack07"));
}

TEST_F(MessageReceptionTest, OneThatCameByTheInternetIsAcknowledgedByTheWebForm) {
  world.HearOverInternet("N0CALL", ":QX7KB    :Hello{07");
  EXPECT_EQ(world.Newest().Text, "N0CALL   :QX7KB    :Hello{07");
  EXPECT_THAT(world.Sent(), IsEmpty());
  EXPECT_THAT(world.Pages.Asked,
              ElementsAre("http://aprs.example/cgi-bin/sendmsg.cgi?fromcall=QX7KB-10&tocall=N0CALL"
                          "&msg=mok07"));
}

TEST_F(MessageReceptionTest, OneThatCameByTheInternetWithoutANumberIsNot) {
  world.HearOverInternet("N0CALL", ":QX7KB    :Hello");
  EXPECT_EQ(world.Newest().Text, "N0CALL   :QX7KB    :Hello");
  EXPECT_THAT(world.Pages.Asked, IsEmpty());
}

TEST_F(MessageReceptionTest, OneOfTheInternetThatIsOldIsShownAndNotAnswered) {
  world.State.Chat.AutoAnswerOn = 1;
  world.State.Chat.AutoAnswerText = "Not at home";
  world.HearOverInternet("N0CALL", ":QX7KB    :Hello{07", 3601);
  EXPECT_EQ(world.Newest().Text, "N0CALL   :QX7KB    :Hello{07");
  world.HearOverInternet("N0CALL", ":QX7KB    :?aprst", 3601);
  EXPECT_EQ(world.Newest().Text, "N0CALL   :QX7KB    :?aprst");
  EXPECT_THAT(world.Sent(), IsEmpty());
  EXPECT_THAT(world.Pages.Asked, IsEmpty());
  EXPECT_EQ(world.State.Chat.ChatTxText, "");
}

// A number of the day before may be in use again.
TEST_F(MessageReceptionTest, AnOldAckOfTheInternetAcknowledgesNothing) {
  world.PutLine(6, " QX7KB-10:AB1CD    :?APRST", 253);
  world.PutLine(7, " QX7KB-10:AB1CD    :Hello{07", 252);
  world.HearOverInternet("AB1CD", ":QX7KB    :ack07", 3601);
  EXPECT_EQ(world.Newest().Colour, 252U);
  world.HearOverInternet("AB1CD", ":QX7KB    :ack07", 3600);
  EXPECT_EQ(world.Newest().Colour, 128U);
  world.HearOverInternet("AB1CD", ":QX7KB    :PATH = QX7KB-10 VIA  TO ZEPR", 3601);
  EXPECT_EQ(world.Line(5).Colour, 253U);
}

TEST_F(MessageReceptionTest, OneOfTheInternetOfLessThanAnHourIsAnswered) {
  world.HearOverInternet("N0CALL", ":QX7KB    :Hello{07", 3600);
  EXPECT_EQ(world.Pages.Asked.size(), 1U);
  world.HearOverInternet("N0CALL", ":QX7KB    :?aprst", 3600);
  EXPECT_EQ(world.Sent().size(), 1U);
}

TEST_F(MessageReceptionTest, WhatWasAcknowledgedByRadioIsNotOnceMoreByTheInternet) {
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  world.Clock.Run(60.0);
  world.HearOverInternet("N0CALL", ":QX7KB    :Hello{07", 90);
  EXPECT_THAT(world.Pages.Asked, IsEmpty());
  world.HearOverInternet("N0CALL", ":QX7KB    :Hello{07", 10);
  EXPECT_EQ(world.Pages.Asked.size(), 1U) << "sent again: the first did not arrive";
}

TEST_F(MessageReceptionTest, BothAcknowledgementsCountWhenTheyComeByTheInternet) {
  for (const char* word : {"ack", "mok"}) {
    world.PutLine(3, " QX7KB-10:N0CALL   :Hello{07", 251);
    world.HearOverInternet("N0CALL", std::string(":QX7KB    :") + word + "07");
    EXPECT_EQ(world.Line(3).Colour, 128U) << word;
  }
  EXPECT_THAT(world.Pages.Asked, IsEmpty());
}

TEST_F(MessageReceptionTest, WhatStandsBehindTheBraceIsAcknowledgedAsItIs) {
  world.Hear("N0CALL", ":QX7KB    :Hello{07}");
  EXPECT_THAT(world.Sent(), ElementsAre(":N0CALL   :ack07}"));
}

TEST_F(MessageReceptionTest, EveryFormOfTheOwnCallIsMe) {
  for (const char* call : {"QX7KB    ", "qx7kb    ", "QX7KB-10 ", "Qx7kB-10 "})
    world.Hear("N0CALL", std::string(":") + call + ":Hello{" + call);
  EXPECT_EQ(world.Sent().size(), 4U);
  world.Hear("N0CALL", ":QX7KB-9  :Hello{1");
  EXPECT_EQ(world.Sent().size(), 4U);
  EXPECT_EQ(world.Newest().Colour, 0x505050U);
}

TEST_F(MessageReceptionTest,
       AMessageWithoutANumberIsShownAgainBehindAnotherLineAndNeverAcknowledged) {
  world.State.Chat.AutoAnswerOn = 1;
  world.Hear("N0CALL", ":QX7KB    :Hello");
  world.Hear("N0CALL", ":QX7KB    :Hello");  // equal to the newest
  EXPECT_EQ(world.Line(6).Text, "");
  world.Hear("QX1AB", ":QX7KB    :Between");
  world.Hear("N0CALL", ":QX7KB    :Hello");
  EXPECT_EQ(world.Newest().Text, "N0CALL   :QX7KB    :Hello");
  EXPECT_EQ(world.Line(5).Text, "N0CALL   :QX7KB    :Hello");
  EXPECT_THAT(world.Sent(), IsEmpty());
}

TEST_F(MessageReceptionTest, TheNinthOfOldTrafficCountsAsNew) {
  const auto hear = [this](int number) {
    world.Hear("N0CALL", ":QX7KB    :Hello{" + std::to_string(number));
  };
  for (int number = 1; number <= 8; ++number)
    hear(number);
  hear(1);
  EXPECT_TRUE(world.Newest().Text.ends_with("{8"));
  hear(9);
  hear(1);
  EXPECT_TRUE(world.Newest().Text.ends_with("{1"));
}

TEST_F(MessageReceptionTest, TheClosedPanelOpensAndControlIsHandedOverOnce) {
  Chat().Check7.Value = 0;
  Chat().Frame3.Visible = false;
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  EXPECT_EQ(Chat().Check7.Value, 1);
  EXPECT_EQ(Chat().Check8.Value, 1);
  EXPECT_TRUE(Chat().Frame3.Visible);
  EXPECT_EQ(world.Clock.HandOvers, 1);
  world.Hear("N0CALL", ":QX7KB    :Hello{08");
  EXPECT_EQ(world.Clock.HandOvers, 1);
}

TEST_F(MessageReceptionTest, WhatTheOperatorDoesMeanwhileDisturbsNothing) {
  Chat().Check7.Value = 0;
  Chat().Frame3.Visible = false;
  world.Clock.Schedule(0.0, [this] { world.Type("AB1CD", "typed meanwhile"); });
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  EXPECT_THAT(world.Sent(), ElementsAre(":N0CALL   :ack07"));
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:AB1CD    :typed meanwhile{01");
}

TEST_F(MessageReceptionTest, WhatCameUnseenIsCountedUntilItIsLookedAt) {
  Chat().Check7.Value = 0;
  Chat().Frame3.Visible = false;
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  EXPECT_EQ(Chat().Check7.Caption, "CHAT 1");
  world.State.Settings.WindowActive = false;
  world.Hear("N0CALL", ":QX7KB    :Hello{08");
  world.Hear("N0CALL", ":QX7KB    :Hello{08");  // the same
  EXPECT_EQ(Chat().Check7.Caption, "CHAT 2");
  Chat().Text3.GotFocus();
  EXPECT_EQ(Chat().Check7.Caption, "CHAT");
  world.State.Settings.WindowActive = true;
  world.Hear("N0CALL", ":QX7KB    :Hello{09");
  EXPECT_EQ(Chat().Check7.Caption, "CHAT");
}

// ---- Acknowledgements -----------------------------------------------------------------------

TEST_F(MessageReceptionTest, AnAckIsTakenByLinesThatWereRepeatedOrGivenUp) {
  const std::string line = " QX7KB-10:N0CALL   :Hello{07";
  const std::uint32_t colours[] = {250, 251, 252, 253, 254, 0x5FF0, 0x6000, 0x505050};
  for (std::size_t at = 0; at < 8; ++at)
    world.PutLine(at, line, colours[at]);
  world.Hear("N0CALL", ":QX7KB    :ack07");
  const std::uint32_t expected[] = {250, 128, 128, 128, 128, 128, 0x6000, 0x505050};
  for (std::size_t at = 0; at < 8; ++at)
    EXPECT_EQ(world.Line(at).Colour, expected[at]) << at;
  EXPECT_EQ(Chat().Text1[1].ToolTip, "acknowledged");
  EXPECT_THAT(world.Sent(), IsEmpty());
}

TEST_F(MessageReceptionTest, TheOtherFormOfAnAckCountsAndCapitalsDoNot) {
  world.PutLine(7, " QX7KB-10:N0CALL   :Hello{07", 251);
  world.Hear("N0CALL", ":QX7KB    :ACK07");
  EXPECT_EQ(world.Line(6).Colour, 251U);  // moved up by what is a message
  world.Hear("N0CALL", ":QX7KB    :mok07");
  EXPECT_EQ(world.Line(6).Colour, 128U);
}

TEST_F(MessageReceptionTest, AnAckOfAnotherNumberOrForALineWithoutOneFindsNothing) {
  world.PutLine(6, " QX7KB-10:N0CALL   :Hello", 251);
  world.PutLine(7, " QX7KB-10:N0CALL   :Hello{07", 251);
  for (const char* ack :
       {":QX7KB    :ack08", ":QX7KB    :ack", ":QX7KB    :ack7", ":AB1CD    :ack07"})
    world.Hear("N0CALL", ack);
  EXPECT_EQ(world.Line(6).Colour, 251U);
  EXPECT_EQ(world.Line(7).Colour, 251U);
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:N0CALL   :Hello{07");  // it is no line itself
}

// Stations differ in which "{" opens the number.
TEST_F(MessageReceptionTest, ABraceThatWasTypedHidesNoNumber) {
  for (const char* ack : {":QX7KB    :ack02", ":QX7KB    :acky{02"}) {
    world.PutLine(7, " QX7KB-10:AB1CD    :x {y{02", 251);
    world.Hear("AB1CD", ack);
    EXPECT_EQ(world.Newest().Colour, 128U) << ack;
  }
  world.PutLine(7, " QX7KB-10:AB1CD    :x {y{02", 251);
  world.Hear("AB1CD", ":QX7KB    :acky");
  EXPECT_EQ(world.Newest().Colour, 251U);
}

TEST_F(MessageReceptionTest, AnAckForALineThatWasPushedOutIsForgotten) {
  world.Type("N0CALL", "Hello");
  for (int number = 0; number < 8; ++number)
    world.Hear("N0CALL", ":QX7KB    :" + std::to_string(number));
  world.Hear("N0CALL", ":QX7KB    :ack01");
  for (const ChatLine& line : world.State.Chat.Lines)
    EXPECT_EQ(line.Colour, 0x6000U);
}

// ---- Between others -------------------------------------------------------------------------

TEST_F(MessageReceptionTest, TrafficOfOthersIsShownWhenItIsWanted) {
  world.Hear("N0CALL", ":AB1CD    :Hello{07");
  EXPECT_EQ(world.Newest().Text, "N0CALL   :AB1CD    :Hello{07");
  EXPECT_EQ(world.Newest().Colour, 0x505050U);
  EXPECT_EQ(Chat().Text1[7].ToolTip, "message between others");
  EXPECT_EQ(world.Log(), "20240115 1234  N0CALL   :AB1CD    :Hello{07\r\n");
  EXPECT_THAT(world.Sent(), IsEmpty());
  EXPECT_EQ(world.State.Chat.Unseen, 0);
}

TEST_F(MessageReceptionTest, OfOthersAcksAreNeverShownAndNothingWithTheSwitchOn) {
  world.Hear("N0CALL", ":AB1CD    :ack07");
  world.Hear("N0CALL", ":AB1CD    :mok07");
  Chat().Check8.Value = 1;
  world.Hear("N0CALL", ":AB1CD    :Hello{07");
  EXPECT_EQ(world.Newest().Text, "");
  EXPECT_EQ(world.Log(), "");
}

TEST_F(MessageReceptionTest, TrafficOfOthersDoesNotOpenThePanel) {
  Chat().Check7.Value = 0;
  Chat().Frame3.Visible = false;
  world.Hear("N0CALL", ":AB1CD    :Hello{07");
  EXPECT_FALSE(Chat().Frame3.Visible);
  EXPECT_EQ(world.Newest().Text, "N0CALL   :AB1CD    :Hello{07");
}

TEST_F(MessageReceptionTest, OfOthersOnlyNumberedLinesAreComparedWithAll) {
  world.Hear("N0CALL", ":AB1CD    :Hello{07");
  world.Hear("N0CALL", ":AB1CD    :plain");
  world.Hear("N0CALL", ":AB1CD    :Hello{07");
  EXPECT_EQ(world.Newest().Text, "N0CALL   :AB1CD    :plain");
  world.Hear("N0CALL", ":AB1CD    :other");
  world.Hear("N0CALL", ":AB1CD    :plain");
  EXPECT_EQ(world.Newest().Text, "N0CALL   :AB1CD    :plain");
  EXPECT_EQ(world.Line(6).Text, "N0CALL   :AB1CD    :other");
}

// ---- Pings ----------------------------------------------------------------------------------

TEST_F(MessageReceptionTest, APingIsAnsweredWithItsPathEachTime) {
  world.Hear("N0CALL", ":QX7KB    :?APRST", "WIDE1-1*");
  EXPECT_THAT(world.Sent(), ElementsAre(":N0CALL   :PATH = N0CALL VIA WIDE1-1* TO APRS"));
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:N0CALL   :PATH = N0CALL VIA WIDE1-1* TO APRS");
  EXPECT_EQ(world.Newest().Colour, 160U);
  EXPECT_EQ(Chat().Text1[7].ToolTip, "own answer to a ping");
  EXPECT_EQ(world.Line(6).Text, "N0CALL   :QX7KB    :?APRST");
  EXPECT_TRUE(world.Log().ends_with(
      "20240115 1234  QX7KB-10:N0CALL   :PATH = N0CALL VIA WIDE1-1* TO APRS\r\n"));
  world.Hear("N0CALL", ":QX7KB    :?aprst ");
  EXPECT_EQ(world.Sent().size(), 2U);
  EXPECT_EQ(world.Sent()[1], ":N0CALL   :PATH = N0CALL VIA  TO APRS");
}

TEST_F(MessageReceptionTest, APingWithANumberIsAMessage) {
  world.Hear("N0CALL", ":QX7KB    :?APRST{07");
  EXPECT_THAT(world.Sent(), ElementsAre(":N0CALL   :ack07"));
}

TEST_F(MessageReceptionTest, AnythingLikeAPathAnswersTheOpenPings) {
  for (const char* answer : {":QX7KB    :PATH = QX7KB-10 VIA  TO ZEPR", ":QX7KB    :a>b",
                             ":QX7KB    :*", ":QX7KB    :the path{07"}) {
    world.PutLine(5, " QX7KB-10:N0CALL   :?APRST", 252);
    world.PutLine(6, " QX7KB-10:N0CALL   :?APRST", 0x5FF0);
    world.PutLine(7, " QX7KB-10:N0CALL   :Hello{07", 251);
    world.Hear("N0CALL", answer);
    EXPECT_EQ(world.Line(4).Colour, 128U) << answer;
    EXPECT_EQ(world.Line(5).Colour, 128U) << answer;
    EXPECT_EQ(world.Line(6).Colour, 251U) << answer;
  }
  EXPECT_EQ(Chat().Text1[4].ToolTip, "answered");
  world.PutLine(7, " QX7KB-10:N0CALL   :?APRST", 252);
  world.Hear("N0CALL", ":QX7KB    :Hello");
  EXPECT_EQ(world.Line(6).Colour, 252U);
}

// ---- The automatic answer -------------------------------------------------------------------

TEST_F(MessageReceptionTest, OnlyOwnPingsThatAreOpenAreAnswered) {
  world.PutLine(5, "AB1CD    :QX7KB-10 :?APRST", 0x6000);
  world.PutLine(6, "AB1CD    :AB2CD    :?APRST", 0x505050);
  world.PutLine(7, " QX7KB-10:AB1CD    :?APRST", 252);
  world.Hear("AB1CD", ":QX7KB    :PATH = QX7KB-10 VIA  TO ZEPR");
  EXPECT_EQ(world.Line(4).Colour, 0x6000U);
  EXPECT_EQ(world.Line(5).Colour, 0x505050U);
  EXPECT_EQ(world.Line(6).Colour, 128U);
}

TEST_F(MessageReceptionTest, TheSamePingTwiceIsShownLoggedAndAnsweredTwice) {
  world.Hear("AB1CD", ":QX7KB    :?APRST");
  world.Hear("AB1CD", ":QX7KB    :?APRST");
  EXPECT_EQ(world.Line(4).Colour, 0x6000U);
  EXPECT_EQ(world.Line(5).Colour, 160U);
  EXPECT_EQ(world.Line(6).Colour, 0x6000U);
  EXPECT_EQ(world.Line(7).Colour, 160U);
  EXPECT_EQ(world.LogLines(), 4);
  EXPECT_EQ(world.Sent().size(), 2U);
}

TEST_F(MessageReceptionTest, AnAbsentOperatorsTextAnswersForHim) {
  world.State.Chat.AutoAnswerOn = 1;
  world.State.Chat.AutoAnswerText = "back at 8";
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:N0CALL   :AA: back at 8{01");
  EXPECT_EQ(world.Newest().Colour, 250U);
  EXPECT_EQ(Chat().Text2.Text, "N0CALL");
  EXPECT_EQ(Chat().Text3.Text, "AA: back at 8");
  EXPECT_EQ(world.State.Chat.AutoAnswerText, "AA: back at 8");
  EXPECT_EQ(world.State.Chat.ChatTxText, ":N0CALL   :AA: back at 8{01");
  // At once leaves the acknowledgement alone.
  EXPECT_THAT(world.Sent(), ElementsAre(":N0CALL   :ack07"));
}

TEST_F(MessageReceptionTest, HeIsAnsweredOnceWhileTheAnswerStandsInTheLowerHalf) {
  world.State.Chat.AutoAnswerOn = 1;
  world.State.Chat.AutoAnswerText = "AA: away";
  world.Hear("N0CALL", ":QX7KB    :1{1");
  world.Hear("N0CALL", ":QX7KB    :2{2");
  world.Hear("N0CALL", ":QX7KB    :3{3");
  world.Hear("N0CALL", ":QX7KB    :4{4");
  EXPECT_EQ(world.State.Chat.ChatSerial, 1);
  EXPECT_EQ(world.Line(4).Text, " QX7KB-10:N0CALL   :AA: away{01");
  // Another station has its own answer, and a fourth line pushes the first one up.
  world.Hear("QX1AB", ":QX7KB    :5{5");
  EXPECT_EQ(world.State.Chat.ChatSerial, 2);
  world.Hear("N0CALL", ":QX7KB    :6{6");
  EXPECT_EQ(world.State.Chat.ChatSerial, 3);
}

TEST_F(MessageReceptionTest, ARepeatIsNotAnsweredAgain) {
  world.State.Chat.AutoAnswerOn = 1;
  world.Hear("N0CALL", ":QX7KB    :1{1");
  for (std::size_t at = 4; at < 8; ++at)
    world.PutLine(at, "x", 0);
  world.PutLine(0, "N0CALL   :QX7KB    :1{1", 0x6000);
  world.Hear("N0CALL", ":QX7KB    :1{1");
  EXPECT_EQ(world.State.Chat.ChatSerial, 1);
  EXPECT_EQ(world.Sent().size(), 2U);
}

TEST_F(MessageReceptionTest, TwoStationsThatBothAnswerByThemselvesComeToAnEnd) {
  world.State.Chat.AutoAnswerOn = 1;
  world.State.Chat.AutoAnswerText = std::string(200, 'x');  // more than a line holds
  world.Hear("N0CALL", ":QX7KB    :Hello{1");
  for (int number = 2; number < 10; ++number) {
    world.State.Chat.Lines[0] = {};
    world.Hear("N0CALL", ":QX7KB    :AA: I am away too{2");
  }
  EXPECT_EQ(world.State.Chat.ChatSerial, 1);
}

TEST_F(MessageReceptionTest, WhatTheOperatorWasAboutToWriteIsStillThere) {
  world.State.Chat.AutoAnswerOn = 1;
  world.State.Chat.AutoAnswerText = "AA: away";
  Chat().Text2.Text = "AB1CD";
  Chat().Text3.Text = "half a mess";
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  EXPECT_EQ(world.Newest().Text, " QX7KB-10:N0CALL   :AA: away{01");
  EXPECT_EQ(Chat().Text2.Text, "AB1CD");
  EXPECT_EQ(Chat().Text3.Text, "half a mess");
}

// ---- Listener, flood, bad input -------------------------------------------------------------

// A call that is being typed must not become another one under his fingers.
TEST_F(MessageReceptionTest, ACallThatIsBeingTypedIsStillThere) {
  world.State.Chat.AutoAnswerOn = 1;
  world.State.Chat.AutoAnswerText = "AA: out";
  world.Controls.Chat.Text3.Text = "AA: out";
  world.Controls.Chat.Text2.Text = "AB9";
  world.Controls.Chat.Text2.HasFocus = true;
  world.Hear("AB1CD", ":QX7KB    :Hello{01");
  EXPECT_EQ(world.Controls.Chat.Text2.Text, "AB9");
  EXPECT_TRUE(world.Newest().Text.ends_with(":AB1CD    :AA: out{01"));
  world.Controls.Chat.Text2.HasFocus = false;
  world.Hear("AB2CD", ":QX7KB    :Hello{02");
  EXPECT_EQ(world.Controls.Chat.Text2.Text, "AB2CD");
}

TEST_F(MessageReceptionTest, AListenerSeesMessagesAndAnswersNothing) {
  world.State.Identity.TxAllowed = 0;
  world.State.Chat.AutoAnswerOn = 1;
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  world.Hear("N0CALL", ":QX7KB    :?APRST");
  EXPECT_THAT(world.Sent(), IsEmpty());
  EXPECT_EQ(world.Newest().Text, "N0CALL   :QX7KB    :?APRST");
  EXPECT_EQ(world.Line(6).Text, "N0CALL   :QX7KB    :Hello{07");
  EXPECT_EQ(world.Line(5).Text, "");
}

TEST_F(MessageReceptionTest, AFloodIsAnsweredAFewTimesAPass) {
  for (int number = 0; number < 10000; ++number)
    world.Hear("N" + std::to_string(number), ":QX7KB    :?APRST");
  for (int number = 0; number < 10000; ++number)
    world.Hear("N0CALL", ":QX7KB    :Hello{" + std::to_string(number));
  EXPECT_EQ(world.Sent().size(), static_cast<std::size_t>(MessageReception::kMostAnswers));
  double waited = 0.0;
  for (const double seconds : world.Waits)
    waited += seconds;
  EXPECT_LT(waited, 6.0);
  EXPECT_TRUE(world.Newest().Text.ends_with("{9999"));
  // The next pass answers who repeats himself.
  world.Room.Heard.PassBegins();
  world.Hear("N0CALL", ":QX7KB    :Hello{9998");
  EXPECT_EQ(world.Sent().back(), ":N0CALL   :ack9998");
}

TEST_F(MessageReceptionTest, ANumberOfFiveHundredCharactersStaysALine) {
  world.Hear("N0CALL", ":QX7KB    :Hi{" + std::string(500, '9'));
  EXPECT_EQ(world.Newest().Text.size(), 100U);
  ASSERT_EQ(world.Sent().size(), 1U);
  EXPECT_LE(world.Sent()[0].size(), 100U);
  world.Hear("N0CALL", ":QX7KB    :Hi{" + std::string(500, '9'));
  EXPECT_EQ(world.Line(6).Text, "");
}

TEST_F(MessageReceptionTest, EveryByteValueIsTakenAndTheLogKeepsItsLines) {
  int lines = 0;
  for (int code = 1; code < 256; ++code) {
    world.Room.Heard.PassBegins();
    const std::string text(3, static_cast<char>(code));
    world.Hear("N0CALL", ":QX7KB    :x" + text + "y{" + std::to_string(code));
    ++lines;
  }
  EXPECT_EQ(world.LogLines(), lines);
  EXPECT_EQ(world.Sent().size(), 255U);
}

TEST_F(MessageReceptionTest, ALongPathIsAnsweredWithWhatAFrameHolds) {
  world.Room.Heard.MessageReceived(
      {"N0CALL", ":QX7KB    :?APRST", "N0CALL>" + std::string(2000, 'W') + "*>APRS <UI>", "APRS"});
  ASSERT_EQ(world.Sent().size(), 1U);
  EXPECT_EQ(world.Sent()[0].size(), ChatSender::kLongestFrameText);
  EXPECT_EQ(world.Newest().Text.size(), 100U);
}

TEST_F(MessageReceptionTest, ALogThatCannotBeWrittenDisturbsNothing) {
  world.Disk.RefusedEnding = "_CHATLOG.TXT";
  world.Hear("N0CALL", ":QX7KB    :Hello{07");
  EXPECT_THAT(world.Sent(), ElementsAre(":N0CALL   :ack07"));
  EXPECT_EQ(world.Newest().Colour, 0x6000U);
}

}  // namespace
}  // namespace zepril
