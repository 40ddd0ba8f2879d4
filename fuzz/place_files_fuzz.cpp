// A place file of any content, and an edit of it: what is written and read again are the places
// that were there, in their order, but for the one that was edited; a second start reads the same;
// and nothing is written elsewhere.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/point_file.h"
#include "core/quiet_actions.h"
#include "core/text_fields.h"
#include "map/map_view.h"
#include "map/poi_layer.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorder_surface.h"
#include "viewers/place_files.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

class Answers final : public zepril::Dialogs,
                      public zepril::DesktopActions,
                      public zepril::Progress {
 public:
  zepril::DialogAnswer Ask(const std::string&, const std::string&, zepril::DialogButtons,
                           zepril::DialogAnswer) override {
    return zepril::DialogAnswer::Ok;
  }
  bool MainWindowActive() const override { return true; }
  void Open(const std::string& link) override { Require(!link.empty()); }
  bool MovePointerOnMap(int, int) override { return false; }
  void Report(std::string_view, double share) override { Require(share >= 0.0); }
  void Done() override {}
};

struct Station {
  explicit Station(zepril::MemoryFiles& disk)
      : Room(Identity, View, Settings, Places, Controls, Map,
             {disk, Machine, Machine, Quiet, Quiet, Machine}) {
    Identity.MapSystemFolder = "M";
    Settings.PoiFile = "LAST";
    View.CentreNorthKm = 5378.123;
    View.CentreEastKm = -412.345;
    View.PoiLevel = 2;
    Room.RestoreAtStart();
  }
  std::vector<std::string> All() const {
    std::vector<std::string> lines;
    for (int i = 1; i <= Places.PoiPoints.Count(); ++i)
      lines.emplace_back(Places.PoiPoints.Line(i));
    return lines;
  }
  zepril::IdentityState Identity;
  zepril::MapViewState View;
  zepril::SettingsState Settings;
  zepril::PlacesState Places;
  zepril::PlaceControls Controls;
  zepril::MapControls Map;
  Answers Machine;
  zepril::QuietActions Quiet;
  zepril::PlaceFiles Room;
};

bool IsPlace(const std::string& line) {
  return !line.empty() && line.front() == zepril::PointList::kMark &&
         !zepril::Trim(zepril::Mid(line, 21)).empty();
}

// The places of a table without line `index`.
std::vector<std::string> PlacesWithout(const std::vector<std::string>& lines, int index) {
  std::vector<std::string> kept;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (static_cast<int>(i) + 1 != index && IsPlace(lines[i])) kept.push_back(lines[i]);
  }
  return kept;
}

void Draw(Station& station) {
  station.View.MapTileKm = 1000.0;
  zepril::ComputeViewEdges(station.View);
  zepril::RecorderSurface surface(800, 600);
  zepril::PoiLayer(surface, station.View, station.Places.PoiPoints);
  Require(surface.Operations.size() <=
          12u * static_cast<std::size_t>(station.Places.PoiPoints.Count()));
}

// The edit that the first two bytes choose, with the first line as the name. Returns the line that
// was touched, 0 when one was added, -1 when nothing was done.
int Edit(Station& station, std::string_view input, const std::string& name) {
  const int count = station.Places.PoiPoints.Count();
  const int which = input.empty() ? 0 : zepril::Asc(input[0]);
  const int index = input.size() < 2 || count == 0 ? 0 : zepril::Asc(input[1]) % count + 1;
  if (index == 0 || which % 4 == 0) {
    station.Controls.PoiNew.Click();
  } else {
    station.Room.EditPlace(index);
    station.Controls.Command67.Click();
    if (which % 4 == 3) station.View.CentreNorthKm += 1.0;
  }
  const bool added = station.Places.PoiEditIndex == 0;
  if (!added && which % 4 == 2) {
    station.Controls.Command64.Click();
    return index;
  }
  station.Controls.Text4.Text = name;
  station.Controls.Text4.Change();
  station.Controls.PoiOk.Click();
  Require(added || station.Places.PoiEditIndex == 0);
  if (!added) return index;
  return station.Controls.PoiPanel.Visible ? -1 : 0;  // a new place without a name stays open
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t end = std::min(input.find('\n'), input.size());
  const std::string name(input.substr(0, end));
  zepril::MemoryFiles disk;
  disk.Contents["M\\POI\\LAST.POI"] = std::string(input.substr(end));
  Station station(disk);
  Draw(station);

  const std::vector<std::string> before = station.All();
  const int touched = Edit(station, input, name);
  const std::vector<std::string> after = station.All();
  if (touched < 0) {
    Require(after == before);
  } else {
    // Every other place is still there, in its order.
    const std::vector<std::string> kept = PlacesWithout(before, touched);
    Require(after.size() == kept.size() || after.size() == kept.size() + 1);
    std::size_t at = 0;
    for (const std::string& line : after) {
      Require(IsPlace(line) && line.size() <= zepril::PlacesState::kLongestPlaceLine);
      if (at < kept.size() && line == kept[at]) ++at;
    }
    Require(at == kept.size());
  }
  Require(Station(disk).All() == after);
  Draw(station);

  // A name that is typed for a new file.
  station.Controls.Combo2.Text = name;
  station.Controls.Combo2.KeyDown({13, 0});
  for (const auto& [path, text] : disk.Contents) {
    Require(path.starts_with("M\\POI\\") && path.ends_with(".POI"));
    Require(path.find_first_of("\\/:", 6) == std::string::npos);
    Require(path.find("..") == std::string::npos);
  }
  return 0;
}
