// Where the focus is and which keys reach the map: panels over it keep theirs, a redraw takes the
// focus from nobody who types or came by the keyboard.
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include "tests/desktop/main_window_support.h"

namespace zepril {
namespace {

class FocusTest : public MainWindowTest {
 protected:
  FocusTest() {
    State().Map.CursorX = 40.0;
    State().Map.CursorY = 30.0;
    north_ = State().Map.CentreNorthKm;
    east_ = State().Map.CentreEastKm;
  }
  bool MapStandsStill() {
    return State().Map.CentreNorthKm == north_ && State().Map.CentreEastKm == east_ &&
           State().Map.CursorX == 40.0 && State().Map.CursorY == 30.0;
  }
  void PressKeysOn(QWidget* widget) {
    widget->setFocus();
    ASSERT_EQ(window->focusWidget(), widget);
    for (const Qt::Key key :
         {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter}) {
      QTest::keyClick(widget, key);
    }
  }
  // A press of the Tab key puts the focus there.
  void TabTo(QWidget* widget) {
    widget->setFocus(Qt::TabFocusReason);
    ASSERT_EQ(window->focusWidget(), widget);
  }
  void Redraw() {
    loop.RunStep([this] { Controls().Map.Command9.Click(); });
  }

 private:
  double north_ = 0.0;
  double east_ = 0.0;
};

// ---- Keys on the map ------------------------------------------------------------------------

TEST_F(FocusTest, KeysOfAPanelDoNotReachTheMapBelow) {
  Controls().Qth.Frame2.Visible = true;
  Controls().Iono.Frame18.Visible = true;
  Controls().Places.PoiPanel.Visible = true;
  Controls().MoniAll.HeardPanel.Visible = true;
  Controls().Record.Frame1.Visible = true;
  loop.RunStep([] {});
  // The panels' own work is another matter.
  for (TextBox* field :
       {&Controls().Qth.TextQthNorth, &Controls().Qth.TextQthEast, &Controls().Iono.Text11,
        &Controls().Iono.Text12, &Controls().Places.Text4}) {
    field->KeyDown = nullptr;
  }
  Controls().Record.Label20.Click = nullptr;
  for (const char* name : {"TextQthNorth", "TextQthEast", "Text11", "Text12", "FoptDetailed",
                           "Text4", "HeardList", "Label20"}) {
    PressKeysOn(Find<>(*window, name));
    EXPECT_TRUE(MapStandsStill()) << name;
  }
}

// The field's own Enter closes the panel, and the map has the focus before the key is through.
TEST_F(FocusTest, AnEnterThatClosesItsPanelStopsThere) {
  for (TextBox* field : {&Controls().Iono.Text11, &Controls().Places.Text4}) {
    Frame& panel =
        field == &Controls().Iono.Text11 ? Controls().Iono.Frame18 : Controls().Places.PoiPanel;
    panel.Visible = true;
    field->KeyDown = nullptr;
    field->KeyDown = [this, &panel](KeyPress key) {
      if (key.Code != 13) return;
      panel.Visible = false;
      Controls().Map.Picture1.FocusWanted = true;
    };
    loop.RunStep([] {});
    int pressed = 0;
    Controls().Map.Picture1.KeyDown = nullptr;
    Controls().Map.Picture1.KeyDown = [&](KeyPress) { ++pressed; };
    auto* widget = Find<QLineEdit>(*window, field == &Controls().Iono.Text11 ? "Text11" : "Text4");
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_FALSE(panel.Visible);
    EXPECT_EQ(pressed, 0);
  }
}

TEST_F(FocusTest, WhatIsOpenedLastLiesOnTop) {
  loop.RunStep([this] { Controls().Record.Frame1.Visible = true; });
  loop.RunStep([this] { Controls().Places.PoiPanel.Visible = true; });
  auto* record = Find<QWidget>(*window, "Frame1");
  auto* places = Find<QWidget>(*window, "PoiPanel");
  ASSERT_EQ(record->parentWidget(), places->parentWidget());
  const QObjectList siblings = record->parentWidget()->children();
  EXPECT_GT(siblings.indexOf(places), siblings.indexOf(record));
  loop.RunStep([this] { Controls().Record.Frame1.Visible = false; });
  loop.RunStep([this] { Controls().Record.Frame1.Visible = true; });
  const QObjectList again = record->parentWidget()->children();
  EXPECT_GT(again.indexOf(record), again.indexOf(places));
}

TEST_F(FocusTest, TheMenuKeyInAPanelLooksUpNothingOnTheMap) {
  int presses = 0;
  Controls().Map.Picture1.MouseDown = nullptr;
  Controls().Map.Picture1.MouseDown = [&](MousePress) { ++presses; };
  loop.RunStep([this] { Controls().MoniAll.HeardPanel.Visible = true; });
  auto* list = Find<>(*window, "HeardList");
  list->setFocus();
  AskForMenu(list, true);
  QTest::keyClick(list, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(presses, 0);
}

// Proved once: the station then stood in the North Sea.
TEST_F(FocusTest, NumbersTypedEnteredAndTakenAreTheOwnPosition) {
  AskForMenu(Find<>(*window, "Option1"), false);
  for (const auto& [name, typed] :
       {std::pair{"TextQthNorth", "5830.5"}, std::pair{"TextQthEast", "380.25"}}) {
    auto* field = Find<QLineEdit>(*window, name);
    field->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(field, QString::fromLatin1(typed));
    QTest::keyClick(field, Qt::Key_Return);
  }
  QTest::mouseClick(Find<QPushButton>(*window, "QthOk"), Qt::LeftButton);
  EXPECT_FALSE(Find<>(*window, "Frame2")->isVisible());
  EXPECT_EQ(State().Map.OwnNorthKm, 5830.5);
  EXPECT_EQ(State().Map.OwnEastKm, 380.25);
}

TEST_F(FocusTest, KeysReachTheMapThatHasTheFocus) {
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Right);
  EXPECT_EQ(State().Map.CursorX, 41.0);
  QTest::keyClick(Map(), Qt::Key_Return);
  EXPECT_FALSE(MapStandsStill());
}

// ---- Redraws --------------------------------------------------------------------------------

TEST_F(FocusTest, ARedrawLeavesTheFocusToFieldsListsAndDropDowns) {
  QTest::keyClick(Map(), Qt::Key_R, Qt::ControlModifier);
  Controls().MoniAll.HeardPanel.Visible = true;
  loop.RunStep([] {});
  for (const char* name :
       {"Text15", "Combo9", "Combo3", "Combo1", "HeardList", "RawList", "Text14"}) {
    auto* widget = Find<>(*window, name);
    widget->setFocus(Qt::MouseFocusReason);
    ASSERT_EQ(window->focusWidget(), widget) << name;
    Redraw();
    EXPECT_EQ(window->focusWidget(), widget) << name;
    Tick();
    EXPECT_EQ(window->focusWidget(), widget) << name;
  }
}

TEST_F(FocusTest, ARedrawLeavesTheFocusToWhatTheKeyboardReached) {
  for (const char* name : {"Command3", "Check4", "Check10", "Combo3Frames", "Label1"}) {
    auto* widget = Find<>(*window, name);
    TabTo(widget);
    Redraw();
    EXPECT_EQ(window->focusWidget(), widget) << name;
    // Pressed by a key it stays there too.
    QTest::keyClick(widget, Qt::Key_Space);
    Redraw();
    EXPECT_EQ(window->focusWidget(), widget) << name;
  }
}

TEST_F(FocusTest, TheTabKeyGoesOnFromWhereItWasBeforeTheTick) {
  auto* first = Find<>(*window, "Command17");
  TabTo(first);
  HearStationAtCentre();  // redraws
  QTest::keyClick(first, Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "Check1"));
  Redraw();
  QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "Check22"));
  QTest::keyClick(window->focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "Check1"));
}

