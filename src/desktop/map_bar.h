// The bar over the map: scale, zoom, centre and follow, layers, brightness.
#pragma once

#include "core/main_window_controls.h"

class QWidget;

namespace zepril {

struct WindowParts;

QWidget* MakeMapBar(WindowParts& parts, MapControls& map);

}  // namespace zepril
