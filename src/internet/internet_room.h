// What comes over the internet or, like the space-weather numbers, by hand in its place.
#pragma once

#include "core/controls/iono_controls.h"
#include "core/controls/map_controls.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "internet/iono_input.h"

namespace zepril {

struct InternetSections {
  InternetState& Internet;
  MapViewState& View;
};

struct InternetControls {
  IonoControls& Iono;
  MapControls& Map;
};

struct InternetRoom {
  // Sets the events of the controls; the object must outlive them.
  InternetRoom(InternetSections sections, InternetControls controls, IonoInputTools tools)
      : Iono(sections.Internet, sections.View, controls.Iono, controls.Map, tools) {}
  InternetRoom(const InternetRoom&) = delete;
  InternetRoom& operator=(const InternetRoom&) = delete;

  IonoInput Iono;
};

}  // namespace zepril
