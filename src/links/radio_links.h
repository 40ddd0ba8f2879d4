// The radio interfaces of a running program, chosen by `RadioMode`: the one place, with the
// settings, that knows the numbers.
#pragma once

#include "core/state/identity.h"
#include "core/state/radio.h"
#include "core/state/reception.h"
#include "core/state/transmission.h"
#include "links/agw_link.h"
#include "links/local_engine.h"
#include "links/radio_link.h"
#include "links/remote_engine.h"
#include "links/serial_link.h"
#include "links/serial_modem.h"
#include "platform/clock.h"
#include "platform/event.h"
#include "platform/monitor_engine.h"
#include "platform/serial_port.h"

namespace zepril {

struct RadioLinksSections {
  const IdentityState& Identity;
  const RadioState& Radio;
  ReceptionState& Received;
  TransmissionState& Transmission;
};

struct RadioLinksTools {
  MonitorEngine& EngineHere;
  AgwLink& EngineElsewhere;
  SerialModem& Modem;
  SerialPort& Port;
  Clock& LocalClock;
};

class RadioLinks {
 public:
  RadioLinks(RadioLinksSections sections, RadioLinksTools tools);
  RadioLinks(const RadioLinks&) = delete;
  RadioLinks& operator=(const RadioLinks&) = delete;

  // None without a radio.
  RadioLink* Active();
  // The active link was lost, or is back; may be empty.
  Event<> Changed;

 private:
  const RadioState& radio_;
  LocalEngine local_;
  RemoteEngine remote_;
  SerialLink serial_;
};

}  // namespace zepril
