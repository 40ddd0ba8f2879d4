// Repeats by an index beside the list; the list cut at its limit.
#include "reception/all_stations_store.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

namespace zepril {
namespace {

constexpr std::size_t kBuckets = 8192;  // a power of two, well above the capacity of the list

std::size_t Bucket(std::string_view text) {
  constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15u;
  std::uint64_t hash = text.size() * kFactor;
  while (!text.empty()) {
    std::uint64_t word = 0;
    const std::size_t length = std::min(text.size(), sizeof word);
    std::memcpy(&word, text.data(), length);
    hash = (hash ^ word) * kFactor;
    hash ^= hash >> 29;
    text.remove_prefix(length);
  }
  return static_cast<std::size_t>(hash >> 32) & (kBuckets - 1);
}

// Position without its mark, and call: what a later record must share to replace an earlier one.
bool SamePlaceAndCall(const StationRecord& a, const StationRecord& b) {
  return a.Columns(14, 31) == b.Columns(14, 31) && a.Columns(33, 41) == b.Columns(33, 41);
}

std::size_t PlaceAndCallBucket(const StationRecord& record) {
  // Columns 14 to 41 but for the message mark in column 32.
  char key[27];
  std::memcpy(key, record.Columns(14, 31).data(), 18);
  std::memcpy(key + 18, record.Columns(33, 41).data(), 9);
  return Bucket({key, sizeof key});
}

// Without outer blanks.
bool IsSameText(const StationRecord& a, const StationRecord& b) {
  const bool both_begin_at_once = a.Text().front() != ' ' && b.Text().front() != ' ';
  return both_begin_at_once ? a == b : a.Trimmed() == b.Trimmed();
}

// The same place within ten minutes, heard over another digipeater. What costs least comes first: a
// station that stands has hundreds of records of one place over one digipeater.
bool IsSamePlaceOverAnother(const StationRecord& stored, const StationRecord& record) {
  constexpr int kRepeatMinutes = 10;
  return stored.Columns(91, 99) != record.Columns(91, 99) &&
         stored.PositionKey() == record.PositionKey() &&
         stored.HeardViaKey() != record.HeardViaKey() &&
         std::abs(stored.MinuteOfDay() - record.MinuteOfDay()) < kRepeatMinutes;
}

}  // namespace

bool IsSamePacket(const StationRecord& stored, const StationRecord& record) {
  return IsSameText(stored, record) || IsSamePlaceOverAnother(stored, record);
}

// Takes in what was appended since the last look; after any other change everything anew.
void AllStationsStore::Refresh() {
  if (store_.Reordered() != reordered_ || store_.Count() < indexed_) {
    by_text_.Newest.assign(kBuckets, 0);
    by_position_.Newest.assign(kBuckets, 0);
    by_text_.Older.assign(1, 0);
    by_position_.Older.assign(1, 0);
    indexed_ = 0;
    reordered_ = store_.Reordered();
  }
  while (indexed_ < store_.Count())
    Add(++indexed_);
}

void AllStationsStore::Add(int index) {
  const StationRecord& record = store_.At(index);
  const auto link = [index](Chains& chains, std::size_t bucket) {
    chains.Older.push_back(chains.Newest[bucket]);
    chains.Newest[bucket] = index;
  };
  link(by_text_, Bucket(record.Trimmed()));
  link(by_position_, Bucket(record.PositionKey()));
}

bool AllStationsStore::IsRepeat(const StationRecord& record) {
  Refresh();
  const auto any_in = [&](const Chains& chains, std::size_t bucket, auto is_same) {
    for (int i = chains.Newest[bucket]; i != 0; i = chains.Older[static_cast<std::size_t>(i)]) {
      if (is_same(store_.At(i), record)) return true;
    }
    return false;
  };
  return any_in(by_position_, Bucket(record.PositionKey()), IsSamePlaceOverAnother) ||
         any_in(by_text_, Bucket(record.Trimmed()), IsSameText);
}

bool AllStationsStore::Append(const StationRecord& record) {
  return store_.Append(record);
}

// Looks from the newest record back: what has been seen is superseded.
void AllStationsStore::RemoveSuperseded() {
  const std::vector<StationRecord>& records = store_.All();
  std::vector<int> newest(kBuckets, -1);
  std::vector<int> older(records.size(), -1);
  std::vector<StationRecord> kept;
  kept.reserve(records.size());
  for (std::size_t i = records.size(); i-- > 0;) {
    const std::size_t bucket = PlaceAndCallBucket(records[i]);
    bool superseded = false;
    for (int j = newest[bucket]; i > 0 && j >= 0 && !superseded;
         j = older[static_cast<std::size_t>(j)]) {
      superseded = SamePlaceAndCall(records[i], records[static_cast<std::size_t>(j)]);
    }
    if (superseded) continue;
    older[i] = newest[bucket];
    newest[bucket] = static_cast<int>(i);
    kept.push_back(records[i]);
  }
  if (kept.size() == records.size()) return;
  std::reverse(kept.begin(), kept.end());
  store_.Assign(std::move(kept));
}

void AllStationsStore::KeepLimit() {
  if (store_.Count() <= store_.Limit) return;
  RemoveSuperseded();
  if (store_.Count() <= store_.Limit) return;
  const int quarter = store_.Limit / 4;
  store_.Erase(2, 1 + quarter);
}

}  // namespace zepril
