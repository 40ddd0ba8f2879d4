// One running program: builds every room, joins them, owns the one state. No toolkit.
//
// The desktop gives it a platform and two surfaces, binds its controls to widgets and drives its
// timers; tests give it doubles and a virtual clock. All the rest happens in here.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/controls/main_window_controls.h"
#include "core/link_lamp.h"
#include "core/runtime_state.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "platform/desktop_actions.h"
#include "platform/dialogs.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"
#include "platform/serial_port.h"
#include "platform/tcp_socket.h"

namespace zepril {

// What the machine gives to one running program.
struct StationPlatform {
  Files& FileSystem;
  Clock& LocalClock;
  Dialogs& Boxes;
  DesktopActions& Desktop;
  TcpSocket& Winsock1;                  // the packet engine
  SerialPort& MSComm1;                  // the modem
  DrawingSurface& MapSurface;           // `Picture1`
  DrawingSurface& BaseSurface;          // the second map window under it
  DrawingSurface& SunSurface;           // plot of the sun's path
  DrawingSurface& TxSymbolSurface;      // the symbol in TX SETUP
  DrawingSurface& ObjectSymbolSurface;  // and in OBJECT SETUP, each of one cell
};

class StationRooms;
struct ReceptionCounts;

class StationProgram {
 public:
  explicit StationProgram(StationPlatform platform);
  ~StationProgram();
  StationProgram(const StationProgram&) = delete;
  StationProgram& operator=(const StationProgram&) = delete;

  // START has not reached the modem: it is set up when it is found. To be told before the start.
  void ModemWasNotSetUp();
  // The start of the main window; false when it ended the program.
  bool Start(const std::string& program_folder, int colour_depth_bits);
  // The stop; `by_operator`: the window was closed, settings are kept.
  void Stop(bool by_operator);
  // True once something has asked for the end of the program.
  bool EndWanted() const;

  // The map window has another size; the surfaces have it already.
  void MapResized(int width, int height);

  RuntimeState& State();
  MainWindowControls& Controls();
  Timer& Timer1();
  Timer& Timer2();
  Timer& ReopenTimer();
  bool InTick() const;

  LinkLamp Lamp() const;
  // Once a second, also while the main cycle rests: what is shown for some seconds, and since when.
  void SecondPassed();
  const ReceptionCounts& Counts() const;

 private:
  std::unique_ptr<StationRooms> rooms_;
};

}  // namespace zepril
