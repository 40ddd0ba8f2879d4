// How long a whole redraw of a 1200 x 800 map takes with full stores: at every zoom factor, at
// every label level, and the first one of a run.
#include <QByteArray>
#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <random>
#include <string>

#include "core/controls/main_window_controls.h"
#include "core/position_text.h"
#include "core/quiet_actions.h"
#include "core/runtime_state.h"
#include "core/text_fields.h"
#include "map/map_room.h"
#include "map/tile_names.h"
#include "platform/native/native_files.h"
#include "platform/native/system_clock.h"
#include "platform/qt/map_fonts.h"
#include "platform/qt/qt_surface.h"
#include "platform/quiet_machine.h"
#include "tests/doubles/temp_folder.h"
#include "tests/map/bmp_maker.h"

namespace zepril {
namespace {

constexpr int kWidth = 1200;
constexpr int kHeight = 800;

StationRecord MakeRecord(int minute, double north, double east, const std::string& call,
                         std::string_view symbol) {
  StationRecord record;
  record.Put(1, 11, "240115 " + ZeroPadded(minute / 60 % 24, 2) + ZeroPadded(minute % 60, 2));
  record.Put(13, 13, std::string(1, StationRecord::kKeyMark));
  record.Put(14, 22, RecordNorthText(north * 1000.0));
  record.Put(23, 31, RecordEastText(east * 1000.0));
  record.Put(33, 41, call);
  record.Put(43, 89, "QRV 145.500 on the way home");
  record.Put(91, 100, "QX0DIG");
  record.Put(101, 103, symbol);
  return record;
}

// A library of 50 km tiles around the centre, full stores, level 3.
class World {
 public:
  World() : files_(folder_.Path()), map_(kWidth, kHeight, fonts_), base_(kWidth, kHeight, fonts_) {
    fonts_.LoadFonts(QStringLiteral(ZEPRIL_SOURCE_DIR "/data/fonts"));
    state_.Identity.ProgramFolder = R"(C:\Z)";
    state_.Identity.TempFolder = R"(C:\Z)";
    state_.Identity.MapsPath = R"(C:\Z\U33)";
    MakeTiles();
    FillStores();
    MapViewState& view = state_.Map;
    view.ViewWidthPx = kWidth;
    view.ViewHeightPx = kHeight;
    view.CentreNorthKm = 5825.0;
    view.CentreEastKm = 425.0;
    view.MapTileKm = 50.0;
    view.StationLabelLevel = LabelLevel::MarksAndLines;
    controls_.Record.Frame1.Visible = false;
    NewRoom();
    room_->Library.MapLibraryScan();
  }

  // Forgets every tile that was read.
  void NewRoom() {
    room_ = std::make_unique<MapRoom>(
        MapRoomSections{state_.Map, state_.Stores, state_.Followed, state_.Gps, state_.Transmission,
                        state_.Identity, state_.Places, state_.Internet, state_.Settings},
        MapRoomControls{controls_.Window, controls_.Map, controls_.Readouts, controls_.Scales,
                        controls_.Palette, controls_.Moni1, controls_.MoniAll, controls_.Record,
                        controls_.Chat, controls_.Qth},
        MapRoomTools{files_, clock_, boxes_, desktop_, map_, base_, actions_, timer1_, timer2_,
                     &overlays_});
  }
  void Redraw() { room_->Redrawer.MapRedraw(); }
  MapViewState& View() { return state_.Map; }

 private:
  void MakeTiles() {
    files_.MakeFolder(R"(C:\Z\U33\M0050)");
    const std::string four_bit = FourBitTile();
    const std::string eight_bit = EightBitTile();
    for (int north = 5500; north <= 6150; north += 50) {
      for (int east = 0; east <= 850; east += 50) {
        files_.Write(R"(C:\Z\U33\M0050\)" + TileFileName(north, east),
                     (north + east) / 50 % 2 == 0 ? four_bit : eight_bit);
      }
    }
  }

  void FillStores() {
    std::mt19937 random(7);
    const auto spread = [&](double middle, double reach) {
      return middle + reach * (static_cast<double>(random() % 2001) / 1000.0 - 1.0);
    };
    constexpr const char* kSymbols[] = {"/>", "/-", "/#", "/_", "\\nX"};
    for (int i = 0; i < 666; ++i) {
      const int station = static_cast<int>(random() % 200);
      state_.Stores.MoniAllRecords.Append(MakeRecord(i, spread(5825.0, 20.0), spread(425.0, 30.0),
                                                     "QX" + WholeNumber(station),
                                                     kSymbols[station % 5]));
    }
    double north = 5825.0;
    double east = 425.0;
    for (int i = 0; i < 3330; ++i) {
      north = spread(north + (5825.0 - north) * 0.01, 0.5);
      east = spread(east + (425.0 - east) * 0.01, 0.5);
      state_.Stores.Moni1Records.Append(MakeRecord(i, north, east, "QX7KB", "/>"));
    }
    state_.Followed.MonitorNorthKm = north;
    state_.Followed.MonitorEastKm = east;
  }

  TempFolder folder_;
  NativeFiles files_;
  SystemClock clock_;
  MapFonts fonts_;
  QtSurface map_;
  QtSurface base_;
  RuntimeState state_;
  MainWindowControls controls_;
  OverlayLayers overlays_;
  QuietActions actions_;
  QuietDialogs boxes_;
  QuietDesktop desktop_;
  Timer timer1_{6000};
  Timer timer2_{6000};
  std::unique_ptr<MapRoom> room_;
};

void WarmRedraw(benchmark::State& state) {
  World world;
  world.View().ZoomFactor = static_cast<double>(state.range(0));
  world.Redraw();
  for (auto _ : state)
    world.Redraw();
}
BENCHMARK(WarmRedraw)->Arg(1)->Arg(2)->Arg(4)->Arg(8)->Unit(benchmark::kMillisecond);

void WarmRedrawOfLevel(benchmark::State& state) {
  World world;
  world.View().StationLabelLevel = static_cast<LabelLevel>(state.range(0));
  world.Redraw();
  for (auto _ : state)
    world.Redraw();
}
BENCHMARK(WarmRedrawOfLevel)->DenseRange(0, 5)->Unit(benchmark::kMillisecond);

void FirstRedraw(benchmark::State& state) {
  World world;
  world.View().ZoomFactor = static_cast<double>(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    world.NewRoom();
    state.ResumeTiming();
    world.Redraw();
  }
}
BENCHMARK(FirstRedraw)->Arg(1)->Arg(8)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zepril
