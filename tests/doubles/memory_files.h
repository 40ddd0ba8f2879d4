// Files in memory, by their paths as they are written.
#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/folded_name.h"

namespace zepril {

class MemoryFiles final : public Files {
 public:
  std::optional<std::string> ReadAll(const std::string& path, std::size_t limit) const override {
    if (Unreadable(path)) return std::nullopt;
    const auto found = Contents.find(path);
    if (found == Contents.end() || found->second.size() > limit) return std::nullopt;
    return found->second;
  }
  std::optional<std::string> ReadRange(const std::string& path, std::int64_t offset,
                                       std::size_t length) const override {
    const auto found = Contents.find(path);
    if (found == Contents.end() || Unreadable(path) || offset < 0) return std::nullopt;
    const std::string& text = found->second;
    const auto from = std::min(static_cast<std::size_t>(offset), text.size());
    std::string part = text.substr(from, length);
    if (OnReadRange) OnReadRange();
    return part;
  }
  bool ReadLines(const std::string& path, const LineReader& line) const override {
    const auto found = Contents.find(path);
    if (found == Contents.end() || Unreadable(path)) return false;
    // Lines end with CR LF, LF or CR, as in real files.
    std::string_view rest = found->second;
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
      if (!line(rest.substr(0, end))) break;
      rest.remove_prefix(end);
      rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest.size()));
    }
    return true;
  }
  bool Append(const std::string& path, std::string_view text) override {
    if (Refused(path)) return false;
    ++Writes;
    Contents[path] += text;
    return true;
  }
  bool Write(const std::string& path, std::string_view text) override {
    return Replace(path, text);
  }
  bool Replace(const std::string& path, std::string_view text) override {
    if (Refused(path) || NoRoomToReplace) return false;
    ++Writes;
    Contents[path] = text;
    return true;
  }
  bool ReplaceKeeping(const std::string& path, std::string_view text,
                      const std::string& kept) override {
    const auto old = Contents.find(path);
    if (old == Contents.end() || Contents.contains(kept) || Refused(kept) || Refused(path) ||
        NoRoomToReplace) {
      return false;
    }
    Contents[kept] = old->second;
    Contents[path] = text;
    return true;
  }
  FileTrouble Trouble() const override { return Why; }
  bool Remove(const std::string& path) override {
    return !NothingIsRemoved && Contents.erase(path) > 0;
  }
  bool Rename(const std::string&, const std::string&) override { return false; }
  bool MakeFolder(const std::string&) override { return true; }
  std::string NativePath(const std::string& path) const override { return path; }
  std::optional<FileStamp> Stamp(const std::string& path) const override {
    FileStamp stamp;
    stamp.IsFolder = Folders.contains(path);
    if (stamp.IsFolder || Devices.contains(path)) return stamp;
    const auto found = Contents.find(path);
    if (found == Contents.end()) return std::nullopt;
    stamp.Size = static_cast<std::int64_t>(found->second.size());
    stamp.IsRegular = true;
    const auto modified = ModifiedNs.find(path);
    if (modified != ModifiedNs.end()) stamp.ModifiedNs = modified->second;
    return stamp;
  }
  std::vector<FolderEntry> List(const std::string& folder,
                                const std::string& pattern) const override {
    std::vector<FolderEntry> entries;
    const std::string front = folder + "\\";
    for (const auto& [path, text] : Contents) {
      if (!path.starts_with(front)) continue;
      const std::string name = path.substr(front.size());
      if (name.find('\\') == std::string::npos && MatchesWildcard(name, pattern)) {
        entries.push_back({name, false});
      }
    }
    std::sort(entries.begin(), entries.end(), [](const FolderEntry& a, const FolderEntry& b) {
      return NameBefore(a.Name, b.Name);
    });
    return entries;
  }

  std::string Of(const std::string& path) const {
    const auto found = Contents.find(path);
    return found == Contents.end() ? std::string() : found->second;
  }
  int LineCount(const std::string& path) const {
    const std::string text = Of(path);
    return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
  }

  std::map<std::string, std::string> Contents;
  std::map<std::string, std::int64_t> ModifiedNs;  // of these paths; of the others 0
  std::set<std::string> Folders;                   // that are there
  std::set<std::string> Devices;                   // likewise
  bool NothingIsRemoved = false;                   // a removal is refused
  std::function<void()> OnReadRange;        // after a part was read, before it is handed over
  int Writes = 0;                           // appended or replaced so far
  std::string RefusedEnding;                // files whose path ends so can't be written
  bool NoRoomToReplace = false;             // a whole new file finds no room, a line more does
  FileTrouble Why = FileTrouble::DiskFull;  // told as the trouble of whatever fails
  std::string UnreadableEnding;             // nor can these be read

 private:
  bool Unreadable(const std::string& path) const {
    return !UnreadableEnding.empty() && path.ends_with(UnreadableEnding);
  }
  bool Refused(const std::string& path) const {
    return !RefusedEnding.empty() && path.ends_with(RefusedEnding);
  }
};

}  // namespace zepril
