// Files of vectors taken over into way and tracks, and what becomes of them when that fails.
#include "gps/vector_import.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "platform/native/native_files.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/size_limit.h"
#include "tests/doubles/temp_folder.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

// ---- Merges ---------------------------------------------------------------------------------

NextLine LinesOf(std::vector<std::string> lines) {
  return [lines = std::move(lines), at = std::size_t{0}](std::string& line) mutable {
    if (at == lines.size()) return false;
    line = lines[at++];
    return true;
  };
}

using Lines = std::vector<std::string>;

Lines TrackOf(Lines track, Lines vectors) {
  Lines merged;
  EXPECT_TRUE(MergeTrack(LinesOf(std::move(track)), LinesOf(std::move(vectors)),
                         [&merged](std::string_view line) {
                           merged.emplace_back(line);
                           return true;
                         }));
  return merged;
}

Lines WayOf(Lines way, const std::string& line) {
  Lines merged;
  EXPECT_TRUE(MergeWay(LinesOf(std::move(way)), line, [&merged](std::string_view put) {
    merged.emplace_back(put);
    return true;
  }));
  return merged;
}

// A point of 14 May 2024 with `place` in its columns.
std::string Point(const std::string& time, const std::string& place = "5378.123  412.345") {
  return "\xFE " + place + " 20240514 " + time;
}

TEST(MergeTrack, KeepsTheOrderOfDateAndTime) {
  EXPECT_EQ(TrackOf({Point("1200"), Point("1203")}, {Point("1201"), Point("1204")}),
            (Lines{Point("1200"), Point("1201"), Point("1203"), Point("1204")}));
}

// What somebody has written beside a point is nowhere else.
TEST(MergeTrack, ALineWithATextOfItsOwnStaysBesideTheVectors) {
  const std::string own = Point("1200") + " at the lake";
  const Lines merged = TrackOf({own, Point("1203")}, {Point("1200"), Point("1203")});
  EXPECT_EQ(merged, (Lines{own, Point("1200"), Point("1203")}));
  // Once more it changes nothing.
  EXPECT_EQ(TrackOf(merged, {Point("1200"), Point("1203")}), merged);
}

TEST(MergeTrack, OfTheSameMinuteTheVectorsLineIsTakenOnce) {
  const std::string fresh = Point("1201", "5379.000  413.000");
  EXPECT_EQ(TrackOf({Point("1200"), Point("1201"), Point("1202")}, {fresh}),
            (Lines{Point("1200"), fresh, Point("1202")}));
}

TEST(MergeTrack, TheRestOfEitherIsCopied) {
  EXPECT_EQ(TrackOf({}, {Point("1200"), Point("1201")}), (Lines{Point("1200"), Point("1201")}));
  EXPECT_EQ(TrackOf({Point("1200"), "x", ""}, {}), (Lines{Point("1200"), "x", ""}));
}

TEST(MergeTrack, BlankLinesOfTheVectorsAreLeftOutAndThoseOfTheTrackStay) {
  EXPECT_EQ(TrackOf({"", Point("1200")}, {"", Point("1201"), "   "}),
            (Lines{"", Point("1200"), Point("1201")}));
}

TEST(MergeTrack, LinesWithoutAWholeTimeAreNoRepeatsOfEachOther) {
  EXPECT_EQ(TrackOf({"\xFE 5378.1"}, {"\xFE 5379.2"}), (Lines{"\xFE 5378.1", "\xFE 5379.2"}));
}

TEST(MergeTrack, EndsWhereThereIsNoRoom) {
  int room = 1;
  EXPECT_FALSE(MergeTrack(LinesOf({Point("1200"), Point("1201")}), LinesOf({}),
                          [&room](std::string_view) { return room-- > 0; }));
}

