// What became of a frame, told under the TX switch for some seconds: "SENT 00:16", or why not. The
// switch is red while a frame leaves.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/controls/transmit_controls.h"
#include "links/frame_sender.h"
#include "platform/clock.h"

namespace zepril {

// "SENT" with the time of day, or "NOT SENT" and the reason.
std::string OutcomeWords(Delivery delivery, const LocalTime& now);

class TxOutcome {
 public:
  static constexpr double kShownSeconds = 8.0;

  TxOutcome(TransmitControls& controls, const Clock& clock);
  TxOutcome(const TxOutcome&) = delete;
  TxOutcome& operator=(const TxOutcome&) = delete;

  void Leaving();
  void Tell(Delivery delivery);
  // Once a second: old words go.
  void Renew();

 private:
  TransmitControls& controls_;
  const Clock& clock_;
  double told_at_ = 0.0;  // monotonic seconds
  std::optional<std::uint32_t> colour_before_;
};

}  // namespace zepril
