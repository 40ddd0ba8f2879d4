// What is looked at over the map: places, pictures and the sun's path.
#pragma once

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/picture_panel_controls.h"
#include "core/controls/place_controls.h"
#include "core/controls/sun_controls.h"
#include "core/progress.h"
#include "core/timer.h"
#include "map/map_panels.h"
#include "platform/clock.h"
#include "platform/desktop_actions.h"
#include "platform/dialogs.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"
#include "viewers/picture_viewer.h"
#include "viewers/place_files.h"
#include "viewers/sun_curve.h"

namespace zepril {

struct ViewersSections {
  const IdentityState& Identity;
  MapViewState& View;
  SettingsState& Settings;
  PlacesState& Places;
};

struct ViewersControls {
  PlaceControls& Places;
  PicturePanelControls& Picture;
  SunControls& Sun;
  MapControls& Map;
};

struct ViewersTools {
  Files& Disk;
  const Clock& LocalClock;
  Dialogs& Boxes;
  DesktopActions& Desktop;
  DrawingSurface& SunSurface;
  MapActions& Map;
  SettingsActions& Settings;
  Progress& LongWork;
  Timer& Timer1;
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
        Sun(sections.View, sections.Settings, controls.Sun, tools.SunSurface, tools.LocalClock) {
    panels = {&Pictures, &Places, &Sun};
  }
  ViewersRoom(const ViewersRoom&) = delete;
  ViewersRoom& operator=(const ViewersRoom&) = delete;

  PlaceFiles Places;
  PictureViewer Pictures;
  SunCurve Sun;
};

}  // namespace zepril
