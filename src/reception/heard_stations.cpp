#include "reception/heard_stations.h"

#include <set>
#include <string_view>

namespace zepril {

std::vector<HeardStation> HeardStations(const StationStore& store, std::size_t most) {
  std::vector<HeardStation> heard;
  std::set<std::string_view> seen;
  for (int index = store.Count(); index >= 1 && heard.size() < most; --index) {
    const std::string_view call = store.At(index).Call();
    if (!call.empty() && seen.insert(call).second) heard.push_back({std::string(call), index});
  }
  return heard;
}

void HeardStationsPanel::Command3Click() {
  controls_.HeardPanel.Visible = !controls_.HeardPanel.Visible;
  if (!controls_.HeardPanel.Visible) return;
  ListBox& list = controls_.HeardList;
  list.Items.clear();
  for (HeardStation& station : HeardStations(stores_.MoniAllRecords)) {
    list.Items.push_back(std::move(station.Call));
  }
  list.ListIndex = -1;
  list.TopIndex = 0;
  ++list.Revision;
}

void HeardStationsPanel::HeardListClick() {
  const ListBox& list = controls_.HeardList;
  if (list.ListIndex < 0 || list.ListIndex >= static_cast<int>(list.Items.size())) return;
  browser_.OpenNewest(list.Items[static_cast<std::size_t>(list.ListIndex)]);
}

}  // namespace zepril
