// The serial modem during the run (`RadioMode` 1, 5, 6): opened at start, found again when its
// adapter was unplugged, left in good order at the end.
//
// A port that can't be opened is passed over quietly; what is written to it goes nowhere. From then
// on it is tried again every ten seconds by a timer of its own, without boxes. A modem that is
// found again is brought out of converse and set up whole, as by START, before it may transmit:
// it may have lost its power, and its call with it. The same holds for one that START has not
// reached. A line that takes nothing of a frame for ten seconds counts as lost.
//
// The power of a modem behind an adapter that stays is not seen to go. So it is asked for its call
// before a frame, and when it has said nothing for five minutes. One that names another call is set
// up whole; one that answered before and does not any more counts as lost until it answers. Of a
// modem that never answered nothing is known, and it is sent to.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "core/progress.h"
#include "core/texts/text.h"
#include "core/timer.h"
#include "links/modem_call.h"
#include "links/radio_link.h"
#include "links/setup_sequences.h"
#include "platform/clock.h"
#include "platform/event.h"
#include "platform/serial_port.h"

namespace zepril {

struct SerialModemTools {
  SerialPort& Port;
  Clock& LocalClock;
  Progress& LongWork;
};

// Who remembers, beyond the end of a run, that the modem is in converse. Each may be empty.
struct ConverseMemory {
  std::function<void()> Begins;                     // before the first byte that leads there
  std::function<void()> Ended;                      // behind the last byte that leads back
  std::function<std::optional<int>()> SpeedLeftAt;  // line speed of a modem that was not led back
};

class SerialModem {
 public:
  static constexpr double kLongestUnsentSeconds = 10.0;
  static constexpr double kLongestSilenceSeconds = 300.0;
  // So long what it has answered holds.
  static constexpr double kAnswerHoldsSeconds = 5.0;

  // Notes the time of the last data in `radio`.
  SerialModem(const IdentityState& identity, RadioState& radio,
              const TransmissionState& transmission, SerialModemTools tools);
  ~SerialModem();
  SerialModem(const SerialModem&) = delete;
  SerialModem& operator=(const SerialModem&) = delete;

  // START has not reached the modem: it is set up when it is found. To be told before Open.
  void WasNotSetUp() { set_up_ = false; }
  void Open();
  // The modem back in its command mode; the port stays open.
  void Leave();
  // TX SETUP was confirmed: the settings as they are now. A lost modem is told when it is found.
  void Program(Progress& progress);
  // A frame was written to the port.
  void FrameWritten();
  // What the line has not taken yet never leaves, nor does the rest of a frame that is half out. In
  // the middle of a conversation nothing: its bytes are no frames.
  void DropUnsent();
  bool LinkIsUp() const { return tools_.Port.IsOpen(); }
  bool IsBusy() const { return busy_; }
  // A frame may be written just now: no conversation is under way, and the modem has not lost its
  // power since it was set up, as far as its line and itself tell. It is asked, which may take some
  // seconds of plain waits, and is given up when it has.
  bool MaySend();
  // Why there is no link, as a sentence for the operator; empty when all is well.
  std::string Trouble() const;

  // When the line is looked at, and a lost port opened again. To be driven by whoever owns the
  // loop, also while control is handed over.
  Timer ReopenTimer{kReopenMilliseconds};
  // It has fired.
  void ReopenElapsed();
  // Whether a lost port may be opened just now; may be empty. Asked each time.
  std::function<bool()> MayReopen;
  // A lost port was opened again; may be empty.
  Event<> Reopened;
  // The line was given up: it takes nothing, or its modem has lost its power. May be empty.
  Event<> GivenUp;
  // Bytes have come; may be empty.
  Event<> DataArrived;
  // What the modem printed besides while it was asked; may be empty.
  Event<const std::string&> HeardMeanwhile;
  ConverseMemory Memory;

 private:
  // A frame on its way: when it was written, and the count of all bytes up to its end.
  struct UnsentFrame {
    double Seconds = 0.0;
    std::uint64_t End = 0;
  };

  ModemSections Sections() const { return {identity_, radio_, transmission_}; }
  bool Run(const ModemScript& script, const ScriptProgress& progress = {});
  void TakePort();
  void EnterConverse();
  bool FindAgain();
  bool LeaveConverse();
  bool SetUpWhole();
  void WatchUnsent();
  bool HasItsPower();
  CallHeld Ask();
  bool HasItsCall();
  void LookAtSilence();
  bool IsAsItWasLeft();
  void GiveUp(Text trouble);

  const IdentityState& identity_;
  RadioState& radio_;
  const TransmissionState& transmission_;
  SerialModemTools tools_;
  bool opened_ = false;                // the port's events are taken
  bool busy_ = false;                  // a conversation is under way
  bool set_up_ = true;                 // the modem has heard the call under which it sends
  bool untold_ = false;                // settings confirmed in the middle of a conversation
  std::string trouble_;                // why the line was given up
  std::optional<bool> power_;          // what the line told of it at the opening
  bool answers_ = false;               // it has told its call
  bool silent_ = false;                // it did, and does not any more
  bool changed_ = false;               // settings were confirmed while it was lost
  double asked_at_ = 0.0;              // monotonic seconds
  std::optional<double> own_call_at_;  // when it last named the own call
  std::deque<UnsentFrame> unsent_;
};

}  // namespace zepril
