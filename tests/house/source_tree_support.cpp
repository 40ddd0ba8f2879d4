// Reads files below a folder, and a line of code without comment and literals.
#include "tests/house/source_tree_support.h"

#include <algorithm>

namespace zepril {

std::vector<SourceFile> FilesBelow(const std::string& folder,
                                   const std::vector<std::string>& endings) {
  namespace fs = std::filesystem;
  const fs::path root = ZEPRIL_SOURCE_DIR;
  std::vector<SourceFile> files;
  if (!fs::exists(root / folder)) return files;
  for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
    const std::string path = fs::relative(entry.path(), root).generic_string();
    const bool wanted =
        endings.empty() || std::any_of(endings.begin(), endings.end(),
                                       [&](const auto& e) { return path.ends_with(e); });
    if (entry.is_regular_file() && wanted)
      files.push_back({path, LinesOf(ReadWhole(entry.path()))});
  }
  std::sort(files.begin(), files.end(),
            [](const auto& a, const auto& b) { return a.Path < b.Path; });
  return files;
}

std::string CodeOf(std::string_view line) {
  std::string code;
  char quote = '\0';
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (quote != '\0') {
      if (c == '\\') {
        ++i;
      } else if (c == quote) {
        quote = '\0';
        code += c;
      }
    } else if (line.substr(i, 2) == "//") {
      break;
    } else {
      const bool digit_mark =
          c == '\'' && i > 0 && std::isxdigit(static_cast<unsigned char>(line[i - 1]));
      if (c == '"' || (c == '\'' && !digit_mark)) quote = c;
      code += c;
    }
  }
  return code;
}

}  // namespace zepril
