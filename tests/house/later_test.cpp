// docs/later.md names every action that does nothing yet, and no other.
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

TEST(Later, ListsTheActionsThatAreStillEmpty) {
  const auto empty =
      FoundIn("src/station/station_rooms.h", std::regex(R"(^  void (\w+)\(.*\) override \{\}$)"));
  const auto listed = FoundIn("docs/later.md", std::regex(R"(^\| `(\w+)` \|)"));
  EXPECT_EQ(listed, empty);
}

}  // namespace
}  // namespace zepril
