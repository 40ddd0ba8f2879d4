// Finds the station at a point of the map.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/state/map_view.h"
#include "core/station_store.h"

namespace zepril {

struct FoundStation {
  std::string Call;
  int RecordIndex = 0;  // from 1; into the history when the call is the followed one
};

// How far from the press a record's mark may lie to be meant, in pixels: the same at every scale.
inline constexpr double kStationReachPx = 12.0;

// The record of all stations whose mark lies within reach of the point, the nearest, of equally
// near ones the newest; failing that, such a one of the followed station's history.
std::optional<FoundStation> FindStationNear(const MapViewState& view, const StationStore& all,
                                            const StationStore& history,
                                            std::string_view followed_call, double north_km,
                                            double east_km);

}  // namespace zepril
