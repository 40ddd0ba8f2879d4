// Pictures of the render command with each layer over the map.
#include <QImage>
#include <QString>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/native/native_files.h"
#include "tests/doubles/temp_folder.h"
#include "tests/map/bmp_maker.h"
#include "tool/render_command.h"

namespace zepril {
namespace {

constexpr QRgb kBlackPixel = 0xFF000000u;
constexpr QRgb kWhitePixel = 0xFFFFFFFFu;
constexpr QRgb kMapGrid = 0xFFE8E8E8u;
constexpr QRgb kGeographicGrid = 0xFFE0E000u;
constexpr QRgb kGaussKruegerGrid = 0xFFFFC0FFu;
constexpr QRgb kUtmGrid = 0xFF00E0FFu;
constexpr QRgb kRt90Grid = 0xFF00F000u;

// A program folder with one tile of one ink, 50 km from 5800 north and 400 east.
class Pictures : public testing::Test {
 protected:
  Pictures() : files_(folder_.Path()) {
    files_.MakeFolder(R"(C:\U33\M0050)");
    files_.MakeFolder(R"(C:\U33\UTMPICS)");
    files_.Write(R"(C:\U33\M0050\58000400.BMP)", FourBitTile(5));
  }
  // The map around the tile's middle, 640 x 400: the centre is pixel (320, 199).
  QImage Paint(std::vector<std::string> extra) {
    const std::string path = folder_.Sub("map.png");
    std::vector<std::string> args = {"--folder", folder_.Path(),
                                     "-o",       path,
                                     "--centre", "5825,425",
                                     "--tile",   "50",
                                     "--size",   "640x400",
                                     "--level",  "0",
                                     "--fonts",  ZEPRIL_SOURCE_DIR "/data/fonts",
                                     "--at",     "2026-06-21T12:00"};
    args.insert(args.end(), extra.begin(), extra.end());
    status_ = RunRender(std::vector<std::string_view>(args.begin(), args.end()));
    return QImage(QString::fromStdString(path));
  }
  static int Count(const QImage& image, QRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x)
        count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
  }

