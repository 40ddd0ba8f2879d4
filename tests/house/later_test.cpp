// docs/later.md names every step that nobody does yet, and no other.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

std::set<std::string> FoundIn(const std::string& path, const std::regex& pattern) {
  std::set<std::string> names;
  for (const std::string& line : LinesOf(ReadWhole(std::string(ZEPRIL_SOURCE_DIR) + "/" + path))) {
    std::smatch found;
    if (std::regex_search(line, found, pattern)) names.insert(found[1]);
  }
  return names;
}

TEST(Later, ListsTheStepsThatNobodyHasSet) {
  std::set<std::string> steps;
  for (const char* order : {"tick_steps.h", "main_window_start.h", "main_window_stop.h"}) {
    const auto found =
        FoundIn(std::string("src/station/") + order, std::regex(R"(^  Step (\w+);)"));
    EXPECT_GT(found.size(), 5U) << order;
    steps.insert(found.begin(), found.end());
  }
  const auto joined =
      FoundIn("src/station/station_steps.cpp", std::regex(R"(^  \w+\.(\w+) = \[&rooms\])"));
  for (const std::string& step : joined)
    steps.erase(step);
  const auto listed = FoundIn("docs/later.md", std::regex(R"(^\| `(\w+)` \|)"));
  EXPECT_EQ(listed, steps);
}

}  // namespace
}  // namespace zepril
