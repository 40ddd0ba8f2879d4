// Spells paths by what is there, reads within bounds, and replaces files by fresh ones.
#include "platform/native/native_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

#include "platform/code_page.h"
#include "platform/folded_name.h"

namespace zepril {
namespace {

constexpr mode_t kNewFile = 0666;
constexpr mode_t kNewFolder = 0777;

// A file descriptor that closes itself. Opening never waits: a pipe may have taken the place of the
// file since that was looked at.
class Descriptor {
 public:
  Descriptor(const std::string& path, int flags)
      : fd_(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, kNewFile)) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  bool Ok() const { return fd_ >= 0; }
  int Get() const { return fd_; }
  bool Close() {
    if (fd_ < 0) return false;
    const bool closed = ::close(fd_) == 0;
    fd_ = -1;
    return closed;
  }

 private:
  int fd_;
};

bool WriteWhole(int fd, std::string_view text) {
  while (!text.empty()) {
    const ssize_t done = ::write(fd, text.data(), text.size());
    if (done < 0 && errno == EINTR) continue;
    if (done <= 0) return false;
    text.remove_prefix(static_cast<std::size_t>(done));
  }
  return true;
}

// Up to `size` bytes into `buffer`; below 0 on failure.
ssize_t ReadSome(int fd, char* buffer, std::size_t size) {
  for (;;) {
    const ssize_t got = ::read(fd, buffer, size);
    if (got >= 0 || errno != EINTR) return got;
  }
}

std::optional<struct stat> StatOf(const std::string& native) {
  struct stat info {};
  if (::stat(native.c_str(), &info) != 0) return std::nullopt;
  return info;
}

bool IsRegularOrMissing(const std::string& native) {
  const auto info = StatOf(native);
  if (!info || S_ISREG(info->st_mode)) return true;
  errno = EISDIR;
  return false;
}

// Opening must not hang on a pipe or a device: only ordinary files are read.
bool IsReadable(const std::string& native) {
  const auto info = StatOf(native);
  if (!info) return false;
  errno = EISDIR;
  return S_ISREG(info->st_mode);
}

struct CloseFolder {
  void operator()(DIR* folder) const { ::closedir(folder); }
};

template <typename Visit>
bool ForEachName(const std::string& native_folder, Visit visit) {
  const std::unique_ptr<DIR, CloseFolder> folder(::opendir(native_folder.c_str()));
  if (!folder) return false;
  while (const dirent* entry = ::readdir(folder.get())) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") visit(name);
  }
  return true;
}

// `element` as it is spelled in `folder`: exact, else the first in order that differs in case only,
// else as written.
std::string SpelledElement(const std::string& folder, std::string_view element) {
  std::string written = Utf8FromCodePage(element);
  struct stat info {};
  const std::string exact = folder + "/" + written;
  if (::lstat(exact.c_str(), &info) == 0) return written;
  std::string found;
  ForEachName(folder, [&](std::string_view name) {
    if (!SameName(CodePageFromUtf8(name), element)) return;
    if (found.empty() || name < found) found = name;
  });
  return found.empty() ? written : found;
}

