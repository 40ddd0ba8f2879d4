// Which station is followed: chosen in the field of MONI 1, or from the panel of a record.
#pragma once

#include <string>

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/state/followed_station.h"
#include "core/state/identity.h"
#include "core/state/stores.h"
#include "core/timer.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "reception/followed_history.h"
#include "reception/record_browser.h"

namespace zepril {

struct FollowedChoiceTools {
  Files& Disk;
  const Clock& LocalClock;
  FollowedHistory& History;
  RecordBrowser& Browser;
  MapActions& Map;
  SettingsActions& Settings;
  Timer& Timer1;
};

class FollowedChoice {
 public:
  // Sets the events of the field and of its alarm box, and of `Command11` of the record panel.
  FollowedChoice(const IdentityState& identity, const StoresState& stores,
                 FollowedStationState& followed, Moni1Controls& moni1, RecordPanelControls& record,
                 FollowedChoiceTools tools);
  FollowedChoice(const FollowedChoice&) = delete;
  FollowedChoice& operator=(const FollowedChoice&) = delete;

  // At the start of the program: the history, the list of those that have one, the call.
  void LoadAtStart();
  // Follows the call in the field. It stays as typed, in the file too; everywhere it is compared
  // without regard to case.
  void FollowTyped();
  // Follows `call` from here on; the map is drawn anew.
  void Follow(const std::string& call);

 private:
  void ListCalls();

  const IdentityState& identity_;
  const StoresState& stores_;
  FollowedStationState& followed_;
  Moni1Controls& moni1_;
  FollowedChoiceTools tools_;
};

}  // namespace zepril
