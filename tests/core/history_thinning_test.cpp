// What thinning drops of a history, and that the fast walk agrees with its definition.
#include "core/history_thinning.h"

#include <gtest/gtest.h>

#include <random>

#include "core/position_text.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

StationRecord At(int north_metres, const std::string& date = "240115") {
  StationRecord record;
  record.Put(1, 6, date);
  record.Put(8, 11, "1200");
  record.Put(13, 13, {&StationRecord::kKeyMark, 1});
  record.Put(14, 22, MetresText(5000000 + north_metres));
  record.Put(23, 31, MetresText(400000));
  record.Put(33, 41, "N0CALL");
  record.Put(118, 118, "0");
  return record;
}

std::vector<StationRecord> Row(int count, int step_metres) {
  std::vector<StationRecord> records;
  for (int i = 0; i < count; ++i)
    records.push_back(At(i * step_metres));
  return records;
}

std::vector<std::string> Norths(const std::vector<StationRecord>& records) {
  std::vector<std::string> norths;
  for (const StationRecord& record : records)
    norths.emplace_back(Trim(record.NorthText()));
  return norths;
}

TEST(HistoryThinning, DayNumbersAreThoseOfThirtyDayMonths) {
  EXPECT_EQ(HistoryDay(At(0, "240301")) - HistoryDay(At(0, "240210")), 21);
  EXPECT_EQ(HistoryDay(At(0, "240201")) - HistoryDay(At(0, "240131")), 0);
  EXPECT_EQ(HistoryDay(At(0, "700101")), 1970 * 360 + 30 + 1);
  EXPECT_EQ(HistoryDay(At(0, "690101")), 2069 * 360 + 30 + 1);
}

TEST(HistoryThinning, GapCutsOffWhatIsOlder) {
  std::vector<StationRecord> records = {At(1, "240101"), At(2, "240130"), At(3, "240210"),
                                        At(4, "240301"), At(5, "240302")};
  EXPECT_TRUE(CutAtGap(records, 20));
  EXPECT_EQ(records.size(), 2u);
  EXPECT_FALSE(CutAtGap(records, 20));
}

TEST(HistoryThinning, GapOfExactlyTheLimitIsKept) {
  std::vector<StationRecord> records = {At(1, "240210"), At(2, "240230")};
  EXPECT_FALSE(CutAtGap(records, 20));
  EXPECT_EQ(records.size(), 2u);
}

TEST(HistoryThinning, ShortListStays) {
  std::vector<StationRecord> records = Row(8, 1);
  ThinByDistance(records, 8.0);
  EXPECT_EQ(records.size(), 8u);
}

TEST(HistoryThinning, CloseNeighboursLoseTheLaterOne) {
  std::vector<StationRecord> records = Row(12, 6);
  ThinByDistance(records, 6.0);
  EXPECT_EQ(Norths(records), (std::vector<std::string>{"5000.000", "5000.024", "5000.066"}));
}

TEST(HistoryThinning, DistancesDoubleUntilFewEnoughAreLeft) {
  std::vector<StationRecord> records = Row(16, 300);
  ThinByDistance(records, 8.0);
  EXPECT_EQ(records.size(), 8u);
}

TEST(HistoryThinning, EndsWhateverTheLimit) {
  std::vector<StationRecord> records = Row(20, 100000);
  ThinByDistance(records, 0.0);
  EXPECT_GE(records.size(), 1u);
  std::vector<StationRecord> none;
  ThinByDistance(none, -1.0);
  EXPECT_TRUE(none.empty());
}

TEST(HistoryThinning, UnreadableRecordsGo) {
  StationRecord short_line = At(1);
  short_line.Put(100, 120, "");
  std::vector<StationRecord> records = {At(0), StationRecord(), short_line, At(2), At(3)};
  KeepReadable(records, 2);
  EXPECT_EQ(Norths(records), (std::vector<std::string>{"5000.000", "5000.002"}));
}

// The same walk as it is defined, removing from the list itself.
std::vector<StationRecord> ThinnedByDefinition(std::vector<StationRecord> records, double enough) {
  const double parts[][3] = {{3, 4, 0.01}, {2, 3, 0.05}, {1, 2, 0.1}, {1, 3, 0.2}, {1, 4, 0.5}};
  double threshold = 1.0;
  const auto count = [&records] { return static_cast<double>(records.size()); };
  const auto apart = [](double a, double b) { return a > b ? a - b : b - a; };
  for (int round = 0; round < 64 && count() > enough; ++round, threshold *= 2.0) {
    for (const auto& part : parts) {
      if (count() <= enough) continue;
      for (int i = 1; i < count() * part[0] / part[1] && i < static_cast<int>(records.size());
           ++i) {
        const StationRecord& a = records[static_cast<std::size_t>(i - 1)];
        const StationRecord& b = records[static_cast<std::size_t>(i)];
        const double km = part[2] * threshold;
        if (apart(a.NorthKm(), b.NorthKm()) < km && apart(a.EastKm(), b.EastKm()) < km) {
          records.erase(records.begin() + i);
          if (i != 1) --i;
        }
      }
    }
  }
  return records;
}

TEST(HistoryThinning, FastWalkAgreesWithTheDefinitionOnRandomTracks) {
  std::mt19937 random(5);
  for (int track = 0; track < 60; ++track) {
    std::vector<StationRecord> records;
    int north = 0;
    const int count = 5 + static_cast<int>(random() % 200u);
    for (int i = 0; i < count; ++i) {
      north += static_cast<int>(random() % 60u) - 20;
      records.push_back(At(north));
    }
    const double enough = static_cast<double>(1u + random() % 100u);
    const std::vector<StationRecord> expected = ThinnedByDefinition(records, enough);
    ThinByDistance(records, enough);
    ASSERT_EQ(records, expected) << track;
  }
}

}  // namespace
}  // namespace zepril
