// The controls of the panel of the sun's path over a point of the map, shown while the right button
// is held there.
#pragma once

#include <array>
#include <cstddef>

#include "core/controls.h"

namespace zepril {

struct SunControls {
  static constexpr std::size_t kRows = 6;
  Frame SunPanel;
  Label SunTitle;
  PictureBox SunPlot;
  std::array<Label, kRows> SunNames;
  std::array<Label, kRows> SunValues;
};

}  // namespace zepril
