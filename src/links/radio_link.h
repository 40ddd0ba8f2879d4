// A radio interface: one class in one file for each, chosen by `RadioMode` in `links/radio_links`.
// What it has heard is `links/heard_text`.
#pragma once

#include <string>
#include <string_view>

#include "core/progress.h"
#include "platform/event.h"

namespace zepril {

// Milliseconds between two attempts to open a lost link.
inline constexpr int kReopenMilliseconds = 10000;

// What a frame does to the second mode of a modem that listens on two: a frame of the own station
// switches it off first, the next tick switches it on again.
enum class SecondMode { SwitchOff, LeaveAsItIs };

class RadioLink {
 public:
  virtual ~RadioLink() = default;

  // The start of the run. False when the program is to end; the operator was told why.
  virtual bool Open() = 0;
  // The end of the run.
  virtual void Leave() = 0;

  virtual bool IsUp() const = 0;
  // What is wrong, as a sentence for the lamp; empty when that tells enough.
  virtual std::string Trouble() const { return {}; }
  // What the operator is told in a notice while the link is down; empty when there is nothing to
  // tell.
  virtual std::string LostNotice() const = 0;
  // The link was lost, or is back; may be empty.
  Event<> Changed;

  // A frame may be handed over just now. May wait some seconds in plain waits.
  virtual bool MaySend() { return true; }
  // Hands a finished text over as a frame. False when it was not: it is not kept for later. Keying,
  // retries and errors are the engine's or modem's business.
  virtual bool Send(std::string_view text, SecondMode second_mode) = 0;
  // Bytes of a frame wait in the link.
  virtual bool HasUnsent() const { return false; }
  // The transmitter was switched off: nothing leaves minutes later, when a stalled line moves
  // again.
  virtual void DropUnsent() = 0;

  // TX SETUP was confirmed.
  virtual void TakeNewSettings(Progress& progress) = 0;
  // The operator can talk to it himself.
  virtual bool HasTerminal() const { return false; }
};

}  // namespace zepril
