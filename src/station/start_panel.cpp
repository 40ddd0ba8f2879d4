#include "station/start_panel.h"

#include <utility>

#include "core/state/radio.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kShortestCall = 3;
constexpr const char* kBoxTitle = "ZEP RIL  START";

}  // namespace

StartPanel::StartPanel(Files& files, Dialogs& dialogs, std::string program_folder,
                       const std::string& temp)
    : files_(files),
      dialogs_(dialogs),
      program_folder_(std::move(program_folder)),
      settings_(DefaultStartPanelSettings(program_folder_, temp)) {
  Controls.Command1.Caption = "START";
  Controls.Option2.Caption = "AGW PE";
  Controls.Option9.Caption = "AGW LAN";
  Controls.Option10.Caption = "-";
  Controls.Command1.Click = [this] { Command1Click(); };
  for (OptionButton* option : {&Controls.Option2, &Controls.Option9, &Controls.Option10}) {
    option->Click = [this, option] { ChooseInterface(*option); };
  }
  Controls.Text8.Change = [this] { Controls.Fault.Caption.clear(); };
  Load();
}

void StartPanel::Load() {
  files_.MakeFolder(program_folder_);
  const bool configured = ReadConfigForStartPanel(files_, program_folder_, settings_);
  // A first run in another folder than the usual one finds the maps that come with it there.
  if (!configured && !files_.Exists(settings_.MapsPath)) {
    settings_.MapsPath = program_folder_ + "\\" + settings_.MapZoneName;
  }
  DeleteRunLogs();
  ShowSettings();
}

// These three logs last for one run.
void StartPanel::DeleteRunLogs() {
  const std::string folder = settings_.MapSystemFolder + "\\LOG";
  files_.MakeFolder(folder);
  for (const char* name : {"\\_LOG_.TXT", "\\_LOGL_.TXT", "\\_LOGRAW_.TXT"}) {
    files_.Remove(folder + name);
  }
}

void StartPanel::ShowSettings() {
  Controls.Text8.Text = settings_.MyCall;
  Controls.Text3.Text = settings_.AgwHost;
  Controls.Text4.Text = settings_.AgwTcpPort;
  Controls.Text5.Text = settings_.Moni1Call;
  if (settings_.MapZoneName.starts_with("U")) Controls.Text1.Text = settings_.MapsPath;
  const auto mode = static_cast<RadioMode>(settings_.RadioMode);
  Controls.Option9.Value = mode == RadioMode::AgwRemote;
  Controls.Option10.Value = mode == RadioMode::None;
  Controls.Option2.Value = !Controls.Option9.Value && !Controls.Option10.Value;
  ShowPortFields();
  (settings_.MyCall.empty() ? Controls.Text8.FocusWanted : Controls.Command1.FocusWanted) = true;
}

// Of the radio interfaces one is chosen.
void StartPanel::ChooseInterface(const OptionButton& chosen) {
  for (OptionButton* option : {&Controls.Option2, &Controls.Option9, &Controls.Option10}) {
    option->Value = option == &chosen;
  }
  ShowPortFields();
}

void StartPanel::ShowPortFields() {
  Controls.Text3.Enabled = Controls.Option9.Value;
  Controls.Text4.Enabled = Controls.Option9.Value;
}

void StartPanel::Command1Click() {
  // A second press while the first is under way does nothing.
  if (starting_) return;
  starting_ = true;
  if (Trim(Controls.Text8.Text).size() < kShortestCall) {
    dialogs_.Tell(kBoxTitle, "SET USER CALL !");
    Controls.Fault.Caption = "your call sign, 3 characters or more";
    Controls.Text8.FocusWanted = true;
    starting_ = false;
    return;
  }
  Controls.Command1.Caption = "...";
  if (!TakeFields()) {
    dialogs_.Tell(kBoxTitle, "CAN'T WRITE  " + program_folder_ + "\\ZEPRIL.INI");
    Controls.Command1.Caption = "START";
    starting_ = false;
    return;
  }
  if (Started) Started();
}

bool StartPanel::TakeFields() {
  settings_.MyCall = Upper(Trim(Controls.Text8.Text));
  RadioMode mode = RadioMode::AgwLocal;
  if (Controls.Option9.Value) mode = RadioMode::AgwRemote;
  if (Controls.Option10.Value) mode = RadioMode::None;
  settings_.RadioMode = static_cast<int>(mode);
  std::string maps = Upper(Trim(Controls.Text1.Text));
  if (!maps.empty() && maps.back() == '\\') maps.pop_back();
  if (!maps.empty() && settings_.MapZoneName.starts_with("U")) {
    settings_.MapsPath = maps;
    settings_.MapZoneName = Right(maps, 3);
  }
  settings_.MapSystemFolder = program_folder_ + "\\" + settings_.MapZoneName;
  // An empty field leaves the held value.
  if (mode == RadioMode::AgwRemote) {
    if (!Trim(Controls.Text3.Text).empty()) settings_.AgwHost = Trim(Controls.Text3.Text);
    if (!Trim(Controls.Text4.Text).empty()) settings_.AgwTcpPort = Trim(Controls.Text4.Text);
  }
  if (!Trim(Controls.Text5.Text).empty()) settings_.Moni1Call = Trim(Controls.Text5.Text);
  return WriteConfigFromStartPanel(files_, program_folder_, settings_);
}

}  // namespace zepril
