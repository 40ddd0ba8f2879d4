// Counting, capacity and order of a store, and its limits by the computer's speed.
#include "core/station_store.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

StationRecord Numbered(int number) {
  return StationRecord(std::to_string(number));
}

StationStore StoreOf(int count, int capacity = 100) {
  StationStore store(capacity);
  for (int number = 1; number <= count; ++number)
    store.Append(Numbered(number));
  return store;
}

TEST(StoreLimits, FollowTheSpeedOfTheComputerWithinTheirBounds) {
  const auto limits = [](std::int64_t loops) {
    const StoreLimits found = LimitsOfSpeed(loops);
    return std::pair(found.MoniAllLimit, found.Moni1Limit);
  };
  EXPECT_EQ(limits(3'000'000), std::pair(666, 3330));
  EXPECT_EQ(limits(50'000'000), std::pair(666, 3330));
  EXPECT_EQ(limits(2'000'000'000), std::pair(666, 3330));
  EXPECT_EQ(limits(229'500), std::pair(51, 255));
  EXPECT_EQ(limits(224'999), std::pair(50, 250));
  EXPECT_EQ(limits(0), std::pair(50, 250));
}

TEST(StationStore, CountsFromOneAndRefusesBeyondItsCapacity) {
  StationStore store = StoreOf(3, 3);
  EXPECT_EQ(store.Count(), 3);
  EXPECT_EQ(store.At(1), Numbered(1));
  EXPECT_EQ(store.At(3), Numbered(3));
  EXPECT_FALSE(store.Append(Numbered(4)));
  EXPECT_EQ(store.Count(), 3);
}

TEST(StationStore, ErasedRecordsLetTheOthersMoveUp) {
  StationStore store = StoreOf(5);
  store.Erase(2, 3);
  ASSERT_EQ(store.Count(), 3);
  EXPECT_EQ(store.At(1), Numbered(1));
  EXPECT_EQ(store.At(2), Numbered(4));
  store.Erase(3, 99);
  EXPECT_EQ(store.Count(), 2);
  store.Erase(-5, 0);
  EXPECT_EQ(store.Count(), 2);
}

TEST(StationStore, ReadersCanTellAppendedFromReordered) {
  StationStore store = StoreOf(2);
  const auto revision = store.Revision();
  const auto reordered = store.Reordered();
  store.Append(Numbered(3));
  EXPECT_GT(store.Revision(), revision);
  EXPECT_EQ(store.Reordered(), reordered);
  store.Set(1, Numbered(9));
  EXPECT_GT(store.Reordered(), reordered);
}

TEST(StationStore, AnAssignedListIsCutToTheCapacity) {
  StationStore store(2);
  store.Assign({Numbered(1), Numbered(2), Numbered(3)});
  ASSERT_EQ(store.Count(), 2);
  EXPECT_EQ(store.At(2), Numbered(2));
  store.Clear();
  EXPECT_EQ(store.Count(), 0);
}

}  // namespace
}  // namespace zepril
