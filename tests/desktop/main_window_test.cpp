// The main window over a whole station: what the operator does reaches the program, what the
// program has to show is on the window.
#include "desktop/main_window.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

// ---- The picture ----------------------------------------------------------------------------

TEST_F(MainWindowTest, NothingMovesUnderTheHandWhenATextComes) {
  const auto place = [this] {
    const QWidget* tx = Find<>(*window, "Check6");
    return tx->mapTo(window.get(), QPoint());
  };
  loop.RunStep([this] {
    Controls().Moni1.Label9.Caption.clear();
    Controls().Moni1.Label10.Caption.clear();
  });
  Pump();
  const QPoint before = place();
  loop.RunStep([this] {
    Controls().Moni1.Label9.Caption = "2026-11-21 19:15  Car";
    Controls().Moni1.Label10.Caption = "TEXT: 169/057 Rostock - Berlin, QRV 145.500 and 144.800";
  });
  Pump();
  EXPECT_EQ(place(), before);
}

TEST_F(MainWindowTest, AHeardStationIsOnTheMapAfterTheTick) {
  const QColor violet = PlainColour(ColourMoniAll);
  EXPECT_EQ(CountOf(MapPicture(), Map()->rect(), violet), 0);
  HearStationAtCentre();
  ASSERT_EQ(State().Stores.MoniAllRecords.Count(), 1);
  const QImage picture = MapPicture();
  const PixelPoint at = PixelOfLastStation();
  // The tile is the ground nearly everywhere.
  const int pixels = picture.width() * picture.height();
  EXPECT_GT(CountOf(picture, picture.rect(), TileColour()), pixels * 9 / 10);
  // The mark: its rings of violet, white and black around the position.
  const QRect mark(at.X - 6, at.Y - 6, 13, 13);
  EXPECT_GE(CountOf(picture, mark, violet), 4);
  EXPECT_GE(CountOf(picture, mark, QColor(Qt::white)), 10);
  EXPECT_GE(CountOf(picture, mark, QColor(Qt::black)), 10);
  // The label to its right: a violet box of six letters with white writing.
  const QRect label(at.X + 8, at.Y - 8, 6 * 8 + 4, 17);
  EXPECT_GE(CountOf(picture, label, violet), 300);
  EXPECT_GE(CountOf(picture, label, QColor(Qt::white)), 60);
  // Nothing of it far away.
  EXPECT_EQ(CountOf(picture, QRect(0, 0, picture.width(), at.Y - 60), violet), 0);
}

TEST_F(MainWindowTest, EachMapPixelIsABlockOnAScreenOfTwiceTheScale) {
  HearStationAtCentre();
  QImage twice(Map()->size() * 2, QImage::Format_RGB32);
  twice.setDevicePixelRatio(2.0);
  Map()->render(&twice, QPoint(), QRegion(), QWidget::RenderFlags());
  const QImage& once = map_surface.Picture();
  ASSERT_EQ(once.size() * 2, twice.size());
  int wrong = 0;
  for (int y = 0; y < twice.height(); ++y) {
    for (int x = 0; x < twice.width(); ++x) {
      if (twice.pixel(x, y) != once.pixel(x / 2, y / 2)) ++wrong;
    }
  }
  EXPECT_EQ(wrong, 0);
}

TEST_F(MainWindowTest, WhileTheMapIsHiddenThePlainFormIsSeen) {
  base_surface.Clear(0x0000FF);
  loop.RunStep([this] { Controls().Map.Picture1.Visible = false; });
  EXPECT_EQ(MapPicture().pixelColor(5, 5), QColor(255, 0, 0));
  loop.RunStep([this] { Controls().Map.Picture1.Visible = true; });
  EXPECT_NE(MapPicture().pixelColor(5, 5), QColor(255, 0, 0));
}

TEST_F(MainWindowTest, ReadOutsShowTheCentreAndStepTheirSystem) {
  auto* upper = Find<QLabel>(*window, "Label1");
  EXPECT_TRUE(upper->text().contains(QStringLiteral("5817.860"))) << upper->text().toStdString();
  EXPECT_TRUE(Find<QLabel>(*window, "Label2")->text().contains(QStringLiteral("391.394")));
  QTest::mouseClick(upper, Qt::LeftButton);
  EXPECT_TRUE(upper->text().startsWith(QStringLiteral("GLLcen 52:")))
      << upper->text().toStdString();
}

// ---- Mouse and keys -------------------------------------------------------------------------

