// The followed station: its whole track, its mark, its captions.
#pragma once

#include <optional>

#include "core/controls/moni1_controls.h"
#include "core/state/followed_station.h"
#include "core/state/map_view.h"
#include "core/station_store.h"
#include "core/symbol_table.h"
#include "map/symbol_sheets.h"
#include "platform/clock.h"
#include "platform/drawing_surface.h"

namespace zepril {

// `TrackStyle` 0 to 6. Modulo 3: 0 coloured by age, 1 in one colour without point marks, 2 by age
// without the four side lines; 3 to 5 the same without records marked "T"; 6 the last mark alone.
struct TrackLook {
  bool Uniform = false;
  bool SideLines = true;
  bool PointMarks = true;
  bool LateRecords = true;  // those marked "T"
  bool Track = true;
};
TrackLook TrackLookOf(int track_style);

// Colour of a record of the track: by its age (60 minutes are recent, 360 are old), of a person, or
// of a record marked "T".
Colour TrackColour(const StationRecord& record, bool uniform, const LocalTime& now);

// With thinning on, records marked "T" leave the store.
void DropLateRecords(StationStore& history);

// Call, count of records, time and symbol of the last one, and its text with "&" doubled. The call
// field is left alone while the operator types in it.
void ShowMoni1Captions(const FollowedStationState& followed, const StationStore& history,
                       Moni1Controls& controls);

// Captions, track, and the mark at (`StationAnchorX`, `StationAnchorY`). An empty history draws
// nothing.
void Moni1Draw(DrawingSurface& surface, const MapViewState& view, FollowedStationState& followed,
               StationStore& history, const SymbolTable& table, SymbolSheets& sheets,
               const LocalTime& now, Moni1Controls& controls);

}  // namespace zepril
