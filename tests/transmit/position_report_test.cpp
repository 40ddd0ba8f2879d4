// Positions, times and comments in the texts of reports, objects and heard records.
#include "transmit/position_report.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/doubles/memory_files.h"

namespace zepril {
namespace {

constexpr double kMeridian = 15.0;
constexpr double kFalseEasting = 500000.0;

DegreeTexts At(double north_km, double east_km) {
  return DegreeTextsOf(north_km, east_km, kMeridian, kFalseEasting);
}

// Index of a symbol by its two characters.
int RowOf(const SymbolTable& symbols, const std::string& symbol) {
  for (int row = 1; row <= SymbolTable::kLastIndex; ++row) {
    if (symbols.Row(row).starts_with(symbol)) return row;
  }
  return 0;
}

TEST(PositionField, DegreesAndMinutesAreCutNeverRounded) {
  EXPECT_EQ(PositionField(At(5395.283, -10.517), '/', '>'), "4830.15N/00805.20E>");
  EXPECT_EQ(PositionField(At(5395.275, -10.524), '/', '>'), "4830.14N/00805.19E>");
}

TEST(PositionField, TheFirstDigitOfTheLongitudeIsAlwaysZero) {
  EXPECT_EQ(PositionField({" 52:30.00", "  8:30.00"}, '/', '>'), "5230.00N/00830.00E>");
  EXPECT_EQ(PositionField({" 52:30.00", "123:30.00"}, '/', '>'), "5230.00N/02330.00E>");
  // West of 100 degrees the text has no place for the sign: it reads as east.
  EXPECT_EQ(PositionField({" 33:30.00", "123:30.00"}, '/', '>').substr(9), "02330.00E>");
  EXPECT_EQ(PositionField({" 52:30.00", "- 0:15.00"}, '/', '>'), "5230.00N/00015.00W>");
  EXPECT_EQ(PositionField({"-33:30.00", " 10:00.00"}, '/', '>'), "3330.00S/01000.00E>");
}

TEST(PositionField, TheOverlayTakesTheTenthPosition) {
  const SymbolTable symbols;
  const DegreeTexts texts{" 48:30.14", "  8:05.20"};
  const int digi = RowOf(symbols, "\\#");
  EXPECT_EQ(PositionFieldOfRow(texts, symbols, digi, "7"), "4830.14N\\70805.20E#");
  EXPECT_EQ(PositionFieldOfRow(texts, symbols, digi, ""), "4830.14N\\00805.20E#");
  // "No Symbol" has no "No.".
  EXPECT_EQ(PositionFieldOfRow(texts, symbols, 102, "7").substr(0, 18), "4830.14N\\00805.20E");
}

TEST(UtcStamp, TheDayRollsOverWithTheHours) {
  EXPECT_EQ(UtcStamp({2024, 6, 1, 1, 30, 0}, 2), "312330z");
  EXPECT_EQ(UtcStamp({2024, 3, 1, 0, 15, 0}, 1), "292315z");
  EXPECT_EQ(UtcStamp({2024, 5, 14, 14, 30, 59}, 2), "141230z");
  EXPECT_EQ(UtcStamp({2024, 12, 31, 23, 0, 0}, -3), "010200z");
}

// ---- Comments -------------------------------------------------------------------------------

TEST(CommentField, AFieldIsTrimmedCutAndSetOffByABlank) {
  const MemoryFiles files;
  EXPECT_EQ(CommentField("  Test ", files), " Test");
  EXPECT_EQ(CommentField("", files), "");
  EXPECT_EQ(CommentField("   ", files), "");
  EXPECT_EQ(CommentField(std::string(70, 'x'), files), " " + std::string(63, 'x'));
  EXPECT_EQ(CommentField("{", files), " {");
}

TEST(CommentField, TheLongestLineOfAFileCountsWithoutABlank) {
  MemoryFiles files;
  files.Contents["C:\\WX.TXT"] = "abc\r\n  longest \r\nlongline\r\n";
  EXPECT_EQ(CommentField("{C:\\WX.TXT}", files), "longline");
  files.Contents["C:\\WX.TXT"] = "AAAA\nBBBB\n";
  EXPECT_EQ(CommentField(" {C:\\WX.TXT} ", files), "AAAA");
  files.Contents["C:\\WX.TXT"] = "AB\tCD\n";
  EXPECT_EQ(CommentField("{C:\\WX.TXT}", files), "ABCD");
  // Letters beyond ASCII stay.
  files.Contents["C:\\WX.TXT"] = "f\xFCr 5 \xB0\n";
  EXPECT_EQ(CommentField("{C:\\WX.TXT}", files), "f\xFCr 5 \xB0");
  // Judged by its length before the control characters go.
  files.Contents["C:\\WX.TXT"] = "A\x01\x01\x01\x01\nBBBB\n";
  EXPECT_EQ(CommentField("{C:\\WX.TXT}", files), "A");
  files.Contents["C:\\WX.TXT"] = std::string(5000, 'y') + "\n";
  EXPECT_EQ(CommentField("{C:\\WX.TXT}", files), std::string(63, 'y'));
}

TEST(CommentField, OfAHugeFileTheFirstMegabytesCount) {
  MemoryFiles files;
  files.Contents["C:\\WX.TXT"] =
      "here\n" + std::string(5U << 20, '\n') + "longer, and too far behind\n";
  EXPECT_EQ(CommentField("{C:\\WX.TXT}", files), "here");
}

TEST(CommentField, AFileThatCanNotBeReadGivesNothing) {
  MemoryFiles files;
  EXPECT_EQ(CommentField("{C:\\WX.TXT}", files), "");
  EXPECT_EQ(CommentField("{}", files), "");
  files.Contents["C:\\WX.TXT"] = "locked";
  files.UnreadableEnding = "WX.TXT";
  EXPECT_EQ(CommentField("{C:\\WX.TXT}", files), "");
}

// ---- Info lines -----------------------------------------------------------------------------

std::vector<int> Rotation(std::array<int, 6> active, int times, int from = 0) {
  std::vector<int> lines;
  for (int index = from; times > 0; --times) {
    index = NextInfoLine(index, active);
    lines.push_back(index);
  }
  return lines;
}

TEST(NextInfoLine, ActiveLinesTakeTurns) {
  EXPECT_EQ(Rotation({1, 1, 1, 1, 1, 1}, 7), (std::vector<int>{1, 2, 3, 4, 5, 6, 1}));
  EXPECT_EQ(Rotation({0, 1, 0, 0, 1, 0}, 4), (std::vector<int>{2, 5, 2, 5}));
  EXPECT_EQ(Rotation({0, 0, 1, 1, 0, 0}, 3), (std::vector<int>{3, 4, 3}));
  EXPECT_EQ(Rotation({0, 0, 0, 0, 0, 1}, 2), (std::vector<int>{6, 6}));
  EXPECT_EQ(Rotation({1, 0, 0, 0, 0, 0}, 3), (std::vector<int>{1, 1, 1}));
}

TEST(NextInfoLine, WithNoneActiveTheNumberEndsOnSix) {
  EXPECT_EQ(Rotation({0, 0, 0, 0, 0, 0}, 2), (std::vector<int>{6, 6}));
  // A line 1 that is switched on then is the next one.
  EXPECT_EQ(NextInfoLine(6, {1, 0, 0, 0, 0, 0}), 1);
}

// ---- Object and retransmission --------------------------------------------------------------

TEST(ObjectReport, ItHoldsNameTimePositionAndABlank) {
  EXPECT_EQ(ObjectReport("ABC      ", "141230z", "4833.00N/01348.73Er", ""),
            ";ABC      *141230z4833.00N/01348.73Er ");
  EXPECT_EQ(ObjectReport("LONGNAMEXYZ", "141230z", "4833.00N/01348.73Er", "Test"),
            ";LONGNAMEXYZ*141230z4833.00N/01348.73Er Test");
}

StationRecord RecordOf(const std::string& date_and_time, const std::string& symbol) {
  StationRecord record;
  record.Put(1, 11, date_and_time);
  record.Put(14, 22, " 5378.123");
  record.Put(23, 31, "  412.345");
  record.Put(33, 41, "QX7GW");
  record.Put(43, 89, "TEST");
  record.Put(101, 103, symbol);
  return record;
}

TEST(RetransmittedReport, ItGivesTheRecordAsItStands) {
  const std::string report =
      RetransmittedReport(RecordOf("240114 1230", "/>"), " QX7KB-10 ", 20, At(5378.123, 412.345));
  EXPECT_EQ(report,
            "}QX7GW>ZEPRRE,QX7KB-10*:/141230z4833.00N/01348.73E> TEST" + std::string(43, ' '));
  EXPECT_EQ(report.size(), 99U);
}

TEST(RetransmittedReport, ARecordOfTodayCarriesItsTime) {
  EXPECT_TRUE(RetransmittedReport(RecordOf("240120 0005", "/>"), "QX7KB", 20, At(5378.123, 412.345))
                  .starts_with("}QX7GW>ZEPRRE,QX7KB*:/200005z4833.00N"));
}

TEST(RetransmittedReport, TheMarkOfAnEmergencyIsNoPartOfTheCall) {
  StationRecord record = RecordOf("240114 1230", "/>");
  record.Put(33, 41, "QX7GWA-15");
  record.Put(42, 42, "!");
  EXPECT_TRUE(RetransmittedReport(record, "QX7KB", 20, At(5378.123, 412.345))
                  .starts_with("}QX7GWA-15>ZEPRRE,QX7KB*:/"));
}

TEST(RetransmittedReport, ARecordOfAnEarlierMonthHasNoTime) {
  const DegreeTexts texts = At(5378.123, 412.345);
  EXPECT_TRUE(RetransmittedReport(RecordOf("240128 1230", "/>"), "QX7KB", 2, texts)
                  .starts_with("}QX7GW>ZEPRRE,QX7KB*:!4833.00N"));
  EXPECT_TRUE(RetransmittedReport(RecordOf("240102 1230", "/>"), "QX7KB", 28, texts)
                  .starts_with("}QX7GW>ZEPRRE,QX7KB*:/021230z4833.00N"));
}

TEST(RetransmittedReport, TheOverlayOfItsSymbolIsLost) {
  const std::string report =
      RetransmittedReport(RecordOf("240114 1230", "\\#7"), "QX7KB", 20, At(5378.123, 412.345));
  EXPECT_EQ(report.substr(report.find("4833")).substr(0, 19), "4833.00N\\01348.73E#");
}

}  // namespace
}  // namespace zepril
