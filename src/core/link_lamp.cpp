// Chooses the lamp and its word from the state of the link and the age of its last data.
#include "core/link_lamp.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {

namespace {

// "34 s", "12 min", "3 h": the largest unit that is full, cut.
std::string LengthText(double seconds) {
  const std::int64_t whole = std::max<std::int64_t>(ToWhole(Int(seconds)), 0);
  if (whole < 60) return WholeNumber(whole) + " s";
  if (whole < 3600) return WholeNumber(whole / 60) + " min";
  return WholeNumber(whole / 3600) + " h";
}

}  // namespace

LinkLamp LampOf(const LampFacts& facts) {
  constexpr double kFreshSeconds = 60.0;
  if (!facts.HasLink) return {LampState::None, {}, "no radio link"};
  const double age = facts.NowSeconds - facts.LastDataSeconds;
  const bool any = facts.LastDataSeconds >= 0.0;
  const std::string last =
      any ? "last data " + WholeNumber(ToWhole(Int(age))) + " s ago" : std::string("no data yet");
  if (!facts.Up) {
    const double since = facts.LostSinceSeconds < 0.0 ? facts.NowSeconds : facts.LostSinceSeconds;
    return {LampState::Lost, "LOST " + LengthText(facts.NowSeconds - since), "link lost, " + last};
  }
  if (facts.Paused) {
    return {LampState::Paused, "paused", "reception rests while a panel is open, " + last};
  }
  const bool fresh = any && age <= kFreshSeconds;
  return {fresh ? LampState::Data : LampState::Silent, {}, last};
}

}  // namespace zepril
