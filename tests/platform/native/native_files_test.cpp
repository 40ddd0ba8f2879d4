// Paths, reading and replacing files on a real disk; wildcards, code page, dates, the clock.
#include "platform/native/native_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/code_page.h"
#include "platform/native/system_clock.h"
#include "tests/doubles/size_limit.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

class NativeFilesTest : public ::testing::Test {
 protected:
  void Put(const std::string& name, const std::string& text) {
    std::ofstream(folder.Sub(name), std::ios::binary) << text;
  }
  TempFolder folder;
  NativeFiles files{folder.Path()};
};

TEST_F(NativeFilesTest, DriveLettersAndBothSeparatorsLeadToTheDriveFolder) {
  std::filesystem::create_directories(folder.Sub("ZEPRIL/U33"));
  Put("ZEPRIL/U33/a.txt", "x");
  EXPECT_EQ(files.ReadAll("C:\\ZEPRIL\\U33\\a.txt", 10), "x");
  EXPECT_EQ(files.ReadAll("c:/zepril\\u33/A.TXT", 10), "x");
  EXPECT_EQ(files.ReadAll(folder.Path() + "/zepril/u33/A.txt", 10), "x");
}

TEST_F(NativeFilesTest, AnExactNameIsPreferred) {
  Put("log.txt", "small");
  Put("LOG.TXT", "large");
  EXPECT_EQ(files.ReadAll("C:\\log.txt", 10), "small");
  EXPECT_EQ(files.ReadAll("C:\\LOG.TXT", 10), "large");
}

TEST_F(NativeFilesTest, WhatDoesNotExistIsCreatedAsWritten) {
  EXPECT_TRUE(files.MakeFolder("C:\\New\\Deep"));
  EXPECT_TRUE(files.Write("C:\\new\\deep\\File.Txt", "1"));
  EXPECT_TRUE(std::filesystem::exists(folder.Sub("New/Deep/File.Txt")));
}

TEST_F(NativeFilesTest, LinesEndInAnyOfThreeWays) {
  Put("l", "one\r\ntwo\nthree\rfour\r\n\r\nlast");
  std::vector<std::string> lines;
  EXPECT_TRUE(files.ReadLines("C:\\l", [&](std::string_view line) {
    lines.emplace_back(line);
    return true;
  }));
  EXPECT_EQ(lines, (std::vector<std::string>{"one", "two", "three", "four", "", "last"}));
}

TEST_F(NativeFilesTest, AGiantLineIsCutAndTheNextOneRead) {
  Put("l", std::string(200000, 'x') + "\r\nnext\r\n");
  std::vector<std::size_t> sizes;
  files.ReadLines("C:\\l", [&](std::string_view line) {
    sizes.push_back(line.size());
    return true;
  });
  EXPECT_EQ(sizes, (std::vector<std::size_t>{Files::kLongestLine, 4}));
}

TEST_F(NativeFilesTest, ReadAllRefusesWhatIsLongerThanItsLimit) {
  Put("f", "12345");
  EXPECT_EQ(files.ReadAll("C:\\f", 4), std::nullopt);
  EXPECT_EQ(files.ReadAll("C:\\f", 5), "12345");
  EXPECT_EQ(files.ReadRange("C:\\f", 2, 2), "34");
  EXPECT_EQ(files.ReadRange("C:\\f", 4, 9), "5");
  EXPECT_EQ(files.ReadAll("C:\\none", 5), std::nullopt);
}

TEST_F(NativeFilesTest, PipesAndFoldersAreNeitherReadNorWritten) {
  ASSERT_EQ(::mkfifo(folder.Sub("pipe").c_str(), 0600), 0);
  std::filesystem::create_directory(folder.Sub("dir"));
  EXPECT_EQ(files.ReadAll("C:\\pipe", 10), std::nullopt);
  EXPECT_FALSE(files.Append("C:\\pipe", "x"));
  EXPECT_FALSE(files.Write("C:\\dir", "x"));
  EXPECT_FALSE(files.Remove("C:\\dir"));
  EXPECT_FALSE(files.ReadLines("C:\\dir", [](std::string_view) { return true; }));
}

