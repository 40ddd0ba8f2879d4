// The chat of a whole station in virtual time: messages in and out, what stops them, what a flood
// does, and two stations that talk over a channel that loses frames.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "core/keys.h"
#include "reception/receive_pass.h"
#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr std::size_t kEngineHeader = 36;

// The text of an engine's frame to be sent, empty for other frames.
std::string TextToSend(std::string_view frame) {
  if (frame.size() <= kEngineHeader || frame[4] != 'V') return {};
  const std::string_view data = frame.substr(kEngineHeader);
  const std::size_t path = 1 + 10 * static_cast<std::size_t>(Asc(data.front()));
  return std::string(data.substr(std::min(path, data.size())));
}

class ChattingStation : public StationHarness {
 public:
  explicit ChattingStation(const std::string& extra_settings = "TXON=10\r\n")
      : StationHarness(extra_settings) {
    socket.OnSend = [this, answer = socket.OnSend](std::string_view bytes) {
      const std::string text = TextToSend(bytes);
      if (text.starts_with(':')) Sent.push_back(text);
      if (text.starts_with(':') && OnMessage) OnMessage(text);
      answer(bytes);
    };
  }
  ChatControls& Chat() { return Controls().Chat; }
  void Switch(CheckBox& box, int value) {
    box.Value = value;
    box.Click();
  }
  void Type(const std::string& to, const std::string& text) {
    Chat().Text2.Text = to;
    Chat().Text3.Text = text;
    Chat().Text3.KeyDown({kEnterKey, 0});
  }
  const ChatLine& Newest() { return State().Chat.Lines.back(); }
  int CountSent(const std::string& text) const {
    return static_cast<int>(std::count(Sent.begin(), Sent.end(), text));
  }
  std::string ChatLog() const { return File("U33\\LOG\\_CHATLOG.TXT"); }

  std::vector<std::string> Sent;
  std::function<void(const std::string& text)> OnMessage;
};

class ChatTest : public ::testing::Test {
 protected:
  ChatTest() {
    EXPECT_TRUE(station.Start());
    station.Ticks(1);
  }
  void OpenChat() { station.Switch(station.Chat().Check7, 1); }

  ChattingStation station;
};

TEST_F(ChatTest, TheStartMakesTheLogAndShowsNoLines) {
  EXPECT_EQ(station.ChatLog(), "");
  EXPECT_TRUE(station.Chat().Check7.Visible);
  EXPECT_TRUE(station.Chat().Check7.Enabled);
  EXPECT_FALSE(station.Chat().Frame3.Visible);
  for (const Label& line : station.Chat().Text1)
    EXPECT_EQ(line.Caption, "");
}

TEST_F(ChatTest, AMessageThatIsHeardOpensTheChatAndIsAcknowledgedInTheSameTick) {
  station.Hear("N0CALL", ":QX7KB    :Hello{07");
  station.Ticks(1);
  EXPECT_TRUE(station.Chat().Frame3.Visible);
  EXPECT_EQ(station.Chat().Text1[7].Caption, "N0CALL   :QX7KB    :Hello{07");
  EXPECT_EQ(station.Sent, std::vector<std::string>{":N0CALL   :ack07"});
  EXPECT_NE(station.ChatLog().find("  N0CALL   :QX7KB    :Hello{07\r\n"), std::string::npos);
  EXPECT_EQ(station.Chat().Check7.Caption, "CHAT 1");
}

TEST_F(ChatTest, ATypedLineLeavesWithTheNextTickAndThenEveryFifth) {
  OpenChat();
  station.Type("N0CALL", "Hello");
  EXPECT_TRUE(station.Sent.empty());
  station.Ticks(1);
  EXPECT_EQ(station.CountSent(":N0CALL   :Hello{01"), 1);
  // A tick that sends is followed by one of twice the length.
  station.clock.Run(12.0 + 3 * 6.0);
  EXPECT_EQ(station.Sent.size(), 1U);
  station.clock.Run(6.0);
  EXPECT_EQ(station.Sent.size(), 2U);
  station.clock.Run(600.0);
  EXPECT_EQ(station.CountSent(":N0CALL   :Hello{01"), 5);
  EXPECT_EQ(station.Newest().Colour, 0x5FF0U);
}

