// The serial modem during the run (`RadioMode` 1, 5, 6): opened at start, found again when its
// adapter was unplugged, left in good order at the end.
//
// A port that can't be opened is passed over quietly; what is written to it goes nowhere. From then
// on it is tried again every ten seconds by a timer of its own, without boxes; when it opens, the
// modem is brought back to its commands and told the same as at start, and behind that the settings
// that were confirmed while it was away. One that was away at START gets these in any case.
#pragma once

#include <functional>
#include <string_view>

#include "core/progress.h"
#include "core/timer.h"
#include "links/setup_sequences.h"
#include "platform/clock.h"
#include "platform/serial_port.h"

namespace zepril {

struct SerialModemTools {
  SerialPort& Port;
  Clock& LocalClock;
  Timer& ReopenTimer;
};

class SerialModem {
 public:
  // Notes the time of the last data in `radio`.
  SerialModem(const IdentityState& identity, RadioState& radio,
              const TransmissionState& transmission, SerialModemTools tools);
  SerialModem(const SerialModem&) = delete;
  SerialModem& operator=(const SerialModem&) = delete;

  void Open();
  // The modem back in its command mode; the port stays open.
  void Leave();
  // TX SETUP was confirmed: the settings as they are now. A lost modem is told when it is found.
  void Program(Progress& progress);
  // What the line has not taken yet never leaves.
  void DropUnsent() { tools_.Port.DropUnsent(); }
  bool LinkIsUp() const { return tools_.Port.IsOpen(); }
  bool IsBusy() const { return busy_; }

  // The re-open timer has fired.
  void ReopenElapsed();
  // Whether a lost port may be opened just now; may be empty. Asked each time.
  std::function<bool()> MayReopen;
  // A lost port was opened again; may be empty.
  std::function<void()> Reopened;
  // Bytes have come; may be empty.
  std::function<void()> DataArrived;

 private:
  void Run(const ModemScript& script, const ScriptProgress& progress = {});
  void Tell(const ScriptProgress& progress = {});

  const IdentityState& identity_;
  RadioState& radio_;
  const TransmissionState& transmission_;
  SerialModemTools tools_;
  bool busy_ = false;    // a conversation is under way
  bool untold_ = false;  // confirmed settings that the modem has not heard
};

}  // namespace zepril
