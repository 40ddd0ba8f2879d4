// The stop of the main window: the close request, then links, settings, files.
#pragma once

#include "core/controls/main_window_controls.h"
#include "core/timer.h"
#include "station/tick_steps.h"

namespace zepril {

// What the stop asks of other rooms, in its order. A step that nobody has set is passed over.
struct StopSteps {
  Step CloseSound;
  Step StopPageLoading;  // the internet page is left blank
  Step StopPicturePanel;
  Step LeaveLink;   // the radio interface
  Step ClosePorts;  // both serial ports, the APRS-IS socket
  Step WriteNavigationFiles;
  Step MergeConfigAtExit;
  Step DeleteRunFiles;  // index files of the map library of this run
};

class MainWindowStop {
 public:
  MainWindowStop(MainWindowControls& controls, Timer& timer1, Timer& timer2,
                 const StopSteps& steps);
  // `by_operator`: a close of the window by the operator, not an end by a failed link: only then
  // are the settings merged into the configuration file.
  void Run(bool by_operator);

 private:
  void CloseRequest();

  MainWindowControls& controls_;
  Timer& timer1_;
  Timer& timer2_;
  const StopSteps& steps_;
};

}  // namespace zepril
