// The layers over the tiles that are no stations, drawn from what is loaded and switched on.
#pragma once

#include "core/state/internet.h"
#include "core/state/places.h"
#include "core/state/settings.h"
#include "map/coordinate_values.h"
#include "map/grid_lines.h"
#include "map/map_panels.h"
#include "map/overlay_layers.h"
#include "map/propagation_estimate.h"
#include "platform/clock.h"

namespace zepril {

// What the layers show.
struct OverlaySections {
  const PlacesState& Places;
  const InternetState& Internet;
  const SettingsState& Settings;
};

class MapOverlays final : public OverlayLayers {
 public:
  // `strips`: the values of the read-outs, for the strips chosen last.
  MapOverlays(OverlaySections sections, const CoordinateValues& strips, const Clock& clock,
              const MapPanels& panels)
      : sections_(sections), strips_(strips), clock_(clock), panels_(panels) {}

  void GridLayer(DrawingSurface& surface, const MapViewState& view, DisplayMode mode,
                 PixelPoint last_tile) override;
  void CirclesLayer(DrawingSurface& surface, const MapViewState& view) override;
  void PictureMarksLayer(DrawingSurface& surface, const MapViewState& view) override;
  void TrackLayer(DrawingSurface& surface, const MapViewState& view) override;
  void PoiLayer(DrawingSurface& surface, const MapViewState& view) override;
  void ShowPicture(DrawingSurface& surface, const MapViewState& view) override;

 private:
  OverlaySections sections_;
  const CoordinateValues& strips_;
  const Clock& clock_;
  const MapPanels& panels_;
  GridLabels grid_labels_;
};

// Month and time of the estimate: UTC is the local hour less the offset, within 0 to 24.
PropagationInputs InputsOfNow(const InternetState& internet, int utc_offset_hours,
                              const LocalTime& now);

}  // namespace zepril
