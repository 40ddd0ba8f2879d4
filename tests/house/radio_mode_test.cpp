// The radio interfaces are told apart in one place; elsewhere rules with names are asked.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

TEST(RadioModes, AreToldApartInOnePlace) {
  const std::regex tells(
      R"(\bcase RadioMode::|[=!]= (static_cast<int>\()?RadioMode::|\.RadioMode [=!<>]=? \d)");
  std::set<std::string> found;
  for (const SourceFile& file : FilesBelow("src", {".cpp", ".h"})) {
    for (const std::string& line : file.Lines) {
      if (std::regex_search(CodeOf(line), tells)) found.insert(file.Path);
    }
  }
  // The rules beside the interfaces, the links by number, and what the companion tool is told.
  const std::set<std::string> allowed{"src/core/radio_rules.cpp", "src/links/radio_links.cpp",
                                      "src/tool/decode_command.cpp", "src/tool/decode_station.cpp"};
  EXPECT_EQ(found, allowed);
}

}  // namespace
}  // namespace zepril
