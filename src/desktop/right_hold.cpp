// Follows mouse, keys and focus, so that what has begun ends once.
#include "desktop/right_hold.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/keys.h"

namespace zepril {

RightHold::RightHold(QAbstractScrollArea* view, QtLoop& loop, ListBox& list, QObject* parent)
    : QObject(parent), view_(view), loop_(loop), list_(list) {
  view->installEventFilter(this);
  view->viewport()->installEventFilter(this);
}

void RightHold::Begin() {
  if (held_) return;
  held_ = true;
  // A redraw meanwhile must not take the focus, which would end the hold.
  KeepKeysIn(view_, true);
  loop_.RunStep(list_.RightDown);
}

void RightHold::End() {
  if (!held_) return;
  held_ = false;
  KeepKeysIn(view_, false);
  if (list_.RightUp) loop_.RunStep(list_.RightUp);
}

bool RightHold::MouseChanged(bool down, Qt::MouseButton button) {
  if (button != Qt::RightButton) return false;
  down ? Begin() : End();
  return true;
}

bool RightHold::KeyChanged(bool down, const QKeyEvent& event) {
  // Shift may be let go first.
  const bool ours = down ? event.key() == Qt::Key_Menu || IsRightClickKey(event)
                         : event.key() == Qt::Key_Menu || event.key() == Qt::Key_F10;
  if (!ours) return false;
  // A key that is held comes again and again.
  if (!event.isAutoRepeat()) down ? Begin() : End();
  return true;
}

bool RightHold::eventFilter(QObject* watched, QEvent* event) {
  if (!list_.RightDown && !held_) return QObject::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (MouseChanged(true, static_cast<QMouseEvent*>(event)->button())) return true;
      break;
    case QEvent::MouseButtonRelease:
      if (MouseChanged(false, static_cast<QMouseEvent*>(event)->button())) return true;
      break;
    case QEvent::KeyPress:
      if (KeyChanged(true, *static_cast<QKeyEvent*>(event))) return true;
      break;
    case QEvent::KeyRelease:
      if (KeyChanged(false, *static_cast<QKeyEvent*>(event))) return true;
      break;
    case QEvent::ContextMenu:
      return true;  // the press itself has come already
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::WindowDeactivate:
    case QEvent::EnabledChange:
      End();
      break;
    default:
      break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zepril
