// An empty field leaves what the settings hold; of the port fields those of the chosen interface
// are taken.
#include "station/start/field_store.h"

#include "config/ports_file.h"
#include "core/text_fields.h"
#include "core/texts/boxes.h"
#include "station/start/port_choice.h"

namespace zepril {
namespace {

// Numbers that a device is kept under where the settings hold none that can be.
constexpr int kUsualPk232Port = 2;
constexpr int kUsualScsPort = 3;

}  // namespace

FieldStore::FieldStore(const StartPanelControls& controls, RadioInterfaces& interfaces,
                       PortFields& ports, const DeviceList& devices, StartSettingsPlace settings,
                       Dialogs& dialogs)
    : controls_(controls),
      interfaces_(interfaces),
      ports_(ports),
      devices_(devices),
      settings_(settings.Values),
      program_folder_(settings.ProgramFolder),
      files_(settings.Disk),
      dialogs_(dialogs) {}

bool FieldStore::Store() {
  TakeFields();
  if (!TakeInterface()) return CantWrite("PORTS.TXT");
  return StoreHeld();
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

// False when the device that was chosen can't be kept.
bool FieldStore::TakeInterface() {
  ports_.Keep();
  const RadioInterface& chosen = interfaces_.Chosen();
  settings_.Radio.RadioMode = static_cast<int>(chosen.Mode);
  if (chosen.Texts == nullptr) return true;
  if (chosen.Serial()) return TakeModem(chosen);
  TakeHost(*chosen.Texts);
  return true;
}

void FieldStore::TakeHost(const PortTexts& typed) {
  if (!Trim(typed.Port).empty()) settings_.Radio.AgwHost = Trim(typed.Port);
  if (!Trim(typed.Speed).empty()) settings_.Radio.AgwTcpPort = Trim(typed.Speed);
}

bool FieldStore::TakeModem(const RadioInterface& chosen) {
  RadioState& radio = settings_.Radio;
  PortTexts& typed = *chosen.Texts;
  const bool pk232 = chosen.Texts == &interfaces_.Pk232;
  const std::string speed(Trim(typed.Speed));
  if (!speed.empty()) (pk232 ? radio.TncBaud : radio.ScsBaud) = speed;
  const PortChoice choice = pk232 ? ChosenPort(typed, radio.TncPort, kUsualPk232Port, devices_)
                                  : ChosenPort(typed, radio.ScsPort, kUsualScsPort, devices_);
  if (!choice.Device.empty() &&
      !ChooseDeviceOfPort(files_, program_folder_, static_cast<int>(choice.Number),
                          choice.Device)) {
    return false;
  }
  if (pk232) {
    radio.TncPort = static_cast<int>(choice.Number);
  } else {
    radio.ScsPort = choice.Number;
  }
  typed.Held = Trim(typed.Port);
  return true;
}

}  // namespace zepril
