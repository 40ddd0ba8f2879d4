// A station in emergency: the map goes there, a sound plays, and a panel stays until the operator
// deals with it. It can be closed for half a minute at a time; an alarm lasts until it is
// cancelled.
#pragma once

#include <string>

#include "core/actions/emergency_actions.h"
#include "core/actions/map_actions.h"
#include "core/controls/emergency_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/alarms.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/event.h"
#include "platform/files.h"
#include "platform/sound.h"

namespace zepril {

struct EmergencySections {
  const IdentityState& Identity;
  AlarmState& Alarms;
  MapViewState& View;
};

struct EmergencyDisplayControls {
  EmergencyControls& Panel;
  MapControls& Map;
  WindowControls& Window;
};

struct EmergencyTools {
  Files& Disk;
  const Clock& LocalClock;
  Dialogs& Boxes;
  MapActions& Map;
  Sound* Speaker = nullptr;  // may be missing
};

class EmergencyDisplay final : public EmergencyActions {
 public:
  // Minutes from the report on for which the panel closes without a question; longer when the
  // station's text has a "!".
  static constexpr std::int64_t kSureMinutes = 60;
  static constexpr std::int64_t kUrgentMinutes = 120;

  // Sets the events of the panel's buttons.
  EmergencyDisplay(EmergencySections sections, EmergencyDisplayControls controls,
                   EmergencyTools tools);
  EmergencyDisplay(const EmergencyDisplay&) = delete;
  EmergencyDisplay& operator=(const EmergencyDisplay&) = delete;

  // Shows the station of the alarm fields. The redraw of the map starts `Timer1` again.
  void ShowEmergency() override;
  // An alarm lasts, and its panel was closed half a minute ago or longer: it comes back. An alarm
  // that was never shown (its report counted as a repeat of an ordinary one) is shown now; the copy
  // of one that was cancelled is none.
  void ShowAgain();
  // Closes the panel for half a minute; an old alarm may be cancelled.
  void CloseEmergencyPanel();
  // Ends the alarm that is shown, and says so in its log. One that has come meanwhile stays.
  void Cancel();

  // A picture in the map's place is to go.
  Event<> ClosePicture;

 private:
  std::int64_t MinutesSinceReport() const;
  void FillPanel();
  void PlayAlarmSound();
  void HideForAWhile();

  EmergencySections sections_;
  EmergencyDisplayControls controls_;
  EmergencyTools tools_;
  std::string shown_call_;  // of the alarm on the panel
  std::string shown_time_;
  std::string cancelled_call_;  // of the last one that was ended
};

}  // namespace zepril
