// The set-up of a serial modem at START: brought into a known state while the start panel shows how
// far it is.
#pragma once

#include <functional>
#include <string>

#include "config/start_panel_settings.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/serial_port.h"

namespace zepril {

struct SetUpProgress {
  double Share = 0.0;        // 0 to 1 of the expected time
  double SecondsLeft = 0.0;  // of it
  std::string Trouble;       // why the port is not open, as a sentence; empty when all is well
};

// Opens the port, carries the sequence of the settings' interface out and closes the port. Returns
// at once for interfaces without a serial modem. Nothing fails: on a port that can't be opened only
// the waits remain. `told` is called before each wait, and several times in a long one. False when
// the modem has not got all of it.
bool TncSetup(const StartPanelSettings& settings, SerialPort& port, Clock& clock,
              const std::function<void(const SetUpProgress&)>& told);

// A modem that an earlier run could not leave in order, as after a crash, is still in converse: the
// set-up would go on the air. It is brought out of it at the line speed that it had then; the port
// is closed before and after. One that has not got it is remembered on.
void LeaveConverseOfLastRun(const StartPanelSettings& settings, Files& files,
                            const std::string& program_folder, SerialPort& port, Clock& clock);

}  // namespace zepril
