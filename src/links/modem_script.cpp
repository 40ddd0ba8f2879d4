#include "links/modem_script.h"

#include <utility>

namespace zepril {
namespace {

constexpr double kPollSeconds = 0.01;
constexpr double kPromptSeconds = 1.0;

void AwaitSent(SerialPort& port, Clock& clock) {
  const double end = clock.MonotonicSeconds() + kLongestDrainSeconds;
  while (port.IsOpen() && port.BytesToWrite() > 0 && clock.MonotonicSeconds() < end) {
    clock.Wait(kPollSeconds);
  }
}

void Drain(SerialPort& port, Clock& clock) {
  AwaitSent(port, clock);
  for (int reads = 0; reads < kMostReads && !port.ReadAll().empty();)
    ++reads;
}

void AwaitPrompt(SerialPort& port, Clock& clock) {
  for (int prompts = 0; prompts < kMostPrompts && !clock.EndAsked(); ++prompts) {
    clock.Wait(kPromptSeconds);
    if (port.ReadAll().find("cmd:") == std::string::npos) return;
  }
}

void Carry(const ModemStep& step, SerialPort& port, Clock& clock) {
  switch (step.Act) {
    case ModemAct::Open:
      if (!port.IsOpen()) port.Open(step.Text, step.Baud);
      return;
    case ModemAct::Close:
      if (port.IsOpen()) port.Close();
      return;
    case ModemAct::Send:
      if (port.IsOpen()) port.Write(step.Text);
      return;
    case ModemAct::Wait:
      return clock.Wait(step.Seconds);
    case ModemAct::WaitPumping:
      return clock.WaitPumping(step.Seconds);
    case ModemAct::ReadAway:
      port.ReadAll();
      return;
    case ModemAct::AwaitSent:
      return AwaitSent(port, clock);
    case ModemAct::Drain:
      return Drain(port, clock);
    case ModemAct::AwaitPrompt:
      return AwaitPrompt(port, clock);
  }
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

double ModemScript::Seconds() const {
  double seconds = 0.0;
  for (const ModemStep& step : steps_)
    seconds += SecondsOfStep(step);
  return seconds;
}

void RunModemScript(const ModemScript& script, SerialPort& port, Clock& clock,
                    const ScriptProgress& progress) {
  const double whole = script.Seconds();
  double gone = 0.0;
  for (const ModemStep& step : script.Steps()) {
    // The program is to end: what follows is how the modem is left, not how it is set up.
    if (clock.EndAsked()) break;
    if (progress && whole > 0.0) progress(gone / whole);
    Carry(step, port, clock);
    gone += SecondsOfStep(step);
  }
  if (progress) progress(1.0);
}

}  // namespace zepril