TEST_F(NativeFilesTest, ReplaceKeepsTheOldFileWhenItFails) {
  Put("f", "old");
  std::filesystem::create_directory(folder.Sub("f.new~"));
  EXPECT_FALSE(files.Replace("C:\\f", "new"));
  EXPECT_EQ(files.ReadAll("C:\\f", 10), "old");
  std::filesystem::remove(folder.Sub("f.new~"));
  EXPECT_TRUE(files.Replace("C:\\f", "new"));
  EXPECT_EQ(files.ReadAll("C:\\f", 10), "new");
  EXPECT_FALSE(std::filesystem::exists(folder.Sub("f.new~")));
}

TEST_F(NativeFilesTest, AFullDiskLeavesTheOldFileWhole) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no full device here";
  Put("f", "old");
  std::filesystem::create_symlink("/dev/full", folder.Sub("f.new~"));
  EXPECT_FALSE(files.Replace("C:\\f", "new"));
  EXPECT_EQ(files.ReadAll("C:\\f", 10), "old");
}

TEST_F(NativeFilesTest, AFileBehindASymbolicLinkIsReplacedAndTheLinkStays) {
  std::filesystem::create_directories(folder.Sub("elsewhere"));
  Put("elsewhere/real.ini", "old");
  std::filesystem::create_symlink("elsewhere/real.ini", folder.Sub("ZEPRIL.INI"));
  std::filesystem::create_symlink(folder.Sub("ZEPRIL.INI"), folder.Sub("second.ini"));
  for (const char* name : {"C:\\ZEPRIL.INI", "C:\\second.ini"}) {
    EXPECT_TRUE(files.Replace(name, std::string("new ") + name));
    EXPECT_EQ(files.ReadAll("C:\\elsewhere\\real.ini", 100), std::string("new ") + name);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Sub("ZEPRIL.INI")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Sub("second.ini")));
  }
  // One that leads nowhere yet, and one that leads to itself.
  std::filesystem::create_symlink("elsewhere/new.ini", folder.Sub("dangling.ini"));
  EXPECT_TRUE(files.Replace("C:\\dangling.ini", "first"));
  EXPECT_EQ(files.ReadAll("C:\\elsewhere\\new.ini", 100), "first");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Sub("dangling.ini")));
  std::filesystem::create_symlink("circle.ini", folder.Sub("circle.ini"));
  EXPECT_FALSE(files.Replace("C:\\circle.ini", "x"));
}

TEST_F(NativeFilesTest, ReplaceKeepingLeavesTheOldFileUnderItsOtherName) {
  Put("H.TXT", "old");
  EXPECT_TRUE(files.ReplaceKeeping("C:\\H.TXT", "short", "C:\\H.TXT.BAK"));
  EXPECT_EQ(files.ReadAll("C:\\H.TXT", 100), "short");
  EXPECT_EQ(files.ReadAll("C:\\H.TXT.BAK", 100), "old");
  // They are two files from now on.
  EXPECT_TRUE(files.Append("C:\\H.TXT", "er"));
  EXPECT_EQ(files.ReadAll("C:\\H.TXT.BAK", 100), "old");
  // No copy is written over.
  EXPECT_FALSE(files.ReplaceKeeping("C:\\H.TXT", "shorter still", "C:\\H.TXT.BAK"));
  EXPECT_EQ(files.Trouble(), FileTrouble::NameTaken);
  EXPECT_EQ(files.ReadAll("C:\\H.TXT", 100), "shorter");
  EXPECT_EQ(files.ReadAll("C:\\H.TXT.BAK", 100), "old");
  EXPECT_FALSE(files.ReplaceKeeping("C:\\NONE.TXT", "x", "C:\\NONE.TXT.BAK"));
  EXPECT_EQ(files.List("C:\\", "*").size(), 2u);
}

