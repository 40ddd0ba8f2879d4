// The controls of the terminal of a serial modem.
#pragma once

#include "core/controls.h"

namespace zepril {

struct TerminalControls {
  Button Command65;  // opens it
  Frame Frame19;
  TextBox Text19;    // typed
  TextBox Text20;    // received
  Label Label47;     // what it stops
  Button Command66;  // closes it
  Label Label49;     // notice of the temporary mode
};

}  // namespace zepril
