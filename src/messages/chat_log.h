// The chat log `_CHATLOG.TXT`: a line for every line of the chat, the window that shows it for a
// while, and what keeps it short.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/controls/chat_controls.h"
#include "core/state/chat.h"
#include "core/state/identity.h"
#include "core/state/radio.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace zepril {

struct ChatLogSections {
  const IdentityState& Identity;
  const RadioState& Radio;
  ChatState& Chat;
};

struct ChatLogTools {
  Files& Disk;
  const Clock& LocalClock;
  Timer& Timer1;
};

class ChatLog {
 public:
  // A log with more lines than this is cut to the last kLinesKept when it is shown.
  static constexpr std::size_t kMostLines = 120;
  static constexpr std::size_t kLinesKept = 100;
  // While it is open the main cycle rests for so long; the tick that follows closes it.
  static constexpr int kOpenMilliseconds = 30000;
  static constexpr int kClosedMilliseconds = 1000;

  // Sets the clicks of `Command24`, `Command25` and `Command28`.
  ChatLog(ChatLogSections sections, ChatControls& controls, ChatLogTools tools);
  ChatLog(const ChatLog&) = delete;
  ChatLog& operator=(const ChatLog&) = delete;

  // A log that can't be written is passed over; the panel says so.
  void Append(std::string_view chat_line);
  // The file is there afterwards.
  void MakeSureOfFile();

 private:
  void NoteTrouble(bool written);
  void OpenOrClose();
  void Open();
  void Close();
  // Begins the file anew with the lines that are shown.
  void Clear();
  std::string Path() const;
  std::string DayAndTime(char between) const;
  // Its last lines, at most kMostLines; the file is cut when it has more.
  std::vector<std::string> TakeLines();

  ChatLogSections sections_;
  ChatControls& controls_;
  ChatLogTools tools_;
};

}  // namespace zepril
