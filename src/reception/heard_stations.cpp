// Builds, orders and renews the rows, and opens the record of the one that is pressed.
#include "reception/heard_stations.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"
#include "geodesy/conversions.h"

namespace zepril {
namespace {

constexpr std::size_t kCallWidth = 9;
constexpr std::size_t kAgeWidth = 9;
constexpr std::size_t kDistanceWidth = 8;
constexpr std::size_t kDirectionWidth = 5;
constexpr std::int64_t kMinutesOfHour = 60;
constexpr std::int64_t kMinutesOfDay = 24 * kMinutesOfHour;

// Date and time of a record, "YYMMDD HHMM"; 0 where there is none.
std::int64_t MinutesOfRecord(const StationRecord& record) {
  const std::string_view text = record.DateAndTime();
  LocalTime time;
  time.Year = 2000 + static_cast<int>(Val(Mid(text, 1, 2)));
  time.Month = static_cast<int>(Val(Mid(text, 3, 2)));
  time.Day = static_cast<int>(Val(Mid(text, 5, 2)));
  time.Hour = static_cast<int>(Val(Mid(text, 8, 2)));
  time.Minute = static_cast<int>(Val(Mid(text, 10, 2)));
  return MinutesOf(time);
}

bool IsPlace(double north_km, double east_km) {
  return north_km != 0.0 || east_km != 0.0;
}

constexpr double kUnseenSeconds = 0.05;  // too short to press something meanwhile

}  // namespace

std::vector<HeardStation> HeardStations(const StationStore& store, std::size_t most) {
  std::vector<HeardStation> heard;
  std::set<std::string_view> seen;
  for (int index = store.Count(); index >= 1 && heard.size() < most; --index) {
    const std::string_view call = store.At(index).Call();
    if (!call.empty() && seen.insert(call).second) heard.push_back({std::string(call), index});
  }
  return heard;
}

std::string AgeText(std::int64_t minutes) {
  const std::int64_t age = std::max<std::int64_t>(minutes, 0);
  if (age < 2 * kMinutesOfHour) return status_texts::kMinutes.With({WholeNumber(age)});
  if (age < 2 * kMinutesOfDay)
    return status_texts::kHours.With({WholeNumber(age / kMinutesOfHour)});
  return status_texts::kDays.With({WholeNumber(age / kMinutesOfDay)});
}

HeardStationsPanel::HeardStationsPanel(const StoresState& stores, const MapViewState& view,
                                       MoniAllControls& controls, RecordBrowser& browser,
                                       const Clock& clock)
    : stores_(stores), view_(view), controls_(controls), browser_(browser), clock_(clock) {
  controls_.Command3.Click = [this] { Command3Click(); };
  controls_.HeardList.Click = [this] { HeardListClick(); };
  for (std::size_t column = 0; column < controls_.HeardOrder.size(); ++column) {
    controls_.HeardOrder[column].Click = [this, column] {
      OrderBy(static_cast<HeardColumn>(column));
    };
  }
  ShowOrder();
}

void HeardStationsPanel::Command3Click() {
  controls_.HeardPanel.Visible = !controls_.HeardPanel.Visible;
  if (!controls_.HeardPanel.Visible) return;
  Fill();
  ListBox& list = controls_.HeardList;
  list.ListIndex = -1;
  list.TopIndex = 0;
  list.Held = false;
}

void HeardStationsPanel::HeardListClick() {
  const std::string call = CallAt(controls_.HeardList.ListIndex);
  if (!call.empty()) browser_.OpenNewest(call);
}

void HeardStationsPanel::Renew() {
  ListBox& list = controls_.HeardList;
  if (!controls_.HeardPanel.Visible || list.Held) return;
  const std::string selected = CallAt(list.ListIndex);
  const std::string top = CallAt(list.TopIndex);
  Fill();
  list.ListIndex = RowOf(selected);
  // Who looks at the top wants to see what comes.
  if (list.TopIndex > 0) list.TopIndex = std::max(RowOf(top), 0);
}

void HeardStationsPanel::TickBegins() {
  if (waits_) Renew();
  waits_ = true;
  tick_began_ = clock_.MonotonicSeconds();
}

void HeardStationsPanel::Received() {
  waits_ = clock_.MonotonicSeconds() - tick_began_ > kUnseenSeconds;
  if (!waits_) Renew();
}

void HeardStationsPanel::OrderBy(HeardColumn column) {
  turned_ = column == order_ && !turned_;
  order_ = column;
  ShowOrder();
  const std::string selected = CallAt(controls_.HeardList.ListIndex);
  Fill();
  controls_.HeardList.ListIndex = RowOf(selected);
  controls_.HeardList.TopIndex = 0;
}

void HeardStationsPanel::ShowOrder() {
  static constexpr std::array<Text, 4> kCaptions{status_texts::kCall, status_texts::kAge,
                                                 status_texts::kDistance, status_texts::kDirection};
  for (std::size_t column = 0; column < controls_.HeardOrder.size(); ++column) {
    OptionButton& head = controls_.HeardOrder[column];
    head.Value = static_cast<HeardColumn>(column) == order_;
    head.Caption = kCaptions[column];
    if (head.Value) head.Caption += turned_ ? " -" : " +";
  }
}

std::string HeardStationsPanel::CallAt(int row) const {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return {};
  return rows_[static_cast<std::size_t>(row)].Call;
}

int HeardStationsPanel::RowOf(const std::string& call) const {
  const auto found =
      std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.Call == call; });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

