// All stations heard: tracks, marks or bitmap symbols, labels.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/state/map_view.h"
#include "core/station_store.h"
#include "core/symbol_table.h"
#include "map/symbol_sheets.h"
#include "platform/clock.h"
#include "platform/drawing_surface.h"

namespace zepril {

// Most calls that one redraw draws.
inline constexpr std::size_t kMostStations = 6000;

// The records of one call, oldest first, as indices into the store (from 1).
struct StationTrail {
  std::string Call;
  std::vector<int> Records;
};

// Every call of the store once, the one heard longest ago first, so that the most recent is drawn
// last and lies on top. Of more than 6000 calls the most recent ones. One pass over the store.
std::vector<StationTrail> TrailsOfStore(const StationStore& store);

// Draws every station but the followed one. Level 1: track and mark; 2 and 4 with the call; 3 and 5
// with the long label; 4 and 5 with the bitmap symbol instead of the mark. At level 1 the core of a
// track greys with age. Classes that are switched off are left out, as are, where asked, records
// not heard directly and moving stations that did not move. A station with a record that can't be
// read is left as far as it was drawn; the others follow.
void AllStationsDraw(DrawingSurface& surface, const MapViewState& view, const StationStore& store,
                     std::string_view followed_call, const SymbolTable& table, SymbolSheets& sheets,
                     const LocalTime& now);

}  // namespace zepril
