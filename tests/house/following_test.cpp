// Who is followed is set and shown in one place.
#include <gtest/gtest.h>

#include <regex>
#include <string>
#include <vector>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

TEST(Following, IsSetAndShownInOnePlace) {
  const std::regex sets(R"(\bCentreFollow\s*=[^=]|\bOption[12]\.Value\s*=[^=])");
  std::vector<std::string> found;
  for (const SourceFile& file : FilesBelow("src", {".cpp"})) {
    for (const std::string& line : file.Lines) {
      if (std::regex_search(CodeOf(line), sets)) found.push_back(file.Path);
    }
  }
  EXPECT_EQ(found, (std::vector<std::string>(4, "src/core/centre_follow.cpp")));
}

}  // namespace
}  // namespace zepril
