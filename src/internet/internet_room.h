// What comes over the internet or, like the space-weather numbers, by hand in its place.
#pragma once

#include "core/controls/iono_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/status_controls.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/state/services.h"
#include "core/timer.h"
#include "internet/iono_input.h"
#include "internet/iono_update.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/page_fetcher.h"

namespace zepril {

struct InternetSections {
  InternetState& Internet;
  MapViewState& View;
  const ServicesState& Services;
};

struct InternetControls {
  IonoControls& Iono;
  MapControls& Map;
  StatusControls& Status;
};

struct InternetTools {
  PageFetcher& Pages;
  const Clock& LocalClock;
  Dialogs& Boxes;
  MapActions& Map;
  SettingsActions& Settings;
  Timer& Timer1;
  Timer& Timer2;
};

struct InternetRoom {
  // Sets the events of the controls; the object must outlive them.
  InternetRoom(InternetSections sections, InternetControls controls, InternetTools tools)
      : Update(sections.Internet, sections.View, sections.Services, controls.Iono, controls.Status,
               {tools.Pages, tools.LocalClock, tools.Map, tools.Settings}),
        Iono(sections.Internet, sections.View, controls.Iono, controls.Map,
             {tools.Boxes, tools.Map, tools.Settings, Update, tools.Timer1, tools.Timer2}) {}
  InternetRoom(const InternetRoom&) = delete;
  InternetRoom& operator=(const InternetRoom&) = delete;

  // Once a second, also while the main cycle rests.
  void SecondPassed() { Update.SecondPassed(); }

  IonoUpdate Update;
  IonoInput Iono;
};

}  // namespace zepril
