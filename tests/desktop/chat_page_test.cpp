// The chat in the drawer: its place, its keys, its colours, and what comes while somebody types.
#include "desktop/chat_page.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

class ChatPageTest : public MainWindowTest {
 protected:
  ChatControls& Chat() { return Controls().Chat; }
  QTabWidget* Drawer() { return Find<QTabWidget>(*window, "Drawer"); }
  QString Page() { return Drawer()->tabText(Drawer()->currentIndex()); }
  void OpenChat() {
    QTest::mouseClick(Find<QPushButton>(*window, "Check7"), Qt::LeftButton);
    Pump();
  }
};

TEST_F(ChatPageTest, TheSwitchOpensItInTheDrawerAndClosesIt) {
  OpenChat();
  EXPECT_TRUE(Find<>(*window, "Frame3")->isVisible());
  EXPECT_EQ(Page(), QStringLiteral("CHAT"));
  EXPECT_TRUE(Find<>(*window, "Text2")->hasFocus());
  OpenChat();
  EXPECT_FALSE(Find<>(*window, "Frame3")->isVisible());
  EXPECT_FALSE(Drawer()->isVisible());
}

// A pass of messages looks for it between two frames.
TEST_F(ChatPageTest, APressInsideAStepIsNotedAtTheSwitchAndActsBehindIt) {
  OpenChat();
  auto* button = Find<QPushButton>(*window, "Check7");
  loop.RunStep([&] {
    loop.NoticePresses();
    EXPECT_FALSE(Chat().Check7.PressWaits);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      button->mapTo(window.get(), button->rect().center()));
    loop.NoticePresses();
    EXPECT_TRUE(Chat().Check7.PressWaits);
    EXPECT_FALSE(Chat().Check8.PressWaits);
    EXPECT_EQ(Chat().Check7.Value, 1);
  });
  EXPECT_FALSE(Chat().Check7.PressWaits);
  EXPECT_TRUE(PumpUntil([this] { return Chat().Check7.Value == 0; }));
  loop.RunStep([&] {
    button->setFocus();
    QTest::keyClick(window->windowHandle(), Qt::Key_Space);
    loop.NoticePresses();
  });
  EXPECT_FALSE(Chat().Check7.PressWaits);
}

TEST_F(ChatPageTest, ALineIsTypedAndShownInTheInkOfItsState) {
  QTest::keyClick(window.get(), Qt::Key_M, Qt::ControlModifier);
  Pump();
  auto* message = Find<QLineEdit>(*window, "Text3");
  EXPECT_TRUE(message->hasFocus());
  QTest::keyClicks(Find<QLineEdit>(*window, "Text2"), QStringLiteral("n0call"));
  QTest::keyClick(Find<QLineEdit>(*window, "Text2"), Qt::Key_Return);
  EXPECT_TRUE(message->hasFocus());
  QTest::keyClicks(message, QStringLiteral("a + b"));
  QTest::keyClick(message, Qt::Key_Return);
  auto* newest = Find<QLabel>(*window, "Text1_7");
  EXPECT_EQ(newest->text(), QStringLiteral("    QX7KB:N0CALL   :a + b{01"));
  EXPECT_EQ(newest->toolTip(), QStringLiteral("not sent yet, up to 5 sends"));
  EXPECT_EQ(newest->palette().color(newest->foregroundRole()), *ChatInk(250, NightLook()));
  EXPECT_EQ(message->text(), QString());
  EXPECT_EQ(State().Map.ZoomFactor, 1.0);
}

