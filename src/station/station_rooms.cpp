// The steps of tick, start and stop as calls to the rooms that do them.
#include "station/station_rooms.h"

#include "config/config_file.h"
#include "core/main_window_resize.h"
#include "core/position_text.h"
#include "core/text_fields.h"
#include "core/texts/form1_texts.h"
#include "core/texts/status_texts.h"
#include "core/title_line.h"
#include "station/initial_controls.h"
#include "station/view_memory.h"
#include "transmit/tx_setup_rules.h"

namespace zepril {
namespace {

constexpr int kEnterKey = 13;
// What a new operator wants to see.
constexpr LabelLevel kFirstLabelLevel = LabelLevel::MarksAndCalls;
constexpr double kEngineSeconds = 2.0;
constexpr double kUnseenSeconds = 0.05;             // too short to press something meanwhile
constexpr std::uint32_t kLayerOnColour = 0xD08030;  // as a switch that is on

}  // namespace

StationRooms::StationRooms(StationPlatform machine)
    : machine_(machine),
      progress_(machine.LocalClock, Controls.Progress),
      agw_link_(State.Radio, State.Identity, State.Transmission, machine.Winsock1,
                machine.LocalClock, machine.Boxes, *this, ReopenTimer),
      agw_local_(State.Radio, machine.Winsock1, machine.LocalClock, ReopenTimer),
      library_(machine.FileSystem, State.Identity, State.Map, Controls.Scales),
      tiles_(machine.FileSystem, machine.LocalClock),
      sheets_(machine.FileSystem, State.Identity.ProgramFolder),
      readouts_(State.Map, State.Followed, State.Stores.Moni1Records, Controls.Readouts),
      overlays_({State.Places, State.Internet, State.Settings}, readouts_.Values(),
                machine.LocalClock),
      redrawer_(
          {State.Map, State.Stores, State.Followed, State.Gps, State.Transmission, State.Identity},
          {Controls.Window, Controls.Map, Controls.Scales, Controls.Palette, Controls.Moni1,
           Controls.MoniAll, Controls.Record, Controls.Chat},
          {machine.MapSurface, machine.BaseSurface, tiles_, library_, sheets_, symbols_, readouts_,
           overlays_, machine.LocalClock, Timer1}),
      lookups_(State.Map, State.Places, Controls.Map, {machine.MapSurface, *this, Timer1}),
      interaction_(State.Map, State.Stores, State.Followed,
                   {Controls.Window, Controls.Map, Controls.Readouts, Controls.Scales,
                    Controls.Palette, Controls.Moni1, Controls.MoniAll, Controls.Record},
                   {*this, library_, readouts_, *this, lookups_, machine.Desktop, Timer1, Timer2}),
      qth_(State.Map, Controls.Qth, Controls.Map, {*this, *this, Timer1, Timer2}),
      saver_(State.Identity, State.Map,
             {machine.FileSystem, machine.Boxes, machine.MapSurface, *this}),
      tracks_(State.Identity, State.Map, State.Settings, State.Places, Controls.Tracks,
              Controls.Map, {machine.FileSystem, machine.Boxes, *this, *this, progress_}),
      places_(State.Identity, State.Map, State.Settings, State.Places, Controls.Places,
              Controls.Map,
              {machine.FileSystem, machine.Boxes, machine.Desktop, *this, *this, progress_}),
      pictures_(State.Identity, State.Map, Controls.Picture, Controls.Map,
                {machine.FileSystem, machine.Desktop, *this, Timer1}),
      sun_(State.Map, State.Settings, Controls.Sun, machine.SunSurface, machine.LocalClock),
      iono_(State.Internet, State.Map, Controls.Iono, Controls.Map, {machine.Boxes, *this, *this}),
      distance_(State.Alarms, State.Identity, State.Followed, State.Map, Controls.Status,
                Controls.Window),
      history_(State.Identity, State.Stores, State.Followed, State.Map, State.Gps, Controls.Moni1,
               Controls.Map, distance_, machine.FileSystem, *this, Controls.Status.FileNotice),
      browser_(State.Stores, State.Map, Controls.Record, Controls.Map, history_, machine.Boxes,
               *this),
      heard_(State.Stores, State.Map, Controls.MoniAll, browser_, machine.LocalClock),
      collector_(State.Radio, State.Reception, State.Internet, machine.LocalClock, agw_local_,
                 machine.MSComm1, *this),
      receive_pass_(
          {State.Identity, State.Reception, State.Stores, State.Map, State.Alarms, State.Settings},
          {collector_, history_, browser_, distance_, *this, *this, *this,
           Controls.Status.FileNotice},
          symbols_, machine.LocalClock, machine.FileSystem, Timer1, &Controls.Raw.RawList),
      cycle_(State, Controls, machine.LocalClock, machine.Desktop, Timer1, Timer2, *this, *this),
      raw_search_(Controls.Raw, State.Settings, Timer1),
      transmit_(State, Controls,
                {machine_, agw_link_, agw_local_, sheets_, symbols_, progress_, Timer1, Timer2,
                 ReopenTimer, *this, *this, *this}),
      link_watch_(State.Radio, Controls.Status,
                  {agw_link_, agw_local_, transmit_, machine.LocalClock,
                   [this] { return CycleIsHeld(); }}) {
  SetInitialControls(Controls);
  State.Map.StationLabelLevel = kFirstLabelLevel;
  State.Map.ViewWidthPx = machine_.MapSurface.Width();
  State.Map.ViewHeightPx = machine_.MapSurface.Height();
  Timer1.Elapsed = [this] { Tick(); };
  Timer1.FollowClock(machine_.LocalClock);
  Timer2.Elapsed = [this] { cycle_.Timer2Elapsed(); };
  overlays_.PictureShower = [this] { ShowPicture(); };
  transmit_.SetPositionMissing([this] { qth_.Open(); });
  transmit_.SetMayReopen([this] { return !cycle_.InTick(); });
  Controls.Status.FileNotice.Click = [this] { Controls.Status.FileNotice.Visible = false; };
  BindControls();
}

bool StationRooms::Start(const std::string& program_folder, int colour_depth_bits) {
  const bool started = MainWindowStart(State, Controls, machine_.LocalClock, Timer1, *this)
                           .Run(program_folder, colour_depth_bits);
  link_watch_.Started();
  return started;
}

void StationRooms::Stop(bool by_operator) {
  MainWindowStop(State, Controls, Timer1, Timer2, *this).Run(by_operator);
}

void StationRooms::MapResized(int width, int height) {
  State.Map.ViewWidthPx = width;
  State.Map.ViewHeightPx = height;
  MainWindowResize(Controls.Window, Controls.Chat, State.Chat);
  MapRedraw();
}

void StationRooms::SecondPassed() {
  link_watch_.Renew();
  transmit_.RenewOutcome();
}

// ---- Tick -----------------------------------------------------------------------------------

void StationRooms::Tick() {
  // Whatever has started the timer again meanwhile, a redraw for one.
  if (CycleIsHeld()) return Timer1.Stop();
  // A press that was made while the program waited, or worked long, is meant for the rows that were
  // seen then: after such a tick the list of stations is renewed at the beginning of the next one.
  if (heard_list_waits_) heard_.Renew();
  heard_list_waits_ = true;
  tick_began_ = machine_.LocalClock.MonotonicSeconds();
  cycle_.Tick();
  transmit_.ShowNextBeacon();
}

// The call stays as typed, in the file too; everywhere it is compared without regard to case.
void StationRooms::ChangeFollowedStation() {
  FollowStation(std::string(Trim(Controls.Moni1.Combo9.Text)));
}

void StationRooms::RunReceivePass() {
  receive_pass_.Run();
  heard_list_waits_ = machine_.LocalClock.MonotonicSeconds() - tick_began_ > kUnseenSeconds;
  if (!heard_list_waits_) heard_.Renew();
}

// ---- Start ----------------------------------------------------------------------------------

void StationRooms::ReadConfig() {
  ReadConfigForMainWindow(machine_.FileSystem, State);
  ApplyViewValues(ReadWindowFile(machine_.FileSystem, State.Identity.ProgramFolder), State);
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
}

void StationRooms::ScanMapLibrary() {
  machine_.FileSystem.MakeFolder(State.Identity.TempFolder);
  for (const char* folder : {"\\LOG", "\\TRK", "\\POI"}) {
    machine_.FileSystem.MakeFolder(State.Identity.MapSystemFolder + folder);
  }
  library_.MapLibraryScan();
}

void StationRooms::LoadHistory() {
  history_.LoadAtStart();
  ListFollowedCalls();
  Controls.Moni1.Combo9.Text = State.Followed.Moni1Call;
}

void StationRooms::OpenLocalEngine() {
  const std::string& call = State.Identity.MyCallFull;
  const std::string name = call.empty() ? std::string("MYCALL") : call;
  if (agw_local_.AGWStartPoll("ZEPRIL", name)) return;
  // The engine might just be starting.
  machine_.LocalClock.Wait(kEngineSeconds);
  agw_local_.AGWStartPoll("ZEPRIL", name);
}

// The engine knows the station by its call, which TX SETUP may have changed.
void StationRooms::ReopenLocalEngine() {
  agw_local_.AGWClose();
  machine_.LocalClock.Wait(kEngineSeconds);
  OpenLocalEngine();
}

bool StationRooms::ConnectAgw() {
  return agw_link_.ConnectAgw();
}

void StationRooms::RestoreTracksPlacesAndChat() {
  tracks_.RestoreAtStart();
  places_.RestoreAtStart();
}

void StationRooms::ShowTitleMarkers() {
  std::string& title = State.Settings.TitleText;
  // The call may have got another SSID.
  const std::string base = BaseTitle(State.Identity.ProgramVersion, State.Identity.MyCallFull);
  PutInTitle(title, 1, base.substr(0, kTitleBaseColumns));
  PutInTitle(title, 61, DigiMarker(State.Radio));
  if (State.Internet.IGateOn == Gate::On) {
    PutInTitle(title, 76, status_texts::kGate);
  } else {
    BlankInTitle(title, 76, 80);
  }
  Controls.Window.Title = std::string(Trim(title));
}

void StationRooms::SetLabels() {
  SetMainWindowLabels(Controls, State.Settings.Language);
  interaction_.ShowState();
  transmit_.ShowSwitches();
}

void StationRooms::ShowAndDrawMap() {
  Controls.Map.Picture1.Visible = true;
  MapRedraw();
}

// ---- Stop -----------------------------------------------------------------------------------

void StationRooms::CloseLocalEngine() {
  agw_local_.AGWClose();
}

void StationRooms::DisconnectAgw() {
  agw_link_.DisconnectAgw();
}

void StationRooms::ClosePorts() {
  ReopenTimer.Stop();
  machine_.MSComm1.Close();
}

void StationRooms::MergeConfigAtExit() {
  LastValues last;
  for (std::size_t row = 0; row < last.CurrentMaps.size(); ++row) {
    last.CurrentMaps[row] = Controls.Scales.Folder[row].Selected();
  }
  last.CentreNorthKm = State.Map.CentreNorthKm;
  last.CentreEastKm = State.Map.CentreEastKm;
  last.OwnNorthKm = State.Map.OwnNorthKm;
  last.OwnEastKm = State.Map.OwnEastKm;
  zepril::MergeConfigAtExit(machine_.FileSystem, State.Identity.ProgramFolder, last);
  WriteWindowFile(machine_.FileSystem, State.Identity.ProgramFolder, ViewValues(State));
}

void StationRooms::DeleteRunFiles() {
  library_.DeleteIndexFiles();
}

// ---- Between rooms --------------------------------------------------------------------------

void StationRooms::MapRedraw() {
  redrawer_.MapRedraw();
  // Whatever ended the picture, its panel goes with it.
  if (State.Map.PictureMode != MapShows::Picture && Controls.Picture.Frame8.Visible)
    pictures_.ClosePicture();
  qth_.ShowFields();
  Controls.Moni1.Command17.Caption =
      status_texts::kTrackStyle.With({WholeNumber(State.Followed.TrackStyle)});
  ShowPlaceLevel();
}

void StationRooms::ShowPlaceLevel() {
  Button& button = Controls.Map.Command73;
  button.Caption = status_texts::kPlaceLevel.With({WholeNumber(State.Map.PoiLevel)});
  button.BackColour.reset();
  if (State.Map.PoiLevel > 0) button.BackColour = kLayerOnColour;
}

void StationRooms::MapRefresh() {
  ++Controls.Map.Picture1.Revision;
}

void StationRooms::WriteConfigFromMainWindow() {
  zepril::WriteConfigFromMainWindow(machine_.FileSystem, State);
  Timer1.Enable();
}

void StationRooms::ReplaceConfigLine(const std::string& key, const std::string& value) {
  zepril::ReplaceConfigLine(machine_.FileSystem, ConfigPath(State.Identity.ProgramFolder), key,
                            value);
}

// Reception has stopped `Timer1`; the redraw starts it again and shows the station.
void StationRooms::ShowEmergency() {
  MapRedraw();
}

void StationRooms::EndProgram() {
  EndWanted = true;
}

void StationRooms::OpenRecordPanel() {
  browser_.Open(State.Stores.SelectedStationCall, State.Stores.SelectedRecordIndex,
                State.Map.ClickNorthKm, State.Map.ClickEastKm);
}

// ---- Panels over the map --------------------------------------------------------------------

void StationRooms::ShowPicture() {
  pictures_.ShowPicture(State.Map.SelectedPicture);
}

void StationRooms::ClosePicture() {
  pictures_.ClosePicture();
}

void StationRooms::EditPlace(int index) {
  places_.EditPlace(index);
}

void StationRooms::ShowSunCurve() {
  sun_.ShowSunCurve();
}

void StationRooms::MoveSunCurve() {
  sun_.MoveSunCurve();
}

void StationRooms::HideSunCurve() {
  sun_.HideSunCurve();
}

// ---- Handlers -------------------------------------------------------------------------------

void StationRooms::BindControls() {
  BindStations();
  BindRecordPanel();
  BindQthSetup();
  Controls.Map.Command59.Click = [this] { saver_.SaveMapWindow(); };
  // The choice of a map folder is a setting.
  for (ComboBox& folder : Controls.Scales.Folder) {
    folder.Change = [this, choose = folder.Change] {
      choose();
      WriteConfigFromMainWindow();
    };
  }
}

void StationRooms::BindStations() {
  Moni1Controls& moni1 = Controls.Moni1;
  moni1.Combo9.Click = [this] { ChangeFollowedStation(); };
  moni1.Combo9.KeyDown = [this](KeyPress key) {
    Controls.Moni1.Combo9.LastKeySeconds = machine_.LocalClock.MonotonicSeconds();
    if (key.Code == kEnterKey) ChangeFollowedStation();
  };
  moni1.Check1.Click = [this] {
    State.Followed.Moni1AlarmOn = Controls.Moni1.Check1.Value;
    WriteConfigFromMainWindow();
  };
  MoniAllControls& all = Controls.MoniAll;
  all.Check3.Click = [this] { State.Alarms.MoniAllAlarmOn = Controls.MoniAll.Check3.Value; };
  all.Command14.Click = [this] { Find(Controls.MoniAll.Text15.Text); };
  all.Text15.KeyDown = [this](KeyPress key) {
    if (key.Code == kEnterKey) Find(Controls.MoniAll.Text15.Text);
  };
  all.Command3.Click = [this] { heard_.Command3Click(); };
  all.HeardList.Click = [this] { heard_.HeardListClick(); };
  Controls.Status.Frame12.Click = [this] { Controls.Status.Frame12.Visible = false; };
}

void StationRooms::BindRecordPanel() {
  RecordPanelControls& record = Controls.Record;
  record.Command18.Click = [this] { browser_.Command18Click(); };
  record.Command19.Click = [this] { browser_.Command19Click(); };
  record.Command23.Click = [this] { browser_.Close(); };
  record.Command11.Click = [this] { FollowStation(State.Stores.SelectedStationCall); };
  record.Command36.Click = [this] { Find(State.Stores.SelectedStationCall); };
}

void StationRooms::BindQthSetup() {
  qth_.PositionTaken = [this] { transmit_.ShowSwitches(); };
  // Whoever moves the map while the panel is open points out his place.
  PictureBox& map = Controls.Map.Picture1;
  map.MouseDown = [this, press = map.MouseDown](const MousePress& at) {
    qth_.Begin();
    press(at);
  };
  map.KeyDown = [this, press = map.KeyDown](const KeyPress& key) {
    qth_.Begin();
    press(key);
  };
}

void StationRooms::FollowStation(const std::string& call) {
  Timer1.Hold();
  history_.ChangeStation(call);
  ListFollowedCalls();
  Controls.Moni1.Combo9.Text = State.Followed.Moni1Call;
  browser_.FollowedStationChanged();
  MapRedraw();
}

void StationRooms::ListFollowedCalls() {
  ComboBox& field = Controls.Moni1.Combo9;
  field.Items.clear();
  const std::string folder = State.Identity.MapSystemFolder + "\\LOG";
  for (const FolderEntry& entry : machine_.FileSystem.List(folder, "*.TXT")) {
    if (entry.IsFolder || entry.Name.starts_with("_")) continue;
    field.Items.push_back(
        Upper(Left(entry.Name, static_cast<std::ptrdiff_t>(entry.Name.size()) - 4)));
  }
  field.ListIndex = -1;
}

void StationRooms::Find(const std::string& call) {
  State.Map.FindCall = Upper(Trim(call));
  Controls.MoniAll.Text15.Text = State.Map.FindCall;
  Timer1.Hold();
  MapRedraw();
}

}  // namespace zepril
