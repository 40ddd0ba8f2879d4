// What the operator is told of the gate, beside its switch.
#pragma once

#include <string>

#include "core/controls/gate_controls.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "gate/aprs_is_link.h"
#include "gate/radio_gate.h"
#include "platform/clock.h"

namespace zepril {

enum class GateStage {
  NoPasscode,  // a listener, or a station without a call
  NotHere,     // not with this radio interface
  Off,
  NoServer,
  Connecting,
  LoggingIn,
  Refused,
  LoggedIn,
};

// Where the gate stands. `connected`: the connection to the server; `refused`: its answer to the
// login.
GateStage GateStageOf(const InternetState& internet, const RadioState& radio, bool connected,
                      bool refused);

// "connected since 12:34, 7 lines gated since 12:35"
std::string GateStageWords(GateStage stage, const std::string& server, const LocalTime& since,
                           const GateTally& tally);
// "last not gated 12:36: like one of the last half minute"; empty when all went.
std::string LastNotGatedWords(const GateTally& tally);

class GateNotice {
 public:
  GateNotice(const InternetState& internet, const RadioState& radio, const AprsIsLink& link,
             const RadioGate& gate, GateControls& controls, const Clock& clock)
      : internet_(internet),
        radio_(radio),
        link_(link),
        gate_(gate),
        controls_(controls),
        clock_(clock) {}

  // After each tick and once a second.
  void Renew();

 private:
  const InternetState& internet_;
  const RadioState& radio_;
  const AprsIsLink& link_;
  const RadioGate& gate_;
  GateControls& controls_;
  const Clock& clock_;
  GateStage stage_ = GateStage::Off;
  LocalTime since_;
};

}  // namespace zepril
