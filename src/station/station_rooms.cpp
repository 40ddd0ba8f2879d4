// What each step of tick, start and stop calls in the rooms, and how the rooms are joined.
#include "station/station_rooms.h"

#include <utility>

#include "config/main_window_settings.h"
#include "config/services_file.h"
#include "config/window_file.h"
#include "core/main_window_resize.h"
#include "core/position_text.h"
#include "core/text_fields.h"
#include "core/texts/form1_texts.h"
#include "gate/aprs_is_login.h"
#include "station/data_folders.h"
#include "station/initial_controls.h"
#include "station/modem_memory.h"
#include "station/title_markers.h"
#include "station/view_memory.h"
#include "transmit/tx_setup_rules.h"

namespace zepril {

StationRooms::StationRooms(const Machine& machine, std::shared_ptr<SerialPort> modem)
    : machine_(machine),
      winsock1_(machine.MakeSocket()),
      winsock2_(machine.MakeSocket()),
      mscomm1_(modem ? std::move(modem) : machine.MakeSerialPort()),
      Surfaces(machine.MakeSurface),
      Settings(State, machine.FileSystem, Timer1),
      LongWork(machine.LocalClock, Controls.Progress),
      Map({State.Map, State.Stores, State.Followed, State.Gps, State.Transmission, State.Identity,
           State.Places, State.Internet, State.Settings},
          {Controls.Window, Controls.Map, Controls.Readouts, Controls.Scales, Controls.Palette,
           Controls.Moni1, Controls.MoniAll, Controls.Record, Controls.Chat, Controls.Qth},
          {machine.FileSystem, machine.LocalClock, machine.Boxes, machine.Desktop, *Surfaces.Map,
           *Surfaces.Base, Settings, Timer1, Timer2}),
      Links({State.Identity, State.Radio, State.Reception, State.Transmission},
            {Controls.Terminal, Controls.Raw, Controls.Status},
            {*winsock1_, *mscomm1_, machine.LocalClock, machine.Steps, machine.Boxes, End,
             Map.Redrawer, LongWork, Timer1, Timer2}),
      Gps({State.Identity, State.Map, State.Settings, State.Places},
          {Controls.Tracks, Controls.Map},
          {machine.FileSystem, machine.Boxes, Map.Redrawer, Settings, LongWork}),
      Viewers({State.Identity, State.Map, State.Settings, State.Places},
              {Controls.Places, Controls.Picture, Controls.Sun, Controls.Map},
              {machine.FileSystem, machine.LocalClock, machine.Boxes, machine.Desktop,
               *Surfaces.Sun, Map.Redrawer, Settings, LongWork, Timer1},
              Map.Panels),
      Internet({State.Internet, State.Map}, {Controls.Iono, Controls.Map},
               {machine.Boxes, Map.Redrawer, Settings}),
      Gateway({State.Identity, State.Radio, State.Internet}, Controls.Gate,
              {*winsock2_, machine.Programs, machine.FileSystem, machine.LocalClock}),
      Transmit({State.Identity, State.Radio, State.Transmission, State.Map, State.Gps,
                State.Settings, State.Chat, State.Internet, State.Reception},
               {Controls.Window, Controls.Map, Controls.Transmit, Controls.Chat, Controls.Gate,
                Controls.Record, Controls.TxSetup, Controls.ObjectSetup},
               {machine.FileSystem, machine.LocalClock, machine.Boxes, *Surfaces.TxSymbol,
                *Surfaces.ObjectSymbol, Links, Map.Sheets, Map.Symbols, LongWork, Map.Redrawer,
                Settings, Timer1, Timer2}),
      Messages({State.Identity, State.Radio, State.Chat, State.Stores, State.Internet,
                State.Settings, State.Services},
               {Controls.Chat, Controls.Record, Controls.Window, Controls.Map, Controls.Status},
               {machine.FileSystem, machine.LocalClock, *machine.Pages, Transmit.Sender,
                Links.Radios, Timer1, Timer2}),
      Emergencies(Map.Redrawer),
      Reception({State.Identity, State.Radio, State.Reception, State.Stores, State.Followed,
                 State.Map, State.Gps, State.Alarms, State.Settings, State.Internet},
                {Controls.Window, Controls.Map, Controls.Moni1, Controls.MoniAll, Controls.Record,
                 Controls.Status, &Controls.Raw.RawList},
                {machine.FileSystem, machine.LocalClock, machine.Boxes, Links.Heard, Map.Symbols,
                 Map.Redrawer, Settings, Emergencies, Timer1, &Gateway.Radio, &Messages.Heard}),
      RawSearch(Controls.Raw, State.Settings, Timer1),
      Cycle(State, Controls, machine.LocalClock, machine.Desktop, Timer1, Timer2, Map.Redrawer) {
  SetInitialControls(Controls);
  SetFirstView(State.Map);
  State.Map.ViewWidthPx = Surfaces.Map->Width();
  State.Map.ViewHeightPx = Surfaces.Map->Height();
  Timer1.Elapsed = [this] { Tick(); };
  Timer1.FollowClock(machine_.LocalClock);
  Timer2.Elapsed = [this] { Cycle.Timer2Elapsed(); };
  JoinTick();
  JoinRooms();
  Links.Modem.Memory = MemoryInFile(machine_.FileSystem, State.Identity, State.Radio, *mscomm1_);
}

bool StationRooms::Start(const std::string& program_folder, int colour_depth_bits) {
  const StartSteps steps = StartOrder();
  const bool started = MainWindowStart(State, Controls, machine_.LocalClock, Timer1, steps)
                           .Run(program_folder, colour_depth_bits);
  Links.Watch.Started();
  return started;
}

void StationRooms::Stop(bool by_operator) {
  const StopSteps steps = StopOrder();
  MainWindowStop(Controls, Timer1, Timer2, steps).Run(by_operator);
}

void StationRooms::MapResized(int width, int height) {
  State.Map.ViewWidthPx = width;
  State.Map.ViewHeightPx = height;
  MainWindowResize(Controls.Window, Controls.Chat, State.Chat);
  Map.Redrawer.MapRedraw();
}

void StationRooms::SecondPassed() {
  Links.Watch.Renew();
  Transmit.Outcome.Renew();
  Messages.SecondPassed();
  Gateway.SecondPassed();
}

// ---- Tick -----------------------------------------------------------------------------------

void StationRooms::Tick() {
  // Whatever has started the timer again meanwhile, a redraw for one.
  if (CycleIsHeld()) return Timer1.Stop();
  Reception.Heard.TickBegins();
  Cycle.Tick();
  Transmit.ShowNextBeacon();
  Messages.Panel.Renew();
}

bool StationRooms::CycleIsHeld() const {
  return Links.Talk.IsOpen() || Transmit.HoldsTheCycle() || Map.Qth.HoldsTheCycle();
}

void StationRooms::JoinTick() {
  TickSteps& tick = Cycle.Steps;
  tick.PollAprsIsLink = [this] { Gateway.Link.IGateTick(); };
  tick.WatchCompanion = [this] { Gateway.Digipeater.Watch(); };
  tick.KeepSecondModeMonitored = [this] { Links.KeepSecondModeMonitored(); };
  tick.ChangeFollowedStation = [this] { Reception.Choice.FollowTyped(); };
  tick.SendIdentification = [this] { Transmit.SendIdentification(); };
  tick.RunReceivePass = [this] {
    Messages.Heard.PassBegins();
    Reception.Receive();
  };
  tick.RunChatPass = [this] { Messages.Sender.RetryPass(); };
  tick.SendObjectReport = [this] { Transmit.Beacon.SendObjectReport(); };
  tick.SendBeacon = [this] { Transmit.Beacon.SendPositionBeacon(); };
}

// ---- Start ----------------------------------------------------------------------------------

StartSteps StationRooms::StartOrder() {
  StartSteps start;
  start.ReadConfig = [this] { ReadConfig(); };
  start.SetOwnNames = [this] { SetOwnNames(); };
  start.ScanMapLibrary = [this] {
    MakeDataFolders(machine_.FileSystem, State.Identity);
    Map.Library.MapLibraryScan();
  };
  start.LoadHistory = [this] { Reception.Choice.LoadAtStart(); };
  start.OpenLink = [this] {
    const bool open = Links.Open();
    if (open) Gateway.Digipeater.Begin();
    return open;
  };
  start.RestoreTracksPlacesAndChat = [this] {
    Gps.Tracks.RestoreAtStart();
    Viewers.Places.RestoreAtStart();
    Messages.RestoreAtStart();
  };
  start.ShowTitleMarkers = [this] { ShowTitle(); };
  start.SetLabels = [this] { SetLabels(); };
  start.ShowAndDrawMap = [this] {
    Controls.Map.Picture1.Visible = true;
    Map.Redrawer.MapRedraw();
  };
  start.RunTerminalHandler = [this] { Links.RunTerminalHandler(); };
  return start;
}

void StationRooms::ReadConfig() {
  ReadConfigForMainWindow(machine_.FileSystem, State);
  const WindowValues own = ReadWindowFile(machine_.FileSystem, State.Identity.ProgramFolder);
  ApplyViewValues(own, State);
  const auto digipeater = own.find("UIDIGI");
  Gateway.Digipeater.Program = digipeater != own.end() ? digipeater->second : std::string();
  State.Services = ReadServicesFile(machine_.FileSystem, State.Identity.ProgramFolder);
  Controls.Moni1.Check1.Value = State.Followed.Moni1AlarmOn;
  TakeZone(State.Identity, State.Map);
}

void StationRooms::SetOwnNames() {
  // The beginning of what this station transmits, as it comes back through a digipeater.
  State.Reception.OwnHeaderPattern =
      State.Identity.MyCallFull.empty()
          ? std::string()
          : OwnHeaderPatternOf(State.Identity.MyCallFull, State.Transmission.TxPath,
                               State.Transmission.TxDestination);
  // A station that takes no part in the gate has no passcode.
  State.Internet.AprsIsPasscode = TxAllowedOf(State.Identity.MyCall) == 1
                                      ? PasscodeOf(State.Identity.MyCall)
                                      : std::string(kNoPasscode);
}

void StationRooms::ShowTitle() {
  ShowTitleMarkers(State.Identity, State.Radio, State.Internet, State.Settings, Controls.Window);
}

void StationRooms::SetLabels() {
  SetMainWindowLabels(Controls, State.Settings.Language);
  Map.Interaction.ShowState();
  Transmit.Switches.ShowInterval();
}

// ---- Stop -----------------------------------------------------------------------------------

StopSteps StationRooms::StopOrder() {
  StopSteps stop;
  stop.StopPicturePanel = [this] { Viewers.Pictures.ClosePicture(); };
  stop.LeaveLink = [this] {
    Gateway.Digipeater.End();
    Links.Leave();
  };
  stop.ClosePorts = [this] {
    Links.ClosePort();
    Gateway.Link.Close();
  };
  stop.MergeConfigAtExit = [this] { MergeConfigAtExit(); };
  stop.DeleteRunFiles = [this] { Map.Library.DeleteIndexFiles(); };
  return stop;
}

void StationRooms::MergeConfigAtExit() {
  zepril::MergeConfigAtExit(machine_.FileSystem, State.Identity.ProgramFolder,
                            LastValuesOf(State.Map, Controls.Scales));
  WriteWindowFile(machine_.FileSystem, State.Identity.ProgramFolder, ViewValues(State));
}

// ---- Joins ----------------------------------------------------------------------------------

void StationRooms::JoinRooms() {
  Map.Interaction.RecordPicked = [this] { Reception.Browser.OpenPicked(); };
  Map.Qth.PositionTaken = [this] { Transmit.Switches.ShowInterval(); };
  Transmit.Switches.PositionMissing = [this] { Map.Qth.Open(); };
  Transmit.SetupJoins = {[this] { Cycle.RenewStatusLine(); }, [this] { ShowTitle(); },
                         [this] { SetLabels(); }, [this] { Gateway.Digipeater.Follow(); }};
  Links.CycleIsHeld = [this] { return CycleIsHeld(); };
  Links.InTick = [this] { return Cycle.InTick(); };
  Links.TerminalChanged = [this] {
    const bool open = Links.Talk.IsOpen();
    Transmit.TerminalChanged(open);
    // Closed, the usual tool tips are back.
    if (!open) SetLabels();
  };
}

}  // namespace zepril
