// What a station with a digipeater or a gateway says of itself three times an hour.
#pragma once

#include <string>

#include "core/state/radio.h"

namespace zepril {

// The status text: "ZEPRIL  Digi active", "ZEPRIL  Gate -> RPR 300Bd active",
// "ZEPRIL  Digi & IGate R->I active" and so on, double blanks included. Empty when neither a
// digipeater nor a gateway is on the air. A gateway between two modes is told by an SCS TNC whose
// second mode is set and reads other than its speed.
std::string IdentificationText(const RadioState& radio, bool gate_connected);

}  // namespace zepril
