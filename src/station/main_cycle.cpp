// The steps of a tick, one after the other, and what decides whether each is due.
#include "station/main_cycle.h"

#include <cmath>

#include "core/clock_text.h"
#include "core/radio_rules.h"
#include "core/state_colours.h"
#include "core/text_fields.h"
#include "core/texts/iono_texts.h"
#include "core/texts/status_texts.h"
#include "core/title_line.h"
#include "gate/recent_lines.h"

namespace zepril {
namespace {

constexpr double kEmergencyReturnSeconds = 30.0;
constexpr double kIonoSeconds = 3600.0;
constexpr int kChatPassTicks = 30 / 6;
constexpr double kTypingSeconds = 3.0;
constexpr int kPanelWidthTwips = 1815;

}  // namespace

MainCycle::MainCycle(RuntimeState& state, MainWindowControls& controls, Clock& clock,
                     DesktopActions& desktop, Timer& timer1, Timer& timer2, MapActions& map)
    : state_(state),
      controls_(controls),
      clock_(clock),
      desktop_(desktop),
      timer1_(timer1),
      timer2_(timer2),
      map_(map) {}

void MainCycle::Tick() {
  if (in_tick_) return;
  in_tick_ = true;
  RunSteps();
  in_tick_ = false;
}

void MainCycle::RunSteps() {
  // The link to the APRS-IS server.
  PollAprsIs();
  // What the title tells of gateway and digipeater.
  RenewTitle();
  LookForCompanion();
  // Scan of all followed stations over the internet.
  if (CountScan() == Outcome::EndTick) return;
  // Status line.
  RenewStatusLine();
  // Control to the window system once.
  clock_.HandOver();
  // Is the main window the active one?
  state_.Settings.WindowActive = desktop_.MainWindowActive();
  // An SCS TNC on two modes listens on the second one too.
  if (ListensOnTwoModes(state_.Radio)) RunStep(Steps.KeepSecondModeMonitored);
  // A call typed into the MONI 1 field.
  if (FollowCallField() == Outcome::EndTick) return;
  // Raw list: the newest row is selected and shown.
  SelectLastRawLine();
  // A pending emergency comes back after a while.
  BringEmergencyBack();
  // Web services are switched off a quarter of an hour after they were switched on.
  LimitInternetTime();
  // Identification of digipeater and gateway.
  if (Identify() == Outcome::EndTick) return;
  // Hourly ionosphere update.
  if (UpdateIonosphere() == Outcome::EndTick) return;
  // Internet collection for MONI 1, then for MONI ALL.
  if (CollectMoni1() == Outcome::EndTick) return;
  if (CollectMoniAll() == Outcome::EndTick) return;
  // The map, when it is not drawn.
  timer1_.Stop();
  RedrawWhenStale();
  // What is due to transmit: chat, object, beacon.
  DecideWhatIsDue();
  // The next tick comes later when something is transmitted.
  SetInterval();
  // GPS.
  if (GpsIsPolled()) RunStep(Steps.PollGps);
  // Reception.
  if (!HasNoRadio(state_.Radio)) RunStep(Steps.RunReceivePass);
  // Transmission.
  Transmit();
}

void MainCycle::PollAprsIs() {
  if (Val(state_.Internet.AprsIsPasscode) > 0.0 && GateIsPossible(state_.Radio))
    RunStep(Steps.PollAprsIsLink);
}

void MainCycle::RenewTitle() {
  std::string& title = state_.Settings.TitleText;
  InternetState& internet = state_.Internet;
  if (internet.IGateConnected == GateLink::Down) {
    BlankInTitle(title, internet.IGateOn == Gate::On ? 82 : 76, 90);
  } else {
    PutInTitle(
        title, 76,
        internet.IGateOn == Gate::On ? status_texts::kGateConnected : status_texts::kConnected);
    Age(internet.RecentlyGated);
  }
}

void MainCycle::LookForCompanion() {
  if (MayHaveCompanion(state_.Radio)) {
    RunStep(Steps.WatchCompanion);
    if (state_.Radio.DigiOn == Digipeater::On) {
      PutInTitle(state_.Settings.TitleText, 61, status_texts::kDigiOutside);
    } else {
      BlankInTitle(state_.Settings.TitleText, 61, 71);
    }
  }
  controls_.Window.Title = std::string(Trim(state_.Settings.TitleText));
}

MainCycle::Outcome MainCycle::CountScan() {
  if (state_.Internet.Moni1ScanOn != 1) return Outcome::GoOn;
  KeepPanelWidths();
  --state_.Internet.Moni1ScanTicks;
  if (state_.Internet.Moni1ScanTicks != 0) return Outcome::GoOn;
  RunStep(Steps.RunScanSwitchHandler);
  return Outcome::EndTick;
}

void MainCycle::RenewStatusLine() {
  std::string line = " " + ClockText(clock_.Now());
  if (!HasNoRadio(state_.Radio)) {
    line = state_.Radio.BaudModeLabel + "  " + line;
  }
  // Kept: column 6 of the finished line, whatever stands there.
  if (state_.Gps.ClockSetFromGps == 1) line[5] = '!';
  controls_.Status.Label15.Caption = line;
}

MainCycle::Outcome MainCycle::FollowCallField() {
  const ComboBox& field = controls_.Moni1.Combo9;
  const std::string typed = Upper(Trim(field.Text));
  if (typed.empty() && field.HasFocus) return Outcome::GoOn;
  if (typed == Upper(Trim(state_.Followed.Moni1Call))) return Outcome::GoOn;
  // Half a call, while the rest of it is being typed.
  const double since_key = clock_.MonotonicSeconds() - field.LastKeySeconds;
  if (field.HasFocus && since_key < kTypingSeconds) return Outcome::GoOn;
  RunStep(Steps.ChangeFollowedStation);
  return Outcome::EndTick;
}

void MainCycle::SelectLastRawLine() {
  ListBox& list = controls_.Raw.RawList;
  list.ListIndex = state_.Reception.RawLineCount;
  list.TopIndex = state_.Reception.RawLineCount;
}

void MainCycle::BringEmergencyBack() {
  if (state_.Alarms.AlarmCall.empty()) return;
  const double closed_for = clock_.MonotonicSeconds() - state_.Alarms.AlarmClosedAt;
  if (std::fabs(closed_for) > kEmergencyReturnSeconds) RunStep(Steps.ShowEmergencyPanel);
}

void MainCycle::LimitInternetTime() {
  // Kept: the timer value falls to 0 at midnight, and support switched on before it ends then.
  const double on_for = clock_.SecondsSinceMidnight() - state_.Internet.InetSwitchTime;
  if (std::fabs(on_for) <= state_.Internet.InetMaxOnSeconds) return;
  controls_.MoniAll.Check23.Value = 0;
  controls_.Moni1.Check22.Value = 0;
  if (HasNoRadio(state_.Radio)) {
    controls_.Chat.Check7.Value = 0;
  }
}

MainCycle::Outcome MainCycle::Identify() {
  if (state_.Radio.DigiOn != Digipeater::On && state_.Internet.IGateConnected != GateLink::Up)
    return Outcome::GoOn;
  if (!GateIsPossible(state_.Radio)) return Outcome::GoOn;
  // The third character spreads the stations over the hour; a letter reads as 0.
  const int offset = static_cast<int>(Val(Mid(state_.Identity.MyCall, 3, 1)));
  const LocalTime now = clock_.Now();
  const std::string time = ClockText(now);
  if ((now.Minute - offset) % 20 != 0 || time == state_.Transmission.LastIdBeaconTime) {
    return Outcome::GoOn;
  }
  RunStep(Steps.SendIdentification);
  state_.Transmission.LastIdBeaconTime = time;
  return Outcome::EndTick;
}

MainCycle::Outcome MainCycle::UpdateIonosphere() {
  if (state_.Internet.IonoAutoOn != 1) return Outcome::GoOn;
  const double now = clock_.SecondsSinceMidnight();
  if (std::fabs(now - state_.Internet.LastIonoTimer) <= kIonoSeconds) return Outcome::GoOn;
  controls_.Status.IonoLabel.Caption = iono_texts::kUpdating;
  state_.Internet.LastIonoTimer = now;
  RunStep(Steps.StartIonoUpdate);
  return Outcome::EndTick;
}

MainCycle::Outcome MainCycle::CollectMoni1() {
  if (controls_.Moni1.Check22.Value != 1) return Outcome::GoOn;
  const int share = 1 + controls_.MoniAll.Check23.Value;
  const bool minute_come = ClockHhMm() / share != state_.Internet.LastMoni1InternetMinute / share;
  if (state_.Internet.Moni1ScanOn == 0 && !minute_come) return Outcome::GoOn;
  ShowCollecting(status_texts::kCollectingMoni1, state_colours::kCollectingMoni1);
  RunStep(Steps.FetchMoni1);
  return Outcome::EndTick;
}

MainCycle::Outcome MainCycle::CollectMoniAll() {
  if (controls_.MoniAll.Check23.Value != 1 || state_.Internet.Moni1ScanOn != 0) {
    return Outcome::GoOn;
  }
  if (ClockHhMm() / 4 == state_.Internet.LastMoniAllInternetMinute / 4) return Outcome::GoOn;
  ShowCollecting(status_texts::kCollectingMoniAll, state_colours::kCollectingMoniAll);
  RunStep(Steps.FetchMoniAll);
  return Outcome::EndTick;
}

void MainCycle::ShowCollecting(Text text, std::uint32_t colour) {
  timer1_.Stop();
  controls_.Window.Pointer = PointerShape::Hourglass;
  controls_.Map.Picture1.Pointer = PointerShape::Hourglass;
  controls_.Status.Text10.Caption = text;
  controls_.Status.Text10.BackColour = colour;
  controls_.Status.Text10.Visible = true;
  clock_.HandOver();
}

void MainCycle::RedrawWhenStale() {
  controls_.Chat.Frame7.Visible = false;
  if (!state_.Map.MapDrawn) map_.MapRedraw();
  KeepPanelWidths();
}

void MainCycle::DecideWhatIsDue() {
  TransmissionState& due = state_.Transmission;
  due.ChatDue = false;
  due.ObjectDue = false;
  due.BeaconDue = false;
  DecideChat();
  DecideObjectAndBeacon();
}

void MainCycle::DecideChat() {
  if (controls_.Chat.Check7.Value != 1) return;
  int& countdown = state_.Chat.ChatPollCountdown;
  if (!state_.Chat.ChatTxText.empty()) countdown = 0;
  if (countdown <= 0) {
    state_.Transmission.ChatDue = true;
    countdown = kChatPassTicks;
  }
  --countdown;
}

void MainCycle::DecideObjectAndBeacon() {
  TransmissionState& due = state_.Transmission;
  if (due.TxIntervalMinutes <= 0 || due.ChatDue || controls_.Transmit.Check6.Value != 1 ||
      HasNoRadio(state_.Radio)) {
    return;
  }
  const std::int64_t now = SecondsOf(clock_.Now());
  const std::int64_t interval = 60LL * due.TxIntervalMinutes;
  if (controls_.Transmit.Check18.Value == 1 && now - due.LastObjectTime > 2 * interval) {
    due.ObjectDue = true;
  }
  if (!due.ObjectDue && now - due.LastBeaconTime > interval) due.BeaconDue = true;
}

void MainCycle::SetInterval() {
  const TransmissionState& due = state_.Transmission;
  const bool transmits = due.ChatDue || due.ObjectDue || due.BeaconDue;
  timer1_.Arm(state_.Settings.TickMilliseconds * (transmits ? 2 : 1));
}

bool MainCycle::GpsIsPolled() const {
  const std::string& source = state_.Gps.NmeaSource;
  if (Val(source) != 0.0) return true;
  return source.size() > 3 && InStr(Upper(source), "SAVE") == 0;
}

void MainCycle::Transmit() {
  TransmissionState& due = state_.Transmission;
  if (due.ChatDue) RunStep(Steps.RunChatPass);
  if (HasNoRadio(state_.Radio)) return;
  if (due.ObjectDue && due.ObjectTxOn == 1) {
    RunStep(Steps.SendObjectReport);
    due.LastObjectTime = SecondsOf(clock_.Now());
  }
  if (due.BeaconDue) {
    RunStep(Steps.SendBeacon);
    due.LastBeaconTime = SecondsOf(clock_.Now());
  }
}

void MainCycle::KeepPanelWidths() {
  controls_.Window.SidePanelWidthPx = kPanelWidthTwips / state_.Settings.PanelWidthUnit;
}

int MainCycle::ClockHhMm() const {
  const LocalTime now = clock_.Now();
  return now.Hour * 100 + now.Minute;
}

void MainCycle::Timer2Elapsed() {
  timer2_.Stop();
  timer1_.Enable();
  if (!controls_.Status.Text10.Visible) return;
  // The banner still stands: the fetch has failed.
  controls_.Moni1.Check22.Value = 0;
  controls_.Status.Text10.Visible = false;
  controls_.Window.Pointer = PointerShape::Default;
  controls_.Map.Picture1.Pointer = PointerShape::Default;
}

}  // namespace zepril
