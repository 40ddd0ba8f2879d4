#include "tool/render_command.h"

#include <QGuiApplication>
#include <QImage>
#include <QString>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>
#include <string>

#include "config/config_file.h"
#include "config/main_window_settings.h"
#include "core/main_window_controls.h"
#include "core/runtime_state.h"
#include "core/text_fields.h"
#include "map/map_room.h"
#include "map/scales.h"
#include "platform/native/native_files.h"
#include "platform/native/system_clock.h"
#include "platform/qt/map_fonts.h"
#include "platform/qt/qt_surface.h"
#include "tool/arguments.h"

namespace zepril {
namespace {

constexpr int kLargestSide = 16384;
constexpr double kSmallestZoom = 0.25;
constexpr double kLargestZoom = 8.0;

constexpr ArgumentRule kRules[] = {
    {"--folder", true}, {"-o", true},      {"--records", true}, {"--centre", true},
    {"--tile", true},   {"--zoom", true},  {"--level", true},   {"--size", true},
    {"--moni1", true},  {"--own", true},   {"--style", true},   {"--brightness", true},
    {"--ink", true},    {"--fonts", true}, {"--frames", false},
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

void FollowNewest(RuntimeState& state) {
  const StationStore& history = state.Stores.Moni1Records;
  if (history.Count() == 0) return;
  const StationRecord& newest = history.At(history.Count());
  FollowedStationState& followed = state.Followed;
  followed.MonitorDate = newest.Date();
  followed.MonitorTime = newest.Time();
  followed.MonitorNorthKm = newest.NorthKm();
  followed.MonitorEastKm = newest.EastKm();
  followed.MonitorHeardVia = newest.HeardViaKey();
  followed.MonitorInfo = newest.Info();
  followed.MonitorSymbol = newest.Symbol();
  followed.MonitorSymbolText = newest.SymbolText();
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
  view.WxCaption = TextOf(arguments, "--level", "") == "WX";
  view.StationLabelLevel = view.WxCaption ? 1 : arguments.Whole("--level", 0, 5, 3);
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

int Paint(const Arguments& arguments, Files& files, RuntimeState& state, const QString& fonts_at) {
  const QTemporaryDir temp;  // for the index files; gone afterwards
  state.Identity.TempFolder = temp.path().toStdString();
  MapFonts fonts;
  fonts.LoadFonts(fonts_at);
  const int width = static_cast<int>(state.Map.ViewWidthPx);
  const int height = static_cast<int>(state.Map.ViewHeightPx);
  QtSurface map(width, height, fonts);
  QtSurface base(width, height, fonts);
  SystemClock clock;
  OverlayLayers overlays;
  Timer timer1(6000);
  MainWindowControls controls;
  controls.Record.Frame1.Visible = false;
  MapRoom room(
      {state.Map, state.Stores, state.Followed, state.Gps, state.Transmission, state.Identity},
      controls, {files, clock, map, base}, overlays, timer1);
  room.Library.MapLibraryScan();
  for (CheckBox& box : controls.Scales.FrameBox)
    box.Value = arguments.Has("--frames") ? 1 : 0;
  room.Redrawer.MapRedraw();
  if (map.Picture().save(QString::fromStdString(TextOf(arguments, "-o", "")))) return 0;
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
  if (arguments.Failed()) return arguments.Report("render");
  const std::string records = TextOf(arguments, "--records", "");
  if (!records.empty() && !ReadRecords(files, state, records)) {
    std::fputs("zepril-tool render: can't read the records\n", stderr);
    return 1;
  }
  FollowNewest(state);
  // Fonts need an application; it runs without a screen unless one is asked for.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int argc = 1;
  char name[] = "zepril-tool";
  char* argv[] = {name, nullptr};
  std::optional<QGuiApplication> application;
  if (QCoreApplication::instance() == nullptr) application.emplace(argc, argv);
  return Paint(
      arguments, files, state,
      QString::fromStdString(TextOf(arguments, "--fonts", files.NativePath(folder + "\\fonts"))));
}

}  // namespace zepril
