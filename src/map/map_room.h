// The parts of a map that belong together, built in their order: library, tile cache, symbol
// sheets, read-outs and the redraw. Whoever shows a map owns one.
#pragma once

#include "core/controls/readout_controls.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "map/map_library.h"
#include "map/map_redraw.h"
#include "map/overlay_layers.h"
#include "map/readouts.h"
#include "map/symbol_sheets.h"
#include "map/tile_cache.h"
#include "platform/clock.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"

namespace zepril {

// What the machine gives to a map.
struct MapPlatform {
  Files& Disk;
  const Clock& LocalClock;
  DrawingSurface& MapSurface;
  DrawingSurface& BaseSurface;
};

struct MapRoom {
  MapRoom(MapRedrawSections sections, MapRedrawControls controls, ReadoutControls& readouts,
          MapPlatform platform, OverlayLayers& overlays, Timer& timer1)
      : Library(platform.Disk, sections.Identity, sections.View, controls.Scales),
        Tiles(platform.Disk, platform.LocalClock),
        Sheets(platform.Disk, sections.Identity.ProgramFolder),
        ReadoutTexts(sections.View, sections.Followed, sections.Stores.Moni1Records, readouts),
        Redrawer(sections, controls,
                 {platform.MapSurface, platform.BaseSurface, Tiles, Library, Sheets, Symbols,
                  ReadoutTexts, overlays, platform.LocalClock, timer1}) {}
  MapRoom(const MapRoom&) = delete;
  MapRoom& operator=(const MapRoom&) = delete;

  SymbolTable Symbols;
  MapLibrary Library;
  TileCache Tiles;
  SymbolSheets Sheets;
  Readouts ReadoutTexts;
  MapRedrawer Redrawer;
};

}  // namespace zepril
