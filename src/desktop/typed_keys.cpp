// Catches keys before the window does, and gives each to the control as a byte.
#include "desktop/typed_keys.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWidget>

#include "desktop/keys.h"

namespace zepril {

TypedKeys::TypedKeys(QWidget* widget, QtLoop& loop, TextBox& box, QObject* parent)
    : QObject(parent), loop_(loop), box_(box) {
  widget->setAcceptDrops(false);
  widget->installEventFilter(this);
}

void TypedKeys::Type(char byte) {
  loop_.RunStep([&] { box_.KeyTyped(byte); });
}

// The field keeps the keys, and letters that are made of several of them.
void TypedKeys::TakeKeys(QWidget* widget) {
  KeepKeysIn(widget, true);
  widget->setAttribute(Qt::WA_InputMethodEnabled);
}

bool TypedKeys::eventFilter(QObject* watched, QEvent* event) {
  if (!box_.KeyTyped) return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::FocusIn:
      TakeKeys(qobject_cast<QWidget*>(watched));
      break;
    case QEvent::ShortcutOverride:
      // Told before a shortcut may take the key: it is ours.
      if (!TypedByte(*static_cast<QKeyEvent*>(event))) break;
      event->accept();
      return true;
    case QEvent::KeyPress:
      if (const auto byte = TypedByte(*static_cast<QKeyEvent*>(event))) {
        Type(*byte);
        return true;
      }
      break;
    case QEvent::InputMethod:
      // A character that is made of several keys, like an accent and its letter.
      if (const auto byte = TypedByte(static_cast<QInputMethodEvent*>(event)->commitString())) {
        Type(*byte);
      }
      return true;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zepril
