// The project's files as the house tests read them.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace zepril {

struct SourceFile {
  std::string Path;                // from the project's root, "src/core/timer.h"
  std::vector<std::string> Lines;  // without their ends
};

inline std::string ReadWhole(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

// All files below `folder` (from the root) whose name ends in one of `endings`, sorted; every file
// when none is given.
std::vector<SourceFile> FilesBelow(const std::string& folder,
                                   const std::vector<std::string>& endings = {});

// The line without what stands in a "//" comment and without the contents of its string literals.
std::string CodeOf(std::string_view line);

}  // namespace zepril
