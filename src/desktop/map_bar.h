// The bar over the map: scale, zoom, centre and follow, the layers, brightness, save. On a narrow
// window the icons stand alone.
#pragma once

#include <QFrame>

#include <vector>

#include "core/controls/map_controls.h"
#include "desktop/window_parts.h"

class QBoxLayout;
class QToolButton;

namespace zepril {

class MapBar final : public QFrame {
 public:
  MapBar(WindowParts& parts, MapControls& map);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  // From which width of the bar on its caption stands beside the icon; 0: always.
  template <typename ControlOfMap>
  QToolButton* Add(Picture picture, ControlOfMap& control, int caption_from);
  void AddDim(Text text);
  void AddGap();
  void AddPositions(MapControls& map);
  void AddLayers(MapControls& map);

  struct Captioned {
    QToolButton* Tool;
    int From;
  };

  WindowParts& parts_;
  QBoxLayout* row_;
  std::vector<Captioned> captioned_;
  std::vector<QWidget*> dim_;  // words and gaps that go first
};

}  // namespace zepril