TEST_F(ChatTest, AnAckEndsTheRepeats) {
  OpenChat();
  station.Type("N0CALL", "Hello");
  station.Ticks(1);
  station.Hear("N0CALL", ":QX7KB    :ack01");
  station.clock.Run(600.0);
  EXPECT_EQ(station.Sent.size(), 1U);
  EXPECT_EQ(station.Newest().Colour, 128U);
}

TEST_F(ChatTest, EnterPressedAgainAndAgainSendsOneLine) {
  OpenChat();
  station.Type("N0CALL", "Hello");
  for (int press = 0; press < 100; ++press)
    station.Chat().Text3.KeyDown({kEnterKey, 0});
  station.clock.Run(600.0);
  EXPECT_EQ(station.Sent.size(), 5U);
}

// Whose text is taken away by a message that is answered meanwhile: it leaves all the same.
TEST_F(ChatTest, ALineWhoseTurnAnAcknowledgementTookLeavesWithTheNextPass) {
  OpenChat();
  station.Ticks(1);
  station.Type("N0CALL", "Hello");
  station.State().Chat.ChatTxText.clear();
  station.Hear("QX1CD", ":QX7KB    :Hi{07");
  station.clock.Run(5 * 6.0 + 12.0);
  EXPECT_EQ(station.CountSent(":N0CALL   :Hello{01"), 1);
}

TEST_F(ChatTest, TypingPutsTheTickOff) {
  OpenChat();
  for (int key = 0; key < 20; ++key) {
    station.Chat().Text3.KeyDown({'x', 0});
    station.Hear("N0CALL", "=5230.00N/01324.00E>" + std::to_string(key));
    station.clock.Run(1.0);
    EXPECT_EQ(station.program->Counts().Frames, 0) << key;
  }
  station.clock.Run(6.0);
  EXPECT_GT(station.program->Counts().Frames, 0);
}

TEST_F(ChatTest, ASlowTypistIsStillHeardTo) {
  OpenChat();
  for (int key = 0; key < 12; ++key) {
    station.Hear("N0CALL", "=5230.00N/01324.00E>" + std::to_string(key));
    station.Chat().Text3.KeyDown({'x', 0});
    station.clock.Run(5.0);
  }
  EXPECT_GT(station.program->Counts().Frames, 5);
}

TEST_F(ChatTest, WithThePanelClosedNothingIsRepeatedAndTheTriesStay) {
  OpenChat();
  station.Type("N0CALL", "Hello");
  station.Switch(station.Chat().Check7, 0);
  station.clock.Run(300.0);
  EXPECT_TRUE(station.Sent.empty());
  EXPECT_EQ(station.Newest().Colour, 250U);
  station.program->SecondPassed();
  EXPECT_EQ(station.Chat().Check7.ToolTip, "Messages / 1 to be sent wait until it is opened");
  OpenChat();
  station.Ticks(1);
  EXPECT_EQ(station.Sent.size(), 1U);
}

TEST_F(ChatTest, TxOffClosesTheChatAndNothingLeavesAfterwards) {
  station.Switch(station.Controls().Transmit.Check6, 1);
  OpenChat();
  station.Type("N0CALL", "Hello");
  station.Ticks(1);
  EXPECT_EQ(station.Sent.size(), 1U);
  station.Switch(station.Controls().Transmit.Check6, 0);
  EXPECT_FALSE(station.Chat().Frame3.Visible);
  EXPECT_FALSE(station.Controls().Record.Command10.Enabled);
  station.clock.Run(600.0);
  EXPECT_EQ(station.Sent.size(), 1U);
}

