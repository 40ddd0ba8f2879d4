// How the links are built, opened, watched and left.
#include "links/links_room.h"

#include "links/modem_script.h"
#include "links/setup_sequences.h"

namespace zepril {
namespace {

constexpr double kEngineSeconds = 2.0;

}  // namespace

LinksRoom::LinksRoom(LinksSections sections, LinksControls controls, LinksTools tools)
    : Remote(sections.Radio, sections.Identity, sections.Transmission, tools.Winsock1,
             tools.LocalClock, tools.Boxes, tools.Program, ReopenTimer),
      Local(sections.Radio, tools.Winsock1, tools.LocalClock, ReopenTimer),
      Modem(sections.Identity, sections.Radio, sections.Transmission,
            {tools.MSComm1, tools.LocalClock, ReopenTimer, tools.LongWork}),
      Talk(sections.Radio, controls.Talk,
           {tools.MSComm1, tools.Map, tools.Timer1, tools.Timer2, tools.Boxes}),
      OtherMode(sections.Radio, controls.Raw, controls.Talk, tools.MSComm1),
      Watch(sections.Radio, controls.Status,
            {Remote, Local, Modem, tools.LocalClock,
             [this] { return CycleIsHeld && CycleIsHeld(); }}),
      sections_(sections),
      controls_(controls),
      tools_(tools) {
  BindModem();
  controls_.Talk.Command65.Click = [this] {
    if (!Modem.IsBusy()) Talk.Open();
  };
  Talk.Changed = [this] { TerminalOpenedOrClosed(); };
}

void LinksRoom::BindModem() {
  Modem.DataArrived = [this] { Talk.DataArrived(); };
  Modem.HeardMeanwhile = [this](const std::string& text) { sections_.Received.ModemText += text; };
  Modem.GivenUp = [this] { Watch.ShowModemTrouble(); };
  // A notice of trouble that is over goes by itself.
  Modem.Reopened = [this] {
    Watch.ShowModemTrouble();
    sections_.Received.ForgetModemText();
  };
  Modem.MayReopen = [this] { return !Talk.IsOpen() && !(InTick && InTick()); };
}

void LinksRoom::OpenLocalEngine() {
  const std::string& call = sections_.Identity.MyCallFull;
  const std::string name = call.empty() ? std::string("MYCALL") : call;
  if (Local.AGWStartPoll("ZEPRIL", name)) return;
  // The engine might just be starting.
  tools_.LocalClock.Wait(kEngineSeconds);
  Local.AGWStartPoll("ZEPRIL", name);
}

void LinksRoom::ReopenLocalEngine() {
  Local.AGWClose();
  tools_.LocalClock.Wait(kEngineSeconds);
  OpenLocalEngine();
}

void LinksRoom::OpenSerialModem() {
  Modem.Open();
  Talk.EnableFor(ModeOf(sections_.Radio));
  Watch.ShowModemTrouble();
}

void LinksRoom::LeaveSerialModem() {
  Talk.WipeHalfLine();
  Modem.Leave();
}

void LinksRoom::ClosePort() {
  ReopenTimer.Stop();
  tools_.MSComm1.Close();
}

void LinksRoom::RunTerminalHandler() {
  if (Talk.IsOpen()) Talk.Open();
}

void LinksRoom::KeepSecondModeMonitored() {
  // It may have been opened within the tick.
  if (Talk.IsOpen()) return;
  RunModemScript(SecondModeScript(true), tools_.MSComm1, tools_.LocalClock);
}

void LinksRoom::DropUnsent() {
  Modem.DropUnsent();
  Local.DropUnsent();
  Remote.DropUnsent();
}

bool LinksRoom::HasUnsentBytes() const {
  return tools_.MSComm1.IsOpen() && tools_.MSComm1.BytesToWrite() > 0;
}

void LinksRoom::TerminalOpenedOrClosed() {
  if (Talk.IsOpen()) sections_.Received.ForgetModemText();
  if (TerminalChanged) TerminalChanged();
  controls_.Talk.Command65.Enabled = !Talk.IsOpen();
}

}  // namespace zepril
