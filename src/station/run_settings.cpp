// Which file holds what of the state.
#include "station/run_settings.h"

#include <string>

#include "config/main_window_settings.h"
#include "config/services_file.h"
#include "config/window_file.h"
#include "core/position_text.h"
#include "gate/aprs_is_login.h"
#include "map/coordinate_values.h"
#include "station/main_window_start.h"
#include "station/view_memory.h"
#include "transmit/tx_setup_rules.h"

namespace zepril {

void ReadRunSettings(Files& files, RuntimeState& state) {
  constexpr const char* kDigipeaterKey = "UIDIGI";
  ReadConfigForMainWindow(files, state);
  const WindowValues own = ReadWindowFile(files, state.Identity.ProgramFolder);
  ApplyViewValues(own, state);
  const auto digipeater = own.find(kDigipeaterKey);
  state.Settings.DigipeaterProgram = digipeater != own.end() ? digipeater->second : std::string();
  state.Gps.SetsClock = WindowNumber(own, kSetClockKey, 0, 1) == 1;
  state.Services = ReadServicesFile(files, state.Identity.ProgramFolder);
  TakeZone(state.Identity, state.Map);
}

void SetOwnNames(RuntimeState& state) {
  const IdentityState& own = state.Identity;
  // As it comes back through a digipeater.
  state.Reception.OwnHeaderPattern =
      own.MyCallFull.empty() ? std::string()
                             : OwnHeaderPatternOf(own.MyCallFull, state.Transmission.TxPath,
                                                  state.Transmission.TxDestination);
  // A station that takes no part in the gate has no passcode.
  state.Internet.AprsIsPasscode =
      TxAllowedOf(own.MyCall) == 1 ? PasscodeOf(own.MyCall) : std::string(kNoPasscode);
}

void MergeRunSettings(Files& files, const RuntimeState& state, const ScaleControls& scales) {
  const std::string& folder = state.Identity.ProgramFolder;
  MergeConfigAtExit(files, folder, LastValuesOf(state.Map, scales));
  WriteWindowFile(files, folder, ViewValues(state));
}

}  // namespace zepril
