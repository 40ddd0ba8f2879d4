// The steps of the end in their order: sound, link, settings, files.
#include "station/main_window_stop.h"

namespace zepril {

MainWindowStop::MainWindowStop(RuntimeState& state, MainWindowControls& controls, Timer& timer1,
                               Timer& timer2, StopActions& actions)
    : state_(state), controls_(controls), timer1_(timer1), timer2_(timer2), actions_(actions) {}

void MainWindowStop::CloseRequest() {
  timer2_.Stop();
  timer1_.Stop();
  actions_.CloseSound();
  if (controls_.Moni1.Check22.Value == 1) actions_.StopPageLoading();
  if (controls_.Picture.Frame8.Visible) actions_.StopPicturePanel();
}

void MainWindowStop::Run(bool by_operator) {
  CloseRequest();
  // Sound.
  actions_.CloseSound();
  // The radio link, each in its own way.
  switch (static_cast<RadioMode>(state_.Radio.RadioMode)) {
    case RadioMode::AgwLocal:
      actions_.CloseLocalEngine();
      break;
    case RadioMode::Pk232:
    case RadioMode::ScsTnc:
    case RadioMode::ScsPtc:
      actions_.LeaveSerialModem();
      break;
    case RadioMode::AgwRemote:
      actions_.DisconnectAgw();
      break;
    case RadioMode::None:
      break;
  }
  actions_.ClosePorts();
  // The internet switches have no place in the file: they are off at the next start.
  // Hand-over files of the navigation program.
  actions_.WriteNavigationFiles();
  // Settings, only when the operator closed the window.
  if (by_operator) actions_.MergeConfigAtExit();
  // What this run made for itself.
  actions_.DeleteRunFiles();
}

}  // namespace zepril
