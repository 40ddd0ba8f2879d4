// The lamp beside the status line: does the radio link bring data?
#pragma once

#include <string>

namespace zepril {

enum class LampState { Data, Silent, Lost, None };

struct LinkLamp {
  LampState State = LampState::None;
  std::string ToolTip;
};

// `up`: the link stands. `last_data_seconds` and `now_seconds` on the monotonic clock; the former
// is below 0 when nothing has come yet. Data within 60 s lights the lamp.
LinkLamp LampOf(bool has_link, bool up, double last_data_seconds, double now_seconds);

}  // namespace zepril
