// Lines of `WINDOW.TXT`: read, refused, replaced, taken out, left alone.
#include "config/window_file.h"

#include <gtest/gtest.h>

#include "tests/doubles/memory_files.h"

namespace zepril {
namespace {

constexpr const char* kPath = "C:\\Z\\WINDOW.TXT";

WindowValues Read(const std::string& text) {
  MemoryFiles files;
  files.Write(kPath, text);
  return ReadWindowFile(files, "C:\\Z");
}

TEST(WindowFile, LinesAreReadByTheirKeys) {
  const WindowValues values = Read("MAIN=1,2,3,4\r\n labels = 5 \r\nDRAWER=\r\n");
  EXPECT_EQ(values, (WindowValues{{"MAIN", "1,2,3,4"}, {"LABELS", "5"}, {"DRAWER", ""}}));
}

TEST(WindowFile, TheLastLineOfAKeyCounts) {
  EXPECT_EQ(Read("LABELS=1\r\nLABELS=4\r\n").at("LABELS"), "4");
}

TEST(WindowFile, AMissingFileHasNoValues) {
  MemoryFiles files;
  EXPECT_TRUE(ReadWindowFile(files, "C:\\Z").empty());
}

TEST(WindowFile, WhatIsNoLineIsPassedOver) {
  EXPECT_TRUE(Read("nonsense\r\n=5\r\nA\x01=5\r\n" + std::string(300, 'A') + "=1\r\n").empty());
  std::string many;
  for (int line = 0; line < 5000; ++line)
    many += "K" + std::to_string(line) + "=1\n";
  EXPECT_LE(Read(many).size(), static_cast<std::size_t>(kMostWindowLines));
}

TEST(WindowFile, WritingReplacesItsLinesAndLeavesTheOthers) {
  MemoryFiles files;
  files.Write(kPath, "# mine\r\nSETCLOCK=1\r\nlabels=1\r\nMAIN=1,2,3,4\r\nLABELS=2\r\n");
  ASSERT_TRUE(WriteWindowFile(files, "C:\\Z", {{"LABELS", "5"}, {"MAIN", ""}, {"GRID", "1"}}));
  EXPECT_EQ(*files.ReadAll(kPath, 1000), "# mine\r\nSETCLOCK=1\r\nLABELS=5\r\nGRID=1\r\n");
}

TEST(WindowFile, AValueNeverMakesASecondLine) {
  MemoryFiles files;
  ASSERT_TRUE(WriteWindowFile(files, "C:\\Z", {{"A", "1\r\nB=2"}, {"C", std::string(500, 'x')}}));
  EXPECT_EQ(*files.ReadAll(kPath, 1000), "A=1  B=2\r\n");
}

TEST(WindowFile, NumbersOutsideTheirBoundsAreNone) {
  const WindowValues values =
      Read("A=5\r\nB=-5\r\nC=5x\r\nD=\r\nE=99999999999999999999\r\nF=1e3\r\nG=2.5\r\n");
  EXPECT_EQ(WindowNumber(values, "A", 0, 6), 5);
  EXPECT_EQ(WindowNumber(values, "A", 0, 4), std::nullopt);
  EXPECT_EQ(WindowNumber(values, "B", -9, 9), -5);
  for (const char* key : {"C", "D", "E", "F", "G", "MISSING"}) {
    EXPECT_EQ(WindowNumber(values, key, 0, 1000), std::nullopt) << key;
  }
}

TEST(WindowFile, ListsOfNumbersAreWholeOrNone) {
  const WindowValues values =
      Read("A=1, -2,3,4\r\nB=1,2,3\r\nC=1,2,3,4,5\r\nD=1,,3,4\r\nE=1,2,3,900000\r\n");
  EXPECT_EQ(WindowNumbers(values, "A", 4), (std::vector<int>{1, -2, 3, 4}));
  for (const char* key : {"B", "C", "D", "E", "F"}) {
    EXPECT_EQ(WindowNumbers(values, key, 4), std::nullopt) << key;
  }
}

}  // namespace
}  // namespace zepril
