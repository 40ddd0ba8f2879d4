// Keeps a point a minute of the way in the track file of the day.
//
// A line: "þ", north and east in km (2-10, 11-19), blank, date YYYYMMDD (21-28), blank, time HHMM
// (30-33), by the computer's clock.
#pragma once

#include <string>

#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/state/settings.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace zepril {

// Of a position and a time:
//   "þ 5378.123  412.345 20240514 1230"
std::string TrackLine(const GpsState& gps, const LocalTime& time);

class TrackRecorder {
 public:
  TrackRecorder(const IdentityState& identity, const SettingsState& settings, GpsState& gps,
                MapViewState& view, PlacesState& places, Files& disk, const Clock& clock);
  TrackRecorder(const TrackRecorder&) = delete;
  TrackRecorder& operator=(const TrackRecorder&) = delete;

  // In every tick with a position: a point when a minute has begun since the last one. What can't
  // be written is passed over in silence until the next minute.
  void WriteTrackPoint();

 private:
  void GrowOnMap(std::string_view day, std::string_view line);

  const IdentityState& identity_;
  const SettingsState& settings_;
  GpsState& gps_;
  MapViewState& view_;
  PlacesState& places_;
  Files& disk_;
  const Clock& clock_;
};

}  // namespace zepril
