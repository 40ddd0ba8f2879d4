// Each column group of a record, also of a torn one.
#include "core/station_record.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

// A record with a mark at the first and last column of every group.
const std::string kLine = std::string("240115 1234T\xFE 5817.860  391.394'N0CALL-15!") + "<" +
                          std::string(45, 'i') + ">" + "_WIDE1-1   \\#S S No. Digi   2";

TEST(StationRecord, GroupsStandInTheirColumns) {
  const StationRecord record(kLine);
  EXPECT_EQ(record.Date(), "240115");
  EXPECT_EQ(record.Time(), "1234");
  EXPECT_EQ(record.DateAndTime(), "240115 1234");
  EXPECT_EQ(record.StaleMark(), 'T');
  EXPECT_EQ(record.PositionKey(), "\xFE 5817.860  391.394");
  EXPECT_EQ(record.PositionKey().size(), 19U);
  EXPECT_DOUBLE_EQ(record.NorthKm(), 5817.860);
  EXPECT_DOUBLE_EQ(record.EastKm(), 391.394);
  EXPECT_EQ(record.MessageMark(), '\'');
  EXPECT_EQ(record.Call(), "N0CALL-15");
  EXPECT_EQ(record.EmergencyMark(), '!');
  EXPECT_EQ(record.Info().size(), 47U);
  EXPECT_EQ(record.Info().front(), '<');
  EXPECT_EQ(record.Info().back(), '>');
  EXPECT_EQ(record.ObjectMark(), '_');
  EXPECT_EQ(record.HeardViaField(), "WIDE1-1");
  EXPECT_EQ(record.Symbol(), "\\#S");
  EXPECT_EQ(record.SymbolText(), "S No. Digi   2");
  EXPECT_EQ(record.ClassDigit(), 2);
  EXPECT_EQ(record.MinuteOfDay(), 12 * 60 + 34);
}

TEST(StationRecord, RepeatsAreToldByNineColumnsOfTheViaOnly) {
  StationRecord record;
  record.Put(91, 100, "ABCDEFGHIJ");
  EXPECT_EQ(record.HeardViaKey(), "ABCDEFGHI");
  EXPECT_EQ(record.HeardViaField(), "ABCDEFGHIJ");
}

TEST(StationRecord, IsAlwaysAHundredAndTwentyCharacters) {
  EXPECT_EQ(StationRecord("").Text(), std::string(120, ' '));
  EXPECT_TRUE(StationRecord("").IsBlank());
  EXPECT_EQ(StationRecord(std::string(500, 'x')).Text(), std::string(120, 'x'));
  StationRecord record;
  record.Put(33, 41, "MUCHTOOLONGACALL");
  EXPECT_EQ(record.Call(), "MUCHTOOLO");
  EXPECT_EQ(record.EmergencyMark(), ' ');
  record.Put(33, 41, "A");
  EXPECT_EQ(record.Call(), "A");
}

TEST(StationRecord, BlankFieldsReadAsNothingAndZero) {
  const StationRecord record;
  EXPECT_EQ(record.NorthKm(), 0.0);
  EXPECT_EQ(record.MinuteOfDay(), 0);
  EXPECT_EQ(record.ClassDigit(), 0);
  EXPECT_EQ(record.Call(), "");
}

TEST(StationRecord, ALineOfAHistoryKeepsItsLeadingBlanks) {
  StationRecord record;
  record.Put(8, 11, "1234");
  EXPECT_EQ(record.RightTrimmed(), "       1234");
  EXPECT_EQ(record.Trimmed(), "1234");
}

}  // namespace
}  // namespace zepril
