// The layers' switches, the files at the left and the panels of the layers, on the window.
#include "desktop/layer_panels.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

class LayerPanelsTest : public MainWindowTest {
 protected:
  void Click(const char* name) { QTest::mouseClick(Find<>(*window, name), Qt::LeftButton); }
  // The widget lies wholly on the map.
  bool OnMap(const char* name) {
    const QWidget* panel = Find<>(*window, name);
    const auto place = [this](const QWidget* widget) {
      return QRect(widget->mapTo(window.get(), QPoint()), widget->size());
    };
    return panel->isVisible() && place(Map()).contains(place(panel));
  }
};

TEST_F(LayerPanelsTest, EachSwitchOfTheMapBarTurnsItsLayer) {
  Click("Check4");
  EXPECT_TRUE(State().Map.GridOn);
  Click("Check9");
  EXPECT_TRUE(State().Map.CirclesOn);
  Click("Check12");
  EXPECT_TRUE(State().Map.PicturesOn);
  Click("Check14");
  EXPECT_TRUE(State().Map.TracksOn);
  Click("Command73");
  EXPECT_EQ(State().Map.PoiLevel, 1);
  EXPECT_EQ(Find<QToolButton>(*window, "Command73")->text(), QStringLiteral("POI 1"));
  Click("Check4");
  EXPECT_FALSE(State().Map.GridOn);
  EXPECT_FALSE(Find<QToolButton>(*window, "Check4")->isChecked());
  EXPECT_TRUE(Find<QToolButton>(*window, "Check9")->isChecked());
}

TEST_F(LayerPanelsTest, EachLayerHasAKey) {
  Map()->setFocus();
  const auto press = [this](Qt::Key key) { QTest::keyClick(Map(), key); };
  press(Qt::Key_G);
  EXPECT_TRUE(State().Map.GridOn);
  press(Qt::Key_C);
  EXPECT_TRUE(State().Map.CirclesOn);
  press(Qt::Key_I);
  EXPECT_TRUE(State().Map.PicturesOn);
  press(Qt::Key_T);
  EXPECT_TRUE(State().Map.TracksOn);
  press(Qt::Key_P);
  EXPECT_EQ(State().Map.PoiLevel, 1);
  press(Qt::Key_D);
  EXPECT_EQ(State().Map.BrightnessStep, 1);
  press(Qt::Key_G);
  EXPECT_FALSE(State().Map.GridOn);
  EXPECT_FALSE(Find<QToolButton>(*window, "Check4")->isChecked());
}

TEST_F(LayerPanelsTest, ControlSAsksBeforeTheMapIsSaved) {
  dialogs.Expect("ZEP RIL", "SAVE MAP WINDOW TO FILE...  C:\\ZEPRIL\\MY_MAPS\\MAP_0001.BMP",
                 DialogAnswer::Ok);
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(files.Exists("C:\\ZEPRIL\\MY_MAPS\\MAP_0001.BMP"));
}

TEST_F(LayerPanelsTest, EveryControlIsReachedByTheKeyboard) {
  for (const char* name :
       {"Command1",  "Command2",  "Command7",     "Command9", "Command8",  "Command12",
        "Option1",   "Option2",   "Check4",       "Check9",   "Check12",   "Check14",
        "Command73", "Command72", "Command59",    "Label1",   "Label4",    "Label8",
        "Combo3",    "Combo8",    "Combo3Frames", "Command5", "Command37", "Combo1",
        "Command68", "Command69", "Frame10",      "Combo2",   "PoiNew"}) {
    EXPECT_TRUE((Find<>(*window, name)->focusPolicy() & Qt::TabFocus) != 0) << name;
  }
}

