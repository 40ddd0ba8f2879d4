// Brings piece after piece of raw text to the normal form.
#include "reception/collector.h"

#include "core/radio_rules.h"
#include "reception/dialects.h"

namespace zepril {

void Collector::PassBegins() {
  if (HeardText* heard = heard_.Active()) heard->PassBegins();
}

void Collector::Collect(std::string& collected) {
  // A link that delivers without end must not keep the pass for ever.
  constexpr int kMostPieces = 10000;
  HeardText* heard = heard_.Active();
  const Dialect* dialect = heard ? DialectNamed(heard->Dialect()) : nullptr;
  if (!dialect) return;
  for (int pieces = 0; pieces < kMostPieces && collected.size() <= kLongestReceiveBuffer;
       ++pieces) {
    const std::string_view raw = heard->Next();
    if (raw.empty()) return;
    const Brought brought = dialect->Bring(raw, collected);
    HandToGate(brought.ForGate, dialect->Name);
    heard->Taken(brought.Taken);
    if (!brought.More) return;
  }
}

std::size_t Collector::Waiting() const {
  const HeardText* heard = heard_.Active();
  return heard ? heard->Waiting() : 0;
}

void Collector::HandToGate(std::string_view text, std::string_view dialect) {
  constexpr std::size_t kShortestForGate = 11;
  const bool logged_in = internet_.IGateConnected == GateLink::Up && GateIsPossible(radio_);
  if (gate_ && logged_in && text.size() >= kShortestForGate) gate_->GateMonitorBlock(text, dialect);
}

}  // namespace zepril
