// START: stores what stands in the fields and sets a serial modem up, shows how far it is, and
// takes over the vectors of outings.
#pragma once

#include "config/start_panel_settings.h"
#include "core/controls/start_panel_controls.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/event.h"
#include "platform/serial_port.h"
#include "station/start/field_store.h"
#include "station/start/port_fields.h"
#include "station/start/radio_interfaces.h"

namespace zepril {

struct StartButtonParts {
  RadioInterfaces& Interfaces;
  PortFields& Ports;
  FieldStore& Fields;
};

struct StartButtonMachine {
  Clock& LocalClock;
  Dialogs& Boxes;
  SerialPort& Modem;
};

class StartButton {
 public:
  // Sets the button's event; the object must outlive it.
  StartButton(StartPanelControls& controls, StartButtonParts parts, StartSettingsPlace settings,
              StartButtonMachine machine);
  StartButton(const StartButton&) = delete;
  StartButton& operator=(const StartButton&) = delete;

  // Told when the settings are stored and the modem is set up.
  Event<> Started;

  bool ModemIsSetUp() const { return modem_is_set_up_; }
  bool Starting() const { return starting_; }

 private:
  void Command1Click();
  bool CallIsThere();
  void EnableFields(bool enabled);
  void SetUpModem();

  StartPanelControls& controls_;
  StartButtonParts parts_;
  StartSettingsPlace settings_;
  StartButtonMachine machine_;
  bool starting_ = false;
  bool modem_is_set_up_ = true;
};

}  // namespace zepril