TEST_F(ChatPageTest, AKeyThatIsLeanedOnSendsNothingMore) {
  OpenChat();
  State().Chat.AutoAnswerOn = 1;  // the text stays in the field
  loop.RunStep([this] {
    Chat().Text2.Text = "N0CALL";
    Chat().Text3.Text = "AA: busy";
  });
  auto* message = Find<QLineEdit>(*window, "Text3");
  QTest::keyClick(message, Qt::Key_Return);
  for (int repeat = 0; repeat < 20; ++repeat) {
    QKeyEvent leaned(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"), true);
    QApplication::sendEvent(message, &leaned);
  }
  EXPECT_EQ(State().Chat.ChatSerial, 1);
}

TEST_F(ChatPageTest, AMessageOpensItAndTheButtonCounts) {
  Hear("N0CALL", ":QX7KB    :Hello & good day{07");
  Pump();
  EXPECT_EQ(Page(), QStringLiteral("CHAT"));
  EXPECT_EQ(Find<QLabel>(*window, "Text1_7")->text(),
            QStringLiteral("N0CALL   :QX7KB    :Hello & good day{07"));
  EXPECT_EQ(Find<QPushButton>(*window, "Check7")->text(), QStringLiteral("CHAT 1"));
  QTest::mouseClick(Find<>(*window, "Text1_7"), Qt::LeftButton);
  EXPECT_EQ(Find<QPushButton>(*window, "Check7")->text(), QStringLiteral("CHAT"));
  EXPECT_EQ(Find<QLineEdit>(*window, "Text2")->text(), QStringLiteral("N0CALL"));
}

TEST_F(ChatPageTest, ItComesBehindAPageInWhichSomebodyTypes) {
  loop.RunStep([this] { Controls().Raw.RawList.Visible = true; });
  Find<>(*window, "Text14")->setFocus();
  Hear("N0CALL", ":QX7KB    :Hello{07");
  Pump();
  EXPECT_EQ(Page(), QStringLiteral("RAW"));
  EXPECT_TRUE(Find<>(*window, "Text14")->hasFocus());
  QTest::keyClick(window.get(), Qt::Key_M, Qt::ControlModifier);
  EXPECT_EQ(Drawer()->count(), 2);
}

TEST_F(ChatPageTest, TheLogStandsInThePlaceOfTheLines) {
  OpenChat();
  QTest::mouseClick(Find<QPushButton>(*window, "Command24"), Qt::LeftButton);
  Pump();
  EXPECT_TRUE(Find<>(*window, "Text5")->isVisible());
  EXPECT_FALSE(Find<>(*window, "Text1_7")->isVisible());
  QTest::mouseClick(Find<QPushButton>(*window, "Command28"), Qt::LeftButton);
  Pump();
  EXPECT_FALSE(Find<>(*window, "Text5")->isVisible());
  EXPECT_TRUE(Find<>(*window, "Text1_7")->isVisible());
}

TEST_F(ChatPageTest, InALowWindowFourLinesAreSeen) {
  Resize(640, 480);
  OpenChat();
  Pump();
  const auto* newest = Find<QWidget>(*window, "Text1_7");
  const auto* fourth = Find<QWidget>(*window, "Text1_4");
  EXPECT_FALSE(newest->visibleRegion().isEmpty());
  EXPECT_FALSE(fourth->visibleRegion().isEmpty());
}

TEST_F(ChatPageTest, AllOfItFitsIntoTheLeastWindow) {
  for (const QSize& size : {QSize(1280, 800), QSize(640, 480)}) {
    Resize(size.width(), size.height());
    if (!Chat().Frame3.Visible) OpenChat();
    const QRect inside(QPoint(0, 0), window->size());
    for (const char* name : {"Text2", "Text3", "Command16", "Check16", "Check8", "Command24",
                             "Command25", "Text1_7"}) {
      auto* widget = Find<>(*window, name);
      EXPECT_TRUE(widget->isVisible()) << name;
      EXPECT_FALSE(widget->visibleRegion().isEmpty()) << name;
      const QRect place(widget->mapTo(window.get(), QPoint(0, 0)), widget->size());
      EXPECT_TRUE(inside.contains(place)) << name << " at " << size.width();
    }
  }
}

}  // namespace
}  // namespace zepril
