// The walks that drop neighbours, in one pass each, and the cut at a gap in time.
#include "core/history_thinning.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/text_fields.h"

namespace zepril {
namespace {

struct Place {
  double NorthKm = 0.0;
  double EastKm = 0.0;
  std::size_t Index = 0;  // of its record
};

// Walks the first `Numerator` / `Denominator` of the records.
struct Pass {
  double Numerator = 1.0;
  double Denominator = 1.0;
  double Km = 0.0;
};

constexpr Pass kPasses[] = {
    {3.0, 4.0, 0.01}, {2.0, 3.0, 0.05}, {1.0, 2.0, 0.1}, {1.0, 3.0, 0.2}, {1.0, 4.0, 0.5},
};

bool Close(const Place& a, const Place& b, double km) {
  return std::fabs(a.NorthKm - b.NorthKm) < km && std::fabs(a.EastKm - b.EastKm) < km;
}

// One walk. `kept` holds the places up to the walk's own; those behind it wait from `next` on.
void Walk(std::vector<Place>& places, const Pass& pass, double km) {
  if (places.empty()) return;
  std::vector<Place> kept{places.front()};
  std::size_t next = 1;
  while (next < places.size()) {
    const double count = static_cast<double>(kept.size() + places.size() - next);
    if (!(static_cast<double>(kept.size()) < count * pass.Numerator / pass.Denominator)) break;
    const bool close = Close(kept.back(), places[next], km);
    // After a removal the walk stays where it is; from the first record it goes on to the second,
    // which is not compared with the first again.
    const bool goes_on = !close || kept.size() == 1;
    if (close) ++next;
    if (goes_on && next < places.size()) kept.push_back(places[next++]);
  }
  kept.insert(kept.end(), places.begin() + static_cast<std::ptrdiff_t>(next), places.end());
  places = std::move(kept);
}

}  // namespace

int HistoryDay(const StationRecord& record) {
  constexpr int kFirstYear = 1970;
  int year = 1900 + static_cast<int>(ToWhole(Val(record.Columns(1, 2))));
  if (year < kFirstYear) year += 100;
  const int month = static_cast<int>(ToWhole(Val(record.Columns(3, 4))));
  const int day = static_cast<int>(ToWhole(Val(record.Columns(5, 6))));
  return year * 360 + month * 30 + day;
}

bool CutAtGap(std::vector<StationRecord>& records, int most_days) {
  std::size_t first = 0;
  int newest = records.empty() ? 0 : HistoryDay(records.front());
  for (std::size_t i = 1; i < records.size(); ++i) {
    const int day = HistoryDay(records[i]);
    if (day - newest > most_days) first = i;
    newest = std::max(newest, day);
  }
  records.erase(records.begin(), records.begin() + static_cast<std::ptrdiff_t>(first));
  return first > 0;
}

void ThinByDistance(std::vector<StationRecord>& records, double enough) {
  // Doubled this often, every distance on Earth has been passed.
  constexpr int kMostRounds = 64;
  std::vector<Place> places;
  places.reserve(records.size());
  for (std::size_t i = 0; i < records.size(); ++i) {
    places.push_back({records[i].NorthKm(), records[i].EastKm(), i});
  }
  const auto too_many = [&] { return static_cast<double>(places.size()) > enough; };
  double threshold = 1.0;
  for (int round = 0; round < kMostRounds && too_many(); ++round) {
    for (const Pass& pass : kPasses) {
      if (too_many()) Walk(places, pass, pass.Km * threshold);
    }
    threshold *= 2.0;
  }
  std::vector<StationRecord> kept;
  kept.reserve(places.size());
  for (const Place& place : places)
    kept.push_back(records[place.Index]);
  records = std::move(kept);
}

void KeepReadable(std::vector<StationRecord>& records, std::size_t most) {
  std::erase_if(records, [](const StationRecord& record) {
    return record.RightTrimmed().size() < StationRecord::kShortestLine;
  });
  if (records.size() > most) records.resize(most);
}

}  // namespace zepril
