#include "tool/air_command.h"

#include <signal.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <utility>

#include "core/text_fields.h"
#include "platform/native/system_clock.h"
#include "tool/arguments.h"

namespace zepril {
namespace {

constexpr std::array<ArgumentRule, 4> kRules{
    {{"--agw", true}, {"--play", true}, {"--rate", true}, {"--repeat", false}}};

constexpr int kFailure = 1;
constexpr std::size_t kLargestScript = 64u << 20;
constexpr double kPauseBeforeRepeat = 1.0;  // seconds of the script
constexpr double kLongestWait = 0.1;        // seconds; how late an end may be noticed
constexpr double kHighestRate = 1000.0;

sigset_t EndSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  sigaddset(&signals, SIGINT);
  return signals;
}

// The script file, by its native path; nothing when it can't be read or is too large.
std::optional<std::string> ReadScriptFile(const std::string& path) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                             std::fclose);
  if (!file) return std::nullopt;
  std::string text;
  std::array<char, 1u << 16> block;
  while (const std::size_t length = std::fread(block.data(), 1, block.size(), file.get())) {
    text.append(block.data(), length);
    if (text.size() > kLargestScript) return std::nullopt;
  }
  return std::ferror(file.get()) == 0 ? std::optional<std::string>(std::move(text)) : std::nullopt;
}

// The end signals are blocked while the engine runs; this tells whether one is waiting.
bool EndIsPending() {
  sigset_t pending;
  sigemptyset(&pending);
  if (sigpending(&pending) != 0) return false;
  return sigismember(&pending, SIGTERM) == 1 || sigismember(&pending, SIGINT) == 1;
}

// Holds the end signals back for as long as it lives.
class HeldEndSignals {
 public:
  HeldEndSignals() {
    const sigset_t signals = EndSignals();
    sigprocmask(SIG_BLOCK, &signals, &before_);
  }
  ~HeldEndSignals() {
    // What has been noticed is taken, so that the ordinary end follows and not the signal's.
    int taken = 0;
    const sigset_t signals = EndSignals();
    while (EndIsPending())
      sigwait(&signals, &taken);
    sigprocmask(SIG_SETMASK, &before_, nullptr);
  }
  HeldEndSignals(const HeldEndSignals&) = delete;
  HeldEndSignals& operator=(const HeldEndSignals&) = delete;

 private:
  sigset_t before_{};
};

void PlayUntilEnd(AgwServer& server, AirPlay& play, const Clock& clock) {
  while (!EndIsPending()) {
    double now = clock.MonotonicSeconds();
    if (!play.Begun() && server.Monitoring() > 0) play.Begin(now);
    while (const AirPacket* packet = play.Due(now)) {
      server.Broadcast(MonitorFrame(*packet, clock.Now()));
    }
    now = clock.MonotonicSeconds();
    const double wait = std::clamp(play.SecondsToNext(now, kLongestWait), 0.001, kLongestWait);
    server.Serve(static_cast<int>(wait * 1000.0) + 1);
  }
}

}  // namespace

AirPlay::AirPlay(AirScript script, double rate, bool repeat)
    : script_(std::move(script)), rate_(rate), repeat_(repeat && !script_.Packets.empty()) {}

void AirPlay::Begin(double now) {
  begun_ = true;
  start_ = now;
  next_ = 0;
}

double AirPlay::DueAt() const {
  return start_ + script_.Packets[next_].Seconds / rate_;
}

const AirPacket* AirPlay::Due(double now) {
  if (!begun_) return nullptr;
  if (next_ == script_.Packets.size() && repeat_) {
    start_ += (script_.Packets.back().Seconds + kPauseBeforeRepeat) / rate_;
    next_ = 0;
  }
  if (next_ == script_.Packets.size() || DueAt() > now) return nullptr;
  return &script_.Packets[next_++];
}

double AirPlay::SecondsToNext(double now, double otherwise) const {
  return begun_ && next_ < script_.Packets.size() ? DueAt() - now : otherwise;
}

std::string SentLine(const AgwUnproto& unproto) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  std::string line = "SENT " + WholeNumber(unproto.Port) + ' ' + unproto.From + '>' + unproto.To;
  if (!unproto.Path.empty()) line += ',' + unproto.Path;
  line += ':';
  for (char c : unproto.Text) {
    const auto code = static_cast<std::size_t>(Asc(c));
    if (code >= 32) {
      line += c;
    } else {
      line += {'\\', 'x', kHex[code / 16], kHex[code % 16]};
    }
  }
  return line + '\n';
}

int RunAir(std::span<const std::string_view> args) {
  Arguments arguments(args, kRules);
  const int port = arguments.Whole("--agw", 0, 65535, -1);
  const auto file = arguments.Value("--play");
  const std::string_view rate_text = arguments.Value("--rate").value_or("1");
  const double rate = Val(rate_text);
  if (!arguments.Has("--agw") || !file) arguments.Fail("--agw and --play must be given");
  if (!IsNumericField(rate_text) || rate <= 0 || rate > kHighestRate) {
    arguments.Fail("--rate must be a number over 0, at most 1000");
  }
  if (arguments.Failed()) return arguments.Report("air");

  const auto text = ReadScriptFile(std::string(*file));
  if (!text) {
    arguments.Fail("can't read " + std::string(*file));
    arguments.Report("air");
    return kFailure;
  }
  AirScript script = ReadAirScript(*text);
  if (script.Refused > 0) {
    std::fprintf(stderr, "zepril-tool air: %zu lines are no packets\n", script.Refused);
  }

  const HeldEndSignals held;
  const std::unique_ptr<AgwServer> server = AgwServer::Open(port);
  if (!server) {
    arguments.Fail("can't listen on that port");
    arguments.Report("air");
    return kFailure;
  }
  const auto print = [](const std::string& line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fflush(stdout);
  };
  server->Sent = [&print](const AgwUnproto& unproto) { print(SentLine(unproto)); };
  print("READY " + WholeNumber(server->Port()) + "\n");
  AirPlay play(std::move(script), rate, arguments.Has("--repeat"));
  PlayUntilEnd(*server, play, SystemClock());
  return 0;
}

}  // namespace zepril
