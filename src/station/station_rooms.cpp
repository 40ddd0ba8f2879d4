// How the rooms are built and joined, and when their tick, start and stop run.
#include "station/station_rooms.h"

#include <utility>

#include "core/main_window_resize.h"
#include "core/texts/form1_texts.h"
#include "station/initial_controls.h"
#include "station/main_window_start.h"
#include "station/main_window_stop.h"
#include "station/modem_memory.h"
#include "station/station_steps.h"
#include "station/title_markers.h"
#include "station/view_memory.h"

namespace zepril {

StationRooms::StationRooms(const Machine& machine, std::shared_ptr<SerialPort> modem)
    : Given(machine),
      winsock1_(machine.MakeSocket()),
      winsock2_(machine.MakeSocket()),
      mscomm1_(modem ? std::move(modem) : machine.MakeSerialPort()),
      mscomm2_(machine.MakeSerialPort()),
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
      Gps({State.Identity, State.Map, State.Settings, State.Places, State.Gps},
          {Controls.Tracks, Controls.Map, Controls.Gps, Controls.Transmit},
          {*mscomm2_, machine.FileSystem, machine.LocalClock, machine.Boxes, machine.Desktop,
           Map.Redrawer, Settings, LongWork}),
      Viewers({State.Identity, State.Followed, State.Stores, State.Services, State.Map,
               State.Settings, State.Places},
              {Controls.Places, Controls.Picture, Controls.Sun, Controls.Viewers, Controls.Map,
               Controls.Readouts},
              {machine.FileSystem, machine.LocalClock, machine.Boxes, machine.Desktop,
               *Surfaces.Sun, Map.Redrawer, Settings, LongWork, Timer1, Timer2},
              Map.Panels),
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
      Weather(State.Map, Controls.Weather, Controls.Record, *Surfaces.Weather),
      Emergencies({State.Identity, State.Alarms, State.Map},
                  {Controls.Emergency, Controls.Map, Controls.Window},
                  {machine.FileSystem, machine.LocalClock, machine.Boxes, Map.Redrawer,
                   machine.Speaker.get()}),
      Reception({State.Identity, State.Radio, State.Reception, State.Stores, State.Followed,
                 State.Map, State.Gps, State.Alarms, State.Settings, State.Internet},
                {Controls.Window, Controls.Map, Controls.Moni1, Controls.MoniAll, Controls.Record,
                 Controls.Status, &Controls.Raw.RawList},
                {machine.FileSystem, machine.LocalClock, machine.Boxes, Links.Heard, Map.Symbols,
                 Map.Redrawer, Settings, Emergencies, Timer1, &Gateway.Radio, &Messages.Heard}),
      Internet(
          {State.Identity, State.Internet, State.Map, State.Stores, State.Followed, State.Settings,
           State.Services},
          {Controls.Iono, Controls.Map, Controls.Moni1, Controls.MoniAll, Controls.Window,
           Controls.Status, Controls.Inet},
          {machine.Boxes, machine.LocalClock, *machine.Pages, Map.Symbols, Reception.Keeper,
           Reception.Choice, Map.Redrawer, Settings, Emergencies, Messages.Heard, Timer1, Timer2}),
      RawSearch(Controls.Raw, State.Settings, Timer1),
      Cycle(State, Controls, machine.LocalClock, machine.Desktop, Timer1, Timer2, Map.Redrawer) {
  SetInitialControls(Controls);
  SetFirstView(State.Map);
  State.Map.ViewWidthPx = Surfaces.Map->Width();
  State.Map.ViewHeightPx = Surfaces.Map->Height();
  Timer1.Elapsed = [this] { Tick(); };
  Timer1.FollowClock(Given.LocalClock);
  Timer2.Elapsed = [this] { Cycle.Timer2Elapsed(); };
  Cycle.Steps = TickOrder(*this);
  JoinRooms();
  Links.Modem.Memory = MemoryInFile(Given.FileSystem, State.Identity, State.Radio, *mscomm1_);
}

bool StationRooms::Start(const std::string& program_folder, int colour_depth_bits) {
  const StartSteps steps = StartOrder(*this);
  const bool started = MainWindowStart(State, Controls, Given.LocalClock, Timer1, steps)
                           .Run(program_folder, colour_depth_bits);
  Links.Watch.Started();
  return started;
}

void StationRooms::Stop(bool by_operator) {
  const StopSteps steps = StopOrder(*this);
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
  Internet.SecondPassed();
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
  Internet.Support.Renew();
}

bool StationRooms::CycleIsHeld() const {
  return Links.Talk.IsOpen() || Transmit.HoldsTheCycle() || Map.Qth.HoldsTheCycle();
}

void StationRooms::ShowTitle() {
  ShowTitleMarkers(State.Identity, State.Radio, State.Internet, State.Settings, Controls.Window);
}

void StationRooms::SetLabels() {
  SetMainWindowLabels(Controls, State.Settings.Language);
  Map.Interaction.ShowState();
  Transmit.Switches.ShowInterval();
}

// ---- Joins ----------------------------------------------------------------------------------

void StationRooms::JoinRooms() {
  Reception.Browser.SelectionShown = [this](const StationRecord* record) {
    Weather.Panel.ShowWxPanel(record);
  };
  Emergencies.ClosePicture = [this] { Viewers.Pictures.ClosePicture(); };
  Map.Interaction.RecordPicked = [this] { Reception.Browser.OpenPicked(); };
  Map.Qth.PositionTaken = [this] { Transmit.Switches.ShowInterval(); };
  Transmit.Switches.PositionMissing = [this] { Map.Qth.Open(); };
  Transmit.SetupJoins = {[this] { Cycle.RenewStatusLine(); }, [this] { ShowTitle(); },
                         [this] { SetLabels(); }, [this] { Gateway.Digipeater.Follow(); }};
  Links.CycleIsHeld = [this] { return CycleIsHeld(); };
  Internet.Support.CycleIsHeld = [this] { return CycleIsHeld(); };
  Links.InTick = [this] { return Cycle.InTick(); };
  Links.TerminalChanged = [this] {
    const bool open = Links.Talk.IsOpen();
    Transmit.TerminalChanged(open);
    // Closed, the usual tool tips are back.
    if (!open) SetLabels();
  };
}

}  // namespace zepril
