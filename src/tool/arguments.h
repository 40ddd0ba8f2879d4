// The arguments of one command of the tool: "--name value" and "--name" in any order.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zepril {

struct ArgumentRule {
  std::string_view Name;  // with its hyphens: "--mode"
  bool TakesValue = false;
};

class Arguments {
 public:
  // Exit status of a command that was called wrongly.
  static constexpr int kUsageError = 2;

  // Reads `args` by `rules`. A word that no rule names, a missing value and a name given twice are
  // errors; the first one is kept.
  Arguments(std::span<const std::string_view> args, std::span<const ArgumentRule> rules);

  bool Has(std::string_view name) const;
  std::optional<std::string_view> Value(std::string_view name) const;
  // A whole number in [lowest, highest]; `otherwise` when the name is not given. Anything else is
  // an error.
  int Whole(std::string_view name, int lowest, int highest, int otherwise);

  void Fail(std::string error);
  bool Failed() const { return !error_.empty(); }
  // Writes "zepril-tool COMMAND: error" to standard error and returns the exit status.
  int Report(std::string_view command) const;

 private:
  std::vector<std::pair<std::string_view, std::string_view>> values_;
  std::string error_;
};

// "--name" given together with its text: the number of a map zone, "U33" or "33" (1 to 60).
std::optional<int> ZoneNumber(std::string_view text);

}  // namespace zepril
