// A track file of any content and a name of any characters: the list stays within its bounds, the
// quick reader of positions agrees with the general one, drawing and finding keep to the points
// that are there, and no name leads out of the folder.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "core/point_file.h"
#include "core/position_text.h"
#include "core/quiet_actions.h"
#include "core/text_fields.h"
#include "gps/track_files.h"
#include "map/map_view.h"
#include "map/track_layer.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorder_surface.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

class Answers final : public zepril::Dialogs, public zepril::Progress {
 public:
  zepril::DialogAnswer Ask(const std::string&, const std::string&, zepril::DialogButtons buttons,
                           zepril::DialogAnswer) override {
    return buttons == zepril::DialogButtons::YesNo ? zepril::DialogAnswer::Yes
                                                   : zepril::DialogAnswer::Ok;
  }
  void Report(std::string_view, double share) override { Require(share >= 0.0); }
  void Done() override {}
};

void CheckPoints(const zepril::PointList& track) {
  Require(track.Count() <= zepril::PlacesState::kMostTrackLines);
  for (int i = 1; i <= track.Count(); ++i) {
    const std::string_view line = track.Line(i);
    Require(line.size() == track.Length(i));
    Require(line.size() <= zepril::PlacesState::kLongestTrackLine);
    Require(track.NorthKm(i) == zepril::PositionTextKm(zepril::Mid(line, 2, 9)));
    Require(track.EastKm(i) == zepril::PositionTextKm(zepril::Mid(line, 11, 9)));
    Require(std::isfinite(track.NorthKm(i)) && std::isfinite(track.EastKm(i)));
  }
}

void CheckDrawing(const zepril::PointList& track, zepril::MapViewState& view) {
  view.MapTileKm = 1000.0;
  zepril::ComputeViewEdges(view);
  zepril::RecorderSurface surface(800, 600);
  zepril::TrackLayer(surface, view, track);
  // Five lines a segment, and the box and the words of the last point's name.
  Require(surface.Operations.size() <= 5u * static_cast<std::size_t>(track.Count()) + 2u);
  const auto found = zepril::FindPointNear(track, 5825.0, 425.0, 100.0);
  if (!found) return;
  Require(*found >= 1 && *found <= track.Count());
  Require(std::fabs(track.NorthKm(*found) - 5825.0) < 100.0);
  zepril::DrawTrackPointText(surface, track, *found, 400, 300);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t end = std::min(input.find('\n'), input.size());
  zepril::IdentityState identity;
  zepril::MapViewState view;
  zepril::SettingsState settings;
  zepril::PlacesState places;
  zepril::TrackControls controls;
  zepril::MapControls map;
  zepril::MemoryFiles disk;
  Answers answers;
  zepril::QuietActions quiet;
  identity.MapSystemFolder = "M";
  zepril::TrackFiles room(identity, view, settings, places, controls, map,
                          {disk, answers, quiet, quiet, answers});

  // The rest of the input as the file of the last run.
  disk.Contents["M\\TRK\\LAST.TRK"] = std::string(input.substr(end));
  settings.TrackFile = "LAST";
  room.RestoreAtStart();
  CheckPoints(places.TrackPoints);
  CheckDrawing(places.TrackPoints, view);
  controls.Frame10.Click();

  // Its first line as a name that is typed.
  controls.Combo1.Text = std::string(input.substr(0, end));
  controls.Combo1.KeyDown({13, 0});
  for (const auto& [path, text] : disk.Contents) {
    Require(path.starts_with("M\\TRK\\") && path.ends_with(".TRK"));
    Require(path.find_first_of("\\/:", 6) == std::string::npos);
    Require(path.find("..") == std::string::npos);
  }
  Require(zepril::IsPlainFileName(settings.TrackFile));
  for (int i = 0; i < 3; ++i)
    controls.Command68.Click();
  controls.Command69.Click();
  CheckPoints(places.TrackPoints);
  return 0;
}
