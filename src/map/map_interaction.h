// What the operator does with the map: centre by a press, look things up by a right press, step
// scale and zoom, choose folders, inks, brightness, labels and classes. Each handler changes the
// state of the view and has the map redrawn.
#pragma once

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/palette_controls.h"
#include "core/controls/readout_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/scale_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/followed_station.h"
#include "core/state/map_view.h"
#include "core/state/stores.h"
#include "core/timer.h"
#include "map/map_library.h"
#include "map/map_panels.h"
#include "map/readouts.h"
#include "platform/desktop_actions.h"
#include "platform/event.h"

namespace zepril {

// What else a press on the map can find; a lookup returns true when it found something.
class MapLookups {
 public:
  virtual ~MapLookups() = default;
  virtual bool LookupPicture() = 0;
  virtual bool LookupTrackPoint() = 0;
  virtual bool LookupPlace() = 0;
};

struct MapInteractionControls {
  const WindowControls& Window;
  MapControls& Map;
  ReadoutControls& ReadoutLabels;
  ScaleControls& Scales;
  PaletteControls& Palette;
  Moni1Controls& Moni1;
  MoniAllControls& MoniAll;
  RecordPanelControls& Record;
};

struct MapInteractionTools {
  MapActions& Map;
  MapLibrary& Library;
  Readouts& ReadoutTexts;
  SettingsActions& Settings;
  MapLookups& Lookups;
  const MapPanels& Panels;
  DesktopActions& Desktop;
  Timer& Timer1;
  Timer& Timer2;
};

class MapInteraction {
 public:
  static constexpr int kLookupTimer2Ms = 3000;
  static constexpr int kNarrowestLookupWindow = 630;  // pixels
  static constexpr double kLargestZoom = 8.0;
  static constexpr double kSmallestZoom = 0.25;

  // Sets the events of the controls; the object must outlive them.
  MapInteraction(MapViewState& view, StoresState& stores, FollowedStationState& followed,
                 MapInteractionControls controls, MapInteractionTools tools);
  MapInteraction(const MapInteraction&) = delete;
  MapInteraction& operator=(const MapInteraction&) = delete;

  // A station's record was picked: `SelectedStationCall` and `SelectedRecordIndex` name it.
  Event<> RecordPicked;
  // The operator presses button or key on the map; told before it acts.
  Event<> Touched;
  // Brings level, class boxes, brightness, layers and follow options into the controls, after the
  // state was loaded.
  void ShowState();

 private:
  void BindScaleAndZoom();
  void BindLayers();
  void BindMap();
  void BindFolders();
  void BindCaptions();
  void BindStations();
  void BindPalette();

  void StepScale(int rows);
  void StepScaleRound();
  double Zoom() const;
  void SetZoom(double factor);
  void ChooseFolder(int row);
  void CentreOnRecord();
  void Follow(Following what);

  void PressMap(const MousePress& press);
  void LeftPress(double x, double y);
  void CentreOnPicture();
  void RightPress();
  bool LookUpEverything();
  bool LookUpStation();
  void ReleaseMap();
  void KeyOnMap(const KeyPress& key);
  void MovePointer(double dx, double dy);

  void StepLabelLevel(int direction);
  void ReadClassBoxes();
  void StepBrightness();
  void ChooseInk(int number);
  void StepReadout(Readout readout);
  void OpenMonitorRecords();

  void UnlockFromRecord();
  void FocusMap();
  void ClosePicture();
  void Redraw();

  MapViewState& view_;
  StoresState& stores_;
  FollowedStationState& followed_;
  MapInteractionControls controls_;
  MapInteractionTools tools_;
};

}  // namespace zepril
