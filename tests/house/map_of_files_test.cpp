// docs/map.md names every file once, with what it is for.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "tests/house/source_tree_support.h"

namespace zepril {
namespace {

// A line of the map: "- `src/core/timer.h`: what it is for", paths of a pair as "timer.{h,cpp}".
struct MapRow {
  std::vector<std::string> Paths;
  std::string Purpose;
};

std::vector<std::string> Expanded(const std::string& path) {
  const std::size_t open = path.find('{');
  const std::size_t close = path.find('}');
  if (open == std::string::npos || close == std::string::npos) return {path};
  std::vector<std::string> paths;
  std::string choices = path.substr(open + 1, close - open - 1) + ',';
  for (std::size_t comma = choices.find(','); comma != std::string::npos;
       comma = choices.find(',')) {
    paths.push_back(path.substr(0, open) + choices.substr(0, comma) + path.substr(close + 1));
    choices.erase(0, comma + 1);
  }
  return paths;
}

std::vector<MapRow> MapRows() {
  std::vector<MapRow> rows;
  for (const std::string& line :
       LinesOf(ReadWhole(std::string(ZEPRIL_SOURCE_DIR) + "/docs/map.md"))) {
    if (!line.starts_with("- `")) continue;
    const std::size_t end = line.find("`: ", 3);
    if (end == std::string::npos) {
      ADD_FAILURE() << "no purpose: " << line;
      continue;
    }
    rows.push_back({Expanded(line.substr(3, end - 3)), line.substr(end + 3)});
  }
  return rows;
}

std::set<std::string> FilesOfTheHouse() {
  std::set<std::string> files;
  for (const std::string folder : {"src", "tests", "tools", "bench", "fuzz"}) {
    for (const SourceFile& file : FilesBelow(folder)) {
      // Seeds and test data are told by their folder.
      if (file.Path.starts_with("fuzz/corpus/") || file.Path.starts_with("tests/data/")) continue;
      files.insert(file.Path);
    }
  }
  return files;
}

TEST(MapOfFiles, NamesEveryFileOnceAndNothingElse) {
  const std::set<std::string> files = FilesOfTheHouse();
  std::set<std::string> named;
  for (const MapRow& row : MapRows()) {
    EXPECT_GE(row.Purpose.size(), 8U) << row.Paths.front();
    for (const std::string& path : row.Paths) {
      EXPECT_TRUE(named.insert(path).second) << path << " is named twice";
      EXPECT_TRUE(files.contains(path)) << path << " is named but not there";
    }
  }
  for (const std::string& path : files) {
    EXPECT_TRUE(named.contains(path)) << path << " is missing in docs/map.md";
  }
}

}  // namespace
}  // namespace zepril
