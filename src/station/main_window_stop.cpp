// The steps of the end in their order: sound, link, settings, files.
#include "station/main_window_stop.h"

namespace zepril {

MainWindowStop::MainWindowStop(MainWindowControls& controls, Timer& timer1, Timer& timer2,
                               const StopSteps& steps)
    : controls_(controls), timer1_(timer1), timer2_(timer2), steps_(steps) {}

void MainWindowStop::CloseRequest() {
  timer2_.Stop();
  timer1_.Stop();
  RunStep(steps_.CloseSound);
  if (controls_.Moni1.Check22.Value == 1) RunStep(steps_.StopPageLoading);
  if (controls_.Picture.Frame8.Visible) RunStep(steps_.StopPicturePanel);
}

void MainWindowStop::Run(bool by_operator) {
  CloseRequest();
  // Sound.
  RunStep(steps_.CloseSound);
  // The radio link.
  RunStep(steps_.LeaveLink);
  RunStep(steps_.ClosePorts);
  // The internet switches have no place in the file: they are off at the next start.
  // Hand-over files of the navigation program.
  RunStep(steps_.WriteNavigationFiles);
  // Settings, only when the operator closed the window.
  if (by_operator) RunStep(steps_.MergeConfigAtExit);
  // What this run made for itself.
  RunStep(steps_.DeleteRunFiles);
}

}  // namespace zepril
