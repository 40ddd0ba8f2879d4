// The emergency over everything, the weather beside its record, and the keys of outside viewers, in
// the window.
#include "desktop/report_panels.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QXmlStreamReader>

#include "tests/desktop/main_window_support.h"
#include "viewers/outside_links.h"

namespace zepril {
namespace {

class ReportPanelsTest : public MainWindowTest {
 protected:
  // What lies in front of all else at the middle of `widget`.
  bool LiesInFront(const QWidget* widget) {
    const QPoint middle = widget->mapTo(window.get(), widget->rect().center());
    const QWidget* hit = window->childAt(middle);
    return hit == widget || widget->isAncestorOf(hit);
  }
  void HearEmergency() { Hear("QX7GW", "=5230.24N\\01324.31E!help"); }
};

TEST_F(ReportPanelsTest, AnEmergencyLiesOverEverything) {
  QTest::mouseClick(Find<QPushButton>(*window, "Command3"), Qt::LeftButton);  // STATIONS
  HearEmergency();
  Pump();
  auto* panel = Find<QFrame>(*window, "Frame14");
  EXPECT_TRUE(panel->isVisible());
  EXPECT_TRUE(LiesInFront(panel));
  EXPECT_TRUE(
      Find<QLabel>(*window, "EmergencyCall")->text().startsWith(QStringLiteral("QX7GW       20")));
  // What is opened later does not hide it.
  QTest::mouseClick(Find<QPushButton>(*window, "Command3"), Qt::LeftButton);
  QTest::mouseClick(Find<QPushButton>(*window, "Command3"), Qt::LeftButton);
  Controls().Picture.Frame8.Visible = true;
  loop.RunStep([] {});
  Pump();
  EXPECT_TRUE(LiesInFront(panel));
  // Nor does a set-up panel, which stands beside the map.
  loop.RunStep([this] { Controls().Transmit.Check6.RightClick(); });
  Pump();
  EXPECT_TRUE(Find<QFrame>(*window, "Frame4")->isVisible());
  EXPECT_TRUE(LiesInFront(panel));
  loop.RunStep([this] { Controls().TxSetup.TxAbort.Click(); });
  Pump();
  // Esc is no answer to it.
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_TRUE(panel->isVisible());
  QTest::mouseClick(Find<QPushButton>(*window, "EmergencyClose"), Qt::LeftButton);
  EXPECT_FALSE(panel->isVisible());
  EXPECT_EQ(State().Alarms.AlarmCall, "QX7GW");
}

TEST_F(ReportPanelsTest, AnEmergencyBringsAMinimisedWindowBack) {
  window->showMinimized();
  Pump();
  HearEmergency();
  Pump();
  EXPECT_FALSE(window->windowState().testFlag(Qt::WindowMinimized));
  EXPECT_TRUE(window->windowState().testFlag(Qt::WindowMaximized));
}

TEST_F(ReportPanelsTest, InTheLeastWindowTheEmergencyAndItsButtonsAreWhole) {
  Resize(640, 480);
  Hear("QX7GW", "=5230.24N\\01324.31E!" + std::string(46, 'w'));
  Pump();
  auto* panel = Find<QFrame>(*window, "Frame14");
  for (const char* name : {"EmergencyClose", "FalseAlarm"}) {
    auto* button = Find<QPushButton>(*window, name);
    EXPECT_TRUE(panel->rect().contains(QRect(button->mapTo(panel, QPoint()), button->size())))
        << name;
    EXPECT_TRUE(LiesInFront(button)) << name;
  }
  EXPECT_TRUE(window->rect().contains(panel->geometry()));
  EXPECT_LE(panel->width(), Map()->width());
}

TEST_F(ReportPanelsTest, TheReportOfAWeatherStationStandsAboveItsRecord) {
  Hear("QX7WX", "!5230.00N/01324.00E_220/004g005t077r000p000P000h50b10139");
  loop.RunStep([this] {
    Controls().MoniAll.Command3.Click();
    Controls().MoniAll.HeardList.ListIndex = 0;
    Controls().MoniAll.HeardList.Click();
  });
  Pump();
  auto* weather = Find<QFrame>(*window, "Frame15");
  auto* record = Find<QFrame>(*window, "Frame1");
  EXPECT_TRUE(weather->isVisible());
  EXPECT_FALSE(weather->geometry().intersects(record->geometry()));
  EXPECT_EQ(Find<QLabel>(*window, "Label37")->text(), QStringLiteral("PRESSURE   hPa: 1014"));
  // The picture was painted: its disc is there in a colour of 25 degrees.
  EXPECT_GT(CountOf(weather->grab().toImage(), weather->rect(), QColor(255, 255, 255)), 50);
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_FALSE(weather->isVisible());
  EXPECT_TRUE(record->isVisible());
  QTest::mouseClick(Find<QPushButton>(*window, "Command40"), Qt::LeftButton);
  EXPECT_TRUE(weather->isVisible());
}

TEST_F(ReportPanelsTest, TheFunctionKeysOpenWhatTheButtonsOpen) {
  State().Services.GoogleMaps = "https://g.example";
  State().Services.MinKarta = "https://m.example";
  State().Services.Norgeskart = "https://n.example";
  State().Services.Karttapaikka = "https://k.example";
  for (const auto key : {Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_F9})
    QTest::keyClick(window.get(), key);
  ASSERT_EQ(desktop.Opened.size(), 4U);
  EXPECT_TRUE(desktop.Opened[0].starts_with("https://m.example/?e="));
  EXPECT_TRUE(desktop.Opened[1].starts_with("https://n.example/#!?"));
  EXPECT_TRUE(desktop.Opened[2].starts_with("https://k.example/karttapaikka/"));
  EXPECT_TRUE(desktop.Opened[3].starts_with("https://g.example/maps/@"));
  QTest::keyClick(window.get(), Qt::Key_F4);
  ASSERT_EQ(desktop.Opened.size(), 5U);
  EXPECT_TRUE(desktop.Opened[4].ends_with("ZEPRIL.KML"));
  desktop.Clipboard = "@52.5041,13.4052,";
  QTest::keyClick(window.get(), Qt::Key_F10);
  EXPECT_EQ(State().Map.CentreNorthKm, 5818.303);
  desktop.Clipboard =
      "48\xB0"
      "30'N 13\xB0"
      "24'E";
  QTest::keyClick(window.get(), Qt::Key_F5);
  EXPECT_LT(State().Map.CentreNorthKm, 5500.0);
  // F1 to F3 are the coarser and the finer scale and the zoom.
  const double tile = State().Map.MapTileKm;
  QTest::keyClick(window.get(), Qt::Key_F1);
  EXPECT_GT(State().Map.MapTileKm, tile);
  QTest::keyClick(window.get(), Qt::Key_F2);
  EXPECT_EQ(State().Map.MapTileKm, tile);
  const double zoom = State().Map.ZoomFactor;
  QTest::keyClick(window.get(), Qt::Key_F3);
  EXPECT_NE(State().Map.ZoomFactor, zoom);
}

TEST_F(ReportPanelsTest, AFunctionKeyThatIsLeanedOnOpensOnce) {
  State().Services.GoogleMaps = "https://g.example";
  QKeyEvent first(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier);
  QCoreApplication::sendEvent(window.get(), &first);
  for (int repeat = 0; repeat < 50; ++repeat) {
    QKeyEvent again(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(window.get(), &again);
  }
  EXPECT_EQ(desktop.Opened.size(), 1U);
}

// Whatever stands in the label.
TEST(GlobeFileXml, IsWellFormed) {
  MapViewState view;
  view.CentreNorthKm = 5378.123;
  view.CentreEastKm = 412.345;
  std::string every;
  for (int byte = 0; byte < 256; ++byte)
    every += static_cast<char>(byte);
  for (const std::string& label : {std::string("52.5  13.4"), every, every + every}) {
    const std::string file = GlobeFile(label, PlaceOfCentre(view));
    QXmlStreamReader reader(QByteArray::fromStdString(file));
    QString name;
    while (!reader.atEnd()) {
      reader.readNext();
      if (reader.isStartElement() && reader.name() == QLatin1String("name"))
        name = reader.readElementText();
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    EXPECT_GE(static_cast<std::size_t>(name.size()), label.size());
  }
}

}  // namespace
}  // namespace zepril
