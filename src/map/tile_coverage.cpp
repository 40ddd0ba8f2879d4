// Looks the centre's tile up in the index of each scale.
#include "map/tile_coverage.h"

#include "core/state_colours.h"
#include "core/text_fields.h"
#include "map/scales.h"
#include "map/tile_names.h"

namespace zepril {

void TileCoverageMarks(const MapViewState& view, MapLibrary& library, ScaleControls& scales,
                       const RecordPanelControls& record) {
  if (record.Frame1.Visible) return;
  // The panel with the active scale marked.
  scales.ScalePanel.Visible = true;
  for (ComboBox& field : scales.Folder)
    field.BackColour = state_colours::kScaleField;
  if (const auto active = ScaleRow(view.MapTileKm)) {
    scales.Folder[static_cast<std::size_t>(*active)].BackColour = state_colours::kActiveScale;
  }
  for (std::size_t row = 0; row < kMapScaleTable.size(); ++row) {
    scales.FrameBox[row].BackColour = state_colours::kNotCovered;
    scales.Covered[row] = false;
  }
  // The tile under the centre, looked up in the index of each scale's folder.
  for (std::size_t row = 0; row < kMapScaleTable.size(); ++row) {
    const std::string folder = scales.Folder[row].Selected();
    if (folder.empty()) continue;
    const double side = kMapScaleTable[row].TileKm;
    const std::string tile =
        TileFileName(TileCorner(view.CentreNorthKm, side), TileCorner(view.CentreEastKm, side));
    const auto index = library.ReadIndex(folder);
    if (!index) {
      // A temp folder that takes no files must not cost a scan at every redraw.
      if (library.IndexesWritten()) library.MapLibraryScan();
      return;
    }
    if (InStr(*index, tile) == 0) continue;
    scales.FrameBox[row].BackColour = state_colours::kCovered;
    scales.Covered[row] = true;
  }
}

}  // namespace zepril
