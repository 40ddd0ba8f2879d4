// The modem's end of a serial line: a pseudo-terminal whose other end a program opens by `Path()`.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <string>
#include <string_view>

namespace zepril {

class PseudoTerminal {
 public:
  PseudoTerminal() : master_(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    std::array<char, 128> name{};
    if (master_ < 0 || ::grantpt(master_) != 0 || ::unlockpt(master_) != 0) return;
    if (::ptsname_r(master_, name.data(), name.size()) != 0) return;
    path_ = name.data();
    ::fcntl(master_, F_SETFL, O_NONBLOCK);
    // Before anybody has opened it the line echoes what is said on it.
    termios line{};
    ::tcgetattr(master_, &line);
    ::cfmakeraw(&line);
    ::tcsetattr(master_, TCSANOW, &line);
  }
  ~PseudoTerminal() { HangUp(); }
  PseudoTerminal(const PseudoTerminal&) = delete;
  PseudoTerminal& operator=(const PseudoTerminal&) = delete;

  const std::string& Path() const { return path_; }

  // As much as the line takes at the moment; the count of bytes taken.
  std::size_t Say(std::string_view bytes) {
    const ssize_t taken = ::write(master_, bytes.data(), bytes.size());
    return taken > 0 ? static_cast<std::size_t>(taken) : 0;
  }
  std::string Heard() {
    std::string all;
    std::array<char, 4096> block{};
    for (;;) {
      const ssize_t length = ::read(master_, block.data(), block.size());
      if (length <= 0) return all;
      all.append(block.data(), static_cast<std::size_t>(length));
    }
  }
  // The device is gone, as when an adapter is pulled out.
  void HangUp() {
    if (master_ >= 0) ::close(master_);
    master_ = -1;
  }
  // Speed that the program has set.
  speed_t Speed() const {
    termios line{};
    ::tcgetattr(master_, &line);
    return ::cfgetospeed(&line);
  }

 private:
  int master_;
  std::string path_;
};

}  // namespace zepril
