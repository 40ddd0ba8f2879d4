// Fields of the panel: shown, enabled and taken by the radio interface; START and its troubles.
#include "station/start/start_panel.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "config/modem_run_file.h"
#include "config/ports_file.h"
#include "core/port_number.h"
#include "core/text_fields.h"
#include "core/texts/boxes.h"
#include "core/texts/form0_texts.h"
#include "core/texts/notices.h"
#include "core/texts/status_texts.h"
#include "station/start/modem_set_up.h"

namespace zepril {
namespace {

constexpr std::size_t kShortestCall = 3;
// Numbers that a device is kept under where the settings hold none that can be.
constexpr int kUsualPk232Port = 2;
constexpr int kUsualScsPort = 3;
constexpr int kBarSteps = 1000;

bool HasFastSpeeds(RadioMode mode) {
  return mode == RadioMode::ScsTnc || mode == RadioMode::ScsPtc;
}

// START while it is under way: with a modem, how long its set-up takes.
Text StartingCaption(RadioMode mode) {
  switch (mode) {
    case RadioMode::Pk232:
      return status_texts::kStartPk232;
    case RadioMode::ScsTnc:
      return status_texts::kStartScsTnc;
    case RadioMode::ScsPtc:
      return status_texts::kStartScsPtc;
    default:
      return status_texts::kWorking;
  }
}

std::string ListText(const SerialDevice& device) {
  return device.Name.empty() ? device.Path : device.Path + "   " + device.Name;
}

bool IsPortNumber(double number) {
  return number == Int(number) && number >= 1 && number <= kHighestPortNumber;
}

}  // namespace

StartPanel::StartPanel(StartPanelPlatform platform, std::string program_folder,
                       const std::string& temp)
    : files_(platform.FileSystem),
      clock_(platform.LocalClock),
      dialogs_(platform.Boxes),
      modem_(platform.Modem),
      devices_(std::move(platform.Devices)),
      program_folder_(std::move(program_folder)),
      settings_(DefaultStartPanelSettings(program_folder_, temp)),
      interfaces_{{{&Controls.Option1, RadioMode::Pk232, &pk232_fields_},
                   {&Controls.Option2, RadioMode::AgwLocal, nullptr},
                   {&Controls.Option9, RadioMode::AgwRemote, &host_fields_},
                   {&Controls.Option10, RadioMode::None, nullptr},
                   {&Controls.Option11, RadioMode::ScsTnc, &scs_fields_},
                   {&Controls.Option13, RadioMode::ScsPtc, &scs_fields_}}} {
  NameStartPanel(Controls);
  Controls.SetupText.Visible = false;
  Controls.SetupBar.Visible = false;
  Controls.SetupBar.FullWidthPx = kBarSteps;
  Controls.Command1.Click = [this] { Command1Click(); };
  for (const Interface& one : interfaces_)
    one.Option->Click = [this, &one] { ChooseInterface(one); };
  Controls.Text3.Change = [this] { PortChanged(); };
  Controls.Text4.Change = [this] { SpeedChanged(); };
  Controls.Text8.Change = [this] { Controls.Fault.Caption.clear(); };
  Load();
}

// ---- Load -----------------------------------------------------------------------------------

void StartPanel::Load() {
  files_.MakeFolder(program_folder_);
  const bool configured = ReadConfigForStartPanel(files_, program_folder_, settings_);
  // A first run in another folder than the usual one finds the maps that come with it there.
  if (!configured && !files_.Exists(settings_.Identity.MapsPath)) {
    settings_.Identity.MapsPath = program_folder_ + "\\" + settings_.Identity.MapZoneName;
  }
  DeleteRunLogs();
  ShowSettings();
}

// These three logs last for one run.
void StartPanel::DeleteRunLogs() {
  const std::string folder = settings_.Identity.MapSystemFolder + "\\LOG";
  files_.MakeFolder(folder);
  for (const char* name : {"\\_LOG_.TXT", "\\_LOGL_.TXT", "\\_LOGRAW_.TXT"}) {
    files_.Remove(folder + name);
  }
}

void StartPanel::ShowSettings() {
  // The speed on the air: any text of the number 300 is that one, but for Robust Packet Radio.
  const auto mode = static_cast<RadioMode>(settings_.Radio.RadioMode);
  const bool robust = settings_.Radio.BaudMode == "300R" && HasFastSpeeds(mode);
  if (!robust && Val(settings_.Radio.BaudMode) == 300.0) settings_.Radio.BaudMode = "300";
  Controls.Text8.Text = settings_.Identity.MyCall;
  if (settings_.Identity.MapZoneName.starts_with("U"))
    Controls.Text1.Text = settings_.Identity.MapsPath;
  const std::string pk232 = PortText(settings_.Radio.TncPort);
  const std::string scs = PortText(settings_.Radio.ScsPort);
  pk232_fields_ = {pk232, settings_.Radio.TncBaud, pk232};
  scs_fields_ = {scs, settings_.Radio.ScsBaud, scs};
  host_fields_ = {settings_.Radio.AgwHost, settings_.Radio.AgwTcpPort, {}};
  const auto held = std::find_if(interfaces_.begin(), interfaces_.end(),
                                 [mode](const Interface& one) { return one.Mode == mode; });
  ChooseInterface(held != interfaces_.end() ? *held : Chosen());
  Controls.Text5.Text = settings_.Followed.Moni1Call;
  (settings_.Identity.MyCall.empty() ? Controls.Text8.FocusWanted : Controls.Command1.FocusWanted) =
      true;
}

// The device that was chosen for a port, or its number.
std::string StartPanel::PortText(double number) const {
  std::string device;
  if (IsPortNumber(number)) {
    device = DeviceOfPort(files_, program_folder_, static_cast<int>(number));
  }
  return device.empty() ? ShortNumber(number) : device;
}

// ---- The radio interface --------------------------------------------------------------------

// The packet engine on this computer where nothing else is chosen.
const StartPanel::Interface& StartPanel::Chosen() const {
  const auto found = std::find_if(interfaces_.begin(), interfaces_.end(),
                                  [](const Interface& one) { return one.Option->Value; });
  return found != interfaces_.end() ? *found : interfaces_[1];
}

void StartPanel::ChooseInterface(const Interface& chosen) {
  KeepPortFields();
  for (const Interface& one : interfaces_)
    one.Option->Value = &one == &chosen;
  FallBackToSlowSpeed();
  ShowPortFields();
}

// The other interfaces know two speeds only.
void StartPanel::FallBackToSlowSpeed() {
  if (HasFastSpeeds(Chosen().Mode)) return;
  for (const char* fast : {"300R", "9600", "19200"}) {
    if (settings_.Radio.BaudMode == fast) settings_.Radio.BaudMode = "300";
  }
}

void StartPanel::KeepPortFields() {
  if (shown_ == nullptr) return;
  shown_->Port = Controls.Text3.Text;
  shown_->Speed = Controls.Text4.Text;
}

void StartPanel::ShowPortFields() {
  const Interface& chosen = Chosen();
  shown_ = chosen.Fields;
  for (Control* control :
       {static_cast<Control*>(&Controls.PortLabel), static_cast<Control*>(&Controls.SpeedLabel),
        static_cast<Control*>(&Controls.Text3), static_cast<Control*>(&Controls.Text4)}) {
    control->Visible = shown_ != nullptr;
  }
  Controls.PortLabel.Caption = chosen.Serial() ? status_texts::kCommPort : status_texts::kHostName;
  Controls.SpeedLabel.Caption = chosen.Serial() ? status_texts::kCommBaud : status_texts::kHostPort;
  Controls.PortFault.Caption.clear();
  Controls.Text3.Text = shown_ != nullptr ? shown_->Port : std::string();
  Controls.Text4.Text = shown_ != nullptr ? shown_->Speed : std::string();
  ReadDevices();
}

void StartPanel::ReadDevices() {
  present_.clear();
  if (Chosen().Serial() && devices_) present_ = devices_();
  ComboBox& field = Controls.Text3;
  field.Items.clear();
  field.ListIndex = -1;
  for (const SerialDevice& device : present_) {
    if (!field.Text.empty() && (field.Text == device.Path || field.Text == device.StablePath)) {
      field.ListIndex = static_cast<int>(field.Items.size());
    }
    field.Items.push_back(ListText(device));
  }
}

void StartPanel::DeviceListOpens() {
  ReadDevices();
  if (Chosen().Serial() && present_.empty()) {
    Controls.PortFault.Caption = notices::kNoDevice;
  }
}

// Chosen from the list or typed.
void StartPanel::PortChanged() {
  Controls.PortFault.Caption.clear();
  if (!Chosen().Serial()) return;
  ComboBox& field = Controls.Text3;
  for (const SerialDevice& device : present_) {
    if (field.Text == ListText(device)) field.Text = device.Path;
  }
  const auto number = PortNumberOfText(field.Text);
  if (number && !IsPortNumber(*number)) {
    Controls.PortFault.Caption = notices::kPortNumbers.With({WholeNumber(kHighestPortNumber)});
  }
}

void StartPanel::SpeedChanged() {
  Controls.PortFault.Caption.clear();
  const std::string_view speed = Trim(Controls.Text4.Text);
  if (speed.empty() || Val(speed) > 0.0) return;
  Controls.PortFault.Caption = Chosen().Serial() ? notices::kSpeedIsNumber : notices::kPortIsNumber;
}

// ---- START ----------------------------------------------------------------------------------

void StartPanel::Command1Click() {
  // A second press while the first is under way does nothing.
  if (starting_) return;
  starting_ = true;
  if (!CallIsThere()) {
    starting_ = false;
    return;
  }
  // Shown at once, with nothing to be changed from here on.
  Controls.Command1.Caption = StartingCaption(Chosen().Mode);
  EnableFields(false);
  clock_.HandOver();
  if (!StoreFields()) {
    Controls.Command1.Caption = status_texts::kStart;
    EnableFields(true);
    starting_ = false;
    return;
  }
  SetUpModem();
  if (Started) Started();
}

bool StartPanel::CallIsThere() {
  if (Trim(Controls.Text8.Text).size() >= kShortestCall) return true;
  dialogs_.Tell(boxes::kStartTitle, boxes::kSetUserCall);
  Controls.Fault.Caption = notices::kCallWanted;
  Controls.Text8.FocusWanted = true;
  return false;
}

void StartPanel::EnableFields(bool enabled) {
  for (const Interface& one : interfaces_)
    one.Option->Enabled = enabled;
  for (TextBox* field : {&Controls.Text8, &Controls.Text5, &Controls.Text1, &Controls.Text4})
    field->Enabled = enabled;
  Controls.Text3.Enabled = enabled;
  Controls.Command1.Enabled = enabled;
}

bool StartPanel::StoreFields() {
  TakeFields();
  if (!TakeModem()) return CantWrite("PORTS.TXT");
  return WriteConfigFromStartPanel(files_, program_folder_, settings_) || CantWrite("ZEPRIL.INI");
}

bool StartPanel::CantWrite(const char* name) {
  dialogs_.Tell(boxes::kStartTitle, boxes::kCantWrite.With({program_folder_ + "\\" + name}));
  return false;
}

// An empty field leaves the held value.
void StartPanel::TakeFields() {
  settings_.Identity.MyCall = Upper(Trim(Controls.Text8.Text));
  TakeMapsPath();
  if (!Trim(Controls.Text5.Text).empty()) settings_.Followed.Moni1Call = Trim(Controls.Text5.Text);
}

void StartPanel::TakeMapsPath() {
  std::string maps = Upper(Trim(Controls.Text1.Text));
  if (!maps.empty() && maps.back() == '\\') maps.pop_back();
  if (!maps.empty() && settings_.Identity.MapZoneName.starts_with("U")) {
    settings_.Identity.MapsPath = maps;
    settings_.Identity.MapZoneName = Right(maps, 3);
  }
  settings_.Identity.MapSystemFolder = program_folder_ + "\\" + settings_.Identity.MapZoneName;
}

// Takes the interface and its two fields; those of the others stay as they were held. False when
// the device that was chosen can't be kept.
bool StartPanel::TakeModem() {
  KeepPortFields();
  const Interface& chosen = Chosen();
  settings_.Radio.RadioMode = static_cast<int>(chosen.Mode);
  if (chosen.Fields == nullptr) return true;
  const std::string speed(Trim(chosen.Fields->Speed));
  if (chosen.Mode == RadioMode::AgwRemote) {
    if (!Trim(chosen.Fields->Port).empty()) settings_.Radio.AgwHost = Trim(chosen.Fields->Port);
    if (!speed.empty()) settings_.Radio.AgwTcpPort = speed;
    return true;
  }
  const bool pk232 = chosen.Mode == RadioMode::Pk232;
  if (!speed.empty()) (pk232 ? settings_.Radio.TncBaud : settings_.Radio.ScsBaud) = speed;
  const PortChoice choice =
      pk232 ? ChosenPort(*chosen.Fields, settings_.Radio.TncPort, kUsualPk232Port)
            : ChosenPort(*chosen.Fields, settings_.Radio.ScsPort, kUsualScsPort);
  if (!choice.Device.empty() &&
      !ChooseDeviceOfPort(files_, program_folder_, static_cast<int>(choice.Number),
                          choice.Device)) {
    return false;
  }
  if (pk232) {
    settings_.Radio.TncPort = static_cast<int>(choice.Number);
  } else {
    settings_.Radio.ScsPort = choice.Number;
  }
  chosen.Fields->Held = Trim(chosen.Fields->Port);
  return true;
}

// The settings hold a number; a device is kept under it.
StartPanel::PortChoice StartPanel::ChosenPort(const PortFields& fields, double held,
                                              int usual_number) const {
  const std::string port(Trim(fields.Port));
  if (port.empty() || port == fields.Held) return {held, {}};
  if (const auto number = PortNumberOfText(port)) return {static_cast<double>(*number), {}};
  return {IsPortNumber(held) ? held : usual_number, StableName(port)};
}

// The name that stays with a device when others are plugged in.
std::string StartPanel::StableName(const std::string& device) const {
  const std::string path = device.find('/') == std::string::npos ? "/dev/" + device : device;
  for (const SerialDevice& present : devices_ ? devices_() : std::vector<SerialDevice>()) {
    if (present.Path == path && !present.StablePath.empty()) return present.StablePath;
  }
  return path;
}

// "port 3", or a device's name without its folders.
std::string StartPanel::ShownPort() const {
  const std::string port(Trim(Controls.Text3.Text));
  if (const auto number = PortNumberOfText(port))
    return status_texts::kPort.With({WholeNumber(*number)});
  return port.substr(port.rfind('/') + 1);
}

// After a crash the modem is still in converse: the set-up would go on the air.
void StartPanel::LeaveConverseOfLastRun() {
  const ModemRun run{settings_.Radio.RadioMode, 0, modem_.LastingName(ModemDevice(settings_))};
  const auto speed = SpeedOfModemRun(files_, program_folder_, run);
  if (speed && LeaveConverse(settings_, *speed, modem_, clock_)) {
    EndModemRun(files_, program_folder_, run);
  }
}

void StartPanel::SetUpModem() {
  if (!Chosen().Serial()) return;
  const std::string port = ShownPort();
  const std::string speed(Trim(Controls.Text4.Text));
  Controls.SetupText.Visible = true;
  Controls.SetupBar.Visible = true;
  modem_.ForgetDevice();
  LeaveConverseOfLastRun();
  modem_is_set_up_ = TncSetup(settings_, modem_, clock_, [&](const SetUpProgress& progress) {
    Controls.SetupText.Caption =
        status_texts::kModemSetUp.With({ShortNumber(std::ceil(progress.SecondsLeft)), port, speed});
    Controls.SetupBar.FilledPx = static_cast<int>(progress.Share * kBarSteps);
    Controls.PortFault.Caption = progress.Trouble;
  });
  // A close that was asked for meanwhile is heard before the main window opens.
  clock_.HandOver();
}

}  // namespace zepril
