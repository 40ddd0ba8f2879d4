// Reception as one thing, built in its order: the collector at the link, the receive pass, the
// followed station's history, the panels of records and of heard stations, the distance alarm.
#pragma once

#include "core/actions/emergency_actions.h"
#include "core/actions/gate_actions.h"
#include "core/actions/map_actions.h"
#include "core/actions/message_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/raw_list_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/alarms.h"
#include "core/state/followed_station.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/state/radio.h"
#include "core/state/reception.h"
#include "core/state/settings.h"
#include "core/state/stores.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "links/heard_texts.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "reception/collector.h"
#include "reception/distance_alarm.h"
#include "reception/followed_choice.h"
#include "reception/followed_history.h"
#include "reception/heard_stations.h"
#include "reception/receive_pass.h"
#include "reception/record_browser.h"
#include "reception/record_keeper.h"
#include "reception/station_finder.h"

namespace zepril {

struct ReceptionSections {
  IdentityState& Identity;
  RadioState& Radio;
  ReceptionState& Received;
  StoresState& Stores;
  FollowedStationState& Followed;
  MapViewState& View;
  const GpsState& Gps;
  AlarmState& Alarms;
  const SettingsState& Settings;
  const InternetState& Internet;
};

struct ReceptionRoomControls {
  WindowControls& Window;
  MapControls& Map;
  Moni1Controls& Moni1;
  MoniAllControls& MoniAll;
  RecordPanelControls& Record;
  StatusControls& Status;
  ListBox* RawList = nullptr;  // may be missing: then no list is filled
};

struct ReceptionTools {
  Files& Disk;
  Clock& LocalClock;
  Dialogs& Boxes;
  HeardTexts& Heard;
  const SymbolTable& Symbols;
  MapActions& Map;
  SettingsActions& Settings;
  EmergencyActions& Emergencies;
  Timer& Timer1;
  GateActions* Gate = nullptr;         // may be missing
  MessageActions* Messages = nullptr;  // may be missing
};

struct ReceptionRoom {
  // Sets the events of the controls; the object must outlive them.
  ReceptionRoom(ReceptionSections sections, ReceptionRoomControls controls, ReceptionTools tools);
  ReceptionRoom(const ReceptionRoom&) = delete;
  ReceptionRoom& operator=(const ReceptionRoom&) = delete;

  // One receive pass; the open list of heard stations follows.
  void Receive();

  Collector Link;
  DistanceAlarm Distance;
  FollowedHistory History;
  RecordBrowser Browser;
  HeardStationsPanel Heard;
  FollowedChoice Choice;
  StationFinder Finder;
  RecordKeeper Keeper;
  ReceivePass Pass;
};

}  // namespace zepril
