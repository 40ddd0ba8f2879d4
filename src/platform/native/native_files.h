// Files on a POSIX system under the program's rules for paths and names.
//
// "\" and "/" both separate. "C:" (any drive letter) is the drive folder given at construction; a
// path that begins with "/" is native. Each element is matched without regard to case, the exact
// name preferred; what does not exist is created as written. Names are code page 1252 inside and
// UTF-8 on the disk.
#pragma once

#include <string>

#include "platform/files.h"

namespace zepril {

class NativeFiles final : public Files {
 public:
  // `drive_folder`: the native folder that "C:" stands for.
  explicit NativeFiles(std::string drive_folder);

  std::optional<std::string> ReadAll(const std::string& path, std::size_t limit) const override;
  std::optional<std::string> ReadRange(const std::string& path, std::int64_t offset,
                                       std::size_t length) const override;
  bool ReadLines(const std::string& path, const LineReader& line) const override;
  bool Append(const std::string& path, std::string_view text) override;
  bool Write(const std::string& path, std::string_view text) override;
  bool Replace(const std::string& path, std::string_view text) override;
  bool ReplaceInPieces(const std::string& path,
                       const std::function<bool(const PieceTaker&)>& write) override;
  bool ReplaceKeeping(const std::string& path, std::string_view text,
                      const std::string& kept) override;
  bool Remove(const std::string& path) override;
  bool Rename(const std::string& from, const std::string& to) override;
  bool MakeFolder(const std::string& path) override;
  std::optional<FileStamp> Stamp(const std::string& path) const override;
  std::vector<FolderEntry> List(const std::string& folder,
                                const std::string& pattern) const override;

  FileTrouble Trouble() const override;

  // The native path of `path`, every element that exists spelled as on the disk.
  std::string NativePath(const std::string& path) const override;

 private:
  // Note why, from errno; results of what failed.
  bool Fail() const;
  std::nullopt_t Unread() const;
  std::nullopt_t TooLarge() const;

  std::string drive_folder_;
  mutable int trouble_ = 0;  // errno of the last failure
};

// The drive folder of this computer: the environment variable ZEPRIL_DRIVE_C, else the home folder.
std::string DefaultDriveFolder();

}  // namespace zepril
