// Where the station was and is: the track files of the days.
#pragma once

#include "core/controls/map_controls.h"
#include "core/controls/track_controls.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/state/settings.h"
#include "gps/track_files.h"

namespace zepril {

struct GpsSections {
  const IdentityState& Identity;
  MapViewState& View;
  SettingsState& Settings;
  PlacesState& Places;
};

struct GpsControls {
  TrackControls& Tracks;
  MapControls& Map;
};

struct GpsRoom {
  // Sets the events of the controls; the object must outlive them.
  GpsRoom(GpsSections sections, GpsControls controls, TrackFilesTools tools)
      : Tracks(sections.Identity, sections.View, sections.Settings, sections.Places,
               controls.Tracks, controls.Map, tools) {}
  GpsRoom(const GpsRoom&) = delete;
  GpsRoom& operator=(const GpsRoom&) = delete;

  TrackFiles Tracks;
};

}  // namespace zepril
