// Reads what is to be shown, and paints one map.
#include "tool/render_command.h"

#include <QGuiApplication>
#include <QImage>
#include <QString>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "config/config_file.h"
#include "config/main_window_settings.h"
#include "core/controls/main_window_controls.h"
#include "core/quiet_actions.h"
#include "core/runtime_state.h"
#include "core/text_fields.h"
#include "map/grid_layer.h"
#include "map/map_overlays.h"
#include "map/map_room.h"
#include "map/map_view.h"
#include "map/scales.h"
#include "platform/native/native_files.h"
#include "platform/native/system_clock.h"
#include "platform/qt/map_fonts.h"
#include "platform/qt/qt_surface.h"
#include "reception/newest_values.h"
#include "tool/arguments.h"
#include "tool/tool_machine.h"

namespace zepril {
namespace {

constexpr int kLargestSide = 16384;
constexpr double kSmallestZoom = 0.25;
constexpr double kLargestZoom = 8.0;

constexpr ArgumentRule kRules[] = {
    {"--folder", true},    {"-o", true},          {"--records", true},
    {"--centre", true},    {"--tile", true},      {"--zoom", true},
    {"--level", true},     {"--size", true},      {"--moni1", true},
    {"--own", true},       {"--style", true},     {"--brightness", true},
    {"--ink", true},       {"--fonts", true},     {"--frames", false},
    {"--grid", true},      {"--circles", false},  {"--fopt-detailed", false},
    {"--sunspot", true},   {"--kp", true},        {"--utc-offset", true},
    {"--at", true},        {"--pictures", false}, {"--poi", true},
    {"--poi-level", true}, {"--track", true},
};

constexpr int kMostSunspots = 1000;
constexpr int kHighestKp = 9;
constexpr int kWidestUtcOffset = 14;

// The systems of --grid, in the order of the display modes.
constexpr std::array<std::string_view, kDisplayModes> kGridSystems = {"utm", "geo", "gk", "utmpos",
                                                                      "rt90"};

// What the arguments ask for beside the state.
struct RenderWish {
  std::array<bool, kDisplayModes> Grids{};
  std::optional<LocalTime> At;
};

// The computer's clock, or one that stands still so that a picture can be made again.
class RenderClock final : public SystemClock {
 public:
  explicit RenderClock(const std::optional<LocalTime>& at) : at_(at) {}
  LocalTime Now() const override { return at_ ? *at_ : SystemClock::Now(); }

 private:
  std::optional<LocalTime> at_;
};

// The layers of the program, with every grid that is asked for: the read-outs can show three
// systems at most.
class RenderLayers final : public OverlayLayers {
 public:
  RenderLayers(MapOverlays& layers, const CoordinateValues& strips,
               const std::array<bool, kDisplayModes>& grids)
      : layers_(layers), strips_(strips), grids_(grids) {}

  void GridLayer(DrawingSurface& surface, const MapViewState& view, DisplayMode mode,
                 PixelPoint last_tile) override {
    if (mode == DisplayMode::MapUtm) grid_labels_.Clear();
    if (!grids_[static_cast<std::size_t>(mode)]) return;
    DrawGrid(surface, view, strips_, mode, last_tile, SlotsAmong(grids_, mode), grid_labels_);
  }
  void CirclesLayer(DrawingSurface& surface, const MapViewState& view) override {
    layers_.CirclesLayer(surface, view);
  }
  void PictureMarksLayer(DrawingSurface& surface, const MapViewState& view) override {
    layers_.PictureMarksLayer(surface, view);
  }
  void TrackLayer(DrawingSurface& surface, const MapViewState& view) override {
    layers_.TrackLayer(surface, view);
  }
  void PoiLayer(DrawingSurface& surface, const MapViewState& view) override {
    layers_.PoiLayer(surface, view);
  }

