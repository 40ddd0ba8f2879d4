// Records of decoded packets, column by column.
#include "reception/record_builder.h"

#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

const std::string kKey = std::string(1, StationRecord::kKeyMark);

TEST(RecordBuilder, RecordStandsColumnByColumn) {
  Reception station;
  station.HearPacket("=5230.00N/01324.00E>Test", "N0CALL>WIDE1-1*>APRS");
  ASSERT_EQ(station.Heard(), 1);
  EXPECT_EQ(station.Last().Text(), "240115 1234 " + kKey + " 5817.860  391.394'N0CALL    Test" +
                                       std::string(43, ' ') + " WIDE1-1   />    Car        0  ");
  EXPECT_EQ(station.Last().RightTrimmed().size(), 118u);
  EXPECT_EQ(station.Last().PositionKey(), kKey + " 5817.860  391.394");
}

TEST(RecordBuilder, MarksStandInTheirColumns) {
  DecodedPacket packet;
  packet.TimestampStale = true;
  packet.PacketIsObject = true;
  packet.PacketIsEmergency = true;
  const StationRecord record = BuildRecord(packet);
  EXPECT_EQ(record.StaleMark(), 'T');
  EXPECT_EQ(record.ObjectMark(), '_');
  EXPECT_EQ(record.EmergencyMark(), '!');
  const StationRecord history = HistoryRecord(record);
  EXPECT_EQ(history.StaleMark(), 'T');
  EXPECT_EQ(history.ObjectMark(), ' ');
  EXPECT_EQ(history.EmergencyMark(), ' ');
}

TEST(RecordBuilder, ReturnInAForeignCallDoesNotBreakTheLine) {
  Reception station;
  station.HearPacket("!5230.00N/01324.00E>Test", "N0\rCALL>DI\rG1*>APRS");
  ASSERT_EQ(station.Heard(), 1);
  EXPECT_EQ(station.Last().Call(), "N0 CALL");
  EXPECT_EQ(station.Last().HeardViaField(), "DI G1");
}

TEST(RecordBuilder, LongFieldsAreCutToTheirColumns) {
  DecodedPacket packet;
  packet.PacketCall = "LONGNAMEXYZ";
  packet.PacketHeardVia = "ABCDEFGHIJKL";
  const StationRecord record = BuildRecord(packet);
  EXPECT_EQ(record.Call(), "LONGNAMEX");
  EXPECT_EQ(record.HeardViaField(), "ABCDEFGHIJ");
}

}  // namespace
}  // namespace zepril
