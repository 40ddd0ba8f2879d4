// Marks of pictures by their names, and the picture at a press.
#include "map/picture_marks_layer.h"

#include <gtest/gtest.h>

#include "map/map_view.h"
#include "tests/doubles/recorder_surface.h"

namespace zepril {
namespace {

struct Pictures {
  explicit Pictures(double metres_per_pixel) {
    View.ViewWidthPx = 800;
    View.ViewHeightPx = 600;
    View.CentreNorthKm = 5800.0;
    View.CentreEastKm = 400.0;
    View.MapTileKm = metres_per_pixel;
    ComputeViewEdges(View);
  }
  void Draw() { PictureMarksLayer(Surface, View); }
  RecorderSurface Surface{800, 600};
  MapViewState View;
};

TEST(PictureMarks, AWhiteFrameStandsBetweenTwoBlackOnes) {
  Pictures pictures(1000.0);
  pictures.View.PictureNames = {"58000400.JPG"};
  pictures.Draw();
  const auto boxes = pictures.Surface.Of("box");
  ASSERT_EQ(boxes.size(), 3u);
  const auto& white = boxes[1];
  EXPECT_EQ(white.Ink, kWhite);
  EXPECT_EQ(white.X1, 400 - 4);
  EXPECT_EQ(white.Y1, 299 - 4);
  EXPECT_EQ(white.X2, 400 + 4);
  EXPECT_EQ(white.Y2, 299 + 4);
  EXPECT_EQ(boxes[0].Ink, kBlack);
  EXPECT_EQ(boxes[0].X1, 400 - 5);
  EXPECT_EQ(boxes[2].Ink, kBlack);
  EXPECT_EQ(boxes[2].X2, 400 + 3);
}

TEST(PictureMarks, AreLargerFromTwoHundredMetresAPixelDown) {
  Pictures pictures(200.0);
  pictures.View.PictureNames = {"58000400.JPG"};
  pictures.Draw();
  EXPECT_EQ(pictures.Surface.Of("box")[1].X1, 400 - 7);
  Pictures coarse(1000.0);
  coarse.View.PictureNames = {"58000400.JPG"};
  coarse.Draw();
  EXPECT_EQ(coarse.Surface.Of("box")[1].X1, 400 - 4);
}

TEST(PictureMarks, OnlyThoseInTheWindowAreDrawn) {
  Pictures pictures(1000.0);
  pictures.View.PictureNames = {"58000400.JPG", "50000400.JPG", "A123@050.JPG", "58000804.AVI",
                                "58000806.AVI"};
  pictures.Draw();
  // The second lies far south, the last just outside; the fourth shows its left edge.
  EXPECT_EQ(pictures.Surface.Of("box").size(), 6u);
}

TEST(PictureMarks, NamesOfAnotherFormHaveNoPlace) {
  Pictures pictures(1000.0);
  pictures.View.PictureNames = {
      "HOLIDAY1.JPG",         "5800040.JPG",  "58000400.JPEG", "", ".", "5800",
      std::string(5000, 'x'), "58000400xJPG", "K0000400.JPG"};
  pictures.Draw();
  EXPECT_TRUE(pictures.Surface.Operations.empty());
  EXPECT_FALSE(FindPictureNear(pictures.View, 5800.0, 400.0));
}

TEST(PictureMarks, LettersTellNegativeKilometres) {
  const auto place = PlaceOfPicture("A123@050.JPG");
  ASSERT_TRUE(place);
  EXPECT_DOUBLE_EQ(place->NorthKm, -1123.0);
  EXPECT_DOUBLE_EQ(place->EastKm, -50.0);
  const auto small_letters = PlaceOfPicture("a123@050.jpg");
  ASSERT_TRUE(small_letters);
  EXPECT_DOUBLE_EQ(small_letters->NorthKm, -1123.0);
}

TEST(FindPictureNear, TakesTheFirstWithinTheSideOfItsFrame) {
  Pictures pictures(1000.0);
  // Side of 8 pixels: 8 km and half a kilometre.
  pictures.View.PictureNames = {"57000400.JPG", "58000400.JPG", "58000401.JPG"};
  EXPECT_EQ(FindPictureNear(pictures.View, 5800.0, 401.0), 2);
  EXPECT_EQ(FindPictureNear(pictures.View, 5808.49, 400.0), 2);
  EXPECT_EQ(FindPictureNear(pictures.View, 5800.0, 391.51), 2);
  EXPECT_EQ(FindPictureNear(pictures.View, 5800.0, 409.4), 3);
  EXPECT_FALSE(FindPictureNear(pictures.View, 5808.5, 400.0));
  EXPECT_FALSE(FindPictureNear(pictures.View, 5800.0, 391.5));
}

TEST(FindPictureNear, TheLargerMarkIsFoundFartherAway) {
  Pictures pictures(200.0);
  pictures.View.PictureNames = {"58000400.JPG"};
  // 14 pixels of 200 metres and half a kilometre.
  EXPECT_EQ(FindPictureNear(pictures.View, 5803.29, 400.0), 1);
  EXPECT_FALSE(FindPictureNear(pictures.View, 5803.3, 400.0));
}

}  // namespace
}  // namespace zepril
