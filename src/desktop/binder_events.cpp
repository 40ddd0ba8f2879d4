// What the operator does that a widget has no signal for.
#include "desktop/binder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QWindow>

#include "desktop/keys.h"

namespace zepril {
namespace {

const QWidget* WidgetAt(const QObject& window, const QPoint& place) {
  for (const QWidget* top : QApplication::topLevelWidgets()) {
    if (top->windowHandle() == &window) return top->childAt(place);
  }
  return nullptr;
}

}  // namespace

// True: the widget itself does not get it.
bool Binder::Released(const Watched& row, const QMouseEvent& event) {
  const Event<>& click = row.Subject->Click;
  if (!row.PressIsClick || !click || event.button() != Qt::LeftButton) return false;
  if (!row.Subject->Enabled) return false;
  const auto* label = qobject_cast<const QLabel*>(row.Widget);
  const bool selects =
      label != nullptr && label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse);
  // Whoever has just selected a text wants to copy it.
  const bool selected = selects && label->hasSelectedText();
  const bool of_text = qobject_cast<const QPlainTextEdit*>(row.Widget->parent()) != nullptr;
  if (!selected) Press(*row.Subject, click);
  return !selects && !of_text;
}

bool Binder::Pressed(const Watched& row, const QKeyEvent& event) {
  const Control& control = *row.Subject;
  // A key that is leaned on presses once. In fields it types on.
  if (event.isAutoRepeat() && IsPressKey(row, event)) return true;
  if (control.RightClick && IsRightClickKey(event)) {
    Press(control, control.RightClick);
    return true;
  }
  // A button acts when its key goes down: one that is held comes up and down again by itself.
  if (auto* button = qobject_cast<QAbstractButton*>(row.Widget); button && PressesButton(event)) {
    button->click();
    return true;
  }
  if (row.PressIsClick && control.Click && IsClickKey(event)) {
    Press(control, control.Click);
    return true;
  }
  if (!row.KeyDown) return false;
  loop_.RunStep([&] { row.KeyDown(KeyPressOf(event)); });
  // Enter that a field has acted on goes no further: what it closed has given the focus to the map
  // by now, which would take it for a press of its own.
  return EnterPresses && IsEnterKey(event) && qobject_cast<QLineEdit*>(row.Widget) != nullptr;
}

bool Binder::PressesButton(const QKeyEvent& event) const {
  return IsClickKey(event) && (EnterPresses || event.key() == Qt::Key_Space);
}

bool Binder::IsPressKey(const Watched& row, const QKeyEvent& event) {
  if (IsRightClickKey(event)) return true;
  if (!IsClickKey(event)) return false;
  const bool types = row.KeyDown && event.key() == Qt::Key_Space;
  return !types && qobject_cast<QPlainTextEdit*>(row.Widget) == nullptr;
}

void Binder::NotePress(const QObject& window, const QEvent& event) {
  const QWidget* pressed = nullptr;
  if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick) {
    const auto& press = static_cast<const QMouseEvent&>(event);
    if (press.button() == Qt::LeftButton) pressed = WidgetAt(window, press.position().toPoint());
  } else if (event.type() == QEvent::KeyPress) {
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (!key.isAutoRepeat() && PressesButton(key)) pressed = QApplication::focusWidget();
  }
  for (const Watched& row : watched_) {
    if (pressed != nullptr && row.Widget == pressed) row.Subject->PressWaits = true;
  }
}

void Binder::ForgetPresses() {
  for (const Watched& row : watched_)
    row.Subject->PressWaits = false;
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
  for (const Watched& row : watched_) {
    if (row.Widget != watched) continue;
    Control& control = *row.Subject;
    switch (event->type()) {
      case QEvent::FocusIn:
        control.HasFocus = true;
        if (row.Field != nullptr) Raise(row.Field->GotFocus);
        break;
      case QEvent::FocusOut:
        control.HasFocus = false;
        if (row.Choice != nullptr) return Leave(row, *static_cast<QFocusEvent*>(event));
        break;
      case QEvent::ContextMenu:
        // A disabled widget would not act on it; here it is seen before.
        if (!control.RightClick || !control.Enabled) break;
        Press(control, control.RightClick);
        return true;
      case QEvent::MouseButtonPress:
        NoteHold(row, true);
        break;
      case QEvent::MouseMove:
        if (row.List != nullptr) AimAt(*row.List);
        break;
      case QEvent::MouseButtonRelease:
        NoteHold(row, false);
        if (Released(row, *static_cast<QMouseEvent*>(event))) return true;
        break;
      case QEvent::KeyPress:
        if (Pressed(row, *static_cast<QKeyEvent*>(event))) return true;
        break;
      case QEvent::KeyRelease:
        if (qobject_cast<QAbstractButton*>(watched) == nullptr) break;
        if (PressesButton(*static_cast<QKeyEvent*>(event))) return true;
        break;
      case QEvent::Wheel:
        // A list under a scrolling hand keeps its choice.
        if (qobject_cast<QComboBox*>(watched) == nullptr || control.HasFocus) break;
        event->ignore();
        return true;
      default:
        break;
    }
    break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zepril
