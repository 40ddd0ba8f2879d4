// Bitmaps of every depth and order of rows, cut and damaged ones, stretched pixels.
#include "map/bmp_reader.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/map/bmp_maker.h"

namespace zepril {
namespace {

using namespace std::string_literals;

const std::vector<std::uint32_t> kTwoColours{0x102030, 0x405060};

TEST(ReadBmp, OneBitRowsComeFromTheBottom) {
  const auto bitmap = ReadBmp(BmpMaker{3, 2, 1, kTwoColours, "\x40\0\0\0\xA0\0\0\0"s}.Bytes());
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap->Indexed, (std::vector<std::uint8_t>{1, 0, 1, 0, 1, 0}));
  EXPECT_EQ(bitmap->Palette[1], 0xFF405060u);
}

TEST(ReadBmp, ANegativeHeightMeansRowsFromTheTop) {
  const auto bitmap = ReadBmp(BmpMaker{3, -2, 1, kTwoColours, "\x40\0\0\0\xA0\0\0\0"s}.Bytes());
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap->Height, 2);
  EXPECT_EQ(bitmap->Indexed, (std::vector<std::uint8_t>{0, 1, 0, 1, 0, 1}));
}

TEST(ReadBmp, FourBitPixelsOfAnOddWidth) {
  const auto bitmap = ReadBmp(BmpMaker{3, 1, 4, TestPalette(16), "\x12\x30\0\0"s}.Bytes());
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap->Indexed, (std::vector<std::uint8_t>{1, 2, 3}));
}

TEST(ReadBmp, EightBitAndTrueColour) {
  const auto indexed = ReadBmp(BmpMaker{2, 1, 8, TestPalette(256), "\x07\xFF\0\0"s}.Bytes());
  ASSERT_TRUE(indexed);
  EXPECT_EQ(indexed->Indexed, (std::vector<std::uint8_t>{7, 255}));
  const auto colours = ReadBmp(BmpMaker{1, 1, 24, {}, "\x01\x02\x03\0"s}.Bytes());
  ASSERT_TRUE(colours);
  EXPECT_FALSE(colours->HasPalette());
  EXPECT_EQ(colours->Pixels, (std::vector<std::uint32_t>{0xFF030201}));
  const auto wide = ReadBmp(BmpMaker{1, 1, 32, {}, "\x01\x02\x03\x77"s}.Bytes());
  ASSERT_TRUE(wide);
  EXPECT_EQ(wide->Pixels, (std::vector<std::uint32_t>{0xFF030201}));
}

TEST(ReadBmp, TilesHaveTheirFixedLengths) {
  EXPECT_EQ(FourBitTile().size(), 500118u);
  EXPECT_EQ(EightBitTile().size(), 1001078u);
  EXPECT_TRUE(ReadBmp(FourBitTile()));
  EXPECT_TRUE(ReadBmp(EightBitTile()));
}

TEST(ReadBmp, RefusesWhatCannotBeDrawnWhole) {
  const std::string good = FourBitTile();
  EXPECT_FALSE(ReadBmp(""));
  EXPECT_FALSE(ReadBmp("BM"));
  EXPECT_FALSE(ReadBmp(good.substr(0, good.size() - 1)));
  EXPECT_FALSE(ReadBmp("XX" + good.substr(2)));
  const auto with = [&](std::size_t at, std::uint32_t value) {
    std::string bytes = good;
    for (std::size_t i = 0; i < 4; ++i)
      bytes[at + i] = static_cast<char>(value >> (8 * i));
    return bytes;
  };
  EXPECT_FALSE(ReadBmp(with(10, 0xFFFFFFFFu)));  // pixels beyond the file
  EXPECT_FALSE(ReadBmp(with(18, 0)));            // no width
  EXPECT_FALSE(ReadBmp(with(18, 0x7FFFFFFFu)));
  EXPECT_FALSE(ReadBmp(with(22, 0x80000000u)));  // the lowest height
  EXPECT_FALSE(ReadBmp(with(30, 1)));            // run-length coded
}

TEST(ReadBmp, APaletteThatLiesAboutItsLengthIsBlackWhereItIsMissing) {
  std::string bytes = BmpMaker{1, 1, 8, {0x112233}, "\x05\0\0\0"s}.Bytes();
  const auto bitmap = ReadBmp(bytes);
  ASSERT_TRUE(bitmap);
  EXPECT_EQ(bitmap->Palette.size(), 256u);
  EXPECT_EQ(bitmap->Palette[0], 0xFF112233u);
  EXPECT_EQ(bitmap->Palette[5], 0xFF000000u);
}

TEST(ReadBmp, EveryCutAndEveryChangedHeaderByteIsSurvived) {
  const std::string good = BmpMaker{5, 4, 4, TestPalette(16), std::string(16, '\x21')}.Bytes();
  for (std::size_t length = 0; length <= good.size(); ++length) {
    const auto bitmap = ReadBmp(std::string_view(good).substr(0, length));
    EXPECT_EQ(bitmap.has_value(), length == good.size());
  }
  std::mt19937 random(5);
  for (int i = 0; i < 20000; ++i) {
    std::string bytes = good;
    for (int k = 0; k < 3; ++k)
      bytes[random() % 54] = static_cast<char>(random());
    if (const auto bitmap = ReadBmp(bytes)) {
      const auto pixels =
          static_cast<std::size_t>(bitmap->Width) * static_cast<std::size_t>(bitmap->Height);
      ASSERT_EQ(bitmap->HasPalette() ? bitmap->Indexed.size() : bitmap->Pixels.size(), pixels);
    }
  }
}

TEST(StretchedPixels, ShrinkingDropsPixelsAndStretchingRepeatsThem) {
  Bitmap bitmap;
  bitmap.Width = 4;
  bitmap.Height = 1;
  bitmap.Pixels = {1, 2, 3, 4};
  EXPECT_EQ(StretchedPixels(bitmap, {}, 2, 1), (std::vector<std::uint32_t>{1, 3}));
  EXPECT_EQ(StretchedPixels(bitmap, {}, 8, 1),
            (std::vector<std::uint32_t>{1, 1, 2, 2, 3, 3, 4, 4}));
  EXPECT_TRUE(StretchedPixels(bitmap, {}, 0, 5).empty());
}

}  // namespace
}  // namespace zepril
