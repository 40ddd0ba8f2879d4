// The controls of the status line, banner, notices and alarms.
#pragma once

#include "core/controls.h"

namespace zepril {

struct StatusControls {
  Label Label15;  // status line
  Label Text10;   // internet banner
  Label IonoLabel;
  Label FileNotice;  // which file can't be read or written, and why; a click closes it
  Label LinkNotice;  // why the modem's port can't be opened; a click closes it
  Frame Frame12;     // distance alarm
  Label Label25;
};

}  // namespace zepril
