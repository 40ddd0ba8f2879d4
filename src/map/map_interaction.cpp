// Sets the events of the map's controls and carries out what each means.
#include "map/map_interaction.h"

#include "core/centre_follow.h"
#include "core/keys.h"
#include "core/position_text.h"
#include "core/state_colours.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "map/map_view.h"
#include "map/picture_names.h"
#include "map/scales.h"
#include "map/station_lookup.h"

namespace zepril {
namespace {

constexpr int kRightButton = 2;

constexpr int kTrackStyles = 7;

constexpr std::array<std::uint32_t, 3> kBrightnessButton{
    state_colours::kMapAsItIs, state_colours::kMapDimmed, state_colours::kMapBrighter};

ClassBox StateOf(const CheckBox& box) {
  return static_cast<ClassBox>(box.Value);
}
void SetState(CheckBox& box, ClassBox state) {
  box.Value = static_cast<int>(state);
}

}  // namespace

MapInteraction::MapInteraction(MapViewState& view, StoresState& stores,
                               FollowedStationState& followed, MapInteractionControls controls,
                               MapInteractionTools tools)
    : view_(view), stores_(stores), followed_(followed), controls_(controls), tools_(tools) {
  BindScaleAndZoom();
  BindLayers();
  BindMap();
  BindFolders();
  BindCaptions();
  BindStations();
  BindPalette();
}

// ---- Binding --------------------------------------------------------------------------------

void MapInteraction::BindScaleAndZoom() {
  MapControls& map = controls_.Map;
  map.Command1.Click = [this] { StepScale(-1); };
  map.Command2.Click = [this] { StepScale(+1); };
  map.Command7.Click = [this] { Zoom() < kLargestZoom ? SetZoom(Zoom() * 2.0) : FocusMap(); };
  map.Command8.Click = [this] { Zoom() > kSmallestZoom ? SetZoom(Zoom() / 2.0) : FocusMap(); };
  map.Command9.Click = [this] { SetZoom(1.0); };
  map.Command12.Click = [this] { CentreOnRecord(); };
  map.Command12.RightClick = [this] { StepScaleRound(); };
  map.Option1.Click = [this] { Follow(Following::OwnPosition); };
  map.Option2.Click = [this] { Follow(Following::Station); };
}

void MapInteraction::BindLayers() {
  MapControls& map = controls_.Map;
  const auto switch_layer = [this](CheckBox& box, bool& layer_on) {
    box.Click = [this, &box, &layer_on] {
      layer_on = box.Value != 0;
      Redraw();
    };
  };
  switch_layer(map.Check4, view_.GridOn);
  switch_layer(map.Check9, view_.CirclesOn);
  switch_layer(map.Check12, view_.PicturesOn);
}

void MapInteraction::BindMap() {
  PictureBox& map = controls_.Map.Picture1;
  map.MouseMove = [this](const MousePress& at) {
    tools_.ReadoutTexts.CursorReadout(at.X, at.Y);
    if (tools_.Panels.Sun) tools_.Panels.Sun->MoveSunCurve();
  };
  map.MouseDown = [this](const MousePress& press) {
    Touched();
    PressMap(press);
  };
  map.MouseUp = [this](const MousePress&) { ReleaseMap(); };
  map.KeyDown = [this](const KeyPress& key) {
    Touched();
    KeyOnMap(key);
  };
}

void MapInteraction::BindFolders() {
  ScaleControls& scales = controls_.Scales;
  for (int row = 0; row < kMapScales; ++row) {
    const auto at = static_cast<std::size_t>(row);
    // The choice is a setting.
    scales.Folder[at].Change = [this, row] {
      ChooseFolder(row);
      tools_.Settings.WriteConfigFromMainWindow();
    };
    scales.FrameBox[at].Click = [this] { Redraw(); };
  }
  const auto all_boxes = [this](int value) {
    for (CheckBox& box : controls_.Scales.FrameBox)
      box.Value = value;
    Redraw();
  };
  scales.Command5.Click = [all_boxes] { all_boxes(1); };
  scales.Command6.Click = [all_boxes] { all_boxes(0); };
  scales.Command37.Click = [this] {
    tools_.Library.MapLibraryScan();
    Redraw();
  };
}

void MapInteraction::BindCaptions() {
  ReadoutControls& labels = controls_.ReadoutLabels;
  for (Label* label : {&labels.Label1, &labels.Label2}) {
    label->Click = [this] { StepReadout(Readout::Centre); };
  }
  for (Label* label : {&labels.Label3, &labels.Label4}) {
    label->Click = [this] { StepReadout(Readout::Cursor); };
  }
  for (Label* label : {&labels.Label7, &labels.Label8}) {
    label->Click = [this] { StepReadout(Readout::Monitor); };
    label->RightClick = [this] { OpenMonitorRecords(); };
  }
}

void MapInteraction::BindStations() {
  MoniAllControls& all = controls_.MoniAll;
  all.Command13.Click = [this] { StepLabelLevel(+1); };
  all.Command13.RightClick = [this] { StepLabelLevel(-1); };
  all.Label16.Click = [this] { StepLabelLevel(+1); };
  all.Label16.RightClick = [this] { StepLabelLevel(-1); };
  for (CheckBox* box : {&all.Check10, &all.Check11, &all.Check13, &all.Check19, &all.Check25}) {
    box->Click = [this] {
      ReadClassBoxes();
      Redraw();
    };
  }
  all.Check24.Click = [this] {
    view_.HideObjects = controls_.MoniAll.Check24.Value != 0;
    Redraw();
  };
  controls_.Moni1.Command17.Click = [this] {
    followed_.TrackStyle = (followed_.TrackStyle + 1) % kTrackStyles;
    Redraw();
  };
}

void MapInteraction::BindPalette() {
  PaletteControls& palette = controls_.Palette;
  palette.PalettePanel.Visible = false;
  controls_.Map.Command72.Click = [this] { StepBrightness(); };
  controls_.Map.Command72.RightClick = [this] {
    // Only tiles of 16 colours have inks.
    if (!view_.InkStateOn) return;
    controls_.Palette.PalettePanel.Visible = true;
    Redraw();
  };
  for (int number = 0; number < static_cast<int>(palette.Optionink.size()); ++number) {
    palette.Optionink[static_cast<std::size_t>(number)].Click = [this, number] {
      ChooseInk(number);
    };
  }
  palette.Command42.Click = [this] { ChooseInk(-1); };
  palette.Command43.Click = [this] {
    controls_.Palette.PalettePanel.Visible = false;
    ChooseInk(-1);
  };
}

// ---- Scale and zoom -------------------------------------------------------------------------

void MapInteraction::StepScale(int rows) {
  const int row = ScaleRow(view_.MapTileKm).value_or(0) + rows;
  if (row < 0 || row >= kMapScales) {
    FocusMap();
    return;
  }
  view_.MapTileKm = kMapScaleTable[static_cast<std::size_t>(row)].TileKm;
  SetZoom(1.0);
}

void MapInteraction::StepScaleRound() {
  const int row = (ScaleRow(view_.MapTileKm).value_or(0) + 1) % kMapScales;
  view_.MapTileKm = kMapScaleTable[static_cast<std::size_t>(row)].TileKm;
  SetZoom(1.0);
}

// 0 is read as 1.
double MapInteraction::Zoom() const {
  return view_.ZoomFactor > 0.0 ? view_.ZoomFactor : 1.0;
}

void MapInteraction::SetZoom(double factor) {
  view_.ZoomFactor = factor;
  FocusMap();
  Redraw();
}

void MapInteraction::ChooseFolder(int row) {
  const auto at = static_cast<std::size_t>(row);
  const std::string chosen = controls_.Scales.Folder[at].Selected();
  if (chosen.empty() || chosen == view_.ActiveFolderName) return;
  view_.MapTileKm = kMapScaleTable[at].TileKm;
  SetZoom(1.0);
}

void MapInteraction::CentreOnRecord() {
  view_.ManualMapMove = true;
  view_.PictureMode = MapShows::Map;
  ClosePicture();
  FollowNobody(view_, controls_.Map);
  const std::string& record = controls_.Record.Label20.Caption;
  // Without a record in the panel there is nowhere to go.
  if (!Trim(Mid(record, 14, 18)).empty()) {
    view_.CentreNorthKm = PositionTextKm(Mid(record, 14, 9));
    view_.CentreEastKm = PositionTextKm(Mid(record, 23, 9));
    view_.MapLockedOnRecord = 1;
  }
  Redraw();
}

void MapInteraction::Follow(Following what) {
  // The GPS leaves another choice for a while.
  if (what != Following::OwnPosition) view_.ManualMapMove = true;
  FollowWith(view_, controls_.Map, what);
  view_.PictureMode = MapShows::Map;
  ClosePicture();
  UnlockFromRecord();
  Redraw();
}

// ---- Presses on the map ---------------------------------------------------------------------

void MapInteraction::PressMap(const MousePress& press) {
  tools_.ReadoutTexts.CursorReadout(press.X, press.Y);
  if (press.Button == kRightButton) {
    RightPress();
  } else {
    LeftPress(press.X, press.Y);
  }
}

void MapInteraction::LeftPress(double x, double y) {
  UnlockFromRecord();
  if (view_.PictureMode == MapShows::Picture) {
    CentreOnPicture();
  } else {
    const MapPosition pressed = PositionOfPixel(view_, x, y);
    view_.CentreNorthKm = pressed.NorthKm;
    view_.CentreEastKm = pressed.EastKm;
    view_.ManualMapMove = true;
  }
  FollowNobody(view_, controls_.Map);
  Redraw();
}

void MapInteraction::CentreOnPicture() {
  const auto index = static_cast<std::size_t>(view_.SelectedPicture);
  if (index >= 1 && index <= view_.PictureNames.size()) {
    // Into the middle of the kilometre.
    const MapPosition place = PictureMiddle(view_.PictureNames[index - 1]);
    view_.CentreNorthKm = place.NorthKm;
    view_.CentreEastKm = place.EastKm;
  }
  view_.PictureMode = MapShows::Map;
  ClosePicture();
}

void MapInteraction::RightPress() {
  view_.ClickNorthKm = view_.CursorNorthKm;
  view_.ClickEastKm = view_.CursorEastKm;
  view_.LookupHit = false;
  if (controls_.Window.WidthPx >= kNarrowestLookupWindow) view_.LookupHit = LookUpEverything();
  if (view_.LookupHit) return;
  // Nothing there: the plain map under a map type while the button is held, or the sun.
  if (view_.ActiveFolderPath != view_.BaseFolderPath) {
    view_.PlainMapHeld = true;
    controls_.Map.Picture1.Visible = false;
  } else {
    if (tools_.Panels.Sun) tools_.Panels.Sun->ShowSunCurve();
  }
}

bool MapInteraction::LookUpEverything() {
  // Press after press must not keep off a tick that is due.
  const bool tick_first = tools_.Timer1.IsOverdue();
  const auto stop_cycle = [this, tick_first] {
    tick_first ? tools_.Timer1.Enable() : tools_.Timer1.Hold();
    tools_.Timer2.Stop();
    tools_.Timer2.Arm(kLookupTimer2Ms);
  };
  // Station, picture, track point, place: each only if the ones before found nothing.
  if (ShowsStations(view_.StationLabelLevel)) {
    stop_cycle();
    if (LookUpStation()) return true;
  }
  if (view_.PicturesOn) {
    stop_cycle();
    if (tools_.Lookups.LookupPicture()) return true;
  }
  if (view_.TracksOn) {
    stop_cycle();
    if (tools_.Lookups.LookupTrackPoint()) return true;
  }
  if (view_.PoiLevel > 0) {
    stop_cycle();
    if (tools_.Lookups.LookupPlace()) return true;
  }
  return false;
}

bool MapInteraction::LookUpStation() {
  const auto found = FindStationNear(view_, stores_.MoniAllRecords, stores_.Moni1Records,
                                     followed_.Moni1Call, view_.ClickNorthKm, view_.ClickEastKm);
  if (!found) return false;
  stores_.SelectedStationCall = found->Call;
  stores_.SelectedRecordIndex = found->RecordIndex;
  if (RecordPicked) RecordPicked();
  return true;
}

void MapInteraction::ReleaseMap() {
  view_.PlainMapHeld = false;
  controls_.Map.Picture1.Visible = true;
  if (tools_.Panels.Sun) tools_.Panels.Sun->HideSunCurve();
}

// ---- Keys -----------------------------------------------------------------------------------

void MapInteraction::KeyOnMap(const KeyPress& key) {
  // 1 pixel, 10 with Shift; other shift states take the same formula.
  const double step = key.Shift * 9.0 + 1.0;
  switch (key.Code) {
    case kLeftKey:
      MovePointer(-step, 0.0);
      break;
    case kUpKey:
      MovePointer(0.0, -step);
      break;
    case kRightKey:
      MovePointer(step, 0.0);
      break;
    case kDownKey:
      MovePointer(0.0, step);
      break;
    case kEnterKey:
      LeftPress(view_.CursorX, view_.CursorY);
      break;
    default:
      break;
  }
}

void MapInteraction::MovePointer(double dx, double dy) {
  const double x = view_.CursorX + dx;
  const double y = view_.CursorY + dy;
  if (x < 0.0 || y < 0.0 || x >= view_.ViewWidthPx || y >= view_.ViewHeightPx) return;
  // Where the desktop does not let the pointer be moved, the read-out alone goes on from here.
  tools_.Desktop.MovePointerOnMap(static_cast<int>(ToWhole(x)), static_cast<int>(ToWhole(y)));
  tools_.ReadoutTexts.CursorReadout(x, y);
}

// ---- What is shown --------------------------------------------------------------------------

void MapInteraction::StepLabelLevel(int direction) {
  SetLabelStep(view_, (LabelStep(view_) + direction + kLabelSteps) % kLabelSteps);
  ShowState();
  Redraw();
}

void MapInteraction::ReadClassBoxes() {
  const MoniAllControls& all = controls_.MoniAll;
  int mask = 0;
  int bit = 1;
  for (const CheckBox* box :
       {&all.Check10, &all.Check11, &all.Check13, &all.Check19, &all.Check25}) {
    if (StateOf(*box) != ClassBox::Hidden) mask |= bit;
    bit *= 2;
  }
  view_.StationClassMask = mask;
  view_.MovedOnly = StateOf(all.Check13) == ClassBox::ShownIfMoved;
}

void MapInteraction::StepBrightness() {
  view_.BrightnessStep = (view_.BrightnessStep + 1) % 3;
  ShowState();
  if (view_.PictureMode != MapShows::Picture) Redraw();
}

void MapInteraction::ChooseInk(int number) {
  view_.SelectedInk = number < 0 ? std::string() : WholeNumber(number);
  int at = 0;
  for (OptionButton& ink : controls_.Palette.Optionink)
    ink.Value = at++ == number;
  Redraw();
}

void MapInteraction::StepReadout(Readout readout) {
  tools_.ReadoutTexts.StepDisplayMode(readout);
  // The grid on the map follows the systems in use.
  if (view_.GridOn) Redraw();
}

void MapInteraction::OpenMonitorRecords() {
  stores_.SelectedStationCall = followed_.Moni1Call;
  stores_.SelectedRecordIndex = stores_.Moni1Records.Count();
  if (RecordPicked) RecordPicked();
}

void MapInteraction::ShowState() {
  MoniAllControls& all = controls_.MoniAll;
  all.Label16.Caption =
      view_.WxCaption ? status_texts::kWeatherLabels : WholeNumber(LabelStep(view_));
  int bit = 1;
  for (CheckBox* box : {&all.Check10, &all.Check11, &all.Check13, &all.Check19, &all.Check25}) {
    SetState(*box, (view_.StationClassMask & bit) != 0 ? ClassBox::Shown : ClassBox::Hidden);
    bit *= 2;
  }
  if (view_.MovedOnly && StateOf(all.Check13) == ClassBox::Shown) {
    SetState(all.Check13, ClassBox::ShownIfMoved);
  }
  all.Check24.Value = view_.HideObjects ? 1 : 0;
  const auto step = static_cast<std::size_t>(view_.BrightnessStep) % kBrightnessButton.size();
  controls_.Map.Command72.BackColour = kBrightnessButton[step];
  ShowCentreFollow(view_, controls_.Map);
  controls_.Map.Check4.Value = view_.GridOn ? 1 : 0;
  controls_.Map.Check9.Value = view_.CirclesOn ? 1 : 0;
  controls_.Map.Check12.Value = view_.PicturesOn ? 1 : 0;
  controls_.Map.Check14.Value = view_.TracksOn ? 1 : 0;
}

void MapInteraction::UnlockFromRecord() {
  view_.MapLockedOnRecord = 0;
}

void MapInteraction::ClosePicture() {
  if (tools_.Panels.Pictures) tools_.Panels.Pictures->ClosePicture();
}

void MapInteraction::FocusMap() {
  controls_.Map.Picture1.FocusWanted = true;
}

void MapInteraction::Redraw() {
  // The cycle stands still while the map is painted; the redraw starts it again.
  tools_.Timer1.Hold();
  tools_.Map.MapRedraw();
}

}  // namespace zepril
