// Buttons, switches and options: what the operator does comes in, what the logic sets goes out.
#include "desktop/binder.h"

#include <QPushButton>

#include "tests/desktop/binder_support.h"

namespace zepril {
namespace {

TEST_F(BinderTest, AButtonIsPressedByMouseAndBySpaceOnceEach) {
  Button control;
  int clicks = 0;
  control.Click = Counted(clicks);
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  widget->setFocus();
  QTest::keyClick(widget, Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
  QTest::mouseClick(widget, Qt::RightButton);
  EXPECT_EQ(clicks, 2);
}

TEST_F(BinderTest, ADisabledButtonIsDead) {
  Button control;
  int clicks = 0;
  control.Click = Counted(clicks);
  control.Enabled = false;
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
}

TEST_F(BinderTest, ACheckBoxGoesBetweenOffAndOn) {
  CheckBox control;
  std::vector<int> seen;
  control.Click = [&] { seen.push_back(control.Value); };
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  for (int press = 0; press < 3; ++press)
    QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(seen, (std::vector<int>{1, 0, 1}));
  EXPECT_TRUE(widget->isChecked());
}

TEST_F(BinderTest, ACheckBoxOfThreeStatesGoesRound) {
  CheckBox control;
  std::vector<int> seen;
  control.Click = [&] { seen.push_back(control.Value); };
  auto* widget = Place(new QPushButton);
  widget->setProperty("three_states", true);
  binder.Bind(widget, control);
  Show();
  for (int press = 0; press < 2; ++press)
    QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_TRUE(widget->isChecked());
  EXPECT_TRUE(widget->property("third_state").toBool());
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(seen, (std::vector<int>{1, 2, 0}));
  EXPECT_FALSE(widget->isChecked());
  EXPECT_FALSE(widget->property("third_state").toBool());
}

TEST_F(BinderTest, ASwitchWithoutAHandlerStillTakesItsValue) {
  CheckBox control;
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(control.Value, 1);
  EXPECT_TRUE(widget->isChecked());
}

TEST_F(BinderTest, AnOptionShowsWhatTheLogicMakesOfThePress) {
  OptionButton first;
  OptionButton second;
  int clicks = 0;
  first.Value = true;
  second.Click = [&] {
    ++clicks;
    first.Value = false;
  };
  auto* one = Place(new QPushButton);
  auto* two = Place(new QPushButton);
  binder.Bind(one, first);
  binder.Bind(two, second);
  Show();
  EXPECT_TRUE(one->isChecked());
  QTest::mouseClick(two, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(one->isChecked());
  EXPECT_TRUE(two->isChecked());
  // A second press on it neither switches it off nor loses its mark.
  QTest::mouseClick(two, Qt::LeftButton);
  EXPECT_TRUE(second.Value);
  EXPECT_TRUE(two->isChecked());
}

// ---- Held buttons ---------------------------------------------------------------------------

TEST_F(BinderTest, AButtonThatRepeatsActsWhenItGoesDownAndOnWhileItIsHeld) {
  Button control;
  int clicks = 0;
  control.Click = Counted(clicks);
  control.RepeatMs = 2;
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  QTest::mousePress(widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(PumpUntil([&] { return clicks >= 4; }));
  const int held = clicks;
  QTest::mouseRelease(widget, Qt::LeftButton);
  // Letting go is no further step: the operator stopped at what was shown.
  EXPECT_EQ(clicks, held);
}

TEST_F(BinderTest, AButtonRepeatsAfterItsMilliseconds) {
  Button control;
  control.RepeatMs = 200;
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  EXPECT_TRUE(widget->autoRepeat());
  EXPECT_EQ(widget->autoRepeatDelay(), 200);
  EXPECT_EQ(widget->autoRepeatInterval(), 200);
  loop.RunStep([&] { control.RepeatMs = 0; });
  EXPECT_FALSE(widget->autoRepeat());
}

TEST_F(BinderTest, AShortPressOfARepeatingButtonIsOneStepAlsoBySpace) {
  Button control;
  int clicks = 0;
  control.Click = Counted(clicks);
  control.RepeatMs = 200000;
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  widget->setFocus();
  QTest::keyClick(widget, Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace zepril
