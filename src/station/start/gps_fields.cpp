// Tells numbers, devices and files apart in the port field of the GPS.
#include "station/start/gps_fields.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "config/ports_file.h"
#include "config/window_file.h"
#include "core/port_number.h"
#include "core/text_fields.h"
#include "core/texts/notices.h"
#include "gps/nmea_source.h"
#include "station/start/port_choice.h"

namespace zepril {
namespace {

constexpr const char* kUsualSpeed = "4800";
constexpr int kUsualNumber = 4;  // those below are the modems' by default

SourceParts PartsOf(std::string_view source) {
  constexpr std::string_view kSave = "SAVE";
  const std::string text(Trim(source));
  const bool saves = Upper(text).ends_with(kSave);
  const std::string_view front =
      TrimRight(Left(text, static_cast<std::ptrdiff_t>(text.size() - (saves ? kSave.size() : 0))));
  return {std::string(front), text.substr(front.size())};
}

double NumberOf(const std::string& source) {
  const std::string front = PartsOf(source).Front;
  return PortNumberOfText(front).value_or(std::max(Val(front), 0.0));
}

// "5 SAVE" of "COM5 SAVE"; nothing without the word, and of what is no number of a port.
std::optional<std::string> PortAndRest(const SourceParts& parts) {
  const int number = PortNumberOfText(parts.Front).value_or(0);
  if (parts.Rest.empty() || number == 0) return std::nullopt;
  return WholeNumber(number) + parts.Rest;
}

}  // namespace

GpsFields::GpsFields(StartPanelControls& controls, SerialDeviceList devices,
                     StartSettingsPlace settings)
    : controls_(controls), devices_(std::move(devices), controls.Text6), settings_(settings) {
  controls_.Text6.Change = [this] { SourceChanged(); };
  controls_.Text17.Change = [this] { SpeedChanged(); };
}

void GpsFields::Show() {
  const GpsState& held = settings_.Values.Gps;
  const SourceParts parts = PartsOf(held.NmeaSource);
  shown_ = Trim(held.NmeaSource);
  if (const auto number = PortNumberOfText(parts.Front)) {
    const std::string device = DeviceOfPort(settings_.Disk, settings_.ProgramFolder, *number);
    if (!device.empty()) shown_ = device + parts.Rest;
  }
  controls_.Text6.Text = shown_;
  controls_.Text17.Text = held.NmeaBaud;
  sets_clock_ = WindowNumber(ReadWindowFile(settings_.Disk, settings_.ProgramFolder), kSetClockKey,
                             0, 1) == 1;
  controls_.SetClockBox.Value = sets_clock_ ? 1 : 0;
  ReadDevices();
  TellOfSource();
}

void GpsFields::DeviceListOpens() {
  ReadDevices();
  if (devices_.Empty()) controls_.GpsFault.Caption = notices::kNoDevice;
}

// Chosen from the list or typed.
void GpsFields::SourceChanged() {
  controls_.GpsFault.Caption.clear();
  devices_.TakeChosenRow();
  TellOfSource();
}

void GpsFields::TellOfSource() {
  const auto number = PortNumberOfText(PartsOf(controls_.Text6.Text).Front);
  if (number && *number != 0 && !IsPortNumber(*number)) {
    controls_.GpsFault.Caption = notices::kPortNumbers.With({WholeNumber(kHighestPortNumber)});
  } else if (IsNoNmeaSource(Choice().Source)) {
    controls_.GpsFault.Caption = notices::kNoGpsSource;
  }
}

void GpsFields::SpeedChanged() {
  controls_.GpsFault.Caption.clear();
  const std::string_view speed = Trim(controls_.Text17.Text);
  if (!speed.empty() && !(Val(speed) > 0.0)) {
    controls_.GpsFault.Caption = notices::kSpeedIsNumber;
  }
}

GpsChoice GpsFields::Choice() const {
  const std::string typed(Trim(controls_.Text6.Text));
  const std::string& held = settings_.Values.Gps.NmeaSource;
  if (typed.empty() || typed == shown_) return {held, NumberOf(held), {}};
  const SourceParts parts = PartsOf(typed);
  if (!IsDevice(parts)) return {PortAndRest(parts).value_or(typed), NumberOf(typed), {}};
  const std::string device = devices_.StableName(parts.Front);
  const int number = NumberForDevice(device);
  return {WholeNumber(number) + parts.Rest, static_cast<double>(number), device};
}

// With the word behind it only a port can be meant: a device that is not plugged in yet, too.
bool GpsFields::IsDevice(const SourceParts& parts) const {
  return devices_.IsDevice(parts.Front) || (!parts.Rest.empty() && parts.Front.starts_with("tty"));
}

// The number that the GPS has, else one that means nothing else.
int GpsFields::NumberForDevice(const std::string& device) const {
  const RadioState& radio = settings_.Values.Radio;
  const auto is_modems = [&radio](double number) {
    return number == radio.TncPort || number == radio.ScsPort;
  };
  const double held = NumberOf(settings_.Values.Gps.NmeaSource);
  if (IsPortNumber(held) && !is_modems(held)) return static_cast<int>(held);
  for (int number = kUsualNumber; number < kHighestPortNumber; ++number) {
    const std::string other = DeviceOfPort(settings_.Disk, settings_.ProgramFolder, number);
    if (!is_modems(number) && (other.empty() || other == device)) return number;
  }
  return kHighestPortNumber;
}

void GpsFields::Take(const GpsChoice& choice) {
  GpsState& held = settings_.Values.Gps;
  held.NmeaSource = choice.Source;
  const std::string speed(Trim(controls_.Text17.Text));
  held.NmeaBaud = Val(speed) > 0.0 ? speed : kUsualSpeed;
  if (const std::string typed(Trim(controls_.Text6.Text)); !typed.empty()) shown_ = typed;
}

bool GpsFields::StoreClockBox() {
  const bool wanted = controls_.SetClockBox.Value == 1;
  if (wanted == sets_clock_) return true;
  const WindowValues values{{kSetClockKey, wanted ? "1" : "0"}};
  if (!WriteWindowFile(settings_.Disk, settings_.ProgramFolder, values)) return false;
  sets_clock_ = wanted;
  return true;
}

}  // namespace zepril
