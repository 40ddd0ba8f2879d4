// Lists, checks and shows names of point files, and reads one line by line with its progress told.
#include "core/point_file.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kLongestName = 100;
constexpr std::string_view kRefusedCharacters = "\\/:*?\"<>|";
constexpr int kLastControlCode = 31;
constexpr int kDeleteCode = 127;
constexpr int kReportEveryLines = 1000;
constexpr std::int64_t kReportEveryBytes = std::int64_t{1} << 20;

bool IsEdge(char c) {
  return c == ' ' || c == '.';
}

}  // namespace

bool IsPlainFileName(std::string_view name) {
  if (name.empty() || name.size() > kLongestName) return false;
  if (IsEdge(name.front()) || IsEdge(name.back())) return false;
  if (name.find("..") != std::string_view::npos) return false;
  return std::none_of(name.begin(), name.end(), [](char c) {
    return Asc(c) <= kLastControlCode || Asc(c) == kDeleteCode ||
           kRefusedCharacters.find(c) != std::string_view::npos;
  });
}

std::vector<std::string> PointFileNames(const Files& disk, const std::string& folder,
                                        std::string_view extension) {
  std::vector<std::string> names;
  for (const FolderEntry& entry : disk.List(folder, "*" + std::string(extension))) {
    if (entry.IsFolder || entry.Name.size() <= extension.size()) continue;
    std::string name = Upper(entry.Name.substr(0, entry.Name.size() - extension.size()));
    if (!IsPlainFileName(name)) continue;  // could not be chosen
    if (names.empty() || names.back() != name) names.push_back(std::move(name));
  }
  return names;
}

int IndexOfName(const std::vector<std::string>& names, std::string_view name) {
  const auto found = std::find_if(names.begin(), names.end(), [name](const std::string& entry) {
    return EqualFolded(entry, name);
  });
  return found == names.end() ? -1 : static_cast<int>(found - names.begin());
}

bool ShowsItsEntry(const ComboBox& list) {
  return list.ListIndex >= 0 && list.Text == list.Selected();
}

void ShowFileName(ComboBox& list, const std::string& name) {
  list.ListIndex = IndexOfName(list.Items, name);
  list.Text = Upper(name);
}

std::optional<PointFileContent> ReadPointFile(const Files& disk, const std::string& path,
                                              const PointList& like, int most_lines,
                                              Progress& progress, std::string_view what) {
  const auto stamp = disk.Stamp(path);
  if (stamp && stamp->Size > kLargestPointFile) return std::nullopt;
  const double size = stamp && stamp->Size > 0 ? static_cast<double>(stamp->Size) : 1.0;
  PointFileContent content{PointList(like.Limit(), like.LongestLine()), false};
  std::int64_t gone = 0;
  std::int64_t reported = 0;
  progress.Report(what, 0.0);
  const bool opened = disk.ReadLines(path, [&](std::string_view line) {
    if (content.Points.Count() >= most_lines || !content.Points.Append(line)) {
      content.Cut = true;
      return false;
    }
    content.Cut = content.Cut || line.size() > content.Points.LongestLine();
    gone += static_cast<std::int64_t>(line.size()) + 2;  // CR LF
    if (content.Points.Count() % kReportEveryLines == 0 || gone - reported >= kReportEveryBytes) {
      reported = gone;
      progress.Report(what, static_cast<double>(gone) / size);
    }
    return true;
  });
  progress.Done();
  if (!opened) return std::nullopt;
  return content;
}

}  // namespace zepril