TEST_F(FocusTest, AnotherWindowInBetweenChangesNothing) {
  auto* button = Find<>(*window, "Command3");
  TabTo(button);
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(PumpUntil([&] { return QApplication::activeWindow() == &other; }));
  Tick();
  other.close();
  window->activateWindow();
  ASSERT_TRUE(PumpUntil([this] { return QApplication::activeWindow() == window.get(); }));
  Redraw();
  EXPECT_EQ(window->focusWidget(), button);
}

TEST_F(FocusTest, TheMapTakesTheFocusFromWhatTheMousePressed) {
  auto* button = Find<QPushButton>(*window, "Command13");
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(window->focusWidget(), Map());
  // Reached by the keyboard once, pressed with the mouse now.
  TabTo(button);
  Map()->setFocus(Qt::MouseFocusReason);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(window->focusWidget(), Map());
}

// ---- Fields that list files -----------------------------------------------------------------

class FileFieldTest : public FocusTest {
 protected:
  FileFieldTest() {
    files.MakeFolder("C:\\ZEPRIL\\U33\\POI");
    files.Write("C:\\ZEPRIL\\U33\\POI\\HUTS.POI", "\xFE 5800.000  400.000  HUT\r\n");
    Places().setFocus();
    Type("HUTS");
    QTest::keyClick(&Places(), Qt::Key_Return);
    Map()->setFocus();
  }
  QComboBox& Places() { return *Find<QComboBox>(*window, "Combo2"); }
  void Type(const char* text) {
    Places().lineEdit()->selectAll();
    QTest::keyClicks(&Places(), QString::fromLatin1(text));
  }
};

