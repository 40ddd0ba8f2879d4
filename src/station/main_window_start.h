// The start of the main window: one order of steps, from the fixed defaults to the first picture.
#pragma once

#include "core/controls/main_window_controls.h"
#include "core/runtime_state.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "station/tick_steps.h"

namespace zepril {

// What the start asks of other rooms, in its order. A step that nobody has set is passed over.
struct StartSteps {
  Step ReadConfig;
  Step SetOwnNames;  // header pattern, passcode, navigation
  Step LayOutPanels;
  Step ScanMapLibrary;
  Step LoadHistory;                // of the followed station; sets the monitor values
  std::function<bool()> OpenLink;  // the radio interface; false: the program ends
  Step OpenGpsPort;
  Step RestoreTracksPlacesAndChat;
  Step ShowTitleMarkers;
  Step StartIonoUpdate;
  Step SetLabels;  // by language
  Step ShowAndDrawMap;
  Step RunTerminalHandler;  // when the terminal window is open
};

class MainWindowStart {
 public:
  MainWindowStart(RuntimeState& state, MainWindowControls& controls, Clock& clock, Timer& timer1,
                  const StartSteps& steps);
  // `program_folder`: where the program runs; `colour_depth_bits` of the screen. False when the
  // radio link failed in a way that ends the program.
  bool Run(const std::string& program_folder, int colour_depth_bits);

 private:
  void SetDefaults();
  void SetView();
  bool OpenLink();
  void ApplyTxAllowed();
  void SetIGateSwitch();
  void ShowFirstPicture();

  RuntimeState& state_;
  MainWindowControls& controls_;
  Clock& clock_;
  Timer& timer1_;
  const StartSteps& steps_;
};

// 1 when the third character of the call is a digit. A letter there makes the station one that
// takes no part in chat, automatic answer and gateway; its beacons and objects go out.
int TxAllowedOf(std::string_view call);

// True for a km text whose last four characters are ".499": a place taken from a picture's name.
bool IsPicturePlace(std::string_view km_text);

}  // namespace zepril
