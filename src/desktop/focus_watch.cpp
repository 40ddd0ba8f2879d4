// Notes how the focus came to a widget, and tells whether it stays.
#include "desktop/focus_watch.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QWidget>

#include "desktop/keys.h"

namespace zepril {

FocusWatch::FocusWatch() {
  QApplication::instance()->installEventFilter(this);
}

bool FocusWatch::Keeps(const QWidget* widget) const {
  if (widget == nullptr) return false;
  return IsTypedIn(widget) || widget == by_keyboard_ ||
         qobject_cast<const QComboBox*>(widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(widget) != nullptr;
}

void FocusWatch::Note(QWidget* widget, const QFocusEvent& event) {
  switch (event.reason()) {
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
      by_keyboard_ = widget;
      break;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
      // Back from another window: as it was before.
      break;
    default:
      by_keyboard_ = nullptr;
  }
}

bool FocusWatch::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn && watched->isWidgetType()) {
    Note(static_cast<QWidget*>(watched), *static_cast<QFocusEvent*>(event));
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace zepril