TEST_F(FileFieldTest, TheFieldGivesTheFocusBackAfterAChoice) {
  Places().setFocus(Qt::MouseFocusReason);
  Type("HUTS");
  QTest::keyClick(&Places(), Qt::Key_Return);
  EXPECT_EQ(window->focusWidget(), Map());
  Places().setFocus(Qt::MouseFocusReason);
  Type("LAKES");
  QTest::keyClick(&Places(), Qt::Key_Return);
  EXPECT_EQ(State().Settings.PoiFile, "LAKES");
  EXPECT_EQ(window->focusWidget(), Map());
  // The next letter is the map's.
  const int level = State().Map.PoiLevel;
  QTest::keyClick(window->focusWidget(), Qt::Key_P);
  EXPECT_NE(State().Map.PoiLevel, level);
  EXPECT_EQ(Places().currentText(), QStringLiteral("LAKES"));
}

TEST_F(FileFieldTest, LettersThatWereNotEnteredGoWithTheFocus) {
  Places().setFocus(Qt::MouseFocusReason);
  QTest::keyClicks(&Places(), QStringLiteral("gg"));
  QTest::mouseClick(Map(), Qt::LeftButton, {}, QPoint(20, 20));
  EXPECT_EQ(Places().currentText(), QStringLiteral("HUTS"));
  EXPECT_EQ(State().Settings.PoiFile, "HUTS");
}

TEST_F(FileFieldTest, PassingByWithTheTabKeyChoosesNothing) {
  auto* call = Find<QComboBox>(*window, "Combo9");
  TabTo(call);
  int chosen = 0;
  Controls().Moni1.Combo9.Click = nullptr;
  Controls().Moni1.Combo9.Click = [&] { ++chosen; };
  QTest::keyClick(call, Qt::Key_Tab);
  EXPECT_EQ(chosen, 0);
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "Command17"));
}

TEST_F(FocusTest, WhenAPanelGoesItsFocusGoesToTheMap) {
  loop.RunStep([this] { Controls().Iono.Frame18.Visible = true; });
  Find<>(*window, "Text11")->setFocus(Qt::TabFocusReason);
  loop.RunStep([this] { Controls().Iono.Frame18.Visible = false; });
  EXPECT_EQ(window->focusWidget(), Map());
  QTest::keyClick(Map(), Qt::Key_R, Qt::ControlModifier);
  Find<>(*window, "Text14")->setFocus(Qt::TabFocusReason);
  loop.RunStep([this] { Controls().Raw.Command57.Click(); });
  EXPECT_EQ(window->focusWidget(), Map());
}

// ---- Keys on buttons ------------------------------------------------------------------------

