// USER QTH SETUP: the operator brings the map's centre to his own place, or types it, and takes it.
//
// While the panel is open for that the main cycle stands still: a report of the followed station
// would move the centre under his hand. As the help of a first start it holds nothing until the
// operator begins, by a press on the map or in a field.
#pragma once

#include <string>

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/qth_setup_controls.h"
#include "core/state/map_view.h"
#include "core/timer.h"
#include "platform/event.h"

namespace zepril {

struct QthSetupTools {
  MapActions& Map;
  SettingsActions& Settings;
  Timer& Timer1;
  Timer& Timer2;
};

class QthSetup {
 public:
  // Sets the events of the panel's controls; the object must outlive them.
  QthSetup(MapViewState& view, QthSetupControls& controls, MapControls& map, QthSetupTools tools);
  QthSetup(const QthSetup&) = delete;
  QthSetup& operator=(const QthSetup&) = delete;

  void Open();
  // The operator works with the panel: from here on the cycle stands still. Called for each press
  // on the map too.
  void Begin();
  bool HoldsTheCycle() const { return begun_ && controls_.Frame2.Visible; }
  // Brings the centre into the fields; what was typed and not entered stays until the map moves.
  void ShowFields();
  // The own position is another one.
  Event<> PositionTaken;

 private:
  bool Typed() const;
  bool JumpToTyped();
  void TakeCentre();
  void Cancel();
  void Close();
  void Tell(std::string note);

  MapViewState& view_;
  QthSetupControls& controls_;
  MapControls& map_;
  QthSetupTools tools_;
  bool begun_ = false;
  std::string shown_north_;  // what the fields were given last
  std::string shown_east_;
  double shown_north_km_ = 0.0;  // for which centre
  double shown_east_km_ = 0.0;
};

}  // namespace zepril
