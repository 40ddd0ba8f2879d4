// What can be left out of a picture because nothing of it reaches the window.
#pragma once

#include <algorithm>

#include "platform/drawing_surface.h"

namespace zepril {

// True when the box between two pixels has a pixel in common with the window. What is drawn between
// them, line or box, paints nothing otherwise.
inline bool TouchesWindow(const DrawingSurface& surface, PixelPoint a, PixelPoint b) {
  return std::max(a.X, b.X) >= 0 && std::max(a.Y, b.Y) >= 0 &&
         std::min(a.X, b.X) < surface.Width() && std::min(a.Y, b.Y) < surface.Height();
}

}  // namespace zepril
