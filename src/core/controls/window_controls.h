// What the main window tells of itself and is told.
#pragma once

#include <string>

#include "core/controls.h"

namespace zepril {

struct WindowControls {
  std::string Title;
  PointerShape Pointer = PointerShape::Default;
  int WidthPx = 1280;
  int HeightPx = 800;
  int SidePanelWidthPx = 121;
  bool MaximiseWanted = false;  // taken and cleared by the desktop
};

}  // namespace zepril