TEST_F(NativeFilesTest, WhereALineFindsNoRoomNothingOfItStays) {
  Put("log.txt", std::string(995, 'x') + "\r\n");
  {
    const SizeLimit limit(1000);
    EXPECT_FALSE(files.Append("C:\\log.txt", "a new line\r\n"));
    EXPECT_EQ(files.Trouble(), FileTrouble::TooLarge);
    EXPECT_FALSE(files.ReplaceKeeping("C:\\log.txt", std::string(2000, 'y'), "C:\\log.txt.BAK"));
  }
  EXPECT_EQ(files.ReadAll("C:\\log.txt", 2000), std::string(995, 'x') + "\r\n");
  EXPECT_EQ(files.List("C:\\", "*").size(), 1u);
}

TEST_F(NativeFilesTest, ATextMayComeInPieces) {
  Put("f", "old");
  EXPECT_TRUE(files.ReplaceInPieces(
      "C:\\f", [](const Files::PieceTaker& take) { return take("one ") && take("two"); }));
  EXPECT_EQ(files.ReadAll("C:\\f", 10), "one two");
}

TEST_F(NativeFilesTest, PiecesThatEndEarlyOrFindNoRoomLeaveTheOldFile) {
  Put("f", "old");
  EXPECT_FALSE(files.ReplaceInPieces("C:\\f", [](const Files::PieceTaker& take) {
    EXPECT_TRUE(take("half"));
    return false;
  }));
  const SizeLimit limit(1000);
  EXPECT_FALSE(files.ReplaceInPieces("C:\\f", [](const Files::PieceTaker& take) {
    return take(std::string(900, 'x')) && take(std::string(200, 'x'));
  }));
  EXPECT_EQ(files.ReadAll("C:\\f", 10), "old");
  EXPECT_EQ(files.List("C:\\", "*").size(), 1U);
}

TEST_F(NativeFilesTest, TroubleIsToldByItsKind) {
  EXPECT_FALSE(files.Append("C:\\no\\such\\folder.txt", "x"));
  EXPECT_EQ(files.Trouble(), FileTrouble::FolderMissing);
  std::filesystem::create_directories(folder.Sub("folder"));
  EXPECT_FALSE(files.ReadAll("C:\\folder", 10).has_value());
  EXPECT_EQ(files.Trouble(), FileTrouble::NoOrdinaryFile);
}

TEST_F(NativeFilesTest, RenameNeverOverwritesAndMayChangeTheCase) {
  Put("12345678.bmp", "a");
  EXPECT_TRUE(files.Rename("C:\\12345678.bmp", "C:\\12345678.BMP"));
  EXPECT_TRUE(std::filesystem::exists(folder.Sub("12345678.BMP")));
  Put("12345678.jpg", "b");
  EXPECT_FALSE(files.Rename("C:\\12345678.jpg", "C:\\12345678.BMP"));
  EXPECT_EQ(files.ReadAll("C:\\12345678.jpg", 9), "b");
  EXPECT_EQ(files.ReadAll("C:\\12345678.BMP", 9), "a");
}

TEST_F(NativeFilesTest, ListsAreSortedByFoldedName) {
  for (const char* name : {"b.TXT", "A.txt", "c.dir", "noext"})
    Put(name, "");
  std::filesystem::create_directory(folder.Sub("M0050"));
  std::vector<std::string> names;
  for (const FolderEntry& entry : files.List("C:\\", "*.*"))
    names.push_back(entry.Name);
  EXPECT_EQ(names, (std::vector<std::string>{"A.txt", "b.TXT", "c.dir", "M0050", "noext"}));
  EXPECT_EQ(files.List("C:\\", "*.txt").size(), 2U);
  EXPECT_TRUE(files.List("C:\\", "m*.*").at(0).IsFolder);
  EXPECT_TRUE(files.List("C:\\missing", "*.*").empty());
}

