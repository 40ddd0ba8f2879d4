// Words each outcome, and takes it away after its time.
#include "transmit/tx_outcome.h"

#include "core/clock_text.h"
#include "core/state_colours.h"
#include "core/texts/status_texts.h"

namespace zepril {
namespace {

Text Reason(Delivery delivery) {
  switch (delivery) {
    case Delivery::Sent:
      return {};
    case Delivery::LinkLost:
      return status_texts::kReasonLinkLost;
    case Delivery::ModemBusy:
      return status_texts::kReasonModemBusy;
    case Delivery::NoRadio:
      return status_texts::kReasonNoRadio;
    case Delivery::NoCall:
      return status_texts::kReasonNoCall;
    case Delivery::NoPosition:
      return status_texts::kReasonNoPosition;
    case Delivery::StillLeaving:
      return status_texts::kReasonStillLeaving;
  }
  return {};
}

}  // namespace

std::string OutcomeWords(Delivery delivery, const LocalTime& now) {
  if (delivery != Delivery::Sent) return status_texts::kNotSent.With({Reason(delivery)});
  return status_texts::kSent.With({ClockText(now)});
}

TxOutcome::TxOutcome(TransmitControls& controls, const Clock& clock)
    : controls_(controls), clock_(clock) {}

void TxOutcome::Leaving() {
  colour_before_ = controls_.Check6.BackColour;
  controls_.Check6.BackColour = state_colours::kOnTheAir;
  controls_.TxOutcome.Caption = status_texts::kSending;
  controls_.TxOutcome.ForeColour.reset();
  told_at_ = clock_.MonotonicSeconds();
}

void TxOutcome::Tell(Delivery delivery) {
  if (controls_.Check6.BackColour == state_colours::kOnTheAir)
    controls_.Check6.BackColour = colour_before_;
  controls_.TxOutcome.Caption = OutcomeWords(delivery, clock_.Now());
  controls_.TxOutcome.ForeColour.reset();
  if (delivery != Delivery::Sent) controls_.TxOutcome.ForeColour = state_colours::kOnTheAir;
  told_at_ = clock_.MonotonicSeconds();
}

void TxOutcome::Renew() {
  if (clock_.MonotonicSeconds() - told_at_ >= kShownSeconds) controls_.TxOutcome.Caption.clear();
}

}  // namespace zepril