TEST_F(LayerPanelsTest, TheInputForTheCirclesOpensByMenuAndClosesByEsc) {
  AskForMenu(Find<>(*window, "Check9"), true);
  EXPECT_TRUE(OnMap("Frame18"));
  auto* sunspots = Find<QLineEdit>(*window, "Text11");
  EXPECT_EQ(window->focusWidget(), sunspots);
  sunspots->selectAll();
  QTest::keyClicks(sunspots, QStringLiteral("120"));
  QTest::keyClick(sunspots, Qt::Key_Return);
  EXPECT_EQ(State().Internet.SunspotNumber, 120.0);
  EXPECT_FALSE(Find<>(*window, "Frame18")->isVisible());
  AskForMenu(Find<>(*window, "Check9"), true);
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_FALSE(Find<>(*window, "Frame18")->isVisible());
}

TEST_F(LayerPanelsTest, APlaceIsMadeRenamedAndFoundAgain) {
  auto* file = Find<QComboBox>(*window, "Combo2");
  file->setFocus();
  QTest::keyClicks(file->lineEdit(), QStringLiteral("huts"));
  QTest::keyClick(file->lineEdit(), Qt::Key_Return);
  EXPECT_TRUE(files.Exists("C:\\ZEPRIL\\U33\\POI\\HUTS.POI"));
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_N);
  EXPECT_TRUE(OnMap("PoiPanel"));
  auto* name = Find<QLineEdit>(*window, "Text4");
  EXPECT_EQ(window->focusWidget(), name);
  QTest::keyClicks(name, QStringLiteral("HUT {https://zepril.example}"));
  QTest::keyClick(name, Qt::Key_Return);
  EXPECT_FALSE(Find<>(*window, "PoiPanel")->isVisible());
  ASSERT_EQ(State().Places.PoiPoints.Count(), 1);
  // A right press at its place opens it, with its link; places are on since it was made.
  const PixelPoint at = MarkPixel(State().Map, State().Places.PoiPoints.NorthKm(1),
                                  State().Places.PoiPoints.EastKm(1));
  QTest::mouseClick(Map(), Qt::RightButton, {}, QPoint(at.X, at.Y));
  EXPECT_TRUE(OnMap("PoiPanel"));
  EXPECT_EQ(name->text(), QStringLiteral("HUT {https://zepril.example}"));
  Click("Command67");
  EXPECT_EQ(desktop.Opened, (std::vector<std::string>{"https://zepril.example"}));
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_FALSE(Find<>(*window, "PoiPanel")->isVisible());
}

TEST_F(LayerPanelsTest, TheSunIsShownWhileTheRightButtonIsHeld) {
  QTest::mousePress(Map(), Qt::RightButton, {}, QPoint(20, 20));
  EXPECT_TRUE(OnMap("SunPanel"));
  const QString title = Find<QLabel>(*window, "SunTitle")->text();
  EXPECT_TRUE(title.contains(QStringLiteral("SUN CURVE  "))) << title.toStdString();
  QTest::mouseMove(Map(), QPoint(500, 500));
  EXPECT_TRUE(OnMap("SunPanel"));
  EXPECT_NE(Find<QLabel>(*window, "SunTitle")->text(), title);
  QTest::mouseRelease(Map(), Qt::RightButton, {}, QPoint(500, 500));
  EXPECT_FALSE(Find<>(*window, "SunPanel")->isVisible());
}

TEST_F(LayerPanelsTest, APictureFillsTheMapAndAClickOnItCentresThere) {
  files.MakeFolder("C:\\ZEPRIL\\U33\\UTMPICS");
  files.Write("C:\\ZEPRIL\\U33\\UTMPICS\\58170391.BMP", FourBitTile(kTileInk));
  Click("Command37");
  Click("Check12");
  const PixelPoint at = MarkPixel(State().Map, 5817.5, 391.5);
  QTest::mouseClick(Map(), Qt::RightButton, {}, QPoint(at.X, at.Y));
  EXPECT_EQ(State().Map.PictureMode, MapShows::Picture);
  EXPECT_TRUE(Find<>(*window, "Frame8")->isVisible());
  EXPECT_EQ(Find<>(*window, "Frame8")->geometry(), Map()->rect());
  // The picture itself is seen.
  EXPECT_TRUE(
      PumpUntil([&] { return CountOf(MapPicture(), Map()->rect(), TileColour()) > 10000; }));
  QTest::mouseClick(Find<>(*window, "Picture"), Qt::LeftButton);
  EXPECT_EQ(State().Map.PictureMode, MapShows::Map);
  EXPECT_FALSE(Find<>(*window, "Frame8")->isVisible());
  EXPECT_NEAR(State().Map.CentreNorthKm, 5817.499, 1e-9);
  EXPECT_NEAR(State().Map.CentreEastKm, 391.499, 1e-9);
}

