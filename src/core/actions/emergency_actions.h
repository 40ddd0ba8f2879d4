// What reception asks when a station is in emergency.
#pragma once

namespace zepril {

class EmergencyActions {
 public:
  virtual ~EmergencyActions() = default;
  // Shows the emergency display for the station in the alarm fields.
  virtual void ShowEmergency() = 0;
};

}  // namespace zepril
