// Fields of a line and of several, and lists that are typed into: typing comes in, the logic's text
// goes out.
#include "desktop/binder.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWheelEvent>

#include "tests/desktop/binder_support.h"

namespace zepril {
namespace {

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

}  // namespace
}  // namespace zepril
