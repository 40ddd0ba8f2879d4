// Opens the line, sets the modem up again after a loss, and leads it out of converse.
#include "links/serial_modem.h"

#include <algorithm>
#include <cmath>

#include "core/texts/notices.h"
#include "core/texts/status_texts.h"
#include "links/agw_link.h"
#include "links/telling_clock.h"

namespace zepril {
namespace {

constexpr int kLookAgainMilliseconds = 1000;

}  // namespace

SerialModem::SerialModem(const IdentityState& identity, RadioState& radio,
                         const TransmissionState& transmission, SerialModemTools tools)
    : identity_(identity), radio_(radio), transmission_(transmission), tools_(tools) {
  ReopenTimer.Elapsed = [this] { ReopenElapsed(); };
}

SerialModem::~SerialModem() {
  if (opened_) tools_.Port.DataArrived = nullptr;
}

// ---- Start and end ----------------------------------------------------------------------------

void SerialModem::Open() {
  TakePort();
  asked_at_ = tools_.LocalClock.MonotonicSeconds();
  // One that does not know its call is not brought to where it would transmit.
  if (set_up_) {
    Run(PrepareModemScript(Sections()));
    EnterConverse();
  } else if (tools_.Port.Trouble().empty()) {
    trouble_ = notices::kModemNotReached;
  }
  ReopenTimer.Arm(kReopenMilliseconds);
}

void SerialModem::TakePort() {
  if (opened_) return;
  opened_ = true;
  tools_.Port.DataArrived = [this] {
    radio_.LastDataSeconds = tools_.LocalClock.MonotonicSeconds();
    if (DataArrived) DataArrived();
  };
}

void SerialModem::EnterConverse() {
  if (tools_.Port.IsOpen() && Memory.Begins) Memory.Begins();
  Run(ConverseScript(radio_));
  power_ = tools_.Port.ModemReady();
}

void SerialModem::Leave() {
  ReopenTimer.Stop();
  Run(LeaveModemScript(radio_));
  // One that is away, or that has not taken these bytes, may still be in converse.
  const bool left = tools_.Port.IsOpen() && tools_.Port.BytesToWrite() == 0;
  if (left && Memory.Ended) Memory.Ended();
}

// ---- TX SETUP -----------------------------------------------------------------------------------

void SerialModem::Program(Progress& progress) {
  // A conversation that is under way is not broken into; what it leaves untold follows it.
  untold_ = true;
  changed_ = changed_ || !tools_.Port.IsOpen();
  while (!busy_ && untold_) {
    untold_ = false;
    const bool told = Run(ApplyTxSetupScript(Sections()), [&progress](double share) {
      progress.Report(status_texts::kTxSetupWork, share);
    });
    // It must not go on under its old call and path.
    const bool stalled = !told && tools_.Port.IsOpen() && !tools_.LocalClock.EndAsked();
    if (stalled) GiveUp(notices::kModemTakesNothing);
  }
  progress.Done();
}

// ---- A lost modem -------------------------------------------------------------------------------

void SerialModem::ReopenElapsed() {
  if (busy_) return ReopenTimer.Arm(kLookAgainMilliseconds);
  if (tools_.Port.IsOpen() && HasItsPower()) LookAtSilence();
  if (tools_.Port.IsOpen()) return WatchUnsent();
  unsent_.clear();
  ReopenTimer.Arm(kReopenMilliseconds);
  if (MayReopen && !MayReopen()) return;
  trouble_.clear();
  if (!tools_.Port.Reopen(ModemDevice(radio_), ModemBaud(radio_))) return;
  const bool found = IsAsItWasLeft() || FindAgain();
  tools_.LongWork.Done();
  if (!found) {
    tools_.Port.Close();
    return;
  }
  set_up_ = true;
  silent_ = changed_ = false;
  if (Reopened) Reopened();
}

// One that has only been silent, and has its call, is spared the set-up.
bool SerialModem::IsAsItWasLeft() {
  if (!silent_) return false;
  const CallHeld call = Ask();
  if (call == CallHeld::NotTold) trouble_ = notices::kModemSilent;
  return call == CallHeld::Own && !changed_;
}

// No event comes between: all waits are plain ones.
bool SerialModem::FindAgain() {
  // The waits of the set-up only for a device that is there, and for a modem that is.
  if (!trouble_.empty() || !LeaveConverse() || !SetUpWhole()) return false;
  Run(PrepareModemScript(Sections()));
  EnterConverse();
  return tools_.Port.IsOpen();
}

bool SerialModem::LeaveConverse() {
  const std::string device = ModemDevice(radio_);
  const auto speed = Memory.SpeedLeftAt ? Memory.SpeedLeftAt() : std::nullopt;
  if (speed && *speed != ModemBaud(radio_)) {
    if (!tools_.Port.Reopen(device, *speed)) return false;
    Run(LeaveConverseScript(radio_));
    if (!tools_.Port.Reopen(device, ModemBaud(radio_))) return false;
  }
  Run(LeaveConverseScript(radio_));
  if (!tools_.Port.IsOpen()) return false;
  if (tools_.Port.BytesToWrite() > 0) trouble_ = notices::kModemTakesNothing;
  return trouble_.empty();
}

bool SerialModem::SetUpWhole() {
  const ModemScript script = TncSetupScript(Sections());
  const double whole = std::max(script.Seconds(), 1.0);
  const double begin = tools_.LocalClock.MonotonicSeconds();
  TellingClock clock(tools_.LocalClock, [&] {
    const double gone = tools_.LocalClock.MonotonicSeconds() - begin;
    tools_.LongWork.Report(status_texts::kModemWork, std::min(gone / whole, 1.0));
  });
  busy_ = true;
  const bool heard = RunModemScript(script, tools_.Port, clock, {}, ScriptTerms::OnlyWhileHeard);
  busy_ = false;
  return heard;
}

// ---- A line that takes nothing ------------------------------------------------------------------

void SerialModem::FrameWritten() {
  if (!tools_.Port.IsOpen()) return;
  unsent_.push_back({tools_.LocalClock.MonotonicSeconds(), tools_.Port.BytesWritten()});
  if (unsent_.size() == 1) WatchUnsent();
}

void SerialModem::WatchUnsent() {
  const std::uint64_t gone = tools_.Port.BytesWritten() - tools_.Port.BytesToWrite();
  while (!unsent_.empty() && unsent_.front().End <= gone)
    unsent_.pop_front();
  if (unsent_.empty()) return ReopenTimer.Arm(kReopenMilliseconds);
  const double waited = tools_.LocalClock.MonotonicSeconds() - unsent_.front().Seconds;
  if (waited >= kLongestUnsentSeconds) return GiveUp(notices::kModemTakesNothing);
  // A millisecond more, so that the time is over when the timer fires.
  ReopenTimer.Arm(static_cast<int>(std::ceil((kLongestUnsentSeconds - waited) * 1000.0)) + 1);
}

// One that was off and on again has forgotten its call.
bool SerialModem::HasItsPower() {
  if (tools_.Port.ModemReady() == power_) return true;
  GiveUp(notices::kModemLostPower);
  return false;
}

bool SerialModem::MaySend() {
  if (busy_) return false;
  return !tools_.Port.IsOpen() || (HasItsPower() && HasItsCall());
}

// ---- The modem's call ---------------------------------------------------------------------------

CallHeld SerialModem::Ask() {
  const ModemKind* kind = ModemKindOf(ModeOf(radio_));
  if (!kind) return CallHeld::NotTold;
  busy_ = true;
  std::string heard;
  const CallHeld call = AskForCall(*kind, identity_.MyCall, tools_.Port, tools_.LocalClock, heard);
  busy_ = false;
  const double now = tools_.LocalClock.MonotonicSeconds();
  asked_at_ = now;
  if (call != CallHeld::NotTold) answers_ = true;
  if (call == CallHeld::Own) own_call_at_ = now;
  if (HeardMeanwhile && !heard.empty()) HeardMeanwhile(heard);
  return call;
}

bool SerialModem::HasItsCall() {
  constexpr int kQuestions = 2;  // it may be transmitting
  const double now = tools_.LocalClock.MonotonicSeconds();
  if (own_call_at_ && now - *own_call_at_ < kAnswerHoldsSeconds) return true;
  // An answer behind bytes that the line does not take will not come; these have a watch of their
  // own.
  if (tools_.Port.BytesToWrite() > 0) return true;
  for (int question = 1; question <= kQuestions; ++question) {
    const CallHeld call = Ask();
    if (call == CallHeld::Own) return true;
    if (call == CallHeld::Another) return GiveUp(notices::kModemLostPower), false;
    if (!answers_) return true;
  }
  if (tools_.LocalClock.EndAsked()) return false;
  silent_ = true;
  return GiveUp(notices::kModemSilent), false;
}

void SerialModem::LookAtSilence() {
  const double now = tools_.LocalClock.MonotonicSeconds();
  if (now - std::max(asked_at_, radio_.LastDataSeconds) < kLongestSilenceSeconds) return;
  if (!MayReopen || MayReopen()) HasItsCall();
}

void SerialModem::GiveUp(Text trouble) {
  trouble_ = trouble;
  own_call_at_.reset();
  unsent_.clear();
  tools_.Port.DropUnsent();
  tools_.Port.Close();
  ReopenTimer.Arm(kReopenMilliseconds);
  if (GivenUp) GivenUp();
}

void SerialModem::DropUnsent() {
  if (busy_) return;
  const bool half_out = tools_.Port.IsOpen() && tools_.Port.BytesToWrite() > 0;
  unsent_.clear();
  tools_.Port.DropUnsent();
  // The modem may hold the frame's beginning: the next one must not be put behind it.
  if (half_out) tools_.Port.Write(WipeLineBytes(radio_));
}

std::string SerialModem::Trouble() const {
  return trouble_.empty() ? tools_.Port.Trouble() : trouble_;
}

bool SerialModem::Run(const ModemScript& script, const ScriptProgress& progress) {
  busy_ = true;
  const bool heard = RunModemScript(script, tools_.Port, tools_.LocalClock, progress);
  busy_ = false;
  return heard;
}

}  // namespace zepril
