// Reads the play, opens its devices, and serves them until it ends or a signal comes.
#include "tool/air_command.h"

#include <signal.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "core/text_fields.h"
#include "platform/native/system_clock.h"
#include "tool/arguments.h"
#include "tool/iono_web_pages.h"
#include "tool/pk232_model.h"
#include "tool/scs_ptc_model.h"
#include "tool/scs_tnc_model.h"

namespace zepril {
namespace {

constexpr std::array<ArgumentRule, 15> kRules{{{"--agw", true},
                                               {"--aprs-is", true},
                                               {"--aprs-is-manner", true},
                                               {"--pk232", true},
                                               {"--scs-tnc", true},
                                               {"--scs-ptc", true},
                                               {"--web", true},
                                               {"--web-iono", true},
                                               {"--web-manner", true},
                                               {"--gps", true},
                                               {"--gps-route", true},
                                               {"--gps-manner", true},
                                               {"--play", true},
                                               {"--rate", true},
                                               {"--repeat", false}}};

constexpr int kFailure = 1;
constexpr std::size_t kLargestScript = 64u << 20;
constexpr double kPauseBeforeRepeat = 1.0;  // seconds of the script
constexpr double kLongestWait = 0.1;        // seconds; how late an end may be noticed
constexpr double kShortestWait = 0.001;
constexpr double kLongestTurn = 0.005;  // seconds for one device while others wait
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

using AirDevices = std::vector<std::unique_ptr<AirDevice>>;

// Gives every device its turn; none is left alone for long.
void ServeAll(const AirDevices& devices, double wait) {
  const double turn = devices.size() > 1 ? std::min(wait, kLongestTurn) : wait;
  for (const auto& device : devices)
    device->Serve(static_cast<int>(turn * 1000.0) + 1);
}

bool AnyIsListenedTo(const AirDevices& devices, double now) {
  bool any = false;
  for (const auto& device : devices)
    any = device->IsListenedTo(now) || any;
  return any;
}

void PlayUntilEnd(const AirDevices& devices, AirPlay& play, const Clock& clock) {
  while (!EndIsPending()) {
    double now = clock.MonotonicSeconds();
    if (!play.Begun() && AnyIsListenedTo(devices, now)) play.Begin(now);
    while (const AirPacket* packet = play.Due(now)) {
      for (const auto& device : devices)
        device->Hear(*packet, clock.Now());
    }
    now = clock.MonotonicSeconds();
    ServeAll(devices,
             std::clamp(play.SecondsToNext(now, kLongestWait), kShortestWait, kLongestWait));
  }
}

std::optional<std::vector<GpsPoint>> GpsRouteOf(const Arguments& arguments) {
  constexpr std::string_view kUsualRoute = "52.0,13.0;52.5,13.4";
  return ReadGpsRoute(arguments.Value("--gps-route").value_or(kUsualRoute));
}

std::optional<GpsManner> GpsMannerOf(const Arguments& arguments) {
  return GpsMannerNamed(arguments.Value("--gps-manner").value_or("mixed"));
}

void CheckGps(Arguments& arguments) {
  if (!GpsRouteOf(arguments)) arguments.Fail("--gps-route must be degrees: LAT,LON;LAT,LON");
  if (!GpsMannerOf(arguments)) arguments.Fail("no such manner of a GPS");
}

// What the arguments name; nothing when one of them can't be had, which is told.
AirDevices OpenDevices(Arguments& arguments, double rate, const ReportLine& report,
                       const Clock& clock) {
  AirDevices devices;
  if (arguments.Has("--agw")) {
    devices.push_back(OpenEngineDevice(arguments.Whole("--agw", 0, 65535, -1), report));
    if (!devices.back()) arguments.Fail("can't listen on that port");
  }
  if (arguments.Has("--web")) {
    const auto manners = WebMannersNamed(arguments.Value("--web-manner").value_or("whole"));
    const auto iono = IonoPageMannersNamed(arguments.Value("--web-iono").value_or("whole"));
    devices.push_back(OpenWebDevice(arguments.Whole("--web", 0, 65535, -1),
                                    manners.value_or(WebManners{}),
                                    IonoWebPages(iono.value_or(IonoPageManners{})), report, clock));
    if (!devices.back()) arguments.Fail("can't listen on that port");
  }
  if (arguments.Has("--aprs-is")) {
    const auto manners = AprsIsMannersNamed(arguments.Value("--aprs-is-manner").value_or(""));
    devices.push_back(OpenAprsIsDevice(arguments.Whole("--aprs-is", 0, 65535, -1),
                                       manners.value_or(AprsIsManners{}), report, clock));
    if (!devices.back()) arguments.Fail("can't listen on that port");
  }
  const auto add_modem = [&](std::string_view name, std::unique_ptr<ModemModel> model) {
    const auto link = arguments.Value(name);
    if (!link) return;
    devices.push_back(OpenModemDevice(std::string(*link), std::move(model), rate, report));
    if (!devices.back()) arguments.Fail("can't make " + std::string(*link));
  };
  add_modem("--pk232", std::make_unique<Pk232Model>());
  add_modem("--scs-tnc", std::make_unique<ScsTncModel>());
  add_modem("--scs-ptc", std::make_unique<ScsPtcModel>());
  if (const auto link = arguments.Value("--gps")) {
    devices.push_back(OpenGpsDevice(std::string(*link), *GpsRouteOf(arguments),
                                    *GpsMannerOf(arguments), rate, clock));
    if (!devices.back()) arguments.Fail("can't make " + std::string(*link));
  }
  return arguments.Failed() ? AirDevices{} : std::move(devices);
}

bool NamesADevice(const Arguments& arguments) {
  return arguments.Has("--agw") || arguments.Has("--aprs-is") || arguments.Has("--pk232") ||
         arguments.Has("--scs-tnc") || arguments.Has("--scs-ptc") || arguments.Has("--web") ||
         arguments.Has("--gps");
}

// The packets to be played, none without a file; nothing when the file can't be read.
std::optional<AirScript> ReadPlay(Arguments& arguments) {
  const auto file = arguments.Value("--play");
  if (!file) return AirScript{};
  const auto text = ReadScriptFile(std::string(*file));
  if (!text) {
    arguments.Fail("can't read " + std::string(*file));
    return std::nullopt;
  }
  AirScript script = ReadAirScript(*text);
  if (script.Refused > 0) {
    std::fprintf(stderr, "zepril-tool air: %zu lines are no packets\n", script.Refused);
  }
  return script;
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

int RunAir(std::span<const std::string_view> args) {
  Arguments arguments(args, kRules);
  for (const char* port : {"--agw", "--aprs-is", "--web"})
    arguments.Whole(port, 0, 65535, -1);
  const std::string_view rate_text = arguments.Value("--rate").value_or("1");
  const double rate = Val(rate_text);
  if (!NamesADevice(arguments))
    arguments.Fail("--agw, --pk232, --scs-tnc, --scs-ptc, --aprs-is, --web or --gps must be given");
  if (!IsNumericField(rate_text) || rate <= 0 || rate > kHighestRate) {
    arguments.Fail("--rate must be a number over 0, at most 1000");
  }
  if (const auto manner = arguments.Value("--aprs-is-manner");
      manner && !AprsIsMannersNamed(*manner)) {
    arguments.Fail("no such manner of a server: " + std::string(*manner));
  }
  if (const auto manner = arguments.Value("--web-iono"); manner && !IonoPageMannersNamed(*manner)) {
    arguments.Fail("no such manner of a page: " + std::string(*manner));
  }
  CheckGps(arguments);
  if (const auto manner = arguments.Value("--web-manner"); manner && !WebMannersNamed(*manner)) {
    arguments.Fail("no such manner of web pages: " + std::string(*manner));
  }
  if (arguments.Failed()) return arguments.Report("air");

  std::optional<AirScript> script = ReadPlay(arguments);
  const HeldEndSignals held;
  const ReportLine print = [](const std::string& line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fflush(stdout);
  };
  const SystemClock clock;
  const AirDevices devices = script ? OpenDevices(arguments, rate, print, clock) : AirDevices{};
  if (devices.empty()) {
    arguments.Report("air");
    return kFailure;
  }
  for (const auto& device : devices)
    print(device->ReadyLine());
  AirPlay play(*std::move(script), rate, arguments.Has("--repeat"));
  PlayUntilEnd(devices, play, clock);
  return 0;
}

}  // namespace zepril
