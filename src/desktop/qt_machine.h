// The machine as Qt gives it: loop, boxes, desktop, and what sockets, ports and surfaces are made
// of.
#pragma once

#include <string>

#include "desktop/qt_desktop_actions.h"
#include "desktop/qt_dialogs.h"
#include "platform/machine.h"
#include "platform/native/companion_processes.h"
#include "platform/qt/map_fonts.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_surface.h"

namespace zepril {

class QtMachine {
 public:
  QtMachine() = default;
  QtMachine(const QtMachine&) = delete;
  QtMachine& operator=(const QtMachine&) = delete;

  // What a program on these files is given. Port numbers mean the devices that a file of the
  // program's folder names. Files and machine must outlive what is made.
  Machine Given(Files& files, const std::string& program_folder);

  // A surface that this machine made.
  static QtSurface& Own(DrawingSurface& surface);

  QtLoop Loop;
  QtDialogs Boxes{Loop};
  QtDesktopActions Desktop;
  CompanionProcesses Programs;
  MapFonts Fonts;
};

}  // namespace zepril
