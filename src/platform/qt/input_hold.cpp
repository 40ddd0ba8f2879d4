// Takes events of mouse, wheel, touch and keys before any window sees them.
#include "platform/qt/input_hold.h"

#include <QCoreApplication>

namespace zepril {
namespace {

// Windows get these first; widgets get theirs from them.
bool IsWindowInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::Enter:
    case QEvent::Leave:
      return true;
    default:
      return false;
  }
}

// These go straight to whoever has the focus, or the short cut.
bool IsDirectInput(QEvent::Type type) {
  return type == QEvent::InputMethod || type == QEvent::Shortcut ||
         type == QEvent::ShortcutOverride;
}

}  // namespace

void InputHold::Begin() {
  if (holding_) return;
  holding_ = true;
  QCoreApplication::instance()->installEventFilter(this);
}

void InputHold::Release() {
  if (!holding_) return;
  holding_ = false;
  QCoreApplication::instance()->removeEventFilter(this);
  for (Held& held : held_) {
    if (held.Receiver) QCoreApplication::postEvent(held.Receiver, held.What.release());
  }
  held_.clear();
}

bool InputHold::eventFilter(QObject* receiver, QEvent* event) {
  const QEvent::Type type = event->type();
  if (!(receiver->isWindowType() && IsWindowInput(type)) && !IsDirectInput(type)) return false;
  // Of a pointer's way only its end counts.
  const bool moves_on = type == QEvent::MouseMove && !held_.empty() &&
                        held_.back().What->type() == type && held_.back().Receiver == receiver;
  if (moves_on) held_.pop_back();
  if (held_.size() >= kMostEvents) return true;
  held_.push_back({receiver, std::unique_ptr<QEvent>(event->clone())});
  Holding(*receiver, *event);
  return true;
}

}  // namespace zepril
