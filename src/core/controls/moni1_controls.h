// The controls of MONI 1, the followed station.
#pragma once

#include "core/controls.h"

namespace zepril {

struct Moni1Controls {
  ComboBox Combo9;   // call, and the calls that have a log
  Label Label6;      // count of records
  FillBar Label17;   // fill bar
  Label Label9;      // date and time of the last record
  Label Label10;     // "TEXT: " line
  Button Command17;  // steps TrackStyle
  CheckBox Check1;   // distance alarm
  CheckBox Check22;  // internet
  CheckBox Check27;  // internet scan
};

}  // namespace zepril
