// Stores, logs and history in memory, for pages of any bytes: the station QX7KB follows QX7GW.
#pragma once

#include <cstdlib>
#include <string>

#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/quiet_actions.h"
#include "core/state/gps.h"
#include "core/state/settings.h"
#include "core/symbol_table.h"
#include "platform/quiet_machine.h"
#include "reception/record_keeper.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {

inline void Require(bool holds) {
  if (!holds) std::abort();
}

struct PageWorld {
  PageWorld() {
    Identity.MyCall = Identity.MyCallFull = "QX7KB";
    Identity.MapSystemFolder = "M";
    Followed.Moni1Call = "QX7GW";
    Followed.Moni1LogPath = "M\\LOG\\QX7GW.TXT";
    Stores.LogsOn = 1;
    Stores.MoniAllRecords.Limit = 50;
    Stores.Moni1Records.Limit = 250;
  }
  // How many records the long log holds; none of them is torn.
  std::size_t Logged() const {
    constexpr std::size_t kLine = StationRecord::kLength + 2;
    const std::string log = Disk.Of("M\\LOG\\_LOGL_.TXT");
    Require(log.size() % kLine == 0);
    return log.size() / kLine;
  }

  IdentityState Identity;
  StoresState Stores;
  FollowedStationState Followed;
  MapViewState Map;
  AlarmState Alarms;
  GpsState Gps;
  SettingsState Settings;
  WindowControls Window;
  MapControls MapBar;
  Moni1Controls Moni1;
  RecordPanelControls Record;
  StatusControls Status;
  MemoryFiles Disk;
  VirtualClock Time{{2024, 5, 14, 12, 35, 0}};
  QuietActions Actions;
  QuietDialogs Boxes;
  SymbolTable Symbols;
  DistanceAlarm Distance{Alarms, Identity, Followed, Map, Status, Window};
  FollowedHistory History{Identity, Stores,  Followed,         Map, Gps, Moni1, MapBar, Distance,
                          Disk,     Actions, Status.FileNotice};
  RecordBrowser Browser{Stores, Map, Record, MapBar, History, Boxes, Actions};
  RecordKeeper Keeper{
      {Identity, Stores, Map, Alarms}, {History, Browser, Distance, Status.FileNotice}, Time, Disk};
};

}  // namespace zepril
