// How a finished text becomes a frame on the air, by the radio interface.
//
// Nothing is checked and nothing reported: keying, retries and errors are the engine's or modem's
// business. After each frame the program stands still for 0.8 s. A serial modem gets a blank for
// each control character of the text, which it would take for a command.
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

class FrameSender {
 public:
  static constexpr double kPauseSeconds = 0.8;

  FrameSender(const RadioState& radio, TransmissionState& transmission, FrameSenderTools tools)
      : radio_(radio), transmission_(transmission), tools_(tools) {}

  void SendFrame(std::string_view text, SecondMode second_mode = SecondMode::SwitchOff);
  // True while the operator talks to the modem himself, or a set-up does: nothing is sent. May be
  // empty.
  std::function<bool()> HeldBack;

 private:
  void ToLocalEngine(std::string_view text);
  void ToRemoteEngine(std::string_view text);
  void ToModem(std::string_view text);

  const RadioState& radio_;
  TransmissionState& transmission_;
  FrameSenderTools tools_;
};

}  // namespace zepril
