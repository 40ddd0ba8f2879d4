// The fields of the GPS on the start panel: its port or file, its speed, and whether it may set the
// clock.
//
// The setting holds a number or a file; a device that is chosen is kept under a number, like the
// modem's, and shown by its name. The word SAVE may stand behind either.
#pragma once

#include <string>

#include "config/start_panel_settings.h"
#include "core/controls/start_panel_controls.h"
#include "platform/files.h"
#include "station/start/device_list.h"
#include "station/start/settings_place.h"

namespace zepril {

// What the fields say, not yet taken.
struct GpsChoice {
  std::string Source;      // for the setting
  double Number = 0.0;     // of the port; 0 for a file or for none
  std::string DeviceKept;  // to be kept for the number; empty: nothing is to be kept
};

// A setting as its port or file, and the rest: "3 SAVE" is "3" and " SAVE".
struct SourceParts {
  std::string Front;
  std::string Rest;
};

class GpsFields {
 public:
  // Sets the events of the fields; the object must outlive them.
  GpsFields(StartPanelControls& controls, SerialDeviceList devices, StartSettingsPlace settings);
  GpsFields(const GpsFields&) = delete;
  GpsFields& operator=(const GpsFields&) = delete;

  // The settings were read.
  void Show();
  // As of PortFields.
  void ReadDevices() { devices_.Read(true); }
  void DeviceListOpens();

  // An empty field, and one that is as it was shown, leaves the setting.
  GpsChoice Choice() const;
  // Into the settings.
  void Take(const GpsChoice& choice);
  // Whether the clock may be set, into its file, where that has changed. False when the file can't
  // be written.
  bool StoreClockBox();

 private:
  bool IsDevice(const SourceParts& parts) const;
  int NumberForDevice(const std::string& device) const;
  void SourceChanged();
  void TellOfSource();
  void SpeedChanged();

  StartPanelControls& controls_;
  DeviceList devices_;
  StartSettingsPlace settings_;
  std::string shown_;  // the source as it was shown
  bool sets_clock_ = false;
};

}  // namespace zepril
