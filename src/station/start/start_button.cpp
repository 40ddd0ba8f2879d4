// What START does, in order.
#include "station/start/start_button.h"

#include <cmath>
#include <initializer_list>
#include <string>

#include "core/text_fields.h"
#include "core/texts/boxes.h"
#include "core/texts/notices.h"
#include "core/texts/status_texts.h"
#include "gps/vector_import.h"
#include "station/start/modem_set_up.h"
#include "station/start/start_progress.h"

namespace zepril {
namespace {

constexpr std::size_t kShortestCall = 3;
constexpr int kBarSteps = 1000;

}  // namespace

StartButton::StartButton(StartPanelControls& controls, StartButtonParts parts,
                         StartSettingsPlace settings, StartButtonMachine machine)
    : controls_(controls), parts_(parts), settings_(settings), machine_(machine) {
  controls_.SetupText.Visible = false;
  controls_.SetupBar.Visible = false;
  controls_.SetupBar.FullWidthPx = kBarSteps;
  controls_.Command1.Click = [this] { Command1Click(); };
  controls_.Text8.Change = [this] { controls_.Fault.Caption.clear(); };
}

void StartButton::Command1Click() {
  // A second press while the first is under way does nothing.
  if (starting_) return;
  starting_ = true;
  if (!CallIsThere()) {
    starting_ = false;
    return;
  }
  // Shown at once, with nothing to be changed from here on.
  controls_.Command1.Caption = parts_.Interfaces.Chosen().Starting;
  EnableFields(false);
  machine_.LocalClock.HandOver();
  if (!parts_.Fields.Store()) {
    controls_.Command1.Caption = status_texts::kStart;
    EnableFields(true);
    starting_ = false;
    return;
  }
  SetUpModem();
  // With every interface: what outings have left behind.
  StartProgress progress(machine_.LocalClock, controls_);
  ImportVectorFiles(settings_.Disk, settings_.ProgramFolder, machine_.LocalClock, progress);
  if (Started) Started();
}

bool StartButton::CallIsThere() {
  if (Trim(controls_.Text8.Text).size() >= kShortestCall) return true;
  machine_.Boxes.Tell(boxes::kStartTitle, boxes::kSetUserCall);
  controls_.Fault.Caption = notices::kCallWanted;
  controls_.Text8.FocusWanted = true;
  return false;
}

void StartButton::EnableFields(bool enabled) {
  parts_.Interfaces.Enable(enabled);
  StartPanelControls& c = controls_;
  for (Control* field :
       std::initializer_list<Control*>{&c.Text8, &c.Text5, &c.Text1, &c.Text3, &c.Text4, &c.Text6,
                                       &c.Text17, &c.SetClockBox, &c.Check8}) {
    field->Enabled = enabled;
  }
  for (TextBox* field : {&c.Text15, &c.Text16})
    field->Enabled = enabled && c.Check8.Value == 0;
  controls_.Command14.Enabled = enabled && parts_.Interfaces.Chosen().MayGate();
  controls_.Command1.Enabled = enabled;
}

void StartButton::SetUpModem() {
  if (!parts_.Interfaces.Chosen().Serial()) return;
  const std::string port = parts_.Ports.ShownPort();
  const std::string speed(Trim(controls_.Text4.Text));
  controls_.SetupText.Visible = true;
  controls_.SetupBar.Visible = true;
  SerialPort& modem = machine_.Modem;
  modem.ForgetDevice();
  LeaveConverseOfLastRun(settings_.Values, settings_.Disk, settings_.ProgramFolder, modem,
                         machine_.LocalClock);
  const auto show = [&](const SetUpProgress& progress) {
    controls_.SetupText.Caption =
        status_texts::kModemSetUp.With({ShortNumber(std::ceil(progress.SecondsLeft)), port, speed});
    controls_.SetupBar.FilledPx = static_cast<int>(progress.Share * kBarSteps);
    controls_.PortFault.Caption = progress.Trouble;
    // Nothing can be changed here meanwhile, but the window can be closed.
    machine_.LocalClock.HandOver();
  };
  modem_is_set_up_ = TncSetup(settings_.Values, modem, machine_.LocalClock, show);
  // A close that was asked for meanwhile is heard before the main window opens.
  machine_.LocalClock.HandOver();
}

}  // namespace zepril
