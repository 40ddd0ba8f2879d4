// Handles the track field and its buttons: list, load, step, make, go to the end.
#include "gps/track_files.h"

#include <algorithm>
#include <utility>

#include "core/centre_follow.h"
#include "core/keys.h"
#include "core/point_file.h"
#include "core/text_fields.h"
#include "core/texts/boxes.h"
#include "core/texts/status_texts.h"

namespace zepril {
namespace {

constexpr std::string_view kExtension = ".TRK";

}  // namespace

TrackFiles::TrackFiles(const IdentityState& identity, MapViewState& view, SettingsState& settings,
                       PlacesState& places, TrackControls& controls, MapControls& map,
                       TrackFilesTools tools)
    : identity_(identity),
      view_(view),
      settings_(settings),
      places_(places),
      controls_(controls),
      map_(map),
      tools_(tools) {
  // Typing changes the field too: only an entry that is chosen, or Enter, is a choice.
  controls_.Combo1.Change = [this] {
    if (ShowsItsEntry(controls_.Combo1)) SelectTrack();
  };
  controls_.Combo1.KeyDown = [this](KeyPress key) {
    if (key.Code == kEnterKey) SelectTrack();
  };
  controls_.Combo1.Left = [this] { ShowLoaded(); };
  controls_.Command68.Click = [this] { StepFile(-1); };
  controls_.Command69.Click = [this] { StepFile(1); };
  controls_.Frame10.Click = [this] { CentreOnEnd(); };
  map_.Check14.Click = [this] { SwitchDisplay(); };
  map_.Check14.RightClick = [this] { ChooseInList(); };
}

std::string TrackFiles::PathOf(const std::string& name) const {
  return Folder() + "\\" + name + std::string(kExtension);
}

void TrackFiles::RestoreAtStart() {
  ListTrackFiles();
  // A file that has gone is no reason to trouble anybody: its name stays, there is just no track.
  loaded_ = Load(settings_.TrackFile);
  if (!loaded_) places_.TrackPoints.Clear();
}

void TrackFiles::ListTrackFiles() {
  controls_.Combo1.Items = PointFileNames(tools_.Disk, Folder(), kExtension);
  ShowLoaded();
}

void TrackFiles::ShowLoaded() {
  ShowFileName(controls_.Combo1, settings_.TrackFile);
}

bool TrackFiles::Load(const std::string& name) {
  if (!IsPlainFileName(name)) return false;
  auto read =
      ReadPointFile(tools_.Disk, PathOf(name), places_.TrackPoints, PlacesState::kMostTrackLines,
                    tools_.LongWork, status_texts::kReadingTrack.With({name}));
  if (!read) return false;
  places_.TrackPoints = std::move(read->Points);
  return true;
}

void TrackFiles::SelectTrack() {
  Choose(Upper(Trim(controls_.Combo1.Text)));
}

void TrackFiles::Choose(const std::string& name) {
  // An empty name, or that of the file which is loaded, changes nothing.
  if (name.empty() || (loaded_ && EqualFolded(name, settings_.TrackFile))) {
    ShowLoaded();
    controls_.Combo1.LeaveWanted = true;
    return;
  }
  if (!IsPlainFileName(name)) {
    ShowLoaded();
    tools_.Boxes.Tell(boxes::kTitle, boxes::kTrackName.With({name}));
    return;
  }
  // A name that is new is offered first.
  if (!tools_.Disk.Exists(PathOf(name)) && !CreateEmpty(name)) {
    ShowLoaded();
    return;
  }
  if (!Load(name)) {
    ShowLoaded();
    tools_.Boxes.Tell(boxes::kTitle, boxes::kTrackUnread.With({name}));
    return;
  }
  loaded_ = true;
  settings_.TrackFile = name;
  ListTrackFiles();
  tools_.Settings.WriteConfigFromMainWindow();
  if (view_.TracksOn) tools_.Map.MapRedraw();
  controls_.Combo1.LeaveWanted = true;
  map_.Picture1.FocusWanted = true;
}

bool TrackFiles::CreateEmpty(const std::string& name) {
  const DialogAnswer answer = tools_.Boxes.Ask(boxes::kTitle, boxes::kTrackMissing.With({name}),
                                               DialogButtons::YesNo, DialogAnswer::No);
  if (answer != DialogAnswer::Yes) return false;
  tools_.Disk.MakeFolder(Folder());
  if (tools_.Disk.Append(PathOf(name), "")) return true;
  tools_.Boxes.Tell(boxes::kTitle, boxes::kTrackNotCreated.With({name}));
  return false;
}

// The next name of the list in one direction, from where the loaded one stands or would stand; with
// nothing loaded the list is entered from its near end. Stops at the ends.
void TrackFiles::StepFile(int direction) {
  map_.Picture1.FocusWanted = true;
  ListTrackFiles();  // the day may have a new file
  const std::vector<std::string>& names = controls_.Combo1.Items;
  const std::string loaded = Upper(settings_.TrackFile);
  const auto count = static_cast<std::ptrdiff_t>(names.size());
  std::ptrdiff_t next = IndexOfName(names, loaded);
  if (next >= 0) {
    next += direction;
  } else if (loaded.empty()) {
    next = direction > 0 ? 0 : count - 1;
  } else {
    next = std::lower_bound(names.begin(), names.end(), loaded) - names.begin();
    if (direction < 0) --next;
  }
  if (next >= 0 && next < count) Choose(names[static_cast<std::size_t>(next)]);
}

void TrackFiles::CentreOnEnd() {
  map_.Picture1.FocusWanted = true;
  const PointList& track = places_.TrackPoints;
  int last = track.Count();
  while (last > 0 && !track.HasPosition(last))
    --last;
  if (last == 0) return;
  view_.CentreNorthKm = track.NorthKm(last);
  view_.CentreEastKm = track.EastKm(last);
  FollowNobody(view_, map_);
  view_.MapLockedOnRecord = 0;
  view_.PictureMode = MapShows::Map;
  view_.ManualMapMove = true;
  tools_.Map.MapRedraw();
}

void TrackFiles::ChooseInList() {
  ListTrackFiles();
  controls_.Combo1.DropDownWanted = true;
  controls_.Combo1.FocusWanted = true;
}

void TrackFiles::SwitchDisplay() {
  view_.TracksOn = map_.Check14.Value == 1;
  tools_.Map.MapRedraw();
}

}  // namespace zepril
