// The followed station's values: of the newest record, or none.
#include "reception/newest_values.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

StationRecord RecordOf(const std::string& date_and_time, const std::string& info) {
  StationRecord record;
  record.Put(1, 11, date_and_time);
  record.Put(14, 22, " 5825.000");
  record.Put(23, 31, "  425.500");
  record.Put(43, 89, info);
  record.Put(91, 100, "QX2CD");
  record.Put(101, 103, "/>");
  record.Put(105, 120, "CAR");
  return record;
}

TEST(NewestValues, AreThoseOfTheLastRecord) {
  StationStore history(10);
  history.Append(RecordOf("240115 1200", "before"));
  history.Append(RecordOf("240115 1234", "now"));
  FollowedStationState followed;
  TakeNewestValues(history, followed);
  EXPECT_EQ(followed.MonitorDate, "240115");
  EXPECT_EQ(followed.MonitorTime, "1234");
  EXPECT_DOUBLE_EQ(followed.MonitorNorthKm, 5825.0);
  EXPECT_DOUBLE_EQ(followed.MonitorEastKm, 425.5);
  EXPECT_EQ(followed.MonitorHeardVia, "QX2CD");
  EXPECT_EQ(followed.MonitorInfo, "now");
  EXPECT_EQ(followed.MonitorSymbol, "/>");
  EXPECT_EQ(followed.MonitorSymbolText, "CAR");
}

TEST(NewestValues, AreClearedByAnEmptyHistory) {
  StationStore history(10);
  history.Append(RecordOf("240115 1234", "now"));
  FollowedStationState followed;
  TakeNewestValues(history, followed);
  history.Clear();
  TakeNewestValues(history, followed);
  EXPECT_EQ(followed.MonitorDate, "");
  EXPECT_EQ(followed.MonitorTime, "");
  EXPECT_EQ(followed.MonitorNorthKm, 0.0);
  EXPECT_EQ(followed.MonitorEastKm, 0.0);
  EXPECT_EQ(followed.MonitorInfo, "");
}

}  // namespace
}  // namespace zepril
