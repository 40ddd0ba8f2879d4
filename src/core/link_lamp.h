// The lamp beside the status line, and the word with it: does the radio link bring data?
#pragma once

#include <string>

namespace zepril {

enum class LampState { Data, Silent, Lost, None, Paused };

// Times on the monotonic clock, in seconds; below 0 where nothing has happened yet.
struct LampFacts {
  bool HasLink = true;
  bool Up = true;
  bool Paused = false;  // a panel holds the main cycle: what comes in waits
  double LastDataSeconds = -1.0;
  double LostSinceSeconds = -1.0;
  double NowSeconds = 0.0;
};

struct LinkLamp {
  LampState State = LampState::None;
  std::string Words;  // "LOST 34 s", "paused"; empty where the lamp says enough
  std::string ToolTip;
};

// Data within 60 s lights the lamp.
LinkLamp LampOf(const LampFacts& facts);

}  // namespace zepril
