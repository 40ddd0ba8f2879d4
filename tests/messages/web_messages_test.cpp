// Messages by the web form: the address, the banner, the order, and what a form does that answers
// late, badly or never.
#include "messages/web_messages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/messages/messages_world.h"

namespace zepril {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kForm =
    "http://aprs.example/cgi-bin/sendmsg.cgi?fromcall=QX7KB-10&tocall=AB1CD&msg=";

class WebMessagesTest : public ::testing::Test {
 protected:
  WebMessagesTest() { world.Timer2.Stop(); }
  Label& Banner() { return world.Controls.Status.Text10; }
  bool IsHourglass() {
    return world.Controls.Window.Pointer == PointerShape::Hourglass &&
           world.Controls.Map.Picture1.Pointer == PointerShape::Hourglass;
  }
  MessagesWorld world{RadioMode::None};
};

TEST_F(WebMessagesTest, WithoutARadioALineLeavesOnceByTheForm) {
  world.State.Chat.ChatSerial = 6;
  world.Type("AB1CD", "Hello");
  EXPECT_EQ(world.Newest().Colour, 254U);
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Newest().Colour, 0x5FF0U);
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip, "handed to the message service");
  EXPECT_THAT(world.Pages.Asked, ElementsAre(std::string(kForm) + "Hello{07"));
  EXPECT_THAT(world.Sent(), IsEmpty());
  world.Pages.Answer("thanks");
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Pages.Asked.size(), 1U);
}

TEST_F(WebMessagesTest, TheCycleRestsUnderTheBannerUntilThePageHasCome) {
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  EXPECT_TRUE(Banner().Visible);
  EXPECT_EQ(Banner().Caption, "SENDING CHAT MESSAGE VIA INTERNET...");
  EXPECT_EQ(Banner().BackColour, 0xC0C0U);
  EXPECT_TRUE(IsHourglass());
  EXPECT_FALSE(world.Timer1.Enabled());
  world.Pages.Answer("whatever");
  EXPECT_THAT(world.Waits, ElementsAre(1.0));
  EXPECT_FALSE(Banner().Visible);
  EXPECT_FALSE(IsHourglass());
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(WebMessagesTest, SeveralLinesArriveOneAfterTheOther) {
  for (const char* text : {"a", "b", "c"})
    world.Type("AB1CD", text);
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Pages.Asked.size(), 1U);
  world.Pages.Answer("");
  EXPECT_FALSE(world.Timer1.Enabled());
  EXPECT_TRUE(Banner().Visible);
  world.Pages.Answer("");
  world.Pages.Answer("");
  EXPECT_THAT(world.Pages.Asked,
              ElementsAre(std::string(kForm) + "a{01", std::string(kForm) + "b{02",
                          std::string(kForm) + "c{03"));
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_FALSE(Banner().Visible);
}

TEST_F(WebMessagesTest, AFormThatCannotBeReachedLeavesTheBannerToTheSecondTimer) {
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  world.Pages.Fail();
  EXPECT_TRUE(Banner().Visible);
  EXPECT_TRUE(world.Timer2.Enabled());
  EXPECT_EQ(world.Timer2.IntervalMs(), 2000);
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip, "given up: the message service did not answer");
}

TEST_F(WebMessagesTest, AFormThatRefusesIsTold) {
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  world.Pages.Answer("no", 403);
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip, "given up: the message service refused it (403)");
  EXPECT_FALSE(Banner().Visible);
}

TEST_F(WebMessagesTest, WhatDidNotArriveIsSaidInThePanel) {
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  world.Pages.Fail();
  EXPECT_TRUE(world.Controls.Chat.ChatNote.Caption.starts_with("NOT SENT: "));
  EXPECT_TRUE(world.Controls.Chat.ChatNote.Visible);
}

TEST_F(WebMessagesTest, AFormThatNeverAnswersIsGivenUpAfterAMinute) {
  world.Type("AB1CD", "a");
  world.Type("AB1CD", "b");
  world.Room.Sender.RetryPass();
  EXPECT_EQ(world.Timer2.IntervalMs(), 60000);
  world.Clock.Run(59.0);
  world.Room.SecondPassed();
  EXPECT_EQ(world.Pages.Asked.size(), 1U);
  world.Clock.Run(1.0);
  world.Room.SecondPassed();
  EXPECT_EQ(world.Pages.Abandoned, 1);
  EXPECT_EQ(world.Pages.Asked.size(), 2U);
  world.Clock.Run(60.0);
  world.Room.SecondPassed();
  EXPECT_FALSE(world.Room.Web.IsBusy());
  EXPECT_FALSE(Banner().Visible);
  EXPECT_FALSE(IsHourglass());
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip, "given up: the message service did not answer");
}

// The pause behind a page is one in which a second passes.
TEST_F(WebMessagesTest, APageThatComesWithTheLastSecondIsTakenOnce) {
  for (const std::size_t lines : {std::size_t{1}, std::size_t{2}}) {
    MessagesWorld late{RadioMode::None};
    for (std::size_t line = 0; line < lines; ++line)
      late.Type("AB1CD", "Hello");
    late.Room.Sender.RetryPass();
    late.Clock.Run(59.5);
    late.Clock.Schedule(0.7, [&late] { late.Room.SecondPassed(); });
    late.Pages.Answer("");
    EXPECT_EQ(late.Pages.Asked.size(), lines);
    EXPECT_EQ(late.Controls.Chat.Text1[8 - lines].ToolTip, "handed to the message service");
    EXPECT_EQ(late.Room.Web.IsBusy(), lines == 2);
    if (lines == 2) late.Pages.Answer("");
    EXPECT_FALSE(late.Room.Web.IsBusy());
    EXPECT_EQ(late.Controls.Chat.Text1[7].ToolTip, "handed to the message service");
    EXPECT_TRUE(late.Timer1.Enabled());
  }
}

