// The keys and bounds of the look, out of the state and into it.
#include "station/view_memory.h"

#include "core/text_fields.h"
#include "map/scales.h"

namespace zepril {
namespace {

constexpr int kHighestPlaceLevel = 2;
constexpr int kHighestBrightness = 2;
constexpr int kHighestTrackStyle = 6;
constexpr int kHighestDisplayMode = 4;

}  // namespace

void SetFirstView(MapViewState& view) {
  // What a new operator wants to see.
  view.StationLabelLevel = LabelLevel::MarksAndCalls;
}

WindowValues ViewValues(const RuntimeState& state) {
  const MapViewState& view = state.Map;
  const auto text = [](int value) { return WholeNumber(value); };
  WindowValues values;
  values["LABELS"] = text(LabelStep(view));
  values["GRID"] = text(view.GridOn ? 1 : 0);
  values["CIRCLES"] = text(view.CirclesOn ? 1 : 0);
  values["PICTURES"] = text(view.PicturesOn ? 1 : 0);
  values["TRACKS"] = text(view.TracksOn ? 1 : 0);
  values["PLACES"] = text(view.PoiLevel);
  values["DIM"] = text(view.BrightnessStep);
  values["SCALE"] = text(ScaleRow(view.MapTileKm).value_or(0));
  values["TRACKSTYLE"] = text(state.Followed.TrackStyle);
  values["READOUTS"] = text(view.CentreDisplayMode) + "," + text(view.CursorDisplayMode) + "," +
                       text(view.MonitorDisplayMode);
  return values;
}

void ApplyViewValues(const WindowValues& values, RuntimeState& state) {
  MapViewState& view = state.Map;
  const auto take = [&values](const char* key, int highest, auto set) {
    if (const auto value = WindowNumber(values, key, 0, highest)) set(*value);
  };
  take("LABELS", kWxLabelStep, [&](int step) { SetLabelStep(view, step); });
  take("GRID", 1, [&](int on) { view.GridOn = on == 1; });
  take("CIRCLES", 1, [&](int on) { view.CirclesOn = on == 1; });
  take("PICTURES", 1, [&](int on) { view.PicturesOn = on == 1; });
  take("TRACKS", 1, [&](int on) { view.TracksOn = on == 1; });
  take("PLACES", kHighestPlaceLevel, [&](int level) { view.PoiLevel = level; });
  take("DIM", kHighestBrightness, [&](int step) { view.BrightnessStep = step; });
  take("SCALE", kMapScales - 1,
       [&](int row) { view.MapTileKm = kMapScaleTable[static_cast<std::size_t>(row)].TileKm; });
  take("TRACKSTYLE", kHighestTrackStyle, [&](int style) { state.Followed.TrackStyle = style; });
  const auto systems = WindowNumbers(values, "READOUTS", 3);
  if (!systems) return;
  int* modes[] = {&view.CentreDisplayMode, &view.CursorDisplayMode, &view.MonitorDisplayMode};
  for (std::size_t at = 0; at < 3; ++at) {
    const int mode = (*systems)[at];
    if (mode >= 0 && mode <= kHighestDisplayMode) *modes[at] = mode;
  }
}

LastValues LastValuesOf(const MapViewState& view, const ScaleControls& scales) {
  LastValues last;
  for (std::size_t row = 0; row < last.CurrentMaps.size(); ++row)
    last.CurrentMaps[row] = scales.Folder[row].Selected();
  last.CentreNorthKm = view.CentreNorthKm;
  last.CentreEastKm = view.CentreEastKm;
  last.OwnNorthKm = view.OwnNorthKm;
  last.OwnEastKm = view.OwnEastKm;
  return last;
}

}  // namespace zepril