TEST_F(MainWindowTest, ALeftPressMovesTheCentreThere) {
  const double east = State().Map.CentreEastKm;
  const double north = State().Map.CentreNorthKm;
  const PixelPoint middle = CentrePixel(State().Map);
  QTest::mouseClick(Map(), Qt::LeftButton, {}, QPoint(middle.X + 100, middle.Y - 40));
  EXPECT_NEAR(State().Map.CentreEastKm, east + 5.0, 0.06);
  EXPECT_NEAR(State().Map.CentreNorthKm, north + 2.0, 0.06);
  EXPECT_TRUE(Find<QLabel>(*window, "Label2")->text().contains(QStringLiteral("396.")));
}

TEST_F(MainWindowTest, MovingThePointerShowsItsPosition) {
  const QString before = Find<QLabel>(*window, "Label4")->text();
  QTest::mouseMove(Map(), QPoint(30, 30));
  QTest::mouseMove(Map(), QPoint(40, 30));
  EXPECT_NE(Find<QLabel>(*window, "Label4")->text(), before);
}

TEST_F(MainWindowTest, ARightPressOnAStationOpensItsRecord) {
  HearStationAtCentre();
  const PixelPoint at = PixelOfLastStation();
  QTest::mouseClick(Map(), Qt::RightButton, {}, QPoint(at.X, at.Y));
  EXPECT_TRUE(Controls().Record.Frame1.Visible);
  auto* panel = Find<>(*window, "Frame1");
  EXPECT_TRUE(panel->isVisible());
  EXPECT_TRUE(Find<QLabel>(*window, "Label20")->text().contains(QStringLiteral("N0CALL")));
  EXPECT_TRUE(Map()->rect().contains(panel->geometry()));
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_FALSE(panel->isVisible());
}

TEST_F(MainWindowTest, ShiftF10OnTheMapIsARightPressAtThePointer) {
  int presses = 0;
  Controls().Map.Picture1.MouseDown = nullptr;
  Controls().Map.Picture1.MouseDown = [&](MousePress press) {
    EXPECT_EQ(press.Button, 2);
    ++presses;
  };
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(presses, 1);
  AskForMenu(Map(), true);
  EXPECT_EQ(presses, 2);
  AskForMenu(Map(), false);  // the press itself has come already
  EXPECT_EQ(presses, 2);
}

TEST_F(MainWindowTest, WheelAndKeysZoom) {
  Turn(120);
  EXPECT_EQ(State().Map.ZoomFactor, 0.5);
  Turn(-120);
  EXPECT_EQ(State().Map.ZoomFactor, 1.0);
  Turn(-60);  // half a step does nothing yet
  EXPECT_EQ(State().Map.ZoomFactor, 1.0);
  Turn(-60);
  EXPECT_EQ(State().Map.ZoomFactor, 2.0);
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Plus);
  EXPECT_EQ(State().Map.ZoomFactor, 1.0);
  QTest::keyClick(Map(), Qt::Key_Minus);
  EXPECT_EQ(State().Map.ZoomFactor, 2.0);
}

TEST_F(MainWindowTest, KeysStepScaleAndLabelsAndCentre) {
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_PageUp);
  EXPECT_EQ(State().Map.MapTileKm, 200.0);
  QTest::keyClick(Map(), Qt::Key_PageDown);
  EXPECT_EQ(State().Map.MapTileKm, 50.0);
  const std::string level = Controls().MoniAll.Label16.Caption;
  QTest::keyClick(Map(), Qt::Key_L);
  EXPECT_NE(Controls().MoniAll.Label16.Caption, level);
  // Home centres to the record shown.
  HearStationAtCentre();
  const PixelPoint at = PixelOfLastStation();
  QTest::mouseClick(Map(), Qt::RightButton, {}, QPoint(at.X, at.Y));
  State().Map.CentreNorthKm = 5900.0;
  QTest::keyClick(Map(), Qt::Key_Home);
  EXPECT_NEAR(State().Map.CentreNorthKm, 5817.86, 0.01);
  EXPECT_EQ(State().Map.MapLockedOnRecord, 1);
}

TEST_F(MainWindowTest, ControlKeysFindAndShowTheRawList) {
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_R, Qt::ControlModifier);
  EXPECT_TRUE(Find<QListView>(*window, "RawList")->isVisible());
  QTest::keyClick(Map(), Qt::Key_R, Qt::ControlModifier);
  EXPECT_FALSE(Find<QListView>(*window, "RawList")->isVisible());
  QTest::keyClick(Map(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "Text15"));
  // Esc leaves the field.
  QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
  EXPECT_EQ(window->focusWidget(), Map());
}

