// What a right press on the map finds beside stations: pictures, points of the track, places.
#pragma once

#include "core/controls/map_controls.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/timer.h"
#include "map/map_interaction.h"
#include "map/map_panels.h"
#include "platform/drawing_surface.h"

namespace zepril {

struct MapLookupTools {
  DrawingSurface& MapSurface;
  const MapPanels& Panels;
  Timer& Timer1;
};

class PressLookups final : public MapLookups {
 public:
  PressLookups(MapViewState& view, const PlacesState& places, MapControls& controls,
               MapLookupTools tools)
      : view_(view), places_(places), controls_(controls), tools_(tools) {}

  bool LookupPicture() override;
  bool LookupTrackPoint() override;
  bool LookupPlace() override;

 private:
  double PointToleranceKm() const { return view_.MetresPerPixel / 100.0; }

  MapViewState& view_;
  const PlacesState& places_;
  MapControls& controls_;
  MapLookupTools tools_;
};

}  // namespace zepril
