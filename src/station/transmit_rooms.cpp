// Opens, watches and leaves the modem, and runs what the tick asks of the transmitter.
#include "station/transmit_rooms.h"

#include <algorithm>
#include <utility>

#include "config/modem_run_file.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "links/setup_sequences.h"
#include "transmit/identification.h"

namespace zepril {

TransmitRooms::TransmitRooms(RuntimeState& state, MainWindowControls& controls,
                             TransmitRoomsTools tools)
    : state_(state),
      controls_(controls),
      tools_(tools),
      modem_(state.Identity, state.Radio, state.Transmission,
             {tools.Machine.MSComm1, tools.Machine.LocalClock, tools.ReopenTimer, tools.LongWork}),
      terminal_(
          state.Radio, controls.Terminal,
          {tools.Machine.MSComm1, tools.Map, tools.Timer1, tools.Timer2, tools.Machine.Boxes}),
      temporary_mode_(state.Radio, controls.Raw, controls.Terminal, tools.Machine.MSComm1),
      sender_(
          state.Radio, state.Transmission,
          {tools.LocalEngine, tools.RemoteEngine, tools.Machine.MSComm1, tools.Machine.LocalClock}),
      outcome_(controls.Transmit, tools.Machine.LocalClock),
      beacon_({state.Identity, state.Transmission, state.Map, state.Gps, state.Settings},
              {sender_, tools.Symbols, tools.Machine.FileSystem, tools.Machine.LocalClock,
               controls.Window, controls.Map}),
      switches_({state.Transmission, state.Chat, state.Gps},
                {controls.Transmit, controls.Chat, controls.Record}, beacon_, tools.Map),
      tx_symbol_(tools.Machine.TxSymbolSurface, controls.TxSetup.SymbolPicture, tools.Sheets,
                 tools.Symbols),
      object_symbol_(tools.Machine.ObjectSymbolSurface, controls.ObjectSetup.ObjectSymbolPicture,
                     tools.Sheets, tools.Symbols),
      tx_setup_({state.Identity, state.Radio, state.Transmission, state.Internet, state.Reception},
                controls.TxSetup, controls.Transmit, controls.Gate,
                {tools.Joins, tools.Settings, switches_, modem_, tools.LongWork, tools.Symbols,
                 tx_symbol_, tools.Timer1, tools.Timer2}),
      object_setup_(state.Transmission, state.Map, controls.ObjectSetup, controls.Map,
                    controls.Transmit,
                    {tools.Map, tools.Settings, tools.Symbols, object_symbol_, switches_,
                     tools.Timer1, tools.Timer2}),
      retransmission_(state.Identity, state.Radio, state.Map, controls.Record,
                      {sender_, tools.Machine.Boxes, tools.Machine.LocalClock, tools.Timer1}) {
  // What is being said to the modem is not broken into.
  sender_.HeldBack = [this] { return terminal_.IsOpen() || !modem_.MaySend(); };
  sender_.ModemFrameWritten = [this] { modem_.FrameWritten(); };
  // Off is off: nothing leaves minutes later, when a stalled line moves again.
  switches_.TurnedOff = [this] {
    modem_.DropUnsent();
    tools_.LocalEngine.DropUnsent();
    tools_.RemoteEngine.DropUnsent();
  };
  sender_.Waiting = [this] {
    return tools_.Machine.MSComm1.IsOpen() && tools_.Machine.MSComm1.BytesToWrite() > 0;
  };
  sender_.Leaving = [this] { outcome_.Leaving(); };
  sender_.Left = [this](Delivery delivery) { outcome_.Tell(delivery); };
  modem_.HeardMeanwhile = [this](const std::string& heard) { state_.Reception.ModemText += heard; };
  modem_.GivenUp = [this] { ShowLinkTrouble(); };
  BindModemRun();
  modem_.DataArrived = [this] { terminal_.DataArrived(); };
  // A notice of trouble that is over goes by itself.
  modem_.Reopened = [this] {
    ShowLinkTrouble();
    state_.Reception.ForgetModemText();
  };
  controls_.Terminal.Command65.Click = [this] {
    if (!modem_.IsBusy()) terminal_.Open();
  };
  terminal_.Changed = [this] { TerminalChanged(); };
  controls_.Status.LinkNotice.Click = [this] { controls_.Status.LinkNotice.Visible = false; };
  controls_.Transmit.NextBeacon.Colour = TxOutcome::kOnTheAir;
  controls_.Transmit.NextBeacon.Visible = false;
}

// Which modem is in converse is kept beyond the end of the run, which may come by a crash.
void TransmitRooms::BindModemRun() {
  const auto now = [this] {
    return ModemRun{state_.Radio.RadioMode, ModemBaud(state_.Radio),
                    tools_.Machine.MSComm1.LastingName(ModemDevice(state_.Radio))};
  };
  Files& files = tools_.Machine.FileSystem;
  const std::string& folder = state_.Identity.ProgramFolder;
  modem_.Memory.Begins = [&files, &folder, now] { NoteModemRun(files, folder, now()); };
  modem_.Memory.Ended = [&files, &folder, now] { EndModemRun(files, folder, now()); };
  modem_.Memory.SpeedLeftAt = [&files, &folder, now] {
    return SpeedOfModemRun(files, folder, now());
  };
}

void TransmitRooms::SetMayReopen(std::function<bool()> may_reopen) {
  modem_.MayReopen = [this, may = std::move(may_reopen)] { return !terminal_.IsOpen() && may(); };
}

void TransmitRooms::OpenSerialModem() {
  modem_.Open();
  terminal_.EnableFor(static_cast<RadioMode>(state_.Radio.RadioMode));
  ShowLinkTrouble();
}

// Once, and no box: the lamp goes on telling.
void TransmitRooms::ShowLinkTrouble() {
  Label& notice = controls_.Status.LinkNotice;
  notice.Caption = modem_.Trouble();
  notice.Visible = !notice.Caption.empty();
}

void TransmitRooms::RunTerminalHandler() {
  if (terminal_.IsOpen()) terminal_.Open();
}

void TransmitRooms::LeaveSerialModem() {
  terminal_.WipeHalfLine();
  modem_.Leave();
}

void TransmitRooms::KeepSecondModeMonitored() {
  // It may have been opened within the tick.
  if (terminal_.IsOpen()) return;
  RunModemScript(SecondModeScript(true), tools_.Machine.MSComm1, tools_.Machine.LocalClock);
}

void TransmitRooms::SendIdentification() {
  beacon_.SendIdentification(
      IdentificationText(state_.Radio, state_.Internet.IGateConnected == GateLink::Up));
}

// What would speak to the modem too waits until the terminal is closed.
void TransmitRooms::TerminalChanged() {
  const bool open = terminal_.IsOpen();
  if (open) state_.Reception.ForgetModemText();
  for (Control* control : std::initializer_list<Control*>{
           &controls_.Transmit.Check6, &controls_.TxSetup.TxOk, &controls_.Record.Label20}) {
    control->Enabled = !open;
    if (open && !control->ToolTip.empty()) control->ToolTip = status_texts::kNotInTerminal;
  }
  // Closed, the usual tool tips are back.
  if (!open) tools_.Joins.SetLabels();
  controls_.Terminal.Command65.Enabled = !open;
}

void TransmitRooms::ShowNextBeacon() {
  FillBar& bar = controls_.Transmit.NextBeacon;
  const TransmissionState& own = state_.Transmission;
  bar.Visible = controls_.Transmit.Check6.Value == 1 && own.TxIntervalMinutes > 0;
  if (!bar.Visible) return;
  const std::int64_t interval = 60LL * own.TxIntervalMinutes;
  const std::int64_t gone = SecondsOf(tools_.Machine.LocalClock.Now()) - own.LastBeaconTime;
  const std::int64_t shown = std::clamp<std::int64_t>(gone, 0, interval);
  bar.FilledPx = static_cast<int>(shown * bar.FullWidthPx / interval);
  bar.ToolTip = status_texts::kNextReport.With({WholeNumber((interval - shown + 59) / 60)});
}

}  // namespace zepril
