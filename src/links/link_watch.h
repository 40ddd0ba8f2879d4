// What the operator is told of the radio link: the lamp with its word, and a notice when it is
// lost.
#pragma once

#include <functional>
#include <string>

#include "core/controls/status_controls.h"
#include "core/link_lamp.h"
#include "core/state/radio.h"
#include "links/radio_links.h"
#include "platform/clock.h"

namespace zepril {

struct LinkWatchTools {
  RadioLinks& Links;
  const Clock& LocalClock;
  std::function<bool()> CycleIsHeld;  // a panel holds the main cycle
};

class LinkWatch {
 public:
  // Takes the event of the links.
  LinkWatch(const RadioState& radio, StatusControls& status, LinkWatchTools tools);
  LinkWatch(const LinkWatch&) = delete;
  LinkWatch& operator=(const LinkWatch&) = delete;

  LinkLamp Lamp() const;
  // Once a second: since when the link is lost.
  void Renew();
  // Shows the notice of a link that is down. Once at each loss, and no box: the lamp goes on
  // telling. It goes with the loss.
  void ShowNotice();
  // The link was not there at the start: told like one that is lost.
  void Started();

 private:
  bool IsUp() const;
  void LinkChanged();

  const RadioState& radio_;
  StatusControls& status_;
  LinkWatchTools tools_;
  double lost_since_ = -1.0;  // monotonic seconds, below 0 while the link stands
};

}  // namespace zepril
