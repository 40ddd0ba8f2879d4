// Locks the file, and passes a second start's wish to come to the front.
#include "platform/native/run_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace zepril {

RunLock::~RunLock() {
  if (fd_ < 0) return;
  // Emptied, not removed: a start at this moment may have it open already.
  const bool emptied = ::ftruncate(fd_, 0) == 0;
  static_cast<void>(emptied);
  ::close(fd_);
}

RunLock::Outcome RunLock::Take(const std::string& path) {
  const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
  if (fd < 0) return Outcome::Unknown;
  if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
    const bool other = errno == EWOULDBLOCK;
    ::close(fd);
    return other ? Outcome::TakenByOther : Outcome::Unknown;
  }
  fd_ = fd;
  FrontWanted();  // a wish that a former run did not hear
  return Outcome::Taken;
}

bool RunLock::AskForFront(const std::string& path) {
  const int fd = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK);
  if (fd < 0) return false;
  const bool written = ::write(fd, "F", 1) == 1;
  ::close(fd);
  return written;
}

bool RunLock::FrontWanted() {
  struct stat info {};
  if (fd_ < 0 || ::fstat(fd_, &info) != 0 || info.st_size == 0) return false;
  return ::ftruncate(fd_, 0) == 0;
}

}  // namespace zepril
