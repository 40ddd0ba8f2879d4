// An empty field leaves what the settings hold; of the port fields those of the chosen interface
// are taken.
#include "station/start/field_store.h"

#include "config/ports_file.h"
#include "core/text_fields.h"
#include "core/texts/boxes.h"

namespace zepril {
namespace {

// Numbers that a device is kept under where the settings hold none that can be.
constexpr int kUsualPk232Port = 2;
constexpr int kUsualScsPort = 3;

}  // namespace

FieldStore::FieldStore(const StartPanelControls& controls, StartFields fields,
                       const DeviceList& devices, StartSettingsPlace settings, Dialogs& dialogs)
    : controls_(controls),
      interfaces_(fields.Interfaces),
      ports_(fields.Ports),
      gps_(fields.Gps),
      devices_(devices),
      iono_(fields.Iono),
      settings_(settings.Values),
      program_folder_(settings.ProgramFolder),
      files_(settings.Disk),
      dialogs_(dialogs) {}

bool FieldStore::Store() {
  ports_.Keep();
  const RadioInterface& chosen = interfaces_.Chosen();
  const bool serial = chosen.Texts != nullptr && chosen.Serial();
  const PortChoice modem = serial ? ModemChoice(chosen) : PortChoice{};
  const GpsChoice gps = gps_.Choice();
  if (serial && IsOnePort(modem, gps)) return Conflict();
  if (!KeepDevice(modem.Number, modem.Device) || !KeepDevice(gps.Number, gps.DeviceKept)) {
    return CantWrite("PORTS.TXT");
  }
  TakeFields();
  settings_.Radio.RadioMode = static_cast<int>(chosen.Mode);
  if (serial) {
    TakeModem(chosen, modem);
  } else if (chosen.Texts != nullptr) {
    TakeHost(*chosen.Texts);
  }
  gps_.Take(gps);
  if (!gps_.StoreClockBox()) return CantWrite("WINDOW.TXT");
  return StoreHeld();
}

bool FieldStore::Conflict() {
  dialogs_.Tell(boxes::kSetupTitle, boxes::kPortConflict);
  return false;
}

bool FieldStore::StoreHeld() {
  return WriteConfigFromStartPanel(files_, program_folder_, settings_) || CantWrite("ZEPRIL.INI");
}

bool FieldStore::CantWrite(const char* name) {
  dialogs_.Tell(boxes::kStartTitle, boxes::kCantWrite.With({program_folder_ + "\\" + name}));
  return false;
}

void FieldStore::TakeFields() {
  settings_.Identity.MyCall = Upper(Trim(controls_.Text8.Text));
  TakeMapsPath();
  if (!Trim(controls_.Text5.Text).empty())
    settings_.Followed.Moni1Call = Trim(controls_.Text5.Text);
  iono_.Take();
  InternetState& server = settings_.Internet;
  server.AprsIsServer = std::string(Trim(server.AprsIsServer));
  server.AprsIsPort = std::string(Trim(server.AprsIsPort));
}

void FieldStore::TakeMapsPath() {
  std::string maps = Upper(Trim(controls_.Text1.Text));
  if (!maps.empty() && maps.back() == '\\') maps.pop_back();
  if (!maps.empty() && settings_.Identity.MapZoneName.starts_with("U")) {
    settings_.Identity.MapsPath = maps;
    settings_.Identity.MapZoneName = Right(maps, 3);
  }
  settings_.Identity.MapSystemFolder = program_folder_ + "\\" + settings_.Identity.MapZoneName;
}

void FieldStore::TakeHost(const PortTexts& typed) {
  if (!Trim(typed.Port).empty()) settings_.Radio.AgwHost = Trim(typed.Port);
  if (!Trim(typed.Speed).empty()) settings_.Radio.AgwTcpPort = Trim(typed.Speed);
}

PortChoice FieldStore::ModemChoice(const RadioInterface& chosen) const {
  const RadioState& radio = settings_.Radio;
  const PortTexts& typed = *chosen.Texts;
  return chosen.Texts == &interfaces_.Pk232
             ? ChosenPort(typed, radio.TncPort, kUsualPk232Port, devices_)
             : ChosenPort(typed, radio.ScsPort, kUsualScsPort, devices_);
}

// By the name that stays with it; empty when nothing is known to be there.
std::string FieldStore::DeviceMeant(double number, const std::string& kept) const {
  if (!kept.empty()) return kept;
  if (!IsPortNumber(number)) return {};
  const auto whole = static_cast<int>(number);
  const std::string device = DeviceOfPort(files_, program_folder_, whole);
  return device.empty() ? devices_.StableNameOfPlace(whole) : devices_.StableName(device);
}

// Kept: a file counts as port 0, and so does no GPS at all, which a modem on port 0 conflicts with.
bool FieldStore::IsOnePort(const PortChoice& modem, const GpsChoice& gps) const {
  if (modem.Number == gps.Number) return true;
  const std::string device = DeviceMeant(gps.Number, gps.DeviceKept);
  return !device.empty() && device == DeviceMeant(modem.Number, modem.Device);
}

// True as well when there is nothing to be kept.
bool FieldStore::KeepDevice(double number, const std::string& device) {
  return device.empty() ||
         ChooseDeviceOfPort(files_, program_folder_, static_cast<int>(number), device);
}

void FieldStore::TakeModem(const RadioInterface& chosen, const PortChoice& choice) {
  RadioState& radio = settings_.Radio;
  PortTexts& typed = *chosen.Texts;
  const bool pk232 = chosen.Texts == &interfaces_.Pk232;
  const std::string speed(Trim(typed.Speed));
  if (!speed.empty()) (pk232 ? radio.TncBaud : radio.ScsBaud) = speed;
  if (pk232) {
    radio.TncPort = static_cast<int>(choice.Number);
  } else {
    radio.ScsPort = choice.Number;
  }
  typed.Held = Trim(typed.Port);
}

}  // namespace zepril
