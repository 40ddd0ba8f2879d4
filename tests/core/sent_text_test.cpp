// Control characters and empty path elements on their way out.
#include "core/sent_text.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(SentText, ControlCharactersAreBlanks) {
  EXPECT_EQ(WithoutControlCharacters("A\x1B\x03\r\n\x7FZ"), "A     Z");
  EXPECT_EQ(WithoutControlCharacters("\xE4 = {x}"), "\xE4 = {x}");
}

TEST(SentText, EmptyElementsOfAPathAreLeftOut) {
  EXPECT_EQ(WithoutEmptyElements("A,B,"), "A,B");
  EXPECT_EQ(WithoutEmptyElements(",A,,  ,\x1B ,B"), "A,B");
  EXPECT_EQ(WithoutEmptyElements("A, B"), "A, B");
  EXPECT_EQ(WithoutEmptyElements(",,"), "");
  EXPECT_EQ(WithoutEmptyElements(""), "");
}

}  // namespace
}  // namespace zepril
