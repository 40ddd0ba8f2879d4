// Brings a signal into the event loop through a pair of sockets.
#include "desktop/session_end.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <utility>

namespace zepril {
namespace {

// A signal handler may do little more than write a byte: one end of a pair of sockets is all it
// has.
std::array<int, 2> signal_pair{-1, -1};

void OnSignal(int) {
  const char byte = 1;
  [[maybe_unused]] const auto written = ::write(signal_pair[0], &byte, 1);
}

}  // namespace

SessionEnd::SessionEnd(std::function<void()> end) {
  if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signal_pair.data()) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(signal_pair[1], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [end = std::move(end)] {
    char byte = 0;
    [[maybe_unused]] const auto got = ::read(signal_pair[1], &byte, 1);
    end();
  });
  for (int signal : {SIGTERM, SIGINT, SIGHUP})
    std::signal(signal, OnSignal);
}

SessionEnd::~SessionEnd() {
  for (int signal : {SIGTERM, SIGINT, SIGHUP})
    std::signal(signal, SIG_DFL);
  notifier_.reset();
  for (int& end : signal_pair) {
    if (end >= 0) ::close(end);
    end = -1;
  }
}

}  // namespace zepril
