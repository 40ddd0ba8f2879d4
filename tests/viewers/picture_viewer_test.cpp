// The picture panel, its page for browsers, and stepping through pictures.
#include "viewers/picture_viewer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/text_fields.h"
#include "platform/native/native_files.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

struct ViewerWorld : DesktopActions, MapActions {
  ViewerWorld() {
    Identity.ProgramFolder = R"(C:\Z)";
    Identity.MapsPath = R"(C:\Z\U33)";
    Disk.MakeFolder(R"(C:\Z\U33\UTMPICS)");
    View.PictureMode = MapShows::Picture;
    Controls.Frame8.Visible = false;
    Timer1.Enable();
  }
  void AddPicture(const std::string& name, const std::string& bytes = "bytes") {
    View.PictureNames.push_back(std::string(Left(name, 12)));
    Disk.Write(FolderPath() + name, bytes);
  }
  static std::string FolderPath() { return R"(C:\Z\U33\UTMPICS\)"; }
  void Show(int index) {
    View.SelectedPicture = index;
    Viewer.ShowPicture(index);
  }
  std::vector<std::string> Page() const {
    std::vector<std::string> lines;
    Disk.ReadLines(R"(C:\Z\PIC.HTM)", [&lines](std::string_view line) {
      lines.emplace_back(line);
      return true;
    });
    return lines;
  }

  bool MainWindowActive() const override { return true; }
  void Open(const std::string& address) override { Opened.push_back(address); }
  bool MovePointerOnMap(int, int) override { return false; }
  void MapRedraw() override {
    ++Redraws;
    timer1_ran_while_redrawing_ = Timer1.Enabled();
    Timer1.Enable();
  }
  void MapRefresh() override {}

  TempFolder Folder;
  NativeFiles Disk{Folder.Path()};
  IdentityState Identity;
  MapViewState View;
  PicturePanelControls Controls;
  MapControls Map;
  Timer Timer1{6000};
  PictureViewer Viewer{Identity, View, Controls, Map, {Disk, *this, *this, Timer1}};
  std::vector<std::string> Opened;
  int Redraws = 0;
  bool timer1_ran_while_redrawing_ = true;
};

TEST(PicturePage, HasSevenLinesOnAGreyGround) {
  EXPECT_EQ(PicturePage("/media/op/62000400.BMP"),
            "<html>\r\n<body bgcolor=\"#505050\">\r\n<center>\r\n"
            "<img src=\"/media/op/62000400.BMP\">\r\n</center>\r\n</body>\r\n</html>\r\n");
}

TEST(PicturePage, ClipsInAnyCaseOfLettersGetTheirOwnAttribute) {
  EXPECT_THAT(PicturePage("/a/X.AVI"), testing::HasSubstr("<img dynsrc=\"/a/X.AVI\">"));
  EXPECT_THAT(PicturePage("/a/x.avi"), testing::HasSubstr("<img dynsrc=\"/a/x.avi\">"));
  EXPECT_THAT(PicturePage("/a.avi/x.mpg"), testing::HasSubstr("<img src=\"/a.avi/x.mpg\">"));
}

TEST(PicturePage, NoNameBreaksOutOfTheAttribute) {
  EXPECT_THAT(
      PicturePage("/a b/\"><b>&#1;%\xC3\xBC?.BMP"),
      testing::HasSubstr("<img src=\"/a b/&quot;&gt;&lt;b&gt;&amp;%231;%25%C3%BC%3F.BMP\">"));
}

TEST(FileAddress, IsAnAddressWhateverThePath) {
  EXPECT_EQ(FileAddress("/media/op/PIC.HTM"), "file:///media/op/PIC.HTM");
  EXPECT_EQ(FileAddress("/a b/\xC3\xBC#<.BMP"), "file:///a%20b/%C3%BC%23%3C.BMP");
}

TEST(ShowPicture, WritesThePageAndFillsThePanel) {
  ViewerWorld world;
  world.AddPicture("61000300.BMP");
  world.AddPicture("62000400.BMP");
  world.Show(2);
  EXPECT_TRUE(world.Controls.Frame8.Visible);
  EXPECT_EQ(world.Controls.PictureName.Caption, "2 / 2  62000400.BMP");
  EXPECT_EQ(world.Controls.Picture.Path, R"(C:\Z\U33\UTMPICS\62000400.BMP)");
  EXPECT_EQ(world.Controls.Picture.Revision, 1u);
  EXPECT_EQ(world.Controls.Picture.Caption, "62000400.BMP: THE PICTURE CAN'T BE SHOWN");
  ASSERT_EQ(world.Page().size(), 7u);
  EXPECT_EQ(
      world.Page()[3],
      "<img src=\"" + world.Disk.NativePath(ViewerWorld::FolderPath() + "62000400.BMP") + "\">");
}

