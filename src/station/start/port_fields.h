// The two port fields: shown, named and judged by the chosen radio interface.
#pragma once

#include <string>

#include "core/controls/start_panel_controls.h"
#include "station/start/device_list.h"
#include "station/start/radio_interfaces.h"

namespace zepril {

class PortFields {
 public:
  // Sets the events of the fields; the object must outlive them.
  PortFields(StartPanelControls& controls, RadioInterfaces& interfaces, DeviceList& devices);
  PortFields(const PortFields&) = delete;
  PortFields& operator=(const PortFields&) = delete;

  // What stands in the fields belongs to the interface for which they were shown last.
  void Keep();
  void Show();
  // A field is entered: its list is to show what is there by now.
  void ReadDevices();
  // The list is opened: likewise, and an empty one is explained.
  void DeviceListOpens();
  // "port 3", or a device's name without its folders.
  std::string ShownPort() const;

 private:
  void PortChanged();
  void SpeedChanged();

  StartPanelControls& controls_;
  RadioInterfaces& interfaces_;
  DeviceList& devices_;
  PortTexts* shown_ = nullptr;  // what stands in Text3 and Text4
};

}  // namespace zepril
