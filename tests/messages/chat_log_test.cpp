// The chat log: its lines, the window that shows it, shortening and clearing.
#include "messages/chat_log.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/messages/messages_world.h"

namespace zepril {
namespace {

constexpr const char* kPath = R"(C:\ZEPRIL\U33\LOG\_CHATLOG.TXT)";

class ChatLogTest : public ::testing::Test {
 protected:
  ChatControls& Chat() { return world.Controls.Chat; }
  void Fill(int lines) {
    std::string text;
    for (int line = 1; line <= lines; ++line)
      text += "line " + std::to_string(line) + "\r\n";
    world.Disk.Contents[kPath] = text;
  }
  MessagesWorld world;
};

TEST_F(ChatLogTest, TheStartMakesSureOfTheFileAndLeavesAnOldOne) {
  world.Room.RestoreAtStart();
  EXPECT_TRUE(world.Disk.Exists(kPath));
  Fill(3);
  world.Room.RestoreAtStart();
  EXPECT_EQ(world.Disk.LineCount(kPath), 3);
  for (const ChatLine& line : world.State.Chat.Lines)
    EXPECT_EQ(line.Text, "");
}

TEST_F(ChatLogTest, OpenItShowsTheFileAndTheCycleRestsForHalfAMinute) {
  Fill(3);
  Chat().Command24.Click();
  EXPECT_TRUE(Chat().Frame7.Visible);
  EXPECT_EQ(Chat().Text5.Text, "line 1\r\nline 2\r\nline 3\r\n");
  EXPECT_EQ(world.Timer1.IntervalMs(), 30000);
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(ChatLogTest, AMissingFileIsMade) {
  Chat().Command24.Click();
  EXPECT_TRUE(world.Disk.Exists(kPath));
  EXPECT_EQ(Chat().Text5.Text, "");
}

TEST_F(ChatLogTest, ASecondClickAndItsOwnButtonCloseItAndATickFollowsSoon) {
  for (Button* button : {&Chat().Command24, &Chat().Command28}) {
    Chat().Command24.Click();
    button->Click();
    EXPECT_FALSE(Chat().Frame7.Visible);
    EXPECT_EQ(world.Timer1.IntervalMs(), 1000);
  }
  world.Timer1.Arm(6000);
  Chat().Command28.Click();
  EXPECT_EQ(world.Timer1.IntervalMs(), 6000);
}

TEST_F(ChatLogTest, TheCursorGoesToTheFieldThatIsToBeFilled) {
  Chat().Command24.Click();
  EXPECT_TRUE(Chat().Text2.FocusWanted);
  EXPECT_FALSE(Chat().Text3.FocusWanted);
  Chat().Command24.Click();
  Chat().Text2.FocusWanted = false;
  Chat().Text2.Text = "AB1CD";
  Chat().Command24.Click();
  EXPECT_FALSE(Chat().Text2.FocusWanted);
  EXPECT_TRUE(Chat().Text3.FocusWanted);
}

TEST_F(ChatLogTest, WithoutARadioTheCursorStays) {
  world.State.Radio.RadioMode = static_cast<int>(RadioMode::None);
  Chat().Command24.Click();
  EXPECT_FALSE(Chat().Text2.FocusWanted || Chat().Text3.FocusWanted);
}

TEST_F(ChatLogTest, MoreThan120LinesAreCutToTheLast100) {
  Fill(120);
  Chat().Command24.Click();
  EXPECT_EQ(world.Disk.LineCount(kPath), 120);
  Chat().Command24.Click();
  Fill(121);
  Chat().Command24.Click();
  EXPECT_EQ(world.Disk.LineCount(kPath), 100);
  EXPECT_TRUE(world.Disk.Of(kPath).starts_with("line 22\r\n"));
  EXPECT_TRUE(world.Disk.Of(kPath).ends_with("line 121\r\n"));
  EXPECT_EQ(Chat().Text5.Text, world.Disk.Of(kPath));
}

TEST_F(ChatLogTest, ADiskThatIsFullKeepsTheWholeLog) {
  Fill(500);
  world.Disk.NoRoomToReplace = true;
  Chat().Command24.Click();
  EXPECT_EQ(world.Disk.LineCount(kPath), 500);
  EXPECT_TRUE(Chat().Text5.Text.starts_with("line 401\r\n"));
  world.Room.SecondPassed();
  EXPECT_TRUE(Chat().ChatNote.Caption.starts_with("CHAT LOG NOT WRITTEN:"));
}

TEST_F(ChatLogTest, ALogThatIsNotWrittenIsTold) {
  world.Disk.RefusedEnding = "_CHATLOG.TXT";
  world.Hear("N0CALL", ":QX7KB    :Hello");
  world.Room.SecondPassed();
  EXPECT_EQ(Chat().ChatNote.Caption.substr(0, 21), "CHAT LOG NOT WRITTEN:");
  world.Disk.RefusedEnding.clear();
  world.Hear("N0CALL", ":QX7KB    :Hello again");
  world.Room.SecondPassed();
  EXPECT_EQ(Chat().ChatNote.Caption, "");
}

TEST_F(ChatLogTest, ClearedItBeginsWithTheLinesThatAreShown) {
  Fill(3);
  world.PutLine(2, "N0CALL   :QX7KB    :Hello{07", 0x6000);
  world.PutLine(7, "    QX7KB:AB1CD    :Hello{01", 250);
  Chat().Command24.Click();
  Chat().Command25.Click();
  EXPECT_EQ(world.Disk.Of(kPath),
            "20240115<1234  N0CALL   :QX7KB    :Hello{07\r\n"
            "20240115<1234  QX7KB:AB1CD    :Hello{01\r\n");
  EXPECT_FALSE(Chat().Frame7.Visible);
  EXPECT_EQ(world.Newest().Colour, 250U);
}

TEST_F(ChatLogTest, ALogThatCannotBeClearedStaysWholeAndIsTold) {
  Fill(3);
  world.PutLine(7, "    QX7KB:AB1CD    :Hello{01", 250);
  world.Disk.NoRoomToReplace = true;
  Chat().Command25.Click();
  EXPECT_EQ(world.Disk.LineCount(kPath), 3);
  world.Room.SecondPassed();
  EXPECT_TRUE(Chat().ChatNote.Caption.starts_with("CHAT LOG NOT WRITTEN:"));
}

TEST_F(ChatLogTest, ClearedWithoutALineItIsGone) {
  Fill(3);
  Chat().Command25.Click();
  EXPECT_FALSE(world.Disk.Exists(kPath));
}

}  // namespace
}  // namespace zepril
