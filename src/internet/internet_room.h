// What comes over the internet or, like the space-weather numbers, by hand in its place.
#pragma once

#include "core/actions/emergency_actions.h"
#include "core/actions/map_actions.h"
#include "core/actions/message_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/internet_controls.h"
#include "core/controls/iono_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/followed_station.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/state/services.h"
#include "core/state/settings.h"
#include "core/state/stores.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "internet/inet_support.h"
#include "internet/iono_input.h"
#include "internet/iono_update.h"
#include "internet/station_scan.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/page_fetcher.h"
#include "reception/followed_choice.h"
#include "reception/record_keeper.h"

namespace zepril {

struct InternetSections {
  const IdentityState& Identity;
  InternetState& Internet;
  MapViewState& View;
  const StoresState& Stores;
  FollowedStationState& Followed;
  const SettingsState& Settings;
  const ServicesState& Services;
};

struct InternetControls {
  IonoControls& Iono;
  MapControls& Map;
  Moni1Controls& Moni1;
  MoniAllControls& MoniAll;
  WindowControls& Window;
  StatusControls& Status;
  InetControls& Words;
};

struct InternetTools {
  Dialogs& Boxes;
  Clock& LocalClock;
  PageFetcher& Pages;
  const SymbolTable& Symbols;
  RecordKeeper& Keeper;
  FollowedChoice& Choice;
  MapActions& Map;
  SettingsActions& Settings;
  EmergencyActions& Emergencies;
  MessageActions& Messages;
  Timer& Timer1;
  Timer& Timer2;
};

struct InternetRoom {
  // Sets the events of the controls; the object must outlive them.
  InternetRoom(InternetSections sections, InternetControls controls, InternetTools tools)
      : Update(sections.Internet, sections.View, sections.Services, controls.Iono, controls.Status,
               {tools.Pages, tools.LocalClock, tools.Map, tools.Settings}),
        Iono(sections.Internet, sections.View, controls.Iono, controls.Map,
             {tools.Boxes, tools.Map, tools.Settings, Update, tools.Timer1, tools.Timer2}),
        Support({sections.Identity, sections.Internet, sections.Stores, sections.Followed,
                 sections.View, sections.Settings, sections.Services},
                {controls.Moni1, controls.MoniAll, controls.Window, controls.Map, controls.Status,
                 controls.Words},
                {tools.Pages, tools.LocalClock, tools.Keeper, tools.Symbols, tools.Map,
                 tools.Emergencies, tools.Messages, tools.Timer1, tools.Timer2}),
        Scan({sections.Internet, sections.Followed}, controls.Moni1,
             {Support, tools.Choice, tools.Settings}) {}
  InternetRoom(const InternetRoom&) = delete;
  InternetRoom& operator=(const InternetRoom&) = delete;

  // Once a second, also while the main cycle rests.
  void SecondPassed() {
    Update.SecondPassed();
    Support.SecondPassed();
  }
  // The end of the program: nothing more is asked.
  void Stop() {
    Support.Stop();
    Scan.Stop();
  }

  IonoUpdate Update;
  IonoInput Iono;
  InetSupport Support;
  StationScan Scan;
};

}  // namespace zepril
