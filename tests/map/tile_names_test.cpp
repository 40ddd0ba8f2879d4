// Names of tiles and the corners they tell, over the whole grid.
#include "map/tile_names.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(TileNameField, PlainValuesArePaddedWithZeros) {
  EXPECT_EQ(TileNameField(0), "0000");
  EXPECT_EQ(TileNameField(400), "0400");
  EXPECT_EQ(TileNameField(5800), "5800");
  EXPECT_EQ(TileNameField(9999), "9999");
}

TEST(TileNameField, NegativeValuesBeginWithTheLetterOfTheirThousands) {
  EXPECT_EQ(TileNameField(-5), "@005");
  EXPECT_EQ(TileNameField(-50), "@050");
  EXPECT_EQ(TileNameField(-123), "@123");
  EXPECT_EQ(TileNameField(-1123), "A123");
  EXPECT_EQ(TileNameField(-9000), "I000");
  EXPECT_EQ(TileNameField(-10000), "J000");
}

TEST(TileNameField, ValuesOutsideTheGridNameATileThatCannotExist) {
  EXPECT_EQ(TileNameField(10000), "XXXX");
  EXPECT_EQ(TileNameField(-10001), "XXXX");
  EXPECT_EQ(TileNameField(1e300), "XXXX");
  EXPECT_EQ(TileFieldValue("XXXX"), -24000);
}

TEST(TileFieldValue, ReadsEveryCornerOfTheGridBack) {
  for (int km = -10000; km < 10000; km += 1) {
    ASSERT_EQ(TileFieldValue(TileNameField(km)), km);
  }
}

TEST(TileFieldValue, BytesThatAreNoFieldReadAsSomeNumber) {
  EXPECT_EQ(TileFieldValue(""), 0);
  EXPECT_EQ(TileFieldValue("12"), 12);
  EXPECT_EQ(TileFieldValue("\xFE"
                           "x"),
            -190000);
}

TEST(TileFileName, GivesTheSouthWestCorner) {
  EXPECT_EQ(TileFileName(5800, 400), "58000400.BMP");
  EXPECT_EQ(TileFileName(TileCorner(-12.3, 50), TileCorner(-0.5, 50)), "@050@050.BMP");
}

}  // namespace
}  // namespace zepril
