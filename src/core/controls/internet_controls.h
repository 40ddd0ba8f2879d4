// What the window tells of internet support, beside its switches, which stand in their groups.
#pragma once

#include "core/controls.h"

namespace zepril {

struct InetControls {
  Label Moni1State;    // what the switch of MONI 1 is doing
  Label MoniAllState;  // and that of the area
};

}  // namespace zepril
