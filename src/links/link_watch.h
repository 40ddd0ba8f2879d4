// What the operator is told of the radio link: the lamp with its word, and a notice when a packet
// engine is lost.
#pragma once

#include <functional>
#include <string>

#include "core/controls/status_controls.h"
#include "core/link_lamp.h"
#include "core/state/radio.h"
#include "links/agw_link.h"
#include "links/agw_local.h"
#include "platform/clock.h"
#include "links/serial_modem.h"

namespace zepril {

struct LinkWatchTools {
  AgwLink& RemoteEngine;
  AgwLocal& LocalEngine;
  const SerialModem& Modem;
  const Clock& LocalClock;
  std::function<bool()> CycleIsHeld;  // a panel holds the main cycle
};

class LinkWatch {
 public:
  // Takes the engines' events.
  LinkWatch(const RadioState& radio, StatusControls& status, LinkWatchTools tools);
  LinkWatch(const LinkWatch&) = delete;
  LinkWatch& operator=(const LinkWatch&) = delete;

  LinkLamp Lamp() const;
  // Once a second: since when the link is lost.
  void Renew();
  // The notice of the modem's trouble; it goes with the trouble. Once, and no box: the lamp goes on
  // telling.
  void ShowModemTrouble();
  // The engine was not there at the start: told like one that is lost.
  void Started();

 private:
  bool HasLink() const;
  bool IsUp() const;
  void EngineChanged(bool up);

  const RadioState& radio_;
  StatusControls& status_;
  LinkWatchTools tools_;
  double lost_since_ = -1.0;  // monotonic seconds, below 0 while the link stands
};

}  // namespace zepril