bool IsDrive(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' &&
         ((path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z'));
}

std::string ParentOf(const std::string& native) {
  const std::size_t slash = native.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : native.substr(0, slash);
}

// Where a symbolic link leads to, also when nothing is there yet; any other path itself. Empty when
// it leads in a circle.
std::string TargetOf(std::string native) {
  constexpr int kMostLinks = 16;
  for (int links = 0; links < kMostLinks; ++links) {
    std::array<char, 4096> buffer;
    const ssize_t length = ::readlink(native.c_str(), buffer.data(), buffer.size());
    if (length <= 0) return native;
    const std::string_view target(buffer.data(), static_cast<std::size_t>(length));
    native = target.starts_with('/') ? std::string(target)
                                     : ParentOf(native) + "/" + std::string(target);
  }
  errno = ELOOP;
  return {};
}

void SyncFolder(const std::string& native_folder) {
  const Descriptor folder(native_folder, O_RDONLY | O_DIRECTORY);
  if (folder.Ok()) ::fsync(folder.Get());
}

// A new file with what `write` gives, safely on the disk, under the mode of `old`. Gone again on
// failure.
bool WriteFresh(const std::string& fresh,
                const std::function<bool(const Files::PieceTaker&)>& write,
                const std::optional<struct stat>& old) {
  Descriptor file(fresh, O_WRONLY | O_CREAT | O_TRUNC);
  bool written = file.Ok() &&
                 write([&file](std::string_view piece) { return WriteWhole(file.Get(), piece); }) &&
                 ::fsync(file.Get()) == 0;
  if (written && old) ::fchmod(file.Get(), old->st_mode & 07777U);
  int why = errno;
  if (written && !file.Close()) {
    written = false;
    why = errno;
  }
  if (!written) ::unlink(fresh.c_str());
  errno = why;
  return written;
}

bool WriteFresh(const std::string& fresh, std::string_view text,
                const std::optional<struct stat>& old) {
  return WriteFresh(
      fresh, [text](const Files::PieceTaker& take) { return take(text); }, old);
}

// A copy, for disks on which a file has one name only.
bool CopyFile(const std::string& from, const std::string& to) {
  const Descriptor source(from, O_RDONLY);
  Descriptor copy(to, O_WRONLY | O_CREAT | O_EXCL);
  if (!source.Ok() || !copy.Ok()) return false;
  std::array<char, 65536> buffer;
  for (;;) {
    const ssize_t got = ReadSome(source.Get(), buffer.data(), buffer.size());
    if (got == 0 && ::fsync(copy.Get()) == 0 && copy.Close()) return true;
    if (got <= 0 || !WriteWhole(copy.Get(), {buffer.data(), static_cast<std::size_t>(got)})) {
      const int why = errno;
      ::unlink(to.c_str());
      errno = why;
      return false;
    }
  }
}

// A second name where the disk knows such, else a copy. False when `to` exists already.
bool KeepUnder(const std::string& from, const std::string& to) {
  if (::link(from.c_str(), to.c_str()) == 0) return true;
  const bool has_one_name_only =
      errno == EPERM || errno == EOPNOTSUPP || errno == EMLINK || errno == ENOSYS || errno == EXDEV;
  return has_one_name_only && CopyFile(from, to);
}

}  // namespace

NativeFiles::NativeFiles(std::string drive_folder) : drive_folder_(std::move(drive_folder)) {
  while (drive_folder_.size() > 1 && drive_folder_.back() == '/')
    drive_folder_.pop_back();
}

std::string NativeFiles::NativePath(const std::string& path) const {
  std::string_view rest = path;
  std::string native;
  if (IsDrive(rest)) {
    native = drive_folder_;
    rest.remove_prefix(2);
  } else if (!rest.empty() && (rest.front() == '/' || rest.front() == '\\')) {
    // A native path, or one from the root of the current drive.
    native = rest.front() == '\\' ? drive_folder_ : "";
  } else {
    native = ".";
  }
  if (native == "/") native.clear();
  while (!rest.empty()) {
    const std::size_t end = rest.find_first_of("\\/");
    const std::string_view element = rest.substr(0, end);
    if (!element.empty() && element != ".") {
      native += "/" + (element == ".." ? std::string("..")
                                       : SpelledElement(native.empty() ? "/" : native, element));
    }
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
  if (native.find('\0') != std::string::npos) return {};
  return native.empty() ? "/" : native;
}

std::optional<std::string> NativeFiles::ReadAll(const std::string& path, std::size_t limit) const {
  const std::string native = NativePath(path);
  if (!IsReadable(native)) return Unread();
  const Descriptor file(native, O_RDONLY);
  if (!file.Ok()) return Unread();
  std::string text;
  const auto info = StatOf(native);
  if (info && info->st_size > 0) {
    if (static_cast<std::uint64_t>(info->st_size) > limit) return TooLarge();
    text.reserve(static_cast<std::size_t>(info->st_size));
  }
  std::array<char, 65536> buffer;
  for (;;) {
    const ssize_t got = ReadSome(file.Get(), buffer.data(), buffer.size());
    if (got < 0) return Unread();
    if (got == 0) return text;
    if (text.size() + static_cast<std::size_t>(got) > limit) return TooLarge();
    text.append(buffer.data(), static_cast<std::size_t>(got));
  }
}

std::optional<std::string> NativeFiles::ReadRange(const std::string& path, std::int64_t offset,
                                                  std::size_t length) const {
  const std::string native = NativePath(path);
  if (offset < 0 || !IsReadable(native)) return Unread();
  const Descriptor file(native, O_RDONLY);
  if (!file.Ok()) return Unread();
  if (::lseek(file.Get(), static_cast<off_t>(offset), SEEK_SET) < 0) return std::nullopt;
  std::string text;
  std::array<char, 65536> buffer;
  while (text.size() < length) {
    const std::size_t wanted = std::min(buffer.size(), length - text.size());
    const ssize_t got = ReadSome(file.Get(), buffer.data(), wanted);
    if (got < 0) return Unread();
    if (got == 0) break;
    text.append(buffer.data(), static_cast<std::size_t>(got));
  }
  return text;
}

bool NativeFiles::ReadLines(const std::string& path, const LineReader& line) const {
  const std::string native = NativePath(path);
  if (!IsReadable(native)) return Fail();
  const Descriptor file(native, O_RDONLY);
  if (!file.Ok()) return Fail();
  std::array<char, 65536> buffer;
  std::string current;
  bool after_cr = false;
  bool pending = false;  // bytes stand behind the last line end
  for (;;) {
    const ssize_t got = ReadSome(file.Get(), buffer.data(), buffer.size());
    if (got < 0) return Fail();
    if (got == 0) break;
    for (char c : std::string_view(buffer.data(), static_cast<std::size_t>(got))) {
      const bool second_half = after_cr && c == '\n';
      after_cr = c == '\r';
      if (second_half) continue;
      if (c == '\r' || c == '\n') {
        if (!line(current)) return true;
        current.clear();
        pending = false;
        continue;
      }
      pending = true;
      if (current.size() < kLongestLine) current += c;
    }
  }
  if (pending) line(current);
  return true;
}

bool NativeFiles::Append(const std::string& path, std::string_view text) {
  const std::string native = NativePath(path);
  if (!IsRegularOrMissing(native)) return Fail();
  Descriptor file(native, O_WRONLY | O_CREAT | O_APPEND);
  if (!file.Ok()) return Fail();
  const off_t end = ::lseek(file.Get(), 0, SEEK_END);
  if (WriteWhole(file.Get(), text)) return file.Close() || Fail();
  // Half a line must not run into the next one.
  Fail();
  if (end >= 0 && ::ftruncate(file.Get(), end) != 0) Fail();
  return false;
}

bool NativeFiles::Write(const std::string& path, std::string_view text) {
  const std::string native = NativePath(path);
  if (!IsRegularOrMissing(native)) return Fail();
  Descriptor file(native, O_WRONLY | O_CREAT | O_TRUNC);
  return (file.Ok() && WriteWhole(file.Get(), text) && file.Close()) || Fail();
}

bool NativeFiles::Replace(const std::string& path, std::string_view text) {
  return ReplaceInPieces(path, [text](const PieceTaker& take) { return take(text); });
}

bool NativeFiles::ReplaceInPieces(const std::string& path,
                                  const std::function<bool(const PieceTaker&)>& write) {
  const std::string native = TargetOf(NativePath(path));
  if (native.empty() || !IsRegularOrMissing(native)) return Fail();
  const std::string fresh = native + ".new~";
  if (!WriteFresh(fresh, write, StatOf(native))) return Fail();
  if (::rename(fresh.c_str(), native.c_str()) != 0) {
    Fail();
    ::unlink(fresh.c_str());
    return false;
  }
  SyncFolder(ParentOf(native));
  return true;
}

bool NativeFiles::ReplaceKeeping(const std::string& path, std::string_view text,
                                 const std::string& kept) {
  const std::string native = TargetOf(NativePath(path));
  const std::string other = NativePath(kept);
  if (!IsReadable(native)) return Fail();
  const std::string fresh = native + ".new~";
  if (!WriteFresh(fresh, text, StatOf(native))) return Fail();
  const bool has_copy = KeepUnder(native, other);
  if (!has_copy || ::rename(fresh.c_str(), native.c_str()) != 0) {
    Fail();
    ::unlink(fresh.c_str());
    if (has_copy) ::unlink(other.c_str());
    return false;
  }
  SyncFolder(ParentOf(native));
  SyncFolder(ParentOf(other));
  return true;
}

bool NativeFiles::Fail() const {
  trouble_ = errno;
  return false;
}

std::nullopt_t NativeFiles::Unread() const {
  Fail();
  return std::nullopt;
}

std::nullopt_t NativeFiles::TooLarge() const {
  errno = EFBIG;
  return Unread();
}

FileTrouble NativeFiles::Trouble() const {
  switch (trouble_) {
    case ENOSPC:
    case EDQUOT:
      return FileTrouble::DiskFull;
    case EACCES:
    case EPERM:
      return FileTrouble::NoPermission;
    case EROFS:
      return FileTrouble::DiskReadOnly;
    case ENOENT:
    case ENOTDIR:
      return FileTrouble::FolderMissing;
    case EISDIR:
      return FileTrouble::NoOrdinaryFile;
    case EEXIST:
      return FileTrouble::NameTaken;
    case EIO:
      return FileTrouble::DiskError;
    case EFBIG:
      return FileTrouble::TooLarge;
    default:
      return FileTrouble::Refused;
  }
}

bool NativeFiles::Remove(const std::string& path) {
  const std::string native = NativePath(path);
  struct stat info {};
  if (::lstat(native.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return false;
  return ::unlink(native.c_str()) == 0;
}

bool NativeFiles::Rename(const std::string& from, const std::string& to) {
  const std::string source = NativePath(from);
  // The new name stands as written, beside the old one: two names that differ in case only are one
  // file to the program, and renaming one to the other is the usual reason to be here.
  const std::size_t slash = to.find_last_of("\\/");
  const std::string folder = slash == std::string::npos ? "." : NativePath(to.substr(0, slash));
  const std::string name = Utf8FromCodePage(slash == std::string::npos ? to : to.substr(slash + 1));
  const std::string target = folder + "/" + name;
  struct stat info {};
  if (name.empty() || ::lstat(target.c_str(), &info) == 0) return false;
  return ::link(source.c_str(), target.c_str()) == 0
             ? ::unlink(source.c_str()) == 0
             : (errno == EPERM || errno == EOPNOTSUPP) &&
                   ::rename(source.c_str(), target.c_str()) == 0;
}

bool NativeFiles::MakeFolder(const std::string& path) {
  const std::string native = NativePath(path);
  for (std::size_t at = native.find('/', 1);; at = native.find('/', at + 1)) {
    const std::string part = native.substr(0, at);
    if (!part.empty()) ::mkdir(part.c_str(), kNewFolder);
    if (at == std::string::npos) break;
  }
  const auto info = StatOf(native);
  return info && S_ISDIR(info->st_mode);
}

std::optional<FileStamp> NativeFiles::Stamp(const std::string& path) const {
  const auto info = StatOf(NativePath(path));
  if (!info) return std::nullopt;
  FileStamp stamp;
  stamp.Size = static_cast<std::int64_t>(info->st_size);
  stamp.ModifiedNs = static_cast<std::int64_t>(info->st_mtim.tv_sec) * 1'000'000'000 +
                     static_cast<std::int64_t>(info->st_mtim.tv_nsec);
  stamp.IsFolder = S_ISDIR(info->st_mode);
  stamp.IsRegular = S_ISREG(info->st_mode);
  return stamp;
}

std::vector<FolderEntry> NativeFiles::List(const std::string& folder,
                                           const std::string& pattern) const {
  const std::string native = NativePath(folder);
  std::vector<FolderEntry> entries;
  ForEachName(native, [&](std::string_view name) {
    if (!FitsCodePage(name)) return;  // could not be named again
    std::string inside = CodePageFromUtf8(name);
    if (!MatchesWildcard(inside, pattern)) return;
    const auto info = StatOf(native + "/" + std::string(name));
    entries.push_back({std::move(inside), info && S_ISDIR(info->st_mode)});
  });
  std::sort(entries.begin(), entries.end(),
            [](const FolderEntry& a, const FolderEntry& b) { return NameBefore(a.Name, b.Name); });
  return entries;
}

std::string DefaultDriveFolder() {
  for (const char* variable : {"ZEPRIL_DRIVE_C", "HOME"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return value;
  }
  return "/";
}

}  // namespace zepril
