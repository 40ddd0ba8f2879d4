// What is drawn stands on its pixels in the program's colours, texts too.
#include "platform/qt/qt_surface.h"

#include <QByteArray>
#include <QFontDatabase>
#include <gtest/gtest.h>

namespace zepril {
namespace {

const QString kFonts = QStringLiteral(ZEPRIL_SOURCE_DIR "/data/fonts");

class QtSurfaceTest : public testing::Test {
 protected:
  MapFonts fonts_;
};

// The smallest rectangle around what is not black.
PixelRect Painted(const QImage& picture) {
  int left = picture.width(), top = picture.height(), right = -1, bottom = -1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) == 0xFF000000u) continue;
      left = std::min(left, x);
      right = std::max(right, x);
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  return {left, top, right - left + 1, bottom - top + 1};
}

TEST_F(QtSurfaceTest, DrawsToThePixelInTheProgramsColours) {
  QtSurface surface(20, 10, fonts_);
  surface.Clear(0x0000FF);
  EXPECT_EQ(surface.Picture().pixel(0, 0), 0xFFFF0000u);  // red
  surface.Clear(kBlack);
  surface.FilledBox(2, 3, 4, 5, kWhite);
  EXPECT_EQ(Painted(surface.Picture()), (PixelRect{2, 3, 3, 3}));
  surface.Clear(kBlack);
  surface.Line(1, 1, 18, 8, kWhite);
  EXPECT_EQ(Painted(surface.Picture()), (PixelRect{1, 1, 18, 8}));
  surface.Resize(5, 5);
  EXPECT_EQ(surface.Width(), 5);
  surface.Resize(0, -3);
  EXPECT_EQ(surface.Height(), 1);
}

TEST_F(QtSurfaceTest, TextHasACellOfEightPixelsAndNoSmoothing) {
  ASSERT_TRUE(fonts_.LoadFonts(kFonts));
  QtSurface surface(100, 40, fonts_);
  surface.Text(10, 5, "HHH", FontFace::Text, kWhite);
  const PixelRect once = Painted(surface.Picture());
  EXPECT_GE(once.X, 10);
  EXPECT_LE(once.X + once.Width, 10 + 3 * 8);
  EXPECT_GT(once.Width, 2 * 8);
  EXPECT_GE(once.Y, 5);
  EXPECT_LE(once.Y + once.Height, 5 + 12);
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 100; ++x) {
      const QRgb pixel = surface.Picture().pixel(x, y);
      ASSERT_TRUE(pixel == 0xFF000000u || pixel == 0xFFFFFFFFu);
    }
  }
}

TEST_F(QtSurfaceTest, EveryByteOfTheCodePageCanBeWritten) {
  fonts_.LoadFonts(kFonts);
  QtSurface surface(3000, 40, fonts_);
  std::string all;
  for (int code = 0; code < 256; ++code)
    all += static_cast<char>(code);
  surface.Text(0, 5, all, FontFace::Text, kWhite);
  surface.Text(-50, -5, all, FontFace::Marks, kWhite);
  EXPECT_GT(Painted(surface.Picture()).Width, 1000);
}

TEST_F(QtSurfaceTest, TheObjectMarkStandsOnItsPoint) {
  ASSERT_TRUE(fonts_.LoadFonts(kFonts));
  QtSurface surface(60, 60, fonts_);
  // The mark of an own object at (30, 30) is printed at (19, 18).
  surface.Text(19, 18, "i", FontFace::Marks, kWhite);
  const PixelRect mark = Painted(surface.Picture());
  EXPECT_NEAR(mark.X + mark.Width / 2.0, 30.5, 1.0);
  EXPECT_NEAR(mark.Y + mark.Height / 2.0, 30.5, 1.0);
}

TEST_F(QtSurfaceTest, WithoutFontFilesAFixedFaceStandsIn) {
  MapFonts fonts;
  EXPECT_NO_THROW(fonts.LoadFonts(QStringLiteral("no such folder")));
  QtSurface surface(60, 60, fonts);
  surface.Text(5, 5, "A", FontFace::Text, kWhite);
  EXPECT_EQ(fonts.Glyph(FontFace::Text, 'A').Advance, 8);
}

}  // namespace
}  // namespace zepril
