// The start panel: takes the settings of the operator before the main window opens, and sets up a
// serial modem.
#pragma once

#include <memory>
#include <string>

#include "config/start_panel_settings.h"
#include "core/controls/start_panel_controls.h"
#include "platform/event.h"
#include "platform/files.h"
#include "platform/machine.h"
#include "platform/serial_port.h"
#include "station/start/aprs_is_setup.h"
#include "station/start/device_list.h"
#include "station/start/field_store.h"
#include "station/start/gps_fields.h"
#include "station/start/iono_fields.h"
#include "station/start/port_fields.h"
#include "station/start/radio_interfaces.h"
#include "station/start/start_button.h"

namespace zepril {

class StartPanel {
 public:
  // `temp`: the environment's TEMP, empty when there is none.
  StartPanel(const Machine& machine, std::string program_folder, const std::string& temp);
  StartPanel(const StartPanel&) = delete;
  StartPanel& operator=(const StartPanel&) = delete;

  StartPanelControls Controls;
  // Told when START has stored the settings and set up the modem: the main window may open.
  Event<> Started;

  const StartPanelSettings& Settings() const { return settings_; }
  // START has told the modem everything; true without a modem.
  bool ModemIsSetUp() const { return start_.ModemIsSetUp(); }
  // The line of the modem, closed before START and after.
  std::shared_ptr<SerialPort> Modem() const { return modem_; }
  // START is under way or has come to its end; what is asked for meanwhile comes afterwards.
  bool Starting() const { return start_.Starting(); }

  // The port field is entered: its list is to show what is there by now.
  void ReadDevices() { ports_.ReadDevices(); }
  // The list is opened: likewise, and an empty one is explained.
  void DeviceListOpens() { ports_.DeviceListOpens(); }
  // The same for the port field of the GPS.
  void ReadGpsDevices() { gps_.ReadDevices(); }
  void GpsDeviceListOpens() { gps_.DeviceListOpens(); }

 private:
  void Load();
  void DeleteRunLogs();
  void ShowSettings();
  void ShowPorts();
  void ChooseInterface(const RadioInterface& chosen);
  void FallBackToSlowSpeed();

  Files& files_;
  std::shared_ptr<SerialPort> modem_;
  std::string program_folder_;
  StartPanelSettings settings_;
  RadioInterfaces interfaces_;
  DeviceList devices_;
  PortFields ports_;
  GpsFields gps_;
  IonoFields iono_;
  FieldStore fields_;
  AprsIsSetup server_;
  StartButton start_;
};

}  // namespace zepril
