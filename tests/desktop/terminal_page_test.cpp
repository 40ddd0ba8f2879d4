// The terminal in the drawer: its keys, its place, its ways out.
#include "desktop/terminal_page.h"

#include "tests/desktop/transmit_panels_support.h"

namespace zepril {
namespace {

class TerminalPageTest : public TransmitPanelsTest {};

TEST_F(TerminalPageTest, TheTerminalOpensInTheDrawerWithTheFocusInItsField) {
  auto* drawer = Find<QTabWidget>(*window, "Drawer");
  loop.RunStep([this] { Controls().Raw.RawList.Visible = true; });
  OpenTerminal();
  EXPECT_TRUE(Find<>(*window, "Frame19")->isVisible());
  EXPECT_EQ(drawer->tabText(drawer->currentIndex()), QStringLiteral("TERMINAL"));
  EXPECT_TRUE(Find<>(*window, "Text19")->hasFocus());
  loop.RunStep([this] {
    Terminal().Text20.Text = "cmd:\r";
    Terminal().Text19.Text = "K";
  });
  EXPECT_EQ(Find<QPlainTextEdit>(*window, "Text20")->toPlainText(), QStringLiteral("cmd:\n"));
  EXPECT_EQ(Find<QPlainTextEdit>(*window, "Text19")->toPlainText(), QStringLiteral("K"));
  loop.RunStep([this] { Terminal().Frame19.Visible = false; });
  EXPECT_FALSE(Find<>(*window, "Frame19")->isVisible());
  EXPECT_TRUE(Find<>(*window, "RawList")->isVisible());
  loop.RunStep([this] { Controls().Raw.RawList.Visible = false; });
  EXPECT_FALSE(drawer->isVisible());
}

TEST_F(TerminalPageTest, TheDrawerHasItsHeightAgainAfterTheTerminal) {
  loop.RunStep([this] { Controls().Raw.RawList.Visible = true; });
  Pump();
  const int height = Find<>(*window, "Drawer")->height();
  OpenTerminal();
  EXPECT_GT(Find<>(*window, "Drawer")->height(), height);
  loop.RunStep([this] { Terminal().Frame19.Visible = false; });
  Pump();
  EXPECT_EQ(Find<>(*window, "Drawer")->height(), height);
}

TEST_F(TerminalPageTest, AllKeysInTheTerminalGoToTheModem) {
  int pressed = 0;
  Terminal().Command66.Click = nullptr;
  Terminal().Command66.Click = [&] { ++pressed; };
  Controls().Transmit.Check6.RightClick = nullptr;
  Controls().Transmit.Check6.RightClick = [&] { ++pressed; };
  OpenTerminal();
  auto* field = Find<>(*window, "Text19");
  for (Qt::Key key : {Qt::Key_G, Qt::Key_Plus, Qt::Key_L}) {
    QTest::keyClick(field, key);
  }
  QTest::keyClick(field, Qt::Key_Escape);
  QTest::keyClick(field, Qt::Key_T, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_R, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_PageUp);
  QTest::keyClick(field, Qt::Key_Home);
  EXPECT_EQ(typed, "g+l\x1B\x14\x12");
  EXPECT_EQ(pressed, 0);
  EXPECT_FALSE(State().Map.GridOn);
  EXPECT_EQ(State().Map.ZoomFactor, 1.0);
  EXPECT_EQ(State().Map.MapTileKm, 50.0);
  EXPECT_FALSE(Controls().Raw.RawList.Visible);
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(TerminalPageTest, ARedrawLeavesTheTerminalTheFocus) {
  OpenTerminal();
  loop.RunStep([this] { Controls().Map.Picture1.FocusWanted = true; });
  EXPECT_TRUE(Find<>(*window, "Text19")->hasFocus());
}

TEST_F(TerminalPageTest, TheTerminalIsLeftByAltCAndByEscFromElsewhere) {
  int closes = 0;
  Terminal().Command66.Click = nullptr;
  Terminal().Command66.Click = [&] { ++closes; };
  OpenTerminal();
  QTest::keyClick(Find<>(*window, "Text19"), Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(closes, 1);
  EXPECT_EQ(typed, "");
  Click("Command66");
  EXPECT_EQ(closes, 2);
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Escape);
  EXPECT_EQ(closes, 3);
  loop.RunStep([this] { Terminal().Frame19.Visible = false; });
  QTest::keyClick(Map(), Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(closes, 3);
}

TEST_F(TerminalPageTest, AClickIntoWhatTheModemPrintsIsTold) {
  int clicks = 0;
  Terminal().Text20.Click = nullptr;
  Terminal().Text20.Click = [&] {
    ++clicks;
    Terminal().Text19.FocusWanted = true;
  };
  OpenTerminal();
  QTest::mouseClick(Find<QPlainTextEdit>(*window, "Text20")->viewport(), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(Find<>(*window, "Text19")->hasFocus());
}

// What is printed there can be clicked into, and no key leads there.
TEST_F(TerminalPageTest, TheTabKeysPassWhatTheModemPrints) {
  OpenTerminal();
  QTest::keyClick(Find<>(*window, "Text19"), Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_FALSE(Find<>(*window, "Text19")->hasFocus());
  EXPECT_FALSE(Find<>(*window, "Text20")->hasFocus());
}

TEST_F(TerminalPageTest, TheTerminalFitsAtEverySize) {
  OpenTerminal();
  for (const QSize size : {QSize(640, 480), QSize(1280, 800), QSize(3840, 2160)}) {
    Resize(size.width(), size.height());
    for (const char* name : {"Label47", "Text20", "Text19", "Command66"}) {
      const QWidget* widget = Find<>(*window, name);
      EXPECT_TRUE(widget->isVisible());
      EXPECT_TRUE(PlaceOf(Find<>(*window, "Frame19")).contains(PlaceOf(widget)))
          << name << " at " << size.width();
    }
    const auto* rule = Find<QLabel>(*window, "Label47");
    const QRect needed = rule->fontMetrics().boundingRect(QRect(0, 0, rule->width(), 1000),
                                                          Qt::TextWordWrap, rule->text());
    EXPECT_LE(needed.height(), rule->height()) << size.width();
    EXPECT_GE(Find<>(*window, "Text20")->height(), 32) << size.width();
    EXPECT_GE(Map()->height(), 120) << size.width();
  }
}

TEST_F(TerminalPageTest, TheTerminalIsAskedForByItsButton) {
  int asked = 0;
  Terminal().Command65.Click = nullptr;
  Terminal().Command65.Click = [&] { ++asked; };
  loop.RunStep([this] { Terminal().Command65.Enabled = true; });
  Click("Command65");
  EXPECT_EQ(asked, 1);
}

}  // namespace
}  // namespace zepril
