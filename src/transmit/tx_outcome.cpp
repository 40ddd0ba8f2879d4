// Words each outcome, and takes it away after its time.
#include "transmit/tx_outcome.h"

#include "core/text_fields.h"

namespace zepril {
namespace {

const char* Reason(Delivery delivery) {
  switch (delivery) {
    case Delivery::Sent:
      return "";
    case Delivery::LinkLost:
      return "LINK LOST";
    case Delivery::ModemBusy:
      return "MODEM BUSY";
    case Delivery::NoRadio:
      return "NO RADIO";
    case Delivery::NoCall:
      return "NO CALL";
    case Delivery::NoPosition:
      return "NO POSITION";
    case Delivery::StillLeaving:
      return "ONE STILL LEAVING";
  }
  return "";
}

}  // namespace

std::string OutcomeWords(Delivery delivery, const LocalTime& now) {
  if (delivery != Delivery::Sent) return std::string("NOT SENT: ") + Reason(delivery);
  return "SENT " + ZeroPadded(now.Hour, 2) + ":" + ZeroPadded(now.Minute, 2);
}

TxOutcome::TxOutcome(TransmitControls& controls, const Clock& clock)
    : controls_(controls), clock_(clock) {}

void TxOutcome::Leaving() {
  colour_before_ = controls_.Check6.BackColour;
  controls_.Check6.BackColour = kOnTheAir;
  controls_.TxOutcome.Caption = "SENDING";
  controls_.TxOutcome.ForeColour.reset();
  told_at_ = clock_.MonotonicSeconds();
}

void TxOutcome::Tell(Delivery delivery) {
  if (controls_.Check6.BackColour == kOnTheAir) controls_.Check6.BackColour = colour_before_;
  controls_.TxOutcome.Caption = OutcomeWords(delivery, clock_.Now());
  controls_.TxOutcome.ForeColour.reset();
  if (delivery != Delivery::Sent) controls_.TxOutcome.ForeColour = kOnTheAir;
  told_at_ = clock_.MonotonicSeconds();
}

void TxOutcome::Renew() {
  if (clock_.MonotonicSeconds() - told_at_ >= kShownSeconds) controls_.TxOutcome.Caption.clear();
}

}  // namespace zepril
