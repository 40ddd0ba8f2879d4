// Joins the parts of the start panel, and shows in them what the settings hold.
#include "station/start/start_panel.h"

#include <utility>

#include "core/text_fields.h"
#include "core/texts/form0_texts.h"
#include "station/start/port_choice.h"

namespace zepril {

StartPanel::StartPanel(const Machine& machine, std::string program_folder, const std::string& temp)
    : files_(machine.FileSystem),
      modem_(machine.MakeSerialPort()),
      program_folder_(std::move(program_folder)),
      settings_(DefaultStartPanelSettings(program_folder_, temp)),
      interfaces_(Controls),
      devices_(machine.Devices, Controls.Text3),
      ports_(Controls, interfaces_, devices_),
      gps_(Controls, machine.Devices, {settings_, program_folder_, files_}),
      iono_(Controls, settings_.Internet),
      fields_(Controls, {interfaces_, ports_, gps_, iono_}, devices_,
              {settings_, program_folder_, files_}, machine.Boxes),
      server_(Controls, interfaces_, settings_, fields_),
      start_(Controls, {interfaces_, ports_, fields_}, {settings_, program_folder_, files_},
             {machine.LocalClock, machine.Boxes, *modem_}) {
  NameStartPanel(Controls);
  for (const RadioInterface& one : interfaces_.All())
    one.Option->Click = [this, &one] { ChooseInterface(one); };
  start_.Started = [this] {
    if (Started) Started();
  };
  Load();
}

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
  SayStartPanel(Controls, settings_.Settings.Language);
  Controls.Text8.Text = settings_.Identity.MyCall;
  if (settings_.Identity.MapZoneName.starts_with("U"))
    Controls.Text1.Text = settings_.Identity.MapsPath;
  ShowPorts();
  gps_.Show();
  ChooseInterface(interfaces_.OfMode(mode));
  Controls.Text5.Text = settings_.Followed.Moni1Call;
  iono_.Show();
  server_.Show();
  (settings_.Identity.MyCall.empty() ? Controls.Text8.FocusWanted : Controls.Command1.FocusWanted) =
      true;
}

void StartPanel::ShowPorts() {
  const RadioState& radio = settings_.Radio;
  const std::string pk232 = PortText(files_, program_folder_, radio.TncPort);
  const std::string scs = PortText(files_, program_folder_, radio.ScsPort);
  interfaces_.Pk232 = {pk232, radio.TncBaud, pk232};
  interfaces_.Scs = {scs, radio.ScsBaud, scs};
  interfaces_.Host = {radio.AgwHost, radio.AgwTcpPort, {}};
}

void StartPanel::ChooseInterface(const RadioInterface& chosen) {
  ports_.Keep();
  interfaces_.Choose(chosen);
  FallBackToSlowSpeed();
  server_.Follow();
  ports_.Show();
}

// The other interfaces know two speeds only.
void StartPanel::FallBackToSlowSpeed() {
  if (HasFastSpeeds(interfaces_.Chosen().Mode)) return;
  for (const char* fast : {"300R", "9600", "19200"}) {
    if (settings_.Radio.BaudMode == fast) settings_.Radio.BaudMode = "300";
  }
}

}  // namespace zepril
