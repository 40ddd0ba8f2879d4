// The map window: what is looked at and what is drawn over it. Kilometres are in the UTM zone of
// the map library.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/state/label_level.h"
#include "core/state/shown_classes.h"

namespace zepril {

// What the centre of the map follows.
enum class Following {
  Nobody = 0,
  Station = 1,  // `MONI 1`
  OwnPosition = 2,
  TypedPosition = 3,  // one jump there, then nobody
};

// What stands in the map's place.
enum class MapShows { Map = 0, Picture = 1 };

struct MapViewState {
  double MapCentralMeridian = 15.0;  // degrees
  double MapFalseEasting = 500000.0;

  double CentreNorthKm = 0.0;
  double CentreEastKm = 0.0;
  std::string StoredNorthText;  // the last centre as the configuration has it
  std::string StoredEastText;
  double MapTileKm = 5000.0;  // 5000, 1000, 200, 50, 10 or 2
  double ZoomFactor = 1.0;    // native pixels of a tile to a screen pixel; 0 is read as 1
  double MetresPerPixel = 5000.0;
  double PixelsPerKm = 0.2;
  double ViewWidthPx = 800.0;
  double ViewHeightPx = 600.0;
  double ViewNorthKm = 0.0;
  double ViewSouthKm = 0.0;
  double ViewWestKm = 0.0;
  double ViewEastKm = 0.0;

  std::string ActiveFolderName;
  std::string ActiveFolderPath;
  std::string BaseFolderPath;

  Following CentreFollow = Following::Nobody;
  MapShows PictureMode = MapShows::Map;
  bool GridOn = false;
  bool CirclesOn = false;
  bool FoptDetailed = false;  // circles with three values in place of "Fopt="
  bool PicturesOn = false;
  bool TracksOn = false;
  int PoiLevel = 0;                       // 0 to 2
  int BrightnessStep = 0;                 // 0 to 2
  bool InkStateOn = false;                // the last tile worked on had the 16 inks
  std::string SelectedInk;                // number of the chosen ink, or empty
  std::array<unsigned, 16> InkColours{};  // 0xBBGGRR, as the palette was last worked on

  LabelLevel StationLabelLevel = LabelLevel::NoStations;
  bool WxCaption = false;  // LabelLevel::Marks with gauges at weather stations
  int StationClassMask = kAllClasses;
  bool PlainMapHeld = false;  // the plain form of a map type is shown while the button is held
  bool HideObjects = false;
  bool MovedOnly = false;  // class 0 only if moved
  std::string FindCall;

  double OwnNorthKm = 0.0;
  double OwnEastKm = 0.0;
  bool ObjectCenterPending = false;  // the next redraw jumps to the own object
  std::string QthNorthText;          // of Following::TypedPosition
  std::string QthEastText;

  double StationAnchorX = 0.0;
  double StationAnchorY = 0.0;
  bool MapDrawn = false;         // false: the next tick redraws
  bool MapSavedThisRun = false;  // missing tiles are white from the first saved map on
  int MapLockedOnRecord = 0;     // the centre button reads "MAP L"
  bool ManualMapMove = false;    // set by a press on the map, read by the GPS room
  bool LookupHit = false;        // the last right press found something
  int SelectedPicture = 0;       // 1-based index into PictureNames of the picture shown
  double ClickNorthKm = 0.0;
  double ClickEastKm = 0.0;

  int CentreDisplayMode = 0;  // 0 to 4
  int CursorDisplayMode = 0;
  int MonitorDisplayMode = 0;
  double CursorNorthKm = 0.0;
  double CursorEastKm = 0.0;
  double CursorX = 0.0;  // last pixel of the mouse on the map
  double CursorY = 0.0;

  // Text behind the prefix of the chosen variant of each scale, as the configuration holds it:
  // index 0 to 5 for M5000, M1000, M0200, M0050, M0010, M0002.
  std::array<std::string, 6> StoredVariants;
  std::vector<std::string> PictureNames;  // sorted, at most 5000, 12 characters each

  int ColourDepthBits = 32;
};

// The label levels as the operator steps through them: by number, then "WX".
inline constexpr int kWxLabelStep = 6;
inline constexpr int kLabelSteps = 7;

inline int LabelStep(const MapViewState& view) {
  return view.WxCaption ? kWxLabelStep : static_cast<int>(view.StationLabelLevel);
}

// `step`: 0 to 6.
inline void SetLabelStep(MapViewState& view, int step) {
  view.WxCaption = step == kWxLabelStep;
  view.StationLabelLevel = view.WxCaption ? LabelLevel::Marks : static_cast<LabelLevel>(step);
}

}  // namespace zepril
