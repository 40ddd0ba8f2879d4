// Tells ports from files, opens the one and consumes the other.
#include "gps/nmea_source.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "core/port_number.h"
#include "core/text_fields.h"
#include "core/texts/gps_texts.h"
#include "gps/file_age.h"

namespace zepril {
namespace {

constexpr std::size_t kShortestFileName = 4;
constexpr std::string_view kDeviceFolder = "/dev/";

// Every line with CR LF behind it, the last one too.
std::string WithLineEnds(std::string_view text) {
  std::string lines;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find_first_of("\r\n"), text.size());
    lines.append(text.substr(0, length)).append("\r\n");
    text.remove_prefix(length);
    text.remove_prefix(text.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, text.size()));
  }
  return lines;
}

// Of a text without a number in front.
bool IsFileName(std::string_view source) {
  const std::string_view name = Trim(source);
  return name.size() >= kShortestFileName && InStr(Upper(name), "SAVE") == 0;
}

bool MeansFile(std::string_view source) {
  return Val(source) == 0.0 && IsFileName(source);
}

bool HoldsSentences(std::string_view lines) {
  for (const std::string_view word : {"RMC,", "GGA,", "GLL,", "\n$"}) {
    if (lines.find(word) != std::string_view::npos) return true;
  }
  return lines.starts_with('$');
}

bool IsDevice(const Files& disk, const std::string& path) {
  const auto found = disk.Stamp(path);
  return found && !found->IsRegular && !found->IsFolder;
}

}  // namespace

bool IsNoNmeaSource(std::string_view setting) {
  const std::string_view source = Trim(setting);
  if (source.empty() || source.starts_with('0') || MeansFile(source)) return false;
  return !(Val(source) > 0.0) && PortNumberOfText(source).value_or(0) == 0;
}

NmeaSource::NmeaSource(GpsState& gps, SerialPort& port, Files& disk, const Clock& clock)
    : gps_(gps), port_(port), disk_(disk), clock_(clock) {
  ReopenTimer.Elapsed = [this] {
    port_text_ = PortText();
    if (!port_text_.empty() && !port_.IsOpen()) port_.Reopen(port_text_, Baud());
  };
}

NmeaSource::~NmeaSource() {
  if (opened_) port_.DataArrived = nullptr;
}

// ---- What the setting means -------------------------------------------------------------------

std::string NmeaSource::PortText() const {
  return port_text_.empty() ? FindPort() : port_text_;
}

std::string NmeaSource::FindPort() const {
  const std::string source(Trim(gps_.NmeaSource));
  if (const double number = Val(source); number > 0.0) return ShortNumber(Fix(number));
  if (const auto number = PortNumberOfText(source); number && *number > 0) return source;
  if (!IsFileName(source)) return {};
  const bool is_path = source.find_first_of("/\\:") != std::string::npos;
  const bool is_device = is_path ? source.starts_with(kDeviceFolder) || IsDevice(disk_, source)
                                 : IsDevice(disk_, std::string(kDeviceFolder) + source);
  return is_device ? source : std::string();
}

bool NmeaSource::IsThere() const {
  return !PortText().empty() || MeansFile(gps_.NmeaSource);
}

int NmeaSource::Baud() const {
  constexpr int kMostBaud = 4'000'000;
  return WholeVal(gps_.NmeaBaud, 0, kMostBaud).value_or(0);
}

std::string NmeaSource::Trouble() const {
  return PortText().empty() ? file_trouble_ : port_.Trouble();
}

// ---- Port -------------------------------------------------------------------------------------

void NmeaSource::Open() {
  Close();
  if (!IsThere()) return;
  opened_ = true;
  port_.DataArrived = [this] { Drain(); };
  port_text_ = FindPort();
  if (!port_text_.empty()) {
    port_.ForgetDevice();
    port_.Open(port_text_, Baud());
    gps_.NmeaDevice = port_.LastingName(port_text_);
  }
  // A device of the name of a file that is not there yet may come too.
  ReopenTimer.Arm(kReopenMilliseconds);
}

