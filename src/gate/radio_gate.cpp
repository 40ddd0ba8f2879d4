// Makes the lines of a block, sends those that are no repeats, and counts.
#include "gate/radio_gate.h"

#include "gate/recent_lines.h"

namespace zepril {

void RadioGate::GateMonitorBlock(std::string_view text, std::string_view dialect) {
  const GateForm form = GateFormOf(dialect);
  if (!form || internet_.IGateOn != Gate::On) return;
  const GateLines gated = GateLinesOf(form, text, identity_.MyCallFull);
  for (const std::string& line : gated.Lines)
    GateSend(line);
  if (gated.Why != NotGated::Nothing) Note(gated.Why);
}

void RadioGate::GateSend(const std::string& gate_line) {
  const std::int64_t now = SecondsOf(clock_.Now());
  if (IsRepeat(internet_.RecentlyGated, gate_line, now)) return Note(NotGated::Repeat);
  const bool taken = link_.Write(gate_line);
  // Kept: remembered like one that left, also when the connection has just been lost.
  Remember(internet_.RecentlyGated, gate_line, now);
  if (!taken) return Note(NotGated::NotTaken);
  if (tally_.Lines == 0) tally_.FirstAt = clock_.Now();
  ++tally_.Lines;
}

void RadioGate::Note(NotGated why) {
  ++tally_.NotGated;
  tally_.LastNotAt = clock_.Now();
  tally_.LastWhy = why;
}

}  // namespace zepril
