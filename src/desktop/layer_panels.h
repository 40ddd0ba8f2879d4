// The panels that belong to the layers of the map: a place, the input for the circles, the sun's
// path, a picture in place of the map, and the progress of long work.
#pragma once

#include "core/controls/main_window_controls.h"
#include "desktop/window_parts.h"
#include "platform/files.h"
#include "platform/qt/qt_surface.h"

class QFrame;
class QWidget;

namespace zepril {

class LayerPanels {
 public:
  // `sun`: where the sun's path is painted; `files` finds the pictures.
  LayerPanels(WindowParts& parts, MainWindowControls& controls, QWidget& map, const QtSurface& sun,
              const Files& files);
  LayerPanels(const LayerPanels&) = delete;
  LayerPanels& operator=(const LayerPanels&) = delete;

  struct Widgets {
    QFrame* Picture = nullptr;
    QFrame* Place = nullptr;
    QFrame* Iono = nullptr;
    QFrame* Sun = nullptr;
    QFrame* Progress = nullptr;
  };
  const Widgets& Made() const { return made_; }

 private:
  void MakePicturePanel(const Files& files);
  void MakePlacePanel();
  void MakeIonoPanel();
  void MakeSunPanel(const QtSurface& sun);
  void MakeProgressPanel();

  WindowParts& parts_;
  MainWindowControls& controls_;
  QWidget& map_;
  Widgets made_;
};

}  // namespace zepril
