// How a finished text becomes a frame on the air, through the radio interface that is active.
//
// Whether the frame was handed over is told. After each frame the program stands still for 0.8 s.
#pragma once

#include <functional>
#include <string_view>

#include "links/radio_links.h"
#include "platform/clock.h"
#include "platform/event.h"

namespace zepril {

// What became of a frame. One that is not sent is not kept for later.
enum class Delivery {
  Sent,
  LinkLost,
  ModemBusy,     // a set-up or the operator talks to it
  NoRadio,       // `RadioMode` without one
  NoCall,        // nobody to send as
  NoPosition,    // nowhere to send from
  StillLeaving,  // one by hand while another is on its way
};

class FrameSender {
 public:
  static constexpr double kPauseSeconds = 0.8;

  FrameSender(RadioLinks& links, Clock& clock) : links_(links), clock_(clock) {}

  Delivery SendFrame(std::string_view text, SecondMode second_mode = SecondMode::SwitchOff);
  // A frame is on its way: being handed over, in the pause behind it, or waiting in the link.
  bool IsBusy() const;
  // Tells what became of a frame that was not even begun.
  void Refuse(Delivery reason) const {
    if (Left) Left(reason);
  }
  // True while the operator talks to the modem himself: nothing is sent. May be empty.
  std::function<bool()> HeldBack;
  // A frame begins to leave; may be empty.
  Event<> Leaving;
  // What became of it; may be empty.
  Event<Delivery> Left;

 private:
  Delivery HandOver(std::string_view text, SecondMode second_mode);

  RadioLinks& links_;
  Clock& clock_;
  bool sending_ = false;
};

}  // namespace zepril
