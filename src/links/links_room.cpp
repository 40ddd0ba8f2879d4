// How the links are built, opened, watched and left.
#include "links/links_room.h"

#include "links/modem_script.h"
#include "links/setup_sequences.h"

namespace zepril {

LinksRoom::LinksRoom(LinksSections sections, LinksControls controls, LinksTools tools)
    : Remote(sections.Radio, sections.Identity, sections.Transmission, tools.Winsock1,
             tools.LocalClock, tools.Boxes, tools.Program),
      Local(sections.Radio, tools.Winsock1, tools.LocalClock),
      Modem(sections.Identity, sections.Radio, sections.Transmission,
            {tools.MSComm1, tools.LocalClock, tools.LongWork}),
      Heard(sections.Radio, sections.Received, Local, tools.MSComm1, tools.LocalClock),
      Radios({sections.Identity, sections.Radio, sections.Received, sections.Transmission},
             {Local, Remote, Modem, tools.MSComm1, tools.LocalClock}),
      Talk(sections.Radio, controls.Talk,
           {tools.MSComm1, tools.Map, tools.Timer1, tools.Timer2, tools.Boxes}),
      OtherMode(sections.Radio, controls.Raw, controls.Talk, tools.MSComm1),
      Watch(sections.Radio, controls.Status,
            {Radios, tools.LocalClock, [this] { return CycleIsHeld && CycleIsHeld(); }}),
      sections_(sections),
      controls_(controls),
      tools_(tools) {
  BindModem();
  Talk.MayOpen = [this] { return !Modem.IsBusy(); };
  Talk.Changed = [this] { TerminalOpenedOrClosed(); };
}

void LinksRoom::BindModem() {
  // While the terminal is open no timer brings its text to the screen: what arrives is a step then.
  Modem.DataArrived = [this] {
    const auto take = [this] { Talk.DataArrived(); };
    Talk.IsOpen() ? tools_.Steps.RunStep(take) : take();
  };
  Modem.MayReopen = [this] { return !Talk.IsOpen() && !(InTick && InTick()); };
}

bool LinksRoom::Open() {
  RadioLink* link = Radios.Active();
  if (!link) return true;
  const bool opened = link->Open();
  if (link->HasTerminal()) {
    Talk.Enable();
    Watch.ShowNotice();
  }
  return opened;
}

void LinksRoom::Leave() {
  Talk.WipeHalfLine();
  if (RadioLink* link = Radios.Active()) link->Leave();
}

void LinksRoom::ClosePort() {
  for (const DrivenTimer& timer : Timers())
    timer.Subject->Stop();
  tools_.MSComm1.Close();
}

std::vector<DrivenTimer> LinksRoom::Timers() {
  return {{&Remote.LookTimer(), true}, {&Local.LookTimer(), true}, {&Modem.ReopenTimer, true}};
}

void LinksRoom::RunTerminalHandler() {
  if (Talk.IsOpen()) Talk.Open();
}

void LinksRoom::KeepSecondModeMonitored() {
  // It may have been opened within the tick.
  if (Talk.IsOpen()) return;
  RunModemScript(SecondModeScript(sections_.Radio, true), tools_.MSComm1, tools_.LocalClock);
}

void LinksRoom::TerminalOpenedOrClosed() {
  if (Talk.IsOpen()) sections_.Received.ForgetModemText();
  if (TerminalChanged) TerminalChanged();
  controls_.Talk.Command65.Enabled = !Talk.IsOpen();
}

}  // namespace zepril
