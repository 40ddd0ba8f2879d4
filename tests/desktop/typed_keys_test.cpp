// What a terminal's field takes as typed, and what it does not.
#include "desktop/typed_keys.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QShortcut>

#include "desktop/keys.h"
#include "tests/desktop/binder_support.h"

namespace zepril {
namespace {

class TypedKeysTest : public BinderTest {
 protected:
  TypedKeysTest() {
    control.KeyTyped = nullptr;
    control.KeyTyped = [this](char byte) {
      EXPECT_TRUE(loop.InStep());
      typed += byte;
    };
    field = Place(new QPlainTextEdit);
    binder.Bind(field, control);
    Show();
    field->setFocus();
  }

  TextBox control;
  std::string typed;
  QPlainTextEdit* field = nullptr;
};

TEST_F(TypedKeysTest, EachCharacterComesAsItsByte) {
  QTest::keyClicks(field, QStringLiteral("mYcall 1/-"));
  for (const char16_t letter : {u'\u00E4', u'\u20AC'}) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(letter));
    QApplication::sendEvent(field, &press);
  }
  EXPECT_EQ(typed, "mYcall 1/-\xE4\x80");
  // The field itself shows only what the logic puts there.
  EXPECT_EQ(field->toPlainText(), QString());
}

TEST_F(TypedKeysTest, KeysOfATerminalComeAsTheirCodes) {
  QTest::keyClick(field, Qt::Key_Return);
  QTest::keyClick(field, Qt::Key_Enter);
  QTest::keyClick(field, Qt::Key_Backspace);
  QTest::keyClick(field, Qt::Key_Escape);
  QTest::keyClick(field, Qt::Key_Tab);
  QTest::keyClick(field, Qt::Key_Delete);
  EXPECT_EQ(typed, "\r\r\b\x1B\t\x7F");
  EXPECT_TRUE(field->hasFocus());
}

TEST_F(TypedKeysTest, ALetterWithControlIsItsNumberInTheAlphabet) {
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(typed, "\x01\x03\x1A\x1A");
  typed.clear();
  QTest::keyClick(field, Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(typed, "");
}

TEST_F(TypedKeysTest, AltGrMakesCharactersAndAltStaysWithTheWindow) {
  QKeyEvent at(QEvent::KeyPress, Qt::Key_At, Qt::ControlModifier | Qt::AltModifier,
               QStringLiteral("@"));
  QApplication::sendEvent(field, &at);
  EXPECT_EQ(typed, "@");
  QTest::keyClick(field, Qt::Key_C, Qt::AltModifier);
  EXPECT_EQ(typed, "@");
}

TEST_F(TypedKeysTest, KeysWithoutACharacterAreNotTyped) {
  for (Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Left, Qt::Key_PageUp, Qt::Key_F5}) {
    QTest::keyClick(field, key);
  }
  QKeyEvent cyrillic(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QStringLiteral("\u0416"));
  QApplication::sendEvent(field, &cyrillic);
  EXPECT_EQ(typed, "");
}

TEST_F(TypedKeysTest, APastedTextGoesNowhere) {
  QApplication::clipboard()->setText(QStringLiteral("pasted"));
  field->paste();
  QTest::keyClick(field, Qt::Key_Insert, Qt::ShiftModifier);
  EXPECT_EQ(typed, "");
  // The key itself is one: Ctrl+V.
  QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(typed, "\x16");
  QTest::mouseClick(field->viewport(), Qt::MiddleButton);
  QInputMethodEvent several;
  several.setCommitString(QStringLiteral("pasted"));
  QApplication::sendEvent(field, &several);
  EXPECT_EQ(typed, "\x16");
  EXPECT_EQ(control.Text, "");
  EXPECT_EQ(field->toPlainText(), QString());
  EXPECT_FALSE(field->acceptDrops());
  EXPECT_FALSE(field->canPaste());
}

TEST_F(TypedKeysTest, ALetterMadeOfSeveralKeysIsTypedOnce) {
  EXPECT_TRUE(field->testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent composed;
  composed.setCommitString(QStringLiteral("\u00E9"));
  QApplication::sendEvent(field, &composed);
  EXPECT_EQ(typed, "\xE9");
}

TEST_F(TypedKeysTest, AShortcutOfTheWindowDoesNotTakeAKeyOfTheModem) {
  QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_C), &window);
  int taken = 0;
  QObject::connect(&shortcut, &QShortcut::activated, [&] { ++taken; });
  QTest::keyClick(field, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(typed, "\x03");
  EXPECT_EQ(taken, 0);
}

TEST_F(TypedKeysTest, TheFieldCountsAsOneThatIsTypedIn) {
  EXPECT_TRUE(IsTypedIn(field));
  EXPECT_FALSE(IsTypedIn(&window));
  EXPECT_FALSE(IsTypedIn(nullptr));
}

TEST_F(TypedKeysTest, ShiftTabLeavesTheField) {
  auto* other = Place(new QPlainTextEdit);
  other->show();
  QWidget::setTabOrder(other, field);
  QTest::keyClick(field, Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_FALSE(field->hasFocus());
  EXPECT_EQ(typed, "");
}

}  // namespace
}  // namespace zepril
