// The forms of a setting: whole and real numbers, texts, folders, each read with its bounds.
#include "config/config_field.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::int32_t kLowestInt = -32768;
constexpr std::int32_t kHighestInt = 32767;
constexpr std::int32_t kHighestByte = 255;

// A number that overflows is read as the largest there is, or is no number at all.
bool IsHeld(double number) {
  return std::fabs(number) < std::numeric_limits<double>::max();
}

ConfigField WholeField(std::string key, int& held, std::int32_t lowest, std::int32_t highest) {
  return {std::move(key),
          [&held, lowest, highest](std::string_view value) {
            if (const auto whole = WholeVal(value, lowest, highest)) held = *whole;
          },
          [&held] { return WholeNumber(held); }};
}

}  // namespace

ConfigField PlainTextField(std::string key, std::string& held) {
  return {std::move(key), [&held](std::string_view value) { held = Trim(value); },
          [&held] { return held; }};
}

ConfigField UpperTextField(std::string key, std::string& held) {
  return {std::move(key), [&held](std::string_view value) { held = Upper(Trim(value)); },
          [&held] { return held; }};
}

ConfigField FoldedTextField(std::string key, std::string& held) {
  ConfigField field = UpperTextField(std::move(key), held);
  field.Give = [&held] { return Upper(Trim(held)); };
  return field;
}

ConfigField FolderField(std::string key, std::string& held) {
  return {std::move(key),
          [&held](std::string_view value) {
            held = Trim(value);
            if (!held.empty() && held.back() == '\\') held.pop_back();
          },
          [&held] { return held; }};
}

ConfigField ByteField(std::string key, int& held) {
  return WholeField(std::move(key), held, 0, kHighestByte);
}

ConfigField IntField(std::string key, int& held) {
  return WholeField(std::move(key), held, kLowestInt, kHighestInt);
}

ConfigField RealField(std::string key, double& held) {
  return {std::move(key),
          [&held](std::string_view value) {
            const double number = Val(value);
            if (IsHeld(number)) held = number;
          },
          [&held] { return ShortNumber(IsHeld(held) ? held : 0.0); }};
}

ConfigField IntervalField(std::string key, int& held) {
  ConfigField field = IntField(std::move(key), held);
  field.Take = [&held, take = field.Take](std::string_view value) {
    take(value);
    held = std::max(held, 0);
  };
  field.Give = [&held] { return Str(held); };
  return field;
}

ConfigField NmeaSourceField(std::string key, std::string& held) {
  return {std::move(key),
          [&held](std::string_view value) {
            if (!value.empty()) held = Trim(value);
          },
          [&held] { return std::string(Trim(held)); }};
}

ConfigField NmeaBaudField(std::string key, std::string& held) {
  return {std::move(key),
          [&held](std::string_view value) {
            if (Val(value) > 0.0) held = Trim(value);
          },
          [&held] { return std::string(Trim(held)); }};
}

ConfigField ObjectNameField(std::string key, std::string& held) {
  constexpr std::size_t kNameLength = 9;
  return {std::move(key),
          [&held](std::string_view value) {
            held = Trim(value);
            if (!held.empty()) held = Field(held, kNameLength);
          },
          [&held] { return held; }};
}

ConfigField OverlayField(std::string key, std::string& held) {
  return {std::move(key),
          [&held](std::string_view value) {
            const std::string_view trimmed = Trim(value);
            held = trimmed.empty() ? std::string("A") : std::string(trimmed.substr(0, 1));
          },
          [&held] { return held; }};
}

bool TakeConfigLine(const ConfigFields& fields, std::string_view line) {
  const std::string_view trimmed = Trim(line);
  const std::size_t equals = trimmed.find('=');
  if (equals == std::string_view::npos) return false;
  const std::string_view key = trimmed.substr(0, equals);
  for (const ConfigField& field : fields) {
    if (!EqualFolded(field.Key, key)) continue;
    field.Take(trimmed.substr(equals + 1));
    return true;
  }
  return false;
}

std::string GiveConfigLines(const ConfigFields& fields) {
  std::string text;
  for (const ConfigField& field : fields) {
    if (field.Give) text += field.Key + "=" + field.Give() + "\r\n";
  }
  return text;
}

}  // namespace zepril
