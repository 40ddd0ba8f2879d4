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

  // Puts each that is open to its place on the map's present size.
  void Place();
  // The button that closes what lies on top; none when no panel is open.
  const Button* CloseOfTopmost() const;

 private:
  void MakePicturePanel(const Files& files);
  void MakePlacePanel();
  void MakeIonoPanel();
  void MakeSunPanel(const QtSurface& sun);
  void MakeProgressPanel();

  WindowParts& parts_;
  MainWindowControls& controls_;
  QWidget& map_;
  QFrame* picture_ = nullptr;
  QFrame* place_ = nullptr;
  QFrame* iono_ = nullptr;
  QFrame* sun_ = nullptr;
  QFrame* progress_ = nullptr;
};

}  // namespace zepril
