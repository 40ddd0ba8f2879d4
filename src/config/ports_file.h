// `PORTS.TXT` in the program folder: which device stands behind a serial port number, where the
// operator has chosen one. A line each, "COM3=/dev/serial/by-id/usb-...". Other lines are the
// operator's own and stay as they are.
//
//   read:    "COM3=/dev/ttyUSB0", " com3 = ttyUSB0 "; of two lines for a number the later one holds
//   refused: "COM=x", "COM0=x", "COM3=", what holds control characters
#pragma once

#include <string>
#include <string_view>

#include "core/port_number.h"
#include "platform/files.h"

namespace zepril {

// Where it lies.
std::string PortsPath(const std::string& program_folder);

// Lines behind this many, and longer ones, are not read.
inline constexpr int kMostPortLines = 1000;
inline constexpr std::size_t kLongestPortLine = 1000;  // characters

// The device chosen for port `number`, as it stands in the file; empty when there is none.
std::string DeviceOfPort(const Files& files, const std::string& program_folder, int number);

// Makes `device` the one of port `number`, 1 to kHighestPortNumber: in its line, or in a new one.
// False, with the file as it was, when it can't be written or the device's name would not be read
// again.
bool ChooseDeviceOfPort(Files& files, const std::string& program_folder, int number,
                        std::string_view device);

}  // namespace zepril
