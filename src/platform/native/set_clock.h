// Sets the clock of this computer, where the system allows it.
#pragma once

#include "platform/clock.h"

namespace zepril {

// Whether the user of this number may have the clock set. Never the administrator: as whom anybody
// runs this program, the system would obey whatever a GPS tells.
bool MaySetClock(unsigned effective_user);

// To a local time, for the user who runs the program; false when it is refused.
bool SetClock(const LocalTime& time);

}  // namespace zepril
