// The controls of "Input of ionospherical data".
#pragma once

#include "core/controls.h"

namespace zepril {

struct IonoControls {
  Frame Frame18;
  TextBox Text11;         // SUNSPOT(R)
  TextBox Text12;         // K
  CheckBox FoptDetailed;  // circles show the three values in place of "Fopt="
  Button IonoOk;
  Button IonoClose;
};

}  // namespace zepril
