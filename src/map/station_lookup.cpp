// Searches the stores for the record nearest to the press.
#include "map/station_lookup.h"

#include <cmath>

#include "core/text_fields.h"
#include "map/map_view.h"

namespace zepril {
namespace {

// Index of the record nearest to the point, 0 when none is within reach. Of a followed call, when
// one is given, no record counts.
int NearestRecord(const MapViewState& view, const StationStore& store, double north_km,
                  double east_km, std::string_view without_call) {
  int nearest = 0;
  double nearest_px = 0.0;
  // From the newest back: an older one must be nearer to be taken.
  for (int index = store.Count(); index >= 1; --index) {
    const StationRecord& record = store.At(index);
    if (record.IsBlank()) continue;
    const double distance =
        std::hypot(record.EastKm() - east_km, record.NorthKm() - north_km) * view.PixelsPerKm;
    if (distance > kStationReachPx || (nearest > 0 && distance >= nearest_px)) continue;
    if (!without_call.empty() && EqualFolded(record.Call(), without_call)) continue;
    nearest = index;
    nearest_px = distance;
  }
  return nearest;
}

}  // namespace

std::optional<FoundStation> FindStationNear(const MapViewState& view, const StationStore& all,
                                            const StationStore& history,
                                            std::string_view followed_call, double north_km,
                                            double east_km) {
  // The followed station's records are browsed in its history.
  const int of_all = NearestRecord(view, all, north_km, east_km, Trim(followed_call));
  if (of_all > 0) return FoundStation{std::string(all.At(of_all).Call()), of_all};
  const int of_history = NearestRecord(view, history, north_km, east_km, {});
  if (of_history == 0) return std::nullopt;
  return FoundStation{std::string(followed_call), of_history};
}

}  // namespace zepril
