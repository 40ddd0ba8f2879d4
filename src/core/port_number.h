// The text of a serial port field: a port's number, or else the name of a device.
#pragma once

#include <optional>
#include <string_view>

namespace zepril {

inline constexpr int kHighestPortNumber = 256;

// The number of " 3 ", "COM3" and "com 3"; 0 when it is above 32767. Nothing for any other text,
// which names a device, and for an empty one.
std::optional<int> PortNumberOfText(std::string_view text);

}  // namespace zepril
