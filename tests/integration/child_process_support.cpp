// Starts, signals and ends a program, and finds a port for it.
#include "tests/integration/child_process_support.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>

extern char** environ;

namespace zepril {
namespace {

sockaddr_in Loopback(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

}  // namespace

bool IsInstalled(const std::string& program) {
  return std::system(("command -v " + program + " >/dev/null 2>&1").c_str()) == 0;
}

int FreePort() {
  // Below the ports that systems hand out; some engines take no higher ones.
  constexpr int kLowest = 20000;
  constexpr int kCount = 12000;
  for (int attempt = 0; attempt < kCount; ++attempt) {
    const int port = kLowest + (static_cast<int>(::getpid()) * 17 + attempt) % kCount;
    const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = Loopback(port);
    const bool bound =
        ::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(listener);
    if (bound) return port;
  }
  return 0;
}

bool Listens(int port) {
  const int descriptor = ::socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in address = Loopback(port);
  const bool accepted =
      ::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  ::close(descriptor);
  return accepted;
}

ChildProcess::ChildProcess(const std::vector<std::string>& words, int input,
                           const std::string& log) {
  std::vector<char*> arguments;
  for (const std::string& word : words)
    arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, input, 0);
  posix_spawn_file_actions_addopen(&actions, 1, log.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_adddup2(&actions, 1, 2);
  if (::posix_spawnp(&pid_, arguments[0], &actions, nullptr, arguments.data(), environ) != 0) {
    pid_ = -1;
  }
  posix_spawn_file_actions_destroy(&actions);
}

ChildProcess::~ChildProcess() {
  End();
}

bool ChildProcess::Runs() {
  if (pid_ > 0 && ::waitpid(pid_, nullptr, WNOHANG) == pid_) pid_ = -1;
  return pid_ > 0;
}

void ChildProcess::Signal(int number) {
  if (Runs()) ::kill(pid_, number);
}

void ChildProcess::AskToEnd() {
  Signal(SIGTERM);
}

void ChildProcess::End() {
  if (!Runs()) return;
  ::kill(pid_, SIGKILL);
  ::waitpid(pid_, nullptr, 0);
  pid_ = -1;
}

}  // namespace zepril
