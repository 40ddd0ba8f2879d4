// Which lines of a lattice are taken for a window, and when all of them are.
#include "map/lattice_part.h"

#include <gtest/gtest.h>

#include <optional>

#include "map/map_view.h"

namespace zepril {
namespace {

constexpr int kLines = 61;

// A window of 1200 x 800 pixels over a lattice in degrees with its middle line at its centre.
struct Window {
  Window(double north_km, double east_km, double tile_km, double zoom = 1.0) {
    View.MapCentralMeridian = 9.0;
    View.ViewWidthPx = 1200;
    View.ViewHeightPx = 800;
    View.CentreNorthKm = north_km;
    View.CentreEastKm = east_km;
    View.MapTileKm = tile_km;
    View.ZoomFactor = zoom;
    ComputeViewEdges(View);
  }
  LatticePart PartOf(double step, bool known = true) const {
    const Geodetic centre = UtmToGeodetic(View.MapCentralMeridian, View.CentreEastKm * 1000.0,
                                          View.CentreNorthKm * 1000.0, View.MapFalseEasting);
    const double half = kLines / 2 * step;
    return PartInWindow(View, {centre.Lat - half, step, kLines}, {centre.Lon - half, step, kLines},
                        [known](const Geodetic& place) -> std::optional<LatticePlace> {
                          if (!known) return std::nullopt;
                          return LatticePlace{place.Lat, place.Lon};
                        });
  }
  MapViewState View;
};

bool IsWhole(const LatticePart& part) {
  return part.Rows.First == 0 && part.Rows.Last == kLines - 1 && part.Columns.First == 0 &&
         part.Columns.Last == kLines - 1;
}

TEST(LatticePart, HoldsTheLinesOfTheWindowAndSomeBeyond) {
  // 20 km to the north and the south are 0.18 degrees, 30 km to the west and the east 0.44.
  const LatticePart part = Window(5800.0, 500.0, 50.0).PartOf(0.1);
  EXPECT_LE(part.Rows.First, 30 - 1 - 2);
  EXPECT_GE(part.Rows.Last, 30 + 1 + 2);
  EXPECT_LE(part.Columns.First, 30 - 4 - 2);
  EXPECT_GE(part.Columns.Last, 30 + 4 + 2);
  EXPECT_LE(part.Rows.Count(), 11);
  EXPECT_LE(part.Columns.Count(), 19);
}

TEST(LatticePart, IsHeldWithinTheLattice) {
  EXPECT_TRUE(IsWhole(Window(5800.0, 500.0, 50.0).PartOf(0.005)));
}

TEST(LatticePart, IsTheWholeLatticeWhereTheGridsBend) {
  EXPECT_FALSE(IsWhole(Window(5800.0, 500.0, 1000.0).PartOf(10.0)));
  EXPECT_TRUE(IsWhole(Window(5800.0, 500.0, 5000.0, 8.0).PartOf(10.0)));  // larger than a continent
  EXPECT_TRUE(IsWhole(Window(9500.0, 500.0, 50.0).PartOf(10.0)));         // at the pole
}

TEST(LatticePart, IsTheWholeLatticeWhereNoWayLeadsBack) {
  EXPECT_FALSE(IsWhole(Window(5800.0, 500.0, 50.0).PartOf(0.1)));
  EXPECT_TRUE(IsWhole(Window(5800.0, 500.0, 50.0).PartOf(0.1, false)));
}

}  // namespace
}  // namespace zepril
