// Pictures whose names tell where they were taken: shown over the map, one after another, with a
// page for outside viewers.
#pragma once

#include <string>

#include "core/actions/map_actions.h"
#include "core/main_window_controls.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/timer.h"
#include "platform/desktop_actions.h"
#include "platform/files.h"

namespace zepril {

struct PictureViewerTools {
  Files& Disk;
  DesktopActions& Desktop;
  MapActions& Map;
  Timer& Timer1;
};

class PictureViewer {
 public:
  // Sets the events of the panel's controls. A click on the picture is a left press on the map.
  PictureViewer(const IdentityState& identity, MapViewState& view, PicturePanelControls& controls,
                MapControls& map, PictureViewerTools tools);
  PictureViewer(const PictureViewer&) = delete;
  PictureViewer& operator=(const PictureViewer&) = delete;

  // Shows picture `index`, 1-based, of `PictureNames`.
  void ShowPicture(int index);
  // Hides the panel; the map is not drawn.
  void ClosePicture();

 private:
  const IdentityState& identity_;
  MapViewState& view_;
  PicturePanelControls& controls_;
  MapControls& map_;
  PictureViewerTools tools_;
};

}  // namespace zepril
