// Where the station was and is: the GPS, the track files of the days, and the way for a navigation
// program.
#pragma once

#include <vector>

#include "core/controls/gps_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/track_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/state/settings.h"
#include "core/timer.h"
#include "gps/nmea_reader.h"
#include "gps/nmea_source.h"
#include "gps/track_files.h"
#include "gps/track_recorder.h"
#include "gps/way_recorder.h"
#include "platform/clock.h"
#include "platform/desktop_actions.h"
#include "platform/serial_port.h"

namespace zepril {

struct GpsSections {
  const IdentityState& Identity;
  MapViewState& View;
  SettingsState& Settings;
  PlacesState& Places;
  GpsState& Gps;
};

struct GpsRoomControls {
  TrackControls& Tracks;
  MapControls& Map;
  GpsControls& Gps;
  const TransmitControls& Transmit;
};

struct GpsTools {
  SerialPort& MSComm2;  // the GPS
  Files& Disk;
  const Clock& LocalClock;
  Dialogs& Boxes;
  DesktopActions& Desktop;
  MapActions& Map;
  SettingsActions& Settings;
  Progress& LongWork;
};

struct GpsRoom {
  // Sets the events of the controls; the object must outlive them.
  GpsRoom(GpsSections sections, GpsRoomControls controls, GpsTools tools)
      : Tracks(sections.Identity, sections.View, sections.Settings, sections.Places,
               controls.Tracks, controls.Map,
               {tools.Disk, tools.Boxes, tools.Map, tools.Settings, tools.LongWork}),
        Source(sections.Gps, tools.MSComm2, tools.Disk, tools.LocalClock),
        Reader({sections.Settings, sections.Gps, sections.View},
               {controls.Gps, controls.Map, controls.Transmit},
               {Source, tools.LocalClock, tools.Desktop, tools.Map}),
        DaysTrack(sections.Identity, sections.Settings, sections.Gps, sections.View,
                  sections.Places, tools.Disk, tools.LocalClock),
        Way(sections.Identity, sections.Gps, tools.Disk, tools.LocalClock) {
    Reader.SaveWay = [this] { Way.WriteWayPoint(); };
    Reader.SaveTrack = [this] { DaysTrack.WriteTrackPoint(); };
  }
  GpsRoom(const GpsRoom&) = delete;
  GpsRoom& operator=(const GpsRoom&) = delete;

  std::vector<DrivenTimer> Timers() { return {{&Source.ReopenTimer, false}}; }

  TrackFiles Tracks;
  NmeaSource Source;
  NmeaReader Reader;
  TrackRecorder DaysTrack;
  WayRecorder Way;
};

}  // namespace zepril
