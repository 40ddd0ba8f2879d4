// How one setting of the configuration file is read and written.
//
// A setting is a line KEY=value. The types follow the file: text, byte (0 to 255), int (16-bit),
// real (64-bit). A number that does not fit its type leaves the held value alone.
#pragma once

#include "core/text_fields.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace zepril {

struct ConfigField {
  std::string Key;                             // upper case, without "="
  std::function<void(std::string_view)> Take;  // value behind the "=", as stored
  std::function<std::string()> Give;           // value as written; none: the key is not written
};

using ConfigFields = std::vector<ConfigField>;

// Makers of the usual fields. The reference must outlive the field.
ConfigField PlainTextField(std::string key, std::string& held);  // trimmed
ConfigField UpperTextField(std::string key, std::string& held);  // trimmed, upper case
ConfigField FolderField(std::string key, std::string& held);     // trimmed, one "\" at its end cut
ConfigField ByteField(std::string key, int& held);
ConfigField IntField(std::string key, int& held);
ConfigField RealField(std::string key, double& held);
// The interval keeps the blank of the number's sign place: "TXON= 10". Below 0 it is 0.
ConfigField IntervalField(std::string key, int& held);
// Taken only when there is something behind the key.
ConfigField NmeaSourceField(std::string key, std::string& held);
// Taken only when the number in it is above 0; kept as the text that it is.
ConfigField NmeaBaudField(std::string key, std::string& held);
// A name that is not empty is filled to 9 characters and cut there.
ConfigField ObjectNameField(std::string key, std::string& held);
// Empty becomes "A"; otherwise the first character stays.
ConfigField OverlayField(std::string key, std::string& held);

// Written folded as well as read so: what is held in another case does not reach the file.
ConfigField FoldedTextField(std::string key, std::string& held);

// One field for each of `values`: BEFORE1AFTER, BEFORE2AFTER and so on, made by `make`.
template <typename Values, typename Make>
void AddNumbered(ConfigFields& fields, const std::string& before, const std::string& after,
                 Values& values, Make make) {
  for (std::size_t at = 0; at < values.size(); ++at) {
    const auto number = static_cast<std::int64_t>(at) + 1;
    fields.push_back(make(before + WholeNumber(number) + after, values[at]));
  }
}

// Takes one line: trimmed of blanks, its key matched without regard to case. False when no field
// has the key.
bool TakeConfigLine(const ConfigFields& fields, std::string_view line);
// All lines of the fields that are written, CR LF after each.
std::string GiveConfigLines(const ConfigFields& fields);

}  // namespace zepril
