// Each kind of control and its widget: what the operator does comes in, what the logic sets goes
// out.
#include "desktop/binder.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringListModel>
#include <QWheelEvent>

#include "desktop/fill_bar_widget.h"
#include "tests/desktop/binder_support.h"

namespace zepril {
namespace {

TEST_F(BinderTest, RowsStandStillWhileTheMouseAims) {
  ListBox list;
  list.Items = {"one", "two", "three"};
  QStringListModel rows;
  auto* widget = Place(new QListView);
  binder.Bind(widget, &rows, list);
  Show();
  EXPECT_FALSE(list.Held);
  QTest::mouseMove(widget->viewport(), QPoint(10, 10));
  Pump();
  EXPECT_TRUE(list.Held);
}

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

TEST_F(BinderTest, TypingChangesTheTextAndEnterComesAsKey) {
  TextBox control;
  std::vector<std::string> texts;
  std::vector<int> keys;
  control.Change = [&] { texts.push_back(control.Text); };
  control.KeyDown = [&](KeyPress key) { keys.push_back(key.Code); };
  auto* widget = Place(new QLineEdit);
  binder.Bind(widget, control);
  Show();
  widget->setFocus();
  EXPECT_TRUE(control.HasFocus);
  QTest::keyClicks(widget, QStringLiteral("qx7"));
  EXPECT_EQ(texts, (std::vector<std::string>{"q", "qx", "qx7"}));
  keys.clear();
  QTest::keyClick(widget, Qt::Key_Return);
  EXPECT_EQ(keys, (std::vector<int>{13}));
  EXPECT_EQ(texts.size(), 3U);
  widget->clearFocus();
  EXPECT_FALSE(control.HasFocus);
}

TEST_F(BinderTest, LettersBeyondAsciiComeAsOneByteEach) {
  TextBox control;
  auto* widget = Place(new QLineEdit);
  binder.Bind(widget, control);
  Show();
  widget->setFocus();
  for (const char16_t letter : {u'\u00FE', u'\u00E4'}) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(letter));
    QApplication::sendEvent(widget, &press);
  }
  EXPECT_EQ(control.Text, "\xFE\xE4");
}

