// Loads, makes and edits place files, line by line, and handles their panel.
#include "viewers/place_files.h"

#include <algorithm>
#include <utility>

#include "core/centre_follow.h"
#include "core/keys.h"
#include "core/point_file.h"
#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "geodesy/coordinate_texts.h"

namespace zepril {
namespace {

constexpr std::string_view kExtension = ".POI";
constexpr std::string_view kLineEnd = "\r\n";
constexpr int kLevels = 3;
constexpr int kPositionColumns = 20;  // mark, north, east and a blank

// What a file holds: lines that begin with the mark and have a name.
bool IsPlace(std::string_view line) {
  return !line.empty() && line.front() == PointList::kMark && !Trim(Mid(line, 21)).empty();
}

// A name as a line can hold it: not longer than is read again, and without line ends or other
// control characters, which become blanks.
std::string CleanName(std::string_view text) {
  std::string name(Trim(text).substr(0, PlacesState::kLongestPlaceLine - kPositionColumns - 2));
  std::replace_if(
      name.begin(), name.end(), [](char c) { return Asc(c) < Asc(' '); }, ' ');
  return std::string(Trim(name));
}

}  // namespace

std::string_view LinkOf(std::string_view text) {
  const std::size_t open = text.find('{');
  if (open == std::string_view::npos) return {};
  const std::size_t close = text.find('}', open);
  if (close == std::string_view::npos) return {};
  return Trim(text.substr(open + 1, close - open - 1));
}

PlaceFiles::PlaceFiles(const IdentityState& identity, MapViewState& view, SettingsState& settings,
                       PlacesState& places, PlaceControls& controls, MapControls& map,
                       PlaceFilesTools tools)
    : identity_(identity),
      view_(view),
      settings_(settings),
      places_(places),
      controls_(controls),
      map_(map),
      tools_(tools) {
  map_.Command73.Click = [this] { StepLevel(); };
  // Typing changes the field too: only an entry that is chosen counts.
  controls_.Combo2.Change = [this] {
    if (ShowsItsEntry(controls_.Combo2)) SelectPoiFile();
  };
  controls_.Combo2.KeyDown = [this](KeyPress key) {
    if (key.Code == kEnterKey) CreatePoiFile();
  };
  controls_.Combo2.RightClick = [this] { CreatePoiFile(); };
  // What was typed and not entered is no name of a file.
  controls_.Combo2.Left = [this] { ShowLoaded(); };
  controls_.PoiNew.Click = [this] { NewPlace(); };
  controls_.PoiOk.Click = [this] { ApplyPoiEdit(); };
  controls_.PoiClose.Click = [this] { ClosePanel(); };
  controls_.Text4.Change = [this] { ShowLink(); };
  controls_.Text4.KeyDown = [this](KeyPress key) {
    if (key.Code == kEnterKey) ApplyPoiEdit();
  };
  controls_.Command64.Click = [this] { MoveToCentre(); };
  controls_.Command67.Click = [this] { OpenLink(); };
}

// ---- Files ----------------------------------------------------------------------------------

std::string PlaceFiles::PathOf(const std::string& name) const {
  return Folder() + "\\" + name + std::string(kExtension);
}

std::string PlaceFiles::NameInField() const {
  return Upper(Trim(controls_.Combo2.Text));
}

void PlaceFiles::RestoreAtStart() {
  ListPoiFiles();
  // A file that has gone is no reason to trouble anybody: its name stays, there are just no places.
  if (!Load(settings_.PoiFile)) places_.PoiPoints.Clear();
}

void PlaceFiles::ListPoiFiles() {
  controls_.Combo2.Items = PointFileNames(tools_.Disk, Folder(), kExtension);
  ShowLoaded();
}

void PlaceFiles::ShowLoaded() {
  ShowFileName(controls_.Combo2, settings_.PoiFile);
}

bool PlaceFiles::Load(const std::string& name) {
  if (!IsPlainFileName(name)) return false;
  const auto stamp = tools_.Disk.Stamp(PathOf(name));
  auto read =
      ReadPointFile(tools_.Disk, PathOf(name), places_.PoiPoints, PlacesState::kMostPlacesRead,
                    tools_.LongWork, status_texts::kReadingPlaces.With({name}));
  if (!read) return false;
  places_.PoiPoints = std::move(read->Points);
  cut_ = read->Cut;
  stamp_ = stamp;
  loaded_ = true;
  return true;
}

bool PlaceFiles::RefuseName(const std::string& name) {
  if (IsPlainFileName(name)) return false;
  ShowLoaded();
  Tell(boxes::kPlaceFileName.With({name}));
  return true;
}

void PlaceFiles::SelectPoiFile() {
  const std::string name = NameInField();
  // An empty name, or that of the file which is loaded, changes nothing.
  if (name.empty() || (loaded_ && EqualFolded(name, settings_.PoiFile))) {
    ShowLoaded();
    controls_.Combo2.LeaveWanted = true;
    return;
  }
  if (!RefuseName(name)) Take(name);
}

void PlaceFiles::CreatePoiFile() {
  const std::string name = NameInField();
  if (name.empty()) {
    Tell(boxes::kTypeName);
    controls_.Combo2.FocusWanted = true;
    return;
  }
  if (RefuseName(name)) return;
  // Opened for appending and closed, so that it exists.
  tools_.Disk.MakeFolder(Folder());
  if (!tools_.Disk.Append(PathOf(name), "")) {
    ShowLoaded();
    Tell(boxes::kPlacesNotCreated.With({name}));
    return;
  }
  Take(name);
}

// Reads the file, keeps its name, lists the folder anew.
void PlaceFiles::Take(const std::string& name) {
  if (!Load(name)) {
    ShowLoaded();
    Tell(boxes::kPlacesUnread.With({name}));
    return;
  }
  // A place that is being edited belongs to the file before.
  if (places_.PoiEditIndex > 0) ClosePanel();
  settings_.PoiFile = name;
  ListPoiFiles();
  tools_.Settings.WriteConfigFromMainWindow();
  RedrawPlaces();
  // The keys are the map's again.
  controls_.Combo2.LeaveWanted = true;
  map_.Picture1.FocusWanted = true;
}

void PlaceFiles::RedrawPlaces() {
  if (view_.PoiLevel > 0) tools_.Map.MapRedraw();
}

void PlaceFiles::StepLevel() {
  view_.PoiLevel = (std::max(view_.PoiLevel, 0) + 1) % kLevels;
  tools_.Map.MapRedraw();
}

// ---- Panel ----------------------------------------------------------------------------------

void PlaceFiles::NewPlace() {
  if (!FileChosen()) return;
  places_.PoiEditIndex = 0;
  controls_.Text4.Text.clear();
  OpenPanel();
}

void PlaceFiles::EditPlace(int index) {
  if (index < 1 || index > places_.PoiPoints.Count()) return;
  places_.PoiEditIndex = index;
  controls_.Text4.Text = places_.PoiPoints.Name(index);
  OpenPanel();
}

void PlaceFiles::OpenPanel() {
  picked_north_km_ = view_.CentreNorthKm;
  picked_east_km_ = view_.CentreEastKm;
  controls_.Command64.Visible = places_.PoiEditIndex > 0;  // a new place is at the centre anyway
  ShowLink();
  controls_.PoiPanel.Visible = true;
  controls_.Text4.FocusWanted = true;
}

void PlaceFiles::ClosePanel() {
  places_.PoiEditIndex = 0;
  controls_.PoiPanel.Visible = false;
  controls_.Text4.Text.clear();
  ShowLink();
  map_.Picture1.FocusWanted = true;
}

void PlaceFiles::ShowLink() {
  controls_.Command67.Visible = !LinkOf(controls_.Text4.Text).empty();
}

void PlaceFiles::OpenLink() {
  const std::string link(LinkOf(controls_.Text4.Text));
  if (!link.empty()) tools_.Desktop.Open(link);
}

// ---- Editing --------------------------------------------------------------------------------

bool PlaceFiles::FileChosen() {
  if (IsPlainFileName(settings_.PoiFile)) return true;
  Tell(boxes::kNoPlaceFile);
  controls_.Combo2.FocusWanted = true;
  return false;
}

// The table is full: one more would be an error, and the file stays as it is.
bool PlaceFiles::RoomForOneMore() {
  if (places_.PoiPoints.Count() < PlacesState::kMostPlacesHeld) return true;
  Tell(boxes::kNoRoom);
  return false;
}

// A centre that follows somebody moves by itself: that is no move of the operator's.
bool PlaceFiles::CentreMoved() const {
  if (view_.CentreFollow != Following::Nobody) return false;
  return view_.CentreNorthKm != picked_north_km_ || view_.CentreEastKm != picked_east_km_;
}

// Kept: the name of a new place begins in column 22, that of a renamed one in column 21; readers
// take it from 21 on without its blanks.
std::string PlaceFiles::NewLine(std::string_view name) const {
  const PositionTexts at = FormatPoiPositionTexts(view_.CentreNorthKm, view_.CentreEastKm);
  return PointList::kMark + at.North + at.East + "  " + std::string(name);
}

std::string PlaceFiles::RenamedLine(std::string_view name) const {
  const std::string line =
      CentreMoved() ? NewLine({}) : std::string(places_.PoiPoints.Line(places_.PoiEditIndex));
  return Field(line, kPositionColumns) + std::string(name);
}

std::string PlaceFiles::MovedLine() const {
  const std::string_view line = places_.PoiPoints.Line(places_.PoiEditIndex);
  return NewLine({}).substr(0, kPositionColumns - 1) + std::string(Mid(line, kPositionColumns));
}

void PlaceFiles::ApplyPoiEdit() {
  if (places_.PoiEditIndex > places_.PoiPoints.Count()) ClosePanel();
  if (!FileChosen()) return;
  const std::string name = CleanName(controls_.Text4.Text);
  if (places_.PoiEditIndex > 0 && name.empty() && !ConfirmRemoval()) return;
  std::string line;  // empty: the place is removed
  if (places_.PoiEditIndex > 0 && !name.empty()) line = RenamedLine(name);
  if (places_.PoiEditIndex <= 0) {
    // A new place needs a name.
    if (name.empty()) {
      controls_.Text4.FocusWanted = true;
      return;
    }
    if (!RoomForOneMore()) return;
    line = NewLine(name);
  }
  const bool new_place = places_.PoiEditIndex <= 0;
  if (!WriteFile(line)) return;
  ClosePanel();
  // Who makes a place wants to see it, and its name.
  if (new_place && view_.PoiLevel <= 0) view_.PoiLevel = kLevels - 1;
  RedrawPlaces();
}

void PlaceFiles::MoveToCentre() {
  if (places_.PoiEditIndex < 1 || places_.PoiEditIndex > places_.PoiPoints.Count()) return;
  if (!FileChosen() || !WriteFile(MovedLine())) return;
  picked_north_km_ = view_.CentreNorthKm;
  picked_east_km_ = view_.CentreEastKm;
  RedrawPlaces();
  if (places_.PoiEditIndex == 0) {
    ClosePanel();  // the file has no such place any more
  } else {
    controls_.Text4.FocusWanted = true;
  }
}

bool PlaceFiles::Confirm(const std::string& text) {
  return tools_.Boxes.Ask(boxes::kTitle, text, DialogButtons::OkCancel, DialogAnswer::Cancel) ==
         DialogAnswer::Ok;
}

bool PlaceFiles::ConfirmRemoval() {
  const std::string name(places_.PoiPoints.Name(places_.PoiEditIndex));
  if (Confirm(boxes::kRemovePlace.With({name, settings_.PoiFile}))) {
    return true;
  }
  controls_.Text4.Text = name;
  ShowLink();
  return false;
}

// Before what was not read, or what another program has written since, is lost.
bool PlaceFiles::ConfirmLoss() {
  const std::string& file = settings_.PoiFile;
  if (cut_ && !Confirm(boxes::kPlacesCut.With({file, WholeNumber(PlacesState::kMostPlacesRead)}))) {
    return false;
  }
  const auto now = tools_.Disk.Stamp(PathOf(file));
  if (!now || now == stamp_) return true;
  if (Confirm(boxes::kPlacesChanged.With({file}))) {
    return true;
  }
  // What is there now counts; the place that was picked may be another one in it.
  Load(file);
  if (places_.PoiEditIndex > 0) ClosePanel();
  RedrawPlaces();
  return false;
}

// The number of line `index` of the table in the file, where only places stand.
int PlaceFiles::NumberInFile(int index) const {
  int number = 1;
  for (int i = 1; i < index; ++i) {
    if (IsPlace(places_.PoiPoints.Line(i))) ++number;
  }
  return number;
}

std::string PlaceFiles::FileText(std::string_view edited_line) const {
  const PointList& table = places_.PoiPoints;
  std::string text;
  const auto put = [&text](std::string_view line) {
    if (IsPlace(line)) text.append(line).append(kLineEnd);
  };
  for (int index = 1; index <= table.Count(); ++index)
    put(index == places_.PoiEditIndex ? edited_line : table.Line(index));
  if (places_.PoiEditIndex <= 0) put(edited_line);
  return text;
}

bool PlaceFiles::WriteFile(std::string_view edited_line) {
  if (!ConfirmLoss()) return false;
  const std::string& file = settings_.PoiFile;
  tools_.Disk.MakeFolder(Folder());
  if (!tools_.Disk.Replace(PathOf(file), FileText(edited_line))) {
    Tell(boxes::kPlacesUnwritten.With({file}));
    return false;
  }
  const bool stays = places_.PoiEditIndex > 0 && IsPlace(edited_line);
  const int number = stays ? NumberInFile(places_.PoiEditIndex) : 0;
  if (!Load(file)) Tell(boxes::kPlacesGone.With({file}));
  places_.PoiEditIndex = number <= places_.PoiPoints.Count() ? number : 0;
  if (IndexOfName(controls_.Combo2.Items, file) < 0) ListPoiFiles();
  // Kept: a place beyond the last that is read is written, but not there afterwards.
  if (cut_) {
    Tell(boxes::kPlacesFull.With({file, WholeNumber(PlacesState::kMostPlacesRead)}));
  }
  return true;
}

}  // namespace zepril
