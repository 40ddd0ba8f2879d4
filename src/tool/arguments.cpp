// Takes names and values apart, and reports the first mistake.
#include "tool/arguments.h"

#include <algorithm>
#include <cstdio>

#include "core/text_fields.h"

namespace zepril {
namespace {

bool IsWholeText(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  constexpr std::size_t kLongest = 9;
  return !text.empty() && text.size() <= kLongest && std::all_of(text.begin(), text.end(), IsDigit);
}

}  // namespace

Arguments::Arguments(std::span<const std::string_view> args, std::span<const ArgumentRule> rules) {
  for (std::size_t i = 0; i < args.size() && !Failed(); ++i) {
    const std::string_view name = args[i];
    const auto rule = std::find_if(rules.begin(), rules.end(),
                                   [&](const ArgumentRule& r) { return r.Name == name; });
    if (rule == rules.end()) {
      Fail("unknown argument " + std::string(name));
    } else if (Has(name)) {
      Fail(std::string(name) + " is given twice");
    } else if (rule->TakesValue && i + 1 >= args.size()) {
      Fail(std::string(name) + " needs a value");
    } else {
      values_.emplace_back(name, rule->TakesValue ? args[++i] : std::string_view{});
    }
  }
}

bool Arguments::Has(std::string_view name) const {
  return Value(name).has_value();
}

std::optional<std::string_view> Arguments::Value(std::string_view name) const {
  for (const auto& [given, value] : values_) {
    if (given == name) return value;
  }
  return std::nullopt;
}

int Arguments::Whole(std::string_view name, int lowest, int highest, int otherwise) {
  const auto text = Value(name);
  if (!text) return otherwise;
  if (IsWholeText(*text)) {
    const auto value = WholeVal(*text, lowest, highest);
    if (value) return *value;
  }
  Fail(std::string(name) + " must be a whole number from " + WholeNumber(lowest) + " to " +
       WholeNumber(highest));
  return otherwise;
}

void Arguments::Fail(std::string error) {
  if (error_.empty()) error_ = std::move(error);
}

int Arguments::Report(std::string_view command) const {
  std::fprintf(stderr, "zepril-tool %.*s: %s\n", static_cast<int>(command.size()), command.data(),
               error_.c_str());
  return kUsageError;
}

std::optional<int> ZoneNumber(std::string_view text) {
  constexpr int kLastZone = 60;
  if (text.starts_with('U') || text.starts_with('u')) text.remove_prefix(1);
  if (!IsWholeText(text) || text.starts_with('-')) return std::nullopt;
  const auto zone = WholeVal(text, 1, kLastZone);
  return zone ? std::optional<int>(*zone) : std::nullopt;
}

}  // namespace zepril