std::vector<HeardStationsPanel::Row> HeardStationsPanel::Rows() const {
  const std::int64_t now = MinutesOf(clock_.Now());
  std::vector<Row> rows;
  for (HeardStation& station : HeardStations(stores_.MoniAllRecords)) {
    const StationRecord& record = stores_.MoniAllRecords.At(station.Index);
    Row row;
    row.Call = std::move(station.Call);
    row.AgeMinutes = std::max<std::int64_t>(now - MinutesOfRecord(record), 0);
    if (IsPlace(view_.OwnNorthKm, view_.OwnEastKm) && IsPlace(record.NorthKm(), record.EastKm())) {
      const DistanceBearing way =
          StationDistanceBearing(view_.OwnNorthKm, view_.OwnEastKm, record.NorthKm(),
                                 record.EastKm(), view_.MapCentralMeridian, view_.MapFalseEasting);
      row.DistanceKm = way.DistanceKm;
      row.BearingDeg = way.BearingDeg;
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

// The rows come newest first, which decides between equals. Stations without a place stand last.
void HeardStationsPanel::Sort(std::vector<Row>& rows) const {
  const auto before = [this](const Row& a, const Row& b) {
    switch (order_) {
      case HeardColumn::Call:
        return a.Call < b.Call;
      case HeardColumn::Age:
        return a.AgeMinutes < b.AgeMinutes;
      case HeardColumn::Distance:
        return a.DistanceKm < b.DistanceKm;
      case HeardColumn::Direction:
        return a.BearingDeg < b.BearingDeg;
    }
    return false;
  };
  const bool by_place = order_ == HeardColumn::Distance || order_ == HeardColumn::Direction;
  std::stable_sort(rows.begin(), rows.end(), [&](const Row& a, const Row& b) {
    const bool a_known = a.DistanceKm >= 0.0;
    const bool b_known = b.DistanceKm >= 0.0;
    if (by_place && a_known != b_known) return a_known;
    return turned_ ? before(b, a) : before(a, b);
  });
}

void HeardStationsPanel::Fill() {
  rows_ = Rows();
  Sort(rows_);
  ListBox& list = controls_.HeardList;
  list.Items.clear();
  list.Items.reserve(rows_.size());
  for (const Row& row : rows_) {
    const bool known = row.DistanceKm >= 0.0;
    const auto direction = static_cast<std::int64_t>(RoundHalfEven(row.BearingDeg)) % 360;
    list.Items.push_back(PadRight(row.Call, kCallWidth) +
                         PadLeft(AgeText(row.AgeMinutes), kAgeWidth) +
                         PadLeft(known ? FixedNumber(row.DistanceKm, 1) : "", kDistanceWidth) +
                         PadLeft(known ? ZeroPadded(direction, 3) : "", kDirectionWidth));
  }
  ++list.Revision;
}

}  // namespace zepril
