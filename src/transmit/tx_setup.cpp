// Binds the panel's fields, fills them, and takes them in their order on OK.
#include "transmit/tx_setup.h"

#include <array>

#include "core/baud_mode.h"
#include "core/radio_rules.h"
#include "core/text_fields.h"
#include "core/texts/notices.h"
#include "core/texts/status_texts.h"

namespace zepril {
namespace {

constexpr std::array<const char*, 5> kSpeeds{"300R", "300", "1200", "9600", "19200"};
constexpr std::array<const char*, TxSetupControls::kQuick> kQuickPaths{
    "WIDE1-1", "WIDE2-1", "WIDE2-2", "RELAY", "ECHO", "GATE"};
constexpr int kLongestInterval = 60;
constexpr int kHighestLevel = 32767;

std::string PathOf(std::string_view typed) {
  return Upper(Trim(typed));
}

}  // namespace

TxSetup::TxSetup(TxSetupSections sections, TxSetupControls& controls, TransmitControls& transmit,
                 GateControls& gate, TxSetupTools tools)
    : sections_(sections), controls_(controls), transmit_(transmit), gate_(gate), tools_(tools) {
  controls_.Frame4.Visible = false;
  transmit_.Check6.RightClick = [this] { Open(); };
  controls_.TxOk.Caption = status_texts::kOk;
  controls_.TxOk.Click = [this] { ApplyTxSetup(); };
  controls_.TxAbort.Caption = status_texts::kAbort;
  controls_.TxAbort.Click = [this] { Abort(); };
  BindFields();
  BindLines();
  BindPath();
  BindSpeeds();
}

// ---- Fields and buttons ---------------------------------------------------------------------

void TxSetup::BindFields() {
  TextBox& interval = controls_.TxInterval;
  interval.Change = [&interval] { interval.Text = IntervalText(interval.Text); };
  controls_.TxIntervalUp.Click = [&interval] {
    interval.Text = SteppedInterval(interval.Text, +1);
  };
  controls_.TxIntervalDown.Click = [&interval] {
    interval.Text = SteppedInterval(interval.Text, -1);
  };
  controls_.TxOverlayField.Change = [this] { ShowSymbol(); };
  controls_.SymbolDown.Click = [this] { StepSymbol(-1); };
  controls_.SymbolUp.Click = [this] { StepSymbol(+1); };
}

void TxSetup::BindLines() {
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line) {
    controls_.InfoField[line].GotFocus = [this, line] { focused_line_ = line; };
    controls_.InfoMemory[line].Click = [this, line] { RecallInfo(line); };
    controls_.InfoMemory[line].RightClick = [this, line] { StoreInfo(line); };
  }
}

void TxSetup::BindPath() {
  for (std::size_t at = 0; at < TxSetupControls::kPaths; ++at) {
    Button& memory = controls_.PathMemory[at];
    memory.Click = [this, &memory] { controls_.TxPathField.Text = PathOf(memory.ToolTip); };
    memory.RightClick = [this, &memory] { memory.ToolTip = PathOf(controls_.TxPathField.Text); };
  }
  for (std::size_t at = 0; at < TxSetupControls::kQuick; ++at) {
    Button& quick = controls_.PathQuick[at];
    quick.Caption = kQuickPaths[at];
    quick.Click = [this, &quick] {
      controls_.TxPathField.Text = PathWith(controls_.TxPathField.Text, quick.Caption);
    };
  }
  controls_.PathClear.Caption = status_texts::kClear;
  controls_.PathClear.Click = [this] { controls_.TxPathField.Text.clear(); };
}

void TxSetup::BindSpeeds() {
  for (std::size_t at = 0; at < kSpeeds.size(); ++at) {
    controls_.Speeds[at].Click = [this, at] { ShowSpeeds(WithSpeed(ShownSpeeds(), kSpeeds[at])); };
  }
  controls_.CrossUp.Click = [this] { ShowSpeeds(WithSecondModeStepped(ShownSpeeds(), +1)); };
  controls_.CrossDown.Click = [this] { ShowSpeeds(WithSecondModeStepped(ShownSpeeds(), -1)); };
  transmit_.Check2.Click = [this] { HfDualClicked(); };
}

void TxSetup::StepSymbol(int direction) {
  controls_.SymbolIndex = SteppedSymbol(controls_.SymbolIndex, direction);
  ShowSymbol();
}

void TxSetup::ShowSymbol() {
  controls_.SymbolName.Caption = tools_.Symbols.Name(controls_.SymbolIndex);
  tools_.Preview.Show(controls_.SymbolIndex, OverlayOf(controls_.TxOverlayField.Text));
}

