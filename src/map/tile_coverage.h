// Which scales have a tile under the map centre: marks in the scale panel.
#pragma once

#include "core/controls/record_panel_controls.h"
#include "core/controls/scale_controls.h"
#include "core/state/map_view.h"
#include "map/map_library.h"

namespace zepril {

// Shows the panel, marks the active scale, and marks each scale whose selected folder has a tile at
// the centre, by its index file. Left alone while the record panel is open. An index file that
// can't be read ends the marking and has the library scanned anew; a scale without a folder is
// passed over.
void TileCoverageMarks(const MapViewState& view, MapLibrary& library, ScaleControls& scales,
                       const RecordPanelControls& record);

}  // namespace zepril
