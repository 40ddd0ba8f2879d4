// Labels, frames and bars, and what all controls have in common.
#include "desktop/binder.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>

#include "desktop/fill_bar_widget.h"
#include "tests/desktop/binder_support.h"

namespace zepril {
namespace {

TEST_F(BinderTest, ALabelIsPressedByLeftRightAndKeys) {
  Label control;
  int left = 0;
  int right = 0;
  control.Click = Counted(left);
  control.RightClick = Counted(right);
  control.Caption = "caption";
  auto* widget = Place(new QLabel);
  widget->setFocusPolicy(Qt::TabFocus);
  binder.Bind(widget, control);
  Show();
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(left, 1);
  EXPECT_EQ(right, 0);
  AskForMenu(widget, false);
  EXPECT_EQ(right, 1);
  QTest::keyClick(widget, Qt::Key_Return);
  QTest::keyClick(widget, Qt::Key_Space);
  EXPECT_EQ(left, 3);
}

TEST_F(BinderTest, ADisabledControlHandsTheFocusToNoOther) {
  Button first;
  Button second;
  auto* pressed = Place(new QPushButton);
  auto* next = Place(new QPushButton);
  binder.Bind(pressed, first);
  binder.Bind(next, second);
  Show();
  pressed->setFocus();
  loop.RunStep([&] { first.Enabled = false; });
  EXPECT_FALSE(pressed->hasFocus());
  EXPECT_FALSE(next->hasFocus());
}

TEST_F(BinderTest, ADisabledControlRaisesNothing) {
  Label label;
  Button button;
  int events = 0;
  for (Control* control : {static_cast<Control*>(&label), static_cast<Control*>(&button)}) {
    control->Click = Counted(events);
    control->RightClick = Counted(events);
    control->Enabled = false;
  }
  auto* text = Place(new QLabel);
  auto* widget = Place(new QPushButton);
  binder.Bind(text, label);
  binder.Bind(widget, button);
  Show();
  for (QWidget* pressed : {static_cast<QWidget*>(text), static_cast<QWidget*>(widget)}) {
    QTest::mouseClick(pressed, Qt::LeftButton);
    AskForMenu(pressed, false);
    AskForMenu(pressed, true);
  }
  EXPECT_EQ(events, 0);
}

TEST_F(BinderTest, MenuKeyAndShiftF10AreTheRightClick) {
  Button control;
  int left = 0;
  int right = 0;
  control.Click = Counted(left);
  control.RightClick = Counted(right);
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  widget->setFocus();
  AskForMenu(widget, true);
  EXPECT_EQ(right, 1);
  QTest::keyClick(widget, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(right, 2);
  QTest::keyClick(widget, Qt::Key_F10);
  EXPECT_EQ(right, 2);
  EXPECT_EQ(left, 0);
}

TEST_F(BinderTest, ABarFillsByItsShare) {
  FillBar control;
  control.FilledPx = 60;
  control.Colour = 0x0000FF;
  auto* widget = Place(new FillBarWidget);
  binder.Bind(widget, control);
  Show();
  QImage picture = widget->grab().toImage();
  const int y = picture.height() / 2;
  EXPECT_EQ(picture.pixelColor(1, y), QColor(255, 0, 0));
  EXPECT_EQ(picture.pixelColor(picture.width() / 2 - 2, y), QColor(255, 0, 0));
  EXPECT_NE(picture.pixelColor(picture.width() / 2 + 2, y), QColor(255, 0, 0));
  loop.RunStep([&] { control.FilledPx = 1000; });  // more than full is full
  picture = widget->grab().toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() - 1, y), QColor(255, 0, 0));
}

TEST_F(BinderTest, AFrameIsHiddenShownAndPressed) {
  zepril::Frame control;
  control.Visible = false;
  int clicks = 0;
  control.Click = Counted(clicks);
  auto* widget = Place(new QWidget);
  widget->setMinimumSize(40, 40);
  binder.Bind(widget, control);
  Show();
  EXPECT_FALSE(widget->isVisible());
  loop.RunStep([&] { control.Visible = true; });
  EXPECT_TRUE(widget->isVisible());
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST_F(BinderTest, AssignmentsRaiseNothing) {
  int raised = 0;
  CheckBox box;
  OptionButton option;
  TextBox text;
  ComboBox list;
  ListBox rows;
  for (Event<>* event : {&box.Click, &option.Click, &text.Change, &list.Change, &list.Click,
                         &rows.Click, &rows.DoubleClick}) {
    *event = Counted(raised);
  }
  QStringListModel model;
  binder.Bind(Place(new QPushButton), box);
  binder.Bind(Place(new QPushButton), option);
  binder.Bind(Place(new QLineEdit), text);
  auto* editable = Place(new QComboBox);
  editable->setEditable(true);
  binder.Bind(editable, list);
  binder.Bind(Place(new QListView), &model, rows);
  Show();
  for (int pass = 0; pass < 2; ++pass) {
    loop.RunStep([&] {
      box.Value = 1 - pass;
      option.Value = pass == 0;
      text.Text = pass == 0 ? "typed by the logic" : "";
      list.Items = {"a", "b", "c"};
      list.Select(pass);
      rows.Items = {"x", "y"};
      ++rows.Revision;
      rows.ListIndex = pass;
    });
    Pump();
  }
  EXPECT_EQ(raised, 0);
  EXPECT_EQ(editable->currentText(), QStringLiteral("b"));
  EXPECT_EQ(list.Text, "b");
}

TEST_F(BinderTest, AllThatChangedGoesOutInOnePass) {
  Button control;
  control.Caption = "before";
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, control);
  Show();
  loop.RunStep([&] {
    control.Caption = "after";
    control.Enabled = false;
    control.ToolTip = "why  not";
    control.BackColour = 0x00C000;
  });
  EXPECT_EQ(widget->text(), QStringLiteral("after"));
  EXPECT_FALSE(widget->isEnabled());
  EXPECT_EQ(widget->toolTip(), QStringLiteral("why  not"));
  EXPECT_TRUE(widget->styleSheet().contains(StateShade(0x00C000, NightLook()).name()));
  loop.RunStep([&] {
    control.Visible = false;
    control.BackColour.reset();
  });
  EXPECT_FALSE(widget->isVisible());
  EXPECT_TRUE(widget->styleSheet().isEmpty());
}

TEST_F(BinderTest, FocusIsTakenOnceAndTheWishCleared) {
  TextBox first;
  TextBox second;
  auto* one = Place(new QLineEdit);
  auto* two = Place(new QLineEdit);
  binder.Bind(one, first);
  binder.Bind(two, second);
  Show();
  one->setFocus();
  loop.RunStep([&] { second.FocusWanted = true; });
  EXPECT_TRUE(two->hasFocus());
  EXPECT_FALSE(second.FocusWanted);
  one->setFocus();
  loop.RunStep([] {});
  EXPECT_TRUE(one->hasFocus());
}

TEST_F(BinderTest, CaptionsComeOutWhole) {
  Label label;
  Button button;
  label.Caption = "<b>A & B</b>   12  km";
  button.Caption = "SAVE & CLOSE";
  auto* text = Place(new QLabel);
  auto* press = Place(new QPushButton);
  binder.Bind(text, label);
  binder.Bind(press, button);
  Show();
  EXPECT_EQ(text->textFormat(), Qt::PlainText);
  EXPECT_EQ(text->text(), QStringLiteral("<b>A & B</b>   12  km"));
  EXPECT_EQ(press->text(), QStringLiteral("SAVE && CLOSE"));  // the toolkit shows one
  EXPECT_EQ(press->accessibleName(), QStringLiteral("SAVE & CLOSE"));
  EXPECT_TRUE(press->shortcut().isEmpty());
}

TEST_F(BinderTest, AnInkThatCouldNotBeReadGivesWay) {
  Label control;
  control.Caption = "SCALE";
  control.BackColour = 0x00FFFF;
  control.ForeColour = 0x000000;
  auto* widget = Place(new QLabel);
  binder.Bind(widget, control);
  Show();
  const QColor back = StateShade(0x00FFFF, NightLook());
  EXPECT_FALSE(widget->styleSheet().contains(QColor(0, 0, 0).name()));
  EXPECT_TRUE(widget->styleSheet().contains(TextOn(back).name()));
}

TEST_F(BinderTest, AFieldThatComesInTheSameStepGetsTheFocus) {
  zepril::Frame panel;
  panel.Visible = false;
  TextBox field;
  auto* widget = Place(new QWidget);
  auto* edit = new QLineEdit(widget);
  auto* other = Place(new QLineEdit);
  binder.Bind(edit, field);
  binder.Bind(widget, panel);
  Show();
  other->setFocus();
  loop.RunStep([&] {
    panel.Visible = true;
    field.FocusWanted = true;
  });
  EXPECT_TRUE(edit->hasFocus());
}

TEST_F(BinderTest, ALabelWhoseTextWasSelectedIsNotPressed) {
  Label control;
  int clicks = 0;
  control.Click = Counted(clicks);
  control.Caption = "sudo usermod -aG dialout $USER";
  auto* widget = Place(new QLabel);
  widget->setTextInteractionFlags(Qt::TextSelectableByMouse);
  binder.Bind(widget, control);
  Show();
  widget->setSelection(0, 4);
  QTest::mouseRelease(widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
  widget->setSelection(0, 0);
  QTest::mouseClick(widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace zepril
