// The eight lines of the chat: what was received and sent last, newest at the bottom, and the state
// of each, which is its colour. They are not kept over the end of the program.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/controls/chat_controls.h"
#include "core/state/chat.h"

namespace zepril {

// The state of a line in words, for its tool tip.
//   "sent, try 3 of 5"
std::string WordsOfState(const ChatLine& line);

class ChatLines {
 public:
  ChatLines(ChatState& chat, ChatControls& controls) : chat_(chat), controls_(controls) {}

  // All lines move up by one, the oldest is gone, whatever its state.
  void Push(std::string text, std::uint32_t colour);
  // One of the lines reads so; the newest one does.
  bool Holds(std::string_view text) const;
  bool IsNewest(std::string_view text) const { return chat_.Lines.back().Text == text; }
  // How many of them are still to be sent.
  int Waiting() const;
  // Brings texts, colours and states to the panel.
  void Show();

 private:
  ChatState& chat_;
  ChatControls& controls_;
};

}  // namespace zepril
