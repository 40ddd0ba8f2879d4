// Short messages.
#pragma once

#include <string>

namespace zepril {

struct ChatState {
  int AutoAnswerOn = 0;
  std::string ChatTxText;     // the message line under transmission
  int ChatPollCountdown = 0;  // ticks to the next pass of repeats
};

}  // namespace zepril
