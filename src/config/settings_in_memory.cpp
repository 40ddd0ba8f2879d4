// Hands every file on to the disk but `ZEPRIL.INI`, whose lines it keeps itself.
#include "config/settings_in_memory.h"

#include <algorithm>
#include <utility>

#include "config/config_file.h"
#include "config/ports_file.h"
#include "config/window_file.h"
#include "core/text_fields.h"

namespace zepril {

SettingsInMemory::SettingsInMemory(Files& disk, const std::string& program_folder)
    : disk_(disk), held_{{ConfigPath(program_folder), {}}} {
  constexpr std::size_t kLongest = 65536;
  for (const std::string& path : {PortsPath(program_folder), WindowPath(program_folder)})
    held_.push_back({path, disk.ReadAll(path, kLongest).value_or("")});
}

const SettingsInMemory::HeldFile* SettingsInMemory::Held(const std::string& path) const {
  const auto found = std::find_if(held_.begin(), held_.end(), [&path](const HeldFile& file) {
    return EqualFolded(file.Path, path);
  });
  return found == held_.end() ? nullptr : &*found;
}

SettingsInMemory::HeldFile* SettingsInMemory::Held(const std::string& path) {
  return const_cast<HeldFile*>(std::as_const(*this).Held(path));
}

std::optional<std::string> SettingsInMemory::ReadAll(const std::string& path,
                                                     std::size_t limit) const {
  const HeldFile* held = Held(path);
  if (held == nullptr) return disk_.ReadAll(path, limit);
  if (held->Text.size() > limit) return std::nullopt;
  return held->Text;
}

std::optional<std::string> SettingsInMemory::ReadRange(const std::string& path, std::int64_t offset,
                                                       std::size_t length) const {
  const HeldFile* held = Held(path);
  if (held == nullptr) return disk_.ReadRange(path, offset, length);
  if (offset < 0) return std::nullopt;
  return held->Text.substr(std::min(static_cast<std::size_t>(offset), held->Text.size()), length);
}

bool SettingsInMemory::ReadLines(const std::string& path, const LineReader& line) const {
  const HeldFile* held = Held(path);
  if (held == nullptr) return disk_.ReadLines(path, line);
  // As the program has written them: each line ends in CR LF.
  std::string_view rest = held->Text;
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
    if (!line(rest.substr(0, end))) break;
    rest.remove_prefix(end);
    rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest.size()));
  }
  return true;
}

bool SettingsInMemory::Append(const std::string& path, std::string_view text) {
  HeldFile* held = Held(path);
  if (held == nullptr) return disk_.Append(path, text);
  held->Text += text;
  return true;
}

bool SettingsInMemory::Write(const std::string& path, std::string_view text) {
  return Held(path) == nullptr ? disk_.Write(path, text) : Replace(path, text);
}

bool SettingsInMemory::Replace(const std::string& path, std::string_view text) {
  HeldFile* held = Held(path);
  if (held == nullptr) return disk_.Replace(path, text);
  held->Text = text;
  return true;
}

bool SettingsInMemory::ReplaceKeeping(const std::string& path, std::string_view text,
                                      const std::string& kept) {
  return Held(path) == nullptr && disk_.ReplaceKeeping(path, text, kept);
}

bool SettingsInMemory::Remove(const std::string& path) {
  return Held(path) == nullptr && disk_.Remove(path);
}

bool SettingsInMemory::Rename(const std::string& from, const std::string& to) {
  return Held(from) == nullptr && Held(to) == nullptr && disk_.Rename(from, to);
}

bool SettingsInMemory::MakeFolder(const std::string& path) {
  return disk_.MakeFolder(path);
}

std::string SettingsInMemory::NativePath(const std::string& path) const {
  return disk_.NativePath(path);
}

std::optional<FileStamp> SettingsInMemory::Stamp(const std::string& path) const {
  const HeldFile* held = Held(path);
  if (held == nullptr) return disk_.Stamp(path);
  FileStamp stamp;
  stamp.Size = static_cast<std::int64_t>(held->Text.size());
  stamp.IsRegular = true;
  return stamp;
}

FileTrouble SettingsInMemory::Trouble() const {
  return disk_.Trouble();
}

std::vector<FolderEntry> SettingsInMemory::List(const std::string& folder,
                                                const std::string& pattern) const {
  return disk_.List(folder, pattern);
}

std::optional<FileTrouble> TroubleWithConfig(const Files& files,
                                             const std::string& program_folder) {
  const std::string path = ConfigPath(program_folder);
  if (!files.Exists(path)) return std::nullopt;
  if (files.ReadLines(path, [](std::string_view) { return true; })) return std::nullopt;
  return files.Trouble();
}

}  // namespace zepril
