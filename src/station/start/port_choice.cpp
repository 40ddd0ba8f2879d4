// Numbers and devices of serial ports.
#include "station/start/port_choice.h"

#include "config/ports_file.h"
#include "core/port_number.h"
#include "core/text_fields.h"

namespace zepril {

bool IsPortNumber(double number) {
  return number == Int(number) && number >= 1 && number <= kHighestPortNumber;
}

std::string PortText(Files& files, const std::string& program_folder, double number) {
  std::string device;
  if (IsPortNumber(number)) {
    device = DeviceOfPort(files, program_folder, static_cast<int>(number));
  }
  return device.empty() ? ShortNumber(number) : device;
}

PortChoice ChosenPort(const PortTexts& typed, double held, int usual_number,
                      const DeviceList& devices) {
  const std::string port(Trim(typed.Port));
  if (port.empty() || port == typed.Held) return {held, {}};
  if (const auto number = PortNumberOfText(port)) return {static_cast<double>(*number), {}};
  return {IsPortNumber(held) ? held : usual_number, devices.StableName(port)};
}

}  // namespace zepril
