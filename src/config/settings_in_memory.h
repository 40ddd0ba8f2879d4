// Files in which `ZEPRIL.INI` lives in memory only: for a run on the default settings because the
// file can't be read. What the program writes into it is read back by it and gone afterwards; the
// file on the disk stays as it is, and so do `PORTS.TXT` and `WINDOW.TXT` beside it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace zepril {

class SettingsInMemory final : public Files {
 public:
  SettingsInMemory(Files& disk, const std::string& program_folder);

  std::optional<std::string> ReadAll(const std::string& path, std::size_t limit) const override;
  std::optional<std::string> ReadRange(const std::string& path, std::int64_t offset,
                                       std::size_t length) const override;
  bool ReadLines(const std::string& path, const LineReader& line) const override;
  bool Append(const std::string& path, std::string_view text) override;
  bool Write(const std::string& path, std::string_view text) override;
  bool Replace(const std::string& path, std::string_view text) override;
  bool ReplaceKeeping(const std::string& path, std::string_view text,
                      const std::string& kept) override;
  bool Remove(const std::string& path) override;
  bool Rename(const std::string& from, const std::string& to) override;
  bool MakeFolder(const std::string& path) override;
  std::string NativePath(const std::string& path) const override;
  std::optional<FileStamp> Stamp(const std::string& path) const override;
  FileTrouble Trouble() const override;
  std::vector<FolderEntry> List(const std::string& folder,
                                const std::string& pattern) const override;

 private:
  struct HeldFile {
    std::string Path;
    std::string Text;
  };
  // The held file of that path, or null.
  HeldFile* Held(const std::string& path);
  const HeldFile* Held(const std::string& path) const;

  Files& disk_;
  std::vector<HeldFile> held_;
};

// Why `ZEPRIL.INI` is there and can't be read; nothing when all is well or none is there.
std::optional<FileTrouble> TroubleWithConfig(const Files& files, const std::string& program_folder);

}  // namespace zepril
