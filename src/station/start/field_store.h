// Takes the fields of the start panel into the settings and the settings into their files.
#pragma once

#include <string>

#include "config/start_panel_settings.h"
#include "core/controls/start_panel_controls.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "station/start/device_list.h"
#include "station/start/port_fields.h"
#include "station/start/radio_interfaces.h"

namespace zepril {

// Settings, with the folder that they live in.
struct StartSettingsPlace {
  StartPanelSettings& Values;
  const std::string& ProgramFolder;
  Files& Disk;
};

class FieldStore {
 public:
  FieldStore(const StartPanelControls& controls, RadioInterfaces& interfaces, PortFields& ports,
             const DeviceList& devices, StartSettingsPlace settings, Dialogs& dialogs);

  // False when a file can't be written, which is told by a box.
  bool Store();
  // The settings as they are held, whatever stands in the fields. False likewise.
  bool StoreHeld();

 private:
  void TakeFields();
  void TakeMapsPath();
  bool TakeInterface();
  void TakeHost(const PortTexts& typed);
  bool TakeModem(const RadioInterface& chosen);
  bool CantWrite(const char* name);

  const StartPanelControls& controls_;
  RadioInterfaces& interfaces_;
  PortFields& ports_;
  const DeviceList& devices_;
  StartPanelSettings& settings_;
  const std::string& program_folder_;
  Files& files_;
  Dialogs& dialogs_;
};

}  // namespace zepril