void TxSetup::RecallInfo(std::size_t button) {
  std::array<std::string, TxSetupControls::kLines> lines;
  for (std::size_t line = 0; line < lines.size(); ++line)
    lines[line] = controls_.InfoField[line].Text;
  const std::string& text = controls_.InfoMemory[button].ToolTip;
  const auto target = LineForMemory(text, lines, focused_line_);
  if (target) controls_.InfoField[*target].Text = text;
}

void TxSetup::StoreInfo(std::size_t button) {
  if (!focused_line_) return;
  controls_.InfoMemory[button].ToolTip = controls_.InfoField[*focused_line_].Text;
  controls_.InfoField[*focused_line_].FocusWanted = true;
}

SpeedChoice TxSetup::ShownSpeeds() const {
  SpeedChoice choice;
  for (std::size_t at = 0; at < kSpeeds.size(); ++at) {
    if (controls_.Speeds[at].Value) choice.BaudMode = kSpeeds[at];
  }
  choice.CrossMode = controls_.CrossField.Caption;
  choice.HfDual = transmit_.Check2.Value == 1;
  choice.Digi = controls_.DigiBox.Value == 1;
  return choice;
}

void TxSetup::ShowSpeeds(const SpeedChoice& choice) {
  for (std::size_t at = 0; at < kSpeeds.size(); ++at)
    controls_.Speeds[at].Value = choice.BaudMode == kSpeeds[at];
  controls_.CrossField.Caption = choice.CrossMode;
  transmit_.Check2.Value = choice.HfDual ? 1 : 0;
  controls_.DigiBox.Value = choice.Digi ? 1 : 0;
}

void TxSetup::HfDualClicked() {
  if (transmit_.Check2.Value == 0) {
    ShowSpeeds(WithHfDualOff(ShownSpeeds()));
    return;
  }
  const HfDualFields fields =
      WithHfDualOn({ShownSpeeds(), controls_.TxPathField.Text, controls_.TxInterval.Text});
  controls_.TxPathField.Text = fields.Path;
  controls_.TxInterval.Text = fields.Interval;
  ShowSpeeds(fields.Speeds);
}

// ---- Opening --------------------------------------------------------------------------------

void TxSetup::Open() {
  if (controls_.Frame4.Visible || !transmit_.Check6.Enabled) return;
  tools_.Timer1.Stop();
  tools_.Timer2.Stop();
  FillStation();
  FillLines();
  FillRadio();
  ShowByMode();
  controls_.Frame4.Visible = true;
}

void TxSetup::FillStation() {
  const TransmissionState& own = sections_.Transmission;
  controls_.TxSsid.Text = sections_.Identity.MySsid;
  controls_.TxDestinationField.Text = own.TxDestination;
  controls_.TxPathField.Text = own.TxPath;
  for (std::size_t at = 0; at < TxSetupControls::kPaths; ++at)
    controls_.PathMemory[at].ToolTip = own.TxPathMemory[at];
  controls_.TxInterval.Text = IntervalText(WholeNumber(own.TxIntervalMinutes));
  controls_.SymbolIndex = own.TxSymbolIndex;
  controls_.TxOverlayField.Text = own.TxOverlay;
  ShowSymbol();
  controls_.TxTimestampBox.Value = own.TxTimestamp;
  gate_.Check15.Value = static_cast<int>(sections_.Internet.IGateOn);
}

void TxSetup::FillLines() {
  const TransmissionState& own = sections_.Transmission;
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line) {
    controls_.InfoField[line].Text = own.InfoLine[line];
    controls_.fr4ta[line].Value = own.InfoLineActive[line];
    controls_.InfoMemory[line].ToolTip = own.InfoLineMemory[line];
  }
}

void TxSetup::FillRadio() {
  const RadioState& radio = sections_.Radio;
  ShowSpeeds(
      {radio.BaudMode, radio.CrossMode, radio.HfDualOn == 1, radio.DigiOn == Digipeater::On});
  controls_.TxLevel.Text = WholeNumber(radio.TxAudioLevel);
}

void TxSetup::ShowByMode() {
  const bool second_mode = HasSecondMode(sections_.Radio);
  const bool level = HasFastSpeeds(ModeOf(sections_.Radio));
  controls_.TxLevelLabel.Caption = second_mode ? status_texts::kTncLevel : status_texts::kPtcLevel;
  controls_.TxLevelLabel.Visible = level;
  controls_.TxLevel.Visible = level;
  controls_.CallNotice.Caption = notices::kCallFollows;
  controls_.CallNotice.Visible = LearnsItsCallAtStartOnly(sections_.Radio);
  transmit_.Check2.Visible = second_mode;
  controls_.CrossField.Visible = second_mode;
  controls_.CrossUp.Visible = second_mode;
  controls_.CrossDown.Visible = second_mode;
  // A digipeater is possible where a gate is.
  controls_.DigiBox.Visible = GateIsPossible(sections_.Radio);
  // The other interfaces know 300 and 1200 Bd only.
  for (const std::size_t scs_only : {std::size_t{0}, std::size_t{3}, std::size_t{4}})
    controls_.Speeds[scs_only].Visible = level;
}

