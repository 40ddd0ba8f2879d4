// How long the layers of grids, circles and picture marks take on a 1200 x 800 map, and the
// cursor's read-out a mouse move.
#include <QByteArray>
#include <benchmark/benchmark.h>

#include <string>

#include "core/controls/readout_controls.h"
#include "core/state/followed_station.h"
#include "core/station_store.h"
#include "map/circles_layer.h"
#include "map/grid_layer.h"
#include "map/map_view.h"
#include "map/picture_marks_layer.h"
#include "map/readouts.h"
#include "map/tile_names.h"
#include "platform/qt/map_fonts.h"
#include "platform/qt/qt_surface.h"

namespace zepril {
namespace {

constexpr int kWidth = 1200;
constexpr int kHeight = 800;

// A view of one of the six scales, its strips chosen for its centre.
struct World {
  explicit World(double tile_km, double zoom = 1.0) : Surface(kWidth, kHeight, Fonts) {
    Fonts.LoadFonts(QStringLiteral(ZEPRIL_SOURCE_DIR "/data/fonts"));
    View.ViewWidthPx = kWidth;
    View.ViewHeightPx = kHeight;
    View.CentreNorthKm = 5800.3;
    View.CentreEastKm = 430.7;
    View.MapTileKm = tile_km;
    View.ZoomFactor = zoom;
    ComputeViewEdges(View);
    GridToGeo(Values, View, View.CentreNorthKm, View.CentreEastKm);
    Values.DisplayLon = Values.GeoLon;
    ZoneByPosition(Values);
  }
  MapFonts Fonts;
  QtSurface Surface;
  MapViewState View;
  CoordinateValues Values;
};

void Grid(World& world, DisplayMode mode) {
  GridLabels taken;
  DrawGrid(world.Surface, world.View, world.Values, mode, {120, -340}, {}, taken);
}

void AllGrids(benchmark::State& state) {
  World world(static_cast<double>(state.range(0)), static_cast<double>(state.range(1)));
  for (auto _ : state) {
    for (int mode = 0; mode < kDisplayModes; ++mode)
      Grid(world, static_cast<DisplayMode>(mode));
  }
}
BENCHMARK(AllGrids)
    ->ArgsProduct({{5000, 1000, 200, 50, 10, 2}, {1, 8}})
    ->Unit(benchmark::kMillisecond);

void OneGrid(benchmark::State& state) {
  World world(50.0);
  for (auto _ : state)
    Grid(world, static_cast<DisplayMode>(state.range(0)));
}
BENCHMARK(OneGrid)->DenseRange(0, kDisplayModes - 1)->Unit(benchmark::kMillisecond);

void Circles(benchmark::State& state) {
  World world(static_cast<double>(state.range(0)));
  world.View.FoptDetailed = state.range(1) != 0;
  const PropagationInputs inputs{40.0, 2.0, 6, 12.0};
  for (auto _ : state)
    CirclesLayer(world.Surface, world.View, inputs);
}
BENCHMARK(Circles)->ArgsProduct({{5000, 1000, 50, 2}, {0, 1}})->Unit(benchmark::kMillisecond);

void PictureMarks(benchmark::State& state) {
  World world(1000.0);
  for (int i = 0; i < 5000; ++i) {
    std::string name = TileFileName(5300 + i % 100 * 10, -100 + i / 100 * 20);
    world.View.PictureNames.push_back(name.replace(9, 3, "JPG"));
  }
  for (auto _ : state)
    PictureMarksLayer(world.Surface, world.View);
}
BENCHMARK(PictureMarks)->Unit(benchmark::kMillisecond);

void CursorMove(benchmark::State& state) {
  World world(50.0);
  world.View.CursorDisplayMode = static_cast<int>(state.range(0));
  const FollowedStationState followed;
  const StationStore history(10);
  ReadoutControls controls;
  Readouts readouts(world.View, followed, history, controls);
  int x = 0;
  for (auto _ : state) {
    x = (x + 37) % kWidth;
    readouts.CursorReadout(x, 800 - x % kHeight);
  }
}
BENCHMARK(CursorMove)->DenseRange(0, kDisplayModes - 1)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zepril
