// The followed station's values as they are told: those of its newest record.
#pragma once

#include "core/state/followed_station.h"
#include "core/station_store.h"

namespace zepril {

// An empty history clears them.
void TakeNewestValues(const StationStore& history, FollowedStationState& followed);

}  // namespace zepril
