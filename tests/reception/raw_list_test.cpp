// Lines of the raw list: split, held, dropped.
#include "reception/raw_list.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(RawList, ControlCharactersUpToCode27AreNotStored) {
  ReceptionState reception;
  AddRawText(
      "AB\x1B"
      "C\x1C\r\n",
      reception);
  EXPECT_EQ(reception.RawLines[0], "ABC\x1C");
  EXPECT_EQ(reception.RawLineCount, 1);
}

TEST(RawList, LineGrowsOverSeveralTexts) {
  ReceptionState reception;
  AddRawText("AB", reception);
  AddRawText("CD\nE", reception);
  EXPECT_EQ(reception.RawLines[0], "ABCD");
  EXPECT_EQ(reception.RawLines[1], "E");
}

TEST(RawList, OldestLineGoesBeyondFourHundred) {
  ReceptionState reception;
  for (int i = 0; i < 400; ++i)
    AddRawText("line\n", reception);
  EXPECT_EQ(reception.RawLineCount, 400);
  reception.RawLines[0] = "oldest";
  reception.RawLines[1] = "second";
  AddRawText("newest\n", reception);
  EXPECT_EQ(reception.RawLineCount, 400);
  EXPECT_EQ(reception.RawLines[0], "second");
  EXPECT_EQ(reception.RawLines[399], "newest");
  EXPECT_EQ(reception.RawLines[400], "");
}

TEST(RawList, LineWithoutEndDoesNotGrowForEver) {
  ReceptionState reception;
  const std::string block(60000, 'x');
  for (int i = 0; i < 3; ++i)
    AddRawText(block, reception);
  EXPECT_EQ(reception.RawLines[0].size(), 65536u);
}

TEST(RawList, ControlShowsAllLines) {
  ReceptionState reception;
  ListBox list;
  AddRawText("A\nB\nC", reception);
  ShowRawLines(reception, list);
  EXPECT_EQ(list.Items, (std::vector<std::string>{"A", "B", "C"}));
  EXPECT_EQ(list.Revision, 1u);
}

}  // namespace
}  // namespace zepril
