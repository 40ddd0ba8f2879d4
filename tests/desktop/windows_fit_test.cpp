// Windows and texts within the room there is: places on the screen, long texts, narrow columns.
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QHelpEvent>
#include <QScrollArea>
#include <QToolTip>

#include "desktop/fitted_label.h"
#include "desktop/scale_row.h"
#include "desktop/start_window.h"
#include "desktop/window_place.h"
#include "station/start/start_panel.h"
#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

// ---- Places ---------------------------------------------------------------------------------

TEST(WindowPlace, AWindowIsBroughtWhollyIntoTheScreen) {
  const QRect screen(0, 0, 1366, 768);
  EXPECT_EQ(BroughtInto(QRect(10, 20, 800, 600), screen), QRect(10, 20, 800, 600));
  EXPECT_EQ(BroughtInto(QRect(-50, -60, 800, 600), screen), QRect(0, 0, 800, 600));
  EXPECT_EQ(BroughtInto(QRect(1300, 700, 800, 600), screen), QRect(566, 168, 800, 600));
  EXPECT_EQ(BroughtInto(QRect(0, 0, 1920, 1080), screen), screen);
  EXPECT_EQ(BroughtInto(QRect(-100000, 100000, 100000, 1), screen), QRect(0, 767, 1366, 1));
  EXPECT_EQ(BroughtInto(QRect(5000, 0, 800, 600), QRect(1366, 0, 1280, 1024)),
            QRect(1846, 0, 800, 600));
}

TEST(WindowPlace, APlaceIsKeptAndGivenBack) {
  QWidget window;
  window.resize(300, 200);
  PlaceWindow(window, {}, "MAIN");
  const QRect room = window.screen()->availableGeometry();
  EXPECT_LE((window.geometry().center() - room.center()).manhattanLength(), 40);
  window.setGeometry(60, 70, 320, 240);
  const WindowValues kept = PlaceOf(window, "MAIN");
  EXPECT_EQ(kept.at("MAIN"), "60,70,320,240");
  QWidget next;
  PlaceWindow(next, kept, "MAIN");
  EXPECT_EQ(next.geometry(), QRect(60, 70, 320, 240));
}

TEST(WindowPlace, WhatIsNoPlaceGivesTheFirstOne) {
  for (const char* value : {"", "1,2,3", "1,2,0,0", "a,b,c,d", "1,2,-5,7"}) {
    QWidget window;
    window.resize(300, 200);
    PlaceWindow(window, {{"MAIN", value}}, "MAIN");
    EXPECT_EQ(window.size(), QSize(300, 200)) << value;
  }
}

TEST(WindowPlace, AScreenSmallerThanTheLeastSizeIsKeptTo) {
  QWidget window;
  window.setMinimumSize(3000, 2000);
  PlaceWindow(window, {}, "MAIN");
  EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()));
}

TEST(WindowPlace, AMaximisedWindowIsMaximisedAgain) {
  QWidget window;
  window.resize(300, 200);
  PlaceWindow(window, {{"MAINMAX", "1"}}, "MAIN");
  EXPECT_TRUE(window.isMaximized());
  EXPECT_EQ(PlaceOf(window, "MAIN").at("MAINMAX"), "1");
}

// ---- Texts ----------------------------------------------------------------------------------

class WindowsFitTest : public MainWindowTest {
 protected:
  FittedLabel* Fitted(const char* name) {
    auto* label = dynamic_cast<FittedLabel*>(Find<QLabel>(*window, name));
    EXPECT_NE(label, nullptr) << name;
    return label;
  }
  void ShowText(const std::string& text) {
    loop.RunStep([&] { Controls().Moni1.Label10.Caption = text; });
    Pump();
  }
};

TEST_F(WindowsFitTest, TheTextOfTheFollowedStationIsShownWhole) {
  const std::string longest = "TEXT: " + std::string(20, 'w') + "/" + std::string(26, 'x');
  for (const int height : {800, 480}) {  // with and without a scroll bar beside it
    Resize(1280, height);
    ShowText(longest);
    FittedLabel* label = Fitted("Label10");
    EXPECT_FALSE(label->IsCut());
    const QStringList lines = label->Lines();
    EXPECT_EQ(lines.join(QString()).toStdString(), longest);
    for (const QString& line : lines) {
      EXPECT_LE(label->fontMetrics().horizontalAdvance(line), label->contentsRect().width());
    }
    EXPECT_LE(lines.size() * label->fontMetrics().lineSpacing(), label->height());
  }
}

