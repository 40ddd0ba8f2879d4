// The heart of the program: one tick of `Timer1` polls, renews, fetches, redraws, receives and
// transmits in a fixed order; the one-shot `Timer2` brings `Timer1` back when a handler has stopped
// it, and is the watchdog of page loading.
//
// A tick runs to its end before another may begin; what the operator does while control is handed
// over inside a tick is handled, but no tick runs inside a tick.
#pragma once

#include "core/actions/map_actions.h"
#include "station/tick_steps.h"
#include "core/controls/main_window_controls.h"
#include "core/runtime_state.h"
#include "core/texts/text.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "platform/desktop_actions.h"

namespace zepril {

class MainCycle {
 public:
  MainCycle(RuntimeState& state, MainWindowControls& controls, Clock& clock,
            DesktopActions& desktop, Timer& timer1, Timer& timer2, MapActions& map);

  // To be set before the first tick.
  TickSteps Steps;

  // One tick; a call while a tick is under way does nothing.
  void Tick();
  // `Timer2` has fired.
  void Timer2Elapsed();
  // `Label15`: speed, time.
  void RenewStatusLine();
  bool InTick() const { return in_tick_; }

 private:
  enum class Outcome { GoOn, EndTick };

  void RunSteps();
  void PollAprsIs();
  void RenewTitle();
  void LookForCompanion();
  Outcome CountScan();
  Outcome FollowCallField();
  void SelectLastRawLine();
  void BringEmergencyBack();
  void LimitInternetTime();
  Outcome Identify();
  Outcome UpdateIonosphere();
  Outcome CollectMoni1();
  Outcome CollectMoniAll();
  void ShowCollecting(Text text, std::uint32_t colour);
  void RedrawWhenStale();
  void DecideWhatIsDue();
  void DecideChat();
  void DecideObjectAndBeacon();
  void SetInterval();
  bool GpsIsPolled() const;
  void Transmit();
  void KeepPanelWidths();

  int ClockHhMm() const;

  RuntimeState& state_;
  MainWindowControls& controls_;
  Clock& clock_;
  DesktopActions& desktop_;
  Timer& timer1_;
  Timer& timer2_;
  MapActions& map_;
  bool in_tick_ = false;
};

}  // namespace zepril