  TempFolder folder_;
  NativeFiles files_;
  int status_ = -1;
};

TEST_F(Pictures, WithoutSwitchesTheMapIsBare) {
  const QImage map = Paint({});
  ASSERT_EQ(status_, 0);
  for (QRgb colour : {kMapGrid, kGeographicGrid, kGaussKruegerGrid, kUtmGrid, kRt90Grid,
                      kBlackPixel, kWhitePixel}) {
    EXPECT_EQ(Count(map, colour), 0);
  }
}

TEST_F(Pictures, TheMapsGridStandsOnItsKilometres) {
  const QImage map = Paint({"--grid", "utm"});
  ASSERT_EQ(status_, 0);
  // A line every 5 km: 425 east is pixel 320, 5825 north pixel 199.
  for (int x : {20, 120, 220, 320, 420, 520, 620})
    EXPECT_EQ(map.pixel(x, 50), kMapGrid) << x;
  for (int y : {99, 199, 299, 399})
    EXPECT_EQ(map.pixel(270, y), kMapGrid) << y;
  EXPECT_NE(map.pixel(270, 50), kMapGrid);
  EXPECT_EQ(Count(map, kGeographicGrid), 0);
}

TEST_F(Pictures, AllFiveGridsCanBeSeenTogether) {
  const QImage map = Paint({"--grid", "all"});
  ASSERT_EQ(status_, 0);
  for (QRgb colour : {kMapGrid, kGeographicGrid, kGaussKruegerGrid, kUtmGrid, kRt90Grid})
    EXPECT_GT(Count(map, colour), 400) << colour;
  const QImage two = Paint({"--grid", "geo,rt90"});
  EXPECT_GT(Count(two, kGeographicGrid), 800);
  EXPECT_GT(Count(two, kRt90Grid), 800);
  EXPECT_EQ(Count(two, kMapGrid), 0);
  EXPECT_EQ(Count(two, kGaussKruegerGrid), 0);
}

TEST_F(Pictures, GridLabelsLieOnBlackAtTheEdges) {
  const QImage map = Paint({"--grid", "utm"});
  // Under the line of 420 km at pixel 220: its label begins four pixels to the right.
  const QRect cell(224, 400 - 12, 3 * 8, 12);
  EXPECT_GT(Count(map.copy(cell), kMapGrid), 20);
  EXPECT_GT(Count(map.copy(cell), kBlackPixel), 20);
  // And left of the line of 5830 km.
  const QRect left(2, 99 - 12, 4 * 8, 12);
  EXPECT_GT(Count(map.copy(left), kBlackPixel), 20);
}

TEST_F(Pictures, CirclesStandEveryHundredPixels) {
  const QImage map = Paint({"--circles"});
  ASSERT_EQ(status_, 0);
  // Away from the texts: at 45 degrees, 100 pixels are 71 in each direction.
  const auto black_around = [&](int x, int y) {
    return Count(map.copy(QRect(x - 1, y - 1, 3, 3)), kBlackPixel);
  };
  EXPECT_GT(black_around(320 + 71, 199 - 71), 0);
  EXPECT_GT(black_around(320 - 71, 199 + 71), 0);
  EXPECT_GT(black_around(320 + 141, 199 + 141), 0);
  EXPECT_EQ(black_around(320 + 60, 199 - 60), 0);
  // "5 km" east of the centre, and its frequency below it.
  const QImage distance = map.copy(QRect(320 + 100 - 14, 199 - 14, 4 * 8, 14));
  EXPECT_GT(Count(distance, kBlackPixel), 20);
  EXPECT_GT(Count(distance, kWhitePixel), 20);
  const QImage frequency = map.copy(QRect(320 + 100 - 6, 199 + 1, 8 * 8, 14));
  EXPECT_GT(Count(frequency, kWhitePixel), 50);
}

TEST_F(Pictures, AFixedTimeMakesThePictureRepeatable) {
  const QImage first = Paint({"--circles", "--sunspot", "40", "--kp", "2"});
  EXPECT_EQ(Paint({"--circles", "--sunspot", "40", "--kp", "2"}), first);
  EXPECT_NE(Paint({"--circles", "--sunspot", "170", "--kp", "2"}), first);
  EXPECT_NE(Paint({"--circles", "--sunspot", "40", "--kp", "8"}), first);
  EXPECT_NE(Paint({"--circles", "--sunspot", "40", "--kp", "2", "--utc-offset", "-10"}), first);
  EXPECT_NE(Paint({"--circles", "--sunspot", "40", "--kp", "2", "--fopt-detailed"}), first);
}

TEST_F(Pictures, PicturesAreMarkedWhereTheyWereTaken) {
  files_.Write(R"(C:\U33\UTMPICS\58230420.JPG)", "x");
  files_.Write(R"(C:\U33\UTMPICS\HOLIDAY.JPG)", "x");
  const QImage map = Paint({"--pictures"});
  ASSERT_EQ(status_, 0);
  // 5 km west and 2 km south: pixel (220, 239), a frame of 7 pixels either way.
  const int x = 220;
  const int y = 239;
  for (int reach : {6, 7, 8}) {
    const QRgb colour = reach == 7 ? kWhitePixel : kBlackPixel;
    EXPECT_EQ(map.pixel(x - reach, y), colour) << reach;
    EXPECT_EQ(map.pixel(x + reach, y), colour) << reach;
    EXPECT_EQ(map.pixel(x, y - reach), colour) << reach;
    EXPECT_EQ(map.pixel(x, y + reach), colour) << reach;
  }
  EXPECT_EQ(Count(map, kWhitePixel), 4 * 14);
  EXPECT_NE(map.pixel(x, y), kBlackPixel);
}

TEST_F(Pictures, PlaceAndTrackFilesMustBeThere) {
  files_.Write(R"(C:\places.txt)", "\xFE 5823.000  420.000Hut\r\n");
  EXPECT_FALSE(Paint({"--poi", folder_.Sub("places.txt"), "--poi-level", "1"}).isNull());
  EXPECT_EQ(status_, 0);
  Paint({"--track", folder_.Sub("places.txt")});
  EXPECT_EQ(status_, 0);
  Paint({"--poi", folder_.Sub("missing.txt")});
  EXPECT_EQ(status_, 1);
  Paint({"--track", folder_.Sub("missing.txt")});
  EXPECT_EQ(status_, 1);
}

TEST_F(Pictures, RefusesLayersThatItDoesNotKnow) {
  const std::vector<std::vector<std::string>> wrong = {
      {"--grid", "utm,mars"}, {"--grid", ""},
      {"--sunspot", "many"},  {"--sunspot", "-1"},
      {"--kp", "10"},         {"--utc-offset", "15"},
      {"--poi-level", "3"},   {"--poi", "x", "--poi-level", "-1"}};
  for (const auto& extra : wrong) {
    Paint(extra);
    EXPECT_EQ(status_, 2) << extra[0] << " " << extra[1];
  }
  for (const std::string at : {"noon", "2026-13-01T12:00", "2026-06-21 12:00", "2026-06-21T24:00",
                               "2026-06-21T12:0x", ""}) {
    const std::vector<std::string_view> args = {"--folder", folder_.Path(), "-o",
                                                "x.png",    "--at",         at};
    EXPECT_EQ(RunRender(args), 2) << at;
  }
}

}  // namespace
}  // namespace zepril
