// A GPS on a played port, or in files in memory, with its clock, its map and what it asks of
// others.
#pragma once

#include <string>

#include "core/controls/gps_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/state/gps.h"
#include "core/state/map_view.h"
#include "core/state/settings.h"
#include "gps/nmea_reader.h"
#include "gps/nmea_source.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/nmea_lines.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/recorded_desktop.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {

struct GpsWorld {
  explicit GpsWorld(const std::string& source = "3") {
    Gps.NmeaSource = source;
    // Hidden at first, as by the program.
    Controls.GpsInfo.Visible = false;
    Controls.GpsNote.Visible = false;
    Source.Open();
    Clock.Drive(Source.ReopenTimer, false);
  }

  void Say(const std::string& text) {
    Port.Reads.push_back(text);
    if (Port.DataArrived) Port.DataArrived();
  }
  // Six seconds later.
  void Tick() {
    Clock.Run(6.0);
    Reader.ReadNmea();
  }
  void SayAndTick(const std::string& text) {
    Say(text);
    Tick();
  }

  GpsState Gps;
  MapViewState View;
  SettingsState Settings;
  GpsControls Controls;
  MapControls Map;
  TransmitControls Transmit;
  FakeSerial Port;
  MemoryFiles Disk;
  VirtualClock Clock;
  RecordedDesktop Desktop;
  RecordedActions Up;
  NmeaSource Source{Gps, Port, Disk, Clock};
  NmeaReader Reader{{Settings, Gps, View}, {Controls, Map, Transmit}, {Source, Clock, Desktop, Up}};
};

}  // namespace zepril
