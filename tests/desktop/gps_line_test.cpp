// The line of the GPS over the map: at its lower edge, under every panel.
#include <QLabel>

#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

constexpr const char* kLine =
    "   GPS-INFO:  GLN:___ 48.50N GLE:__ 8.0866E ALT:_____545.4_m Vkm:________22_km/h "
    "Vnm:______12.4_nm/h ERh:______15.0_m ERv:________13_m USE:_____08/11_sats";

class GpsLineTest : public MainWindowTest {
 protected:
  void Show(Label& line, const char* words) {
    loop.RunStep([&] {
      line.Caption = words;
      line.Visible = true;
    });
    Pump();
  }
  QLabel* Line(const char* name) { return Find<QLabel>(*window, name); }
};

TEST_F(GpsLineTest, LiesAtTheLowerEdgeOfTheMapAndFoldsWhereItIsTooLong) {
  Show(Controls().Gps.GpsInfo, kLine);
  const QLabel* line = Line("GpsInfo");
  ASSERT_TRUE(line->isVisible());
  EXPECT_EQ(line->text(), QString::fromLatin1(kLine));
  EXPECT_EQ(line->x(), 0);
  EXPECT_EQ(line->y() + line->height(), Map()->height());
  EXPECT_LE(line->width(), Map()->width());
  EXPECT_GE(line->height(), 2 * line->fontMetrics().height());
  window->resize(640, 480);
  Pump();
  EXPECT_EQ(line->y() + line->height(), Map()->height());
  EXPECT_LE(line->width(), Map()->width());
}

TEST_F(GpsLineTest, CoversNoPanel) {
  loop.RunStep([this] { Controls().Record.Frame1.Visible = true; });
  Show(Controls().Gps.GpsInfo, kLine);
  const QWidget* panel = Find<>(*window, "Frame1");
  const QPoint middle = panel->geometry().center();
  QWidget* top = Map()->childAt(middle);
  ASSERT_NE(top, nullptr);
  EXPECT_TRUE(top == panel || panel->isAncestorOf(top));
}

TEST_F(GpsLineTest, APressOnTheLineIsOneOnTheMapAndOneOnTheNoteClosesIt) {
  Show(Controls().Gps.GpsInfo, kLine);
  const QPoint at = Line("GpsInfo")->geometry().center();
  EXPECT_NE(Map()->childAt(at), Line("GpsInfo"));
  loop.RunStep([this] { Controls().Gps.GpsInfo.Visible = false; });
  Show(Controls().Gps.GpsNote, "GPS: no position since 12:34");
  QTest::mouseClick(Line("GpsNote"), Qt::LeftButton);
  Pump();
  EXPECT_FALSE(Line("GpsNote")->isVisible());
  EXPECT_FALSE(State().Map.ManualMapMove);
}

}  // namespace
}  // namespace zepril
