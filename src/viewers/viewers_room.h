// What is looked at over the map: places, pictures and the sun's path.
#pragma once

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/picture_panel_controls.h"
#include "core/controls/place_controls.h"
#include "core/controls/readout_controls.h"
#include "core/controls/sun_controls.h"
#include "core/controls/viewer_controls.h"
#include "core/progress.h"
#include "core/state/followed_station.h"
#include "core/state/services.h"
#include "core/state/stores.h"
#include "core/timer.h"
#include "map/map_panels.h"
#include "platform/clock.h"
#include "platform/desktop_actions.h"
#include "platform/dialogs.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"
#include "viewers/outside_viewers.h"
#include "viewers/picture_viewer.h"
#include "viewers/place_files.h"
#include "viewers/sun_curve.h"

namespace zepril {

struct ViewersSections {
  const IdentityState& Identity;
  const FollowedStationState& Followed;
  const StoresState& Stores;
  const ServicesState& Services;
  MapViewState& View;
  SettingsState& Settings;
  PlacesState& Places;
};

struct ViewersControls {
  PlaceControls& Places;
  PicturePanelControls& Picture;
  SunControls& Sun;
  ViewerControls& Viewers;
  MapControls& Map;
  const ReadoutControls& Readouts;
};

struct ViewersTools {
  Files& Disk;
  Clock& LocalClock;
  Dialogs& Boxes;
  DesktopActions& Desktop;
  DrawingSurface& SunSurface;
  MapActions& Map;
  SettingsActions& Settings;
  Progress& LongWork;
  Timer& Timer1;
  Timer& Timer2;
};

struct ViewersRoom {
  // Sets the events of the panels' controls, and shows itself to the map by `panels`; the object
  // must outlive both.
  ViewersRoom(ViewersSections sections, ViewersControls controls, ViewersTools tools,
              MapPanels& panels)
      : Places(sections.Identity, sections.View, sections.Settings, sections.Places,
               controls.Places, controls.Map,
               {tools.Disk, tools.Boxes, tools.Desktop, tools.Map, tools.Settings, tools.LongWork}),
        Pictures(sections.Identity, sections.View, controls.Picture, controls.Map,
                 {tools.Disk, tools.Desktop, tools.Map, tools.Timer1}),
        Sun(sections.View, sections.Settings, controls.Sun, tools.SunSurface, tools.LocalClock),
        Outside(
            {sections.Identity, sections.Followed, sections.Stores, sections.Services,
             sections.View},
            {controls.Viewers, controls.Map, controls.Readouts},
            {tools.Disk, tools.LocalClock, tools.Desktop, tools.Map, tools.Timer1, tools.Timer2}) {
    panels = {&Pictures, &Places, &Sun};
  }
  ViewersRoom(const ViewersRoom&) = delete;
  ViewersRoom& operator=(const ViewersRoom&) = delete;

  PlaceFiles Places;
  PictureViewer Pictures;
  SunCurve Sun;
  OutsideViewers Outside;
};

}  // namespace zepril
