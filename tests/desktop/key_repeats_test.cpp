// A key that is leaned on and one that is pressed again, on buttons, boxes, labels and in fields
#include "desktop/key_repeats.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <string>

#include "tests/desktop/binder_support.h"

namespace zepril {
namespace {

class KeyRepeatsTest : public BinderTest {};

// What the window system makes of a key that is held: marked repeats, or, read in a hurry, a key
// let go and pressed anew at the same millisecond.
void HoldKey(QWidget* widget, int key, bool marked) {
  const auto send = [&](QEvent::Type type, quint64 at, bool repeat) {
    QKeyEvent event(type, key, Qt::NoModifier,
                    key == Qt::Key_Space ? QStringLiteral(" ") : QString(), repeat);
    event.setTimestamp(at);
    QApplication::sendEvent(widget, &event);
  };
  send(QEvent::KeyPress, 1000, false);
  for (quint64 at = 1500; at < 2500; at += 40) {
    send(QEvent::KeyRelease, at, marked);
    send(QEvent::KeyPress, at, marked);
  }
  send(QEvent::KeyRelease, 2600, false);
}

TEST_F(KeyRepeatsTest, AKeyThatIsLeanedOnPressesOnce) {
  KeyRepeats repeats;
  qApp->installEventFilter(&repeats);
  Button button;
  CheckBox box;
  Label label;
  ComboBox list;
  int pressed = 0;
  int clicked = 0;
  button.Click = Counted(pressed);
  label.Click = Counted(clicked);
  auto* button_widget = Place(new QPushButton);
  auto* box_widget = Place(new QPushButton);
  auto* label_widget = Place(new QLabel);
  label_widget->setFocusPolicy(Qt::StrongFocus);
  binder.Bind(button_widget, button);
  binder.Bind(box_widget, box);
  binder.Bind(label_widget, label);
  Show();
  int times = 0;
  for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    for (const bool marked : {true, false}) {
      ++times;
      HoldKey(button_widget, key, marked);
      EXPECT_EQ(pressed, times) << key << marked;
      HoldKey(box_widget, key, marked);
      EXPECT_EQ(box.Value, times % 2) << key << marked;
      HoldKey(label_widget, key, marked);
      EXPECT_EQ(clicked, times) << key << marked;
    }
  }
}

TEST_F(KeyRepeatsTest, AKeyThatIsPressedAgainPressesAgain) {
  KeyRepeats repeats;
  qApp->installEventFilter(&repeats);
  Button button;
  int pressed = 0;
  button.Click = Counted(pressed);
  auto* widget = Place(new QPushButton);
  binder.Bind(widget, button);
  Show();
  for (int press = 0; press < 3; ++press) {
    QTest::keyClick(widget, Qt::Key_Space);
    QTest::keyClick(widget, Qt::Key_Return);
  }
  EXPECT_EQ(pressed, 6);
}

TEST_F(KeyRepeatsTest, AHeldKeyTypesOnInAField) {
  KeyRepeats repeats;
  qApp->installEventFilter(&repeats);
  TextBox field;
  int entered = 0;
  field.KeyDown = [&](KeyPress key) { entered += key.Code == 13 ? 1 : 0; };
  auto* widget = Place(new QLineEdit);
  binder.Bind(widget, field);
  Show();
  HoldKey(widget, Qt::Key_Space, true);
  EXPECT_EQ(field.Text, std::string(26, ' '));
  field.Text.clear();
  binder.ControlsOut();
  HoldKey(widget, Qt::Key_Space, false);
  EXPECT_EQ(field.Text, std::string(26, ' '));
  // Enter there is a press.
  HoldKey(widget, Qt::Key_Return, true);
  EXPECT_EQ(entered, 1);
}

}  // namespace
}  // namespace zepril