TEST_F(ChatTest, AfterARestartNothingOfBeforeIsSent) {
  OpenChat();
  station.Type("N0CALL", "Hello");
  station.Restart();
  station.Switch(station.Chat().Check7, 1);
  station.clock.Run(300.0);
  EXPECT_TRUE(station.Sent.empty());
  EXPECT_EQ(station.Newest().Text, "");
  EXPECT_NE(station.ChatLog().find(":N0CALL   :Hello{01\r\n"), std::string::npos);
}

TEST_F(ChatTest, NothingLeavesUnderACallThatTxSetupHasChanged) {
  OpenChat();
  station.Type("N0CALL", "Hello");
  station.Ticks(1);
  EXPECT_EQ(station.Sent.size(), 1U);
  station.Controls().Transmit.Check6.RightClick();
  station.Controls().TxSetup.TxSsid.Text = "9";
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_EQ(station.State().Identity.MyCallFull, "QX7KB-9");
  station.clock.Run(300.0);
  EXPECT_EQ(station.Sent.size(), 1U);
  EXPECT_EQ(station.Chat().Text1[7].ToolTip, "given up: typed under another call");
}

TEST_F(ChatTest, ALinkThatIsLostInAPassSendsNothingLater) {
  OpenChat();
  for (const char* text : {"one", "two", "three"})
    station.Type("N0CALL", text);
  station.OnMessage = [this](const std::string&) {
    if (station.Sent.size() == 1) station.socket.SetState(SocketState::PeerClosed);
  };
  station.socket.OnConnect = nullptr;  // it is not found again for a while
  station.clock.Run(400.0);
  EXPECT_EQ(station.Sent.size(), 1U);
  EXPECT_EQ(station.Newest().Colour, 0x5FF0U);
  EXPECT_EQ(station.Chat().Text1[7].ToolTip,
            "given up, the last try did not leave: radio link lost");
  station.program->SecondPassed();
  EXPECT_EQ(station.Chat().ChatNote.Caption.substr(0, 16), "RADIO LINK LOST:");
  station.EngineAccepts();
  station.clock.Run(300.0);
  EXPECT_EQ(station.Sent.size(), 1U);
}

TEST_F(ChatTest, AMessageGoesBeforeAReport) {
  station.Switch(station.Controls().Transmit.Check6, 1);
  OpenChat();
  station.Type("N0CALL", "Hello");
  station.Ticks(1);
  EXPECT_EQ(station.Sent.size(), 1U);
  EXPECT_FALSE(station.State().Transmission.BeaconDue);
}

TEST_F(ChatTest, TheLogWindowRestsTheCycleAndClosesWithTheNextTick) {
  OpenChat();
  station.Chat().Command24.Click();
  station.clock.Run(29.0);
  EXPECT_TRUE(station.Chat().Frame7.Visible);
  station.clock.Run(2.0);
  EXPECT_FALSE(station.Chat().Frame7.Visible);
}

TEST_F(ChatTest, APingOfTheRecordPanelIsRepeatedThreeTimes) {
  station.Switch(station.Controls().Transmit.Check6, 1);
  station.State().Stores.SelectedStationCall = "N0CALL";
  station.Controls().Record.Command10.Click();
  station.clock.Run(300.0);
  EXPECT_EQ(station.CountSent(":N0CALL   :?APRST"), 3);
}

TEST_F(ChatTest, TenThousandMessagesInOneTickKeepItsTime) {
  OpenChat();
  for (int number = 0; number < 10000; ++number)
    station.Hear("N0CALL", ":QX7KB    :flood{" + std::to_string(number));
  const double before = station.clock.MonotonicSeconds();
  station.program->Timer1().Elapsed();
  EXPECT_LE(station.Sent.size(), 6U);
  EXPECT_GE(station.Sent.size(), 1U);
  EXPECT_LT(station.clock.MonotonicSeconds() - before, 12.0);
  // What waits comes in the ticks that follow, so many answers in each.
  station.clock.Run(60.0);
  EXPECT_LE(station.Sent.size(), 6U * 11U);
  for (const ChatLine& line : station.State().Chat.Lines)
    EXPECT_LE(line.Text.size(), kLongestChatLine);
}

