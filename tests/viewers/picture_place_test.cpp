// The place that a picture's path tells.
#include "viewers/picture_place.h"

#include <gtest/gtest.h>

#include "core/text_fields.h"

namespace zepril {
namespace {

std::string StartOf(const std::string& name) {
  const auto start = PictureStartOfPath("C:\\ZEPRIL\\U33\\UTMPICS\\" + name);
  return start ? ShortNumber(start->UTN) + " " + ShortNumber(start->UTE) : std::string("none");
}

TEST(PictureStart, IsTheMiddleOfTheKilometreInTheName) {
  EXPECT_EQ(StartOf("62000400.BMP"), "6200.499 400.499");
  EXPECT_EQ(StartOf("62000400.jpeg"), "6200.499 400.499");
}

TEST(PictureStart, ALetterInFrontTellsNegativeThousands) {
  EXPECT_EQ(StartOf("A1230412.BMP"), "-1122.501 412.499");
  EXPECT_EQ(StartOf("@1230412.BMP"), "-122.501 412.499");
  EXPECT_EQ(StartOf("6200b001.bmp"), "6200.499 -2000.501");
}

TEST(PictureStart, MissingGroupsCountAsNought) {
  EXPECT_EQ(StartOf("62.BMP"), "62.499 .499");
  EXPECT_EQ(StartOf(".BMP"), ".499 .499");
}

TEST(PictureStart, WhatStandsBehindTheGroupsIsPassedOver) {
  EXPECT_EQ(StartOf("62000400 harbour.v2.BMP"), "6200.499 400.499");
}

TEST(PictureStart, NeedsAFolderAndAnExtensionBehindIt) {
  EXPECT_FALSE(PictureStartOfPath("62000400.BMP"));
  EXPECT_FALSE(PictureStartOfPath("C:\\U33\\62000400"));
  EXPECT_FALSE(PictureStartOfPath("C:\\U33.NEW\\62000400"));
  EXPECT_FALSE(PictureStartOfPath(""));
}

}  // namespace
}  // namespace zepril
