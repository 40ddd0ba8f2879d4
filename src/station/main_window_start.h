// The start of the main window: one order of steps, from the fixed defaults to the first picture.
#pragma once

#include "core/controls/main_window_controls.h"
#include "core/runtime_state.h"
#include "core/timer.h"
#include "platform/clock.h"

namespace zepril {

// What the start asks of other rooms, in its order.
class StartActions {
 public:
  virtual ~StartActions() = default;
  virtual void ReadConfig() = 0;
  virtual void SetOwnNames() = 0;  // header pattern, passcode, navigation
  virtual void LayOutPanels() = 0;
  virtual void ScanMapLibrary() = 0;
  virtual void LoadHistory() = 0;      // of the followed station; sets the monitor values
  virtual void OpenLocalEngine() = 0;  // mode 0, with the digipeater companion
  virtual void OpenSerialModem() = 0;  // modes 1, 5, 6
  virtual bool ConnectAgw() = 0;       // mode 3; false: the program ends
  virtual void OpenGpsPort() = 0;
  virtual void RestoreTracksPlacesAndChat() = 0;
  virtual void ShowTitleMarkers() = 0;
  virtual void StartIonoUpdate() = 0;
  virtual void SetLabels() = 0;  // by language
  virtual void ShowAndDrawMap() = 0;
  virtual void RunTerminalHandler() = 0;  // when the terminal window is open
};

class MainWindowStart {
 public:
  MainWindowStart(RuntimeState& state, MainWindowControls& controls, Clock& clock, Timer& timer1,
                  StartActions& actions);
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
  StartActions& actions_;
};

// 1 when the third character of the call is a digit. A letter there makes the station one that
// takes no part in chat, automatic answer and gateway; its beacons and objects go out.
int TxAllowedOf(std::string_view call);

// True for a km text whose last four characters are ".499": a place taken from a picture's name.
bool IsPicturePlace(std::string_view km_text);

}  // namespace zepril
