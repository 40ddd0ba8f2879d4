// The settings as the start panel holds them, and its reader and writer of `ZEPRIL.INI`.
//
// The panel holds a few values with fractions that the main window rounds: a file goes through two
// readers, and they do not quite agree. Kept, since both are in use one after the other.
#pragma once

#include <string>
#include <string_view>

#include "config/setting.h"
#include "platform/files.h"

namespace zepril {

// Sections of the same kind as the main window's; of them the settings are used.
struct StartPanelSettings {
  IdentityState Identity;
  RadioState Radio;
  TransmissionState Transmission;
  StoresState Stores;
  FollowedStationState Followed;
  MapViewState Map;
  GpsState Gps;
  InternetState Internet;
  AlarmState Alarms;
  SettingsState Settings;
  StartPanelValues StartPanel;
};

// The defaults of a first run. `temp`: the environment's TEMP, empty when there is none.
StartPanelSettings DefaultStartPanelSettings(const std::string& program_folder,
                                             const std::string& temp);

// First-run scan, full read and the steps after it. `settings` holds the defaults before.
// True when the file has been through START once.
bool ReadConfigForStartPanel(Files& files, const std::string& program_folder,
                             StartPanelSettings& settings);
// Rewrites the file whole, all eighty keys. False, and an unchanged file, when it can't be written.
bool WriteConfigFromStartPanel(Files& files, const std::string& program_folder,
                               StartPanelSettings& settings);

// The map system brought to "U" and two digits: "U8" -> "U08", "U-33" -> "U33", "U75" -> "U60";
// empty or not beginning with "U" -> "U33".
std::string NormalisedMapZone(std::string_view zone);

}  // namespace zepril