TEST_F(BinderTest, AChosenEntryRaisesItsEventsOnce) {
  ComboBox control;
  control.Items = {"M0050", "M0050 SAT"};
  control.Select(0);
  int changes = 0;
  int clicks = 0;
  control.Change = Counted(changes);
  control.Click = Counted(clicks);
  auto* widget = Place(new QComboBox);
  binder.Bind(widget, control);
  Show();
  EXPECT_EQ(changes, 0);
  widget->setFocus();
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(control.ListIndex, 1);
  EXPECT_EQ(control.Text, "M0050 SAT");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(BinderTest, AnEditableListHoldsWhatIsTypedAndTellsWhatIsChosen) {
  ComboBox control;
  control.Items = {"QX1AB-9", "QX2CD"};
  std::vector<std::string> texts;
  std::vector<int> keys;
  control.Change = [&] { texts.push_back(control.Text); };
  control.KeyDown = [&](KeyPress key) { keys.push_back(key.Code); };
  auto* widget = Place(new QComboBox);
  widget->setEditable(true);
  binder.Bind(widget, control);
  Show();
  widget->setFocus();
  QTest::keyClicks(widget->lineEdit(), QStringLiteral("qx"));
  // The half of a call is held as it is, chooses nothing and is not completed to another call.
  EXPECT_EQ(control.Text, "qx");
  EXPECT_TRUE(texts.empty());
  EXPECT_EQ(widget->currentText(), QStringLiteral("qx"));
  keys.clear();
  QTest::keyClick(widget->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(keys, (std::vector<int>{13}));
  EXPECT_EQ(widget->count(), 2);
  texts.clear();
  QTest::keyClick(widget, Qt::Key_Down);
  EXPECT_EQ(texts.size(), 1U);
  EXPECT_EQ(control.Text, "QX1AB-9");
  EXPECT_EQ(control.ListIndex, 0);
}

TEST_F(BinderTest, KeysOfAnEditableListCountOnceWhereverTheyArrive) {
  ComboBox control;
  control.Items = {"QX1AB-9"};
  std::vector<int> keys;
  control.KeyDown = [&](KeyPress key) { keys.push_back(key.Code); };
  auto* widget = Place(new QComboBox);
  widget->setEditable(true);
  binder.Bind(widget, control);
  Show();
  widget->setFocus();
  // The list has the focus in place of its field, and hands the keys on.
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(keys, (std::vector<int>{13}));
  QTest::keyClick(widget->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(keys, (std::vector<int>{13, 13}));
}

TEST_F(BinderTest, AListOpensWhenTheProgramAsksForIt) {
  ComboBox control;
  control.Items = {"20240514", "20240515"};
  auto* widget = Place(new QComboBox);
  widget->setEditable(true);
  binder.Bind(widget, control);
  Show();
  EXPECT_FALSE(widget->view()->isVisible());
  loop.RunStep([&] { control.DropDownWanted = true; });
  EXPECT_TRUE(widget->view()->isVisible());
  EXPECT_FALSE(control.DropDownWanted);
  widget->hidePopup();
}

TEST_F(BinderTest, TheTypedNameOfAnEntryIsNoChoice) {
  ComboBox control;
  control.Items = {"QX1AB-9", "QX2CD"};
  int chosen = 0;
  int entered = 0;
  control.Click = Counted(chosen);
  control.KeyDown = [&](KeyPress key) { entered += key.Code == 13 ? 1 : 0; };
  auto* widget = Place(new QComboBox);
  widget->setEditable(true);
  binder.Bind(widget, control);
  Show();
  widget->setFocus();
  QTest::keyClicks(widget->lineEdit(), QStringLiteral("QX2CD"));
  QTest::keyClick(widget->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(entered, 1);
  EXPECT_EQ(chosen, 0);
  EXPECT_EQ(control.Text, "QX2CD");
}

TEST_F(BinderTest, ANewListLeavesTheTypingWhereItIs) {
  ComboBox control;
  auto* widget = Place(new QComboBox);
  widget->setEditable(true);
  binder.Bind(widget, control);
  Show();
  widget->setFocus();
  QTest::keyClicks(widget->lineEdit(), QStringLiteral("QX7KB"));
  widget->lineEdit()->setCursorPosition(2);
  loop.RunStep([&] { control.Items = {"QX1AB-9", "QX2CD"}; });
  EXPECT_EQ(widget->count(), 2);
  EXPECT_EQ(widget->currentText(), QStringLiteral("QX7KB"));
  EXPECT_EQ(widget->lineEdit()->cursorPosition(), 2);
}

TEST_F(BinderTest, TheWheelChangesNoListThatHasNotTheFocus) {
  ComboBox control;
  control.Items = {"one", "two"};
  control.Select(0);
  int changes = 0;
  control.Change = Counted(changes);
  auto* other = Place(new QPushButton);
  auto* widget = Place(new QComboBox);
  binder.Bind(widget, control);
  Show();
  other->setFocus();
  QWheelEvent turn(QPointF(5, 5), widget->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(widget, &turn);
  EXPECT_EQ(changes, 0);
  EXPECT_EQ(widget->currentIndex(), 0);
}

TEST_F(BinderTest, ARowOfAListIsPressed) {
  ListBox control;
  control.Items = {"first", "second", "third"};
  int clicks = 0;
  control.Click = Counted(clicks);
  QStringListModel model;
  auto* widget = Place(new QListView);
  binder.Bind(widget, &model, control);
  Show();
  loop.RunStep([] {});
  ASSERT_EQ(model.rowCount(), 3);
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, {},
                    widget->visualRect(model.index(1, 0)).center());
  EXPECT_EQ(control.ListIndex, 1);
  EXPECT_EQ(clicks, 1);
  loop.RunStep([&] {
    control.Items.push_back("fourth");
    ++control.Revision;
    control.ListIndex = 3;
    control.TopIndex = 3;
  });
  EXPECT_EQ(model.rowCount(), 4);
  EXPECT_EQ(widget->currentIndex().row(), 3);
  EXPECT_EQ(clicks, 1);
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
  box.Click = option.Click = text.Change = list.Change = list.Click = rows.Click = Counted(raised);
  rows.DoubleClick = Counted(raised);
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

// ---- Fields ---------------------------------------------------------------------------------

// A press that came while the program waited acts behind that, when the rows may be others.
TEST_F(BinderTest, APressKeptOverAWaitMeansTheRowThatWasPressed) {
  auto* widget = Place(new QListView);
  QStringListModel model;
  ListBox control;
  control.Items = {"one", "two", "three"};
  std::string opened;
  control.Click = [&] { opened = control.Items[static_cast<std::size_t>(control.ListIndex)]; };
  binder.Bind(widget, &model, control);
  Show();
  loop.RunStep([this] { loop.Wait(0.0); });
  const QPoint at = widget->visualRect(model.index(1, 0)).center();
  QTest::mouseClick(widget->viewport(), Qt::LeftButton, {}, at);
  ASSERT_EQ(opened, "");
  loop.RunStep([&] {
    control.Items.insert(control.Items.begin(), "new");
    ++control.ListIndex;  // the selection goes with its row
    ++control.Revision;
  });
  ASSERT_TRUE(PumpUntil([&] { return !opened.empty(); }));
  EXPECT_EQ(opened, "two");
}

TEST_F(BinderTest, AChoiceKeptOverAWaitMeansTheEntryByItsName) {
  auto* widget = Place(new QComboBox);
  ComboBox control;
  control.Items = {"one", "two", "three"};
  std::string chosen;
  control.Change = [&] { chosen = control.Text; };
  binder.Bind(widget, control);
  Show();
  loop.RunStep([this] { loop.Wait(0.0); });
  emit widget->activated(1);
  ASSERT_EQ(chosen, "");
  loop.RunStep([&] { control.Items.insert(control.Items.begin(), "new"); });
  ASSERT_TRUE(PumpUntil([&] { return !chosen.empty(); }));
  EXPECT_EQ(chosen, "two");
}

TEST_F(BinderTest, AFieldTellsEachTimeItGetsTheFocus) {
  TextBox first;
  TextBox second;
  std::vector<int> told;
  first.GotFocus = [&] {
    EXPECT_TRUE(loop.InStep());
    EXPECT_TRUE(first.HasFocus);
    told.push_back(1);
  };
  second.GotFocus = [&] { told.push_back(2); };
  auto* one = Place(new QLineEdit);
  auto* two = Place(new QLineEdit);
  binder.Bind(one, first);
  binder.Bind(two, second);
  Show();
  told.clear();
  one->setFocus();
  two->setFocus();
  loop.RunStep([&] { first.FocusWanted = true; });
  EXPECT_EQ(told.back(), 1);
  QTest::mouseClick(two, Qt::LeftButton);
  EXPECT_EQ(told.back(), 2);
  EXPECT_TRUE(two->hasFocus());
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

TEST_F(BinderTest, WhatARuleMakesOfTheTypingIsShownWithTheCaretAtItsEnd) {
  TextBox control;
  control.Change = [&] {
    if (control.Text == "61") control.Text = "MANUAL";
  };
  auto* widget = Place(new QLineEdit);
  binder.Bind(widget, control);
  Show();
  widget->setFocus();
  QTest::keyClicks(widget, QStringLiteral("6"));
  EXPECT_EQ(widget->text(), QStringLiteral("6"));
  QTest::keyClicks(widget, QStringLiteral("1"));
  EXPECT_EQ(widget->text(), QStringLiteral("MANUAL"));
  EXPECT_EQ(widget->cursorPosition(), 6);
  QTest::keyClick(widget, Qt::Key_Backspace);
  EXPECT_EQ(control.Text, "MANUA");
}

// ---- Texts of a modem -----------------------------------------------------------------------

TEST_F(BinderTest, ATextOfLinesShowsItsEndAndCannotBeEdited) {
  TextBox control;
  auto* widget = Place(new QPlainTextEdit);
  binder.Bind(widget, control);
  Show();
  loop.RunStep([&] { control.Text = "one\rtwo\r\nthree\nfour\xE4"; });
  EXPECT_EQ(widget->toPlainText(), QStringLiteral("one\ntwo\nthree\nfour\u00E4"));
  EXPECT_EQ(widget->textCursor().position(), static_cast<int>(widget->toPlainText().size()));
  loop.RunStep([&] { control.Text += "\r\x07"; });
  EXPECT_TRUE(widget->toPlainText().endsWith(QStringLiteral("\u00E4\n^G")));
  EXPECT_TRUE(widget->textCursor().atEnd());
  widget->setFocus();
  QTest::keyClicks(widget, QStringLiteral("typed"));
  EXPECT_FALSE(widget->toPlainText().contains(QStringLiteral("typed")));
  EXPECT_EQ(control.Text, "one\rtwo\r\nthree\nfour\xE4\r\x07");
}

TEST_F(BinderTest, AClickIntoATextOfLinesIsTold) {
  TextBox control;
  int clicks = 0;
  control.Click = Counted(clicks);
  auto* widget = Place(new QPlainTextEdit);
  binder.Bind(widget, control);
  Show();
  QTest::mouseClick(widget->viewport(), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
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