TEST(MergeWay, PutsTheLineBeforeTheFirstLaterOne) {
  const std::string line = "5390  415 240514 1300 OUT_A  OUTDOOR_ACT TK20240514.VEC";
  const std::string before = "5378 412  240514 1230||01";
  const std::string same = "5378 412  240514 1300||01";
  const std::string later = "5378 412  240514 1301||01";
  EXPECT_EQ(WayOf({before, same, later}, line), (Lines{before, same, line, later}));
  EXPECT_EQ(WayOf({before}, line), (Lines{before, line}));
  EXPECT_EQ(WayOf({later, before}, line), (Lines{line, later, before}));
  EXPECT_EQ(WayOf({}, line), Lines{line});
}

TEST(MergeWay, ALineThatStandsThereIsNotRepeated) {
  const std::string line = "5390  415 240514 1300 OUT_A  OUTDOOR_ACT TK20240514.VEC";
  EXPECT_EQ(WayOf({line, "5378 412  240515 0800||"}, line),
            (Lines{line, "5378 412  240515 0800||"}));
}

// ---- Names and points -----------------------------------------------------------------------

TEST(TurningPoint, IsTheFarthestFromTheFirstAndTheLastOfEqualOnes) {
  TurningPoint turning;
  EXPECT_EQ(turning.Line(), "");
  turning.Take("");
  turning.Take(Point("1200", "5378.900  412.900"));
  EXPECT_EQ(turning.Line(), Point("1200", "5378.900  412.900"));
  turning.Take(Point("1201", "5381.000  416.000"));
  turning.Take(Point("1202", "5378.000  417.999"));
  turning.Take(Point("1203", "5378.000  413.000"));
  EXPECT_EQ(turning.Line(), Point("1202", "5378.000  417.999"));
  // Half a line would lie far away.
  turning.Take("\xFE 5");
  EXPECT_EQ(turning.Line(), Point("1202", "5378.000  417.999"));
}

TEST(TrackNameOfVectors, IsTheDayOrTheBeginningOfTheName) {
  EXPECT_EQ(TrackNameOfVectors("XX20240514.VEC"), "20240514");
  EXPECT_EQ(TrackNameOfVectors("xy20240514.vec"), "20240514");
  EXPECT_EQ(TrackNameOfVectors("X120240514.VEC"), "X1202405");
  EXPECT_EQ(TrackNameOfVectors("XX2024051.VEC"), "XX202405");
  EXPECT_EQ(TrackNameOfVectors("A.VEC"), "A");
}

// ---- Files ----------------------------------------------------------------------------------

constexpr const char* kProgram = "C:\\ZEPRIL";
const std::string kVectors = "C:\\ZEPRIL\\U33\\VEC\\XX20240514.VEC";
const std::string kTrack = "C:\\ZEPRIL\\U33\\TRK\\20240514.TRK";
const std::string kWay = "C:\\MAP\\U33\\QTHWAY.TXT";
const std::string kCopy = "C:\\MAP\\U33\\TK20240514.VEC";
const std::string kEnd = "\r\n";

class VectorImportTest : public ::testing::Test {
 protected:
  VectorImportTest() {
    disk.MakeFolder("C:\\ZEPRIL\\U33\\VEC");
    disk.MakeFolder("C:\\ZEPRIL\\U33\\TRK");
    disk.MakeFolder("C:\\MAP\\U33");
  }
  void Import() { ImportVectorFiles(disk, kProgram, clock, progress); }
  std::string Of(const std::string& path) const {
    return disk.ReadAll(path, std::size_t{64} << 20).value_or("(missing)");
  }
  void NavigationIsMissing() { ASSERT_EQ(::rmdir(disk.NativePath("C:\\MAP\\U33").c_str()), 0); }

  const std::string vectors = Point("1230") + kEnd + kEnd + Point("1300", "5390.500  415.250") +
                              kEnd + Point("1330", "5380.000  413.000") + kEnd;
  const std::string points = Point("1230") + kEnd + Point("1300", "5390.500  415.250") + kEnd +
                             Point("1330", "5380.000  413.000") + kEnd;
  const std::string outing = "5390  415 240514 1300 OUT_A  OUTDOOR_ACT TK20240514.VEC\r\n";
  TempFolder folder;
  NativeFiles disk{folder.Path()};
  // Years before the files: their age is not known, and they are taken.
  VirtualClock clock;
  RecordedProgress progress;
};

