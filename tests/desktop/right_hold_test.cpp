// A list on which the second button is held: it begins once, and whatever happens it ends once.
#include "desktop/right_hold.h"

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QStringListModel>

#include "desktop/keys.h"
#include "tests/desktop/binder_support.h"

namespace zepril {
namespace {

class RightHoldTest : public BinderTest {
 protected:
  RightHoldTest() {
    control.Items = {"first", "second"};
    control.RightDown = [this] { told += "down "; };
    control.RightUp = [this] { told += "up "; };
    list = Place(new QListView);
    other = Place(new QLineEdit);
    binder.Bind(list, &model, control);
    Show();
    list->setFocus();
  }
  void PressMouse() { QTest::mousePress(list->viewport(), Qt::RightButton); }
  void SendKey(QEvent::Type type, int key, Qt::KeyboardModifiers with, bool again) {
    QKeyEvent event(type, key, with, QString(), again);
    QApplication::sendEvent(list, &event);
  }

  ListBox control;
  QStringListModel model;
  QListView* list = nullptr;
  QLineEdit* other = nullptr;
  std::string told;
};

TEST_F(RightHoldTest, TheButtonGoesDownAndUp) {
  PressMouse();
  EXPECT_EQ(told, "down ");
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down up ");
  PressMouse();
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down up down up ");
}

TEST_F(RightHoldTest, TheLeftButtonAndTheMenuOfThePressAreNothing) {
  QTest::mouseClick(list->viewport(), Qt::LeftButton);
  EXPECT_EQ(told, "");
  PressMouse();
  AskForMenu(list, false);
  QTest::mouseClick(list->viewport(), Qt::LeftButton);
  EXPECT_EQ(told, "down ");
}

TEST_F(RightHoldTest, LettingGoOutsideOfTheListCounts) {
  PressMouse();
  QTest::mouseMove(list->viewport(), QPoint(2000, -500));
  QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, QPoint(2000, -500));
  EXPECT_EQ(told, "down up ");
}

TEST_F(RightHoldTest, LosingTheFocusEndsItOnce) {
  PressMouse();
  other->setFocus();
  EXPECT_EQ(told, "down up ");
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down up ");
}

TEST_F(RightHoldTest, AnotherWindowInFrontEndsItOnce) {
  PressMouse();
  QWidget second;
  second.show();
  second.activateWindow();
  ASSERT_TRUE(PumpUntil([&] { return QApplication::activeWindow() == &second; }));
  EXPECT_EQ(told, "down up ");
}

TEST_F(RightHoldTest, HidingTheListEndsItOnce) {
  PressMouse();
  loop.RunStep([this] { control.Visible = false; });
  EXPECT_EQ(told, "down up ");
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down up ");
}

TEST_F(RightHoldTest, HidingTheWindowEndsItOnce) {
  PressMouse();
  window.hide();
  EXPECT_EQ(told, "down up ");
}

TEST_F(RightHoldTest, AListThatIsDisabledMeanwhileEndsItOnce) {
  PressMouse();
  loop.RunStep([this] { control.Enabled = false; });
  EXPECT_EQ(told, "down up ");
}

// The second of two quick presses comes as a double click.
TEST_F(RightHoldTest, QuickPressesAreHeldEachForItself) {
  PressMouse();
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  const QPointF at(5, 5);
  QMouseEvent again(QEvent::MouseButtonDblClick, at, list->viewport()->mapToGlobal(at),
                    Qt::RightButton, Qt::RightButton, Qt::NoModifier);
  QApplication::sendEvent(list->viewport(), &again);
  EXPECT_EQ(told, "down up down ");
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "down up down up ");
}

TEST_F(RightHoldTest, TheMenuKeyIsHeldLikeTheButton) {
  SendKey(QEvent::KeyPress, Qt::Key_Menu, Qt::NoModifier, false);
  EXPECT_EQ(told, "down ");
  // A held key comes as let go and pressed again, over and over.
  for (int times = 0; times < 3; ++times) {
    SendKey(QEvent::KeyRelease, Qt::Key_Menu, Qt::NoModifier, true);
    SendKey(QEvent::KeyPress, Qt::Key_Menu, Qt::NoModifier, true);
  }
  AskForMenu(list, true);
  EXPECT_EQ(told, "down ");
  SendKey(QEvent::KeyRelease, Qt::Key_Menu, Qt::NoModifier, false);
  EXPECT_EQ(told, "down up ");
}

TEST_F(RightHoldTest, ShiftF10IsHeldAlsoWhenShiftIsLetGoFirst) {
  SendKey(QEvent::KeyPress, Qt::Key_F10, Qt::ShiftModifier, false);
  EXPECT_EQ(told, "down ");
  SendKey(QEvent::KeyRelease, Qt::Key_Shift, Qt::NoModifier, false);
  EXPECT_EQ(told, "down ");
  SendKey(QEvent::KeyRelease, Qt::Key_F10, Qt::NoModifier, false);
  EXPECT_EQ(told, "down up ");
  SendKey(QEvent::KeyPress, Qt::Key_F10, Qt::NoModifier, false);
  EXPECT_EQ(told, "down up ");
}

TEST_F(RightHoldTest, WhileItLastsTheListKeepsTheKeys) {
  EXPECT_FALSE(IsTypedIn(list));
  PressMouse();
  EXPECT_TRUE(IsTypedIn(list));  // a redraw leaves it the focus
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_FALSE(IsTypedIn(list));
}

TEST_F(RightHoldTest, AListWithoutTheEventIsAsBefore) {
  control.RightDown = nullptr;
  PressMouse();
  QTest::mouseRelease(list->viewport(), Qt::RightButton);
  EXPECT_EQ(told, "");
}

}  // namespace
}  // namespace zepril
