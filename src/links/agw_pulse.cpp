// Counts silent looks and decides when to ask and when to call the engine lost.
#include "links/agw_pulse.h"

#include "links/agw_frame.h"

namespace zepril {
namespace {

constexpr double kTurnSeconds = 0.01;

}  // namespace

void AgwPulse::Begin() {
  awaited_ = true;
  looks_unanswered_ = 0;
  looks_unsent_ = 0;
  heard_at_ = clock_.MonotonicSeconds();
}

void AgwPulse::Heard() {
  awaited_ = false;
  looks_unanswered_ = 0;
  heard_at_ = clock_.MonotonicSeconds();
}

bool AgwPulse::Ask() {
  // The count of looks goes on while a question is open.
  if (!awaited_) looks_unanswered_ = 0;
  awaited_ = true;
  return socket_.Send(MakeAgwFrame(0, 'R', {}, {}, {}));
}

bool AgwPulse::Answers() {
  // A link that takes nothing tells that by the frame itself.
  if (!Ask()) return true;
  const double start = clock_.MonotonicSeconds();
  while (awaited_ && socket_.State() == SocketState::Connected &&
         clock_.MonotonicSeconds() - start < kAnswerSeconds) {
    clock_.Wait(kTurnSeconds);
  }
  return !awaited_ && socket_.State() == SocketState::Connected;
}

bool AgwPulse::LooksLost() {
  looks_unsent_ = socket_.UnsentBytes() > 0 ? looks_unsent_ + 1 : 0;
  if (awaited_) {
    ++looks_unanswered_;
  } else if (clock_.MonotonicSeconds() - heard_at_ >= kSilenceSeconds) {
    Ask();
  }
  return looks_unanswered_ > kPatientLooks || looks_unsent_ > kPatientLooks;
}

}  // namespace zepril
