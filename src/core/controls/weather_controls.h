// The controls of WX INFO, the report of the selected weather station.
#pragma once

#include <array>
#include <cstddef>

#include "core/controls.h"

namespace zepril {

struct WeatherControls {
  static constexpr std::size_t kValues = 9;

  Frame Frame15;
  Label WxTitle;                      // caption of the panel
  std::array<Label, kValues> Values;  // Label29 to Label37
  Label Label38;                      // what the station says beside its numbers
  PictureBox Picture2;                // the drawing
  Button Command27;                   // closes it until it is wanted again
};

}  // namespace zepril
