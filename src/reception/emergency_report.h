// What is kept of a station in emergency.
#pragma once

#include <string>

#include "core/state/alarms.h"
#include "core/state/map_view.h"
#include "core/station_record.h"

namespace zepril {

// Fills the alarm fields from the record of the station in emergency. `path` is the log file that
// tells of it.
void FillEmergency(const StationRecord& record, const MapViewState& map, const std::string& path,
                   AlarmState& alarm);

}  // namespace zepril