TEST(ChatOfAListener, ShowsAndSaysAndSendsNothing) {
  ChattingStation station("USER=DLXYZ\r\n");
  ASSERT_TRUE(station.Start());
  station.Hear("N0CALL", ":DLXYZ    :Hello{07");
  station.Ticks(2);
  EXPECT_EQ(station.Newest().Text, "N0CALL   :DLXYZ    :Hello{07");
  EXPECT_FALSE(station.Chat().Text2.Visible);
  EXPECT_FALSE(station.Chat().Text3.Visible);
  EXPECT_FALSE(station.Chat().Check16.Visible);
  EXPECT_EQ(station.Chat().ChatNote.Caption.substr(0, 9), "LISTENER:");
  EXPECT_TRUE(station.Sent.empty());
}

TEST(ChatWithoutARadio, LeavesByTheServiceOfTheFileAndEndsWithItsTime) {
  ChattingStation station("MODEM=4\r\n");
  station.files.Write("C:\\ZEPRIL\\SERVICES.TXT", "APRSCGISERVICE=https://aprs.example\r\n");
  ASSERT_TRUE(station.Start());
  station.Switch(station.Chat().Check7, 1);
  station.Type("N0CALL", "Hello");
  station.Ticks(1);
  ASSERT_EQ(station.pages->Asked.size(), 1U);
  EXPECT_EQ(station.pages->Asked[0],
            "https://aprs.example/cgi-bin/sendmsg.cgi?fromcall=QX7KB&tocall=N0CALL&msg=Hello{01");
  EXPECT_FALSE(station.program->Timer1().Enabled());
  station.pages->Answer("taken");
  EXPECT_TRUE(station.program->Timer1().Enabled());
  EXPECT_EQ(station.Newest().Colour, 0x5FF0U);
  station.clock.Run(16 * 60.0);
  EXPECT_EQ(station.Chat().Check7.Value, 0);
  EXPECT_FALSE(station.Chat().Frame3.Visible);
  EXPECT_EQ(station.pages->Asked.size(), 1U);
}

TEST(ChatWithoutARadio, TheCycleComesBackFromAFormThatCannotBeReached) {
  ChattingStation station("MODEM=4\r\n");
  station.files.Write("C:\\ZEPRIL\\SERVICES.TXT", "APRSCGISERVICE=https://aprs.example\r\n");
  ASSERT_TRUE(station.Start());
  station.Switch(station.Chat().Check7, 1);
  station.Type("N0CALL", "Hello");
  station.Ticks(1);
  station.pages->Fail();
  EXPECT_TRUE(station.Controls().Status.Text10.Visible);
  station.clock.Run(3.0);
  EXPECT_FALSE(station.Controls().Status.Text10.Visible);
  EXPECT_TRUE(station.program->Timer1().Enabled());
  EXPECT_EQ(station.Controls().Window.Pointer, PointerShape::Default);
}

// ---- Two stations ---------------------------------------------------------------------------

// One channel between two stations that loses some of the frames, messages and acknowledgements
// alike.
class LossyChannel {
 public:
  static constexpr double kLoss = 0.3;

  LossyChannel(ChattingStation& one, ChattingStation& other) {
    Join(one, "QX7KB", other);
    Join(other, "QX1AB", one);
  }
  // How many frames with this text have come through.
  int Through(const std::string& text) const {
    const auto found = through_.find(text);
    return found == through_.end() ? 0 : found->second;
  }

