// What becomes of a message that is heard: it is shown once, acknowledged each time, answered where
// it asks for that; acknowledgements find the line they are meant for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "core/actions/message_actions.h"
#include "core/controls/chat_controls.h"
#include "core/state/chat.h"
#include "core/state/identity.h"
#include "messages/chat_lines.h"
#include "messages/chat_log.h"
#include "messages/chat_panel.h"
#include "messages/chat_sender.h"
#include "platform/clock.h"

namespace zepril {

struct MessageReceptionTools {
  ChatLines& Lines;
  ChatLog& Log;
  ChatSender& Sender;
  ChatPanel& Panel;
  Clock& LocalClock;
};

class MessageReception final : public MessageActions {
 public:
  // So many frames answer messages in one receive pass: each takes 0.8 s, and together they are to
  // take less than a tick. Who is not acknowledged repeats his message.
  static constexpr int kMostAnswers = 6;
  // A database tells of the past too: who sent longer ago waits for no answer any more.
  static constexpr std::int64_t kAnsweredSeconds = 3600;

  MessageReception(const IdentityState& identity, ChatState& chat, ChatControls& controls,
                   MessageReceptionTools tools)
      : identity_(identity), chat_(chat), controls_(controls), tools_(tools) {}

  void PassBegins() override { answers_ = 0; }
  void MessageReceived(const HeardMessage& heard) override;

 private:
  // Its own copy: control may go to the window system on the way.
  struct Message {
    std::string From;
    std::string Info;
    std::string Header;
    std::string Destination;
    std::string Text;  // behind the addressee
    bool HasNumber = false;
    bool OverInternet = false;
    std::int64_t AgeSeconds = 0;
  };

  // An acknowledgement that has left by radio.
  struct Acknowledged {
    std::string Line;
    std::int64_t Seconds = 0;  // local calendar
  };
  static constexpr std::size_t kMostAcknowledged = 100;

  // It left by radio after this was sent.
  bool IsAcknowledged(const Message& message) const;
  void NoteAcknowledged(const Message& message);
  void ShowTrafficOfOthers(const Message& message);
  void TakeAck(const Message& message);
  bool ShowForMe(const Message& message);
  void Acknowledge(const Message& message);
  void AnswerForTheOperator(const Message& message);
  void MarkAnsweredPings(const Message& message);
  void AnswerPing(const Message& message);
  bool IsRepeat(const Message& message, const std::string& line) const;
  void Enter(const std::string& line, std::uint32_t colour);
  bool MayAnswer();
  // Sends what stands in `ChatTxText`; false when it did not leave.
  bool Answer();

  const IdentityState& identity_;
  ChatState& chat_;
  ChatControls& controls_;
  MessageReceptionTools tools_;
  int answers_ = 0;  // in this pass
  std::deque<Acknowledged> acknowledged_;
};

}  // namespace zepril
