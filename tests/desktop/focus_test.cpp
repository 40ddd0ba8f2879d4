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

TEST_F(FocusTest, TheMenuKeyInAPanelLooksUpNothingOnTheMap) {
  int presses = 0;
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
  EXPECT_EQ(window->focusWidget(), Find<>(*window, "Command13"));
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

}  // namespace
}  // namespace zepril
