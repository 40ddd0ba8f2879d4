// Collects what the active radio interface has heard, whatever its dialect, as normal frames.
#pragma once

#include <string>
#include <string_view>

#include "core/actions/gate_actions.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "links/heard_texts.h"

namespace zepril {

class Collector {
 public:
  Collector(const RadioState& radio, const InternetState& internet, HeardTexts& heard,
            GateActions* gate)
      : radio_(radio), internet_(internet), heard_(heard), gate_(gate) {}

  // A receive pass begins; it collects once or several times.
  void PassBegins();
  // Appends the normal form of everything complete to `collected` (empty before); text that is not
  // complete stays with the link. A copy of the raw text goes to the gateway while it is logged in,
  // where a gate is possible. Waits 0.01 s or a few times that with an SCS modem.
  void Collect(std::string& collected);
  // Characters that the next collecting could take at once.
  std::size_t Waiting() const;

 private:
  void HandToGate(std::string_view text, std::string_view dialect);

  const RadioState& radio_;
  const InternetState& internet_;
  HeardTexts& heard_;
  GateActions* gate_;  // may be missing
};

}  // namespace zepril