TEST_F(VectorImportTest, AnOutingBecomesACopyALineOfTheWayAndATrack) {
  disk.Write(kVectors, vectors);
  Import();
  EXPECT_EQ(Of(kCopy), vectors);
  EXPECT_EQ(Of(kWay), outing);
  EXPECT_EQ(Of(kTrack), points);
  EXPECT_FALSE(disk.Exists(kVectors));
}

TEST_F(VectorImportTest, WayAndTrackThatExistKeepTheirLines) {
  disk.Write(kWay, "5378 412  240514 1230||01\r\n5378 412  240515 0800||22");
  disk.Write(kTrack,
             Point("1229") + kEnd + Point("1230", "5000.000  400.000") + kEnd + Point("1400"));
  disk.Write(kVectors, vectors);
  Import();
  EXPECT_EQ(Of(kWay), "5378 412  240514 1230||01\r\n" + outing + "5378 412  240515 0800||22\r\n");
  EXPECT_EQ(Of(kTrack), Point("1229") + kEnd + points + Point("1400") + kEnd);
}

TEST_F(VectorImportTest, TwoOutingsOfADayShareATrackWithoutRepeatingAMinute) {
  disk.Write(kVectors, vectors);
  disk.Write("C:\\ZEPRIL\\U33\\VEC\\YY20240514.VEC", Point("1300") + kEnd + Point("1301") + kEnd);
  Import();
  EXPECT_EQ(Of(kTrack), Point("1230") + kEnd + Point("1300") + kEnd + Point("1301") + kEnd +
                            Point("1330", "5380.000  413.000") + kEnd);
  // The copies have one name: the older one stays beside.
  EXPECT_EQ(Of(kCopy), Point("1300") + kEnd + Point("1301") + kEnd);
  EXPECT_EQ(Of(kCopy + ".BAK"), vectors);
}

TEST_F(VectorImportTest, WithoutTheNavigationProgramOnlyTheTrackIsMerged) {
  NavigationIsMissing();
  disk.Write(kVectors, vectors);
  Import();
  EXPECT_EQ(Of(kTrack), points);
  EXPECT_FALSE(disk.Exists("C:\\MAP\\U33"));
  EXPECT_FALSE(disk.Exists(kVectors));
}

TEST_F(VectorImportTest, TheFolderOfTheUsualInstallationIsMadeWhenThereIsNone) {
  ImportVectorFiles(disk, "C:\\ELSEWHERE", clock, progress);
  EXPECT_TRUE(disk.Exists("C:\\ZEPRIL\\U33\\VEC"));
  EXPECT_FALSE(disk.Exists("C:\\ELSEWHERE"));
}

TEST_F(VectorImportTest, AnImportThatWasBrokenOffIsRepeatedWithoutRepeatingItsLines) {
  disk.Write(kVectors, vectors);
  Import();
  disk.Write(kVectors, vectors);
  Import();
  EXPECT_EQ(Of(kWay), outing);
  EXPECT_EQ(Of(kTrack), points);
  EXPECT_FALSE(disk.Exists(kCopy + ".BAK"));
}

TEST_F(VectorImportTest, AForeignFileOfThisNameIsLeftAlone) {
  for (const std::string& content :
       {std::string("<svg>\n") + Point("1230") + kEnd, std::string("\0\x01\x02", 3),
        std::string(1 << 20, 'x'), std::string("\xFE short\r\n")}) {
    disk.Write(kVectors, content);
    Import();
    EXPECT_EQ(Of(kVectors), content);
    EXPECT_FALSE(disk.Exists(kWay));
    EXPECT_FALSE(disk.Exists(kTrack));
  }
}

TEST_F(VectorImportTest, AFileOfBlankLinesGoesAndMakesNoTrack) {
  disk.Write(kVectors, "\r\n  \r\n");
  Import();
  EXPECT_FALSE(disk.Exists(kVectors));
  EXPECT_FALSE(disk.Exists(kWay));
  EXPECT_FALSE(disk.Exists(kTrack));
}

