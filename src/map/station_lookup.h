// Finds the station near a point of the map.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/station_store.h"

namespace zepril {

struct FoundStation {
  std::string Call;
  int RecordIndex = 0;  // from 1; into the history when the call is the followed one
};

// Half side in km of the square around a point in which a station counts as hit: 0.5, and 1 more
// for each full 200 metres a pixel.
double LookupToleranceKm(double metres_per_pixel);

// The newest record of all stations within the tolerance of the point; failing that, the newest one
// of the followed station's history.
std::optional<FoundStation> FindStationNear(const StationStore& all, const StationStore& history,
                                            std::string_view followed_call, double north_km,
                                            double east_km, double tolerance_km);

}  // namespace zepril
