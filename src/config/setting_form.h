// The forms in which the value of a setting stands in the configuration file.
//
// Values are text, whole numbers (8-bit or 16-bit in the file) or reals (64-bit). A number that
// does not fit its form is no value: the one that is held stays.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zepril {

enum class SettingKind {
  None,        // the key is not one of this window
  Text,        // trimmed
  Upper,       // trimmed, upper case
  Folded,      // as Upper, and written so: what is held in another case does not reach the file
  Folder,      // trimmed, one "\" at its end cut
  NmeaSource,  // trimmed both ways; nothing behind the key is no value
  NmeaBaud,    // trimmed both ways; taken only when the number in it is above 0, kept as text
  ObjectName,  // trimmed; one that is not empty is filled to 9 characters and cut there
  Overlay,     // empty is "A", otherwise the first character stays
  Whole,       // a whole number within the bounds; beyond them it is no value
  Held,        // a 16-bit number, held to the bounds
  Interval,    // as Held; written with the blank of the number's sign place: "TXON= 10"
  Real,        // one that overflows is no value, and never written
};

struct SettingForm {
  SettingKind Kind = SettingKind::None;
  std::int32_t Lowest = 0;  // bounds of whole numbers
  std::int32_t Highest = 0;
  bool Read = true;     // by the full read
  bool Written = true;  // by the full write
};

constexpr SettingForm ReadOnly(SettingForm form) {
  form.Written = false;
  return form;
}
constexpr SettingForm WriteOnly(SettingForm form) {
  form.Read = false;
  return form;
}
constexpr SettingForm HeldTo(std::int32_t lowest, std::int32_t highest) {
  return {SettingKind::Held, lowest, highest};
}

constexpr bool IsTextForm(SettingForm form) {
  return form.Kind >= SettingKind::Text && form.Kind <= SettingKind::Overlay;
}
constexpr bool IsWholeForm(SettingForm form) {
  return form.Kind >= SettingKind::Whole && form.Kind <= SettingKind::Interval;
}
constexpr bool IsRealForm(SettingForm form) {
  return form.Kind == SettingKind::Real;
}

// The value behind the "=", as it stands in the line. Nothing when the held value is to stay.
std::optional<std::string> TextFromFile(SettingForm form, std::string_view value);
std::optional<int> WholeFromFile(SettingForm form, std::string_view value);
std::optional<double> RealFromFile(std::string_view value);

// What is held, as it stands behind the "=".
std::string TextForFile(SettingForm form, const std::string& held);
std::string WholeForFile(SettingForm form, int held);
std::string RealForFile(double held);

}  // namespace zepril