TEST_F(WindowsFitTest, WhatDoesNotFitEndsWithAnEllipsisAndIsToldInTheToolTip) {
  ShowText("TEXT: " + std::string(200, 'x'));
  EXPECT_TRUE(Fitted("Label10")->IsCut());
  EXPECT_TRUE(Fitted("Label10")->Lines().back().endsWith(QChar(0x2026)));
  QHelpEvent ask(QEvent::ToolTip, QPoint(5, 5), Fitted("Label10")->mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(Fitted("Label10"), &ask);
  EXPECT_TRUE(QToolTip::text().contains(QString(200, QLatin1Char('x'))));
  QToolTip::hideText();
}

TEST_F(WindowsFitTest, ALongPathIsCutWithASign) {
  Resize(640, 600);
  loop.RunStep([this] {
    Controls().Readouts.Label11.Caption =
        "DIST:  123 km   DIR:  45   SPEED:  12 km/h   VIA:QX1AAA-11*,QX1BBB-12,QX1CCC-13,WIDE2-1 Q";
  });
  FittedLabel* line = Fitted("Label11");
  ASSERT_TRUE(line->IsCut());
  EXPECT_EQ(line->Lines().size(), 1);
  EXPECT_TRUE(line->Lines().front().endsWith(QChar(0x2026)));
}

TEST_F(WindowsFitTest, TheRecordKeepsItsClassWithPathAndSymbol) {
  Hear("N0AAA", "=5230.00N/01324.00E>" + std::string(43, 'x'));
  for (const int width : {1366, 1280, 1100, 1000, 900, 800, 640}) {
    Resize(width, 700);
    loop.RunStep([this] {
      State().Stores.SelectedStationCall = "N0AAA";
      Controls().MoniAll.HeardPanel.Visible = false;
      Controls().MoniAll.Command3.Click();
      Controls().MoniAll.HeardList.ListIndex = 0;
      Controls().MoniAll.HeardList.Click();
    });
    Pump();
    const auto* label = Find<QLabel>(*window, "Label20");
    const QString text = label->text();
    EXPECT_TRUE(text.startsWith(QStringLiteral("2"))) << width;
    const QFontMetrics metrics = label->fontMetrics();
    if (!text.contains(QLatin1Char('\n'))) {
      EXPECT_LE(metrics.horizontalAdvance(text), label->width()) << width;
      continue;
    }
    // Path, symbol and class are the second line, and whole on it.
    const QString tail = text.section(QLatin1Char('\n'), 1);
    EXPECT_TRUE(tail.contains(QStringLiteral("/>"))) << width;
    EXPECT_TRUE(tail.trimmed().endsWith(QLatin1Char('0'))) << width;
    EXPECT_LE(metrics.horizontalAdvance(tail), label->width()) << width;
  }
}

TEST_F(WindowsFitTest, TheSignsOfTheScalesStandApart) {
  const QFontMetrics metrics(window->font());
  for (int width = 140; width <= 176; ++width) {
    const auto places = ScaleLegend::PlacesIn(width, metrics);
    EXPECT_GE(places.Second, places.FirstEnd + 6) << width;
    if (width < 148) continue;
    EXPECT_LE(places.SecondEnd, width) << width;
  }
}

TEST_F(WindowsFitTest, TheDimButtonLooksOnOnlyWhileTheMapIsDimmed) {
  const auto ground = [this] {
    const QImage button = Find<>(*window, "Command72")->grab().toImage();
    return button.pixelColor(button.width() / 2, 3);
  };
  const QColor off = ground();
  EXPECT_EQ(off, NightLook().Panel);
  loop.RunStep([this] { Controls().Map.Command72.Click(); });
  EXPECT_EQ(ground(), NightLook().Accent);
  loop.RunStep([this] { Controls().Map.Command72.Click(); });
  EXPECT_EQ(ground(), off);
}

// ---- The start window -----------------------------------------------------------------------

TEST_F(WindowsFitTest, OnALowScreenTheStartWindowScrollsAndStartStaysInSight) {
  StartPanel panel(MachineOf(files, loop, loop, dialogs, desktop, {{}, {&modem}, {}}), "C:\\ZEPRIL",
                   "");
  StartWindow start(panel, loop, fonts);
  start.resize(600, 360);
  start.show();
  Pump();
  EXPECT_LE(start.height(), 360);
  auto* button = Find<QPushButton>(start, "Command1");
  const QRect at(button->mapTo(&start, QPoint()), button->size());
  EXPECT_TRUE(start.rect().contains(at));
  auto* fields = Find<QScrollArea>(start, "StartFields");
  EXPECT_GT(fields->widget()->height(), fields->viewport()->height());
}

// ---- The next run ---------------------------------------------------------------------------

TEST_F(WindowsFitTest, PlaceAndDrawerAreThereAgain) {
  window->setGeometry(5, 40, 700, 500);
  QTest::keyClick(Map(), Qt::Key_R, Qt::ControlModifier);
  Pump();
  const WindowValues kept = window->Kept();
  EXPECT_EQ(kept.at("MAIN"), "5,40,700,500");
  EXPECT_EQ(kept.at("DRAWER"), "RAW");
  loop.RunStep([this] { Controls().Raw.RawList.Visible = false; });
  EXPECT_EQ(window->Kept().at("DRAWER"), "");
  window->TakeKept(kept);
  Pump();
  EXPECT_TRUE(Find<>(*window, "RawList")->isVisible());
  EXPECT_EQ(window->geometry(), QRect(5, 40, 700, 500));
}

}  // namespace
}  // namespace zepril
