// The controls of the six scale rows, coarse to fine: M5000 to M0002.
#pragma once

#include <array>

#include "core/controls.h"

namespace zepril {

struct ScaleControls {
  Frame ScalePanel;
  std::array<ComboBox, 6> Folder;    // Combo3 to Combo8
  std::array<CheckBox, 6> FrameBox;  // tile frames of the scale
  std::array<bool, 6> Covered{};     // a tile lies under the centre
  Button Command5;                   // all frame boxes on
  Button Command6;                   // all frame boxes off
  Button Command37;                  // scan the library again
};

}  // namespace zepril
