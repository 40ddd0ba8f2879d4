// The switches of what the station sends by itself, and what tells how that goes.
#pragma once

#include "core/controls.h"

namespace zepril {

struct TransmitControls {
  CheckBox Check6;     // TX
  Label TxOutcome;     // what became of the last frame, for some seconds
  FillBar NextBeacon;  // fills towards the next report of the own position
  CheckBox Check18;    // OBJECT TX
  CheckBox Check2;     // HF-DUAL
};

}  // namespace zepril