void TxSetup::Abort() {
  controls_.Frame4.Visible = false;
  // These boxes are read by others too: they show again what holds.
  transmit_.Check2.Value = sections_.Radio.HfDualOn;
  gate_.Check15.Value = static_cast<int>(sections_.Internet.IGateOn);
  tools_.Timer1.Enable();
}

// ---- OK -------------------------------------------------------------------------------------

void TxSetup::ApplyTxSetup() {
  // Speed, second mode, call.
  TakeRadio();
  // Interval, destination, path, symbol, lines, memories.
  TakeStation();
  TakeLines();
  ShowWorking(true);
  // The radio, the title, the file.
  ProgramRadio();
  tools_.Joins.ShowTitleMarkers();
  tools_.Settings.WriteConfigFromMainWindow();
  ShowWorking(false);
  controls_.Frame4.Visible = false;
  // The TX switch by the new interval.
  tools_.Switches.ShowInterval();
  // What is recognised as the own packet coming back; the first report leaves with the next tick.
  sections_.Reception.OwnHeaderPattern =
      OwnHeaderPatternOf(sections_.Identity.MyCallFull, sections_.Transmission.TxPath,
                         sections_.Transmission.TxDestination);
  tools_.Joins.SetLabels();
  sections_.Transmission.LastBeaconTime = 0;
  tools_.Timer1.Enable();
}

// Events come in between: nothing is confirmed twice.
void TxSetup::ShowWorking(bool working) {
  controls_.TxOk.Caption = working ? status_texts::kWorking : status_texts::kOk;
  controls_.TxOk.Enabled = !working;
  controls_.TxAbort.Enabled = !working;
}

void TxSetup::TakeRadio() {
  RadioState& radio = sections_.Radio;
  const SpeedChoice choice = ShownSpeeds();
  radio.BaudMode = choice.BaudMode;
  radio.BaudModeLabel = BaudModeLabelOf(choice.BaudMode);
  tools_.Joins.RefreshStatusLine();
  radio.CrossMode = choice.CrossMode;
  radio.HfDualOn = choice.HfDual ? 1 : 0;
  radio.DigiOn = choice.Digi ? Digipeater::On : Digipeater::Off;
  radio.TxAudioLevel =
      WholeVal(controls_.TxLevel.Text, 0, kHighestLevel).value_or(radio.TxAudioLevel);
  IdentityState& own = sections_.Identity;
  own.MySsid = Trim(controls_.TxSsid.Text);
  own.MyCall = std::string(Trim(own.MyCall));
  // Kept: whatever is typed is used, also what is no number from 1 to 15.
  own.MyCallFull = own.MySsid.empty() ? own.MyCall : own.MyCall + "-" + own.MySsid;
}

void TxSetup::TakeStation() {
  TransmissionState& own = sections_.Transmission;
  own.TxIntervalMinutes = WholeVal(controls_.TxInterval.Text, 0, kLongestInterval).value_or(0);
  own.TxDestination = PathOf(controls_.TxDestinationField.Text);
  if (own.TxDestination.empty()) own.TxDestination = "ZEPR";
  own.TxPath = PathOf(controls_.TxPathField.Text);
  for (std::size_t at = 0; at < TxSetupControls::kPaths; ++at)
    own.TxPathMemory[at] = controls_.PathMemory[at].ToolTip;
  own.TxSymbolIndex = controls_.SymbolIndex;
  own.TxOverlay = OverlayOf(controls_.TxOverlayField.Text);
  own.TxTimestamp = controls_.TxTimestampBox.Value;
  // A hidden switch changes nothing.
  if (gate_.Check15.Visible) sections_.Internet.IGateOn = static_cast<Gate>(gate_.Check15.Value);
}

void TxSetup::TakeLines() {
  TransmissionState& own = sections_.Transmission;
  for (std::size_t line = 0; line < TxSetupControls::kLines; ++line) {
    own.InfoLine[line] = Trim(controls_.InfoField[line].Text);
    own.InfoLineActive[line] = controls_.fr4ta[line].Value;
    own.InfoLineMemory[line] = controls_.InfoMemory[line].ToolTip;
  }
}

void TxSetup::ProgramRadio() {
  if (RadioLink* link = tools_.Links.Active()) link->TakeNewSettings(tools_.LongWork);
  if (tools_.Joins.CompanionFollows) tools_.Joins.CompanionFollows();
}

}  // namespace zepril
