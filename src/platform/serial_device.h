// A serial device of this computer, as its operator chooses it.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zepril {

struct SerialDevice {
  std::string Path;        // "/dev/ttyUSB0": may be another one after the next start
  std::string Name;        // what the device says of itself; may be empty
  std::string StablePath;  // "/dev/serial/by-id/...": stays with the device; empty when it has none
  std::string Serial{};    // serial number of the adapter; empty when it has none
};

// The devices that are there at the moment.
using SerialDeviceList = std::function<std::vector<SerialDevice>()>;

}  // namespace zepril
