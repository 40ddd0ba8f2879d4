// The steps of a received message in their order.
#include "messages/message_reception.h"

#include <algorithm>

#include "core/text_fields.h"
#include "messages/message_texts.h"

namespace zepril {

void MessageReception::MessageReceived(const HeardMessage& heard) {
  const Message message{std::string(heard.From),
                        std::string(heard.Info),
                        std::string(heard.Header),
                        std::string(heard.Destination),
                        std::string(MessageTextOf(heard.Info)),
                        NumberIn(heard.Info).has_value(),
                        heard.OverInternet,
                        heard.AgeSeconds};
  if (!IsOwnCall(AddresseeOf(message.Info), identity_)) return ShowTrafficOfOthers(message);
  // What a database tells of long after answers nothing, and waits for no answer.
  const bool is_awaited = message.AgeSeconds <= kAnsweredSeconds;
  if (BeginsLikeAck(message.Text)) {
    if (is_awaited) TakeAck(message);
    return;
  }
  const bool is_new = ShowForMe(message);
  if (!is_awaited) return;
  // At once, also for repeats.
  Acknowledge(message);
  if (is_new) AnswerForTheOperator(message);
  MarkAnsweredPings(message);
  AnswerPing(message);
}

// Kept: a line without a number, as that of a ping, is compared with the newest one only, and the
// ninth of old traffic counts as new.
bool MessageReception::IsRepeat(const Message& message, const std::string& line) const {
  return tools_.Lines.IsNewest(line) || (message.HasNumber && tools_.Lines.Holds(line));
}

void MessageReception::Enter(const std::string& line, std::uint32_t colour) {
  tools_.Lines.Push(line, colour);
  tools_.Log.Append(line);
}

void MessageReception::ShowTrafficOfOthers(const Message& message) {
  if (BeginsLikeAck(message.Text) || controls_.Check8.Value == 1) return;
  const std::string line = ReceivedLine(message.From, message.Info);
  if (!IsRepeat(message, line)) Enter(line, chat_colours::kBetweenOthers);
}

void MessageReception::TakeAck(const Message& message) {
  const std::string_view number = AckedNumber(message.Info);
  bool taken = false;
  for (ChatLine& line : chat_.Lines) {
    if (!chat_colours::TakesAck(line.Colour) || !IsNumberOf(line.Text, number)) continue;
    line.Colour = chat_colours::kAcknowledged;
    line.Trouble.clear();
    taken = true;
  }
  if (taken) tools_.Lines.Show();
}

bool MessageReception::ShowForMe(const Message& message) {
  const std::string line = ReceivedLine(message.From, message.Info);
  if (IsRepeat(message, line)) return false;
  Enter(line, chat_colours::kForMe);
  if (tools_.Panel.OpenForMessage()) tools_.LocalClock.HandOver();
  return true;
}

bool MessageReception::MayAnswer() {
  if (tools_.LocalClock.EndAsked()) return false;
  return identity_.TxAllowed == 1 && ++answers_ <= kMostAnswers;
}

// One that does not leave costs seconds: no other is tried in the same pass.
bool MessageReception::Answer() {
  if (tools_.Sender.SendChatFrame().empty()) return true;
  answers_ = kMostAnswers;
  return false;
}

bool MessageReception::IsAcknowledged(const Message& message) const {
  const std::string line = ReceivedLine(message.From, message.Info);
  const std::int64_t sent = SecondsOf(tools_.LocalClock.Now()) - message.AgeSeconds;
  return std::any_of(acknowledged_.begin(), acknowledged_.end(), [&](const Acknowledged& other) {
    return other.Seconds >= sent && other.Line == line;
  });
}

void MessageReception::NoteAcknowledged(const Message& message) {
  acknowledged_.push_back(
      {ReceivedLine(message.From, message.Info), SecondsOf(tools_.LocalClock.Now())});
  if (acknowledged_.size() > kMostAcknowledged) acknowledged_.pop_front();
}

void MessageReception::Acknowledge(const Message& message) {
  const auto number = NumberToAcknowledge(message.From, message.Info);
  if (!number || (message.OverInternet && IsAcknowledged(message)) || !MayAnswer()) return;
  // Who came by the internet alone is answered that way.
  chat_.ChatTxText = message.OverInternet ? InternetAckText(message.From, *number)
                                          : AckText(message.From, *number);
  if (Answer() && !message.OverInternet) NoteAcknowledged(message);
}

void MessageReception::AnswerForTheOperator(const Message& message) {
  if (chat_.AutoAnswerOn != 1 || !message.HasNumber) return;
  // Not when one of the newer lines shows that this has just been done.
  const std::string answer = TextAsSent(message.From, chat_.AutoAnswerText);
  for (std::size_t at = kChatLines / 2; at < kChatLines; ++at) {
    if (IsAnswerTo(chat_.Lines[at].Text, identity_.MyCallFull, message.From, answer)) return;
  }
  tools_.Panel.SendAutoAnswer(message.From);
}

void MessageReception::MarkAnsweredPings(const Message& message) {
  if (!MayAnswerPing(message.Info)) return;
  for (ChatLine& line : chat_.Lines) {
    if (!chat_colours::IsOpen(line.Colour) || !HoldsPing(line.Text)) continue;
    line.Colour = chat_colours::kAcknowledged;
    line.Trouble.clear();
  }
  tools_.Lines.Show();
}

void MessageReception::AnswerPing(const Message& message) {
  if (!IsPing(message.Text) || !MayAnswer()) return;
  chat_.ChatTxText = PingAnswerText(message.From, message.Header, message.Destination);
  const std::string line = OwnLine(identity_.MyCallFull, chat_.ChatTxText);
  tools_.Lines.Push(line, chat_colours::kPingAnswer);
  Answer();
  tools_.Log.Append(line);
}

}  // namespace zepril
