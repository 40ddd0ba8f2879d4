// Lines and places of the reception's logs.
#include "reception/station_logs.h"

#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

TEST(StationLogs, ShortLineLeavesOutTheMiddleOfTheRecord) {
  Reception station;
  station.HearPacket("=5230.00N/01324.00E>A comment of more than sixteen characters",
                     "N0CALL>WIDE1-1*>APRS");
  const StationRecord& record = station.Last();
  const std::string line = ShortLogLine(record);
  EXPECT_EQ(line.size(), 90u);
  EXPECT_EQ(line.substr(0, 58), record.Columns(1, 58));
  EXPECT_EQ(line[58], ' ');
  EXPECT_EQ(line.substr(59), record.Columns(90, 120));
  EXPECT_EQ(line.substr(42, 16), "A comment of mor");
}

TEST(StationLogs, NewRecordsAreLoggedOnlyWithLogsOn) {
  Reception station;
  station.HearPacket("!5230.00N/01324.00E>one");
  EXPECT_TRUE(station.Disk.Contents.empty());
  station.Stores.LogsOn = 1;
  const std::string frame = Reception::Frame("!5230.00N/01324.00E>two");
  station.Hear(frame);
  station.Hear(frame);  // a repeat
  EXPECT_EQ(station.Disk.Of(Reception::Log("_LOGL_.TXT")),
            std::string(station.Last().Text()) + "\r\n");
  EXPECT_EQ(station.Disk.Of(Reception::Log("_LOG_.TXT")), ShortLogLine(station.Last()) + "\r\n");
  EXPECT_EQ(station.Disk.Of(Reception::Log("_LOGRAW_.TXT")), frame + frame);
}

TEST(StationLogs, RawLogHoldsTheMarkedText) {
  Reception station;
  station.Stores.LogsOn = 1;
  station.Hear("N0CALL>WIDE1-1>APRS <UI>:\r\n!x\r\n");
  EXPECT_EQ(station.Disk.Of(Reception::Log("_LOGRAW_.TXT")),
            "N0CALL*>WIDE1-1>APRS <UI>:\r\n!x\r\n");
}

TEST(StationLogs, EmergencyBlockHasSevenLines) {
  Reception station;
  station.Identity.MapZoneName = "U33";
  StationLogs logs(station.Identity, station.Disk);
  AlarmState alarm;
  alarm.AlarmCall = "N0CALL";
  alarm.AlarmTime = "2024-01-15 12:34";
  alarm.AlarmLat = " 52:30.00";
  alarm.AlarmLon = " 13:24.00";
  alarm.AlarmNorth = " 5817.860";
  alarm.AlarmEast = "  391.394";
  alarm.AlarmInfo = "Help";
  EXPECT_TRUE(logs.AppendEmergency(alarm));
  const std::string rule(60, '-');
  EXPECT_EQ(
      station.Disk.Of(Reception::Log("_ALARM_.TXT")),
      rule +
          "\r\nSTATION : N0CALL\r\nTIME    : 2024-01-15 12:34\r\nGLL     :  52:30.00  13:24.00"
          "\r\nUTM(Z33):  5817.860   391.394\r\nINFO    : Help\r\n" +
          rule + "\r\n");
}

TEST(StationLogs, HistoryFileCanNeitherLeaveTheFolderNorBeALog) {
  IdentityState identity;
  identity.MapSystemFolder = "M";
  EXPECT_EQ(HistoryPath(identity, "QX7KB-9"), R"(M\LOG\QX7KB-9.TXT)");
  EXPECT_EQ(HistoryPath(identity, R"(..\..\A:B/C)"), R"(M\LOG\..-..-A-B-C.TXT)");
  EXPECT_EQ(HistoryPath(identity, "_LOGL_"), R"(M\LOG\-LOGL_.TXT)");
}

}  // namespace
}  // namespace zepril
