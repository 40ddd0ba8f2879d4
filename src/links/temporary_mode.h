// The other 300 Bd mode of an SCS TNC, for as long as the second mouse button is held on the raw
// list: what is heard there can be read without leaving the own mode.
#pragma once

#include <string>

#include "core/controls/raw_list_controls.h"
#include "core/controls/terminal_controls.h"
#include "core/state/radio.h"
#include "platform/serial_port.h"

namespace zepril {

class TemporaryMode {
 public:
  // Sets the events of the list; `Label49` tells while the mode is on.
  TemporaryMode(const RadioState& radio, RawListControls& raw, TerminalControls& terminal,
                SerialPort& port);
  TemporaryMode(const TemporaryMode&) = delete;
  TemporaryMode& operator=(const TemporaryMode&) = delete;

 private:
  void SwitchOn();
  void SwitchOff();
  bool Applies() const;
  void Send(const std::string& command);

  const RadioState& radio_;
  TerminalControls& terminal_;
  SerialPort& port_;
  bool on_ = false;
};

}  // namespace zepril
