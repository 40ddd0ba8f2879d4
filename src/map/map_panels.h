// Panels over the map that rooms above own: what a press on the map asks them to show.
#pragma once

namespace zepril {

class PicturePanel {
 public:
  virtual ~PicturePanel() = default;
  // The geo-referenced picture `index`, 1-based, in place of the map.
  virtual void ShowPicture(int index) = 0;
  virtual void ClosePicture() = 0;
  // The map was drawn anew: a picture that it does not show any more goes with its panel.
  virtual void MapRedrawn() = 0;
};

class PlacePanel {
 public:
  virtual ~PlacePanel() = default;
  // The panel of place `index`, 1-based, of the loaded ones.
  virtual void EditPlace(int index) = 0;
};

class SunPanel {
 public:
  virtual ~SunPanel() = default;
  // The sun's path over the pointer's position.
  virtual void ShowSunCurve() = 0;
  virtual void MoveSunCurve() = 0;  // the pointer moved while it is shown
  virtual void HideSunCurve() = 0;
};

// Those that the program has; set before the first press.
struct MapPanels {
  PicturePanel* Pictures = nullptr;
  PlacePanel* Places = nullptr;
  SunPanel* Sun = nullptr;
};

}  // namespace zepril
