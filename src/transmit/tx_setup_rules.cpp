// Intervals, symbols, speeds, paths and memories: a new text from the old ones.
#include "transmit/tx_setup_rules.h"

#include <algorithm>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {
namespace {

constexpr double kLongestInterval = 60.0;
constexpr const char* kManual = "MANUAL";
constexpr int kFirstSymbol = 1;
constexpr int kLastSymbol = 194;
constexpr int kGapFrom = 95;  // rows between the two tables
constexpr int kGapTo = 100;
constexpr const char* kNoSecondMode = "NONE";
constexpr std::array<const char*, 6> kSecondModes{"19200", "9600", "1200",
                                                  "300",   "R300", kNoSecondMode};

bool IsHfMode(std::string_view baud_mode) {
  return baud_mode == "300" || baud_mode == "300R";
}

// The two 300 Bd modes, one of them as the second.
bool IsPair(const SpeedChoice& choice) {
  return (choice.BaudMode == "300R" && choice.CrossMode == "300") ||
         (choice.BaudMode == "300" && choice.CrossMode == "R300");
}

bool HasMhz(std::string_view text) {
  return InStr(Upper(text), "MHZ") > 0;
}

}  // namespace

std::string IntervalText(std::string_view typed) {
  const double minutes = Val(typed);
  if (minutes < 0.0) return "60";
  if (minutes == 0.0 || !(minutes <= kLongestInterval)) return kManual;
  return std::string(typed);
}

std::string SteppedInterval(std::string_view text, int direction) {
  return IntervalText(ShortNumber(Val(text) + direction));
}

std::string TxCaption(int interval_minutes) {
  if (interval_minutes == 0) return status_texts::kTxNow;
  return status_texts::kTxEvery.With({Str(interval_minutes)});
}

int SteppedSymbol(int index, int direction) {
  index += direction;
  if (index >= kGapFrom && index <= kGapTo) return direction < 0 ? kGapFrom - 1 : kGapTo + 1;
  return std::clamp(index, kFirstSymbol, kLastSymbol);
}

std::string OverlayOf(std::string_view typed) {
  return Upper(Right(Trim(typed), 1));
}

SpeedChoice WithSpeed(SpeedChoice choice, const std::string& baud_mode) {
  choice.BaudMode = baud_mode;
  choice.Digi = false;
  if (!IsHfMode(baud_mode) || !IsPair(choice)) {
    choice.HfDual = false;
    choice.CrossMode = kNoSecondMode;
  }
  return choice;
}

SpeedChoice WithSecondModeStepped(SpeedChoice choice, int direction) {
  const auto count = static_cast<int>(kSecondModes.size());
  const auto found = std::find(kSecondModes.begin(), kSecondModes.end(), choice.CrossMode);
  // A mode that is none of the cycle is taken for "NONE".
  const int at =
      found == kSecondModes.end() ? count - 1 : static_cast<int>(found - kSecondModes.begin());
  choice.CrossMode = kSecondModes[static_cast<std::size_t>((at + direction + count) % count)];
  choice.HfDual = choice.HfDual && IsPair(choice);
  return choice;
}

SpeedChoice WithHfDualOff(SpeedChoice choice) {
  choice.HfDual = false;
  choice.Digi = false;
  choice.CrossMode = kNoSecondMode;
  return choice;
}

HfDualFields WithHfDualOn(HfDualFields fields) {
  if (!fields.Path.empty()) fields.Path = "WIDE1-1";
  if (fields.Interval == "1") fields.Interval = "2";
  SpeedChoice& speeds = fields.Speeds;
  if (!IsHfMode(speeds.BaudMode)) speeds.BaudMode = "300R";
  speeds.CrossMode = speeds.BaudMode == "300R" ? "300" : "R300";
  speeds.HfDual = true;
  return fields;
}

std::string PathWith(std::string_view path, std::string_view element) {
  std::string trimmed(Trim(path));
  if (!trimmed.empty()) trimmed += ",";
  return trimmed.append(element);
}

std::optional<std::size_t> LineForMemory(std::string_view text,
                                         const std::array<std::string, 6>& lines,
                                         std::optional<std::size_t> focused) {
  if (!HasMhz(text)) return focused;
  for (std::size_t line = lines.size(); line-- > 0;) {
    if (HasMhz(lines[line])) return line;
  }
  return focused;
}

std::string OwnHeaderPatternOf(std::string_view call, std::string_view path,
                               std::string_view destination) {
  std::string pattern(call);
  pattern += "*>";
  for (std::string_view element : Split(path, ',')) {
    if (!Trim(element).empty()) pattern.append(Trim(element)).append(">");
  }
  return pattern.append(destination);
}

}  // namespace zepril
