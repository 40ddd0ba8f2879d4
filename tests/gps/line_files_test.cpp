// Lines added to half a line, and files read line by line across blocks.
#include "gps/line_files.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/doubles/memory_files.h"

namespace zepril {
namespace {

struct Lines {
  std::vector<std::string> All;
  bool Failed = false;
};

Lines LinesIn(const MemoryFiles& disk, const std::string& path) {
  LineStream stream(disk, path);
  Lines lines;
  std::string line;
  while (stream.Next(line))
    lines.All.push_back(line);
  lines.Failed = stream.Failed();
  return lines;
}

Lines LinesOf(const std::string& text) {
  MemoryFiles disk;
  disk.Contents["F"] = text;
  return LinesIn(disk, "F");
}

TEST(LineStream, LinesEndInAnyOfThreeWays) {
  EXPECT_EQ(LinesOf("one\r\ntwo\nthree\r\r\n\r\nlast").All,
            (std::vector<std::string>{"one", "two", "three", "", "", "last"}));
  EXPECT_TRUE(LinesOf("").All.empty());
  EXPECT_EQ(LinesOf("a\r\n").All, std::vector<std::string>{"a"});
}

TEST(LineStream, ABlockMayEndAnywhere) {
  constexpr std::size_t kBlock = 256 * 1024;
  for (std::size_t before = kBlock - 3; before <= kBlock + 1; ++before) {
    std::string text;
    while (text.size() + 64 <= before)
      text += std::string(63, 'x') + "\n";
    text += std::string(before - text.size(), 'y');
    const Lines lines = LinesOf(text + "\r\nlast");
    ASSERT_EQ(lines.All.size(), kBlock / 64 + (before >= kBlock ? 2 : 1)) << before;
    EXPECT_EQ(lines.All.back(), "last");
  }
}

TEST(LineStream, ALineThatIsTooLongIsAFailureAndNotCut) {
  const std::string longest(LineStream::kLongestLine, 'x');
  EXPECT_EQ(LinesOf(longest + "\na").All, (std::vector<std::string>{longest, "a"}));
  const Lines lines = LinesOf(longest + "x\na");
  EXPECT_TRUE(lines.Failed);
  EXPECT_TRUE(lines.All.empty());
}

TEST(LineStream, AFileThatCantBeReadIsAFailure) {
  EXPECT_TRUE(LinesIn(MemoryFiles(), "F").Failed);
}

TEST(AppendOnNewLine, EndsHalfALineFirst) {
  MemoryFiles disk;
  EXPECT_TRUE(AppendOnNewLine(disk, "F", "a\r\n"));
  EXPECT_TRUE(AppendOnNewLine(disk, "F", "b"));
  EXPECT_TRUE(AppendOnNewLine(disk, "F", "c\n"));
  EXPECT_TRUE(AppendOnNewLine(disk, "F", "d"));
  EXPECT_EQ(disk.Of("F"), "a\r\nb\r\nc\nd");
}

}  // namespace
}  // namespace zepril
