// Names of point files, and files of any length, line form and end.
#include "core/point_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorded_progress.h"

namespace zepril {
namespace {

using testing::ElementsAre;

TEST(PlainFileName, StaysInItsFolderOnEverySystem) {
  for (const char* name : {"20240514", "2024 HUTS", "A.B", "\xC4RGER", "A-B_C(1)"})
    EXPECT_TRUE(IsPlainFileName(name)) << name;
  for (const char* name :
       {"",   ".",     "..",  "..\\ZEPRIL", "../X",    "A..B", "A\\B", "A/B", "C:",   "A*",
        "A?", "\"A\"", "<A>", "A|B",        ".HIDDEN", "A.",   " A",   "A ",  "A\nB", "A\x7F"}) {
    EXPECT_FALSE(IsPlainFileName(name)) << name;
  }
  EXPECT_FALSE(IsPlainFileName(std::string("A\0B", 3)));
  EXPECT_TRUE(IsPlainFileName(std::string(100, 'A')));
  EXPECT_FALSE(IsPlainFileName(std::string(101, 'A')));
}

TEST(PointFileNames, AreUpperCasedSortedAndWithoutExtension) {
  MemoryFiles disk;
  for (const char* name : {"b.trk", "A.TRK", "b.TRK", ".TRK", "C.TXT", "D.TRK.BAK", "A:B.TRK"})
    disk.Contents[std::string("F\\") + name] = "";
  disk.Contents["F\\SUB\\E.TRK"] = "";
  EXPECT_THAT(PointFileNames(disk, "F", ".TRK"), ElementsAre("A", "B"));
  EXPECT_THAT(PointFileNames(disk, "G", ".TRK"), ElementsAre());
}

TEST(PointFileNames, AreFoundWithoutRegardToCase) {
  EXPECT_EQ(IndexOfName({"A", "HUTS"}, "huts"), 1);
  EXPECT_EQ(IndexOfName({"A", "HUTS"}, ""), -1);
}

TEST(PointFile, IsReadLineByLine) {
  MemoryFiles disk;
  RecordedProgress progress;
  disk.Contents["F"] = "\xFE 5378.123  412.345  HUT\r\n\r\nrubbish\n";
  const auto read = ReadPointFile(disk, "F", PointList(10, 100), 10, progress, "Reading");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Points.Count(), 3);
  EXPECT_EQ(read->Points.Name(1), "HUT");
  EXPECT_FALSE(read->Cut);
}

TEST(PointFile, TellsWhenLinesOrEndsOfLinesWereLeftOut) {
  MemoryFiles disk;
  RecordedProgress progress;
  disk.Contents["F"] = "a\r\nb\r\nc\r\n";
  const PointList like(10, 5);
  EXPECT_FALSE(ReadPointFile(disk, "F", like, 3, progress, "")->Cut);
  const auto read = ReadPointFile(disk, "F", like, 2, progress, "");
  EXPECT_TRUE(read->Cut);
  EXPECT_EQ(read->Points.Count(), 2);
  disk.Contents["F"] = "12345\r\n";
  EXPECT_FALSE(ReadPointFile(disk, "F", like, 3, progress, "")->Cut);
  disk.Contents["F"] = "123456\r\n";
  EXPECT_TRUE(ReadPointFile(disk, "F", like, 3, progress, "")->Cut);
}

TEST(PointFile, ReportsItsShareByBytesAndItsEnd) {
  MemoryFiles disk;
  RecordedProgress progress;
  std::string& text = disk.Contents["F"];
  for (int i = 0; i < 4000; ++i)
    text += "0123456789\r\n";
  ASSERT_TRUE(ReadPointFile(disk, "F", PointList(10000, 100), 10000, progress, "Reading F"));
  EXPECT_THAT(progress.Shares, ElementsAre(0.0, 0.25, 0.5, 0.75, 1.0));
  EXPECT_EQ(progress.What, "Reading F");
  EXPECT_EQ(progress.Ended, 1);
}

TEST(PointFile, LongLinesAreReportedToo) {
  MemoryFiles disk;
  RecordedProgress progress;
  std::string& text = disk.Contents["F"];
  for (int i = 0; i < 64; ++i)
    text += std::string(65000, 'x') + "\r\n";
  const auto read = ReadPointFile(disk, "F", PointList(10000, 100), 10000, progress, "");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Points.Length(64), 100u);
  EXPECT_GE(progress.Shares.size(), 4u);
}

TEST(PointFile, ThatCannotBeReadIsNothingAndTheWorkHasEnded) {
  MemoryFiles disk;
  RecordedProgress progress;
  EXPECT_FALSE(ReadPointFile(disk, "F", PointList(10, 100), 10, progress, ""));
  EXPECT_EQ(progress.Ended, 1);
}

// Reports a size that no list could hold.
class HugeFile final : public Files {
 public:
  explicit HugeFile(std::int64_t size) : size_(size) {}
  std::optional<std::string> ReadAll(const std::string&, std::size_t) const override { return {}; }
  std::optional<std::string> ReadRange(const std::string&, std::int64_t,
                                       std::size_t) const override {
    return {};
  }
  bool ReadLines(const std::string&, const LineReader& line) const override {
    const std::string text(kLongestLine, 'x');
    while (line(text))
      ++LinesRead;
    return true;
  }
  bool Append(const std::string&, std::string_view) override { return false; }
  bool Write(const std::string&, std::string_view) override { return false; }
  bool Replace(const std::string&, std::string_view) override { return false; }
  bool ReplaceKeeping(const std::string&, std::string_view, const std::string&) override {
    return false;
  }
  bool Remove(const std::string&) override { return false; }
  bool Rename(const std::string&, const std::string&) override { return false; }
  bool MakeFolder(const std::string&) override { return false; }
  std::string NativePath(const std::string& path) const override { return path; }
  std::optional<FileStamp> Stamp(const std::string&) const override {
    FileStamp stamp;
    stamp.Size = size_;
    return stamp;
  }
  std::vector<FolderEntry> List(const std::string&, const std::string&) const override {
    return {};
  }
  mutable int LinesRead = 0;

 private:
  std::int64_t size_;
};

TEST(PointFile, OfEndlessLongLinesEndsWithTheListAndItsMemoryIsBounded) {
  HugeFile disk(kLargestPointFile);
  RecordedProgress progress;
  const auto read = ReadPointFile(disk, "F", PointList(2000, 64), 2000, progress, "");
  ASSERT_TRUE(read);
  EXPECT_EQ(read->Points.Count(), 2000);
  EXPECT_EQ(disk.LinesRead, 2000);
  EXPECT_TRUE(read->Cut);
}

TEST(PointFile, LargerThanAnyListIsNotBegun) {
  HugeFile disk(kLargestPointFile + 1);
  RecordedProgress progress;
  EXPECT_FALSE(ReadPointFile(disk, "F", PointList(10, 100), 10, progress, ""));
  EXPECT_EQ(disk.LinesRead, 0);
}

}  // namespace
}  // namespace zepril
