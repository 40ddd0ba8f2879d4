// Panels over the map that rooms above own: what a press on the map asks them to show.
#pragma once

namespace zepril {

class MapPanels {
 public:
  virtual ~MapPanels() = default;
  // The geo-referenced picture number `SelectedPicture`, in place of the map.
  virtual void ShowPicture() {}
  virtual void ClosePicture() {}
  // The panel of place `index`, 1-based, of the loaded ones.
  virtual void EditPlace(int /*index*/) {}
  // The sun's path over the pointer's position.
  virtual void ShowSunCurve() {}
  virtual void MoveSunCurve() {}  // the pointer moved while it is shown
  virtual void HideSunCurve() {}
};

}  // namespace zepril
