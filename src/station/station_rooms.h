// The rooms of one running program and the joins between them.
#pragma once

#include <array>
#include <string>

#include "config/main_window_settings.h"
#include "core/actions/emergency_actions.h"
#include "core/actions/gate_actions.h"
#include "core/actions/map_actions.h"
#include "core/actions/message_actions.h"
#include "core/actions/program_actions.h"
#include "core/actions/settings_actions.h"
#include "station/tick_actions.h"
#include "station/main_cycle.h"
#include "station/main_window_start.h"
#include "station/main_window_stop.h"
#include "core/progress_panel.h"
#include "core/symbol_table.h"
#include "gps/track_files.h"
#include "internet/iono_input.h"
#include "links/agw_link.h"
#include "links/agw_local.h"
#include "map/map_interaction.h"
#include "map/map_library.h"
#include "map/map_lookups.h"
#include "map/map_overlays.h"
#include "map/map_panels.h"
#include "map/map_redraw.h"
#include "map/map_saver.h"
#include "map/qth_setup.h"
#include "map/readouts.h"
#include "map/symbol_sheets.h"
#include "map/tile_cache.h"
#include "reception/collector.h"
#include "reception/distance_alarm.h"
#include "reception/followed_history.h"
#include "reception/heard_stations.h"
#include "reception/receive_pass.h"
#include "reception/record_browser.h"
#include "station/raw_list_search.h"
#include "station/link_watch.h"
#include "station/station_program.h"
#include "station/transmit_rooms.h"
#include "viewers/picture_viewer.h"
#include "viewers/place_files.h"
#include "viewers/sun_curve.h"

namespace zepril {

// Capabilities that come later stand here as actions that do nothing; the order of tick, start and
// stop has their places already.
class StationRooms final : public TickActions,
                           public StartActions,
                           public StopActions,
                           public MapActions,
                           public SettingsActions,
                           public EmergencyActions,
                           public GateActions,
                           public MessageActions,
                           public ProgramActions,
                           public RecordPanelOpener,
                           public TxSetupActions,
                           public MapPanels {
 public:
  explicit StationRooms(StationPlatform machine);

  bool Start(const std::string& program_folder, int colour_depth_bits);
  void Stop(bool by_operator);
  void MapResized(int width, int height);
  LinkLamp Lamp() const { return link_watch_.Lamp(); }
  void SecondPassed();
  void ModemWasNotSetUp() { transmit_.ModemWasNotSetUp(); }

  RuntimeState State;
  MainWindowControls Controls;
  Timer Timer1{6000};
  Timer Timer2{3000};
  Timer ReopenTimer{kReopenMilliseconds};
  bool EndWanted = false;

 private:
  // The tick.
  void Tick();
  void PollAprsIsLink() override {}
  void RunScanSwitchHandler() override {}
  void KeepSecondModeMonitored() override { transmit_.KeepSecondModeMonitored(); }
  void ChangeFollowedStation() override;
  void ShowEmergencyPanel() override {}
  void SendIdentification() override { transmit_.SendIdentification(); }
  void FetchMoni1() override {}
  void FetchMoniAll() override {}
  void PollGps() override {}
  void RunReceivePass() override;
  void RunChatPass() override {}
  void SendObjectReport() override { transmit_.SendObjectReport(); }
  void SendBeacon() override { transmit_.SendBeacon(); }

  // The start; the ionosphere update serves the tick too.
  void ReadConfig() override;
  void SetOwnNames() override;
  void LayOutPanels() override {}
  void ScanMapLibrary() override;
  void LoadHistory() override;
  void OpenLocalEngine() override;
  void OpenSerialModem() override { transmit_.OpenSerialModem(); }
  bool ConnectAgw() override;
  void OpenGpsPort() override {}
  void RestoreTracksPlacesAndChat() override;
  void ShowTitleMarkers() override;
  void StartIonoUpdate() override {}
  void SetLabels() override;
  void ShowAndDrawMap() override;
  void RunTerminalHandler() override { transmit_.RunTerminalHandler(); }

  // The stop.
  void CloseSound() override {}
  void StopPageLoading() override {}
  void StopPicturePanel() override { pictures_.ClosePicture(); }
  void CloseLocalEngine() override;
  void LeaveSerialModem() override { transmit_.LeaveSerialModem(); }
  void DisconnectAgw() override;
  void ClosePorts() override;
  void WriteNavigationFiles() override {}
  void MergeConfigAtExit() override;
  void DeleteRunFiles() override;

  // What TX SETUP asks for when it is confirmed; markers and labels serve the start too.
  void RefreshStatusLine() override { cycle_.RenewStatusLine(); }
  void ReopenLocalEngine() override;

  // What rooms ask of each other.
  void MapRedraw() override;
  void MapRefresh() override;
  void WriteConfigFromMainWindow() override;
  void ReplaceConfigLine(const std::string& key, const std::string& value) override;
  void ShowEmergency() override;
  void GateMonitorBlock(std::string_view) override {}
  void MessageReceived(std::string_view, std::string_view, std::string_view) override {}
  void EndProgram() override;
  void OpenRecordPanel() override;

  // Panels over the map.
  void ShowPicture() override;
  void ClosePicture() override;
  void EditPlace(int index) override;
  void ShowSunCurve() override;
  void MoveSunCurve() override;
  void HideSunCurve() override;

  // Handlers that join several rooms.
  void BindControls();
  void BindStations();
  void BindRecordPanel();
  void BindQthSetup();
  bool CycleIsHeld() const { return transmit_.HoldsTheCycle() || qth_.HoldsTheCycle(); }
  void FollowStation(const std::string& call);
  void ListFollowedCalls();
  void Find(const std::string& call);
  void ShowPlaceLevel();

  StationPlatform machine_;
  SymbolTable symbols_;
  ProgressPanel progress_;

  AgwLink agw_link_;
  AgwLocal agw_local_;

  MapLibrary library_;
  TileCache tiles_;
  SymbolSheets sheets_;
  Readouts readouts_;
  MapOverlays overlays_;
  MapRedrawer redrawer_;
  PressLookups lookups_;
  MapInteraction interaction_;
  QthSetup qth_;
  MapSaver saver_;

  TrackFiles tracks_;
  PlaceFiles places_;
  PictureViewer pictures_;
  SunCurve sun_;
  IonoInput iono_;

  DistanceAlarm distance_;
  FollowedHistory history_;
  RecordBrowser browser_;
  HeardStationsPanel heard_;
  bool heard_list_waits_ = false;
  double tick_began_ = 0.0;
  Collector collector_;
  ReceivePass receive_pass_;

  MainCycle cycle_;
  RawListSearch raw_search_;
  TransmitRooms transmit_;
  LinkWatch link_watch_;

 public:
  MainCycle& Cycle() { return cycle_; }
  const ReceptionCounts& Counts() const { return receive_pass_.Counts(); }
  AgwLocal& LocalEngine() { return agw_local_; }
};

}  // namespace zepril
