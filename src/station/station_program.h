// One running program: builds every room, joins them, owns the one state. No toolkit.
//
// The desktop gives it a machine, binds its controls to widgets and drives its timers; tests give
// it doubles and a virtual clock. All the rest happens in here.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/controls/main_window_controls.h"
#include "core/link_lamp.h"
#include "core/runtime_state.h"
#include "core/timer.h"
#include "platform/machine.h"
#include "platform/serial_port.h"

namespace zepril {

class StationRooms;
struct ReceptionCounts;
struct StationSurfaces;

class StationProgram {
 public:
  // `modem`: the line on which START has set the modem up; null: the machine makes one.
  explicit StationProgram(const Machine& machine, std::shared_ptr<SerialPort> modem = nullptr);
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
  const StationSurfaces& Surfaces() const;
  Timer& Timer1();
  Timer& Timer2();
  // All that are to be driven as long as the program is there.
  std::vector<DrivenTimer> Timers();
  bool InTick() const;

  LinkLamp Lamp() const;
  // Once a second, also while the main cycle rests: what is shown for some seconds, and since when.
  void SecondPassed();
  const ReceptionCounts& Counts() const;

 private:
  std::unique_ptr<StationRooms> rooms_;
};

}  // namespace zepril
