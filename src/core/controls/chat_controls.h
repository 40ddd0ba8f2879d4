// The controls of the chat: switches, fields of the message line, panels.
#pragma once

#include <array>

#include "core/controls.h"
#include "core/state/chat.h"

namespace zepril {

struct ChatControls {
  std::array<Label, kChatLines> Text1;  // the lines, newest last
  CheckBox Check7;                      // CHAT
  CheckBox Check8;                      // messages from and to me only
  CheckBox Check16;                     // auto answer
  TextBox Text2;                        // addressee
  TextBox Text3;                        // message
  Button Command16;                     // clears both
  Button Command24;                     // chat log, open or close
  Button Command25;                     // clears it
  Label ChatNote;                       // why nothing leaves
  Frame Frame3;                         // chat panel
  Frame Frame7;                         // chat log
  TextBox Text5;                        // its lines
  Button Command28;                     // closes it
};

}  // namespace zepril
