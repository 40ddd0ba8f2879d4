// The controls of the start panel `Form0`, as far as they are on it.
#pragma once

#include "core/controls.h"

namespace zepril {

struct StartPanelControls {
  TextBox Text8;          // USER CALL
  OptionButton Option2;   // packet engine on this computer
  OptionButton Option9;   // packet engine on another computer
  OptionButton Option10;  // no radio
  TextBox Text3;          // host name
  TextBox Text4;          // host port
  TextBox Text5;          // MONI CALL
  TextBox Text1;          // MAPS PATH
  Button Command1;        // START
  Label Fault;            // what is missing or wrong, beside its field
};

}  // namespace zepril
