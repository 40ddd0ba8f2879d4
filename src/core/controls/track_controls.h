// The controls of the track files.
#pragma once

#include "core/controls.h"

namespace zepril {

struct TrackControls {
  ComboBox Combo1;   // the files; shown is the one that is loaded
  Button Command68;  // previous file
  Button Command69;  // next file
  Button Frame10;    // centre to the end of the track
};

}  // namespace zepril