void NmeaSource::Close() {
  ReopenTimer.Stop();
  port_text_.clear();
  if (opened_) port_.DataArrived = nullptr;
  opened_ = false;
  if (port_.IsOpen()) port_.Close();
}

// Taken as it comes: between two ticks more may come than the port holds.
void NmeaSource::Drain() {
  Add(port_.ReadAll(), 0.0);
}

void NmeaSource::Take() {
  if (!PortText().empty()) {
    Drain();
  } else if (IsThere()) {
    TakeFile();
  }
}

void NmeaSource::Add(std::string_view text, double age) {
  if (text.empty()) return;
  gps_.NmeaBuffer += Right(text, GpsState::kLongestBuffer);
  gps_.NmeaBuffer = Right(gps_.NmeaBuffer, GpsState::kLongestBuffer);
  count_ += static_cast<std::int64_t>(text.size());
  const double now = clock_.MonotonicSeconds();
  arrivals_.push_back({count_, now - age, now});
  const std::int64_t gone = count_ - static_cast<std::int64_t>(gps_.NmeaBuffer.size());
  while (arrivals_.front().End <= gone)
    arrivals_.pop_front();
}

const NmeaSource::Arrival& NmeaSource::ArrivalOf(std::size_t place) const {
  assert(place < gps_.NmeaBuffer.size() && !arrivals_.empty());
  const std::int64_t behind = static_cast<std::int64_t>(gps_.NmeaBuffer.size() - place);
  return *std::upper_bound(
      arrivals_.begin(), arrivals_.end(), count_ - behind,
      [](std::int64_t at, const Arrival& arrival) { return at < arrival.End; });
}

double NmeaSource::SecondsSinceItCame(std::size_t place) const {
  return clock_.MonotonicSeconds() - ArrivalOf(place).CameAt;
}

double NmeaSource::SecondsSinceItWasSaid(std::size_t place) const {
  return clock_.MonotonicSeconds() - ArrivalOf(place).SaidAt;
}

// ---- File -------------------------------------------------------------------------------------

bool NmeaSource::CameLately() const {
  constexpr double kLately = 60.0;
  return !arrivals_.empty() && clock_.MonotonicSeconds() - arrivals_.back().CameAt <= kLately;
}

NmeaSource::FileText NmeaSource::ReadFile(const std::string& path) const {
  // As many as fill the buffer when their line ends have become two characters.
  constexpr std::int64_t kEnough = 2 * GpsState::kLongestBuffer;
  const auto found = disk_.Stamp(path);
  // Between two files there is none.
  if (!found && CameLately()) return {};
  if (!found) return {{}, {}, gps_texts::kFileAbsent.With({path})};
  if (!found->IsRegular) return {{}, {}, gps_texts::kNoFile.With({path})};
  const auto from = std::max<std::int64_t>(found->Size - kEnough, 0);
  const auto text = disk_.ReadRange(path, from, kEnough);
  if (!text) return {{}, {}, gps_texts::kFileUnread.With({path})};
  // One that has changed meanwhile, or is empty, is still being written: it is taken at the next
  // tick.
  if (text->empty() || disk_.Stamp(path) != found) return {};
  // It may be of value to somebody.
  std::string lines = WithLineEnds(*text);
  if (!HoldsSentences(lines)) return {{}, {}, gps_texts::kNoSentences.With({path})};
  return {std::move(lines), *found, {}};
}

void NmeaSource::TakeFile() {
  const std::string path(Trim(gps_.NmeaSource));
  const FileText read = ReadFile(path);
  file_trouble_ = read.Trouble;
  if (read.Text.empty()) return;
  // What stayed would be read at every tick, and its position never grow old.
  if (!disk_.Remove(path)) {
    file_trouble_ = gps_texts::kFileStays.With({path});
    return;
  }
  Add(read.Text, SecondsSinceChange(read.Stamp, clock_));
  gps_.GpsTimeValid = 1;
}

}  // namespace zepril
