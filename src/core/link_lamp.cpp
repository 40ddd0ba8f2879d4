// Chooses the lamp and its word from the state of the link and the age of its last data.
#include "core/link_lamp.h"

#include <algorithm>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {

namespace {

// "34 s", "12 min", "3 h": the largest unit that is full, cut.
std::string LengthText(double seconds) {
  const std::int64_t whole = std::max<std::int64_t>(ToWhole(Int(seconds)), 0);
  if (whole < 60) return status_texts::kSeconds.With({WholeNumber(whole)});
  if (whole < 3600) return status_texts::kMinutes.With({WholeNumber(whole / 60)});
  return status_texts::kHours.With({WholeNumber(whole / 3600)});
}

}  // namespace

LinkLamp LampOf(const LampFacts& facts) {
  constexpr double kFreshSeconds = 60.0;
  if (!facts.HasLink) return {LampState::None, {}, status_texts::kNoLink};
  const double age = facts.NowSeconds - facts.LastDataSeconds;
  const bool any = facts.LastDataSeconds >= 0.0;
  const std::string last = any ? status_texts::kLastData.With({WholeNumber(ToWhole(Int(age)))})
                               : status_texts::kNoDataYet;
  if (!facts.Up) {
    const double since = facts.LostSinceSeconds < 0.0 ? facts.NowSeconds : facts.LostSinceSeconds;
    return {LampState::Lost, status_texts::kLost.With({LengthText(facts.NowSeconds - since)}),
            status_texts::kLinkLost.With({last})};
  }
  if (facts.Paused) {
    return {LampState::Paused, status_texts::kPaused, status_texts::kReceptionPaused.With({last})};
  }
  const bool fresh = any && age <= kFreshSeconds;
  return {fresh ? LampState::Data : LampState::Silent, {}, last};
}

}  // namespace zepril