TEST_F(FocusTest, EnterPressesTheButtonThatHasTheFocus) {
  TabTo(Find<>(*window, "Command3"));
  QTest::keyClick(window->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(Controls().MoniAll.HeardPanel.Visible);
  TabTo(Find<>(*window, "Check4"));
  QTest::keyClick(window->focusWidget(), Qt::Key_Enter);
  EXPECT_TRUE(State().Map.GridOn);
  QTest::keyClick(window->focusWidget(), Qt::Key_Enter);
  EXPECT_FALSE(State().Map.GridOn);
  TabTo(Find<>(*window, "Combo3Frames"));
  QTest::keyClick(window->focusWidget(), Qt::Key_Enter);
  EXPECT_EQ(Controls().Scales.FrameBox[0].Value, 1);
  EXPECT_TRUE(MapStandsStill());
}

TEST_F(FocusTest, ALeanedOnEnterPressesOnce) {
  TabTo(Find<>(*window, "Check4"));
  for (int repeat = 0; repeat < 4; ++repeat) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                    repeat > 0);
    QApplication::sendEvent(window->focusWidget(), &press);
  }
  EXPECT_TRUE(State().Map.GridOn);
}

TEST_F(FocusTest, TheFocusIsSeenOnAButtonThatIsOn) {
  for (const char* name : {"Check4", "Check1", "Check10", "Combo3Frames", "Optionink3"}) {
    if (std::string(name) == "Optionink3") {
      loop.RunStep([this] { Controls().Palette.PalettePanel.Visible = true; });
    }
    auto* button = Find<QAbstractButton>(*window, name);
    button->setChecked(true);
    Map()->setFocus();
    const QImage without = button->grab().toImage();
    button->setFocus(Qt::TabFocusReason);
    const QImage with = button->grab().toImage();
    int changed = 0;
    for (int y = 0; y < with.height(); ++y)
      for (int x = 0; x < with.width(); ++x)
        if (with.pixel(x, y) != without.pixel(x, y)) ++changed;
    EXPECT_GE(changed, with.width() + with.height()) << name;
  }
}

TEST_F(FocusTest, ToolTipsTellTheKeys) {
  for (const auto& [name, key] :
       {std::pair{"Command8", "[+]"}, std::pair{"Check4", "[G]"}, std::pair{"Command3", "[Ctrl+L]"},
        std::pair{"Command57", "[Ctrl+R]"}, std::pair{"Command12", "[Home]"},
        std::pair{"PoiNew", "[N]"}, std::pair{"Command23", "[Esc]"}}) {
    const QString tip = Find<>(*window, name)->toolTip();
    EXPECT_TRUE(tip.endsWith(QString::fromLatin1(key))) << name << ": " << tip.toStdString();
  }
  // Switched off they are off.
  loop.RunStep([this] { Controls().Map.Check4.ToolTip.clear(); });
  EXPECT_TRUE(Find<>(*window, "Check4")->toolTip().isEmpty());
}

// ---- The pointer of the arrow keys ----------------------------------------------------------

class KeyPointerTest : public FocusTest {
 protected:
  // Where the picture on the window differs from the map that was painted.
  QRect Cross() {
    const QImage shown = Map()->grab().toImage();
    const QImage& painted = map_surface.Picture();
    QRect cross;
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x)
        if (shown.pixel(x, y) != painted.pixel(x, y) && !OverPanel(QPoint(x, y)))
          cross |= QRect(x, y, 1, 1);
    return cross;
  }
  bool OverPanel(const QPoint& at) { return Map()->childAt(at) != nullptr; }
};

TEST_F(KeyPointerTest, ItIsSeenWhereTheKeysBroughtIt) {
  Map()->setFocus();
  EXPECT_TRUE(Cross().isEmpty());
  QTest::keyClick(Map(), Qt::Key_Right, Qt::ShiftModifier);
  const QRect cross = Cross();
  EXPECT_EQ(cross.center(), QPoint(50, 30));
  EXPECT_LE(cross.width(), 20);
  // The mouse takes over.
  QTest::mouseMove(Map(), QPoint(200, 200));
  EXPECT_TRUE(Cross().isEmpty());
}

TEST_F(KeyPointerTest, ShiftF10LooksUpThereAndNotAtTheMouse) {
  Map()->setFocus();
  QTest::keyClick(Map(), Qt::Key_Right, Qt::ShiftModifier);
  MousePress last;
  Controls().Map.Picture1.MouseDown = nullptr;
  Controls().Map.Picture1.MouseDown = [&](MousePress press) { last = press; };
  QTest::keyClick(Map(), Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(last.Button, 2);
  EXPECT_EQ(last.X, 50.0);
  EXPECT_EQ(last.Y, 30.0);
}

}  // namespace
}  // namespace zepril