TEST_F(LayerPanelsTest, LongWorkTellsHowFarItIs) {
  EXPECT_FALSE(Find<>(*window, "ProgressPanel")->isVisible());
  loop.RunStep([this] {
    Controls().Progress.ProgressText.Caption = "Reading TRK  40 %";
    Controls().Progress.ProgressBar.FilledPx = 48;
    Controls().Progress.ProgressPanel.Visible = true;
    loop.Wait(0.0);
    EXPECT_TRUE(OnMap("ProgressPanel"));
    EXPECT_EQ(Find<QLabel>(*window, "ProgressText")->text(), QStringLiteral("Reading TRK  40 %"));
    Controls().Progress.ProgressPanel.Visible = false;
  });
  EXPECT_FALSE(Find<>(*window, "ProgressPanel")->isVisible());
}

TEST_F(LayerPanelsTest, ProgressIsSeenOverASetUpPanel) {
  loop.RunStep([this] {
    Controls().TxSetup.Frame4.Visible = true;
    Controls().Progress.ProgressPanel.Visible = true;
  });
  const QWidget* progress = Find<>(*window, "ProgressPanel");
  const QPoint middle = progress->mapTo(window.get(), progress->rect().center());
  const QWidget* seen = window->childAt(middle);
  ASSERT_NE(seen, nullptr);
  EXPECT_TRUE(seen == progress || progress->isAncestorOf(seen)) << seen->objectName().toStdString();
}

TEST_F(LayerPanelsTest, ASetUpPanelHasItsHeightAtOnce) {
  // What the interface does not have is hidden in the same pass in which the panel comes.
  loop.RunStep([this] {
    TxSetupControls& tx = Controls().TxSetup;
    tx.Frame4.Visible = true;
    for (Control* row : std::initializer_list<Control*>{
             &tx.TxLevel, &tx.TxLevelLabel, &tx.CrossField, &tx.CrossUp, &tx.CrossDown}) {
      row->Visible = false;
    }
  });
  const int first = Find<>(*window, "Frame4")->height();
  Pump();
  loop.RunStep([] {});
  EXPECT_EQ(Find<>(*window, "Frame4")->height(), first);
}

TEST_F(LayerPanelsTest, PanelsStayOnTheMapAtEverySize) {
  loop.RunStep([this] {
    Controls().Places.PoiPanel.Visible = true;
    Controls().Iono.Frame18.Visible = true;
    Controls().Qth.Frame2.Visible = true;
    Controls().MoniAll.HeardPanel.Visible = true;
    Controls().Palette.PalettePanel.Visible = true;
    Controls().Sun.SunPanel.Visible = true;
    Controls().Progress.ProgressPanel.Visible = true;
  });
  for (const QSize size : {QSize(640, 480), QSize(800, 600), QSize(1280, 800), QSize(3840, 2160)}) {
    Resize(size.width(), size.height());
    for (const char* name : {"PoiPanel", "Frame18", "Frame2", "HeardPanel", "PalettePanel",
                             "SunPanel", "ProgressPanel"}) {
      EXPECT_TRUE(OnMap(name)) << name << " at " << size.width();
    }
  }
}

}  // namespace
}  // namespace zepril
