// How a finished text becomes a frame on the air, by the radio interface.
//
// Keying, retries and errors are the engine's or modem's business; whether the frame was handed
// over is told. After each frame the program stands still for 0.8 s. A serial modem gets a blank
// for each control character of the text, which it would take for a command.
#pragma once

#include <functional>
#include <string_view>

#include "core/state/radio.h"
#include "core/state/transmission.h"
#include "links/agw_link.h"
#include "platform/clock.h"
#include "platform/monitor_engine.h"
#include "platform/serial_port.h"

namespace zepril {

struct FrameSenderTools {
  MonitorEngine& LocalEngine;
  AgwLink& RemoteEngine;
  SerialPort& Modem;
  Clock& LocalClock;
};

// What a frame does to the second mode of an SCS TNC: a frame of the own station switches it off
// first, the next tick switches it on again.
enum class SecondMode { SwitchOff, LeaveAsItIs };

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

  FrameSender(const RadioState& radio, TransmissionState& transmission, FrameSenderTools tools)
      : radio_(radio), transmission_(transmission), tools_(tools) {}

  Delivery SendFrame(std::string_view text, SecondMode second_mode = SecondMode::SwitchOff);
  // A frame is on its way: being handed over, in the pause behind it, or waiting in the link.
  bool IsBusy() const { return sending_ || (Waiting && Waiting()); }
  // Tells what became of a frame that was not even begun.
  void Refuse(Delivery reason) const {
    if (Left) Left(reason);
  }
  // True while the operator talks to the modem himself, or a set-up does: nothing is sent. May be
  // empty.
  std::function<bool()> HeldBack;
  // True while a frame of before waits in the link. May be empty.
  std::function<bool()> Waiting;
  // A frame begins to leave; may be empty.
  std::function<void()> Leaving;
  // What became of it; may be empty.
  std::function<void(Delivery)> Left;

  // A frame was written to the modem's line; may be empty.
  std::function<void()> ModemFrameWritten;

 private:
  Delivery HandOver(std::string_view text, SecondMode second_mode);
  bool ToLocalEngine(std::string_view text);
  bool ToRemoteEngine(std::string_view text);
  bool ToModem(std::string_view text);

  const RadioState& radio_;
  TransmissionState& transmission_;
  FrameSenderTools tools_;
  bool sending_ = false;
};

}  // namespace zepril
