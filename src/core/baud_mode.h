// How the radio speeds of the settings are shown, and what radio interface and speeds make of each
// other.
#pragma once

#include <string>
#include <string_view>

#include "core/state/radio.h"

namespace zepril {

// "300" -> "300 Bd", "300R" -> "RPR 300", "1200" -> "1200 Bd" and so on.
std::string BaudModeLabelOf(std::string_view baud_mode);

// The modes whose modem is on a serial line.
bool IsSerialModem(RadioMode mode);

// An SCS TNC that relays to another mode: its second mode is set and reads other than its speed.
// Kept: "R300" reads other than "300R" and so counts as another mode.
bool RelaysToAnotherMode(const RadioState& radio);

}  // namespace zepril
