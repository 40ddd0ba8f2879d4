// The controls of the panel with the sixteen inks of a tile.
#pragma once

#include <array>

#include "core/controls.h"

namespace zepril {

struct PaletteControls {
  Frame PalettePanel;
  std::array<OptionButton, 16> Optionink;
  Button Command42;  // no ink chosen
  Button Command43;  // reset and close
};

}  // namespace zepril
