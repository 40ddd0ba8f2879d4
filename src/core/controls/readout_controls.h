// The controls of the three read-outs and of the station line.
#pragma once

#include "core/controls.h"

namespace zepril {

struct ReadoutControls {
  Label Label1;  // centre, upper caption
  Label Label2;  // centre, lower caption
  Label Label3;  // cursor
  Label Label4;
  Label Label7;  // monitored station
  Label Label8;
  Label Label11;  // station line
};

}  // namespace zepril
