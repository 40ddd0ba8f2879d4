// The controls of the chat: switches, fields of the message line, panels.
#pragma once

#include "core/controls.h"

namespace zepril {

struct ChatControls {
  CheckBox Check7;   // CHAT
  CheckBox Check8;   // messages from and to me only
  CheckBox Check16;  // auto answer
  TextBox Text2;     // addressee
  TextBox Text3;     // message
  Frame Frame3;      // chat panel
  Frame Frame7;      // chat log
};

}  // namespace zepril