TEST(ShowPicture, AnotherPictureReplacesThePage) {
  ViewerWorld world;
  world.AddPicture("61000300.BMP");
  world.AddPicture("6.AVI");
  world.Show(1);
  world.Show(2);
  ASSERT_EQ(world.Page().size(), 7u);
  EXPECT_THAT(world.Page()[3], testing::StartsWith("<img dynsrc="));
}

TEST(ShowPicture, AgainChangesNothingUnlessTheFileHasChanged) {
  ViewerWorld world;
  world.AddPicture("62000400.BMP");
  world.Show(1);
  world.Disk.Remove(R"(C:\Z\PIC.HTM)");
  world.Show(1);
  EXPECT_EQ(world.Controls.Picture.Revision, 1u);
  EXPECT_FALSE(world.Disk.Exists(R"(C:\Z\PIC.HTM)"));
  world.Disk.Write(ViewerWorld::FolderPath() + "62000400.BMP", "other bytes, longer");
  world.Show(1);
  EXPECT_EQ(world.Controls.Picture.Revision, 2u);
  EXPECT_TRUE(world.Disk.Exists(R"(C:\Z\PIC.HTM)"));
}

TEST(ShowPicture, AClipShowsACaptionInThePicturesPlace) {
  for (const char* name : {"62000400.avi", "62000400.MPG", "62000400"}) {
    ViewerWorld world;
    world.AddPicture(name);
    world.Show(1);
    EXPECT_EQ(world.Controls.Picture.Path, "");
    EXPECT_EQ(world.Controls.Picture.Caption, std::string(name) + ": TO BE OPENED OUTSIDE");
  }
}

TEST(ShowPicture, AFileThatHasGoneIsTold) {
  ViewerWorld world;
  world.AddPicture("62000400.BMP");
  world.Show(1);
  world.Disk.Remove(ViewerWorld::FolderPath() + "62000400.BMP");
  world.Show(1);
  EXPECT_EQ(world.Controls.Picture.Path, "");
  EXPECT_EQ(world.Controls.Picture.Caption, "62000400.BMP: NOT FOUND");
  EXPECT_EQ(world.Controls.Picture.Revision, 2u);
  world.Controls.Command70.Click();
  EXPECT_THAT(world.Opened, IsEmpty());
}

TEST(ShowPicture, AFolderInThePicturesPlaceIsNoPicture) {
  ViewerWorld world;
  world.View.PictureNames = {"62000400.BMP"};
  world.Disk.MakeFolder(ViewerWorld::FolderPath() + "62000400.BMP");
  world.Show(1);
  EXPECT_EQ(world.Controls.Picture.Path, "");
  EXPECT_EQ(world.Controls.Picture.Caption, "62000400.BMP: NOT FOUND");
}

TEST(ShowPicture, ANameThatWasCutFindsItsFile) {
  ViewerWorld world;
  world.AddPicture("62000400.JPEG");
  ASSERT_EQ(world.View.PictureNames[0], "62000400.JPE");
  world.Show(1);
  EXPECT_EQ(world.Controls.Picture.Path, R"(C:\Z\U33\UTMPICS\62000400.JPEG)");
  ViewerWorld other;
  other.AddPicture("62000400 the harbour.png");
  other.Show(1);
  EXPECT_EQ(other.Controls.Picture.Path, R"(C:\Z\U33\UTMPICS\62000400 the harbour.png)");
}

TEST(ShowPicture, ANumberOutsideTheListShowsNothing) {
  ViewerWorld world;
  world.AddPicture("62000400.BMP");
  for (int index : {0, 2, -1}) {
    world.Show(index);
    EXPECT_EQ(world.Controls.PictureName.Caption, "0 / 1  ");
    EXPECT_EQ(world.Controls.Picture.Caption, "NO PICTURE");
    EXPECT_EQ(world.Controls.Picture.Path, "");
  }
  EXPECT_EQ(world.Controls.Picture.Revision, 1u);
  EXPECT_THAT(world.Page(), IsEmpty());
}

