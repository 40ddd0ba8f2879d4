// Paints the map window from scratch, layer by layer, each time anything changes. Nothing of the
// picture survives from one redraw to the next.
//
// After a redraw the view edges and `MetresPerPixel` are valid, the read-outs, the scale text, the
// fill bars and the coverage marks are up to date, the map is marked as drawn, and `Timer1` runs.
#pragma once

#include <string>

#include "core/actions/map_actions.h"
#include "core/controls/chat_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/palette_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/scale_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/followed_station.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/stores.h"
#include "core/state/transmission.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "map/map_library.h"
#include "map/overlay_layers.h"
#include "map/readouts.h"
#include "map/symbol_sheets.h"
#include "map/tile_cache.h"
#include "platform/clock.h"
#include "platform/drawing_surface.h"
#include "platform/event.h"

namespace zepril {

// The controls that a redraw writes or looks at.
struct MapRedrawControls {
  WindowControls& Window;
  MapControls& Map;
  ScaleControls& Scales;
  PaletteControls& Palette;
  Moni1Controls& Moni1;
  MoniAllControls& MoniAll;
  const RecordPanelControls& Record;
  const ChatControls& Chat;
};

// What a redraw shows.
struct MapRedrawSections {
  MapViewState& View;
  StoresState& Stores;
  FollowedStationState& Followed;
  const GpsState& Gps;
  const TransmissionState& Transmission;
  const IdentityState& Identity;
};

// Where it paints and what it is helped by.
struct MapRedrawTools {
  DrawingSurface& MapSurface;   // `Picture1`
  DrawingSurface& BaseSurface;  // the second map window under it, of the same size
  TileCache& Tiles;
  MapLibrary& Library;
  SymbolSheets& Sheets;
  const SymbolTable& Symbols;
  Readouts& ReadoutTexts;
  OverlayLayers& Overlays;
  const Clock& LocalClock;
  Timer& Timer1;
};

class MapRedrawer final : public MapActions {
 public:
  MapRedrawer(MapRedrawSections sections, MapRedrawControls controls, MapRedrawTools tools);

  void MapRedraw() override;
  void MapRefresh() override { ++controls_.Map.Picture1.Revision; }
  // The map, or the picture in its place, was drawn; may be empty.
  Event<> Redrawn;

 private:
  void ReadZone();
  bool OwnPositionFromGps() const;
  void FollowCentre();
  void TakeFocus();
  void ChooseFolders();
  void DrawBaseMap();
  void DrawOverlays(PixelPoint last_tile);
  void DrawPositionMarks();
  void SetStationAnchor();
  void ShowTexts();
  void SetPointer(PointerShape shape);
  void Finish();
  void Draw();

  MapRedrawSections sections_;
  MapRedrawControls controls_;
  MapRedrawTools tools_;
  std::string zone_read_;  // zone of the maps that the read-outs know
};

}  // namespace zepril
