// A serial port as the settings hold it, which is a number, and as the operator names it, which may
// be a device: that one is kept under a number.
#pragma once

#include <string>

#include "platform/files.h"
#include "station/start/device_list.h"
#include "station/start/radio_interfaces.h"

namespace zepril {

struct PortChoice {
  double Number = 0.0;
  std::string Device;  // to be kept for the number; empty: nothing is to be kept
};

// A whole number from 1 to the highest one.
bool IsPortNumber(double number);

// The device that was chosen for a port, or its number.
std::string PortText(Files& files, const std::string& program_folder, double number);

// What is typed, for the settings, which hold `held`. A device that `held` can't be the number of
// is kept under `usual_number`.
PortChoice ChosenPort(const PortTexts& typed, double held, int usual_number,
                      const DeviceList& devices);

}  // namespace zepril