 private:
  GridLabels grid_labels_;
  MapOverlays& layers_;
  const CoordinateValues& strips_;
  const std::array<bool, kDisplayModes>& grids_;
};

std::string TextOf(const Arguments& arguments, std::string_view name, std::string_view otherwise) {
  return std::string(arguments.Value(name).value_or(otherwise));
}

// Two numbers with a separator between them.
struct Pair {
  double First = 0.0;
  double Second = 0.0;
};
Pair PairOf(Arguments& arguments, std::string_view name, std::string_view otherwise,
            char separator) {
  const std::string text = TextOf(arguments, name, otherwise);
  const auto parts = Split(text, separator);
  if (parts.size() == 2) return {Val(parts[0]), Val(parts[1])};
  arguments.Fail(std::string(name) + " must be two numbers");
  return {};
}

void ReadSettings(Files& files, RuntimeState& state, const std::string& folder) {
  state.Identity.ProgramFolder = folder;
  if (files.Exists(ConfigPath(folder))) {
    ReadConfigForMainWindow(files, state);
  } else {
    state.Identity.MapsPath = folder + "\\" + state.Identity.MapZoneName;
  }
  TakeZone(state.Identity, state.Map);
}

bool ReadRecords(const Files& files, RuntimeState& state, const std::string& path) {
  return files.ReadLines(path, [&](std::string_view line) {
    if (line.size() < StationRecord::kShortestLine || line.size() > StationRecord::kLongestLine) {
      return true;
    }
    const StationRecord record(line);
    if (EqualFolded(record.Call(), state.Followed.Moni1Call)) {
      state.Stores.Moni1Records.Append(record);
    }
    return state.Stores.MoniAllRecords.Append(record);
  });
}

void SetView(Arguments& arguments, RuntimeState& state) {
  MapViewState& view = state.Map;
  const Pair size = PairOf(arguments, "--size", "1200x800", 'x');
  const bool size_fits = size.First >= 1 && size.First <= kLargestSide && size.Second >= 1 &&
                         size.Second <= kLargestSide;
  if (!size_fits) arguments.Fail("--size must be WIDTHxHEIGHT in pixels");
  view.ViewWidthPx = Int(size.First);
  view.ViewHeightPx = Int(size.Second);
  const Pair centre = PairOf(arguments, "--centre", "6600,400", ',');
  view.CentreNorthKm = centre.First;
  view.CentreEastKm = centre.Second;
  view.MapTileKm = Val(TextOf(arguments, "--tile", "5000"));
  if (!ScaleRow(view.MapTileKm)) arguments.Fail("--tile must be 5000, 1000, 200, 50, 10 or 2");
  view.ZoomFactor = Val(TextOf(arguments, "--zoom", "1"));
  if (!(view.ZoomFactor >= kSmallestZoom && view.ZoomFactor <= kLargestZoom)) {
    arguments.Fail("--zoom must be a number from 0.25 to 8");
  }
  const bool gauges = TextOf(arguments, "--level", "") == "WX";
  SetLabelStep(view, gauges ? kWxLabelStep : arguments.Whole("--level", 0, 5, 3));
  view.BrightnessStep = arguments.Whole("--brightness", 0, 2, 0);
  if (arguments.Has("--ink")) view.SelectedInk = WholeNumber(arguments.Whole("--ink", 0, 15, 0));
  // The inks of the first tile decide whether one stays chosen.
  view.InkStateOn = arguments.Has("--ink");
  state.Followed.TrackStyle = arguments.Whole("--style", 0, 6, 0);
  if (!arguments.Has("--own")) return;
  const Pair own = PairOf(arguments, "--own", "", ',');
  view.OwnNorthKm = own.First;
  view.OwnEastKm = own.Second;
}

// "utm,gk" or "all".
void SetGrids(Arguments& arguments, RuntimeState& state, RenderWish& wish) {
  if (!arguments.Has("--grid")) return;
  const std::string text = TextOf(arguments, "--grid", "");
  state.Map.GridOn = true;
  std::vector<int> modes;
  for (std::string_view name : Split(text, ',')) {
    bool known = name == "all";
    for (std::size_t mode = 0; mode < kGridSystems.size(); ++mode) {
      if (name != "all" && name != kGridSystems[mode]) continue;
      known = true;
      if (!wish.Grids[mode]) modes.push_back(static_cast<int>(mode));
      wish.Grids[mode] = true;
    }
    if (!known) arguments.Fail("--grid must be a list of utm, geo, gk, utmpos, rt90, or all");
  }
  // The read-outs show the first three.
  if (!modes.empty()) state.Map.CentreDisplayMode = modes[0];
  if (modes.size() > 1) state.Map.CursorDisplayMode = modes[1];
  if (modes.size() > 2) state.Map.MonitorDisplayMode = modes[2];
}

// "2026-06-21T12:00".
std::optional<LocalTime> TimeOf(std::string_view text) {
  constexpr std::string_view kForm = "NNNN-NN-NNTNN:NN";
  if (text.size() != kForm.size()) return std::nullopt;
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    if (kForm[i] == 'N' ? !IsDigit(text[i]) : text[i] != kForm[i]) return std::nullopt;
  }
  const auto number = [&](std::ptrdiff_t column, std::ptrdiff_t width, int lowest, int highest) {
    return WholeVal(Mid(text, column, width), lowest, highest).value_or(-1);
  };
  const LocalTime time{number(1, 4, 1900, 2999), number(6, 2, 1, 12),  number(9, 2, 1, 31),
                       number(12, 2, 0, 23),     number(15, 2, 0, 59), 0};
  const bool sound =
      time.Year >= 0 && time.Month >= 0 && time.Day >= 0 && time.Hour >= 0 && time.Minute >= 0;
  return sound ? std::optional(time) : std::nullopt;
}

void SetOverlays(Arguments& arguments, RuntimeState& state, RenderWish& wish) {
  MapViewState& view = state.Map;
  SetGrids(arguments, state, wish);
  view.CirclesOn = arguments.Has("--circles");
  view.FoptDetailed = arguments.Has("--fopt-detailed");
  view.PicturesOn = arguments.Has("--pictures");
  view.TracksOn = arguments.Has("--track");
  view.PoiLevel = arguments.Whole("--poi-level", 0, 2, arguments.Has("--poi") ? 2 : 0);
  InternetState& space = state.Internet;
  if (arguments.Has("--sunspot")) {
    space.SunspotNumber = arguments.Whole("--sunspot", 0, kMostSunspots, 0);
  }
  if (arguments.Has("--kp")) space.KpIndex = arguments.Whole("--kp", 0, kHighestKp, 0);
  if (arguments.Has("--utc-offset")) {
    state.Settings.UtcOffsetHours =
        arguments.Whole("--utc-offset", -kWidestUtcOffset, kWidestUtcOffset, 0);
  }
  if (!arguments.Has("--at")) return;
  wish.At = TimeOf(TextOf(arguments, "--at", ""));
  if (!wish.At) arguments.Fail("--at must be a time like 2026-06-21T12:00");
}

// Points of a track or place file; the file may hold more than the list takes.
bool ReadPoints(const Files& files, const std::string& path, PointList& points) {
  if (path.empty()) return true;
  const bool read =
      files.ReadLines(path, [&](std::string_view line) { return points.Append(line); });
  if (!read) std::fputs(("zepril-tool render: can't read " + path + "\n").c_str(), stderr);
  return read;
}

// The strips of the centre, as clicks on its caption choose them.
CoordinateValues StripsOfCentre(const RuntimeState& state) {
  MapViewState view = state.Map;
  ClampCentre(view);
  CoordinateValues strips;
  ZoneOfMap(strips, state.Identity, view);
  GridToGeo(strips, view, view.CentreNorthKm, view.CentreEastKm);
  strips.DisplayLon = strips.GeoLon;
  strips.DisplayLat = strips.GeoLat;
  ZoneByPosition(strips);
  return strips;
}

int Paint(const Arguments& arguments, Files& files, RuntimeState& state, const RenderWish& wish,
          const QString& fonts_at) {
  const QTemporaryDir temp;  // for the index files; gone afterwards
  state.Identity.TempFolder = temp.path().toStdString();
  MapFonts fonts;
  fonts.LoadFonts(fonts_at);
  const int width = static_cast<int>(state.Map.ViewWidthPx);
  const int height = static_cast<int>(state.Map.ViewHeightPx);
  RenderClock clock(wish.At);
  ToolMachine tool;
  const Machine machine = tool.Given(files, clock, [&fonts](int wide, int high) {
    return std::make_shared<QtSurface>(wide, high, fonts);
  });
  const std::shared_ptr<DrawingSurface> map = machine.MakeSurface(width, height);
  const std::shared_ptr<DrawingSurface> base = machine.MakeSurface(width, height);
  const CoordinateValues strips = StripsOfCentre(state);
  const MapPanels no_panels;
  MapOverlays layers({state.Places, state.Internet, state.Settings}, strips, clock, no_panels);
  RenderLayers overlays(layers, strips, wish.Grids);
  Timer timer1(6000);
  Timer timer2(6000);
  QuietActions actions;
  MainWindowControls controls;
  controls.Record.Frame1.Visible = false;
  MapRoom room({state.Map, state.Stores, state.Followed, state.Gps, state.Transmission,
                state.Identity, state.Places, state.Internet, state.Settings},
               {controls.Window, controls.Map, controls.Readouts, controls.Scales, controls.Palette,
                controls.Moni1, controls.MoniAll, controls.Record, controls.Chat, controls.Qth},
               {machine.FileSystem, machine.LocalClock, machine.Boxes, machine.Desktop, *map, *base,
                actions, timer1, timer2, &overlays});
  room.Library.MapLibraryScan();
  for (CheckBox& box : controls.Scales.FrameBox)
    box.Value = arguments.Has("--frames") ? 1 : 0;
  room.Redrawer.MapRedraw();
  if (static_cast<QtSurface&>(*map).Picture().save(
          QString::fromStdString(TextOf(arguments, "-o", ""))))
    return 0;
  std::fputs("zepril-tool render: can't write the picture\n", stderr);
  return 1;
}

}  // namespace

