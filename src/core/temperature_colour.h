// The colour that a temperature has, on the map and in the drawing of a weather report.
#pragma once

#include "platform/drawing_surface.h"

namespace zepril {

// Cyan at -40 degrees over blue at -30, grey blue at 0, green at 10, yellow at 19 and red at 30 to
// black at 40; temperatures beyond count as the ends.
Colour TemperatureColour(int celsius);

}  // namespace zepril
