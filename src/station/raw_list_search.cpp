// Opens the list with a slowed cycle, and searches from the selected line upwards.
#include "station/raw_list_search.h"

#include "core/keys.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr int kSlowTicks = 4;

}  // namespace

RawListSearch::RawListSearch(RawListControls& controls, const SettingsState& settings,
                             Timer& timer1)
    : controls_(controls), settings_(settings), timer1_(timer1) {
  controls_.Command57.Click = [this] { controls_.RawList.Visible = !controls_.RawList.Visible; };
  controls_.RawList.Click = [this] { SlowDown(); };
  controls_.Text14.Change = [this] { SlowDown(); };
  controls_.Text14.KeyDown = [this](KeyPress key) {
    if (key.Code == kEnterKey) SearchUpwards();
  };
  controls_.Command38.Click = [this] { SearchUpwards(); };
}

void RawListSearch::SlowDown() {
  timer1_.SetInterval(kSlowTicks * settings_.TickMilliseconds);
}

void RawListSearch::SearchUpwards() {
  SlowDown();
  const std::string wanted = Upper(Trim(controls_.Text14.Text));
  ListBox& list = controls_.RawList;
  const int count = static_cast<int>(list.Items.size());
  if (wanted.empty() || count == 0) return;
  const int start = list.ListIndex >= 0 && list.ListIndex < count ? list.ListIndex : count;
  for (int step = 1; step <= count; ++step) {
    const int row = ((start - step) % count + count) % count;
    if (InStr(Upper(list.Items[static_cast<std::size_t>(row)]), wanted) == 0) continue;
    list.ListIndex = row;
    list.TopIndex = row;
    return;
  }
}

}  // namespace zepril
