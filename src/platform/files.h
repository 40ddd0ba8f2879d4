// Files as the program sees them. Paths are as the operator wrote them, with "\" or "/" and drive
// letters; this is the one place where they become native ones. Names match without regard to case.
// No operation throws; failure is told by the result and changes nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zepril {

struct FolderEntry {
  std::string Name;  // as on the disk, code page 1252
  bool IsFolder = false;
};

struct FileStamp {
  std::int64_t Size = 0;        // bytes
  std::int64_t ModifiedNs = 0;  // time of the last change, nanoseconds of the system's epoch
  bool IsFolder = false;
  bool IsRegular = false;  // an ordinary file: not a folder, not a device
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// Why an operation failed.
enum class FileTrouble {
  NotDone,  // nothing more is known
  DiskFull,
  NoPermission,
  DiskReadOnly,
  FolderMissing,
  NoOrdinaryFile,
  NameTaken,
  DiskError,
  TooLarge,
  Refused,  // by the system, for a reason of its own
};

class Files {
 public:
  // Gets a line without its end; false ends the reading.
  using LineReader = std::function<bool(std::string_view line)>;
  // A longer line is cut here, the rest of it is passed over.
  static constexpr std::size_t kLongestLine = 65536;

  virtual ~Files() = default;

  // The whole file; nothing when it can't be read or is longer than `limit` bytes.
  virtual std::optional<std::string> ReadAll(const std::string& path, std::size_t limit) const = 0;
  // Up to `length` bytes from `offset` (0-based); nothing when the file can't be read.
  virtual std::optional<std::string> ReadRange(const std::string& path, std::int64_t offset,
                                               std::size_t length) const = 0;
  // Line by line, whatever the length of the file; lines end with CR LF, LF or CR. False when the
  // file can't be opened.
  virtual bool ReadLines(const std::string& path, const LineReader& line) const = 0;

  // Opens, writes at the end, closes; creates the file when missing. All of the text or nothing.
  virtual bool Append(const std::string& path, std::string_view text) = 0;
  // Writes the file anew in place: for what can be made again.
  virtual bool Write(const std::string& path, std::string_view text) = 0;
  // For the operator's data: writes a new file beside the old one, which it then replaces. After a
  // failure or a power cut the old file is whole.
  // A symbolic link stays one: the file that it leads to is replaced.
  virtual bool Replace(const std::string& path, std::string_view text) = 0;
  // The same for a text that is too long to be held: `write` gives it to the taker piece by piece,
  // and tells whether it is whole. False from it, as from the taker, leaves the old file.
  using PieceTaker = std::function<bool(std::string_view piece)>;
  virtual bool ReplaceInPieces(const std::string& path,
                               const std::function<bool(const PieceTaker&)>& write) {
    std::string text;
    const bool whole = write([&text](std::string_view piece) {
      text += piece;
      return true;
    });
    return whole && Replace(path, text);
  }
  // As Replace, and the old file stays under the name `kept`, which must not exist. There is no
  // moment without a file at `path`; after a failure nothing has changed.
  virtual bool ReplaceKeeping(const std::string& path, std::string_view text,
                              const std::string& kept) = 0;

  virtual bool Remove(const std::string& path) = 0;
  // Fails when the target exists.
  virtual bool Rename(const std::string& from, const std::string& to) = 0;
  // Creates the folder and those above it; true when it is there afterwards.
  virtual bool MakeFolder(const std::string& path) = 0;

  // The path as the computer's other programs know it.
  virtual std::string NativePath(const std::string& path) const = 0;

  // Why the last operation that failed did so.
  virtual FileTrouble Trouble() const { return FileTrouble::NotDone; }

  virtual std::optional<FileStamp> Stamp(const std::string& path) const = 0;
  bool Exists(const std::string& path) const { return Stamp(path).has_value(); }

  // Entries of `folder` whose names match the wildcard `pattern`, sorted by folded name, without
  // "." and "..". Nothing for a folder that can't be listed.
  virtual std::vector<FolderEntry> List(const std::string& folder,
                                        const std::string& pattern) const = 0;
};

// Wildcard match by the Windows rules, without regard to case: "*" any run, "?" one character,
// "*.*" every name. Only a pattern of "?" and plain characters asks for exactly that many.
bool MatchesWildcard(std::string_view name, std::string_view pattern);

}  // namespace zepril
