// Starts processes, looks through the list of them, signals those that were started here.
#include "platform/native/companion_processes.h"

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace zepril {
namespace {

constexpr int kFirstInherited = 3;  // descriptor behind the three standard ones

std::optional<std::string> RealPath(const std::string& path) {
  const std::unique_ptr<char, void (*)(void*)> real(::realpath(path.c_str(), nullptr), std::free);
  return real ? std::optional<std::string>(real.get()) : std::nullopt;
}

// The first two words of a process's command, with NUL behind each.
std::string CommandOf(const std::string& process) {
  constexpr std::size_t kLongest = std::size_t{2} * PATH_MAX;
  const int file = ::open(("/proc/" + process + "/cmdline").c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return {};
  std::string words(kLongest, '\0');
  const ssize_t length = ::read(file, words.data(), words.size());
  ::close(file);
  words.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return words;
}

std::string ProgramOf(const std::string& process) {
  std::array<char, PATH_MAX> target{};
  const ssize_t length =
      ::readlink(("/proc/" + process + "/exe").c_str(), target.data(), target.size());
  return {target.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
}

// The names of the programs that a script's first line calls: "#!/usr/bin/env bash" gives "env" and
// "bash". Empty for what is no script.
std::vector<std::string> InterpretersOf(const std::string& script) {
  constexpr std::size_t kLongestLine = 256;
  const int file = ::open(script.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return {};
  std::string line(kLongestLine, '\0');
  const ssize_t length = ::read(file, line.data(), line.size());
  ::close(file);
  line.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  line.resize(std::min(line.find('\n'), line.size()));
  std::vector<std::string> names;
  if (!line.starts_with("#!")) return names;
  for (std::size_t at = 2; at < line.size();) {
    const std::size_t end = std::min(line.find_first_of(" \t\r", at), line.size());
    const std::string word = line.substr(at, end - at);
    if (!word.empty()) names.push_back(word.substr(word.rfind('/') + 1));
    at = end + 1;
  }
  return names;
}

// Its interpreter has the script as its first argument. An editor with the script open has not.
bool InterpretsScript(const std::string& process, const std::string& path,
                      const std::string& real) {
  const std::string command = CommandOf(process);
  const std::size_t first_end = command.find('\0');
  if (first_end == std::string::npos) return false;
  const std::string second = command.c_str() + first_end + 1;
  if (second != path && second != real) return false;
  const std::string first = command.substr(0, first_end);
  const std::vector<std::string> names = InterpretersOf(real);
  return std::find(names.begin(), names.end(), first.substr(first.rfind('/') + 1)) != names.end();
}

bool RunsProgram(const std::string& process, const std::string& path, const std::string& real) {
  return ProgramOf(process) == real || InterpretsScript(process, path, real);
}

int NumberOf(const std::string& digits) {
  int number = 0;
  for (const char digit : digits)
    number = 10 * number + (digit - '0');
  return number;
}

struct SpawnActions {
  SpawnActions() { posix_spawn_file_actions_init(&Value); }
  ~SpawnActions() { posix_spawn_file_actions_destroy(&Value); }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;
  posix_spawn_file_actions_t Value{};
};

struct SpawnAttributes {
  SpawnAttributes() { posix_spawnattr_init(&Value); }
  ~SpawnAttributes() { posix_spawnattr_destroy(&Value); }
  SpawnAttributes(const SpawnAttributes&) = delete;
  SpawnAttributes& operator=(const SpawnAttributes&) = delete;
  posix_spawnattr_t Value{};
};

pid_t Spawn(const std::string& path, const std::string& folder) {
  SpawnActions actions;
  posix_spawn_file_actions_addopen(&actions.Value, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions.Value, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_adddup2(&actions.Value, STDOUT_FILENO, STDERR_FILENO);
  posix_spawn_file_actions_addchdir_np(&actions.Value, folder.c_str());
  posix_spawn_file_actions_addclosefrom_np(&actions.Value, kFirstInherited);
  SpawnAttributes attributes;
  sigset_t none;
  sigemptyset(&none);
  posix_spawnattr_setsigmask(&attributes.Value, &none);
  posix_spawnattr_setflags(&attributes.Value, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSID);
  std::string name = path;
  char* arguments[] = {name.data(), nullptr};
  pid_t process = 0;
  const int trouble =
      ::posix_spawn(&process, path.c_str(), &actions.Value, &attributes.Value, arguments, environ);
  return trouble == 0 ? process : 0;
}

}  // namespace

CompanionProcesses::~CompanionProcesses() {
  for (const auto& [path, process] : own_)
    ::waitpid(process, nullptr, WNOHANG);
}

bool CompanionProcesses::Start(const std::string& path) {
  const auto real = RealPath(path);
  if (!real) return false;
  const pid_t process = Spawn(*real, real->substr(0, real->rfind('/') + 1));
  if (process == 0) return false;
  own_[path] = process;
  return true;
}

pid_t CompanionProcesses::OwnProcess(const std::string& path) {
  const auto found = own_.find(path);
  if (found == own_.end()) return 0;
  if (::waitpid(found->second, nullptr, WNOHANG) == 0) return found->second;
  own_.erase(found);
  return 0;
}

int CompanionProcesses::ProcessOf(const std::string& path) {
  if (const pid_t own = OwnProcess(path); own != 0) return own;
  const auto real = RealPath(path);
  const std::unique_ptr<DIR, int (*)(DIR*)> list(::opendir("/proc"), ::closedir);
  if (!real || !list) return 0;
  while (const dirent* entry = ::readdir(list.get())) {
    const std::string process = entry->d_name;
    if (process.find_first_not_of("0123456789") != std::string::npos) continue;
    if (RunsProgram(process, path, *real)) return NumberOf(process);
  }
  return 0;
}

void CompanionProcesses::AskToClose(const std::string& path) {
  if (const pid_t own = OwnProcess(path); own != 0) ::kill(own, SIGTERM);
}

}  // namespace zepril
