// Shows a station in emergency: so far the map that reception left standing is drawn anew, with it.
#pragma once

#include "core/actions/emergency_actions.h"
#include "core/actions/map_actions.h"

namespace zepril {

class EmergencyDisplay final : public EmergencyActions {
 public:
  explicit EmergencyDisplay(MapActions& map) : map_(map) {}
  // Reception has stopped `Timer1`; the redraw starts it again.
  void ShowEmergency() override { map_.MapRedraw(); }

 private:
  MapActions& map_;
};

}  // namespace zepril