TEST_F(WebMessagesTest, WhoWaitsBehindPagesOfOthersHasHisWholeMinute) {
  world.Pages.Fetch("http://other.example/", nullptr);
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  for (int second = 0; second < 100; ++second) {
    world.Clock.Run(1.0);
    world.Room.SecondPassed();
  }
  EXPECT_EQ(world.Pages.Asked.size(), 1U);
  world.Pages.Answer("");
  EXPECT_EQ(world.Pages.Asked.size(), 2U);
  world.Clock.Run(59.0);
  world.Room.SecondPassed();
  EXPECT_TRUE(world.Room.Web.IsBusy());
  world.Pages.Answer("");
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip, "handed to the message service");
}

TEST_F(WebMessagesTest, TheBannerIsThereForEachAsLong) {
  world.Type("AB1CD", "a");
  world.Type("AB1CD", "b");
  world.Room.Sender.RetryPass();
  world.Clock.Run(50.0);
  world.Timer2.Stop();
  world.Pages.Answer("");
  EXPECT_TRUE(world.Timer2.Enabled());
  EXPECT_EQ(world.Timer2.IntervalMs(), 60000);
}

TEST_F(WebMessagesTest, WithTheChatClosedWhatWaitsIsNotSentAndSaid) {
  world.Type("AB1CD", "a");
  world.Type("AB1CD", "b");
  world.Room.Sender.RetryPass();
  world.State.Chat.ChatTxText = ":AB1CD    :mok07";
  world.Room.Sender.SendChatFrame();
  world.Controls.Chat.Check7.Value = 0;
  world.Room.Panel.Renew();
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip,
            "given up: the chat was closed before its turn came");
  EXPECT_EQ(world.Controls.Chat.Text1[6].ToolTip, "handed to the message service");
  // The one that is under way goes on, and so do replies.
  world.Pages.Answer("");
  EXPECT_THAT(world.Pages.Asked,
              ElementsAre(std::string(kForm) + "a{01", std::string(kForm) + "mok07"));
  world.Pages.Answer("");
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(WebMessagesTest, TheFormIsAskedOnce) {
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  EXPECT_THAT(world.Pages.How, ElementsAre(Asking::Once));
}

TEST_F(WebMessagesTest, AQueryIsHandedOverOnceToo) {
  world.Type("AB1CD", "?APRST");
  EXPECT_EQ(world.Newest().Colour, 254U);
  world.Room.Sender.RetryPass();
  world.Pages.Answer("");
  EXPECT_EQ(world.Newest().Colour, 0x5FF0U);
  world.Room.Sender.RetryPass();
  EXPECT_THAT(world.Pages.Asked, ElementsAre(std::string(kForm) + "?APRST"));
}

TEST_F(WebMessagesTest, ALatePageIsStillTaken) {
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  // A key in the message field has brought the cycle back meanwhile.
  Banner().Visible = false;
  world.Timer1.Enable();
  world.Pages.Answer("");
  EXPECT_FALSE(Banner().Visible);
  EXPECT_FALSE(IsHourglass());
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip, "handed to the message service");
}

TEST_F(WebMessagesTest, AServiceWithoutAHostIsOffAndSaysSo) {
  world.Services.AprsCgiService.clear();
  world.Type("AB1CD", "Hello");
  world.Room.Sender.RetryPass();
  EXPECT_THAT(world.Pages.Asked, IsEmpty());
  EXPECT_FALSE(Banner().Visible);
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_EQ(world.Controls.Chat.Text1[7].ToolTip,
            "given up: no host of the message service in SERVICES.TXT");
  EXPECT_TRUE(world.Controls.Chat.ChatNote.Caption.starts_with("NO MESSAGE SERVICE"));
}

TEST_F(WebMessagesTest, WhatWaitsAtTheEndIsNeverAskedFor) {
  FakePages pages;
  {
    WebMessages web(world.State.Identity, world.Services,
                    {world.Controls.Window, world.Controls.Map, world.Controls.Status},
                    {pages, world.Clock, world.Timer1, world.Timer2}, {});
    for (const char* text : {":AB1CD    :one{01", ":AB1CD    :two{02", ":AB1CD    :three{03"})
      EXPECT_EQ(web.Send(text), "");
  }
  EXPECT_EQ(pages.Asked.size(), 1U);
  EXPECT_EQ(pages.Abandoned, 1);
}

TEST_F(WebMessagesTest, TooManyThatWaitAreRefused) {
  for (std::size_t at = 0; at <= PageFetcher::kMostWaiting; ++at)
    EXPECT_EQ(world.Room.Web.Send(":AB1CD    :x{1"), "");
  EXPECT_EQ(world.Room.Web.Send(":AB1CD    :x{1"),
            "too many messages wait for the message service");
}

TEST(WebMessages, TheReplyToAStationOnTheInternetTakesTheFormInEveryMode) {
  for (const RadioMode mode : {RadioMode::AgwLocal, RadioMode::Pk232}) {
    MessagesWorld world(mode);
    world.State.Chat.ChatTxText = ":AB1CD    :mok07";
    EXPECT_EQ(world.Room.Sender.SendChatFrame(), "");
    EXPECT_THAT(world.Pages.Asked, ElementsAre(std::string(kForm) + "mok07"));
    EXPECT_THAT(world.Sent(), IsEmpty());
    EXPECT_EQ(world.Port.Written, "");
    EXPECT_EQ(world.State.Chat.ChatTxText, "");
  }
}

}  // namespace
}  // namespace zepril
