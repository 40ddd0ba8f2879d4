// Takes the fields of the start panel into the settings and the settings into their files.
#pragma once

#include <string>

#include "config/start_panel_settings.h"
#include "core/controls/start_panel_controls.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "station/start/device_list.h"
#include "station/start/gps_fields.h"
#include "station/start/iono_fields.h"
#include "station/start/port_choice.h"
#include "station/start/port_fields.h"
#include "station/start/radio_interfaces.h"
#include "station/start/settings_place.h"

namespace zepril {

// The fields that look after themselves.
struct StartFields {
  RadioInterfaces& Interfaces;
  PortFields& Ports;
  GpsFields& Gps;
  IonoFields& Iono;
};

class FieldStore {
 public:
  FieldStore(const StartPanelControls& controls, StartFields fields, const DeviceList& devices,
             StartSettingsPlace settings, Dialogs& dialogs);

  // False when GPS and modem are to be one port, or a file can't be written, which is told by a
  // box. With one port nothing is written.
  bool Store();
  // The settings as they are held, whatever stands in the fields. False likewise.
  bool StoreHeld();

 private:
  void TakeFields();
  void TakeMapsPath();
  PortChoice ModemChoice(const RadioInterface& chosen) const;
  std::string DeviceMeant(double number, const std::string& kept) const;
  bool IsOnePort(const PortChoice& modem, const GpsChoice& gps) const;
  bool KeepDevice(double number, const std::string& device);
  void TakeHost(const PortTexts& typed);
  void TakeModem(const RadioInterface& chosen, const PortChoice& choice);
  bool Conflict();
  bool CantWrite(const char* name);

  const StartPanelControls& controls_;
  RadioInterfaces& interfaces_;
  PortFields& ports_;
  GpsFields& gps_;
  const DeviceList& devices_;
  IonoFields& iono_;
  StartPanelSettings& settings_;
  const std::string& program_folder_;
  Files& files_;
  Dialogs& dialogs_;
};

}  // namespace zepril
