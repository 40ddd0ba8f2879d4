// The controls of the gate between radio and internet.
#pragma once

#include "core/controls.h"

namespace zepril {

struct GateControls {
  CheckBox Check15;  // IGATE
  Label GateWords;   // where the gate stands, or why there is none
};

}  // namespace zepril
