// The steps of tick, start and stop, as calls of a station's rooms.
#pragma once

#include "station/main_window_start.h"
#include "station/main_window_stop.h"
#include "station/tick_steps.h"

namespace zepril {

class StationRooms;

// The rooms must outlive the steps.
TickSteps TickOrder(StationRooms& rooms);
StartSteps StartOrder(StationRooms& rooms);
StopSteps StopOrder(StationRooms& rooms);

}  // namespace zepril
