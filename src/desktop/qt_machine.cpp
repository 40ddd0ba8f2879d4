// Which class of Qt's floor stands for each piece of the machine.
#include "desktop/qt_machine.h"

#include "config/ports_file.h"
#include "core/state/identity.h"
#include "platform/qt/qt_page_fetcher.h"
#include "platform/qt/qt_serial_port.h"
#include "platform/qt/qt_socket.h"
#include "platform/qt/qt_sound.h"
#include "platform/qt/serial_devices.h"

namespace zepril {

Machine QtMachine::Given(Files& files, const std::string& program_folder) {
  return {
      files,
      Loop,
      Loop,
      Boxes,
      Desktop,
      [] { return std::make_shared<QtSocket>(); },
      [&files, program_folder] {
        auto port = std::make_shared<QtSerialPort>();
        port->DeviceOfNumber = [&files, program_folder](int number) {
          return DeviceOfPort(files, program_folder, number);
        };
        return port;
      },
      [this](int width, int height) { return std::make_shared<QtSurface>(width, height, Fonts); },
      std::make_shared<QtPageFetcher>(Loop, IdentityState().ProgramVersion),
      Programs,
      PresentSerialDevices,
      std::make_shared<QtSound>(files)};
}

QtSurface& QtMachine::Own(DrawingSurface& surface) {
  return static_cast<QtSurface&>(surface);
}

}  // namespace zepril
