// The steps of the start in their order: defaults, settings, map, link, history, picture.
#include "station/main_window_start.h"

#include <algorithm>

#include "core/centre_follow.h"
#include "core/radio_rules.h"
#include "core/text_fields.h"
#include "core/title_line.h"

namespace zepril {

int TxAllowedOf(std::string_view call) {
  const std::string_view third = Mid(call, 3, 1);
  return !third.empty() && IsDigit(third.front()) ? 1 : 0;
}

bool IsPicturePlace(std::string_view km_text) {
  return Right(Trim(km_text), 4) == ".499";
}

MainWindowStart::MainWindowStart(RuntimeState& state, MainWindowControls& controls, Clock& clock,
                                 Timer& timer1, const StartSteps& steps)
    : state_(state), controls_(controls), clock_(clock), timer1_(timer1), steps_(steps) {}

bool MainWindowStart::Run(const std::string& program_folder, int colour_depth_bits) {
  // Version, folder, screen.
  state_.Identity.ProgramVersion = "8.08";
  state_.Identity.ProgramFolder = program_folder;
  state_.Map.ColourDepthBits = colour_depth_bits;
  // Switches, store limits by the speed of the computer, defaults.
  SetDefaults();
  // Settings of the operator; names that follow from them.
  RunStep(steps_.ReadConfig);
  RunStep(steps_.SetOwnNames);
  state_.Settings.TitleText = BaseTitle(state_.Identity.ProgramVersion, state_.Identity.MyCallFull);
  // Panels and maps.
  RunStep(steps_.LayOutPanels);
  RunStep(steps_.ScanMapLibrary);
  // History of the followed station, and where the map looks.
  RunStep(steps_.LoadHistory);
  SetView();
  // The rhythm, then the radio link.
  state_.Settings.TickMilliseconds = 6000;
  if (!OpenLink()) return false;
  ApplyTxAllowed();
  state_.Reception.RxBuffer = "\n";
  // GPS, tracks, places, chat.
  RunStep(steps_.OpenGpsPort);
  RunStep(steps_.RestoreTracksPlacesAndChat);
  controls_.Chat.Check16.Value = state_.Chat.AutoAnswerOn;
  // Gateway.
  SetIGateSwitch();
  RunStep(steps_.ShowTitleMarkers);
  // Ionosphere and internet; the main cycle begins.
  if (state_.Internet.IonoAutoOn == 1) RunStep(steps_.StartIonoUpdate);
  state_.Internet.LastMoni1InternetMinute = -5000;
  state_.Internet.LastMoniAllInternetMinute = 0;
  timer1_.Arm(state_.Settings.TickMilliseconds);
  // Labels and the first picture.
  ShowFirstPicture();
  // The terminal window, if open, and the second radio mode.
  RunStep(steps_.RunTerminalHandler);
  state_.Radio.HfDualOn = controls_.Transmit.Check2.Value;
  return true;
}

// The settings fall back to values of their own when they are read.
void MainWindowStart::SetDefaults() {
  state_.Map.StationClassMask = kAllClasses;
  const StoreLimits limits = LimitsOfSpeed(clock_.LoopsPerSecond());
  state_.Stores.MoniAllRecords.Limit = limits.MoniAllLimit;
  state_.Stores.Moni1Records.Limit = limits.Moni1Limit;
  RadioState fresh;
  fresh.HfDualOn = state_.Radio.HfDualOn;
  state_.Radio = fresh;
  state_.Reception.SymbolIndex = 37;
}

void MainWindowStart::SetView() {
  MapViewState& map = state_.Map;
  if (IsPicturePlace(map.StoredNorthText) && IsPicturePlace(map.StoredEastText)) {
    // The last centre was a picture's place: the map opens there.
    FollowNobody(map, controls_.Map);
  } else {
    FollowWith(map, controls_.Map,
               state_.Stores.Moni1Records.Count() > 0 ? Following::Station : Following::Nobody);
  }
  if (map.CentreNorthKm == 0.0 && map.CentreEastKm == 0.0) {
    map.CentreNorthKm = 6600.0;
    map.CentreEastKm = 400.0;
  }
}

bool MainWindowStart::OpenLink() {
  if (HasNoRadio(state_.Radio)) {
    for (CheckBox* box : {&controls_.Transmit.Check6, &controls_.Chat.Check16}) {
      box->Enabled = false;
      box->Visible = false;
    }
  }
  return !steps_.OpenLink || steps_.OpenLink();
}

void MainWindowStart::ApplyTxAllowed() {
  state_.Identity.TxAllowed = TxAllowedOf(state_.Identity.MyCall);
  if (state_.Identity.TxAllowed == 1) return;
  ChatControls& chat = controls_.Chat;
  chat.Check8.Value = 1;
  chat.Check8.Enabled = false;
  chat.Check16.Enabled = false;
  chat.Check16.Visible = false;
  chat.Text2.Visible = false;
  chat.Text3.Visible = false;
  controls_.Gate.Check15.Value = 0;
  controls_.Gate.Check15.Enabled = false;
}

void MainWindowStart::SetIGateSwitch() {
  CheckBox& box = controls_.Gate.Check15;
  if (state_.Internet.AprsIsPasscode == "0") {
    state_.Internet.IGateOn = Gate::Off;
    box.Enabled = false;
    box.Visible = false;
  } else if (state_.Identity.TxAllowed == 1) {
    box.Enabled = true;
    box.Visible = true;
  }
  const Gate gate = state_.Identity.TxAllowed == 1 ? state_.Internet.IGateOn : Gate::Off;
  box.Value = static_cast<int>(gate);
}

void MainWindowStart::ShowFirstPicture() {
  state_.Alarms.AlarmDistanceKm = std::max(state_.Alarms.AlarmDistanceKm, 1);
  RunStep(steps_.SetLabels);
  RunStep(steps_.ShowAndDrawMap);
  const bool no_user_position = state_.Map.OwnNorthKm == 0.0 && state_.Map.OwnEastKm == 0.0;
  const bool no_monitor_position =
      state_.Followed.MonitorNorthKm == 0.0 && state_.Followed.MonitorEastKm == 0.0;
  if (no_user_position && no_monitor_position) controls_.Qth.Frame2.Visible = true;
}

}  // namespace zepril