TEST_F(VectorImportTest, WhereTrackOrWayCantBeWrittenTheVectorsStay) {
  for (const std::string& taken : {kTrack, kWay, kCopy}) {
    disk.Write(kVectors, vectors);
    disk.Remove(kTrack);
    disk.Remove(kWay);
    disk.Remove(kCopy);
    // A folder stands in the way, with something in it.
    disk.MakeFolder(taken + "\\X");
    Import();
    EXPECT_EQ(Of(kVectors), vectors) << taken;
    EXPECT_TRUE(disk.Exists(taken + "\\X")) << taken;
    ::rmdir(disk.NativePath(taken + "\\X").c_str());
    ASSERT_EQ(::rmdir(disk.NativePath(taken).c_str()), 0) << taken;
    Import();
    EXPECT_EQ(Of(kTrack), points) << taken;
    EXPECT_EQ(Of(kWay), outing) << taken;
    EXPECT_FALSE(disk.Exists(kVectors)) << taken;
  }
}

TEST_F(VectorImportTest, OnAFullDiskEverythingStaysAsItWas) {
  const std::string old = Point("1229") + kEnd + Point("1400") + kEnd;
  disk.Write(kTrack, old);
  disk.Write(kVectors, vectors);
  {
    const SizeLimit limit(vectors.size() + 10);
    Import();
  }
  EXPECT_EQ(Of(kTrack), old);
  EXPECT_EQ(Of(kVectors), vectors);
  EXPECT_EQ(disk.List("C:\\ZEPRIL\\U33\\TRK", "*.*").size(), 1U);
}

TEST_F(VectorImportTest, AFileAThousandTimesTheUsualSizeIsMergedLineByLine) {
  // An outing of five hours has 300 points.
  std::string large;
  const int count = 300'000;
  large.reserve(std::size_t{37} * count);
  for (int point = 0; point < count; ++point)
    large += "\xFE 5378.123  412.345 " + WholeNumber(10000000 + point / 1440) + " " +
             ZeroPadded(point % 1440, 4) + kEnd;
  const std::string old = Point("1229") + kEnd;
  disk.Write(kVectors, large);
  disk.Write(kTrack, old);
  Import();
  EXPECT_FALSE(disk.Exists(kVectors));
  EXPECT_EQ(disk.Stamp(kTrack)->Size, static_cast<std::int64_t>(large.size() + old.size()));
  EXPECT_TRUE(disk.ReadRange(kTrack, static_cast<std::int64_t>(large.size()), 100) == old);
}

TEST_F(VectorImportTest, ATrackOfALineWithoutEndIsNotTouched) {
  const std::string endless(std::size_t{1} << 20, 'x');
  disk.Write(kTrack, endless);
  disk.Write(kVectors, vectors);
  Import();
  EXPECT_TRUE(Of(kTrack) == endless);
  EXPECT_EQ(Of(kVectors), vectors);
}

TEST_F(VectorImportTest, AtMostTwoHundredFilesAreTakenAtOnceOthersNotCounted) {
  MemoryFiles many;
  for (int file = 0; file < 205; ++file) {
    many.Contents["C:\\ZEPRIL\\U33\\VEC\\XX" + WholeNumber(20240000 + file) + ".VEC"] = vectors;
    many.Contents["C:\\ZEPRIL\\U33\\VEC\\AA" + WholeNumber(20240000 + file) + ".VEC"] = "<svg>\n";
  }
  ImportVectorFiles(many, kProgram, clock, progress);
  EXPECT_EQ(many.List("C:\\ZEPRIL\\U33\\VEC", "X*.VEC").size(), 5U);
  ImportVectorFiles(many, kProgram, clock, progress);
  EXPECT_TRUE(many.List("C:\\ZEPRIL\\U33\\VEC", "X*.VEC").empty());
  EXPECT_EQ(many.List("C:\\ZEPRIL\\U33\\VEC", "A*.VEC").size(), 205U);
}

// ---- Files that are being written, and an end meanwhile ---------------------------------------

class GrowingVectorsTest : public ::testing::Test {
 protected:
  GrowingVectorsTest() {
    disk.Contents[kVectors] = Point("1230") + kEnd;
    disk.Folders.insert("C:\\MAP\\U33");
  }
  void Import() { ImportVectorFiles(disk, kProgram, clock, progress); }