TEST(PictureButtons, StepRoundTheEndOfTheListAndKeepTheCycleAway) {
  ViewerWorld world;
  for (const char* name : {"61000300.BMP", "62000400.BMP", "63000500.BMP"})
    world.AddPicture(name);
  world.Show(2);
  world.Controls.Command30.Click();
  EXPECT_EQ(world.View.SelectedPicture, 3);
  EXPECT_EQ(world.Timer1.IntervalMs(), 30000);
  world.Controls.Command30.Click();
  EXPECT_EQ(world.View.SelectedPicture, 1);
  EXPECT_EQ(world.Controls.PictureName.Caption, "1 / 3  61000300.BMP");
  world.Timer1.Arm(6000);
  world.Controls.Command29.Click();
  EXPECT_EQ(world.View.SelectedPicture, 3);
  EXPECT_EQ(world.Timer1.IntervalMs(), 30000);
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST(PictureButtons, StepOverAListThatHasBecomeShorterOrEmpty) {
  ViewerWorld world;
  world.AddPicture("62000400.BMP");
  world.View.SelectedPicture = 27;
  world.Controls.Command30.Click();
  EXPECT_EQ(world.View.SelectedPicture, 1);
  world.Controls.Command29.Click();
  EXPECT_EQ(world.View.SelectedPicture, 1);
  world.View.PictureNames.clear();
  world.Controls.Command29.Click();
  EXPECT_EQ(world.Controls.Picture.Caption, "NO PICTURE");
}

TEST(PictureButtons, OpenOutsideThePageOfAPictureAndTheClipItself) {
  ViewerWorld world;
  world.AddPicture("62000400.BMP");
  world.AddPicture("63000500.AVI");
  world.Show(1);
  world.Controls.Command70.Click();
  world.Show(2);
  world.Controls.Command70.Click();
  EXPECT_THAT(world.Opened, ElementsAre(EndsWith("/Z/PIC.HTM"), EndsWith("/UTMPICS/63000500.AVI")));
  EXPECT_THAT(world.Opened[0], testing::StartsWith("file:///"));
}

TEST(PictureButtons, OpenThePictureItselfWhereThePageCannotBeWritten) {
  ViewerWorld world;
  world.Disk.MakeFolder(R"(C:\Z\PIC.HTM)");
  world.AddPicture("62000400.BMP");
  world.Show(1);
  world.Controls.Command70.Click();
  EXPECT_THAT(world.Opened, ElementsAre(EndsWith("/UTMPICS/62000400.BMP")));
}

TEST(PictureButtons, CloseBringsTheMapBack) {
  ViewerWorld world;
  world.AddPicture("62000400.BMP");
  world.Show(1);
  world.Controls.Command71.Click();
  EXPECT_EQ(world.View.PictureMode, MapShows::Map);
  EXPECT_FALSE(world.Controls.Frame8.Visible);
  EXPECT_EQ(world.Controls.Picture.Path, "");
  EXPECT_EQ(world.Redraws, 1);
  EXPECT_FALSE(world.timer1_ran_while_redrawing_);
  EXPECT_TRUE(world.Timer1.Enabled());
  // Shown again, it is read again.
  world.Show(1);
  EXPECT_EQ(world.Controls.Picture.Path, R"(C:\Z\U33\UTMPICS\62000400.BMP)");
}

TEST(Picture, AClickOnItIsALeftPressOnTheMap) {
  ViewerWorld world;
  std::vector<MousePress> presses;
  world.Map.Picture1.MouseDown = [&presses](const MousePress& press) { presses.push_back(press); };
  world.View.CursorX = 12;
  world.View.CursorY = 34;
  world.Controls.Picture.Click();
  ASSERT_EQ(presses.size(), 1u);
  EXPECT_EQ(presses[0].Button, 1);
  EXPECT_EQ(presses[0].X, 12);
  EXPECT_EQ(presses[0].Y, 34);
  // Not when the picture has just been closed.
  world.View.PictureMode = MapShows::Map;
  world.Controls.Picture.Click();
  EXPECT_EQ(presses.size(), 1u);
}

}  // namespace
}  // namespace zepril
