// A conversation with a modem on a serial line as data: what is sent, how long is waited, what is
// read away. Firmware outside reacts to exactly these bytes in this order and at this pace, so a
// script can be checked to the byte and the tenth of a second without a line.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"
#include "platform/serial_port.h"

namespace zepril {

enum class ModemAct {
  Open,  // Text: device, Baud; on an open port nothing
  Close,
  Send,         // Text
  Wait,         // Seconds; no event of the program runs
  WaitPumping,  // Seconds, with control handed to the window system
  ReadAway,     // what was received is thrown away, once
  AwaitSent,    // until nothing waits to be sent
  Drain,        // AwaitSent, then reads until nothing more has come
  AwaitPrompt,  // waits 1 s and reads, again and again while what was read holds "cmd:"
};

struct ModemStep {
  ModemAct Act = ModemAct::Wait;
  std::string Text;
  int Baud = 0;
  double Seconds = 0.0;
  friend bool operator==(const ModemStep&, const ModemStep&) = default;
};

class ModemScript {
 public:
  ModemScript& Open(const std::string& device, int baud);
  ModemScript& Close() { return Add({ModemAct::Close, {}, 0, 0.0}); }
  ModemScript& Send(std::string_view bytes, double wait_seconds = 0.0);
  // The same with events served while waiting.
  ModemScript& SendPumping(std::string_view bytes, double wait_seconds);
  ModemScript& Wait(double seconds) { return Add({ModemAct::Wait, {}, 0, seconds}); }
  ModemScript& WaitPumping(double seconds) { return Add({ModemAct::WaitPumping, {}, 0, seconds}); }
  ModemScript& ReadAway() { return Add({ModemAct::ReadAway, {}, 0, 0.0}); }
  ModemScript& AwaitSent() { return Add({ModemAct::AwaitSent, {}, 0, 0.0}); }
  ModemScript& Drain() { return Add({ModemAct::Drain, {}, 0, 0.0}); }
  ModemScript& AwaitPrompt() { return Add({ModemAct::AwaitPrompt, {}, 0, 0.0}); }

  // All steps of `other` behind those of this one.
  ModemScript& Append(const ModemScript& other);

  const std::vector<ModemStep>& Steps() const { return steps_; }
  // What the waits add up to when the modem is silent: a prompt loop counts 1 s.
  double Seconds() const;

 private:
  ModemScript& Add(ModemStep step);

  std::vector<ModemStep> steps_;
};

// Told the share of the waits that is over, 0 to 1.
using ScriptProgress = std::function<void(double share)>;

// Whether a line that is lost, can't be opened or takes nothing ends a script before its end.
enum class ScriptTerms { ToTheEnd, OnlyWhileHeard };

// Carries the script out. Nothing fails: on a port that can't be opened only the waits remain. A
// modem that takes nothing, answers without end or prompts for ever is left alone after
// kLongestDrainSeconds, kMostReads and kMostPrompts: the described loops have no limit, a program
// that must not hang has. True when the modem has got all of it: every step was carried out on an
// open port, and the line took what it was given.
bool RunModemScript(const ModemScript& script, SerialPort& port, Clock& clock,
                    const ScriptProgress& progress = {}, ScriptTerms terms = ScriptTerms::ToTheEnd);

inline constexpr double kLongestDrainSeconds = 10.0;
inline constexpr int kMostReads = 1000;
inline constexpr int kMostPrompts = 30;

}  // namespace zepril
