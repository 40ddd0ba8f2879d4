// The stop of the main window: the close request, then links, settings, files.
#pragma once

#include "core/controls/main_window_controls.h"
#include "core/runtime_state.h"
#include "core/timer.h"

namespace zepril {

// What the stop asks of other rooms, in its order.
class StopActions {
 public:
  virtual ~StopActions() = default;
  virtual void CloseSound() = 0;
  virtual void StopPageLoading() = 0;  // the internet page is left blank
  virtual void StopPicturePanel() = 0;
  virtual void CloseLocalEngine() = 0;  // mode 0, with the digipeater companion
  virtual void LeaveSerialModem() = 0;  // exit sequence of modes 1, 5, 6
  virtual void DisconnectAgw() = 0;     // mode 3
  virtual void ClosePorts() = 0;        // both serial ports, the APRS-IS socket
  virtual void WriteNavigationFiles() = 0;
  virtual void MergeConfigAtExit() = 0;
  virtual void DeleteRunFiles() = 0;  // index files of the map library of this run
};

class MainWindowStop {
 public:
  MainWindowStop(RuntimeState& state, MainWindowControls& controls, Timer& timer1, Timer& timer2,
                 StopActions& actions);
  // `by_operator`: a close of the window by the operator, not an end by a failed link: only then
  // are the settings merged into the configuration file.
  void Run(bool by_operator);

 private:
  void CloseRequest();

  RuntimeState& state_;
  MainWindowControls& controls_;
  Timer& timer1_;
  Timer& timer2_;
  StopActions& actions_;
};

}  // namespace zepril