int RunRender(std::span<const std::string_view> args) {
  Arguments arguments(args, kRules);
  if (!arguments.Has("--folder")) arguments.Fail("--folder is missing");
  if (!arguments.Has("-o")) arguments.Fail("-o is missing");
  // The state that the picture shows.
  NativeFiles files(DefaultDriveFolder());
  RuntimeState state;
  const std::string folder = TextOf(arguments, "--folder", ".");
  ReadSettings(files, state, folder);
  state.Followed.Moni1Call = TextOf(arguments, "--moni1", state.Followed.Moni1Call);
  SetView(arguments, state);
  RenderWish wish;
  SetOverlays(arguments, state, wish);
  if (arguments.Failed()) return arguments.Report("render");
  const std::string records = TextOf(arguments, "--records", "");
  if (!records.empty() && !ReadRecords(files, state, records)) {
    std::fputs("zepril-tool render: can't read the records\n", stderr);
    return 1;
  }
  TakeNewestValues(state.Stores.Moni1Records, state.Followed);
  if (!ReadPoints(files, TextOf(arguments, "--poi", ""), state.Places.PoiPoints) ||
      !ReadPoints(files, TextOf(arguments, "--track", ""), state.Places.TrackPoints)) {
    return 1;
  }
  // Fonts need an application; it runs without a screen unless one is asked for.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int argc = 1;
  char name[] = "zepril-tool";
  char* argv[] = {name, nullptr};
  std::optional<QGuiApplication> application;
  if (QCoreApplication::instance() == nullptr) application.emplace(argc, argv);
  return Paint(
      arguments, files, state, wish,
      QString::fromStdString(TextOf(arguments, "--fonts", files.NativePath(folder + "\\fonts"))));
}

}  // namespace zepril
