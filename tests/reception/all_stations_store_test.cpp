// What is a repeat, what the list loses at its limit, and that index and scan agree.
#include "reception/all_stations_store.h"

#include <random>

#include "core/text_fields.h"
#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

std::string Place(int metres) {
  return PadLeft(WholeNumber(metres), 5) + ".000";
}

StationRecord At(const std::string& time, const std::string& call, const std::string& via,
                 const std::string& info = "Test") {
  return RecordOf(call, "240115 " + time, " 5817.860", "  391.394", via, info);
}

// The two rules by looking at every record, as they are defined; the index must agree with them.
bool IsRepeatByScan(const StationStore& store, const StationRecord& record) {
  return std::any_of(store.All().begin(), store.All().end(),
                     [&](const StationRecord& stored) { return IsSamePacket(stored, record); });
}

std::vector<StationRecord> WithoutSupersededByScan(const std::vector<StationRecord>& records) {
  const auto same_place_and_call = [](const StationRecord& a, const StationRecord& b) {
    return a.Columns(14, 31) == b.Columns(14, 31) && a.Columns(33, 41) == b.Columns(33, 41);
  };
  std::vector<StationRecord> kept;
  for (std::size_t i = 0; i < records.size(); ++i) {
    bool superseded = false;
    for (std::size_t j = i + 1; i > 0 && j < records.size() && !superseded; ++j) {
      superseded = same_place_and_call(records[i], records[j]);
    }
    if (!superseded) kept.push_back(records[i]);
  }
  return kept;
}

bool Repeats(const StationRecord& stored, const StationRecord& record) {
  StationStore list(3000);
  AllStationsStore store(list);
  store.Append(stored);
  EXPECT_EQ(store.IsRepeat(record), IsRepeatByScan(list, record));
  return store.IsRepeat(record);
}

TEST(AllStationsStore, SameRecordIsARepeat) {
  EXPECT_TRUE(Repeats(At("1200", "N0A", "DIGI1"), At("1200", "N0A", "DIGI1")));
}

TEST(AllStationsStore, SecondDigipeaterWithinTenMinutesIsARepeatEvenFromAnotherCall) {
  EXPECT_TRUE(Repeats(At("1200", "N0A", "DIGI1"), At("1209", "N0A", "DIGI2")));
  EXPECT_TRUE(Repeats(At("1200", "N0A", "DIGI1"), At("1209", "N0B", "DIGI2", "other")));
  EXPECT_FALSE(Repeats(At("1200", "N0A", "DIGI1"), At("1210", "N0A", "DIGI2")));
}

TEST(AllStationsStore, SameDigipeaterInAnotherMinuteIsNew) {
  EXPECT_FALSE(Repeats(At("1200", "N0A", "DIGI1"), At("1201", "N0A", "DIGI1")));
}

TEST(AllStationsStore, WindowDoesNotSpanMidnight) {
  EXPECT_FALSE(Repeats(At("2359", "N0A", "DIGI1"), At("0001", "N0A", "DIGI2")));
}

TEST(AllStationsStore, LastColumnOfTheViaDoesNotTellDigipeatersApart) {
  EXPECT_FALSE(Repeats(At("1200", "N0A", "DIGIPEATRX"), At("1201", "N0A", "DIGIPEATRY")));
}

TEST(AllStationsStore, RecordThatOnlyStandsElsewhereInItsColumnsIsARepeat) {
  StationRecord moved(" " + std::string(At("1200", "N0A", "").RightTrimmed()));
  EXPECT_TRUE(Repeats(moved, At("1200", "N0A", "")));
}

TEST(AllStationsStore, ChangesByOthersAreNoticed) {
  StationStore list(3000);
  AllStationsStore store(list);
  store.Append(At("1200", "N0A", "DIGI1"));
  EXPECT_TRUE(store.IsRepeat(At("1200", "N0A", "DIGI1")));
  list.Clear();
  EXPECT_FALSE(store.IsRepeat(At("1200", "N0A", "DIGI1")));
  list.Append(At("1300", "N0A", "DIGI1"));
  EXPECT_TRUE(store.IsRepeat(At("1300", "N0A", "DIGI1")));
  list.Set(1, At("1400", "N0A", "DIGI1"));
  EXPECT_FALSE(store.IsRepeat(At("1300", "N0A", "DIGI1")));
}

TEST(AllStationsStore, OverlongListLosesAQuarterFromTheSecondRecordOn) {
  StationStore list(3000);
  list.Limit = 666;
  AllStationsStore store(list);
  for (int i = 1; i <= 667; ++i)
    store.Append(RecordOf("N0A", "240115 1200", Place(i)));
  store.KeepLimit();
  EXPECT_EQ(list.Count(), 501);
  EXPECT_EQ(list.At(1).NorthText(), Place(1));
  EXPECT_EQ(list.At(2).NorthText(), Place(168));
  EXPECT_EQ(list.At(501).NorthText(), Place(667));
}

TEST(AllStationsStore, SmallestLimitLosesTwelve) {
  StationStore list(3000);
  list.Limit = 50;
  AllStationsStore store(list);
  for (int i = 1; i <= 51; ++i)
    store.Append(RecordOf("N0A", "240115 1200", Place(i)));
  store.KeepLimit();
  EXPECT_EQ(list.Count(), 39);
}

TEST(AllStationsStore, CleaningKeepsTheFirstAndTheLastOfAPlace) {
  StationStore list(3000);
  list.Limit = 50;
  AllStationsStore store(list);
  for (int i = 0; i < 51; ++i) {
    store.Append(RecordOf("N0A", "240115 " + ZeroPadded(1000 + i, 4), Place(7)));
  }
  store.KeepLimit();
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(list.At(1).Time(), "1000");
  EXPECT_EQ(list.At(2).Time(), "1050");
}

TEST(AllStationsStore, ListAtItsLimitIsLeftAlone) {
  StationStore list(3000);
  list.Limit = 50;
  AllStationsStore store(list);
  for (int i = 0; i < 50; ++i)
    store.Append(RecordOf("N0A", "240115 1200", Place(7)));
  store.KeepLimit();
  EXPECT_EQ(list.Count(), 50);
}

TEST(AllStationsStore, IndexAgreesWithTheScanOnRandomTraffic) {
  std::mt19937 random(7);
  const auto pick = [&random](int count) {
    return static_cast<int>(random() % static_cast<unsigned>(count));
  };
  StationStore list(3000);
  list.Limit = 60;
  AllStationsStore store(list);
  int repeats = 0;
  for (int i = 0; i < 20000; ++i) {
    StationRecord record =
        RecordOf("N0" + WholeNumber(pick(5)), "240115 12" + ZeroPadded(pick(60), 2),
                 Place(pick(30)), "  391.394", "DIGI" + WholeNumber(pick(3)));
    if (pick(50) == 0) record.Put(32, 32, "'");
    if (pick(500) == 0 && list.Count() > 0) list.Set(1 + pick(list.Count()), record);
    const bool repeat = store.IsRepeat(record);
    ASSERT_EQ(repeat, IsRepeatByScan(list, record)) << i;
    if (repeat) {
      ++repeats;
      continue;
    }
    store.Append(record);
    if (list.Count() <= list.Limit) continue;
    std::vector<StationRecord> expected = WithoutSupersededByScan(list.All());
    if (static_cast<int>(expected.size()) > list.Limit) {
      expected.erase(expected.begin() + 1, expected.begin() + 1 + list.Limit / 4);
    }
    store.KeepLimit();
    ASSERT_EQ(list.All(), expected) << i;
  }
  EXPECT_GT(repeats, 1000);
}

}  // namespace
}  // namespace zepril
