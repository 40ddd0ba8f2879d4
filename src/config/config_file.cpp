// Reads `ZEPRIL.INI` as lines, exchanges single ones, and scans it at the first run of a folder.
#include "config/config_file.h"

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kMostLinesToEdit = 10000;

}  // namespace

std::string ConfigPath(const std::string& program_folder) {
  return program_folder + "\\ZEPRIL.INI";
}

std::optional<std::vector<std::string>> ReadTrimmedLines(const Files& files,
                                                         const std::string& path,
                                                         std::size_t limit) {
  std::vector<std::string> lines;
  bool whole = true;
  const bool opened = files.ReadLines(path, [&](std::string_view line) {
    whole = lines.size() < limit && line.size() < Files::kLongestLine;
    if (whole) lines.emplace_back(Trim(line));
    return whole;
  });
  if (!opened || !whole) return std::nullopt;
  return lines;
}

std::string JoinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines)
    text += line + "\r\n";
  return text;
}

bool ReplaceConfigLine(Files& files, const std::string& path, const std::string& key,
                       const std::string& value) {
  auto lines = ReadTrimmedLines(files, path, kMostLinesToEdit);
  if (!lines) return false;
  const std::string fresh = key + "=" + value;
  bool found = false;
  for (std::string& line : *lines) {
    if (!EqualFolded(Left(line, static_cast<std::ptrdiff_t>(key.size()) + 1), key + "=")) continue;
    line = fresh;
    found = true;
  }
  if (!found) lines->push_back(fresh);
  return files.Replace(path, JoinLines(*lines));
}

FirstRunScan ScanForFirstRun(Files& files, const std::string& path) {
  FirstRunScan scan;
  files.Append(path, "");
  files.ReadLines(path, [&](std::string_view line) {
    if (line.starts_with("TEMP=")) scan.Configured = true;
    if (line.starts_with("WVER=")) scan.LayoutHint = Upper(Trim(Mid(line, 6)));
    return true;
  });
  return scan;
}

}  // namespace zepril
