// The controls of the GPS: its line over the map.
#pragma once

#include "core/controls.h"

namespace zepril {

struct GpsControls {
  Label GpsInfo;  // position, height, speed and satellites, while there is a position
  Label GpsNote;  // in its place: since when there is none, and why; a click closes it
};

}  // namespace zepril
