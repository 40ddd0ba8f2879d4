// IGATE APRS-IS SETUP of the start panel: the server that the gate logs in at.
#pragma once

#include "core/controls/start_panel_controls.h"
#include "station/start/field_store.h"
#include "station/start/radio_interfaces.h"

namespace zepril {

class AprsIsSetup {
 public:
  // Sets the events of its two buttons; the object must outlive them.
  AprsIsSetup(StartPanelControls& controls, const RadioInterfaces& interfaces,
              StartPanelSettings& settings, FieldStore& fields);
  AprsIsSetup(const AprsIsSetup&) = delete;
  AprsIsSetup& operator=(const AprsIsSetup&) = delete;

  // The settings were read: what they hold stands in the fields, which an empty value leaves alone.
  void Show();
  // Another interface was chosen: the setup is for those that hand on what they hear.
  void Follow();

 private:
  // START waits until its OK.
  void Open();
  void Command15Click();

  StartPanelControls& controls_;
  const RadioInterfaces& interfaces_;
  StartPanelSettings& settings_;
  FieldStore& fields_;
};

}  // namespace zepril
