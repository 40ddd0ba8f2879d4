// Shows the selected record, steps near the picked place, deletes after a question.
#include "reception/record_browser.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "core/text_fields.h"
#include "core/texts/boxes.h"
#include "core/texts/status_texts.h"

namespace zepril {

double PickToleranceKm(double metres_per_pixel) {
  return static_cast<double>(IntegerQuotient(Int(metres_per_pixel), 200.0)) + 0.5;
}

RecordBrowser::RecordBrowser(StoresState& stores, MapViewState& map, RecordPanelControls& panel,
                             MapControls& map_controls, FollowedHistory& history, Dialogs& dialogs,
                             MapActions& actions)
    : stores_(stores),
      map_(map),
      panel_(panel),
      map_controls_(map_controls),
      history_(history),
      dialogs_(dialogs),
      actions_(actions) {
  panel_.Command18.Click = [this] { Command18Click(); };
  panel_.Command19.Click = [this] { Command19Click(); };
  panel_.Command23.Click = [this] { Close(); };
}

bool RecordBrowser::SelectedIsFollowed() const {
  return history_.IsFollowed(stores_.SelectedStationCall);
}

const StationStore& RecordBrowser::SelectedStore() const {
  return SelectedIsFollowed() ? stores_.Moni1Records : stores_.MoniAllRecords;
}

// The stores change behind an open panel, so the selection may have fallen off its list.
bool RecordBrowser::HasSelection() const {
  return stores_.SelectedRecordIndex >= 1 && stores_.SelectedRecordIndex <= SelectedStore().Count();
}

void RecordBrowser::SetButtons() {
  const bool followed = SelectedIsFollowed();
  panel_.Command18.Caption = followed ? status_texts::kCutOlder : status_texts::kOlder;
  panel_.Command19.Caption = followed ? status_texts::kCutNewer : status_texts::kNewer;
  panel_.Label19.Caption = followed ? status_texts::kDelete : status_texts::kOwnPlace;
}

void RecordBrowser::ShowSelected() {
  if (!panel_.Frame1.Visible) return;
  const StationRecord* selected =
      HasSelection() ? &SelectedStore().At(stores_.SelectedRecordIndex) : nullptr;
  panel_.Label20.Caption = selected ? DoubledAmpersands(selected->Text()) : std::string();
  SelectionShown(selected);
}

void RecordBrowser::Open(const std::string& call, int index, double north_km, double east_km) {
  stores_.SelectedStationCall = call;
  stores_.SelectedRecordIndex = index;
  picked_north_km_ = north_km;
  picked_east_km_ = east_km;
  SetButtons();
  panel_.Frame1.Visible = true;
  ShowSelected();
}

void RecordBrowser::OpenPicked() {
  // A copy: opening writes the selection anew.
  const std::string call = stores_.SelectedStationCall;
  Open(call, stores_.SelectedRecordIndex, map_.ClickNorthKm, map_.ClickEastKm);
}

bool RecordBrowser::OpenNewest(const std::string& call) {
  const StationStore& store =
      history_.IsFollowed(call) ? stores_.Moni1Records : stores_.MoniAllRecords;
  for (int index = store.Count(); index >= 1; --index) {
    const StationRecord& record = store.At(index);
    if (!EqualFolded(record.Call(), Trim(call))) continue;
    Open(call, index, record.NorthKm(), record.EastKm());
    return true;
  }
  return false;
}

void RecordBrowser::Close() {
  panel_.Frame1.Visible = false;
  SelectionShown(nullptr);
  map_.MapLockedOnRecord = 0;
  map_controls_.Command12.Caption = status_texts::kCentre;
}

void RecordBrowser::FollowedStationChanged() {
  if (!panel_.Frame1.Visible) return;
  const std::string call = stores_.SelectedStationCall;
  if (!OpenNewest(call)) Close();
}

int RecordBrowser::NewestOf(std::string_view call) const {
  const StationStore& store = SelectedStore();
  int index = store.Count();
  while (index > 0 && !EqualFolded(store.At(index).Call(), Trim(call)))
    --index;
  return index;
}

void RecordBrowser::MoveToNewest(std::string_view call) {
  if (Trim(call).empty() || !EqualFolded(Trim(call), Trim(stores_.SelectedStationCall))) return;
  stores_.SelectedRecordIndex = NewestOf(call);
  SetButtons();
  ShowSelected();
}

std::optional<StationRecord> RecordBrowser::SelectedOfAll() const {
  if (SelectedIsFollowed() || !HasSelection()) return std::nullopt;
  return SelectedStore().At(stores_.SelectedRecordIndex);
}

void RecordBrowser::FindAgain(const StationRecord& selected) {
  const std::vector<StationRecord>& all = stores_.MoniAllRecords.All();
  const auto found = std::find(all.rbegin(), all.rend(), selected);
  stores_.SelectedRecordIndex = found == all.rend() ? NewestOf(stores_.SelectedStationCall)
                                                    : static_cast<int>(all.rend() - found);
  if (HasSelection() || !panel_.Frame1.Visible) return ShowSelected();
  Close();
}

void RecordBrowser::Command18Click() {
  if (!HasSelection()) return;
  if (SelectedIsFollowed()) {
    DeletePositions(true);
  } else {
    StepBack();
  }
}

void RecordBrowser::Command19Click() {
  if (!HasSelection()) return;
  if (SelectedIsFollowed()) {
    DeletePositions(false);
  } else {
    StepForward();
  }
}

void RecordBrowser::DeletePositions(bool older) {
  constexpr std::size_t kTimeAndPlace = 31;
  const StationRecord record = SelectedStore().At(stores_.SelectedRecordIndex);
  const Text title = older ? boxes::kDeleteOlderTitle : boxes::kDeleteNewerTitle;
  const std::string text =
      (older ? boxes::kDeleteOlder : boxes::kDeleteNewer).With({record.Columns(1, kTimeAndPlace)});
  if (dialogs_.Ask(title, text, DialogButtons::YesNo, DialogAnswer::No) != DialogAnswer::Yes)
    return;
  if (!HasSelection() || !SelectedIsFollowed()) return;

  StationStore& history = stores_.Moni1Records;
  const int selected = stores_.SelectedRecordIndex;
  if (older) {
    history.Erase(1, selected - 1);
  } else {
    history.Erase(selected + 1, history.Count());
  }
  history_.WriteAndReadBack();
  stores_.SelectedRecordIndex = history.Count();
  Close();
  actions_.MapRedraw();
}

bool RecordBrowser::IsNearPick(const StationRecord& record) const {
  const double tolerance_km = PickToleranceKm(map_.MetresPerPixel);
  return std::fabs(record.NorthKm() - picked_north_km_) < tolerance_km &&
         std::fabs(record.EastKm() - picked_east_km_) < tolerance_km;
}

// The newest of the older records near the picked place.
void RecordBrowser::StepBack() {
  for (int index = stores_.SelectedRecordIndex - 1; index >= 1; --index) {
    const StationRecord& record = stores_.MoniAllRecords.At(index);
    if (record.IsBlank() || !IsNearPick(record)) continue;
    stores_.SelectedRecordIndex = index;
    return ShowSelected();
  }
}

// The first newer record near the picked place.
void RecordBrowser::StepForward() {
  for (int index = stores_.SelectedRecordIndex + 1; index <= stores_.MoniAllRecords.Count();
       ++index) {
    const StationRecord& record = stores_.MoniAllRecords.At(index);
    if (record.IsBlank() || !IsNearPick(record)) continue;
    stores_.SelectedRecordIndex = index;
    return ShowSelected();
  }
}

}  // namespace zepril
