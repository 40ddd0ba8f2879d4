// Builds the station and its modem models, and runs them side by side.
#include "tests/integration/modem_station_support.h"

#include <cstdlib>
#include <filesystem>

#include "config/main_window_settings.h"
#include "core/text_fields.h"
#include "station/start/start_panel.h"
#include "tests/links/open_modem_script.h"
#include "tool/pk232_model.h"
#include "tool/scs_ptc_model.h"
#include "tool/scs_tnc_model.h"

namespace zepril {
namespace {

constexpr double kPatience = 20.0;  // seconds of the world for what a busy computer does in one

RuntimeState SettingsOf(const NativeFiles& files) {
  RuntimeState state;
  state.Identity.ProgramFolder = ModemStation::kFolder;
  NativeFiles same(files);
  ReadConfigForMainWindow(same, state);
  return state;
}

}  // namespace

ModemStation::ModemStation(RadioMode mode, const std::string& extra_settings, double hurry)
    : clock(loop, hurry), mode_(mode) {
  ::setenv("ZEPRIL_COM1", Link().c_str(), 1);
  ::setenv("ZEPRIL_COM3", Link().c_str(), 1);
  files.MakeFolder(kFolder);
  files.Write(std::string(kFolder) + "\\ZEPRIL.INI",
              "USER=QX7KB\r\nTXID=10\r\nMSYS=U33\r\nUMAPS=C:\\ZEPRIL\\U33\r\n"
              "TEMP=C:\\ZEPRIL\\TEMP\r\nMODEM=" +
                  WholeNumber(static_cast<int>(mode)) +
                  "\r\nCOM=1\r\nTBAUD=9600\r\nSCOMP=3\r\nSBAUD=38400\r\nHBAUD=300\r\n"
                  "CALL=QX1AB-9\r\nLOGS=1\r\nIONA=0\r\nUTN=5800\r\nUTE=400\r\n"
                  "TXON=10\r\nTXTO=ZEPR\r\nTXPA=WIDE1-1,WIDE2-1\r\nTXSY=30\r\nTXI1=Test\r\n"
                  "TXI1A=1\r\nTXI2A=0\r\nTXI3A=0\r\nTXI4A=0\r\nTXI5A=0\r\nTXI6A=0\r\n"
                  "UUN=5395.276\r\nUUE=-10.523\r\nONAM=WORKS\r\nOTXT=one lane\r\nOSYM=82\r\n"
                  "OUTN=5817.860\r\nOUTE=391.394\r\n" +
                  extra_settings);
  Make();
}

void ModemStation::Make() {
  program = std::make_unique<StationProgram>(
      MachineOf(files, clock, loop, dialogs, desktop, {{&socket}, {&port}, Surfaces()}));
  for (const DrivenTimer& timer : program->Timers())
    clock.Drive(timer);
}

ModemStation::~ModemStation() {
  clock.ForgetTimers();
  ::unsetenv("ZEPRIL_COM1");
  ::unsetenv("ZEPRIL_COM3");
  ::unsetenv("ZEPRIL_SERIAL_BY_ID");
}

void ModemStation::PlayAdapters() {
  std::filesystem::create_directory(folder.Sub("by-id"));
  ::setenv("ZEPRIL_SERIAL_BY_ID", folder.Sub("by-id").c_str(), 1);
  ::unsetenv("ZEPRIL_COM1");
  ::unsetenv("ZEPRIL_COM3");
  const std::string ini = std::string(kFolder) + "\\ZEPRIL.INI";
  const std::string text = files.ReadAll(ini, 1 << 20).value_or("");
  files.Write(
      ini, "SCOMP=1\r\n" + text.substr(0, text.find("SCOMP=")) + text.substr(text.find("SBAUD=")));
}

void ModemStation::Crash() {
  clock.ForgetTimers();
  program.reset();
  port.Close();
  Make();
}

ModemScript ModemStation::SetUp() const {
  const RuntimeState state = SettingsOf(files);
  return TncSetupScript({state.Identity, state.Radio, state.Transmission});
}

ModemScript ModemStation::Opening() const {
  const RuntimeState state = SettingsOf(files);
  return OpenModemScript({state.Identity, state.Radio, state.Transmission});
}

bool ModemStation::PressStart() {
  StartPanel panel(MachineOf(files, clock, loop, dialogs, desktop, {{}, {&port}, {}}), kFolder, "");
  bool started = false;
  panel.Started = [&] { started = true; };
  panel.Controls.Command1.Click();
  if (!panel.ModemIsSetUp()) program->ModemWasNotSetUp();
  return started;
}

bool ModemStation::RunUntil(const std::function<bool()>& done) {
  const double end = loop.MonotonicSeconds() + kPatience;
  while (!done()) {
    if (loop.MonotonicSeconds() > end) return false;
    Run(0.2);
  }
  return true;
}

bool ModemStation::Comes(const std::function<bool()>& done) {
  const double end = loop.MonotonicSeconds() + kPatience;
  while (!done()) {
    if (loop.MonotonicSeconds() > end) return false;
    loop.Wait(0.005);
  }
  return true;
}

std::unique_ptr<ModemModel> MakeModel(RadioMode mode) {
  switch (mode) {
    case RadioMode::Pk232:
      return std::make_unique<Pk232Model>();
    case RadioMode::ScsTnc:
      return std::make_unique<ScsTncModel>();
    default:
      return std::make_unique<ScsPtcModel>();
  }
}

std::unique_ptr<ModemModel> MakeModelSetUpBy(RadioMode mode, const ModemScript& set_up) {
  std::unique_ptr<ModemModel> model = MakeModel(mode);
  for (const ModemStep& step : set_up.Steps()) {
    if (step.Act == ModemAct::Send) model->Take(step.Text);
  }
  return model;
}

std::string NameOfModem(const ::testing::TestParamInfo<RadioMode>& info) {
  switch (info.param) {
    case RadioMode::Pk232:
      return "Pk232";
    case RadioMode::ScsTnc:
      return "ScsTnc";
    default:
      return "ScsPtc";
  }
}

}  // namespace zepril
