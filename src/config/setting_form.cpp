// Values of settings between the configuration file and the fields that hold them.
#include "config/setting_form.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::int32_t kLowestInt = -32768;
constexpr std::int32_t kHighestInt = 32767;
constexpr std::size_t kObjectNameLength = 9;

// A number that overflows is read as the largest there is, or is no number at all.
bool IsHeld(double number) {
  return std::fabs(number) < std::numeric_limits<double>::max();
}

std::string WithoutLastBackslash(std::string_view folder) {
  if (folder.ends_with('\\')) folder.remove_suffix(1);
  return std::string(folder);
}

}  // namespace

std::optional<std::string> TextFromFile(SettingForm form, std::string_view value) {
  const std::string_view trimmed = Trim(value);
  switch (form.Kind) {
    case SettingKind::Upper:
    case SettingKind::Folded:
      return Upper(trimmed);
    case SettingKind::Folder:
      return WithoutLastBackslash(trimmed);
    case SettingKind::NmeaSource:
      if (value.empty()) return std::nullopt;
      return std::string(trimmed);
    case SettingKind::NmeaBaud:
      if (!(Val(value) > 0.0)) return std::nullopt;
      return std::string(trimmed);
    case SettingKind::ObjectName:
      return trimmed.empty() ? std::string() : Field(trimmed, kObjectNameLength);
    case SettingKind::Overlay:
      return trimmed.empty() ? std::string("A") : std::string(trimmed.substr(0, 1));
    default:
      return std::string(trimmed);
  }
}

std::optional<int> WholeFromFile(SettingForm form, std::string_view value) {
  if (form.Kind == SettingKind::Whole) return WholeVal(value, form.Lowest, form.Highest);
  const auto whole = WholeVal(value, kLowestInt, kHighestInt);
  if (!whole) return std::nullopt;
  return std::clamp(*whole, form.Lowest, form.Highest);
}

std::optional<double> RealFromFile(std::string_view value) {
  const double number = Val(value);
  if (!IsHeld(number)) return std::nullopt;
  return number;
}

std::string TextForFile(SettingForm form, const std::string& held) {
  switch (form.Kind) {
    case SettingKind::Folded:
      return Upper(Trim(held));
    case SettingKind::NmeaSource:
    case SettingKind::NmeaBaud:
      return std::string(Trim(held));
    default:
      return held;
  }
}

std::string WholeForFile(SettingForm form, int held) {
  return form.Kind == SettingKind::Interval ? Str(held) : WholeNumber(held);
}

std::string RealForFile(double held) {
  return ShortNumber(IsHeld(held) ? held : 0.0);
}

}  // namespace zepril
