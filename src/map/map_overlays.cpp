// Takes each layer's values from the state and hands them to its drawing.
#include "map/map_overlays.h"

#include "map/circles_layer.h"
#include "map/grid_layer.h"
#include "map/picture_marks_layer.h"
#include "map/poi_layer.h"
#include "map/track_layer.h"

namespace zepril {
namespace {

constexpr double kDayHours = 24.0;

}  // namespace

PropagationInputs InputsOfNow(const InternetState& internet, int utc_offset_hours,
                              const LocalTime& now) {
  double hours = now.Hour - utc_offset_hours + now.Minute / 60.0;
  while (hours < 0.0)
    hours += kDayHours;
  while (hours >= kDayHours)
    hours -= kDayHours;
  return {internet.SunspotNumber, internet.KpIndex, now.Month, hours};
}

void MapOverlays::GridLayer(DrawingSurface& surface, const MapViewState& view, DisplayMode mode,
                            PixelPoint last_tile) {
  // The grids of a picture follow one another from the first.
  if (mode == DisplayMode::MapUtm) grid_labels_.Clear();
  zepril::GridLayer(surface, view, strips_, mode, last_tile, grid_labels_);
}

void MapOverlays::CirclesLayer(DrawingSurface& surface, const MapViewState& view) {
  zepril::CirclesLayer(
      surface, view,
      InputsOfNow(sections_.Internet, sections_.Settings.UtcOffsetHours, clock_.Now()));
}

void MapOverlays::PictureMarksLayer(DrawingSurface& surface, const MapViewState& view) {
  zepril::PictureMarksLayer(surface, view);
}

void MapOverlays::TrackLayer(DrawingSurface& surface, const MapViewState& view) {
  zepril::TrackLayer(surface, view, sections_.Places.TrackPoints);
}

void MapOverlays::PoiLayer(DrawingSurface& surface, const MapViewState& view) {
  zepril::PoiLayer(surface, view, sections_.Places.PoiPoints);
}

void MapOverlays::ShowPicture(DrawingSurface&, const MapViewState& view) {
  if (panels_.Pictures) panels_.Pictures->ShowPicture(view.SelectedPicture);
}

}  // namespace zepril
