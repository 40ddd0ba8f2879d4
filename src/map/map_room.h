// The map as one thing, built in its order: library, tile cache, symbol sheets, read-outs, layers
// and the redraw; what the operator's hands do with it, his position, and saving what is seen.
#pragma once

#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/palette_controls.h"
#include "core/controls/qth_setup_controls.h"
#include "core/controls/readout_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/scale_controls.h"
#include "core/controls/chat_controls.h"
#include "core/controls/window_controls.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "map/map_interaction.h"
#include "map/map_library.h"
#include "map/map_lookups.h"
#include "map/map_overlays.h"
#include "map/map_panels.h"
#include "map/map_redraw.h"
#include "map/map_saver.h"
#include "map/qth_setup.h"
#include "map/readouts.h"
#include "map/symbol_sheets.h"
#include "map/tile_cache.h"
#include "platform/clock.h"
#include "platform/desktop_actions.h"
#include "platform/dialogs.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"

namespace zepril {

struct MapRoomSections {
  MapViewState& View;
  StoresState& Stores;
  FollowedStationState& Followed;
  const GpsState& Gps;
  const TransmissionState& Transmission;
  const IdentityState& Identity;
  const PlacesState& Places;
  const InternetState& Internet;
  const SettingsState& Settings;
};

struct MapRoomControls {
  WindowControls& Window;
  MapControls& Map;
  ReadoutControls& ReadoutLabels;
  ScaleControls& Scales;
  PaletteControls& Palette;
  Moni1Controls& Moni1;
  MoniAllControls& MoniAll;
  RecordPanelControls& Record;
  const ChatControls& Chat;
  QthSetupControls& Qth;
};

struct MapRoomTools {
  Files& Disk;
  Clock& LocalClock;
  Dialogs& Boxes;
  DesktopActions& Desktop;
  DrawingSurface& MapSurface;   // `Picture1`
  DrawingSurface& BaseSurface;  // the second map window under it
  SettingsActions& Settings;
  Timer& Timer1;
  Timer& Timer2;
  OverlayLayers* OtherLayers = nullptr;  // in place of the room's own
};

struct MapRoom {
  // Sets the events of the map's controls; the object must outlive them.
  MapRoom(MapRoomSections sections, MapRoomControls controls, MapRoomTools tools);
  MapRoom(const MapRoom&) = delete;
  MapRoom& operator=(const MapRoom&) = delete;

  SymbolTable Symbols;
  MapPanels Panels;  // filled by the owner
  MapLibrary Library;
  TileCache Tiles;
  SymbolSheets Sheets;
  Readouts ReadoutTexts;
  MapOverlays Overlays;
  MapRedrawer Redrawer;
  PressLookups Lookups;
  MapInteraction Interaction;
  QthSetup Qth;
  MapSaver Saver;

 private:
  void Redrawn(const MapViewState& view, const FollowedStationState& followed);

  MapRoomControls controls_;
};

}  // namespace zepril
