// Carries the steps of a conversation out: send, drain, await a prompt, wait.
#include "links/modem_script.h"

#include <utility>

namespace zepril {
namespace {

constexpr double kPollSeconds = 0.01;
constexpr double kPromptSeconds = 1.0;

bool AwaitSent(SerialPort& port, Clock& clock) {
  const double end = clock.MonotonicSeconds() + kLongestDrainSeconds;
  while (port.IsOpen() && port.BytesToWrite() > 0 && clock.MonotonicSeconds() < end) {
    clock.Wait(kPollSeconds);
  }
  return port.IsOpen() && port.BytesToWrite() == 0;
}

bool Drain(SerialPort& port, Clock& clock) {
  const bool sent = AwaitSent(port, clock);
  for (int reads = 0; reads < kMostReads && !port.ReadAll().empty();)
    ++reads;
  return sent;
}

void AwaitPrompt(SerialPort& port, Clock& clock) {
  for (int prompts = 0; prompts < kMostPrompts && !clock.EndAsked(); ++prompts) {
    clock.Wait(kPromptSeconds);
    if (port.ReadAll().find("cmd:") == std::string::npos) return;
  }
}

bool Say(const std::string& text, SerialPort& port) {
  if (!port.IsOpen()) return false;
  port.Write(text);
  return true;
}

// False when the modem has not got what the step is for.
bool Carry(const ModemStep& step, SerialPort& port, Clock& clock) {
  switch (step.Act) {
    case ModemAct::Open:
      return port.IsOpen() || port.Open(step.Text, step.Baud);
    case ModemAct::Close:
      if (port.IsOpen()) port.Close();
      return true;
    case ModemAct::Send:
      return Say(step.Text, port);
    case ModemAct::Wait:
      clock.Wait(step.Seconds);
      return true;
    case ModemAct::WaitPumping:
      clock.WaitPumping(step.Seconds);
      return true;
    case ModemAct::ReadAway:
      port.ReadAll();
      return true;
    case ModemAct::AwaitSent:
      return AwaitSent(port, clock);
    case ModemAct::Drain:
      return Drain(port, clock);
    case ModemAct::AwaitPrompt:
      AwaitPrompt(port, clock);
      return true;
  }
  return true;
}

double SecondsOfStep(const ModemStep& step) {
  return step.Act == ModemAct::AwaitPrompt ? kPromptSeconds : step.Seconds;
}

}  // namespace

ModemScript& ModemScript::Add(ModemStep step) {
  steps_.push_back(std::move(step));
  return *this;
}

ModemScript& ModemScript::Open(const std::string& device, int baud) {
  return Add({ModemAct::Open, device, baud, 0.0});
}

ModemScript& ModemScript::Send(std::string_view bytes, double wait_seconds) {
  Add({ModemAct::Send, std::string(bytes), 0, 0.0});
  return wait_seconds > 0.0 ? Wait(wait_seconds) : *this;
}

ModemScript& ModemScript::SendPumping(std::string_view bytes, double wait_seconds) {
  Add({ModemAct::Send, std::string(bytes), 0, 0.0});
  return WaitPumping(wait_seconds);
}

ModemScript& ModemScript::Append(const ModemScript& other) {
  steps_.insert(steps_.end(), other.steps_.begin(), other.steps_.end());
  return *this;
}

double ModemScript::Seconds() const {
  double seconds = 0.0;
  for (const ModemStep& step : steps_)
    seconds += SecondsOfStep(step);
  return seconds;
}

bool RunModemScript(const ModemScript& script, SerialPort& port, Clock& clock,
                    const ScriptProgress& progress, ScriptTerms terms) {
  const double whole = script.Seconds();
  double gone = 0.0;
  bool heard = true;
  for (const ModemStep& step : script.Steps()) {
    // The program is to end: what follows is how the modem is left, not how it is set up.
    if (clock.EndAsked()) return false;
    if (progress && whole > 0.0) progress(gone / whole);
    if (!Carry(step, port, clock)) heard = false;
    if (!heard && terms == ScriptTerms::OnlyWhileHeard) return false;
    gone += SecondsOfStep(step);
  }
  if (progress) progress(1.0);
  return heard;
}

}  // namespace zepril
