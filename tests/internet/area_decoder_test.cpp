// Stations of an area in the list of all stations: what is new, what is known, and the logs.
#include "internet/area_decoder.h"

#include <gtest/gtest.h>

#include "tests/internet/internet_world.h"

namespace zepril {
namespace {

class AreaDecoderTest : public ::testing::Test {
 protected:
  DecodedArea Decode(const std::string& stations) {
    return decoder.DecodeInetArea(InternetWorld::Area(stations));
  }
  static std::string Station(const std::string& call, const std::string& time = "12:30:00",
                             const std::string& lat = "52.5041") {
    return InternetWorld::Station(call, "2024-05-14 " + time, lat);
  }
  // Stations that stand at many places.
  static std::string Flight(int first, int last) {
    std::string stations;
    for (int number = first; number <= last; ++number)
      stations += Station("Q" + WholeNumber(number), "12:30:00", "53." + ZeroPadded(number, 3));
    return stations;
  }

  InternetWorld world;
  AreaDecoder decoder{{world.Stores, world.Map, world.Settings},
                      {world.Room.Keeper, world.Symbols, world.Time}};
};

TEST_F(AreaDecoderTest, StationsAreAppendedAndLogged) {
  world.Stores.LogsOn = 1;
  const DecodedArea decoded = Decode(Station("QX7AA") + Station("QX7AB", "12:31:00", "52.6"));
  EXPECT_EQ(decoded.Stations, 2);
  EXPECT_EQ(decoded.Stored, 2);
  ASSERT_EQ(world.Heard(), 2);
  const std::string record(world.Last().Text());
  EXPECT_EQ(world.Last().Call(), "QX7AB");
  EXPECT_EQ(world.Last().HeardViaField(), "inet");
  const std::string whole = world.Disk.Of(world.Log("_LOGL_.TXT"));
  EXPECT_TRUE(whole.ends_with(record + "\r\n"));
  const std::string lines = world.Disk.Of(world.Log("_LOG_.TXT"));
  EXPECT_TRUE(lines.ends_with(record.substr(0, 58) + " " + record.substr(89) + "\r\n"));
  EXPECT_EQ(world.Disk.LineCount(world.Log("_LOG_.TXT")), 2);
}

TEST_F(AreaDecoderTest, WithoutLogsNoneIsWritten) {
  Decode(Station("QX7AA"));
  EXPECT_EQ(world.Disk.Writes, 0);
}

TEST_F(AreaDecoderTest, AStationWithARecordOfTheSameMinutesIsLeftOut) {
  Decode(Station("QX7AA"));
  EXPECT_EQ(Decode(Station("QX7AA", "12:31:59", "53.5")).Stored, 0);
  EXPECT_EQ(Decode(Station("QX7AA", "12:32:00", "53.5")).Stored, 1);
}

TEST_F(AreaDecoderTest, AStationThatHasNotMovedIsLeftOut) {
  Decode(Station("QX7AA"));
  EXPECT_EQ(Decode(Station("QX7AA", "12:40:00", "52.5045")).Stored, 0) << "45 m";
  EXPECT_EQ(Decode(Station("QX7AA", "12:40:00", "52.5047")).Stored, 1) << "67 m";
}

TEST_F(AreaDecoderTest, AnotherStationAtThePlaceIsNone) {
  Decode(Station("QX7AA"));
  EXPECT_EQ(Decode(Station("QX7AB")).Stored, 1);
}

TEST_F(AreaDecoderTest, TheHistoryOfTheFollowedStationIsLeftAlone) {
  Decode(Station("QX7GW"));
  EXPECT_EQ(world.Heard(), 1);
  EXPECT_EQ(world.HistoryCount(), 0);
}

TEST_F(AreaDecoderTest, TheSelectedStationsPanelGoesToItsNewestRecord) {
  world.Stores.SelectedStationCall = "QX7AA";
  Decode(Station("QX7AA") + Station("QX7AB"));
  EXPECT_EQ(world.Stores.SelectedRecordIndex, 1) << "not that of the last station";
  Decode(Station("QX7AA", "12:34:00", "53.5") + Station("QX7AC"));
  EXPECT_EQ(world.Stores.SelectedRecordIndex, 3);
  world.Stores.SelectedStationCall = "N0CALL";
  Decode(Station("QX7AD"));
  EXPECT_EQ(world.Stores.SelectedRecordIndex, 3);
}

TEST_F(AreaDecoderTest, TheOpenPanelStaysWithItsRecordWhenTheListIsCut) {
  world.Stores.MoniAllRecords.Limit = 8;
  Decode(Flight(1, 5) + Station("QX7AA"));
  world.Browser.Open("QX7AA", 6, 0.0, 0.0);
  const std::string shown = world.Controls.Record.Label20.Caption;
  Decode(Flight(6, 10));
  ASSERT_LE(world.Heard(), 8);
  ASSERT_GE(world.Stores.SelectedRecordIndex, 1);
  ASSERT_LT(world.Stores.SelectedRecordIndex, 6);
  EXPECT_EQ(world.Stores.MoniAllRecords.At(world.Stores.SelectedRecordIndex).Call(), "QX7AA");
  EXPECT_EQ(world.Controls.Record.Label20.Caption, shown);
}

TEST_F(AreaDecoderTest, ThePanelOfARecordThatIsCutAwayCloses) {
  world.Stores.MoniAllRecords.Limit = 8;
  Decode(Flight(1, 1) + Station("QX7AA") + Flight(2, 7));
  world.Browser.Open("QX7AA", 2, 0.0, 0.0);
  Decode(Flight(9, 10));
  EXPECT_FALSE(world.Controls.Record.Frame1.Visible);
  EXPECT_EQ(world.Stores.SelectedRecordIndex, 0);
}

TEST_F(AreaDecoderTest, TheLimitOfTheListIsKept) {
  world.Stores.MoniAllRecords.Limit = 50;
  std::string stations;
  for (int number = 0; number < 400; ++number)
    stations +=
        Station("Q" + WholeNumber(number), "12:30:00", "5" + FixedNumber(number / 100.0, 3));
  EXPECT_EQ(Decode(stations).Stored, 400);
  EXPECT_LE(world.Heard(), 50);
  EXPECT_EQ(world.Stores.MoniAllRecords.At(1).Call(), "Q0");
}

TEST_F(AreaDecoderTest, ATimeFarAheadIsNotBelieved) {
  EXPECT_EQ(decoder
                .DecodeInetArea(InternetWorld::Area(
                    InternetWorld::Station("QX7AA", "2031-05-14 12:30:00", "52.5")))
                .Stations,
            0);
}

TEST_F(AreaDecoderTest, OtherRepliesStoreNothing) {
  for (const std::string& reply : {std::string(), std::string(500, '['), std::string(5000, '\0'),
                                   std::string("<html><body>[callsign]</body></html>"),
                                   "[" + Station("QX7AA").substr(0, 90)}) {
    EXPECT_EQ(decoder.DecodeInetArea(reply).Stored, 0);
  }
  EXPECT_EQ(world.Heard(), 0);
}

}  // namespace
}  // namespace zepril
