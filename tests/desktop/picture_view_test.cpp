// Pictures of any kind and size: turned, shrunk, captioned, refused; and plots pixel by pixel.
#include "desktop/picture_view.h"

#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "desktop/plot_view.h"
#include "platform/native/native_files.h"
#include "tests/desktop/desktop_support.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

constexpr QRgb kGrey = 0xFF505050;

// Left half red, right half blue.
QImage TwoHalves(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::red);
  QPainter(&image).fillRect(width / 2, 0, width, height, Qt::blue);
  return image;
}

bool IsRed(QRgb pixel) {
  return qRed(pixel) > 200 && qBlue(pixel) < 60;
}
bool IsBlue(QRgb pixel) {
  return qBlue(pixel) > 200 && qRed(pixel) < 60;
}

class PictureViewTest : public ::testing::Test {
 protected:
  PictureViewTest() {
    control.Caption = "X.PNG: THE PICTURE CAN'T BE SHOWN";
    view.resize(400, 200);
    view.show();
  }

  QString PathOf(const std::string& name) const {
    return QString::fromStdString(folder.Path() + "/" + name);
  }
  void Save(const std::string& name, const QImage& image) { ASSERT_TRUE(image.save(PathOf(name))); }
  void SaveBytes(const std::string& name, const std::string& bytes) {
    files.Write("C:\\" + name, bytes);
  }
  std::string BytesOf(const std::string& name) {
    return files.ReadAll("C:\\" + name, 1 << 26).value_or("");
  }
  void Show(const std::string& name) {
    control.Path = "C:\\" + name;
    ++control.Revision;
    view.Show(control, files);
  }
  // What stands in the middle of the widget, after painting.
  QImage Painted() { return view.grab().toImage(); }
  bool ShowsCaption() {
    if (!view.Shown().isNull()) return false;
    const QImage painted = Painted();
    bool ink = false;
    for (int x = 0; x < painted.width(); ++x) {
      for (int y = 0; y < painted.height(); ++y)
        ink = ink || qRed(painted.pixel(x, y)) > 150;
    }
    return ink && painted.pixel(1, 1) == kGrey;
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  QtLoop loop;
  ImageView control;
  PictureView view{loop, control};
};

TEST_F(PictureViewTest, ShrinksToFitAndStandsCentredOnGrey) {
  for (const char* name : {"A.PNG", "A.JPG", "A.BMP"}) {
    Save(name, TwoHalves(2000, 2000));
    Show(name);
    EXPECT_EQ(view.Shown().size(), QSize(200, 200)) << name;
    const QImage painted = Painted();
    EXPECT_EQ(painted.pixel(50, 100), kGrey) << name;
    EXPECT_EQ(painted.pixel(350, 100), kGrey) << name;
    EXPECT_TRUE(IsRed(painted.pixel(120, 100))) << name;
    EXPECT_TRUE(IsBlue(painted.pixel(280, 100))) << name;
  }
}

TEST_F(PictureViewTest, ASmallPictureIsNotBlownUp) {
  Save("A.PNG", TwoHalves(40, 20));
  Show("A.PNG");
  EXPECT_EQ(view.Shown().size(), QSize(40, 20));
  const QImage painted = Painted();
  EXPECT_EQ(painted.pixel(170, 100), kGrey);
  EXPECT_TRUE(IsRed(painted.pixel(185, 100)));
  EXPECT_TRUE(IsBlue(painted.pixel(215, 100)));
}

TEST_F(PictureViewTest, AWrongExtensionDoesNotMatter) {
  Save("A.PNG", TwoHalves(40, 20));
  SaveBytes("B.JPG", BytesOf("A.PNG"));
  Show("B.JPG");
  EXPECT_EQ(view.Shown().size(), QSize(40, 20));
}

TEST_F(PictureViewTest, IsTurnedAsTheCameraWasHeld) {
  QImageWriter writer(PathOf("A.JPG"));
  writer.setTransformation(QImageIOHandler::TransformationRotate90);
  ASSERT_TRUE(writer.write(TwoHalves(1000, 500)));
  Show("A.JPG");
  // 1000 x 500 upright: 100 x 200 in a room of 400 x 200, red above blue.
  EXPECT_EQ(view.Shown().size(), QSize(100, 200));
  const QImage painted = Painted();
  EXPECT_TRUE(IsRed(painted.pixel(200, 50)));
  EXPECT_TRUE(IsBlue(painted.pixel(200, 150)));
}

TEST_F(PictureViewTest, IsReadAgainOnlyForAnotherPathOrRevision) {
  Save("A.PNG", TwoHalves(400, 200));
  Show("A.PNG");
  view.Show(control, files);
  view.Show(control, files);
  EXPECT_EQ(view.Readings(), 1);
  Save("A.PNG", TwoHalves(20, 20));
  view.Show(control, files);
  EXPECT_EQ(view.Shown().size(), QSize(400, 200));
  ++control.Revision;
  view.Show(control, files);
  EXPECT_EQ(view.Shown().size(), QSize(20, 20));
}

TEST_F(PictureViewTest, IsReadAgainWhenTheWidgetHasItsNewSize) {
  Save("A.PNG", TwoHalves(2000, 1000));
  Show("A.PNG");
  EXPECT_EQ(view.Shown().size(), QSize(400, 200));
  view.resize(800, 600);
  ASSERT_TRUE(PumpUntil([this] { return view.Shown().size() == QSize(800, 400); }));
  view.resize(100, 600);
  // Shrunk meanwhile: nothing hangs over the edge.
  EXPECT_EQ(Painted().pixel(50, 10), kGrey);
  ASSERT_TRUE(PumpUntil([this] { return view.Shown().size() == QSize(100, 50); }));
  EXPECT_EQ(view.Readings(), 3);
}

TEST_F(PictureViewTest, AHiddenWidgetReadsWhenItIsShown) {
  Save("A.PNG", TwoHalves(2000, 1000));
  view.hide();
  Show("A.PNG");
  EXPECT_EQ(view.Readings(), 0);
  view.resize(200, 200);
  view.show();
  EXPECT_EQ(view.Shown().size(), QSize(200, 100));
  EXPECT_EQ(view.Readings(), 1);
}

TEST_F(PictureViewTest, TheCaptionStandsInPlaceOfWhatCannotBeShown) {
  Save("GOOD.PNG", TwoHalves(300, 300));
  Save("GOOD.BMP", TwoHalves(300, 300));
  const std::string png = BytesOf("GOOD.PNG");
  SaveBytes("CUT.PNG", png.substr(0, png.size() / 2));
  SaveBytes("CUT.BMP", BytesOf("GOOD.BMP").substr(0, 40));
  SaveBytes("EMPTY.PNG", "");
  SaveBytes("TEXT.PNG", "This is no picture.");
  SaveBytes("VECTOR.PNG", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>");
  files.MakeFolder("C:\\FOLDER.PNG");
  for (const char* name : {"CUT.PNG", "CUT.BMP", "EMPTY.PNG", "TEXT.PNG", "VECTOR.PNG",
                           "FOLDER.PNG", "GONE.PNG", ""}) {
    Show(name);
    EXPECT_TRUE(ShowsCaption()) << name;
  }
  // And a good one afterwards is shown.
  Show("GOOD.PNG");
  EXPECT_FALSE(ShowsCaption());
}

TEST_F(PictureViewTest, ACutJpegShowsWhatThereIsOrTheCaption) {
  Save("GOOD.JPG", TwoHalves(3000, 3000));
  const std::string jpg = BytesOf("GOOD.JPG");
  for (std::size_t part : {1, 2, 3, 50}) {
    SaveBytes("CUT.JPG", jpg.substr(0, jpg.size() * part / 51));
    Show("CUT.JPG");
    EXPECT_TRUE(!view.Shown().isNull() || ShowsCaption()) << part;
  }
}

TEST_F(PictureViewTest, APipeDoesNotBlock) {
  ASSERT_EQ(mkfifo((folder.Path() + "/PIPE.PNG").c_str(), 0600), 0);
  Show("PIPE.PNG");
  EXPECT_TRUE(ShowsCaption());
}

// The header of a picture that claims to be huge.
std::string PngHead(int width, int height, bool interlaced) {
  const auto number = [](int value) {
    std::string bytes;
    for (int shift : {24, 16, 8, 0})
      bytes += static_cast<char>((value >> shift) & 0xFF);
    return bytes;
  };
  std::string chunk = "IHDR" + number(width) + number(height) + std::string("\x08\x02\0\0", 4) +
                      std::string(1, interlaced ? '\1' : '\0');
  std::uint32_t crc = 0xFFFFFFFFu;
  for (char c : chunk) {
    crc ^= static_cast<unsigned char>(c);
    for (int bit = 0; bit < 8; ++bit)
      crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320u : 0u);
  }
  return std::string("\x89PNG\r\n\x1A\n", 8) + number(13) + chunk + number(static_cast<int>(~crc)) +
         number(0) + "IDAT" + number(0x35AF061E);
}

TEST_F(PictureViewTest, AHugeClaimIsNotRead) {
  for (bool interlaced : {false, true}) {
    SaveBytes("BOMB.PNG", PngHead(60000, 60000, interlaced));
    Show("BOMB.PNG");
    EXPECT_TRUE(ShowsCaption());
  }
  // A bitmap of 40000 x 40000 of which nothing is there.
  Save("BOMB.BMP", TwoHalves(16, 16));
  std::string bmp = BytesOf("BOMB.BMP");
  for (std::size_t at : {18u, 22u})
    bmp.replace(at, 4, std::string("\x40\x9C\0\0", 4));
  SaveBytes("BOMB.BMP", bmp);
  Show("BOMB.BMP");
  EXPECT_TRUE(ShowsCaption());
}

TEST_F(PictureViewTest, APictureOfManyMegapixelsIsReadNoLargerThanItIsShown) {
  QImage large(20000, 5000, QImage::Format_RGB32);
  large.fill(Qt::blue);
  Save("LARGE.JPG", large);
  large = {};
  Show("LARGE.JPG");
  EXPECT_EQ(view.Shown().size(), QSize(400, 100));
  EXPECT_TRUE(IsBlue(Painted().pixel(200, 100)));
}

TEST_F(PictureViewTest, PressesRaiseTheControlsEvents) {
  int left = 0;
  int right = 0;
  control.Click = [&left] { ++left; };
  QTest::mouseClick(&view, Qt::LeftButton);
  QTest::mouseClick(&view, Qt::RightButton);
  EXPECT_EQ(left, 1);
  control.RightClick = [&right] { ++right; };
  QTest::mouseClick(&view, Qt::RightButton);
  EXPECT_EQ(right, 1);
  EXPECT_EQ(left, 1);
}

TEST_F(PictureViewTest, AnEventThatClosesThePictureIsSafe) {
  Save("A.PNG", TwoHalves(40, 20));
  Show("A.PNG");
  control.Click = [this] {
    control.Path.clear();
    ++control.Revision;
    view.Show(control, files);
    view.hide();
  };
  QTest::mouseClick(&view, Qt::LeftButton);
  EXPECT_TRUE(view.Shown().isNull());
}

TEST(PlotView, ShowsTheDrawingPixelForPixelAndFollowsIt) {
  MapFonts fonts;
  QtSurface surface(30, 20, fonts);
  PictureBox control;
  PlotView view(control, surface);
  EXPECT_EQ(view.size(), QSize(30, 20));
  view.show();
  surface.Clear(0x0000FF);
  surface.FilledBox(10, 5, 12, 6, 0xFF0000);
  ++control.Revision;
  view.ControlsOut();
  const QImage painted = view.grab().toImage();
  EXPECT_EQ(painted.pixel(9, 5), qRgb(255, 0, 0));
  EXPECT_EQ(painted.pixel(10, 5), qRgb(0, 0, 255));
  EXPECT_EQ(painted.pixel(12, 6), qRgb(0, 0, 255));
}

}  // namespace
}  // namespace zepril