 private:
  void Join(ChattingStation& from, const std::string& call, ChattingStation& to) {
    from.OnMessage = [this, call, &to](const std::string& text) {
      if (chance_(random_) < kLoss) return;
      ++through_[text];
      to.Hear(call, text);
    };
  }

  std::mt19937 random_{20240115};
  std::uniform_real_distribution<double> chance_{0.0, 1.0};
  std::map<std::string, int> through_;
};

bool IsDone(ChattingStation& station) {
  return std::none_of(station.State().Chat.Lines.begin(), station.State().Chat.Lines.end(),
                      [](const ChatLine& line) { return chat_colours::HasSendsLeft(line.Colour); });
}

// A tick, and the time to the next.
void RunATick(ChattingStation& station) {
  station.program->Timer1().Elapsed();
  station.clock.Wait(station.program->Timer1().IntervalMs() / 1000.0);
}

int CountOf(const std::string& text, const std::string& wanted) {
  int count = 0;
  for (std::size_t at = text.find(wanted); at != std::string::npos;
       at = text.find(wanted, at + wanted.size()))
    ++count;
  return count;
}

class TwoStations : public ::testing::Test {
 protected:
  TwoStations() {
    for (ChattingStation* station : {&one, &other}) {
      EXPECT_TRUE(station->Start());
      station->clock.Run(3.0);
      station->Switch(station->Chat().Check7, 1);
    }
  }
  // Both write at once and wait until each message has come to its end.
  void Exchange(int number) {
    const std::string text = "message " + ZeroPadded(number, 4) + " of many";
    one.Type("QX1AB", text);
    other.Type("QX7KB", text);
    for (int tick = 0; tick < 60 && !(IsDone(one) && IsDone(other)); ++tick) {
      RunATick(one);
      RunATick(other);
    }
    Note(one);
    Note(other);
  }
  void Note(ChattingStation& station) {
    for (const ChatLine& line : station.State().Chat.Lines) {
      if (line.FirstColour == 250) ended[line.Text] = line.Colour;
    }
  }
  // The message was shown as often as it arrived at all, which is once or never, and its sender
  // knows as much as he can.
  void Judge(const std::string& line, const ChattingStation& receiver) {
    const std::string frame = line.substr(9);
    const std::string shown = Trim(line.substr(0, 9)) == "QX7KB" ? "QX7KB    " : "QX1AB    ";
    const int arrived = channel.Through(frame);
    EXPECT_EQ(CountOf(logs[&receiver], "  " + shown + frame + "\r\n"), arrived > 0 ? 1 : 0) << line;
    const bool acknowledged = ended[line] == chat_colours::kAcknowledged;
    EXPECT_TRUE(acknowledged || ended[line] == chat_colours::kGivenUp) << line << ended[line];
    EXPECT_TRUE(!acknowledged || arrived > 0) << line;
  }

  ChattingStation one;
  ChattingStation other{"USER=QX1AB\r\n"};
  LossyChannel channel{one, other};
  std::map<std::string, std::uint32_t> ended;  // by line: the state in which it ended
  std::map<const ChattingStation*, std::string> logs;
};

TEST_F(TwoStations, AThousandMessagesEachWayArriveOnceOverALossyChannel) {
  constexpr int kMessages = 1000;
  for (int number = 0; number < kMessages; ++number)
    Exchange(number);
  logs = {{&one, one.ChatLog()}, {&other, other.ChatLog()}};
  ASSERT_EQ(ended.size(), 2U * kMessages);
  int given_up = 0;
  for (const auto& [line, colour] : ended) {
    Judge(line, line.find("QX7KB:") < 9 ? other : one);
    if (colour == chat_colours::kGivenUp) ++given_up;
    // Never more often than five times.
    const std::string frame = line.substr(9);
    EXPECT_LE(one.CountSent(frame) + other.CountSent(frame), 5) << line;
  }
  EXPECT_GT(given_up, 10);
  EXPECT_LT(given_up, 200);
}

}  // namespace
}  // namespace zepril
