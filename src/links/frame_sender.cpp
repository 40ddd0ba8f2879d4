// Hands a text over, unless the link is held back, and tells what became of it.
#include "links/frame_sender.h"

namespace zepril {

Delivery FrameSender::SendFrame(std::string_view text, SecondMode second_mode) {
  RadioLink* link = links_.Active();
  Delivery delivery = Delivery::ModemBusy;
  if (!(HeldBack && HeldBack()) && (!link || link->MaySend())) {
    sending_ = true;
    if (Leaving) Leaving();
    delivery = HandOver(text, second_mode);
    // Without a radio nothing goes out, and nothing is waited for.
    if (delivery != Delivery::NoRadio) clock_.Wait(kPauseSeconds);
    sending_ = false;
  } else if (link && !link->IsUp()) {
    delivery = Delivery::LinkLost;
  }
  if (Left) Left(delivery);
  return delivery;
}

Delivery FrameSender::HandOver(std::string_view text, SecondMode second_mode) {
  RadioLink* link = links_.Active();
  if (!link) return Delivery::NoRadio;
  return link->Send(text, second_mode) ? Delivery::Sent : Delivery::LinkLost;
}

bool FrameSender::IsBusy() const {
  const RadioLink* link = links_.Active();
  return sending_ || (link && link->HasUnsent());
}

}  // namespace zepril
