// How long large tracks and place files take: drawing on a 1200 x 800 map, reading a million lines,
// and finding a point under a press.
#include <QByteArray>
#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <string>

#include "core/point_file.h"
#include "core/position_text.h"
#include "core/state/places.h"
#include "core/text_fields.h"
#include "map/map_view.h"
#include "map/poi_layer.h"
#include "map/track_layer.h"
#include "platform/native/native_files.h"
#include "platform/qt/map_fonts.h"
#include "platform/qt/qt_surface.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

constexpr int kWidth = 1200;
constexpr int kHeight = 800;

std::string LineAt(double north, double east, const std::string& text) {
  return "\xFE" + RecordNorthText(north * 1000.0) + RecordEastText(east * 1000.0) + text;
}

// 50 m a pixel around 5825 / 425: the window is 60 x 40 km.
struct Window {
  Window() : Surface(kWidth, kHeight, Fonts) {
    Fonts.LoadFonts(QStringLiteral(ZEPRIL_SOURCE_DIR "/data/fonts"));
    View.ViewWidthPx = kWidth;
    View.ViewHeightPx = kHeight;
    View.CentreNorthKm = 5825.0;
    View.CentreEastKm = 425.0;
    View.MapTileKm = 50.0;
    ComputeViewEdges(View);
  }
  MapFonts Fonts;
  QtSurface Surface;
  MapViewState View;
};

// `count` points along a winding way around the centre; `reach_km` sets how far it goes.
PointList WindingTrack(int count, double reach_km, int still) {
  PointList track(PlacesState::kMostTrackLines, PlacesState::kLongestTrackLine);
  for (int i = 0; i < count; ++i) {
    const double at = static_cast<double>(i / still);
    track.Append(LineAt(5825.0 + reach_km * 0.6 * std::sin(at * 0.0131),
                        425.0 + reach_km * std::cos(at * 0.0117), " 20240514 1230"));
  }
  return track;
}

// 100,000 points, a fifth of them more than a pixel from the one before.
void TrackInView(benchmark::State& state) {
  Window window;
  const PointList track = WindingTrack(100'000, 28.0, 5);
  for (auto _ : state)
    TrackLayer(window.Surface, window.View, track);
}
BENCHMARK(TrackInView)->Unit(benchmark::kMillisecond);

void MillionPointsMostlyOutOfView(benchmark::State& state) {
  Window window;
  const PointList track = WindingTrack(1'000'000, 500.0, 1);
  for (auto _ : state)
    TrackLayer(window.Surface, window.View, track);
}
BENCHMARK(MillionPointsMostlyOutOfView)->Unit(benchmark::kMillisecond);

// `in_view` of 30,000 places lie in the window, the others around it or far away.
void Places(benchmark::State& state) {
  Window window;
  window.View.PoiLevel = static_cast<int>(state.range(0));
  const int in_view = static_cast<int>(state.range(1));
  PointList places(PlacesState::kMostPlacesHeld, PlacesState::kLongestPlaceLine);
  std::mt19937 random(7);
  const auto within = [&random](double middle, double reach) {
    return middle + reach * (static_cast<double>(random() % 2001) / 1000.0 - 1.0);
  };
  for (int i = 0; i < PlacesState::kMostPlacesRead; ++i) {
    const bool seen = i < in_view;
    places.Append(LineAt(seen ? within(5825.0, 19.0) : within(5950.0, 90.0),
                         seen ? within(425.0, 29.0) : within(425.0, 700.0),
                         "  Place " + WholeNumber(i) + " on the hill"));
  }
  for (auto _ : state)
    PoiLayer(window.Surface, window.View, places);
}
BENCHMARK(Places)->Args({2, 1000})->Args({1, 1000})->Args({2, 0})->Unit(benchmark::kMillisecond);

void ReadMillionLines(benchmark::State& state) {
  TempFolder folder;
  NativeFiles disk(folder.Path());
  RecordedProgress progress;
  std::string text;
  for (int i = 0; i < PlacesState::kMostTrackLines; ++i) {
    text += LineAt(5825.0 + 0.0001 * (i % 100'000), 425.0 - 0.001 * i, " 20240514 1230");
    text += "\r\n";
  }
  disk.Write(R"(C:\LONG.TRK)", text);
  const PointList like(PlacesState::kMostTrackLines, PlacesState::kLongestTrackLine);
  for (auto _ : state) {
    auto read = ReadPointFile(disk, R"(C:\LONG.TRK)", like, like.Limit(), progress, "Reading");
    benchmark::DoNotOptimize(read->Points.Count());
  }
}
BENCHMARK(ReadMillionLines)->Unit(benchmark::kMillisecond);

void AppendMillionLines(benchmark::State& state) {
  const std::string line = LineAt(5825.0, 425.0, " 20240514 1230");
  for (auto _ : state) {
    PointList track(PlacesState::kMostTrackLines, PlacesState::kLongestTrackLine);
    while (track.Append(line)) {
    }
    benchmark::DoNotOptimize(track.Count());
  }
}
BENCHMARK(AppendMillionLines)->Unit(benchmark::kMillisecond);

void FindAmongMillion(benchmark::State& state) {
  const PointList track = WindingTrack(PlacesState::kMostTrackLines, 500.0, 1);
  for (auto _ : state)
    benchmark::DoNotOptimize(FindPointNear(track, 9000.0, 425.0, 0.5));
}
BENCHMARK(FindAmongMillion)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zepril
