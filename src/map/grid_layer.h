// Coordinate grids over the map, one for each system that a read-out is in, each in its colour:
//
//   UTM of the map    0xE8E8E8  straight lines every 100 pixels from the corner of a tile; km at
//                               the lower and the left edge
//   geographic        0x00E0E0  16 steps of 1' to 10 degrees each way from the centre, up to 80
//                               degrees of latitude; degrees at the right edge and above the lower
//   Gauss-Krueger     0xFFC0FF  every 100 pixels' worth of km from the centre's kilometres in that
//   UTM by position   0xFFE000  system; km at the left and the upper edge
//   RT 90             0x00F000
//
// No two labels of a grid overlap: of two in each other's way the later one is left out. A redraw
// of one grid converts at most about 1300 points, and in most views only those that the window may
// show (`map/lattice_part`).
#pragma once

#include <array>
#include <string>

#include "core/state/map_view.h"
#include "map/coordinate_values.h"
#include "map/grid_lines.h"
#include "map/readouts.h"
#include "platform/drawing_surface.h"

namespace zepril {

// Draws the grid of `mode` if the centre, the cursor or the station read-out shows that system.
// `values`: the strips chosen last. `last_tile`: pixel corner of the last tile drawn, where the
// grid of the map's own zone is anchored. `taken`: the places of labels, of this grid and of those
// drawn before it into the same picture.
void GridLayer(DrawingSurface& surface, const MapViewState& view, const CoordinateValues& values,
               DisplayMode mode, PixelPoint last_tile, GridLabels& taken);

// The same grid whatever the read-outs show. `slots`: where its labels stand at the edges.
void DrawGrid(DrawingSurface& surface, const MapViewState& view, const CoordinateValues& values,
              DisplayMode mode, PixelPoint last_tile, GridSlots slots, GridLabels& taken);

// Labels at the left edge belong to all but the geographic grid, those at the upper one to the
// grids of other systems than the map's. Grids that are shown together stand side by side.
GridSlots SlotsAmong(const std::array<bool, kDisplayModes>& shown, DisplayMode mode);

// Step of the geographic grid in minutes of arc: 1 below 15 metres a pixel, up to 600 from 3000.
int GeographicStepMinutes(double metres_per_pixel);

// "52", "-9", and with minutes "52:30", "-0:05"; a longitude of any number of turns is brought
// within 180 degrees.
std::string DegreeLabel(int arc_minutes, bool with_minutes);

// Reach of one axis of a metric grid in km: the lines lie at First + n * Step up to Last.
struct GridReach {
  double First = 0.0;
  double Last = 0.0;
  double Step = 1.0;
  // Number of lines.
  int Count() const;
  double At(int line) const { return First + line * Step; }
};
// `centre_km`: value of the centre in that system; `widths`: how many times the metres a pixel it
// reaches either way; `limit`: held within, km.
GridReach GridReachOf(double centre_km, double metres_per_pixel, double widths, double limit);

}  // namespace zepril
