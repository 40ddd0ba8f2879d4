// The serial devices of this computer, as the list of the port field offers them.
#pragma once

#include <string>
#include <vector>

#include "core/controls.h"
#include "platform/serial_device.h"

namespace zepril {

class DeviceList {
 public:
  // `read` may be empty: then no device is there.
  DeviceList(SerialDeviceList read, ComboBox& field);

  // The list shows what is there by now, or nothing where no device is `wanted`.
  void Read(bool wanted);
  bool Empty() const { return present_.empty(); }
  // A row chosen from the list becomes the device's path in the field.
  void TakeChosenRow();
  // A path of a device, or the name of one that is there.
  bool IsDevice(const std::string& text) const;
  // The device that is at this place of the list, by the name that stays with it; empty when there
  // are fewer.
  std::string StableNameOfPlace(int number) const;
  // The name that stays with a device when others are plugged in: of "/dev/ttyUSB0" or "ttyUSB0",
  // whose path it is where there is no such name.
  std::string StableName(const std::string& device) const;

 private:
  std::vector<SerialDevice> Present() const;

  SerialDeviceList read_;
  ComboBox& field_;
  std::vector<SerialDevice> present_;  // as listed
};

}  // namespace zepril
