// The text of the scale bar: how many kilometres 100 pixels are.
#pragma once

#include <string>

namespace zepril {

// Always 14 characters, the number centred between dashes:
//   5000 m a pixel: blank, dash 150, "-  500 km -", dash 150
std::string ScaleText(double metres_per_pixel);

// A number with "0" before its point and no sign blank: "500", "0.5", "-0.5".
std::string PlainNumber(double value);

}  // namespace zepril
