// What of the chat leaves, and how often: a line that is typed, the pass that sends every line with
// sends left, and a single frame like an acknowledgement.
#pragma once

#include <string>

#include "core/controls/chat_controls.h"
#include "core/state/chat.h"
#include "core/state/identity.h"
#include "core/state/radio.h"
#include "core/timer.h"
#include "links/frame_sender.h"
#include "messages/chat_lines.h"
#include "messages/chat_log.h"
#include "messages/web_messages.h"
#include "platform/clock.h"

namespace zepril {

struct ChatSenderSections {
  const IdentityState& Identity;
  const RadioState& Radio;
  ChatState& Chat;
};

struct ChatSenderTools {
  ChatLines& Lines;
  ChatLog& Log;
  FrameSender& Frames;
  WebMessages& Web;
  Clock& LocalClock;
  Timer& Timer1;
  Timer& Timer2;
};

class ChatSender {
 public:
  // No frame carries more of a text.
  static constexpr std::size_t kLongestFrameText = 256;

  ChatSender(ChatSenderSections sections, ChatControls& controls, ChatSenderTools tools)
      : sections_(sections), controls_(controls), tools_(tools) {}

  // Takes addressee and text from the fields and puts the line at the bottom of the chat; the next
  // tick sends it. What the operator is to know of that, in words; mostly nothing.
  std::string SendChatLine();
  // The chat was closed: messages that still wait for the web form are not sent.
  void Closed();
  // Every line with sends left, once.
  void RetryPass();
  // Sends `ChatTxText` once and empties it. Why it did not leave, in words; else an empty text.
  std::string SendChatFrame();

 private:
  // The end of the program waits for no more lines, nor does a switch that was pressed meanwhile.
  bool PassIsToEnd();
  void SendOnce(ChatLine& line, std::string& stuck);

  ChatSenderSections sections_;
  ChatControls& controls_;
  ChatSenderTools tools_;
};

}  // namespace zepril