  MemoryFiles disk;
  VirtualClock clock;
  RecordedProgress progress;
};

TEST_F(GrowingVectorsTest, OneThatWasJustChangedOrIsEmptyIsLeftForTheNextTime) {
  disk.ModifiedNs[kVectors] = clock.FileTimeNs();
  clock.Run(59.0);
  Import();
  EXPECT_EQ(disk.Contents.size(), 1U);
  clock.Run(1.0);
  disk.Contents[kVectors] = "";
  Import();
  EXPECT_EQ(disk.Contents.size(), 1U);
  disk.Contents[kVectors] = Point("1230") + kEnd;
  Import();
  EXPECT_FALSE(disk.Exists(kVectors));
  EXPECT_EQ(disk.Of(kTrack), Point("1230") + kEnd);
}

TEST_F(GrowingVectorsTest, OneThatIsChangedMeanwhileStaysAndItsRestFollows) {
  int reads = 0;
  disk.OnReadRange = [&] {
    if (++reads == 3) disk.Append(kVectors, Point("1231") + kEnd);
  };
  Import();
  EXPECT_EQ(disk.Of(kVectors), Point("1230") + kEnd + Point("1231") + kEnd);
  disk.OnReadRange = nullptr;
  disk.Contents.erase(kCopy);
  Import();
  EXPECT_FALSE(disk.Exists(kVectors));
  EXPECT_EQ(disk.Of(kTrack), Point("1230") + kEnd + Point("1231") + kEnd);
}

TEST_F(GrowingVectorsTest, AnEndThatIsAskedForLeavesTheRestAsItIs) {
  std::string large;
  for (int point = 0; point < 20000; ++point)
    large += "\xFE 5378.123  412.345 " + WholeNumber(10000000 + point / 1440) + " " +
             ZeroPadded(point % 1440, 4) + kEnd;
  // Whenever it is asked for, nothing is half.
  int reads_until_end = 0;
  for (; disk.Exists(kVectors); ++reads_until_end) {
    disk.Contents = {{kVectors, large}, {kTrack, Point("1229") + kEnd}};
    clock.EndIsAsked = false;
    int reads = 0;
    disk.OnReadRange = [&] { clock.EndIsAsked = ++reads > reads_until_end; };
    Import();
    ASSERT_LT(reads_until_end, 1000);
    if (!disk.Exists(kVectors)) break;
    EXPECT_EQ(disk.Of(kTrack), Point("1229") + kEnd) << reads_until_end;
    EXPECT_TRUE(!disk.Exists(kCopy) || disk.Of(kCopy) == large) << reads_until_end;
    EXPECT_EQ(progress.Ended, reads_until_end + 1);
  }
  EXPECT_GE(reads_until_end, 10);
  EXPECT_EQ(disk.Of(kTrack), large + Point("1229") + kEnd);
}

TEST_F(GrowingVectorsTest, NoFileIsBegunBehindAnEnd) {
  disk.Contents["C:\\ZEPRIL\\U33\\VEC\\YY20240515.VEC"] = Point("1231") + kEnd;
  clock.EndIsAsked = true;
  Import();
  EXPECT_EQ(disk.Contents.size(), 2U);
}

TEST_F(GrowingVectorsTest, TellsHowFarItIs) {
  std::string large;
  while (large.size() < 1'000'000)
    large += Point("1230") + kEnd;
  disk.Contents[kVectors] = large;
  Import();
  EXPECT_EQ(progress.What, "Taking over XX20240514.VEC");
  EXPECT_EQ(progress.Ended, 1);
  EXPECT_GE(progress.Shares.size(), 30U);
  EXPECT_TRUE(std::is_sorted(progress.Shares.begin(), progress.Shares.end()));
  EXPECT_EQ(progress.Shares.front(), 0.0);
  EXPECT_GT(progress.Shares.back(), 0.9);
  EXPECT_LE(progress.Shares.back(), 1.0);
}

}  // namespace
}  // namespace zepril