TEST_F(NativeFilesTest, NamesKeepTheirCodePage) {
  ASSERT_TRUE(files.Write("C:\\K\xF6ln.txt", "1"));
  EXPECT_TRUE(std::filesystem::exists(folder.Sub("K\xC3\xB6ln.txt")));
  EXPECT_EQ(files.List("C:\\", "k\xD6ln.*").at(0).Name, "K\xF6ln.txt");
}

TEST_F(NativeFilesTest, AFolderWithoutRightsIsEmptyAndTakesNothing) {
  if (::geteuid() == 0) GTEST_SKIP() << "rights mean nothing to the superuser";
  std::filesystem::create_directory(folder.Sub("shut"));
  std::filesystem::permissions(folder.Sub("shut"), std::filesystem::perms::none);
  EXPECT_FALSE(files.Append("C:\\shut\\x", "1"));
  EXPECT_TRUE(files.List("C:\\shut", "*").empty());
}

TEST(Wildcards, FollowTheWindowsRules) {
  EXPECT_TRUE(MatchesWildcard("README", "*.*"));
  EXPECT_TRUE(MatchesWildcard("MREADME", "m*.*"));
  EXPECT_FALSE(MatchesWildcard("README", "M*.*"));
  EXPECT_TRUE(MatchesWildcard("12345678.bmp", "????????.???"));
  EXPECT_FALSE(MatchesWildcard("1234567.bmp", "????????.???"));
  EXPECT_FALSE(MatchesWildcard("12345678.bm", "????????.???"));
  EXPECT_TRUE(MatchesWildcard("a.b.txt", "*.txt"));
  EXPECT_TRUE(MatchesWildcard("abcabc", "a*c"));
  EXPECT_FALSE(MatchesWildcard("abcabd", "a*c"));
  EXPECT_TRUE(MatchesWildcard("", "*"));
}

TEST(CodePage, EveryByteSurvives) {
  std::string all;
  for (int code = 0; code < 256; ++code)
    all += static_cast<char>(code);
  EXPECT_EQ(CodePageFromUtf8(Utf8FromCodePage(all)), all);
  EXPECT_EQ(Utf8FromCodePage("\xFE"), "\xC3\xBE");
  EXPECT_EQ(Utf8FromCodePage("\x96"), "\xE2\x80\x93");
  EXPECT_EQ(CodePageFromUtf8("\xF0\x9F\x98\x80"), "?");
  EXPECT_EQ(CodePageFromUtf8("a\xC3"), "a?");
  EXPECT_FALSE(FitsCodePage("\xE6\xBC\xA2"));
}

TEST(Dates, RollOver) {
  EXPECT_EQ(DaysOfDate(1970, 1, 1), 0);
  EXPECT_EQ(DaysOfDate(2024, 3, 1) - DaysOfDate(2024, 2, 28), 2);
  EXPECT_EQ(DaysOfDate(2024, 3, 0), DaysOfDate(2024, 2, 29));
  EXPECT_EQ(DaysOfDate(2023, 13, 1), DaysOfDate(2024, 1, 1));
  for (std::int64_t seconds : {0LL, 1705322040LL, -1LL, 4102444800LL, 951782400LL}) {
    EXPECT_EQ(SecondsOf(TimeOfSeconds(seconds)), seconds);
  }
  const LocalTime leap = TimeOfSeconds(SecondsOf({2024, 2, 29, 23, 59, 58}) + 2);
  EXPECT_EQ(leap.Month, 3);
  EXPECT_EQ(leap.Day, 1);
}

TEST(SystemClock, MeasuresASpeed) {
  SystemClock clock;
  EXPECT_GT(clock.LoopsPerSecond(), 10000);
  EXPECT_GE(clock.SecondsSinceMidnight(), 0.0);
  EXPECT_LT(clock.SecondsSinceMidnight(), 86401.0);
}

}  // namespace
}  // namespace zepril
