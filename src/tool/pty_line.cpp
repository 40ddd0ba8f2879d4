// Opens the pseudo-terminal and its link, and moves bytes.
#include "tool/pty_line.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

namespace zepril {
namespace {

constexpr std::size_t kBlock = 4096;
constexpr int kBlocksAtOnce = 16;
constexpr std::size_t kLongestPath = 4096;
constexpr int kLookForProgram = 10;  // milliseconds between looks at a device nobody has open

// A line that hands bytes on as they are. Opening the other end once also makes the system tell
// from now on whether anybody has it open.
bool MakeRaw(const std::string& path) {
  const int end = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (end < 0) return false;
  termios line{};
  const bool raw = ::tcgetattr(end, &line) == 0 && (::cfmakeraw(&line), true) &&
                   ::tcsetattr(end, TCSANOW, &line) == 0;
  ::close(end);
  return raw;
}

std::string OtherEnd(int device) {
  std::array<char, 128> name{};
  if (::grantpt(device) != 0 || ::unlockpt(device) != 0) return {};
  return ::ptsname_r(device, name.data(), name.size()) == 0 ? std::string(name.data())
                                                            : std::string();
}

std::string TargetOf(const std::string& link) {
  std::string target(kLongestPath, '\0');
  const ssize_t length = ::readlink(link.c_str(), target.data(), target.size());
  target.resize(static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
  return target;
}

// The link of a device that was killed: it leads to a pseudo-terminal that is gone.
bool IsLeftBehind(const std::string& link) {
  return TargetOf(link).starts_with("/dev/pts/") && ::access(link.c_str(), F_OK) != 0;
}

}  // namespace

std::unique_ptr<PtyLine> PtyLine::Open(const std::string& link) {
  const int device = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
  if (device < 0) return nullptr;
  const std::string path = OtherEnd(device);
  ::fcntl(device, F_SETFL, O_NONBLOCK);
  auto line = std::make_unique<PtyLine>(device, path);
  if (path.empty() || !MakeRaw(path) || !line->MakeLink(link)) return nullptr;
  return line;
}

PtyLine::PtyLine(int device, std::string path) : device_(device), path_(std::move(path)) {}

PtyLine::~PtyLine() {
  HangUp();
}

void PtyLine::HangUp() {
  // The name goes first, and only if it is still this device's: the system soon gives the number of
  // the pseudo-terminal to somebody else.
  if (device_ >= 0 && !link_.empty() && TargetOf(link_) == path_) ::unlink(link_.c_str());
  if (device_ >= 0) ::close(device_);
  device_ = -1;
}

bool PtyLine::MakeLink(const std::string& link) {
  if (IsLeftBehind(link)) ::unlink(link.c_str());
  if (::symlink(path_.c_str(), link.c_str()) != 0) return false;
  link_ = link;
  return true;
}

bool PtyLine::SomebodyIsThere(int milliseconds) {
  if (device_ < 0) return false;
  const int events = unsent_.empty() ? POLLIN : POLLIN | POLLOUT;
  pollfd wait{device_, static_cast<short>(events), 0};
  if (::poll(&wait, 1, milliseconds) <= 0) return true;
  return (wait.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0;
}

void PtyLine::Serve(int milliseconds, const std::function<void(std::string_view bytes)>& take) {
  const bool there = SomebodyIsThere(milliseconds);
  if (!there) unsent_.clear();
  // What a program wrote before it closed the device still counts.
  std::array<char, kBlock> block{};
  for (int blocks = 0; blocks < kBlocksAtOnce && device_ >= 0; ++blocks) {
    const ssize_t length = ::read(device_, block.data(), block.size());
    if (length <= 0) break;
    take({block.data(), static_cast<std::size_t>(length)});
  }
  Write();
  if (!there) ::poll(nullptr, 0, std::min(milliseconds, kLookForProgram));
}

void PtyLine::Say(std::string_view text) {
  unsent_ += text.substr(0, kMostUnsent - std::min(kMostUnsent, unsent_.size()));
  Write();
}

void PtyLine::Write() {
  if (unsent_.empty() || !SomebodyIsThere(0)) return;
  const ssize_t length = ::write(device_, unsent_.data(), unsent_.size());
  if (length > 0) unsent_.erase(0, static_cast<std::size_t>(length));
}

}  // namespace zepril
