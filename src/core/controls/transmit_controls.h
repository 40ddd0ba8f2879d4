// The transmission switches.
#pragma once

#include "core/controls.h"

namespace zepril {

struct TransmitControls {
  CheckBox Check6;     // TX
  Label TxOutcome;     // what became of the last frame, for some seconds
  FillBar NextBeacon;  // fills towards the next report of the own position
  CheckBox Check18;    // OBJECT TX
  CheckBox Check7;     // CHAT
  CheckBox Check8;     // messages from and to me only
  CheckBox Check16;    // auto answer
  CheckBox Check15;    // IGATE
  CheckBox Check2;     // HF-DUAL
  TextBox Text2;       // addressee
  TextBox Text3;       // message
  Frame Frame3;        // chat panel
  Frame Frame7;        // chat log
};

}  // namespace zepril
