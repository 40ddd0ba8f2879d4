// Short messages.
#pragma once

#include <string>

namespace zepril {

struct ChatState {
  int AutoAnswerOn = 0;
  std::string AutoAnswerText;  // stored with "AA: " in front
  std::string ChatTxText;      // the message line under transmission
  int ChatPollCountdown = 0;   // ticks to the next pass of repeats
};

}  // namespace zepril