TEST_F(MainWindowTest, ControlFFindsTheFieldAlsoInTheDrawer) {
  Resize(660, 600);
  Find<QTabWidget>(*window, "Drawer")->setCurrentIndex(2);  // POSITION
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(Find<>(*window, "Text15")->isVisible());
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "Text15"));
}

TEST_F(MainWindowTest, KeysMeanLettersWhileTypingInAField) {
  const std::string level = Controls().MoniAll.Label16.Caption;
  for (QWidget* field : {Find<>(*window, "Text15"),
                         static_cast<QWidget*>(Find<QComboBox>(*window, "Combo9")->lineEdit())}) {
    field->setFocus();
    for (Qt::Key key : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_L}) {
      QTest::keyClick(field, key);
    }
    QTest::keyClick(field, Qt::Key_R, Qt::ControlModifier);
  }
  EXPECT_EQ(State().Map.ZoomFactor, 1.0);
  EXPECT_EQ(State().Map.MapTileKm, 50.0);
  EXPECT_EQ(Controls().MoniAll.Label16.Caption, level);
  EXPECT_FALSE(Controls().Raw.RawList.Visible);
  EXPECT_EQ(Controls().MoniAll.Text15.Text, "l+-");  // typed before the "+" at Home
}

TEST_F(MainWindowTest, TheTickLeavesTheFieldToTheOneWhoTypes) {
  loop.RunStep([this] {
    Controls().Raw.RawList.Visible = true;
    Controls().Qth.Frame2.Visible = true;
  });
  for (const char* name : {"Text15", "Text14", "TextQthNorth", "TextQthEast", "Combo9"}) {
    QWidget* field = Find<>(*window, name);
    field->setFocus();
    State().Map.MapDrawn = false;
    Tick();
    loop.RunStep([this] { Controls().Map.Command9.Click(); });
    EXPECT_TRUE(field->hasFocus()) << name;
    EXPECT_FALSE(Controls().Map.Picture1.FocusWanted) << name;
  }
  // From a button it comes back to the map.
  Controls().Qth.Frame2.Visible = false;  // it holds the cycle
  Find<>(*window, "Command13")->setFocus();
  State().Map.MapDrawn = false;
  Tick();
  EXPECT_TRUE(Map()->hasFocus());
}

TEST_F(MainWindowTest, EnterInTheCallFieldFollowsTheStation) {
  HearStationAtCentre();
  auto* field = Find<QComboBox>(*window, "Combo9");
  field->setFocus();
  field->lineEdit()->selectAll();
  QTest::keyClicks(field->lineEdit(), QStringLiteral("n0call"));
  QTest::keyClick(field->lineEdit(), Qt::Key_Return);
  // The call stays as typed; packets are compared with it without regard to case.
  EXPECT_EQ(State().Followed.Moni1Call, "n0call");
  EXPECT_EQ(field->currentText(), QStringLiteral("n0call"));
  EXPECT_EQ(State().Stores.Moni1Records.Count(), 1);
}

TEST_F(MainWindowTest, ThePointerShowsThatTheProgramIsBusy) {
  loop.RunStep([this] { Controls().Map.Picture1.Pointer = PointerShape::Hourglass; });
  EXPECT_EQ(Map()->cursor().shape(), Qt::WaitCursor);
  loop.RunStep([this] { Controls().Map.Picture1.Pointer = PointerShape::Default; });
  EXPECT_EQ(Map()->cursor().shape(), Qt::CrossCursor);
}

TEST_F(MainWindowTest, AWishForTheWholeScreenIsTakenOnce) {
  loop.RunStep([this] { Controls().Window.MaximiseWanted = true; });
  EXPECT_TRUE(window->windowState().testFlag(Qt::WindowMaximized));
  EXPECT_FALSE(Controls().Window.MaximiseWanted);
  window->setWindowState(Qt::WindowNoState);
  loop.RunStep([] {});
  EXPECT_FALSE(window->windowState().testFlag(Qt::WindowMaximized));
}

// ---- Sizes ----------------------------------------------------------------------------------

