#include "map/station_lookup.h"

#include <cmath>

#include "core/text_fields.h"

namespace zepril {
namespace {

bool IsNear(const StationRecord& record, double north_km, double east_km, double tolerance_km) {
  return !record.IsBlank() && std::fabs(record.NorthKm() - north_km) < tolerance_km &&
         std::fabs(record.EastKm() - east_km) < tolerance_km;
}

int NewestNear(const StationStore& store, double north_km, double east_km, double tolerance_km) {
  for (int index = store.Count(); index >= 1; --index) {
    if (IsNear(store.At(index), north_km, east_km, tolerance_km)) return index;
  }
  return 0;
}

}  // namespace

double LookupToleranceKm(double metres_per_pixel) {
  return static_cast<double>(IntegerQuotient(Int(metres_per_pixel), 200.0)) + 0.5;
}

std::optional<FoundStation> FindStationNear(const StationStore& all, const StationStore& history,
                                            std::string_view followed_call, double north_km,
                                            double east_km, double tolerance_km) {
  const int of_history = NewestNear(history, north_km, east_km, tolerance_km);
  for (int index = all.Count(); index >= 1; --index) {
    const StationRecord& record = all.At(index);
    if (!IsNear(record, north_km, east_km, tolerance_km)) continue;
    // The followed station's records are browsed in its history.
    if (!EqualFolded(record.Call(), Trim(followed_call))) {
      return FoundStation{std::string(record.Call()), index};
    }
    if (of_history > 0) break;
  }
  if (of_history == 0) return std::nullopt;
  return FoundStation{std::string(followed_call), of_history};
}

}  // namespace zepril
