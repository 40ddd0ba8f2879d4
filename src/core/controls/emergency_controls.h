// The controls of the panel of a station in emergency.
#pragma once

#include "core/controls.h"

namespace zepril {

struct EmergencyControls {
  Frame Frame14;
  Label EmergencyCall;  // call and time
  Label Label26;        // grid position
  Label Label27;        // geographic position
  Label EmergencyInfo;  // what the station says
  Label EmergencyFile;  // the log that tells of it
  Button EmergencyClose;
  Button FalseAlarm;  // ends it at once
};

}  // namespace zepril