TEST_F(MainWindowTest, TheMapKeepsItsRoomAtEverySize) {
  for (const QSize size :
       {QSize(640, 480), QSize(760, 600), QSize(1280, 800), QSize(1920, 1080), QSize(3840, 2160)}) {
    Resize(size.width(), size.height());
    EXPECT_EQ(window->size(), size);
    EXPECT_TRUE(Map()->isVisible());
    EXPECT_GE(Map()->height(), 120) << size.width();
    EXPECT_GE(Map()->width(), 320) << size.width();
    EXPECT_EQ(map_surface.Picture().size(), Map()->size());
    EXPECT_EQ(State().Map.ViewWidthPx, Map()->width());
    // What stands on the map bar is on the window.
    for (const char* tool : {"Command1", "Command8", "Command12", "Option2", "Check4", "Check14",
                             "Command73", "Command72", "Command59"}) {
      const QWidget* widget = Find<>(*window, tool);
      const QRect place(widget->mapTo(window.get(), QPoint()), widget->size());
      EXPECT_TRUE(window->rect().contains(place)) << tool << " at " << size.width();
    }
  }
}

TEST_F(MainWindowTest, TheMapKeepsItsRoomBesideTheRawList) {
  for (const QSize size : {QSize(640, 480), QSize(1280, 800)}) {
    Resize(size.width(), size.height());
    loop.RunStep([this] { Controls().Raw.RawList.Visible = true; });
    Pump();
    EXPECT_GE(Map()->height(), 120) << size.width();
    EXPECT_TRUE(Find<>(*window, "RawList")->isVisible());
    loop.RunStep([this] { Controls().Raw.RawList.Visible = false; });
  }
}

TEST_F(MainWindowTest, ColumnsFoldIntoTheDrawerAndComeBack) {
  auto* drawer = Find<QTabWidget>(*window, "Drawer");
  const auto in_drawer = [&](const char* name) {
    return drawer->isAncestorOf(Find<>(*window, name));
  };
  Resize(800, 600);
  EXPECT_FALSE(drawer->isVisible());
  EXPECT_FALSE(in_drawer("Combo9"));
  Resize(780, 600);
  EXPECT_TRUE(drawer->isVisible());
  EXPECT_TRUE(in_drawer("Combo9"));
  EXPECT_FALSE(in_drawer("Label1"));
  Resize(690, 600);
  EXPECT_TRUE(in_drawer("Combo9"));
  EXPECT_TRUE(in_drawer("Label1"));
  Resize(1280, 800);
  EXPECT_FALSE(drawer->isVisible());
  EXPECT_FALSE(in_drawer("Combo9"));
  EXPECT_FALSE(in_drawer("Label1"));
  // Left of the map and right of it, as before, and of the same width.
  QWidget* left = Find<>(*window, "Label1");
  QWidget* right = Find<>(*window, "Combo9");
  const int map_left = Map()->mapTo(window.get(), QPoint()).x();
  EXPECT_TRUE(left->isVisible());
  EXPECT_TRUE(right->isVisible());
  EXPECT_LT(left->mapTo(window.get(), QPoint()).x(), map_left);
  EXPECT_EQ(map_left, 180);
  EXPECT_GE(right->mapTo(window.get(), QPoint()).x(), map_left + Map()->width());
}

TEST_F(MainWindowTest, ANewSizeInsideAStepIsTakenWhenTheStepHasEnded) {
  const QSize before = Map()->size();
  loop.RunStep([&] {
    Resize(1000, 700);
    EXPECT_NE(Map()->size(), before);
    // What may be painting right now keeps its surface and its view.
    EXPECT_EQ(map_surface.Picture().size(), before);
    EXPECT_EQ(State().Map.ViewWidthPx, before.width());
    // The window shows the old picture meanwhile.
    EXPECT_GT(CountOf(MapPicture(), Map()->rect(), TileColour()), 1000);
  });
  EXPECT_EQ(map_surface.Picture().size(), Map()->size());
  EXPECT_EQ(State().Map.ViewWidthPx, Map()->width());
  EXPECT_EQ(State().Map.ViewHeightPx, Map()->height());
}

// ---- Close ----------------------------------------------------------------------------------

TEST_F(MainWindowTest, ACloseRequestInsideAStepIsKeptUntilTheOutermostHasReturned) {
  loop.RunStep([this] {
    loop.RunStep([this] {
      window->close();
      EXPECT_EQ(closed, 0);
    });
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(window->isVisible());
  });
  EXPECT_EQ(closed, 1);
  loop.RunStep([] {});
  EXPECT_EQ(closed, 1);
}

TEST_F(MainWindowTest, ACloseRequestOutsideOfStepsActsAtOnce) {
  window->close();
  EXPECT_EQ(closed, 1);
}

}  // namespace
}  // namespace zepril
