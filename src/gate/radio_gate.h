// The gate from radio to internet: heard text in, lines to the server out.
#pragma once

#include <cstdint>
#include <string>

#include "core/actions/gate_actions.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "gate/aprs_is_link.h"
#include "gate/gate_lines.h"
#include "platform/clock.h"

namespace zepril {

// What became of heard text in this run.
struct GateTally {
  std::int64_t Lines = 0;     // handed to the server
  LocalTime FirstAt;          // when the first of them was
  std::int64_t NotGated = 0;  // blocks that were ended before their end, and lines that stayed
  LocalTime LastNotAt;
  enum NotGated LastWhy = NotGated::Nothing;
};

class RadioGate final : public GateActions {
 public:
  RadioGate(InternetState& internet, const IdentityState& identity, AprsIsLink& link,
            const Clock& clock)
      : internet_(internet), identity_(identity), link_(link), clock_(clock) {}

  // Called while the link is logged in. Nothing leaves once the gate was switched off.
  void GateMonitorBlock(std::string_view text, std::string_view dialect) override;
  const GateTally& Tally() const { return tally_; }

 private:
  void GateSend(const std::string& gate_line);
  void Note(NotGated why);

  InternetState& internet_;
  const IdentityState& identity_;
  AprsIsLink& link_;
  const Clock& clock_;
  GateTally tally_;
};

}  // namespace zepril
