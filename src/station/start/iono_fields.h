// The numbers of the ionosphere on the start panel: typed, or kept current by the internet.
#pragma once

#include "core/controls/start_panel_controls.h"
#include "core/state/internet.h"

namespace zepril {

class IonoFields {
 public:
  // Sets the events of box and fields; the object must outlive it.
  IonoFields(StartPanelControls& controls, InternetState& held);
  IonoFields(const IonoFields&) = delete;
  IonoFields& operator=(const IonoFields&) = delete;

  // The settings were read: their values stand in the fields.
  void Show();
  // START: the fields and the box go into the settings. A number that overflows is none, one out of
  // its range is only marked.
  void Take();

 private:
  // With the box set the fields are read only.
  void Follow();
  void Mark();

  StartPanelControls& controls_;
  InternetState& held_;
};

}  // namespace zepril
