#include "tool/render_command.h"

#include <QImage>
#include <QString>
#include <QTemporaryDir>

#include <cstdio>
#include <map>
#include <optional>

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

namespace zepril {
namespace {

constexpr int kLargestSide = 16384;

constexpr const char* kUsage =
    "usage: zepril-tool render --folder PROGRAMFOLDER [--records FILE] [--centre N,E]\n"
    "         [--tile 5000|1000|200|50|10|2] [--zoom 1] [--level 0-5|WX] [--size 1200x800]\n"
    "         [--moni1 CALL] [--own N,E] [--style 0-6] [--brightness 0-2] [--frames] [--ink 0-15]\n"
    "         [--fonts FOLDER] -o map.png\n";

using Options = std::map<std::string, std::string>;

std::optional<Options> ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--frames") {
      options[name] = "1";
      continue;
    }
    if (name.size() < 2 || name.front() != '-' || i + 1 >= arguments.size()) return std::nullopt;
    options[name] = arguments[++i];
  }
  if (!options.contains("--folder") || !options.contains("-o")) return std::nullopt;
  return options;
}

std::string Option(const Options& options, const std::string& name, const std::string& otherwise) {
  const auto found = options.find(name);
  return found == options.end() ? otherwise : found->second;
}

// Two numbers with a separator between them.
struct Pair {
  double First = 0.0;
  double Second = 0.0;
};
std::optional<Pair> ReadPair(const std::string& text, char separator) {
  const auto parts = Split(text, separator);
  if (parts.size() != 2) return std::nullopt;
  return Pair{Val(parts[0]), Val(parts[1])};
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

bool SetView(const Options& options, RuntimeState& state) {
  MapViewState& view = state.Map;
  const auto size = ReadPair(Option(options, "--size", "1200x800"), 'x');
  const auto centre = ReadPair(Option(options, "--centre", "6600,400"), ',');
  if (!size || !centre) return false;
  if (!(size->First >= 1 && size->First <= kLargestSide)) return false;
  if (!(size->Second >= 1 && size->Second <= kLargestSide)) return false;
  view.ViewWidthPx = Int(size->First);
  view.ViewHeightPx = Int(size->Second);
  view.CentreNorthKm = centre->First;
  view.CentreEastKm = centre->Second;
  view.MapTileKm = Val(Option(options, "--tile", "5000"));
  if (!ScaleRow(view.MapTileKm)) return false;
  view.ZoomFactor = Val(Option(options, "--zoom", "1"));
  if (!(view.ZoomFactor >= 0.25 && view.ZoomFactor <= 8.0)) return false;
  const std::string level = Option(options, "--level", "3");
  view.WxCaption = level == "WX";
  view.StationLabelLevel = view.WxCaption ? 1 : WholeVal(level, 0, 5).value_or(3);
  view.BrightnessStep = WholeVal(Option(options, "--brightness", "0"), 0, 2).value_or(0);
  view.SelectedInk = Option(options, "--ink", "");
  state.Followed.TrackStyle = WholeVal(Option(options, "--style", "0"), 0, 6).value_or(0);
  if (const auto own = ReadPair(Option(options, "--own", ""), ',')) {
    view.OwnNorthKm = own->First;
    view.OwnEastKm = own->Second;
  }
  return true;
}

int Complain(const std::string& text) {
  std::fputs(text.c_str(), stderr);
  return 2;
}

}  // namespace

int RenderCommand(const std::vector<std::string>& arguments) {
  const auto options = ReadOptions(arguments);
  if (!options) return Complain(kUsage);
  // The state that the picture shows.
  NativeFiles files(DefaultDriveFolder());
  SystemClock clock;
  RuntimeState state;
  MainWindowControls controls;
  const std::string folder = Option(*options, "--folder", ".");
  ReadSettings(files, state, folder);
  state.Followed.Moni1Call = Option(*options, "--moni1", state.Followed.Moni1Call);
  if (!SetView(*options, state)) return Complain(kUsage);
  const std::string records = Option(*options, "--records", "");
  if (!records.empty() && !ReadRecords(files, state, records)) {
    return Complain("zepril-tool render: can't read " + records + "\n");
  }
  FollowNewest(state);
  // Index files go to a folder of their own, which is gone afterwards.
  const QTemporaryDir temp;
  state.Identity.TempFolder = temp.path().toStdString();
  MapFonts fonts;
  fonts.LoadFonts(QString::fromStdString(
      Option(*options, "--fonts", files.NativePath(folder + "\\fonts"))));
  const int width = static_cast<int>(state.Map.ViewWidthPx);
  const int height = static_cast<int>(state.Map.ViewHeightPx);
  QtSurface map(width, height, fonts);
  QtSurface base(width, height, fonts);
  OverlayLayers overlays;
  Timer timer1(6000);
  controls.Record.Frame1.Visible = false;
  MapRoom room({state.Map, state.Stores, state.Followed, state.Gps, state.Transmission,
                state.Identity},
               controls, {files, clock, map, base}, overlays, timer1);
  room.Library.MapLibraryScan();
  ZoneOfMap(room.ReadoutTexts.Values(), state.Identity, state.Map);
  for (CheckBox& box : controls.Scales.FrameBox) box.Value = options->contains("--frames") ? 1 : 0;
  room.Redrawer.MapRedraw();
  if (map.Picture().save(QString::fromStdString(Option(*options, "-o", "map.png")))) return 0;
  std::fputs("zepril-tool render: can't write the picture\n", stderr);
  return 1;
}

}  // namespace zepril
